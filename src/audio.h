#ifndef AUDIO_H
#define AUDIO_H

#include <SDL_mixer.h>

// What the program does once with the mixer, the sounds and the music. Whoever plays a sound needs sound.h only.

/// Opens the audio device and makes the mixer's channels. Without a device it prints why, without a line end, and
/// everything after it is silent.
void openAudio();

/// Sets the volume of every channel to that of the effects. A jingle changes its own channel's later.
void setEffectsVolume();

/// Loads a track of MP3 music, which the caller frees with Mix_FreeMusic. Null if it can't be loaded, or if it is
/// MPEG-2.5 (a sampling rate of 8, 11.025 or 12 kHz), which the mixer can't play without harm.
Mix_Music* loadMusic(const char* path);

/// Loads all sounds that classes keep a static pointer to, and the title music. What can't be loaded is null, and so
/// silent.
void loadSounds();

/// Frees what loadSounds loaded. The pointers stay as they are: nothing may play any more.
void freeSounds();

/// Plays the title music over and over and sets the volume of all music.
void startTitleMusic();

/// Fades in the music of the game, which repeats and takes the place of what plays.
void startGameMusic(Mix_Music* musique);

#endif
