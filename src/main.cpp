#include "Game/Game.h"
#include "Vecteur/Vecteur2D.h"
#include "audio.h"
#include "drawing.h"
#include "pace.h"
#include "sdlglutils.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <SDL_opengl.h>

#include <cstdlib>
#include <ctime>
#include <iostream>

namespace {

constexpr int tailleEcranX = 1024;
constexpr int tailleEcranY = 768;

/// What the main loop remembers between events and between frames.
struct Loop {
    Game& game;
    Mix_Music* musique_tundrix;
    bool continuer = true;
    bool pause = false;
    bool clic = false; // the left button is held to fire
    int coord_souris_x = 0;
    int coord_souris_y = 0;
    bool gameStart = false; // a key has left the title screen in this frame
};

// SDL counts the rows of the window from its top, the game from its bottom. Quirk: the top row is 768, and 0 is never
// reached.
int upwards(int mouseY) { return tailleEcranY - mouseY; }


void onKeyDown(SDLKey key, Loop& loop) {
    Game& game = loop.game;
    if (game.getIsInTitleScreen()) {
        game.setIsInTitleScreen(false);
        startGameMusic(loop.musique_tundrix);
        loop.gameStart = true;
    }

    if (key == SDLK_SPACE) {
        // The key press that leaves the title screen never pauses.
        loop.pause = !loop.pause && !game.getIsInTitleScreen() && !loop.gameStart;
    } else if (key == SDLK_r) {
        // Quirk: on the title, R starts the game and restarts it at once: the title stays, and the game's music plays.
        // Quirk: a restart keeps the music that plays, and a button that is held to fire.
        game.restart();
        loop.pause = false;
    } else if (key == SDLK_ESCAPE) {
        loop.continuer = false;
    }
}


// A click on the turret button selects a turret or deselects it. With a turret selected, a click is one attempt to
// place it. Any other click begins to fire. Quirk: the shop also sells while the game is paused, between waves and
// after a defeat. Quirk: a refused attempt ends the selection, too.
void clickField(Loop& loop) {
    Game& game = loop.game;
    if (game.aCliqueTourelle(loop.coord_souris_x, loop.coord_souris_y)) {
        if (game.tourelleActivite())
            game.desactiveTourelle();
        else
            game.activeTourelle();
    } else if (game.tourelleActivite()) {
        game.poserTourelle(loop.coord_souris_x, loop.coord_souris_y);
        game.desactiveTourelle();
    } else {
        loop.clic = true;
    }
}


void onMouseButtonDown(const SDL_MouseButtonEvent& button, Loop& loop) {
    Game& game = loop.game;
    // Quirk: any button and any turn of the wheel leaves the title, and a left click that does so also clicks the
    // field.
    if (game.getIsInTitleScreen()) {
        startGameMusic(loop.musique_tundrix);
        game.setIsInTitleScreen(false);
    }
    if (button.button != SDL_BUTTON_LEFT)
        return;

    // The first left click between waves continues: the countdown will not stop. Quirk: it counts at any moment, even
    // before the panel has appeared. The clock starts at 25 seconds, but the phase lasts 15.
    constexpr double CLICK_CLOCK = 25.0;
    if (game.getIsInBetwenWave() && !game.isContinueToPlay() &&
        CLICK_CLOCK - game.getTimeBeforeNextWave() > Game::timeApearRoundMenu)
        game.setContinueToPlay(true);

    // Quirk: while the turrets fire, another press does nothing more, not even aim.
    if (!loop.clic) {
        loop.coord_souris_x = button.x;
        loop.coord_souris_y = upwards(button.y);
        clickField(loop);
    }
}


void onEvent(const SDL_Event& event, Loop& loop) {
    switch (event.type) {
    case SDL_QUIT:
        loop.continuer = false;
        break;
    case SDL_KEYDOWN:
        onKeyDown(event.key.keysym.sym, loop);
        break;
    case SDL_MOUSEMOTION:
        loop.coord_souris_x = event.motion.x;
        loop.coord_souris_y = upwards(event.motion.y);
        break;
    case SDL_MOUSEBUTTONDOWN:
        onMouseButtonDown(event.button, loop);
        break;
    case SDL_MOUSEBUTTONUP: // Quirk: releasing any button, the wheel too, stops the fire.
        loop.clic = false;
        break;
    default:
        break;
    }
}


void drawPause(GLuint texture_pause) {
    constexpr double SIDE = 64.0;
    glColor4d(1, 1, 1, 1);
    drawTexturedQuad(texture_pause, (tailleEcranX - SIDE) / 2, (tailleEcranY - SIDE) / 2, SIDE, SIDE);
}

} // namespace


// SDL's start-up library calls it by its C name.
extern "C" int SDL_main(int /*argc*/, char** /*argv*/) {
    std::srand(static_cast<unsigned int>(std::time(nullptr)));
    try {
        const double dt = 20.0; // milliseconds, of one frame
        constexpr double STEP_SECONDS = 0.02;
        constexpr int BITS_PER_PIXEL = 32;

        // Quirk: nothing checks whether SDL or the window could be opened.
        SDL_Init(SDL_INIT_VIDEO);
        SDL_WM_SetCaption("Vorel Defense INC.", nullptr);
        openAudio();
        Mix_Music* musique_tundrix = loadMusic("Assets/music/Tundrix_Dubstep_RMX_v1.mp3");
        // Textures need the window's context, so it comes before the game.
        [[maybe_unused]] SDL_Surface* ecran = SDL_SetVideoMode(tailleEcranX, tailleEcranY, BITS_PER_PIXEL, SDL_OPENGL);
        Game game(tailleEcranX, tailleEcranY);
        loadSounds();
        startTitleMusic();
        setEffectsVolume();

        Loop loop{game, musique_tundrix};
        Pace pace;
        const GLuint texture_pause = loadTexture("Assets/img/PauseButton_64.png", true);

        while (loop.continuer) {
            loop.gameStart = false;
            SDL_Event event;
            while (SDL_PollEvent(&event) != 0)
                onEvent(event, loop);

            if (!loop.pause) {
                if (loop.clic && game.isPlaying())
                    game.shoot(Vecteur2D(loop.coord_souris_x, loop.coord_souris_y));
                game.update(STEP_SECONDS);
            }

            prepareFrame(tailleEcranX, tailleEcranY);
            game.draw(dt, loop.coord_souris_x, loop.coord_souris_y);
            if (loop.pause)
                drawPause(texture_pause);
            glFlush();
            SDL_GL_SwapBuffers();

            pace.wait(dt);
        }

        // Quirk: the game itself is destroyed after SDL has ended, at the end of this block.
        freeSounds();
        Mix_FreeMusic(musique_tundrix);
        Mix_CloseAudio();
        SDL_Quit();
    } catch (...) {
        // Quirk: any exception ends the game with only this word and exit status 0. The system closes what was opened.
        std::cout << "error" << std::endl;
    }
    return 0;
}


// Where SDL renames main, its start-up library supplies the entry.
#ifndef main
int main(int argc, char** argv) { return SDL_main(argc, argv); }
#endif
