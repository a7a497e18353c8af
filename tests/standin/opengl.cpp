// Replaces OpenGL and GLU. Matrices and textures work like theirs, with one shortcut: a turn about any axis but z = 1
// shows as a wrong size. Everything drawn is recorded, lines and whatever is enabled but textures as calls, with
// OpenGL's numbers. No pixel is ever set or read.

#include "standin/standin.h"

#include <cmath>
#include <cstdio>
#include <math.h>

namespace {

// A corner's place in the window, in pixels, and in its picture, from 0 to 1; and its colour, empty for opaque white.
struct Vertex {
    Point place, spot;
    std::string colour;
};

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
    std::string line = screen.isTextured ? texture.picture : "no texture";
    if (line == texture.picture && texture.made.find("mipmaps") == std::string::npos)
        line += " without mipmaps";
    std::string part;
    for (const size_t i : {size_t{0}, size_t{1}, size_t{2}, count - 1}) {
        line += text(vertex[i].place);
        part += text(vertex[i].spot);
    }
    if (count != 4)
        line += " last of " + toString(count);
    if (screen.isTextured && part != " 0,0 1,0 1,1 0,1" && part != " 0,0 0,1 1,1 1,0")
        line += " part" + part;
    screen.drawn.push_back(line + vertex[count - 1].colour);
}

} // namespace

Point partShown(const std::string& line) {
    double left = 0, low = 0;
    const size_t part = line.find("part ");
    if (part != std::string::npos)
        std::sscanf(&line[part], "part %lf,%lf", &left, &low);
    return {left, low};
}

extern "C" {

static void enable(GLenum what, bool enabled) {
    if (what == GL_TEXTURE_2D)
        screen.isTextured = enabled;
    else
        call(enabled ? "enable" : "disable", what);
}
void glEnable(GLenum what) { enable(what, true); }
void glDisable(GLenum what) { enable(what, false); }
void glBindTexture(GLenum, GLuint texture) { screen.texture = texture; }
void glColor4d(GLdouble r, GLdouble g, GLdouble b, GLdouble a) {
    const std::string name = joined(" colour", r, g, b, a);
    screen.colour = name == " colour 1 1 1 1" ? "" : name;
}
void glColor3ub(GLubyte r, GLubyte g, GLubyte b) { call("colour", int(r), int(g), int(b)); }
void glVertex3i(GLint x, GLint y, GLint z) { call(shape == GL_LINES ? "end of line" : "corner", x, y, z); }
void glLineWidth(GLfloat width) { call("line width", width); }
void glPushAttrib(GLbitfield groups) { call("push attributes", groups == GL_ALL_ATTRIB_BITS ? "all" : "some"); }
void glPopAttrib() { call("pop attributes"); }

void glBegin(GLenum mode) {
    shape = mode;
    emitted = 0;
}
void glTexCoord2d(GLdouble s, GLdouble t) { spot = {s, t}; }
void glVertex2d(GLdouble x, GLdouble y) {
    if (emitted == corners.size())
        corners.emplace_back();
    corners[emitted] = {placeOf(x, y), spot, screen.colour};
    emitted += 1;
}
void glEnd() {
    const size_t count = shape == GL_QUADS ? 4 : emitted;
    if (emitted == 4 * 32 * 24 && !screen.drawsWholeGround)
        emitted = count;
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
void glScaled(GLdouble x, GLdouble y, GLdouble z) {
    screen.matrices.back().first *= x == y ? x : NAN;
    if (x == z)
        call("scale all three axes", x);
}
void glRotated(GLdouble a, GLdouble, GLdouble, GLdouble z) {
    screen.matrices.back().first *= std::polar(z, a * M_PI / 180);
}

void glClear(GLbitfield) { screen.drawn.clear(); }
void glMatrixMode(GLenum mode) { call(mode == GL_PROJECTION ? "projection" : "model"); }
void gluOrtho2D(GLdouble left, GLdouble right, GLdouble low, GLdouble high) { call("ortho", left, right, low, high); }
void glBlendFunc(GLenum from, GLenum to) {
    call("blend", from == GL_SRC_ALPHA && to == GL_ONE_MINUS_SRC_ALPHA ? "by alpha" : "otherwise");
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
void glGetIntegerv(GLenum, GLint*) {}
void glReadPixels(GLint, GLint, GLsizei, GLsizei, GLenum, GLenum, void*) {}

} // extern "C"
