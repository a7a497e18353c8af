#ifndef SOUND_H
#define SOUND_H

#include <SDL_mixer.h>

// How a sound is played. audio.h has what the program does once: it opens the mixer, loads the sounds and frees them.

/// Lets the mixer choose the first free channel.
inline constexpr int FIRST_FREE_CHANNEL = -1;

/// Plays a sound once; silent if there is no sound or no free channel. A given channel stops what it was playing.
void playSound(Mix_Chunk* son, int channel = FIRST_FREE_CHANNEL);

/// Plays a jingle once, on the jingles' own channel and louder than effects. Fixed: the channel keeps that volume, so
/// an effect that the mixer puts there later is as loud.
void playJingle(Mix_Chunk* son);

#endif
