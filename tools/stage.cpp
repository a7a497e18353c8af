// Sets up scenes that a player sees seldom or late, and shows them in the real window, with real sound:
//
//     vorel-stage SCENE [SECONDS [PICTURE.bmp [GROUND]]]      in the folder that holds Assets/
//
// The scene runs for that many seconds, or until its window is closed. PICTURE.bmp gets its last frame. GROUND is a
// number: each gives a different ground, always the same one. Grunts enter at the same places every time. At the end
// the work per frame is printed. N stands for a number in these scenes:
//
//     title       the title screen
//     everything  a frame that stays: ten turrets at work and one about to be bought, with the title and the end of a
//                 wave as small pictures in it
//     busy        ten turrets fire at the two dozen grunts on the field and at the three dozen that follow
//     waveN       ten turrets at work 24 seconds after the beginning of wave N
//     waterN      N units of water are left
//     pollutionN  grunts have walked in until N units were polluted
//     roundendN   wave N, from 2 to 4, undefended and just before its end: the last of its grunts is still on its way
//     defeat      the moment before the last grunt spoils the water
//     preview     a turret is about to be bought
//     film        plays itself, as fast as it can: a turret is bought and placed, the grunts of wave 3 burst, and the
//                 wave is paid out, all in 15 seconds; PICTURE.bmp is a folder that keeps every third frame

#include "Entity/Weapon.h"
#include "Game/Game.h"
#include "Vecteur/Vecteur2D.h"
#include "audio.h"
#include "drawing.h"
#include "pace.h"
#include "sdlglutils.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <SDL_opengl.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <ratio>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr int WIDTH = 1024;
constexpr int HEIGHT = 768;
constexpr double STEP = 0.02; // seconds

// What the pointer of the film does, and at which steps.
constexpr int SHOP_CLICKED = 50;
constexpr int TURRET_PLACED = 100;
constexpr int FIRST_VOLLEY = 140;
constexpr int LAST_VOLLEY = 390;
constexpr int STEPS_BETWEEN_VOLLEYS = 50;
constexpr int STEPS_BETWEEN_PICTURES = 3;

const Vecteur2D TOWER(512, 352);

/// The clock that decides where the next grunt enters. It moves on when it is read, so that no two enter at one place.
std::chrono::nanoseconds entranceClock{};

/// The player at the window: where the mouse is, and whether its button is held.
struct Player {
    Vecteur2D mouse{512, 160};
    bool fires = false;
    std::vector<std::pair<int, Vecteur2D>> way; ///< For the film: the steps in which the pointer arrives, and where.
    std::unique_ptr<Game> title, roundEnd;      ///< For the frame with everything: what it shows beside the field.
};


/// Lets some seconds pass, in long steps and without sound.
void pass(Game& game, double seconds) {
    constexpr double LONG_STEP = 0.1;
    for (double passed = 0; passed < seconds; passed += LONG_STEP)
        game.update(LONG_STEP);
}


/// Jumps to the wave with the number that players see; the first is 1.
void jumpToWave(Game& game, int number) {
    for (int wave = 1; wave < number; ++wave)
        game.startNewWave();
}


/// Places the first `count` of ten turrets like the shop's. Without a need for water they can fire for minutes.
void placeTurrets(Game& game, int count = 10, double waterPerShot = 0) {
    constexpr int PLACES[10][2] = {{416, 448}, {608, 448}, {416, 256}, {608, 256}, {512, 512},
                                   {512, 192}, {320, 352}, {704, 352}, {288, 512}, {736, 192}};
    for (int i = 0; i < count; ++i)
        game.addWeapon(Weapon({1.0 * PLACES[i][0], 1.0 * PLACES[i][1]}, "", waterPerShot, 300, 300, 50, 1, 10, 10, 80));
}


/// Takes water from the tank, by the shot of a turret far outside the window.
void takeWater(Game& game, double units) {
    const Vecteur2D outside(-1000, -1000);
    game.addWeapon(Weapon(outside, "", units, 1, 0, 0, 1, 10, 10, 80));
    game.shoot(outside);
    pass(game, 0.2);
}


/// Lets grunts walk in until this much water is polluted.
void pollute(Game& game, double units) {
    jumpToWave(game, 20);
    while (game.getTower().getPollution() < units)
        pass(game, 0.1);
}


