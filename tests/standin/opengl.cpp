// Replaces OpenGL and GLU. Matrices, attributes and textures work like theirs, with one shortcut: a turn about any axis
// but z = 1 shows as a wrong size. Everything drawn is recorded. No pixel is ever set; the pixels read back are those
// of the last texture.

#include "standin/standin.h"

#include <algorithm>
#include <cmath>
#include <math.h>

namespace {

// The open batch: its corners come first, before what longer batches left behind.
GLenum shape = 0;
std::vector<Vertex> corners(4);
size_t emitted = 0;
Point spot;


Point placeOf(double x, double y) { return screen.matrices.back().first * Point(x, y) + screen.matrices.back().second; }


std::string text(const Point& point) { return " " + toString(point.real()) + "," + toString(point.imag()); }


// Records one shape of a batch in the form of Screen::drawn. For a fan with two corners, an empty slice of the pie, the
// third corner is left over from the batch before.
void draw(const Vertex* vertex, size_t count) {
    const Texture& texture = textures.at(screen.texture);
    std::string line = screen.has(GL_TEXTURE_2D) ? texture.picture : "no texture";
    if (line == texture.picture && texture.made.find("mipmaps") == std::string::npos)
        line += " without mipmaps";
    std::string part;
    for (const size_t i : {size_t{0}, size_t{1}, size_t{2}, count - 1}) {
        line += text(vertex[i].place);
        part += text(vertex[i].spot);
    }
    if (count != 4)
        line += " last of " + toString(count);
    if (screen.has(GL_TEXTURE_2D) && part != " 0,0 1,0 1,1 0,1" && part != " 0,0 0,1 1,1 1,0")
        line += " part" + part;
    screen.drawn.push_back(line + vertex[count - 1].colour);
}


void drawLine(const Vertex& from, const Vertex& to) {
    const auto end = [](const Vertex& vertex) { return text(vertex.place) + "," + toString(vertex.depth); };
    screen.drawn.push_back("line" + end(from) + end(to) + " " + screen.lineStyle() + to.colour);
}

} // namespace

std::string Screen::lineStyle() const {
    const std::string blended = state.blendByAlpha ? " blended by alpha" : " blended";
    return joined("width", state.lineWidth) + (has(GL_LINE_SMOOTH) ? " smooth" : "") + (has(GL_BLEND) ? blended : "") +
           (has(GL_LIGHTING) ? " lit" : "") + (has(GL_TEXTURE_2D) ? " textured" : "");
}

