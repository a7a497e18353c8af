#ifndef SDLGLUTILS_H
#define SDLGLUTILS_H

#include <SDL.h>
#include <SDL_mixer.h>
#include <SDL_opengl.h>

// What joins SDL, its image and sound libraries, and OpenGL.

/// Loads an image file into a new 2-D texture, filtered linearly and with mipmaps if wanted, and leaves it
/// bound. Texture coordinate (0, 0) is the image's lower-left corner. Nobody releases the texture. Returns 0,
/// and makes no texture, for a file that can't be loaded.
GLuint loadTexture(const char* filename, bool useMipMap);

/// A part of a texture, in texture coordinates from 0 to 1.
struct TextureArea {
    double left, bottom, right, top;
};
constexpr TextureArea WHOLE_TEXTURE{0.0, 0.0, 1.0, 1.0};

/// Draws one quad of `w` x `h` pixels with its lower-left corner at (`x`, `y`), in the current colour, and
/// leaves texturing disabled and texture 0 bound.
void drawTexturedQuad(GLuint texture, double x, double y, double w, double h, const TextureArea& area = WHOLE_TEXTURE);

/// Draws the last `count` digits of `number`, which must not be negative, in the current colour; leaves
/// texturing disabled and texture 0 bound. The units stand with their lower-left corner at the origin, the
/// other digits to their left, each `w` x `h` pixels. The texture holds the digits 0 to 9 side by side.
void drawDigits(GLuint texture, int number, int count, double w, double h);

/// Emits the corners of one quad into an open batch of quads, lower left, upper left, upper right, lower right: the
/// other way round than drawTexturedQuad.
void clockwiseQuadVertices(double x, double y, double w, double h, const TextureArea& area = WHOLE_TEXTURE);

/// Lets the mixer choose the first free channel.
constexpr int FIRST_FREE_CHANNEL = -1;

/// Plays a sound once; silent if there is no sound or no free channel. A given channel stops what it was playing.
void playSound(Mix_Chunk* son, int channel = FIRST_FREE_CHANNEL);

/// Saves what the current OpenGL viewport shows as a BMP file. Returns 0, or -1 if it can't be written.
int takeScreenshot(const char* filename);

/// A new surface that holds `surface` upside down; the caller frees both.
SDL_Surface* flipSurface(SDL_Surface* surface);

/// Draws the three axes, each `scale` long: x red, y green, z blue.
void drawAxis(double scale);

/// Switches to the first (largest) full-screen OpenGL mode that the display lists and writes its size in
/// pixels to `width` and `height`, either of which may be null. Returns 0, or -1 if the mode can't be set. A
/// display that lists no modes changes and writes nothing, and the answer is 0.
int initFullScreen(unsigned int* width, unsigned int* height);

/// Writes an image as the source text of a three-colour XPM: dark pixels X, light ones a dot, pixels less
/// than half opaque a space, each row padded to a multiple of 8. Returns 0, or -1 if either file can't be
/// opened.
int XPMFromImage(const char* imagefile, const char* XPMfile);

/// Builds a cursor, which the caller frees, from the strings that XPMFromImage writes. The width must be a
/// multiple of 8.
SDL_Cursor* cursorFromXPM(const char** xpm);

#endif
