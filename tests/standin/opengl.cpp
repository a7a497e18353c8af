// In the place of OpenGL and GLU. Matrices, attributes and textures work as theirs do, but for one shortcut: turning
// about another axis than z = 1 shows as a wrong size. What is drawn is written down. No pixel is ever set; those read
// back are the last texture's.

#include "standin/standin.h"
#include "utility/utility.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <math.h>
#include <string>
#include <vector>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <vector>

namespace {

// The open batch: its corners stand in front of what longer ones have left.
GLenum shape = 0;
std::vector<Vertex> corners(4);
size_t emitted = 0;


Point placeOf(double x, double y) { return screen.matrices.back().first * Point(x, y) + screen.matrices.back().second; }


std::string text(const Point& point) { return " " + toString(point.real()) + "," + toString(point.imag()); }


std::string lineStyle() {
    const std::string blended = screen.state.blendByAlpha ? " blended by alpha" : " blended";
    return joined(" width", screen.state.lineWidth) + (screen.has(GL_LINE_SMOOTH) ? " smooth" : "") +
           (screen.has(GL_BLEND) ? blended : "") + (screen.has(GL_LIGHTING) ? " lit" : "");
}


// One shape of a batch, as Screen::drawn has it.
void draw(const Vertex* vertex, size_t count) {
    const bool texturing = screen.has(GL_TEXTURE_2D);
    std::string line = texturing ? textures.at(screen.state.texture).picture : "no texture";
    std::string part;
    // Of a fan with two corners, an empty slice of the pie, the third is left from the batch before.
    std::vector<size_t> told{0, 1, 2, count - 1};
    if (shape == GL_LINES)
        told.resize(2);
    for (const size_t i : told) {
        line += text(vertex[i].place) + (vertex[i].depth == 0 ? "" : "," + toString(vertex[i].depth));
        part += text(vertex[i].spot);
    }
    if (shape == GL_LINES)
        line += lineStyle();
    else if (count != 4)
        line += " last of " + toString(count);
    if (texturing && part != " 0,0 1,0 1,1 0,1" && part != " 0,0 0,1 1,1 1,0")
        line += " part" + part;
    screen.drawn.push_back(line + vertex[count - 1].colour);
}

} // namespace

