// Sets up scenes that play reaches seldom or late, and shows them in the real window, with real sound:
//
//     vorel-stage SCENE [SECONDS [PICTURE.bmp [GROUND]]]      in the folder that holds Assets/
//
// The scene goes on for so many seconds, or until it is closed; its last frame is kept in the picture. Each number for
// the ground gives another one, always the same. At the end the work for one frame is printed. Scenes, N being a
// number:
//
//     title       the title screen
//     busy        ten turrets fire at the twenty grunts that are on the field and at forty more that follow
//     waveN       ten turrets at work 24 seconds after the beginning of wave N
//     waterN      N units of water are left
//     pollutionN  grunts have walked in until N units were polluted
//     roundendN   wave N, from 2 to 4, undefended and just before its end: the last of its grunts is still on its way
//     defeat      the moment before the last grunt spoils the water
//     preview     a turret is about to be bought
//     playN       six turrets, and the grunts of wave N close to them; the mouse buys, places and fires

#include "Entity/Weapon.h"
#include "Game/Game.h"
#include "Vecteur/Vecteur2D.h"
#include "audio.h"
#include "drawing.h"
#include "sdlglutils.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <SDL_opengl.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ratio>
#include <string>
#include <vector>

namespace {

constexpr int WIDTH = 1024;
constexpr int HEIGHT = 768;
constexpr double STEP = 0.02; // seconds

/// What goes on in front of the window: where the mouse is, and whether its button is held.
struct Player {
    Vecteur2D mouse{512, 160};
    bool fires = false;
    bool isReal = false; ///< Someone holds the mouse; otherwise it goes its round by itself.
};


/// Goes on for so many seconds, in long steps and without sound.
void pass(Game& game, double seconds) {
    constexpr double LONG_STEP = 0.1;
    for (double passed = 0; passed < seconds; passed += LONG_STEP)
        game.update(LONG_STEP);
}


/// Jumps to the wave that players call so; the first is 1.
void jumpToWave(Game& game, int number) {
    for (int wave = 1; wave < number; ++wave)
        game.startNewWave();
}


/// The first so many of ten turrets like the shop's. Those that need no water hold out for minutes.
void placeTurrets(Game& game, int count = 10, double waterPerShot = 0) {
    constexpr int PLACES[10][2] = {{416, 448}, {608, 448}, {416, 256}, {608, 256}, {512, 512},
                                   {512, 192}, {320, 352}, {704, 352}, {288, 512}, {736, 192}};
    for (int i = 0; i < count; ++i)
        game.addWeapon(Weapon({1.0 * PLACES[i][0], 1.0 * PLACES[i][1]}, "", waterPerShot, 300, 300, 50, 1, 10, 10, 80));
}


/// Takes water from the tank, as the shot of a turret far outside the window.
void takeWater(Game& game, double units) {
    const Vecteur2D outside(-1000, -1000);
    game.addWeapon(Weapon(outside, "", units, 1, 0, 0, 1, 10, 10, 80));
    game.shoot(outside);
    pass(game, 0.2);
}


/// Lets grunts walk in until so much water is polluted.
void pollute(Game& game, double units) {
    jumpToWave(game, 20);
    while (game.getTower().getPollution() < units)
        pass(game, 0.1);
}


/// Whether there is such a scene.
bool setUp(Game& game, Player& player, const std::string& scene) {
    const size_t letters = std::min(scene.find_first_of("0123456789"), scene.size());
    const std::string name = scene.substr(0, letters);
    const int number = std::atoi(scene.c_str() + letters);

    game.setIsInTitleScreen(name == "title");
    if (name == "busy" || name == "wave") {
        placeTurrets(game);
        jumpToWave(game, name == "busy" ? 21 : number);
        pass(game, 24);
        player.fires = true;
    } else if (name == "play") {
        placeTurrets(game, 6, 0.5);
        jumpToWave(game, number);
        pass(game, 33);
        player.isReal = true;
    } else if (name == "water") {
        takeWater(game, 100 - number);
    } else if (name == "pollution") {
        pollute(game, number);
    } else if (name == "roundend") {
        jumpToWave(game, number);
        while (game.getTower().getPollution() < 30.0 * (number - 1) - 10.0)
            pass(game, 0.1);
    } else if (name == "defeat") {
        pollute(game, 90);
    } else if (name == "preview") {
        game.activeTourelle();
    } else {
        return name == "title";
    }
    return true;
}


/// One step and one frame of the game.
void play(Game& game, Player& player, double time) {
    // The mouse goes once around the tower in twenty seconds.
    if (player.fires && !player.isReal)
        player.mouse = {512 + 260 * std::cos(time * 0.314), 352 + 200 * std::sin(time * 0.314)};
    if (player.fires)
        game.shoot(player.mouse);
    game.update(STEP);
    prepareFrame(WIDTH, HEIGHT);
    game.draw(1000 * STEP, player.mouse[0], player.mouse[1]);
    glFlush();
}


/// What a press of the left button does where the mouse is.
void press(Game& game, Player& player) {
    const int x = static_cast<int>(player.mouse[0]);
    const int y = static_cast<int>(player.mouse[1]);
    if (game.aCliqueTourelle(x, y)) {
        game.activeTourelle();
    } else if (game.tourelleActivite()) {
        game.poserTourelle(x, y);
        game.desactiveTourelle();
    } else {
        player.fires = true;
    }
}


/// Takes what was done to the window, and says whether it was closed.
bool isClosed(Game& game, Player& player) {
    SDL_Event event;
    bool closed = false;
    while (SDL_PollEvent(&event) != 0) {
        closed = closed || event.type == SDL_QUIT || (event.type == SDL_KEYDOWN && event.key.keysym.sym == SDLK_ESCAPE);
        if (!player.isReal)
            continue;
        if (event.type == SDL_MOUSEMOTION)
            player.mouse = Vecteur2D(event.motion.x, HEIGHT - event.motion.y);
        else if (event.type == SDL_MOUSEBUTTONDOWN)
            press(game, player);
        else if (event.type == SDL_MOUSEBUTTONUP)
            player.fires = false;
    }
    return closed;
}


/// Waits until the step's time has passed since the previous frame was shown, and answers when this one was: the game's
/// own pace.
Uint32 waitFor(Uint32 previous) {
    constexpr auto STEP_MILLISECONDS = static_cast<Uint32>(1000 * STEP);
    const Uint32 now = SDL_GetTicks();
    if (now - previous < STEP_MILLISECONDS)
        SDL_Delay(STEP_MILLISECONDS - (now - previous));
    return now;
}


/// The milliseconds of work that each frame took.
std::vector<double> run(Game& game, Player& player, double seconds, const char* picture) {
    using Clock = std::chrono::steady_clock;
    std::vector<double> work;
    Uint32 shown = SDL_GetTicks();
    for (double time = 0; time <= seconds && !isClosed(game, player); time += STEP) {
        const auto start = Clock::now();
        play(game, player, time);
        if (picture != nullptr && time + STEP > seconds)
            takeScreenshot(picture);
        SDL_GL_SwapBuffers();
        work.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
        shown = waitFor(shown);
    }
    return work;
}

} // namespace


