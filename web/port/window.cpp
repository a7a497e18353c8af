// Stands in for SDL and SDL_image: the canvas is the window, the page's input its events, and surfaces are plain memory
// of four bytes a pixel. But the browser keeps the pictures: the surface of a loaded one has a single pixel, the
// picture's number. Stands in for the disk too: there is none, so every file is missing.

#include "port.h"

#include <SDL.h>
#include <SDL_image.h>

#include <emscripten.h>

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

SDL_Surface* newSurface(int width, int height) {
    static SDL_PixelFormat format; // of all surfaces; it says nothing, since only the page looks at pixels
    auto* surface = new SDL_Surface();
    surface->format = &format;
    surface->w = width;
    surface->h = height;
    surface->pitch = width * 4;
    surface->pixels = std::calloc(height, surface->pitch);
    return surface;
}

} // namespace


extern "C" {

long __syscall_open(long /*path*/, long /*flags*/, ...) { return -ENOENT; }


int SDL_Init(Uint32 /*flags*/) { return 0; }


void SDL_WM_SetCaption(const char* /*title*/, const char* /*icon*/) {}


SDL_Surface* SDL_SetVideoMode(int width, int height, int /*bits*/, Uint32 /*flags*/) {
    webOpen(width, height);
    static SDL_Surface window; // only stands for the canvas
    return &window;
}


void SDL_Quit() { webClose(); }


const char* SDL_GetError() { return ""; }


Uint32 SDL_GetTicks() { return static_cast<Uint32>(emscripten_get_now()); }


// The swap has waited already.
void SDL_Delay(Uint32 /*milliseconds*/) {}


// The browser shows a frame when the program gives it time. Late steps follow at once; the next frame shows the last of
// them.
void SDL_GL_SwapBuffers() {
    static unsigned stepsDue = 1;
    drawCollected();
    if (--stepsDue == 0)
        stepsDue = webNextFrame();
    setVisible(stepsDue == 1);
}


int SDL_PollEvent(SDL_Event* event) {
    int input[4];
    if (webInput(input) == 0)
        return 0;
    *event = SDL_Event();
    event->type = input[0];
    switch (event->type) {
    case SDL_KEYDOWN:
        event->key.keysym.sym = static_cast<SDLKey>(input[1]);
        break;
    case SDL_MOUSEMOTION:
        event->motion.x = input[2];
        event->motion.y = input[3];
        break;
    default:
        event->button.button = static_cast<Uint8>(input[1]);
        event->button.x = input[2];
        event->button.y = input[3];
    }
    return 1;
}


SDL_Surface* SDL_CreateRGBSurface(Uint32 /*flags*/, int width, int height, int /*depth*/, Uint32 /*red*/,
                                  Uint32 /*green*/, Uint32 /*blue*/, Uint32 /*alpha*/) {
    return newSurface(width, height);
}


SDL_Surface* SDL_ConvertSurface(SDL_Surface* source, SDL_PixelFormat* /*format*/, Uint32 /*flags*/) {
    SDL_Surface* copy = newSurface(source->w, source->h);
    std::memcpy(copy->pixels, source->pixels, static_cast<size_t>(source->h) * source->pitch);
    return copy;
}


int SDL_LockSurface(SDL_Surface* /*surface*/) { return 0; }


void SDL_UnlockSurface(SDL_Surface* /*surface*/) {}


void SDL_FreeSurface(SDL_Surface* surface) {
    std::free(surface->pixels);
    delete surface;
}


SDL_Surface* IMG_Load(const char* path) {
    const Uint32 picture = webPicture(path);
    if (picture == 0)
        return nullptr;
    SDL_Surface* surface = newSurface(1, 1);
    std::memcpy(surface->pixels, &picture, sizeof picture);
    return surface;
}

} // extern "C"