/// Puts wave 3 close to six turrets, and plans the way of the pointer.
void setUpFilm(Game& game, Player& player) {
    player.way = {{0, {700, 470}}, {SHOP_CLICKED, {992, 595}}, {TURRET_PLACED, {712, 490}}};
    for (int volley = FIRST_VOLLEY; volley <= LAST_VOLLEY; volley += STEPS_BETWEEN_VOLLEYS) {
        // Each grunt has walked equally far when its volley meets it, because grunts enter as often as turrets fire.
        constexpr double WALKED = 403;
        const Vecteur2D entrance = game.spawnEnnemi();
        player.way.emplace_back(volley, entrance + WALKED * Vecteur2D(TOWER - entrance).normalise());
    }
    player.way.emplace_back(LAST_VOLLEY + 35, Vecteur2D(700, 90));
    entranceClock = {};
    placeTurrets(game, 6, 0.5);
    jumpToWave(game, 3);
    pass(game, 37);
}


/// Where the mouse is that goes once around the tower in twenty seconds.
Vecteur2D aroundTower(int step) {
    const double angle = step * STEP * 0.314;
    return {TOWER[0] + 260 * std::cos(angle), TOWER[1] + 200 * std::sin(angle)};
}


/// A field full of grunts, jets and bursts, under a turret that is about to be bought, and the end of a wave that left
/// more pollution than water.
void setUpEverything(Game& game, Player& player) {
    placeTurrets(game);
    jumpToWave(game, 21);
    pass(game, 30);
    constexpr int STEPS_OF_FIRE = 450;
    for (int step = 0; step < STEPS_OF_FIRE; ++step) {
        game.shoot(aroundTower(step));
        game.update(STEP);
    }
    game.activeTourelle();
    player.mouse = {300, 330};

    player.title = std::make_unique<Game>(WIDTH, HEIGHT);
    player.roundEnd = std::make_unique<Game>(WIDTH, HEIGHT);
    player.roundEnd->setIsInTitleScreen(false);
    jumpToWave(*player.roundEnd, 3);
    while (!player.roundEnd->getIsInBetwenWave())
        pass(*player.roundEnd, 0.1);
    pass(*player.roundEnd, 1.5); // the panel has not faded in completely
}


/// Draws a game as a small picture in the window, with its lower left corner at a point.
void drawSmall(const Game& game, double x, double y, double size) {
    glPushMatrix();
    glTranslated(x, y, 0);
    glScaled(size, size, 1);
    game.draw(0, 0, 0);
    glPopMatrix();
}


/// Moves the pointer like a hand, slowly at first and at last, and clicks or fires.
void film(Game& game, Player& player, int step) {
    constexpr double STEPS_OF_A_MOVE = 25;
    for (const auto& [arrival, place] : player.way) {
        const double share = std::clamp(1 - (arrival - step) / STEPS_OF_A_MOVE, 0.0, 1.0);
        player.mouse = player.mouse + share * share * (3 - 2 * share) * (place - player.mouse);
    }
    if (step == SHOP_CLICKED)
        game.activeTourelle();
    if (step == TURRET_PLACED) {
        game.poserTourelle(static_cast<int>(player.mouse[0]), static_cast<int>(player.mouse[1]));
        game.desactiveTourelle();
    }
    player.fires = step >= FIRST_VOLLEY && step <= LAST_VOLLEY;
}


/// Draws a white arrow with a black rim.
void drawPointer(const Vecteur2D& tip) {
    constexpr double CORNERS[][2] = {{0, 0}, {0, -25}, {6, -19}, {12, -31}, {17, -29}, {11, -17}, {19, -17}};
    constexpr double MIDDLE[] = {6, -15};
    for (const double white : {0.0, 1.0}) {
        glColor4d(white, white, white, 1);
        glBegin(GL_TRIANGLE_FAN);
        for (const auto& corner : CORNERS)
            glVertex2d(tip[0] + corner[0] + 0.3 * white * (MIDDLE[0] - corner[0]),
                       tip[1] + corner[1] + 0.3 * white * (MIDDLE[1] - corner[1]));
        glEnd();
    }
    glColor4d(1, 1, 1, 1);
}


