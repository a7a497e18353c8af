#include "audio.h"

#include "Entity/Beam.h"
#include "Entity/Ennemi.h"
#include "Entity/Weapon.h"
#include "Game/Game.h"

#include <SDL.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <initializer_list>
#include <ios>
#include <istream>

namespace {

constexpr int CHANNELS = 10;
constexpr int FOR_EVER = -1;

// Skips an ID3 tag and tells whether there was one. Its size is in four bytes of seven bits each, and counts neither
// the header nor the footer.
bool skipTag(std::istream& file) {
    constexpr int FLAGS = 5;
    constexpr int SIZE_BEGINS = 6;
    constexpr unsigned HAS_FOOTER = 0x10;
    constexpr std::streamoff FOOTER_BYTES = 10;
    const auto begin = file.tellg();
    std::array<unsigned char, 10> header{};
    file.read(reinterpret_cast<char*>(header.data()), header.size());
    if (!file || header[0] != 'I' || header[1] != 'D' || header[2] != '3') {
        file.clear();
        file.seekg(begin);
        return false;
    }
    std::streamoff size = 0;
    for (std::size_t i = SIZE_BEGINS; i < header.size(); ++i)
        size = size << 7 | (header[i] & 0x7F);
    if ((header[FLAGS] & HAS_FOOTER) != 0)
        size += FOOTER_BYTES;
    file.seekg(size, std::ios::cur);
    return true;
}


// Skips what may precede the first frame: tags, and the zeros that some programs leave around them.
void skipTagsAndZeros(std::istream& file) {
    do {
        while (file.peek() == 0)
            file.ignore();
    } while (skipTag(file));
}


// Whether a frame of MPEG-1 or MPEG-2 layer III comes next: eleven bits set, then two bits of version, the first of
// which is clear in MPEG-2.5, then two of layer.
bool beginsFrame(std::istream& file) {
    constexpr unsigned char MASK = 0xF6;
    constexpr unsigned char LAYER_III = 0xF2;
    return file.get() == 0xFF && (file.get() & MASK) == LAYER_III;
}


Mix_Chunk* loadSound(const char* path) { return Mix_LoadWAV_RW(SDL_RWFromFile(path, "rb"), 1); }

} // namespace


void openAudio() {
    constexpr int HERTZ = 44100;
    constexpr int STEREO = 2;
    constexpr int CHUNK_SAMPLES = 1024;
    if (Mix_OpenAudio(HERTZ, AUDIO_S16LSB, STEREO, CHUNK_SAMPLES) == -1)
        std::printf("%s", SDL_GetError()); // Quirk: the message has no line end.
    Mix_AllocateChannels(CHANNELS);
}


void setEffectsVolume() {
    constexpr int EFFECTS_VOLUME = 10;
    for (int channel = 0; channel < CHANNELS; ++channel)
        Mix_Volume(channel, EFFECTS_VOLUME);
}


// The mixer refuses a missing file and takes an empty one for a track, both without harm. But noise can crash its MP3
// decoder, and at the low rates of MPEG-2.5 the mixer overruns its buffer. So a track has to begin with a frame of
// MPEG-1 or MPEG-2, after nothing but tags and zeros. The rest is not checked: noise there still reaches the decoder.
Mix_Music* loadMusic(const char* path) {
    std::ifstream file(path, std::ios::binary);
    const bool empty = file.peek() == std::ifstream::traits_type::eof();
    skipTagsAndZeros(file);
    return empty || beginsFrame(file) ? Mix_LoadMUS(path) : nullptr;
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
