#include "Game/Game.h"

#include "Entity/Ennemi.h"
#include "Vecteur/Vecteur2D.h"
#include "Wave/Wave.h"
#include "sdlglutils.h"
#include "utility/utility.h"

#include <SDL_mixer.h>

#include <chrono>
#include <random>

namespace {

constexpr int START_MONEY = 2000;

// Where the tower stands: in the middle, one cell below the centre of the window.
constexpr double TOWER_X = 512.0;
constexpr double TOWER_Y = 352.0;

// All waves consist of the same kind of grunt: one grunt in the first wave, then three times the number of earlier
// waves.
constexpr double SECONDS_BETWEEN_GRUNTS = 1.0;
constexpr double GRUNT_HEALTH = 100.0;
constexpr double GRUNT_SPEED = 10.0;
constexpr double GRUNT_POLLUTION = 10.0;
constexpr double GRUNT_RADIUS = 20.0;
constexpr unsigned int GRUNTS_IN_FIRST_WAVE = 1;
constexpr unsigned int GRUNTS_PER_WAVE_BEFORE = 3;


Wave waveOf(unsigned int ennemis) {
    const Ennemi grunt(Vecteur2D(0.0), GRUNT_HEALTH, GRUNT_SPEED, GRUNT_POLLUTION, GRUNT_RADIUS, GRUNT_RADIUS,
                       "test Dummy 1");
    Wave wave(SECONDS_BETWEEN_GRUNTS);
    wave.addEnnemi(grunt, ennemis);
    return wave;
}

} // namespace


Mix_Chunk* Game::son_defeat = nullptr;
Mix_Chunk* Game::son_good_job = nullptr;
Mix_Music* Game::son_start = nullptr;
Mix_Chunk* Game::son_cashregister = nullptr;
Mix_Chunk* Game::son_coinsound = nullptr;
Mix_Chunk* Game::son_pourwater = nullptr;


Game::Game(const double& width, const double& heigth)
    : temps_son(0), m_tower(Vecteur2D(TOWER_X, TOWER_Y)), x_shop(896), y_shop(412), w_shop(128), h_shop(256),
      x_tourelle(960), y_tourelle(563), w_tourelle(64), h_tourelle(64), tourelle_active(false), x_bouteille(0),
      y_bouteille(0), w_bouteille(64), h_bouteille(512), x_argent(844), y_argent(668), w_argent(170), h_argent(85),
      time(0.0), argentGain(0.0), waterDepart(0.0), finalWaterLeft(false), currentWave(0), isInTitleScreen(true),
      isInBetwenWave(false), timeBeforeNextWave(0.0), argent(START_MONEY), loos(false), width(width), heigth(heigth),
      timeLoos(0.0), continueToPlay(true) {
    m_texture_tourelle = loadTexture("Assets/img/TurretIcon_64.png", true);
    m_texture_sol = loadTexture("Assets/img/tileSet_v2_32x32.png", true);
    m_texture_shop = loadTexture("Assets/img/WeaponPanel_128x256.png", true);
    m_texture_bouteille = loadTexture("Assets/img/BottleGauge_128x1024.png", true);
    m_texture_bouteille_eau = loadTexture("Assets/img/BottleContent_128x1024.png", true);
    m_texture_argent_fond = loadTexture("Assets/img/MoneyPanel_512x256.png", true);
    m_texture_argent = loadTexture("Assets/img/Numbers_320x64.png", true);
    m_texture_dollar = loadTexture("Assets/img/DollarSign_64.png", true);
    m_texture_welldone = loadTexture("Assets/img/EndRoundPanel_1024.png", true);
    m_texture_Piechart_water = loadTexture("Assets/img/BlueCircle_512.png", true);
    m_texture_Piechart_evil = loadTexture("Assets/img/RedCircle_512.png", true);
    m_texture_Piechart_skin = loadTexture("Assets/img/SkinCircle_512.png", true);
    m_texture_Title_screen = loadTexture("Assets/img/TitleScreen.jpg", true);
    m_texture_loos_screen = loadTexture("Assets/img/PressRToRestart_1024x256.png", true);
    m_texture_wave = loadTexture("Assets/img/WavePanel_512x256.png", true);

    const Ground tab_sol = creation_sol();
    m_sol = lisser(tab_sol);

    init();
}


Game::~Game() { deletePointerInVector(weapons); }


void Game::init() { m_waves.push_back(waveOf(GRUNTS_IN_FIRST_WAVE)); }


void Game::restart() {
    argent = START_MONEY;
    m_waves.clear();
    deletePointerInVector(weapons);
    weapons.clear();

    currentWave = 0;
    loos = false;
    time = 0.0;
    timeLoos = 0.0;
    continueToPlay = false;
    tourelle_active = false;
    isInTitleScreen = true;
    isInBetwenWave = false;
    argentGain = 0.0;
    waterDepart = 0.0;
    finalWaterLeft = false;

    m_tower.removePollution();
    m_tower.refil(m_tower.getCapacity());
    init();
}


bool Game::isPlaying() const { return !hasLoos() && !isInBetwenWave && !isInTitleScreen; }


bool Game::hasLoos() const { return loos; }


bool Game::getIsInTitleScreen() const { return isInTitleScreen; }


void Game::setIsInTitleScreen(bool inTitleScreen) { isInTitleScreen = inTitleScreen; }


bool Game::getIsInBetwenWave() const { return isInBetwenWave; }


double Game::getTimeBeforeNextWave() const { return timeBeforeNextWave; }


bool Game::isContinueToPlay() const { return continueToPlay; }


void Game::setContinueToPlay(bool continuePlaying) { continueToPlay = continuePlaying; }


const Tower& Game::getTower() const { return m_tower; }


int Game::getLargeur() const { return largeur; }


int Game::getHauteur() const { return hauteur; }


int Game::getLargeurCase() const { return static_cast<int>(largeur_case); }


int Game::getHauteurCase() const { return static_cast<int>(hauteur_case); }


// Quirk: a fresh generator each time, seeded with the clock's low 32 bits, so grunts released at one reading of the
// clock enter at one place.
Vecteur2D Game::spawnEnnemi() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto seed = static_cast<unsigned int>(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
    std::minstd_rand0 RNG(seed);
    std::uniform_real_distribution<double> dis(0.0, 2 * width + 2 * heigth);
    const double positionOnPerimeter = dis(RNG);

    // Quirk: the side edges take `width` units of the perimeter and the others `heigth`. So grunts may enter at the
    // sides above the window's top, and never above or below its rightmost part.
    constexpr double OUTSIDE = 30.0;
    Vecteur2D pos;
    if (positionOnPerimeter < width)
        pos = {-OUTSIDE, positionOnPerimeter};
    else if (positionOnPerimeter < width + heigth)
        pos = {positionOnPerimeter - width, heigth + OUTSIDE};
    else if (positionOnPerimeter < 2 * width + heigth)
        pos = {width + OUTSIDE, positionOnPerimeter - width - heigth};
    else
        pos = {positionOnPerimeter - 2 * width - heigth, -OUTSIDE};
    return pos;
}


void Game::startNewWave() {
    time = 0.0;
    currentWave += 1;
    if (m_waves.size() == currentWave)
        m_waves.push_back(waveOf(static_cast<unsigned int>(currentWave) * GRUNTS_PER_WAVE_BEFORE));
}
