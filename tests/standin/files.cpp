// Replaces the files that SDL and its image library open, and SDL's cursors. There is every picture but "nowhere", one
// white pixel unless a test says otherwise. Surfaces are SDL's own. Of other files only the name is kept.

#include "standin/standin.h"

#include <SDL_image.h>

#include <filesystem>

static void keepName(const char* file) { files.opened = std::filesystem::path(file).stem(); }

extern "C" {

// The bytes of its pixels are in a different order from OpenGL's.
SDL_Surface* IMG_Load(const char* file) {
    keepName(file);
    if (files.opened == "nowhere")
        return nullptr;
    const int rows = static_cast<int>(files.picture.size()) / files.width;
    SDL_Surface* surface = SDL_CreateRGBSurface(0, files.width, rows, 32, 0xFF000000, 0xFF0000, 0xFF00, 0xFF);
    auto* place = static_cast<Uint32*>(surface->pixels);
    for (const auto& [red, green, blue, alpha] : files.picture)
        *place++ = SDL_MapRGBA(surface->format, red, green, blue, alpha);
    return surface;
}
SDL_RWops* SDL_RWFromFile(const char* file, const char*) {
    keepName(file);
    return nullptr;
}
SDL_Cursor* SDL_CreateCursor(Uint8* data, Uint8* mask, int w, int h, int hot_x, int hot_y) {
    files.cursorData.assign(data, data + w / 8 * h);
    files.cursorMask.assign(mask, mask + w / 8 * h);
    call("cursor", w, h, hot_x, hot_y);
    return nullptr;
}

} // extern "C"
