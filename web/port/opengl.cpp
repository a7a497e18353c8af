// Stands in for OpenGL 1.x and GLU, which browsers don't have. Collects what the game draws as triangles and passes a
// whole frame at a time to WebGL, so that a frame costs one upload and one call for each change of picture.

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


// Corners are numbered with 16 bits, the widest numbers that every WebGL takes.
constexpr std::size_t MOST_CORNERS = 65536;

std::vector<Plane> modelview(1);
std::vector<Plane> projection(1);
std::vector<Plane>* current = &modelview;

bool visible = true;
bool texturing = false;
unsigned boundTexture = 0;
unsigned lastTexture = 0;
Corner corner{0, 0, 0, 0, {255, 255, 255, 255}};
GLenum shape = GL_QUADS;
std::size_t shapeBegin = 0;

std::vector<Corner> corners;
std::vector<std::uint16_t> indices;
std::vector<Batch> batches;


void transform(const Plane& plane) { current->back() = combined(current->back(), plane); }


std::uint8_t colourPart(double part) {
    return static_cast<std::uint8_t>(std::lround(std::clamp(part, 0.0, 1.0) * 255));
}


// Draws the shapes between two corners as triangles around the first of each.
void addFans(std::size_t begin, std::size_t end, std::size_t size) {
    const unsigned texture = texturing ? boundTexture : 0;
    if (batches.empty() || batches.back().texture != texture)
        batches.push_back({texture, 0});
    const std::size_t before = indices.size();
    for (std::size_t first = begin; first + size <= end; first += size)
        for (std::size_t i = first + 2; i < first + size; ++i)
            for (const std::size_t index : {first, i - 1, i})
                indices.push_back(static_cast<std::uint16_t>(index));
    batches.back().indices += indices.size() - before;
}


// WebGL 1 makes mipmaps only of pictures whose sides are powers of two. GLU rounds the same way.
int nearestPowerOfTwo(int side) {
    int power = 1;
    for (; side > 1 && side != 3; side /= 2)
        power *= 2;
    return side == 3 ? power * 4 : power;
}


// Resizes in one direction: each new pixel is the mean of the old ones under it. `step` and `line` are the distances in
// bytes between pixels and between lines, in the old picture and in the new one.
struct Run {
    int pixels, step, line;
};
void resample(const std::uint8_t* from, Run old, std::uint8_t* to, Run now, int lines) {
    const double ratio = 1.0 * old.pixels / now.pixels;
    for (int i = 0; i < now.pixels; ++i) {
        const double begin = i * ratio;
        const double end = begin + ratio;
        for (int line = 0; line < lines; ++line)
            for (int part = 0; part < 4; ++part) {
                double sum = 0.0;
                for (int j = static_cast<int>(begin); j < std::min<double>(old.pixels, end); ++j)
                    sum += (std::min(j + 1.0, end) - std::max<double>(j, begin)) *
                           from[line * old.line + j * old.step + part];
                to[line * now.line + i * now.step + part] = static_cast<std::uint8_t>(std::lround(sum / ratio));
            }
    }
}


using Pixels = std::vector<std::uint8_t>; // red, green, blue, alpha

Pixels resized(const std::uint8_t* pixels, int width, int height, int newWidth, int newHeight) {
    Pixels wide(static_cast<std::size_t>(newWidth) * height * 4);
    resample(pixels, {width, 4, width * 4}, wide.data(), {newWidth, 4, newWidth * 4}, height);
    Pixels result(static_cast<std::size_t>(newWidth) * newHeight * 4);
    resample(wide.data(), {height, newWidth * 4, 4}, result.data(), {newHeight, newWidth * 4, 4}, newWidth);
    return result;
}


// Most pictures have such sides already and are passed on unchanged.
void upload(const void* given, int width, int height, bool mipmaps) {
    const auto* pixels = static_cast<const std::uint8_t*>(given);
    const int newWidth = nearestPowerOfTwo(width);
    const int newHeight = nearestPowerOfTwo(height);
    if (newWidth == width && newHeight == height)
        webUpload(boundTexture, width, height, pixels, mipmaps);
    else
        webUpload(boundTexture, newWidth, newHeight, resized(pixels, width, height, newWidth, newHeight).data(),
                  mipmaps);
}

} // namespace


void drawCollected() {
    if (!indices.empty())
        webDraw(corners.data(), corners.size(), indices.data(), indices.size(), batches.data(), batches.size());
    corners.clear();
    indices.clear();
    batches.clear();
}


void setVisible(bool isVisible) { visible = isVisible; }


extern "C" {

void glBegin(GLenum mode) {
    if (corners.size() > MOST_CORNERS / 2)
        drawCollected();
    shape = mode;
    shapeBegin = corners.size();
}


// Each quad is a fan of four corners. Polygons, which are convex, and fans are one fan each.
void glEnd() {
    if (!visible)
        return;
    const std::size_t drawn = corners.size() - shapeBegin;
    addFans(shapeBegin, corners.size(), shape == GL_QUADS ? 4 : std::max<std::size_t>(drawn, 1));
}


void glVertex2d(GLdouble x, GLdouble y) {
    if (!visible)
        return;
    const Plane all = combined(projection.back(), modelview.back());
    corner.x = static_cast<float>(all.xx * x + all.xy * y + all.x);
    corner.y = static_cast<float>(all.yx * x + all.yy * y + all.y);
    corners.push_back(corner);
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
    for (GLsizei i = 0; i < count; ++i)
        textures[i] = ++lastTexture;
}


void glBindTexture(GLenum /*target*/, GLuint texture) { boundTexture = texture; }


void glTexParameteri(GLenum /*target*/, GLenum name, GLint value) { webFilter(boundTexture, name, value); }


void glTexImage2D(GLenum /*target*/, GLint /*level*/, GLint /*internal*/, GLsizei width, GLsizei height,
                  GLint /*border*/, GLenum /*format*/, GLenum /*type*/, const GLvoid* pixels) {
    upload(pixels, width, height, false);
}


GLint gluBuild2DMipmaps(GLenum /*target*/, GLint /*internal*/, GLsizei width, GLsizei height, GLenum /*format*/,
                        GLenum /*type*/, const void* pixels) {
    upload(pixels, width, height, true);
    return 0;
}

} // extern "C"
