// Replaces the mixer. Every file can be loaded and every sound played, and nothing is heard. The audio device opens
// and channels are free unless a test says otherwise.

#include "standin/standin.h"

// A sound is a pointer to its name; a missing sound is null.
static std::string name(const void* sound) {
    return sound == nullptr ? "none" : *static_cast<const std::string*>(sound);
}

extern "C" {

int Mix_OpenAudio(int rate, Uint16 format, int sides, int chunk) {
    call("open audio", rate, format == AUDIO_S16LSB ? "S16LSB" : "other", sides, chunk);
    return mixer.deviceAnswer;
}
int Mix_AllocateChannels(int count) { return call("channels", count); }
Mix_Chunk* Mix_LoadWAV_RW(SDL_RWops*, int) {
    static std::set<std::string> names;
    call("load", files.opened);
    return reinterpret_cast<Mix_Chunk*>(const_cast<std::string*>(&*names.insert(files.opened).first));
}
Mix_Music* Mix_LoadMUS(const char* file) { return reinterpret_cast<Mix_Music*>(Mix_LoadWAV(file)); }
int Mix_PlayMusic(Mix_Music* music, int loops) { return call("play", name(music), loops); }
int Mix_FadeInMusicPos(Mix_Music* music, int loops, int milliseconds, double from) {
    mixer.sounds.push_back(joined("fade in " + name(music), loops, milliseconds, from));
    return 0;
}
int Mix_VolumeMusic(int volume) { return call("music volume", volume); }
int Mix_Volume(int channel, int volume) { return call("volume", channel, volume); }
int Mix_PlayChannelTimed(int channel, Mix_Chunk* chunk, int loops, int milliseconds) {
    const std::string how = loops == 0 && milliseconds == -1 ? "" : " repeated or cut";
    mixer.sounds.push_back(name(chunk) + (channel == -1 ? "" : joined(" on channel", channel)) + how);
    return mixer.onSound();
}
void Mix_FreeChunk(Mix_Chunk* chunk) { call("free", name(chunk)); }
void Mix_FreeMusic(Mix_Music* music) { call("free", name(music)); }
void Mix_CloseAudio() { call("close audio"); }

} // extern "C"
