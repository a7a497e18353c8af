#ifndef SOUND_H
#define SOUND_H

#include <SDL_mixer.h>

// The sound of the game: the mixer, the sounds that the classes play, and the music.

/// Lets the mixer choose the first free channel.
constexpr int FIRST_FREE_CHANNEL = -1;

/// Plays a sound once; silent if there is no sound or no free channel. A given channel stops what it was playing.
void playSound(Mix_Chunk* son, int channel = FIRST_FREE_CHANNEL);

/// Opens the audio device and makes the mixer's channels. Without a device it prints why, without an end of line, and
/// everything after it is silent.
void openAudio();

/// Sets the volume of every channel to that of the effects. A jingle changes its own channel's later.
void setEffectsVolume();

/// Loads a track of MP3 music, which the caller frees with Mix_FreeMusic. Null if it can't be loaded.
Mix_Music* loadMusic(const char* path);

/// Loads all sounds that classes keep a static pointer to, and the title music. What can't be loaded is null, and so
/// silent.
void loadSounds();

/// Frees what loadSounds loaded. The pointers stay as they are: nothing may play any more.
void freeSounds();

/// Plays the title music without end and sets the volume of all music.
void startTitleMusic();

/// Fades the music of the game in, without end, in the place of what plays.
void startGameMusic(Mix_Music* musique);

#endif
