#ifndef SDLGLUTILS_H
#define SDLGLUTILS_H

#include <SDL.h>
#include <SDL_opengl.h>

// Helpers between SDL, its image library and OpenGL, a part of the toolkit: the game loads its textures with them.

/// Loads an image file into a new 2-D texture, filtered linearly and with mipmaps if wanted, and leaves it
/// bound. Texture coordinate (0, 0) is the image's lower-left corner. Nobody releases the texture. Returns 0,
/// and makes no texture, for a file that can't be loaded.
GLuint loadTexture(const char* filename, bool useMipMap);

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

/// Writes an image as the source text of a three-colour XPM: dark pixels become X, light ones a dot, pixels less than
/// half opaque a space. Each row is padded to a multiple of 8. Quirk: the array is named after the path up to its first
/// dot, folders included. Returns 0, or -1 if the image can't be loaded or the text can't be written.
int XPMFromImage(const char* imagefile, const char* XPMfile);

/// Builds a cursor, which the caller frees, from the strings that XPMFromImage writes. The width must be a
/// multiple of 8.
SDL_Cursor* cursorFromXPM(const char** xpm);

#endif
