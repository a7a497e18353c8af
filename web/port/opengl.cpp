// Stands in for OpenGL 1.x and GLU, which browsers don't have; Emscripten's own emulation of them has no coordinates of
// type double, no GL_POLYGON and no gluBuild2DMipmaps. Collects what the game draws as triangles and passes a whole
// frame at a time to WebGL, so that a frame costs one upload and one call for each change of picture.

#include "port.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

// The two-dimensional part of a matrix: the game turns, moves and scales only in the plane of the window.
struct Plane {
    double xx = 1, xy = 0, yx = 0, yy = 1, x = 0, y = 0;
};


// `first`, applied before `then`.
Plane combined(const Plane& then, const Plane& first) {
    return {then.xx * first.xx + then.xy * first.yx,        then.xx * first.xy + then.xy * first.yy,
            then.yx * first.xx + then.yy * first.yx,        then.yx * first.xy + then.yy * first.yy,
            then.xx * first.x + then.xy * first.y + then.x, then.yx * first.x + then.yy * first.y + then.y};
}


std::vector<Plane> modelview(1);
std::vector<Plane> projection(1);
std::vector<Plane>* current = &modelview;

bool visible = true;
bool texturing = false;
std::vector<unsigned> pictures(1); // the number of each texture's picture; texture 0 shows none
GLuint boundTexture = 0;
Corner corner{0, 0, 0, 0, {255, 255, 255, 255}};
GLenum shape = GL_QUADS;
std::vector<Corner> shapeCorners;

std::vector<Corner> triangles;
std::vector<Batch> batches;


void transform(const Plane& plane) { current->back() = combined(current->back(), plane); }


std::uint8_t colourPart(double part) {
    return static_cast<std::uint8_t>(std::lround(std::clamp(part, 0.0, 1.0) * 255));
}


// Adds the current shapes, of `size` corners each, as triangles around the first of each.
void addFans(std::size_t size) {
    const unsigned picture = texturing ? pictures[boundTexture] : 0;
    if (batches.empty() || batches.back().picture != picture)
        batches.push_back({picture, 0});
    const std::size_t before = triangles.size();
    for (std::size_t first = 0; first + size <= shapeCorners.size(); first += size)
        for (std::size_t i = first + 2; i < first + size; ++i)
            for (const std::size_t vertex : {first, i - 1, i})
                triangles.push_back(shapeCorners[vertex]);
    batches.back().corners += triangles.size() - before;
}


// The browser has the pixels already; what the game passes is the number of a picture.
void setPicture(const void* pixels) { pictures[boundTexture] = *static_cast<const std::uint32_t*>(pixels); }

} // namespace


void drawCollected() {
    if (!triangles.empty())
        webDraw(triangles.data(), triangles.size() * sizeof(Corner), batches.data(), batches.size());
    triangles.clear();
    batches.clear();
}


void setVisible(bool isVisible) { visible = isVisible; }


extern "C" {

void glBegin(GLenum mode) {
    shape = mode;
    shapeCorners.clear();
}


// Each quad is a fan of four corners. Polygons, which are convex, and fans are one fan each.
void glEnd() {
    if (!shapeCorners.empty())
        addFans(shape == GL_QUADS ? 4 : shapeCorners.size());
}


void glVertex2d(GLdouble x, GLdouble y) {
    if (!visible)
        return;
    const Plane all = combined(projection.back(), modelview.back());
    corner.x = static_cast<float>(all.xx * x + all.xy * y + all.x);
    corner.y = static_cast<float>(all.yx * x + all.yy * y + all.y);
    shapeCorners.push_back(corner);
}


void glTexCoord2d(GLdouble s, GLdouble t) {
    corner.s = static_cast<float>(s);
    corner.t = static_cast<float>(t);
}


void glColor4d(GLdouble red, GLdouble green, GLdouble blue, GLdouble alpha) {
    std::size_t i = 0;
    for (const double part : {red, green, blue, alpha})
        corner.colour[i++] = colourPart(part);
}


void glMatrixMode(GLenum mode) { current = mode == GL_PROJECTION ? &projection : &modelview; }


void glLoadIdentity() { current->back() = Plane(); }


void glPushMatrix() { current->push_back(Plane(current->back())); }


void glPopMatrix() { current->pop_back(); }


void glTranslated(GLdouble x, GLdouble y, GLdouble /*z*/) { transform({1, 0, 0, 1, x, y}); }


void glScaled(GLdouble x, GLdouble y, GLdouble /*z*/) { transform({x, 0, 0, y, 0, 0}); }


void glRotated(GLdouble degrees, GLdouble /*x*/, GLdouble /*y*/, GLdouble /*z*/) {
    const double angle = degrees * M_PI / 180;
    transform({std::cos(angle), -std::sin(angle), std::sin(angle), std::cos(angle), 0, 0});
}


void gluOrtho2D(GLdouble left, GLdouble right, GLdouble bottom, GLdouble top) {
    transform({2 / (right - left), 0, 0, 2 / (top - bottom), -(right + left) / (right - left),
               -(top + bottom) / (top - bottom)});
}


// Blending is always on, as the game sets it from its first frame.
void glEnable(GLenum what) { texturing = texturing || what == GL_TEXTURE_2D; }


void glDisable(GLenum what) { texturing = texturing && what != GL_TEXTURE_2D; }


void glBlendFunc(GLenum /*source*/, GLenum /*destination*/) {}


void glClear(GLbitfield /*buffers*/) {
    drawCollected();
    if (visible)
        webClear();
}


void glFlush() {}


void glGenTextures(GLsizei count, GLuint* textures) {
    for (GLsizei i = 0; i < count; ++i) {
        textures[i] = static_cast<GLuint>(pictures.size());
        pictures.push_back(0);
    }
}


void glBindTexture(GLenum /*target*/, GLuint texture) { boundTexture = texture; }


// All pictures have mipmaps, and the filters that the game sets.
void glTexParameteri(GLenum /*target*/, GLenum /*name*/, GLint /*value*/) {}


void glTexImage2D(GLenum /*target*/, GLint /*level*/, GLint /*internal*/, GLsizei /*width*/, GLsizei /*height*/,
                  GLint /*border*/, GLenum /*format*/, GLenum /*type*/, const GLvoid* pixels) {
    setPicture(pixels);
}


GLint gluBuild2DMipmaps(GLenum /*target*/, GLint /*internal*/, GLsizei /*width*/, GLsizei /*height*/, GLenum /*format*/,
                        GLenum /*type*/, const void* pixels) {
    setPicture(pixels);
    return 0;
}

} // extern "C"
