#include "sdlglutils.h"

#include <SDL_image.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

namespace {

// Bytes in memory run red, green, blue, alpha on a little-endian machine, as OpenGL's GL_RGBA wants them.
constexpr Uint32 RED_MASK = 0x000000FF;
constexpr Uint32 GREEN_MASK = 0x0000FF00;
constexpr Uint32 BLUE_MASK = 0x00FF0000;
constexpr Uint32 ALPHA_MASK = 0xFF000000;

SDL_Surface* newRGBASurface(int width, int height) {
    return SDL_CreateRGBSurface(SDL_SWSURFACE, width, height, 32, RED_MASK, GREEN_MASK, BLUE_MASK, ALPHA_MASK);
}


Uint8* pixelRow(SDL_Surface* surface, int y) {
    return static_cast<Uint8*>(surface->pixels) + static_cast<std::ptrdiff_t>(y) * surface->pitch;
}


char xpmCharacter(SDL_Surface* image, int x, int y) {
    constexpr Uint8 HALF = 128;
    Uint32 pixel = 0;
    std::memcpy(&pixel, pixelRow(image, y) + x * sizeof pixel, sizeof pixel);
    Uint8 red = 0;
    Uint8 green = 0;
    Uint8 blue = 0;
    Uint8 alpha = 0;
    SDL_GetRGBA(pixel, image->format, &red, &green, &blue, &alpha);
    if (alpha < HALF)
        return ' ';
    return red < HALF && green < HALF && blue < HALF ? 'X' : '.';
}

} // namespace


GLuint loadTexture(const char* filename, bool useMipMap) {
    SDL_Surface* picture_surface = IMG_Load(filename);
    if (picture_surface == nullptr)
        return 0;

    SDL_PixelFormat format = *picture_surface->format;
    format.palette = nullptr; // an all-black one would pass for a missing one
    format.BitsPerPixel = 32;
    format.BytesPerPixel = 4;
    format.Rmask = RED_MASK;
    format.Gmask = GREEN_MASK;
    format.Bmask = BLUE_MASK;
    format.Amask = ALPHA_MASK;
    SDL_Surface* gl_surface = SDL_ConvertSurface(picture_surface, &format, SDL_SWSURFACE);
    SDL_Surface* gl_fliped_surface = flipSurface(gl_surface);

    GLuint glID = 0;
    glGenTextures(1, &glID);
    glBindTexture(GL_TEXTURE_2D, glID);
    if (useMipMap) {
        gluBuild2DMipmaps(GL_TEXTURE_2D, 4, gl_fliped_surface->w, gl_fliped_surface->h, GL_RGBA, GL_UNSIGNED_BYTE,
                          gl_fliped_surface->pixels);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    } else {
        glTexImage2D(GL_TEXTURE_2D, 0, 4, gl_fliped_surface->w, gl_fliped_surface->h, 0, GL_RGBA, GL_UNSIGNED_BYTE,
                     gl_fliped_surface->pixels);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    }
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);

    SDL_FreeSurface(gl_fliped_surface);
    SDL_FreeSurface(gl_surface);
    SDL_FreeSurface(picture_surface);
    return glID;
}


int takeScreenshot(const char* filename) {
    GLint viewport[4] = {};
    glGetIntegerv(GL_VIEWPORT, viewport);

    SDL_Surface* picture = newRGBASurface(viewport[2], viewport[3]);
    SDL_LockSurface(picture);
    glReadPixels(viewport[0], viewport[1], viewport[2], viewport[3], GL_RGBA, GL_UNSIGNED_BYTE, picture->pixels);
    SDL_UnlockSurface(picture);

    // The window shows no alpha; saving it would darken every pixel that is not opaque.
    SDL_Surface* finalpicture = flipSurface(picture);
    SDL_SetAlpha(finalpicture, 0, SDL_ALPHA_OPAQUE);
    const int result = SDL_SaveBMP_RW(finalpicture, SDL_RWFromFile(filename, "wb"), 1);

    SDL_FreeSurface(finalpicture);
    SDL_FreeSurface(picture);
    return result == 0 ? 0 : -1;
}


SDL_Surface* flipSurface(SDL_Surface* surface) {
    const SDL_PixelFormat& format = *surface->format;
    SDL_Surface* fliped_surface = SDL_CreateRGBSurface(SDL_SWSURFACE, surface->w, surface->h, format.BitsPerPixel,
                                                       format.Rmask, format.Gmask, format.Bmask, format.Amask);
    SDL_LockSurface(surface);
    SDL_LockSurface(fliped_surface);

    // Surfaces of one size may differ in the length of their rows.
    const int pitch = std::min(surface->pitch, fliped_surface->pitch);
    for (int current_line = 0; current_line < surface->h; ++current_line)
        std::memcpy(pixelRow(fliped_surface, current_line), pixelRow(surface, surface->h - 1 - current_line), pitch);

    SDL_UnlockSurface(fliped_surface);
    SDL_UnlockSurface(surface);
    return fliped_surface;
}


