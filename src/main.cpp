#include "Entity/Beam.h"
#include "Entity/Ennemi.h"
#include "Entity/Weapon.h"
#include "Game/Game.h"
#include "Vecteur/Vecteur2D.h"
#include "sdlglutils.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <SDL_opengl.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <initializer_list>
#include <iostream>

namespace {

constexpr int tailleEcranX = 1024;
constexpr int tailleEcranY = 768;
constexpr int CHANNELS = 10;

// SDL counts the rows of the window from its top, the game from its bottom.
int upwards(int mouseY) { return tailleEcranY - mouseY; }


// The mixer refuses a file that is missing or empty, but its MP3 decoder trusts all others: bytes that are no music
// bring it down. A track begins with a tag or with a frame of MPEG-1 layer III.
Mix_Music* loadMusic(const char* path) {
    std::array<unsigned char, 2> start{};
    std::ifstream file(path, std::ios::binary);
    file.read(reinterpret_cast<char*>(start.data()), start.size());
    const bool tag = start[0] == 'I' && start[1] == 'D';
    const bool frame = start[0] == 0xFF && (start[1] & 0xFE) == 0xFA;
    return file && !tag && !frame ? nullptr : Mix_LoadMUS(path);
}


Mix_Chunk* loadSound(const char* path) { return Mix_LoadWAV_RW(SDL_RWFromFile(path, "rb"), 1); }


// Without an audio device the game goes on in silence.
void openAudio() {
    if (Mix_OpenAudio(44100, AUDIO_S16LSB, 2, 1024) == -1)
        std::printf("%s", SDL_GetError());
    Mix_AllocateChannels(CHANNELS);
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
    Mix_PlayMusic(Game::son_start, -1);
    Mix_VolumeMusic(MUSIC_VOLUME);
}


void setEffectsVolume() {
    constexpr int EFFECTS_VOLUME = 10;
    for (int channel = 0; channel < CHANNELS; ++channel)
        Mix_Volume(channel, EFFECTS_VOLUME);
}


void startGameMusic(Mix_Music* musique) {
    constexpr int FADE_IN_MILLISECONDS = 3000;
    Mix_FadeInMusicPos(musique, -1, FADE_IN_MILLISECONDS, 0.0);
}


void onKeyDown(SDLKey key, Game& game, Mix_Music* musique, bool& continuer, bool& pause, bool& gameStart) {
    if (game.getIsInTitleScreen()) {
        game.setIsInTitleScreen(false);
        startGameMusic(musique);
        gameStart = true;
    }

    if (key == SDLK_SPACE) {
        // The key press that leaves the title screen never pauses.
        pause = !pause && !game.getIsInTitleScreen() && !gameStart;
    } else if (key == SDLK_r) {
        game.restart();
        pause = false;
    } else if (key == SDLK_ESCAPE) {
        continuer = false;
    }
}


// A click on the turret button selects a turret or lets go of it; with a turret selected a click is one
// attempt to place it; any other click begins to fire.
void clickField(Game& game, int x, int y, bool& clic) {
    if (game.aCliqueTourelle(x, y)) {
        if (game.tourelleActivite())
            game.desactiveTourelle();
        else
            game.activeTourelle();
    } else if (game.tourelleActivite()) {
        game.poserTourelle(x, y);
        game.desactiveTourelle();
    } else {
        clic = true;
    }
}


void onMouseButtonDown(const SDL_MouseButtonEvent& button, Game& game, Mix_Music* musique, bool& clic,
                       int& coord_souris_x, int& coord_souris_y) {
    if (game.getIsInTitleScreen()) {
        startGameMusic(musique);
        game.setIsInTitleScreen(false);
    }
    if (button.button != SDL_BUTTON_LEFT)
        return;

    // Counted from ten seconds more than the phase has, so a click is taken at any moment of it.
    constexpr double CLICK_CLOCK = 25.0;
    if (game.getIsInBetwenWave() && !game.isContinueToPlay() &&
        CLICK_CLOCK - game.getTimeBeforeNextWave() > Game::timeApearRoundMenu)
        game.setContinueToPlay(true);

    if (!clic) {
        coord_souris_x = button.x;
        coord_souris_y = upwards(button.y);
        clickField(game, coord_souris_x, coord_souris_y, clic);
    }
}


void prepareFrame() {
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    gluOrtho2D(0, tailleEcranX, 0, tailleEcranY);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
}


void drawPause(GLuint texture_pause) {
    constexpr double SIDE = 64.0;
    glColor4d(1, 1, 1, 1);
    drawTexturedQuad(texture_pause, (tailleEcranX - SIDE) / 2, (tailleEcranY - SIDE) / 2, SIDE, SIDE);
}


// Waits until `dt` milliseconds have passed since the previous frame was shown. That frame's own wait counts towards
// this one, so light frames alternate between a whole wait and none, and the game runs faster than the clock.
void pace(double dt, Uint32& tempsActuel, Uint32& dernierTemps) {
    tempsActuel = SDL_GetTicks();
    const Uint32 elapsed = tempsActuel - dernierTemps;
    if (elapsed < dt)
        SDL_Delay(static_cast<Uint32>(dt) - elapsed);
    dernierTemps = tempsActuel;
}

} // namespace


