#ifndef PORT_H
#define PORT_H

#include <cstddef>
#include <cstdint>

// What the port asks of the browser; port.js answers.

/// A corner of a triangle: its place, from -1 to 1 in each direction of the window, the place in the picture and the
/// colour.
struct Corner {
    float x, y, s, t;
    std::uint8_t colour[4];
};

/// So many of the next indices show one picture; texture 0 is plain white.
struct Batch {
    unsigned texture;
    unsigned indices;
};

extern "C" {

/// Opens the canvas as the game's window.
void webOpen();
/// Closes it and releases what was made for it, and tells the page.
void webClose();
/// Makes the canvas black.
void webClear();
/// Draws triangles; `indices` name their corners.
void webDraw(const Corner* corners, std::size_t cornerCount, const std::uint16_t* indices, std::size_t indexCount,
             const Batch* batches, std::size_t batchCount);
/// One level of a texture, which is made with the first.
void webUpload(unsigned texture, int level, int width, int height, const std::uint8_t* pixels);
/// Sets a parameter of a texture.
void webFilter(unsigned texture, int name, int value);

/// Returns when the browser wants a frame for which steps of the game are due, and says how many: not while the page
/// rests.
unsigned webNextFrame();

/// Takes the oldest input that was not taken yet: an SDL event type, a key or button, and a place in the window.
/// Returns 0 if there is none.
int webInput(int input[4]);

/// The pixels of a picture that the page has loaded, red, green, blue, alpha, to be freed; null if there is none.
std::uint8_t* webPicture(const char* path, int* width, int* height);

/// The number of a sound that the page has loaded; 0 if there is none.
int webSound(const char* path);
/// Plays a sound on the given channel, or on the first free one for -1; returns the channel, -1 if none is free.
int webPlay(int channel, int sound);
void webChannelVolume(int channel, int volume);
/// The number of a piece of music, which is fetched while it plays.
int webMusic(const char* path);
/// Plays a piece of music again and again from its beginning, in the place of what was played; takes so many
/// milliseconds to reach its volume.
void webPlayMusic(int music, int fadeIn);
void webMusicVolume(int volume);
/// Ends all sounds and music.
void webSilence();

} // extern "C"

/// Draws what was collected since the last time.
void drawCollected();
/// Whether what follows is drawn, or nobody will see it.
void setVisible(bool visible);

#endif
