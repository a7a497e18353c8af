#ifndef STANDIN_H
#define STANDIN_H

#include <SDL.h>
#include <SDL_mixer.h>

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

/// What the tests put in the place of OpenGL, the mixer, SDL's window, the clocks and the dice. The screen keeps the
/// drawing state as OpenGL does and lists what was drawn; the rest lists what was asked of it and answers as told.
namespace standin {

using Words = std::vector<std::string>;
using Bytes = std::vector<Uint8>;

/// drawn: since the last clear, a line for each quad: "picture x,y x,y x,y", its first three corners in window pixels,
/// then "> s,t s,t s,t" unless it shows the whole picture upright, then the colour unless it is opaque white. The
/// picture is "-" while texturing is off; a batch that is no quads, or many, has the number of its corners first.
/// played: every chunk asked for, with its channel: "CoinSound@-1"; -1 is the first free channel.
/// calls: what else was asked of the window, the mixer and the clock, in order.
/// textures: the picture of each texture made so far, by its name in OpenGL.
extern Words drawn, played, calls, textures;

/// What every picture file holds, as alpha, blue, green and red from the top, one pixel a row ("nowhere" has none), and
/// the bytes of the last texture made, row by row from the bottom, which the screen shows too, or those of the last
/// cursor, data and mask. And what was saved last.
extern Bytes image, texels, saved;

/// A session with the window, and what to do when a frame is shown. A space ends a frame; a deed is a key by its
/// letter, _ for the space bar and E for escape; S presses the left button and W the wheel on the shop's button, 1 and
/// 2 press the left one in the field at (200, 568) and (250, 468), and u lets go of the wheel; n moves the mouse to
/// (250, 708) and f far away; Q closes the window.
extern std::string session;
extern std::function<void()> onFrame;

/// What time() and the system clock answer, in seconds and in nanoseconds since 1970, and how often the latter was
/// asked: it seeds the place where a grunt enters. And the milliseconds that the work of a frame takes, and what
/// opening the audio device answers.
extern long long calendar, nanoseconds, entered, work, audio;
/// Seeds with which a grunt enters at (-30, 351.9975), left of the tower, and at (511.9981, 798), above it.
constexpr long long fromLeft = 60911, fromTop = 224874;
/// What rand() answers next; once it is used up, 60: no patches on the ground.
extern std::deque<int> dice;

/// Forgets what was drawn, played, called and entered.
void clear();
/// The lines that begin so.
Words only(const Words& all, const std::string& start);
/// The state that every drawing routine must leave: no texture, opaque white, all matrices popped.
bool isAtRest();
/// A sound that can be told by its name.
Mix_Chunk* sound(const std::string& name);

} // namespace standin

#endif
