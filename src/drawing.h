#ifndef DRAWING_H
#define DRAWING_H

#include <SDL_opengl.h>

// What every screen is made of: textured quads and digits, and what begins a frame.
//
// Outside an open batch everything here but prepareFrame leaves texturing disabled and texture 0 bound, and the colour
// and the matrices as they were.

/// A part of a texture, in texture coordinates from 0 to 1.
struct TextureArea {
    double left, bottom, right, top;
};
inline constexpr TextureArea WHOLE_TEXTURE{0.0, 0.0, 1.0, 1.0};

/// An open batch of vertices with one texture, from its construction to the end of its scope; a batch without a name
/// would end at once. In between, OpenGL accepts only colours, texture coordinates and vertices.
class TexturedBatch {
public:
    /// `mode` says what the vertices form, as for glBegin.
    [[nodiscard]] TexturedBatch(GLuint texture, GLenum mode);
    TexturedBatch(const TexturedBatch&) = delete;
    TexturedBatch& operator=(const TexturedBatch&) = delete;
    ~TexturedBatch();
};

/// Clears the window, makes coordinates its pixels, y upwards from the lower-left corner, and blends colours by their
/// alpha. `width` and `height` are the window's, in pixels.
void prepareFrame(int width, int height);

/// Draws one quad of `w` x `h` pixels with its lower-left corner at (`x`, `y`), in the current colour.
void drawTexturedQuad(GLuint texture, double x, double y, double w, double h, const TextureArea& area = WHOLE_TEXTURE);

/// The size of a digit in the game's picture of digits, in pixels.
inline constexpr double DIGIT_WIDTH = 32.0;
inline constexpr double DIGIT_HEIGHT = 64.0;

/// Draws the last `count` digits of `number`, which must not be negative, in the current colour. The lower-left corner
/// of the last digit is at the origin, the other digits stand to its left, each `w` x `h` pixels. The texture holds the
/// digits 0 to 9 side by side.
void drawDigits(GLuint texture, int number, int count, double w, double h);

/// Adds the corners of one quad to an open batch of quads: lower left, upper left, upper right, lower right. That is
/// the opposite direction to drawTexturedQuad.
void clockwiseQuadVertices(double x, double y, double w, double h, const TextureArea& area = WHOLE_TEXTURE);

#endif