// SDL's start-up library calls it by its C name.
extern "C" int SDL_main(int /*argc*/, char** /*argv*/) {
    std::srand(static_cast<unsigned int>(std::time(nullptr)));
    try {
        const double dt = 20.0; // milliseconds, of one frame
        constexpr double STEP_SECONDS = 0.02;

        SDL_Init(SDL_INIT_VIDEO);
        SDL_WM_SetCaption("Vorel Defense INC.", nullptr);
        openAudio();
        Mix_Music* musique_tundrix = loadMusic("Assets/music/Tundrix_Dubstep_RMX_v1.mp3");
        // Textures need the window's context, so it comes before the game.
        [[maybe_unused]] SDL_Surface* ecran = SDL_SetVideoMode(tailleEcranX, tailleEcranY, 32, SDL_OPENGL);
        Game game(tailleEcranX, tailleEcranY);
        loadSounds();
        startTitleMusic();
        setEffectsVolume();

        SDL_Event event;
        bool continuer = true;
        bool pause = false;
        bool clic = false;
        int coord_souris_x = 0;
        int coord_souris_y = 0;
        Uint32 tempsActuel = SDL_GetTicks();
        Uint32 dernierTemps = SDL_GetTicks();
        const GLuint texture_pause = loadTexture("Assets/img/PauseButton_64.png", true);
        bool gameStart = false;

        while (continuer) {
            gameStart = false;
            while (SDL_PollEvent(&event) != 0) {
                switch (event.type) {
                case SDL_QUIT:
                    continuer = false;
                    break;
                case SDL_KEYDOWN:
                    onKeyDown(event.key.keysym.sym, game, musique_tundrix, continuer, pause, gameStart);
                    break;
                case SDL_MOUSEMOTION:
                    coord_souris_x = event.motion.x;
                    coord_souris_y = upwards(event.motion.y);
                    break;
                case SDL_MOUSEBUTTONDOWN:
                    onMouseButtonDown(event.button, game, musique_tundrix, clic, coord_souris_x, coord_souris_y);
                    break;
                case SDL_MOUSEBUTTONUP:
                    clic = false;
                    break;
                default:
                    break;
                }
            }

            if (!pause) {
                if (clic && game.isPlaying())
                    game.shoot(Vecteur2D(coord_souris_x, coord_souris_y));
                game.update(STEP_SECONDS);
            }

            prepareFrame();
            game.draw(dt, coord_souris_x, coord_souris_y);
            if (pause)
                drawPause(texture_pause);
            glFlush();
            SDL_GL_SwapBuffers();

            pace(dt, tempsActuel, dernierTemps);
        }

        freeSounds();
        Mix_FreeMusic(musique_tundrix);
        Mix_CloseAudio();
        SDL_Quit();
    } catch (...) {
        std::cout << "error" << std::endl;
    }
    return 0;
}


// Where SDL renames main, its start-up library supplies the entry.
#ifndef main
int main(int argc, char** argv) { return SDL_main(argc, argv); }
#endif
