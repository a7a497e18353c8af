#ifndef STANDIN_H
#define STANDIN_H

// This header brings what every test uses.
// IWYU pragma: begin_exports
#include "utility/utility.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <SDL_opengl.h>

#include <array>
#include <complex>
#include <cstddef>
#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>
// IWYU pragma: end_exports

/// Stand-ins record text, a line for each thing that happened.
using Lines = std::vector<std::string>;

/// The lines that begin with `start`.
Lines linesStarting(const std::string& start, const Lines& lines);

/// The calls to the window, the mixer, the projection and whatever draws lines, in the order in which they came:
/// "volume 8 50".
inline Lines calls;

/// A name and values, with a space before each value.
template <typename... Values>
std::string joined(const std::string& name, const Values&... values) {
    return (name + ... + (" " + toString(values)));
}

/// Records a call. The answer is 0, which says that all went well.
template <typename... Values>
int call(const std::string& name, const Values&... values) {
    calls.push_back(joined(name, values...));
    return 0;
}

using Point = std::complex<double>;

/// opengl.cpp
inline struct Screen {
    /// What was drawn since the last clear, one entry for each quad: its picture, with a remark if that has no mipmaps;
    /// its four corners; the corners of the part of the picture that it shows, unless that is all of it; and the
    /// colour, unless it is opaque white: "TurretIcon_64 256,288 320,288 320,352 256,352 colour 1 1 1 0.4". Other
    /// shapes have their first three corners and the last.
    Lines drawn;
    /// Whether all quads of the ground are drawn, or only its first one.
    bool drawsWholeGround = false;
    /// The pixels of the last texture made, row by row from the bottom.
    std::vector<Uint8> texels;
    GLuint texture = 0;
    bool isTextured = false;
    std::string colour;
    /// A matrix puts a point p at first * p + second: the game turns, moves and enlarges, but never stretches.
    std::vector<std::pair<Point, Point>> matrices{{1, 0}};

    /// The state in which every drawing routine must leave it.
    bool isAtRest() const { return !isTextured && texture == 0 && colour.empty() && matrices.size() == 1; }
} screen;

/// The left and lower edge of the part of its picture that a line of Screen::drawn shows.
Point partShown(const std::string& line);

struct Texture {
    /// The last file opened before it was made, without folder and extension.
    std::string picture;
    /// How it was made: "4 RGBA mipmaps", then OpenGL's numbers of the filters that make it smaller and larger.
    std::string made;
};
/// Every texture by its name in OpenGL. They outlive a test, because objects share them.
inline std::vector<Texture> textures(1);

/// mixer.cpp
inline struct Mixer {
    /// Every sound that was to be played: "CoinSound" on the first free channel, or "VorelDefense_GameOver on channel
    /// 8". And every track that was to fade in, with its loops, its milliseconds and where it begins.
    Lines sounds;
    /// The answer to opening the audio device; -1 is a failure.
    int deviceAnswer = 0;
    /// Answers each sound with the channel that plays it; -1 is none.
    std::function<int()> onSound = [] { return 0; };
} mixer;

/// window.cpp. Places are in pixels from the lower-left corner, as the game counts them.
struct Place {
    int x, y;
};

/// Something that the player does, or frames that pass. A frame is an SDL_NOEVENT: polling stops at it, and it is
/// removed when the frame is shown.
using Action = std::vector<SDL_Event>;
inline Action frames(int count) { return Action(count); }
inline Action key(SDLKey symbol) {
    SDL_Event event{};
    event.type = SDL_KEYDOWN;
    event.key.keysym.sym = symbol;
    return {event};
}
// SDL counts rows from the window's top. A motion event has its place in the same bytes as a button event.
inline Action mouse(SDL_EventType type, Place place = {}, Uint8 button = SDL_BUTTON_LEFT) {
    SDL_Event event{};
    event.button = {Uint8(type), 0, button, 0, Uint16(place.x), Uint16(768 - place.y)};
    return {event};
}
inline Action moveTo(Place place) { return mouse(SDL_MOUSEMOTION, place); }
inline Action press(Place place) { return mouse(SDL_MOUSEBUTTONDOWN, place); }
inline Action release(Uint8 button) { return mouse(SDL_MOUSEBUTTONUP, {}, button); }
/// Presses a button and lets go of it.
inline Action click(Place place, Uint8 button = SDL_BUTTON_LEFT) {
    return {mouse(SDL_MOUSEBUTTONDOWN, place, button)[0], release(button)[0]};
}

inline struct Window {
    /// The full-screen modes with OpenGL, as SDL lists them, and whether one can be set.
    SDL_Rect** modes = nullptr;
    bool opens = true;
    /// The events still to come. After the last one, asking for another raises an exception.
    std::deque<SDL_Event> session;
    std::function<void()> onFrame = [] {};
} window;

/// clocksAndDice.cpp. The system clock decides where a grunt enters: at these nanoseconds it is at (-30, 351.9975) and
/// at (511.9981, 798).
constexpr long long LEFT_OF_TOWER = 60911, ABOVE_TOWER = 224874;

inline struct Clocks {
    /// The time that time() returns, in seconds, and that of the system clock.
    long long calendar = 0, nanoseconds = LEFT_OF_TOWER;
    /// How often the system clock was read. The game reads it once for each grunt that enters.
    int readings = 0;
    /// SDL's clock, which is about to wrap, and what the work of a frame adds to it, in milliseconds.
    Uint32 ticks = 0xFFFFFFF0, workOfAFrame = 0;
} clocks;

/// What rand() returns next. When the dice are used up it returns 60, which leaves the ground without patches.
inline std::deque<int> dice;

/// files.cpp
/// Red, green, blue and alpha.
using Pixel = std::array<Uint8, 4>;

inline struct Files {
    /// What every picture file holds, row by row from the top.
    std::vector<Pixel> picture{{255, 255, 255, 255}};
    int width = 1;
    /// The last file asked for, without folder and extension. Every picture exists except "nowhere".
    std::string opened;
    /// The bits of the last cursor.
    std::vector<Uint8> cursorData, cursorMask;
} files;

/// Compares lines with those recorded in tests/recorded/NAME.lines. If they differ, says how to accept them.
void expectAsRecorded(const std::string& name, const Lines& lines);

/// The fixture of every test.
struct StandinTest : testing::Test {
    /// Resets every stand-in but the textures.
    StandinTest();
};

#endif