extern "C" {

void glEnable(GLenum what) {
    screen.state.enabled.insert(what);
    if (what == GL_BLEND)
        call("enable blending");
}
void glDisable(GLenum what) { screen.state.enabled.erase(what); }
void glBindTexture(GLenum, GLuint texture) { screen.state.texture = texture; }
void glColor4d(GLdouble r, GLdouble g, GLdouble b, GLdouble a) {
    const std::string name = joined(" colour", r, g, b, a);
    screen.state.colour = name == " colour 1 1 1 1" ? "" : name;
}
void glColor3ub(GLubyte r, GLubyte g, GLubyte b) { glColor4d(r / 255., g / 255., b / 255., 1); }
void glLineWidth(GLfloat width) { screen.state.lineWidth = width; }
void glPushAttrib(GLbitfield groups) { screen.pushed.emplace_back(groups, screen.state); }
void glPopAttrib() {
    Attributes& state = screen.state;
    const Attributes saved = screen.pushed.back().second;
    const auto restore = [groups = screen.pushed.back().first](GLbitfield group, auto& attribute, const auto& old) {
        if ((groups & group) != 0)
            attribute = old;
    };
    restore(GL_ENABLE_BIT, state.enabled, saved.enabled);
    restore(GL_TEXTURE_BIT, state.texture, saved.texture);
    restore(GL_CURRENT_BIT, state.spot, saved.spot);
    restore(GL_CURRENT_BIT, state.colour, saved.colour);
    restore(GL_COLOR_BUFFER_BIT, state.blendByAlpha, saved.blendByAlpha);
    restore(GL_LINE_BIT, state.lineWidth, saved.lineWidth);
    screen.pushed.pop_back();
}

void glBegin(GLenum mode) {
    shape = mode;
    emitted = 0;
}
void glTexCoord2d(GLdouble s, GLdouble t) { screen.state.spot = {s, t}; }
void glVertex2d(GLdouble x, GLdouble y) {
    if (emitted == corners.size())
        corners.emplace_back();
    corners[emitted] = {placeOf(x, y), 0, screen.state.spot, screen.state.colour};
    emitted += 1;
}
void glVertex3i(GLint x, GLint y, GLint z) {
    glVertex2d(x, y);
    corners[emitted - 1].depth = z;
}
void glEnd() {
    if (shape == GL_QUADS && emitted > 40) {
        screen.longBatch.assign(corners.begin(), corners.begin() + emitted);
        emitted = 4;
    }
    const std::map<GLenum, size_t> ofEachShape{{GL_QUADS, 4}, {GL_LINES, 2}};
    const size_t count = ofEachShape.count(shape) == 0 ? emitted : ofEachShape.at(shape);
    for (size_t first = 0; first < emitted; first += count)
        draw(&corners[first], count);
}

void glPushMatrix() { screen.matrices.push_back(screen.matrices.back()); }
void glPopMatrix() { screen.matrices.pop_back(); }
void glLoadIdentity() {
    screen.matrices = {{1, 0}};
    call("identity");
}
void glTranslated(GLdouble x, GLdouble y, GLdouble) { screen.matrices.back().second = placeOf(x, y); }
void glScaled(GLdouble x, GLdouble y, GLdouble) { screen.matrices.back().first *= x == y ? x : NAN; }
void glRotated(GLdouble a, GLdouble, GLdouble, GLdouble z) {
    screen.matrices.back().first *= std::polar(z, a * M_PI / 180);
}

void glClear(GLbitfield) { screen.drawn.clear(); }
void glMatrixMode(GLenum mode) { call(mode == GL_PROJECTION ? "projection" : "model"); }
void gluOrtho2D(GLdouble left, GLdouble right, GLdouble low, GLdouble high) { call("ortho", left, right, low, high); }
void glBlendFunc(GLenum from, GLenum to) {
    screen.state.blendByAlpha = from == GL_SRC_ALPHA && to == GL_ONE_MINUS_SRC_ALPHA;
    call(screen.state.blendByAlpha ? "blend by alpha" : "blend otherwise");
}
void glFlush() {}

void glGenTextures(GLsizei, GLuint* name) {
    *name = static_cast<GLuint>(textures.size());
    textures.push_back({files.opened + " without mipmaps", "", 0, 0});
}
void glTexParameteri(GLenum, GLenum which, GLint filter) {
    Texture& texture = textures[screen.state.texture];
    GLint& kept = which == GL_TEXTURE_MIN_FILTER ? texture.smaller : texture.larger;
    kept = filter;
}
void glTexImage2D(GLenum, GLint, GLint parts, GLsizei w, GLsizei h, GLint, GLenum format, GLenum, const void* pixels) {
    textures[screen.state.texture].upload = toString(parts) + (format == GL_RGBA ? " RGBA" : " other");
    screen.texels.assign(static_cast<const Uint8*>(pixels), static_cast<const Uint8*>(pixels) + 4 * w * h);
}
GLint gluBuild2DMipmaps(GLenum, GLint parts, GLsizei w, GLsizei h, GLenum format, GLenum, const void* pixels) {
    glTexImage2D(0, 0, parts, w, h, 0, format, 0, pixels);
    textures[screen.state.texture].upload += " mipmaps";
    textures[screen.state.texture].picture = files.opened;
    return 0;
}
void glGetIntegerv(GLenum, GLint* viewport) { std::copy_n(screen.viewport.begin(), 4, viewport); }
void glReadPixels(GLint x, GLint y, GLsizei w, GLsizei h, GLenum, GLenum, void* pixels) {
    call("read", x, y, w, h);
    std::copy(screen.texels.begin(), screen.texels.end(), static_cast<Uint8*>(pixels));
}

} // extern "C"
