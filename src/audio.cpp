#include "audio.h"

#include "Entity/Beam.h"
#include "Entity/Ennemi.h"
#include "Entity/Weapon.h"
#include "Game/Game.h"

#include <SDL.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <initializer_list>

namespace {

constexpr int CHANNELS = 10;
constexpr int FOR_EVER = -1;

Mix_Chunk* loadSound(const char* path) { return Mix_LoadWAV_RW(SDL_RWFromFile(path, "rb"), 1); }

} // namespace


void openAudio() {
    constexpr int HERTZ = 44100;
    constexpr int STEREO = 2;
    constexpr int CHUNK_SAMPLES = 1024;
    if (Mix_OpenAudio(HERTZ, AUDIO_S16LSB, STEREO, CHUNK_SAMPLES) == -1)
        std::printf("%s", SDL_GetError());
    Mix_AllocateChannels(CHANNELS);
}


void setEffectsVolume() {
    constexpr int EFFECTS_VOLUME = 10;
    for (int channel = 0; channel < CHANNELS; ++channel)
        Mix_Volume(channel, EFFECTS_VOLUME);
}


// The mixer refuses a missing file and takes an empty one for a track, both without harm; but noise can crash its MP3
// decoder, and the game with it. A track begins with a tag or with a frame of MPEG-1 or MPEG-2 layer III. What follows
// such a beginning is not looked at: noise there still reaches the decoder.
Mix_Music* loadMusic(const char* path) {
    std::array<unsigned char, 2> start{};
    std::ifstream file(path, std::ios::binary);
    file.read(reinterpret_cast<char*>(start.data()), start.size());
    const bool tag = start[0] == 'I' && start[1] == 'D';
    const bool frame = start[0] == 0xFF && (start[1] & 0xF6) == 0xF2;
    return file && !tag && !frame ? nullptr : Mix_LoadMUS(path);
}


void loadSounds() {
    Ennemi::son_explosion = loadSound("Assets/sfx/EnnemyExplosion.wav");
    Ennemi::son_grunt = loadSound("Assets/sfx/EnnemyGrunt.wav");
    Weapon::son_construct = loadSound("Assets/sfx/TurretConstruction.wav");
    Weapon::son_stream = loadSound("Assets/sfx/WaterStream.wav");
    Beam::son_splash = loadSound("Assets/sfx/WaterSplash.wav");
    Game::son_cashregister = loadSound("Assets/sfx/CashRegister.wav");
    Game::son_coinsound = loadSound("Assets/sfx/CoinSound.wav");
    Game::son_pourwater = loadSound("Assets/sfx/PourWater.wav");
    Game::son_start = loadMusic("Assets/music/VorelDefense_TitleScreen.mp3");
    Game::son_defeat = loadSound("Assets/music/VorelDefense_GameOver.wav");
    Game::son_good_job = loadSound("Assets/music/VorelDefense_WellDone.wav");
}


void freeSounds() {
    for (Mix_Chunk* son : {Ennemi::son_explosion, Ennemi::son_grunt, Beam::son_splash, Weapon::son_stream,
                           Weapon::son_construct, Game::son_cashregister, Game::son_coinsound, Game::son_pourwater})
        Mix_FreeChunk(son);
    Mix_FreeMusic(Game::son_start);
    Mix_FreeChunk(Game::son_defeat);
    Mix_FreeChunk(Game::son_good_job);
}


void startTitleMusic() {
    constexpr int MUSIC_VOLUME = 12;
    Mix_PlayMusic(Game::son_start, FOR_EVER);
    Mix_VolumeMusic(MUSIC_VOLUME);
}


void startGameMusic(Mix_Music* musique) {
    constexpr int FADE_IN_MILLISECONDS = 3000;
    Mix_FadeInMusicPos(musique, FOR_EVER, FADE_IN_MILLISECONDS, 0.0);
}
