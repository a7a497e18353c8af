// Replaces the files that SDL and its image library read and write, and SDL's cursors. Every file but "nowhere" can be
// read, and written up to a thousand bytes. A picture is one white pixel unless a test says otherwise. Surfaces are
// SDL's own.

#include "standin/standin.h"

#include <SDL_image.h>

#include <filesystem>

static bool isThere(const char* file) {
    files.opened = std::filesystem::path(file).stem();
    return files.opened != "nowhere";
}

extern "C" {

// The bytes of its pixels are in a different order from OpenGL's.
SDL_Surface* IMG_Load(const char* file) {
    if (!isThere(file))
        return nullptr;
    const int rows = static_cast<int>(files.picture.size()) / files.width;
    SDL_Surface* surface = SDL_CreateRGBSurface(0, files.width, rows, 32, 0xFF000000, 0xFF0000, 0xFF00, 0xFF);
    auto* place = static_cast<Uint32*>(surface->pixels);
    for (const auto& [red, green, blue, alpha] : files.picture)
        *place++ = SDL_MapRGBA(surface->format, red, green, blue, alpha);
    return surface;
}
SDL_RWops* SDL_RWFromFile(const char* file, const char* mode) {
    if (isThere(file) && *mode == 'w')
        return SDL_RWFromMem(files.saved.data(), static_cast<int>(files.saved.size()));
    SDL_SetError("It can't be opened.");
    return nullptr;
}
SDL_Cursor* SDL_CreateCursor(Uint8* data, Uint8* mask, int w, int h, int hot_x, int hot_y) {
    files.cursorData.assign(data, data + w / 8 * h);
    files.cursorMask.assign(mask, mask + w / 8 * h);
    call("cursor", w, h, hot_x, hot_y);
    return nullptr;
}

} // extern "C"
