// In the place of OpenGL and GLU. Matrices, colour and textures work as theirs do, but for two shortcuts: popped
// attributes are those at rest, whatever was pushed, and turning about another axis than z = 1 shows as a wrong size.
// What is drawn is written down. No pixel is ever set; those read back are the last texture's.

#include "standin/standin.h"
#include "utility/utility.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <math.h>
#include <string>
#include <vector>

namespace {

GLenum shape = 0;
Point spot;
std::vector<Vertex> corners;


Point placeOf(double x, double y) { return screen.matrices.back().first * Point(x, y) + screen.matrices.back().second; }


std::string text(const Point& point) { return " " + toString(point.real()) + "," + toString(point.imag()); }


// One shape of a batch, as Screen::drawn has it.
void draw(const Vertex* corner, size_t count) {
    std::string line = screen.texturing ? textures.at(screen.texture).picture : "no texture";
    std::string part;
    for (const size_t i : {size_t{0}, size_t{1}, size_t{2}, count - 1}) {
        line += text(corner[i].place);
        part += text(corner[i].spot);
    }
    if (count != 4)
        line += " last of " + toString(count);
    if (screen.texturing && part != " 0,0 1,0 1,1 0,1" && part != " 0,0 0,1 1,1 1,0")
        line += " part" + part;
    screen.drawn.push_back(line + screen.colour);
}

} // namespace

extern "C" {

void glEnable(GLenum what) {
    screen.texturing |= what == GL_TEXTURE_2D;
    if (what != GL_TEXTURE_2D)
        call(what == GL_BLEND ? "enable blending" : "enable");
}
void glDisable(GLenum what) { screen.texturing &= what != GL_TEXTURE_2D; }
void glBindTexture(GLenum, GLuint texture) { screen.texture = texture; }
void glColor4d(GLdouble r, GLdouble g, GLdouble b, GLdouble a) {
    const std::string name = joined(" colour", r, g, b, a);
    screen.colour = name == " colour 1 1 1 1" ? "" : name;
}
void glColor3ub(GLubyte r, GLubyte g, GLubyte b) { glColor4d(r / 255., g / 255., b / 255., 1); }
void glPushAttrib(GLbitfield) {}
void glPopAttrib() { screen.colour.clear(); }
void glLineWidth(GLfloat) {}

void glBegin(GLenum mode) {
    shape = mode;
    corners.clear();
}
void glTexCoord2d(GLdouble s, GLdouble t) { spot = {s, t}; }
void glVertex2d(GLdouble x, GLdouble y) { corners.push_back({placeOf(x, y), spot}); }
void glVertex3i(GLint x, GLint y, GLint) { glVertex2d(x, y); }
void glEnd() {
    if (shape == GL_QUADS && corners.size() > 40) {
        screen.longBatch = corners;
        corners.resize(4);
    }
    const size_t count = shape == GL_QUADS ? 4 : corners.size();
    for (size_t first = 0; first < corners.size(); first += count)
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
void glBlendFunc(GLenum from, GLenum to) { call("blend", from == GL_SRC_ALPHA, to == GL_ONE_MINUS_SRC_ALPHA); }
void glFlush() {}

void glGenTextures(GLsizei, GLuint* name) {
    *name = static_cast<GLuint>(textures.size());
    textures.push_back({files.opened, "", 0, 0});
}
void glTexParameteri(GLenum, GLenum which, GLint filter) {
    Texture& texture = textures[screen.texture];
    GLint& kept = which == GL_TEXTURE_MIN_FILTER ? texture.smaller : texture.larger;
    kept = filter;
}
void glTexImage2D(GLenum, GLint, GLint parts, GLsizei w, GLsizei h, GLint, GLenum format, GLenum, const void* pixels) {
    textures[screen.texture].upload = toString(parts) + (format == GL_RGBA ? " RGBA" : " other");
    screen.texels.assign(static_cast<const Uint8*>(pixels), static_cast<const Uint8*>(pixels) + 4 * w * h);
}
GLint gluBuild2DMipmaps(GLenum, GLint parts, GLsizei w, GLsizei h, GLenum format, GLenum, const void* pixels) {
    glTexImage2D(0, 0, parts, w, h, 0, format, 0, pixels);
    textures[screen.texture].upload += " mipmaps";
    return 0;
}
void glGetIntegerv(GLenum, GLint* viewport) { std::copy_n(screen.viewport.begin(), 4, viewport); }
void glReadPixels(GLint x, GLint y, GLsizei w, GLsizei h, GLenum, GLenum, void* pixels) {
    call("read", x, y, w, h);
    std::copy(screen.texels.begin(), screen.texels.end(), static_cast<Uint8*>(pixels));
}

} // extern "C"