int main(int argc, char** argv) {
    SDL_Init(SDL_INIT_VIDEO);
    openAudio();
    if (SDL_SetVideoMode(WIDTH, HEIGHT, 32, SDL_OPENGL) == nullptr) {
        std::fprintf(stderr, "There is no window with OpenGL: %s\n", SDL_GetError());
        return 1;
    }
    std::srand(argc > 4 ? std::atoi(argv[4]) : 4); // the same ground every time

    Game game(WIDTH, HEIGHT);
    Player player;
    if (argc < 2 || !setUp(game, player, argv[1])) {
        std::fputs("vorel-stage SCENE [SECONDS [PICTURE.bmp [GROUND]]]; see tools/stage.cpp for the scenes\n", stderr);
        return 1;
    }

    loadSounds();
    startTitleMusic();
    setEffectsVolume();
    if (!game.getIsInTitleScreen())
        startGameMusic(loadMusic("Assets/music/Tundrix_Dubstep_RMX_v1.mp3"));

    std::vector<double> work = run(game, player, argc > 2 ? std::atof(argv[2]) : 1e9, argc > 3 ? argv[3] : nullptr);
    std::sort(work.begin(), work.end());
    std::printf("%s: %zu frames, work per frame: median %.2f ms, maximum %.2f ms\n", argv[1], work.size(),
                work[work.size() / 2], work.back());
    Mix_CloseAudio();
    SDL_Quit();
    return 0;
}
