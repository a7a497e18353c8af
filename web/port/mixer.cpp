// Stands in for SDL_mixer: the browser plays sounds and music. The pointers that the game holds are numbers of sounds
// and are never followed. Only what the game calls is here, with the arguments it uses: no volume is asked for, and
// none is set for all channels at once.

#include "port.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <cstdint>

namespace {

template <class Handle>
Handle* asPointer(std::intptr_t number) {
    return reinterpret_cast<Handle*>(number);
}


double fromMixer(int volume) { return 1.0 * volume / MIX_MAX_VOLUME; }


int asNumber(const void* handle) { return static_cast<int>(reinterpret_cast<std::intptr_t>(handle)); }

} // namespace


extern "C" {

int Mix_OpenAudio(int /*frequency*/, Uint16 /*format*/, int /*outputs*/, int /*samples*/) { return 0; }


int Mix_AllocateChannels(int count) {
    webChannels(count);
    return count;
}


void Mix_CloseAudio() { webSilence(); }


// The only files that the game opens itself are sounds, by names that stay valid, so only the name is passed on.
SDL_RWops* SDL_RWFromFile(const char* path, const char* /*mode*/) {
    return reinterpret_cast<SDL_RWops*>(const_cast<char*>(path));
}


Mix_Chunk* Mix_LoadWAV_RW(SDL_RWops* path, int /*close*/) {
    return asPointer<Mix_Chunk>(webSound(reinterpret_cast<const char*>(path)));
}


void Mix_FreeChunk(Mix_Chunk* /*sound*/) {}


int Mix_PlayChannelTimed(int channel, Mix_Chunk* sound, int /*loops*/, int /*limit*/) {
    return webPlay(channel, asNumber(sound));
}


int Mix_Volume(int channel, int volume) {
    webChannelVolume(channel, fromMixer(volume));
    return volume;
}


Mix_Music* Mix_LoadMUS(const char* path) { return asPointer<Mix_Music>(webSound(path)); }


void Mix_FreeMusic(Mix_Music* /*music*/) {}


int Mix_PlayMusic(Mix_Music* music, int loops) { return Mix_FadeInMusicPos(music, loops, 0, 0.0); }


int Mix_FadeInMusicPos(Mix_Music* music, int /*loops*/, int milliseconds, double /*position*/) {
    webPlayMusic(asNumber(music), milliseconds / 1000.0);
    return 0;
}


int Mix_VolumeMusic(int volume) {
    webMusicVolume(fromMixer(volume));
    return volume;
}

} // extern "C"
