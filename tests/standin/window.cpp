// Replaces SDL's window and events. The window opens unless a test says otherwise, and its colours have 24 bits. The
// events are those of the session that a test writes; by default there are none.

#include "standin/standin.h"

#include <stdexcept>

constexpr Uint32 FULL_SCREEN = SDL_FULLSCREEN | SDL_OPENGL;

extern "C" {

int SDL_Init(Uint32 what) { return call("init", what == SDL_INIT_VIDEO ? "video" : "other"); }
void SDL_Quit() { call("quit"); }
void SDL_WM_SetCaption(const char* title, const char*) { call("caption", title); }
SDL_Surface* SDL_SetVideoMode(int w, int h, int bits, Uint32 what) {
    static SDL_Surface surface;
    call(what == FULL_SCREEN ? "full screen" : "window", w, h, bits, (what & SDL_OPENGL) != 0 ? "OpenGL" : "other");
    return window.opens ? &surface : nullptr;
}
SDL_Rect** SDL_ListModes(SDL_PixelFormat*, Uint32 what) { return what == FULL_SCREEN ? window.modes : nullptr; }
const SDL_VideoInfo* SDL_GetVideoInfo() {
    static SDL_PixelFormat format;
    static SDL_VideoInfo info;
    format.BitsPerPixel = 24;
    info.vfmt = &format;
    return &info;
}
int SDL_PollEvent(SDL_Event* next) {
    if (window.session.empty())
        throw std::out_of_range("The session is over, and the game goes on.");
    *next = window.session.front();
    if (next->type == SDL_NOEVENT)
        return 0;
    window.session.pop_front();
    return 1;
}
void SDL_GL_SwapBuffers() {
    window.onFrame();
    window.session.pop_front();
    clocks.ticks += clocks.workOfAFrame;
}

} // extern "C"
