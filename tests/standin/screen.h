#ifndef STANDIN_SCREEN_H
#define STANDIN_SCREEN_H

#include <SDL.h>
#include <SDL_mixer.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

/// The window, the screen and the loudspeaker that the tests put in the place of SDL's window, OpenGL and the
/// mixer: they keep the drawing state as OpenGL does and list what was drawn and what was asked to sound.
namespace standin {

struct Vertex {
    double x, y; ///< window pixels, after all matrices
    double s, t; ///< texture coordinates
};

/// What stands between one glBegin and its glEnd.
struct Shape {
    unsigned int mode;
    std::string picture; ///< file of the bound texture, empty while texturing is off
    std::array<double, 4> colour;
    std::vector<Vertex> vertices;
};

extern std::vector<Shape> drawn;
/// Every chunk asked for, with its channel: "Assets/sfx/CoinSound.wav@-1"; -1 is the first free channel.
extern std::vector<std::string> played;
/// What was asked of the window, the mixer and the clock besides, in order.
extern std::vector<std::string> calls;
/// The pictures read from disk, in order.
extern std::vector<std::string> loaded;
/// The size and the bytes of the last texture made, row by row from the bottom.
extern std::vector<int> textureSize;
extern std::vector<unsigned char> texels;
/// The bytes of the last cursor made, its data and then its mask.
extern std::vector<unsigned char> cursor;

/// A session with the window: the events of each frame (after the last one the window is closed), the work
/// of a frame in milliseconds, and what to look at when a frame is shown.
extern std::vector<std::vector<SDL_Event>> session;
extern Uint32 ticks;
extern std::function<Uint32(size_t frame)> work;
extern std::function<void(size_t frame)> onFrame;

/// Forgets what was recorded and what was scripted.
void clear();
/// The state that every drawing routine must leave: no texture, opaque white, all matrices popped.
bool isAtRest();
/// The shapes drawn with one picture of Assets/img.
std::vector<Shape> drawnWith(const std::string& picture);
/// A shape's lower-left corner and size, "x y w h", in window pixels.
std::string box(const Shape& shape);
/// The same of its texture coordinates, "s t w h".
std::string textureBox(const Shape& shape);
/// A sound that can be told by its name.
Mix_Chunk* sound(const std::string& name);

} // namespace standin

#endif
