#ifndef AUDIO_H
#define AUDIO_H

#include <SDL_mixer.h>

// Opening the mixer, and loading, starting and freeing sounds and music: what the program does once. To play a sound,
// include sound.h only.

/// Opens the audio device and makes the mixer's channels. Without a device it prints why, without a line end, and
/// everything after it is silent.
void openAudio();

/// Sets every channel to the volume of the effects. A jingle changes that of its own channel later (sound.cpp); the
/// volume of music is set by startTitleMusic.
void setEffectsVolume();

/// Loads a track of MP3 music, which the caller frees with Mix_FreeMusic. Null if it can't be loaded, or if what comes
/// first, after ID3 tags and zeros, is not layer III of MPEG-1 or MPEG-2. MPEG-2.5 (a sampling rate of 8, 11.025 or
/// 12 kHz) would make the mixer overrun its buffer. An empty file is left to the mixer.
Mix_Music* loadMusic(const char* path);

/// Loads the title music and all sounds, which classes keep static pointers to. What can't be loaded is null, and so
/// silent.
void loadSounds();

/// Frees what loadSounds loaded. The pointers are not reset, so nothing may be played afterwards.
void freeSounds();

/// Plays the title music over and over and sets the volume of all music.
void startTitleMusic();

/// Fades in the music of the game, which repeats and replaces the music that plays.
void startGameMusic(Mix_Music* musique);

#endif
