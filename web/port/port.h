#ifndef PORT_H
#define PORT_H

#include <cstddef>
#include <cstdint>

// What the port needs from the browser; port.js passes it on to the page's scripts.

/// A corner of a triangle: its place in the window, from -1 to 1 in each direction, its place in the picture, and its
/// colour.
struct Corner {
    float x, y, s, t;
    std::uint8_t colour[4];
};
static_assert(sizeof(Corner) == 20, "graphics.js tells WebGL where in these bytes each part of a corner lies");

/// The next `corners` corners show a picture, by its number; 0 is plain white.
struct Batch {
    unsigned picture;
    unsigned corners;
};
static_assert(sizeof(Batch) == 8, "graphics.js reads two numbers of 32 bits");

extern "C" {

/// Opens the canvas as the game's window, with its size in pixels.
void webOpen(int width, int height);
/// Closes the window, and tells the page.
void webClose();
/// Begins a frame: sets the size of the canvas to that on the page, and makes it black.
void webClear();
/// Draws triangles, whose corners take so many `bytes`.
void webDraw(const Corner* corners, std::size_t bytes, const Batch* batches, std::size_t batchCount);
/// The number of a picture, 0 if the page has none of this name.
unsigned webPicture(const char* path);

/// Waits until the browser wants a frame and steps of the game are due for it, and returns how many. Does not return
/// while the game is suspended.
unsigned webNextFrame();

/// Takes the oldest pending input: an SDL event type, a key or button, and a place in the window. Returns 0 if there is
/// none.
int webInput(int input[4]);

/// The number of a sound or a piece of music. If it has not arrived when it is played, it is not heard.
int webSound(const char* path);
/// Makes the channels that sounds are played on.
void webChannels(int count);
/// Plays a sound on the given channel, or on the first free one for -1; returns the channel, -1 if none is free or
/// nothing would be heard.
int webPlay(int channel, int sound);
/// Volumes are from 0 to 1.
void webChannelVolume(int channel, double volume);
/// Plays a piece of music in a loop from its beginning, instead of the one before; it fades in for `fadeIn` seconds.
void webPlayMusic(int music, double fadeIn);
void webMusicVolume(double volume);
/// Ends all sounds and music.
void webSilence();

} // extern "C"

/// Draws what was collected since the last call.
void drawCollected();
/// Sets whether what follows will be seen; if not, it is not drawn.
void setVisible(bool visible);

#endif
