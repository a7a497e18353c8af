#ifndef STANDIN_SCREEN_H
#define STANDIN_SCREEN_H

#include <SDL.h>
#include <SDL_mixer.h>

#include <functional>
#include <string>
#include <vector>

/// The window, the screen and the loudspeaker that the tests put in the place of SDL's window, OpenGL and the
/// mixer: they keep the drawing state as OpenGL does and list what was drawn and what was asked to sound.
namespace standin {

using Words = std::vector<std::string>;

/// What was drawn since the last clear, in window pixels and texture coordinates, a line for each quad:
/// "picture x,y>s,t x,y>s,t x,y>s,t colour" with its first three corners in their order. The picture is "-"
/// while texturing is off; a batch that is no quads, or many, has the number of its corners before them.
Words drawing();
/// Every chunk asked for, with its channel: "CoinSound@-1"; -1 is the first free channel.
extern Words played;
/// What else was asked of the window, the mixer and the clock, in order.
extern Words calls;
/// The pictures read from disk, in order.
extern Words loaded;
/// The bytes of the last texture made, row by row from the bottom (glReadPixels finds the same), or those of the last
/// cursor, its data and then its mask.
extern std::vector<unsigned char> texels;

/// A session with the window: the events of each frame (after the last one the window is closed), the work of
/// a frame in milliseconds, and what to look at when a frame is shown.
extern std::vector<std::vector<SDL_Event>> session;
extern std::function<Uint32(size_t frame)> work;
extern std::function<void(size_t frame)> onFrame;

/// Forgets what was drawn, played, called and loaded.
void clear();
/// The state that every drawing routine must leave: no texture, opaque white, all matrices popped.
bool isAtRest();
/// A sound that can be told by its name.
Mix_Chunk* sound(const std::string& name);

} // namespace standin

#endif