extern "C" {

void glEnable(GLenum what) { screen.state.enabled.insert(what); }
void glDisable(GLenum what) { screen.state.enabled.erase(what); }
void glBindTexture(GLenum, GLuint texture) { screen.texture = texture; }
void glColor4d(GLdouble r, GLdouble g, GLdouble b, GLdouble a) {
    const std::string name = joined(" colour", r, g, b, a);
    screen.state.colour = name == " colour 1 1 1 1" ? "" : name;
}
void glColor3ub(GLubyte r, GLubyte g, GLubyte b) { glColor4d(r / 255., g / 255., b / 255., 1); }
void glLineWidth(GLfloat width) { screen.state.lineWidth = width; }
void glPushAttrib(GLbitfield groups) { screen.pushed.emplace_back(groups, screen.state); }
void glPopAttrib() {
    Attributes& state = screen.state;
    const auto [groups, saved] = screen.pushed.back();
    screen.pushed.pop_back();
    state.enabled = (groups & GL_ENABLE_BIT) != 0 ? saved.enabled : state.enabled;
    state.colour = (groups & GL_CURRENT_BIT) != 0 ? saved.colour : state.colour;
    state.blendByAlpha = (groups & GL_COLOR_BUFFER_BIT) != 0 ? saved.blendByAlpha : state.blendByAlpha;
    state.lineWidth = (groups & GL_LINE_BIT) != 0 ? saved.lineWidth : state.lineWidth;
}

void glBegin(GLenum mode) {
    shape = mode;
    emitted = 0;
}
void glTexCoord2d(GLdouble s, GLdouble t) { spot = {s, t}; }
void glVertex2d(GLdouble x, GLdouble y) {
    if (emitted == corners.size())
        corners.emplace_back();
    corners[emitted] = {placeOf(x, y), spot, screen.state.colour, 0};
    emitted += 1;
}
void glVertex3i(GLint x, GLint y, GLint z) {
    glVertex2d(x, y);
    corners[emitted - 1].depth = z * screen.depthScale;
}
void glEnd() {
    for (size_t first = 0; shape == GL_LINES && first < emitted; first += 2)
        drawLine(corners[first], corners[first + 1]);
    if (shape == GL_QUADS && emitted > 40) {
        screen.longBatch.assign(corners.begin(), corners.begin() + emitted);
        emitted = 4;
    }
    const size_t count = shape == GL_QUADS ? 4 : emitted;
    for (size_t first = 0; shape != GL_LINES && first < emitted; first += count)
        draw(&corners[first], count);
}

void glPushMatrix() { screen.matrices.push_back(screen.matrices.back()); }
void glPopMatrix() { screen.matrices.pop_back(); }
void glLoadIdentity() {
    screen.matrices = {{1, 0}};
    call("identity");
}
void glTranslated(GLdouble x, GLdouble y, GLdouble) { screen.matrices.back().second = placeOf(x, y); }
void glScaled(GLdouble x, GLdouble y, GLdouble z) {
    screen.matrices.back().first *= x == y ? x : NAN;
    screen.depthScale = z;
}
void glRotated(GLdouble a, GLdouble, GLdouble, GLdouble z) {
    screen.matrices.back().first *= std::polar(z, a * M_PI / 180);
}

void glClear(GLbitfield) { screen.drawn.clear(); }
void glMatrixMode(GLenum mode) { call(mode == GL_PROJECTION ? "projection" : "model"); }
void gluOrtho2D(GLdouble left, GLdouble right, GLdouble low, GLdouble high) { call("ortho", left, right, low, high); }
void glBlendFunc(GLenum from, GLenum to) {
    screen.state.blendByAlpha = from == GL_SRC_ALPHA && to == GL_ONE_MINUS_SRC_ALPHA;
}
void glFlush() {}

void glGenTextures(GLsizei, GLuint* name) {
    *name = static_cast<GLuint>(textures.size());
    textures.push_back({files.opened, ""});
}
void glTexParameteri(GLenum, GLenum which, GLint filter) {
    textures[screen.texture].made += joined(which == GL_TEXTURE_MIN_FILTER ? " smaller" : " larger", filter);
}
void glTexImage2D(GLenum, GLint, GLint parts, GLsizei w, GLsizei h, GLint, GLenum format, GLenum, const void* pixels) {
    textures[screen.texture].made = toString(parts) + (format == GL_RGBA ? " RGBA" : " other");
    screen.texels.assign(static_cast<const Uint8*>(pixels), static_cast<const Uint8*>(pixels) + 4 * w * h);
}
GLint gluBuild2DMipmaps(GLenum, GLint parts, GLsizei w, GLsizei h, GLenum format, GLenum, const void* pixels) {
    glTexImage2D(0, 0, parts, w, h, 0, format, 0, pixels);
    textures[screen.texture].made += " mipmaps";
    return 0;
}
void glGetIntegerv(GLenum, GLint* viewport) { std::copy_n(screen.viewport.begin(), 4, viewport); }
void glReadPixels(GLint x, GLint y, GLsizei w, GLsizei h, GLenum, GLenum, void* pixels) {
    call("read", x, y, w, h);
    std::copy(screen.texels.begin(), screen.texels.end(), static_cast<Uint8*>(pixels));
}

} // extern "C"
