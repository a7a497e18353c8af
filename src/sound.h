#ifndef SOUND_H
#define SOUND_H

#include <SDL_mixer.h>

// Playing sounds. audio.h has what the program does once: open the mixer, load the sounds and free them.

/// Lets the mixer choose the first free channel.
inline constexpr int FIRST_FREE_CHANNEL = -1;

/// Plays a sound once; silent without a sound or a free channel. If a channel is given, it stops what it was playing.
void playSound(Mix_Chunk* son, int channel = FIRST_FREE_CHANNEL);

/// Plays a jingle once, on the jingles' channel and louder than effects. Quirk: the channel keeps that volume, so an
/// effect that the mixer plays there later is just as loud.
void playJingle(Mix_Chunk* son);

#endif
