#ifndef GAME_H
#define GAME_H

#include "Entity/Entity.h"
#include "Entity/Tower.h"
#include "Entity/Weapon.h"
#include "Vecteur/Vecteur2D.h"
#include "Wave/Wave.h"
#include "utility/HeterogeneousContainer.h"

#include <SDL_mixer.h>
#include <SDL_opengl.h>

#include <cstddef>
#include <vector>

/// The length of the phase between two waves, in seconds.
inline constexpr double TIME_BETTWENN_WAVE = 15.0;

/// A grid of the whole ground, indexed [column][row] from the lower-left corner: 0 for plain ground and 1 for a
/// patch before it is smoothed, indices of tiles afterwards.
using Ground = std::vector<std::vector<int>>;

/// A new ground with random round patches near the corners and the centre.
Ground creation_sol();
/// Turns the cells within `r` cells of the cell (`x`, `y`) into patch; that cell may lie outside the ground.
void creerTache(const int& x, const int& y, const double& r, Ground& tab_sol);
/// The tiles that draw a ground, with soft edges around its patches.
Ground lisser(const Ground& tab_sol);

/// One game in progress: the ground, the tower, the waves, the turrets, the money, and which of its screens
/// is shown. The main loop tells it what the player does, advances it step by step and lets it draw itself.
///
/// Positions are window pixels, x to the right and y upwards from the lower-left corner.
class Game {
public:
    /// The map in cells, and a cell in pixels: exactly the 1024 x 768 window, which main.cpp opens and for which panels
    /// and pictures are laid out.
    static constexpr int largeur = 32;
    static constexpr int hauteur = 24;
    static constexpr double largeur_case = 32.0;
    static constexpr double hauteur_case = 32.0;

    /// How long the round-end panel fades in, stays and fades out, in seconds.
    static constexpr double timeApearRoundMenu = 2.0;
    static constexpr double timeStayRoundMenu = 5.0;
    static constexpr double timeDisapearRoundMenu = 2.0;

    /// The jingles, the title music and the sounds of the pay-out; audio.cpp loads and frees them.
    static Mix_Chunk* son_defeat;
    static Mix_Chunk* son_good_job;
    static Mix_Music* son_start;
    static Mix_Chunk* son_cashregister;
    static Mix_Chunk* son_coinsound;
    static Mix_Chunk* son_pourwater;

    // Lifecycle.

    /// A fresh game on its title screen, in a window of `width` x `heigth` pixels. Loads textures: there must
    /// be an OpenGL context.
    Game(const double& width, const double& heigth);
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;
    virtual ~Game();

    /// Appends wave 0.
    void init();
    /// A fresh game on the title screen. Quirk: four things stay: the ground, the count of waves that gives each its
    /// number, the steps counted towards the next coin sound, and getTimeBeforeNextWave(). Quirk: isContinueToPlay() is
    /// false afterwards, and true in a new game.
    void restart();

    // What state it is in.

    /// Neither lost, nor between waves, nor on the title screen.
    bool isPlaying() const;
    bool hasLoos() const;
    bool getIsInTitleScreen() const;
    void setIsInTitleScreen(bool inTitleScreen);
    bool getIsInBetwenWave() const;
    /// Seconds left before the next wave; meaningful only between waves.
    double getTimeBeforeNextWave() const;
    /// The player has clicked to continue, so the countdown between waves will not be held.
    bool isContinueToPlay() const;
    void setContinueToPlay(bool continuePlaying);
    const Tower& getTower() const;
    int getLargeur() const;
    int getHauteur() const;
    int getLargeurCase() const;
    int getHauteurCase() const;

    // The simulation.