void drawAxis(double scale) {
    glPushAttrib(GL_ALL_ATTRIB_BITS);
    glPushMatrix();
    glDisable(GL_LIGHTING);
    glDisable(GL_TEXTURE_2D);
    glEnable(GL_BLEND);
    glEnable(GL_LINE_SMOOTH);
    glLineWidth(2.0F);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glScaled(scale, scale, scale);

    glBegin(GL_LINES);
    glColor3ub(255, 0, 0);
    glVertex3i(0, 0, 0);
    glVertex3i(1, 0, 0);
    glColor3ub(0, 255, 0);
    glVertex3i(0, 0, 0);
    glVertex3i(0, 1, 0);
    glColor3ub(0, 0, 255);
    glVertex3i(0, 0, 0);
    glVertex3i(0, 0, 1);
    glEnd();

    glPopMatrix();
    glPopAttrib();
}


int initFullScreen(unsigned int* width, unsigned int* height) {
    SDL_Rect** modes = SDL_ListModes(nullptr, SDL_FULLSCREEN | SDL_OPENGL);
    // NOLINTNEXTLINE(performance-no-int-to-ptr): SDL answers -1 if any mode will do.
    if (modes == nullptr || modes == reinterpret_cast<SDL_Rect**>(-1))
        return 0;

    const SDL_Rect& largest = *modes[0];
    if (width != nullptr)
        *width = largest.w;
    if (height != nullptr)
        *height = largest.h;
    const SDL_Surface* screen =
        SDL_SetVideoMode(largest.w, largest.h, SDL_GetVideoInfo()->vfmt->BitsPerPixel, SDL_FULLSCREEN | SDL_OPENGL);
    return screen == nullptr ? -1 : 0;
}


int XPMFromImage(const char* imagefile, const char* XPMfile) {
    SDL_Surface* image = IMG_Load(imagefile);
    if (image == nullptr)
        return -1;

    SDL_Surface* image32bits = newRGBASurface(image->w, image->h);
    // Without this the blit would leave the copy's alpha at 0 instead of taking the image's own.
    SDL_SetAlpha(image, 0, SDL_ALPHA_OPAQUE);
    SDL_UpperBlit(image, nullptr, image32bits, nullptr);
    SDL_FreeSurface(image);

    std::ofstream xpm(XPMfile);
    const std::string path = imagefile;
    const std::string xpm_name = path.substr(0, path.find('.'));
    const int w = (image32bits->w + 7) / 8 * 8;
    xpm << "const char *" << xpm_name << "[] =\n"
        << "\t{\n"
        << "\t\t/* width height num_colors chars_per_pixel */\n"
        << "\t\t\" " << w << " " << image32bits->h << " 3 1 \",\n"
        << "\t\t/* colors */\n"
        << "\t\t\"X c #000000\",\n"
        << "\t\t\". c #ffffff\",\n"
        << "\t\t\"  c None\",\n"
        << "\t\t/* pixels */\n";
    for (int y = 0; y < image32bits->h; ++y) {
        std::string row(w, ' ');
        for (int x = 0; x < image32bits->w; ++x)
            row[x] = xpmCharacter(image32bits, x, y);
        xpm << "\t\t\"" << row << "\",\n";
    }
    xpm << "\t\t\"0,0\"\n"
        << "\t};\n";

    SDL_FreeSurface(image32bits);
    return xpm.flush() ? 0 : -1;
}


SDL_Cursor* cursorFromXPM(const char** xpm) {
    constexpr int FIRST_PIXEL_ROW = 4;
    int width = 0;
    int height = 0;
    std::sscanf(xpm[0], "%d %d", &width, &height); // NOLINT(cert-err33-c,cert-err34-c): must be well formed

    std::vector<Uint8> data(static_cast<std::size_t>(width / 8) * height, 0);
    std::vector<Uint8> mask(data);
    for (int row = 0; row < height; ++row) {
        for (int col = 0; col < width; ++col) {
            const int byte = (row * width + col) / 8;
            const Uint8 bit = 0x80U >> col % 8;
            const char pixel = xpm[FIRST_PIXEL_ROW + row][col];
            if (pixel == 'X')
                data[byte] |= bit;
            if (pixel == 'X' || pixel == '.')
                mask[byte] |= bit;
        }
    }

    int hot_x = 0;
    int hot_y = 0;
    std::sscanf(xpm[FIRST_PIXEL_ROW + height], "%d,%d", &hot_x, &hot_y); // NOLINT(cert-err33-c,cert-err34-c)
    return SDL_CreateCursor(data.data(), mask.data(), width, height, hot_x, hot_y);
}