/// Sets up a scene. Returns whether there is one of that name.
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
    } else if (name == "everything") {
        setUpEverything(game, player);
    } else if (name == "film") {
        setUpFilm(game, player);
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
void showStep(Game& game, Player& player, int step) {
    if (!player.way.empty())
        film(game, player, step);
    else if (player.fires)
        player.mouse = aroundTower(step);
    if (player.fires)
        game.shoot(player.mouse);
    if (!player.title)
        game.update(STEP);
    prepareFrame(WIDTH, HEIGHT);
    game.draw(1000 * STEP, player.mouse[0], player.mouse[1]);
    if (player.title) {
        drawSmall(*player.title, 0, 576, 0.25);
        drawSmall(*player.roundEnd, 640, 0, 0.375);
    }
    if (!player.way.empty())
        drawPointer(player.mouse);
    glFlush();
}


/// Whether the window was closed, or Escape pressed.
bool isClosed() {
    SDL_Event event;
    bool closed = false;
    while (SDL_PollEvent(&event) != 0)
        closed = closed || event.type == SDL_QUIT || (event.type == SDL_KEYDOWN && event.key.keysym.sym == SDLK_ESCAPE);
    return closed;
}


void keepPicture(const std::string& file) {
    if (takeScreenshot(file.c_str()) == 0)
        return;
    std::fprintf(stderr, "%s can't be written.\n", file.c_str());
    std::exit(1);
}


/// Runs a scene. Returns the milliseconds of work that each frame took.
std::vector<double> run(Game& game, Player& player, int steps, const std::string& picture) {
    using Clock = std::chrono::steady_clock;
    const bool isFilm = !player.way.empty();
    std::vector<double> work;
    Pace pace;
    for (int step = 0; step < steps && !isClosed(); ++step) {
        const auto start = Clock::now();
        showStep(game, player, step);
        if (isFilm && step % STEPS_BETWEEN_PICTURES == 0)
            keepPicture(picture + "/" + std::to_string(step / STEPS_BETWEEN_PICTURES) + ".bmp");
        else if (!isFilm && !picture.empty() && step == steps - 1)
            keepPicture(picture);
        SDL_GL_SwapBuffers();
        work.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
        if (!isFilm)
            pace.wait(1000 * STEP);
    }
    return work;
}

} // namespace


#ifdef __EMSCRIPTEN__
// Debian's dice, so that a browser shows the same ground and the same bursts; bench/web/stage.js replaces the clock.
namespace {

std::vector<unsigned> dice;

} // namespace


int rand() {
    constexpr std::size_t LONG_AGO = 31;
    constexpr std::size_t LATELY = 3;
    dice.push_back(dice[dice.size() - LATELY] + dice[dice.size() - LONG_AGO]);
    return static_cast<int>(dice.back() >> 1U);
}


void srand(unsigned seed) {
    constexpr std::size_t FIRST = 31;
    constexpr int THROWN_AWAY = 310;
    dice.assign(1, seed);
    while (dice.size() < FIRST)
        dice.push_back(static_cast<unsigned>(16807ULL * dice.back() % 2147483647ULL));
    for (int i = 0; i < 3; ++i)
        dice.push_back(dice[i]);
    for (int i = 0; i < THROWN_AWAY; ++i)
        rand();
}
#else
std::chrono::system_clock::time_point std::chrono::system_clock::now() noexcept {
    entranceClock += std::chrono::milliseconds(3514);
    return time_point(entranceClock);
}
#endif


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
    const bool isSetUp = argc > 1 && setUp(game, player, argv[1]);
    const bool filmsNowhere = !player.way.empty() && argc < 4;
    if (!isSetUp || filmsNowhere) {
        std::fputs("vorel-stage SCENE [SECONDS [PICTURE.bmp [GROUND]]]; see tools/stage.cpp for the scenes\n", stderr);
        return 1;
    }

    loadSounds();
    startTitleMusic();
    setEffectsVolume();
    if (!game.getIsInTitleScreen())
        startGameMusic(loadMusic("Assets/music/Tundrix_Dubstep_RMX_v1.mp3"));

    const double seconds = argc > 2 ? std::atof(argv[2]) : 1e7;
    std::vector<double> work = run(game, player, static_cast<int>(seconds / STEP) + 1, argc > 3 ? argv[3] : "");
    std::sort(work.begin(), work.end());
    std::printf("%s: %zu frames, work per frame: median %.2f ms, maximum %.2f ms\n", argv[1], work.size(),
                work[work.size() / 2], work.back());
    Mix_CloseAudio();
    SDL_Quit();
    return 0;
}