    /// One step of `dt` seconds.
    void update(const double& dt);
    /// Tells every turret to fire at `pos`; nothing happens unless playing.
    void shoot(const Vecteur2D& pos);
    /// Adds a copy of the turret, which the game owns; the original stays the caller's.
    void addWeapon(const Weapon& w);
    void addWeapon(Weapon* w);
    /// A random point 30 pixels outside the window, where the next grunt enters.
    Vecteur2D spawnEnnemi();
    /// Makes the next wave the current one, and builds it if it doesn't exist yet.
    void startNewWave();

    // The shop.

    /// Whether the point hits the turret button.
    bool aCliqueTourelle(const int& x, const int& y);
    /// Whether a turret is selected, to be placed with the next click.
    bool tourelleActivite() const;
    void activeTourelle();
    void desactiveTourelle();
    /// Buys a turret and places it on the lower-left corner of the cell under (`x`, `y`), if there is enough room and
    /// money.
    void poserTourelle(const int& x, const int& y);

    // Drawing. Every routine leaves texturing disabled, texture 0 bound and, if it sets colours, opaque
    // white. `dt` is the frame period in milliseconds, (`x`, `y`) the mouse.

    /// One whole frame.
    void draw(const double& dt, const double& x, const double& y) const;
    void drawSol(const double& dt) const;
    void drawTitleScreen() const;
    void drawLoosScreen() const;
    void drawRoudEnd(const double& dt, const double& x, const double& y) const;
    void drawGUI(const double& dt, const int& x, const int& y) const;
    /// The turret that a click at the mouse would try to place, and its range.
    void dessinerTourelleGrisee(const int& x, const int& y) const;
    /// The money counter.
    void afficherArgent(const double& dt) const;
    /// The money earned between waves, laid out like the counter but in the current colour.
    void afficherArgentGain(const double& dt) const;

private:
    // The parts of a step, and of the phase between waves.
    void releaseEnnemis();
    void resolveCollisions();
    void updateBetwenWave(const double& dt);
    void drainWater();
    void payOut();

    /// The last digit of the money counter, in pixels.
    static constexpr double MONEY_X = 964.0;
    static constexpr double MONEY_Y = 698.0;

    /// How finely the discs of the turrets' ranges are drawn.
    static constexpr unsigned int DISC_SEGMENTS = 40;

    void drawGauge() const;
    void drawMoney(int amount) const;
    void drawWavePanel() const;

    int temps_son;
    GLuint m_texture_sol;
    Ground m_sol;
    Tower m_tower;
    std::vector<Wave> m_waves;
    int x_shop, y_shop, w_shop, h_shop;
    GLuint m_texture_shop;
    int x_tourelle, y_tourelle, w_tourelle, h_tourelle;
    bool tourelle_active;
    GLuint m_texture_tourelle;
    int x_bouteille, y_bouteille, w_bouteille, h_bouteille;
    GLuint m_texture_bouteille;
    GLuint m_texture_bouteille_eau;
    int x_argent, y_argent, w_argent, h_argent;
    GLuint m_texture_argent_fond;
    GLuint m_texture_argent;
    GLuint m_texture_dollar;
    GLuint m_texture_welldone;
    GLuint m_texture_Piechart_water;
    GLuint m_texture_Piechart_evil;
    GLuint m_texture_Piechart_skin;
    GLuint m_texture_Title_screen;
    GLuint m_texture_loos_screen;
    GLuint m_texture_wave;
    double time;
    double argentGain;
    double waterDepart;
    bool finalWaterLeft;
    std::vector<Weapon*> weapons;
    size_t currentWave;
    bool isInTitleScreen;
    bool isInBetwenWave;
    double timeBeforeNextWave;
    int argent;
    bool loos;
    const double width;
    const double heigth;
    double timeLoos;
    bool continueToPlay;

    // The objects that can collide, their discs in the same order, and the pairs found. Every step begins them anew;
    // until then their pointers may be stale, and nobody follows them. As members they keep their memory from step to
    // step.
    std::vector<Entity*> entitys;
    std::vector<Entity::Disc> discs;
    std::vector<Duo<Entity*, Entity*>> encounters;
};

#endif
