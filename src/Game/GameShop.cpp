#include "Game/Game.h"

#include "Entity/Weapon.h"
#include "Vecteur/Vecteur2D.h"
#include "drawing.h"
#include "openglDrawCircle.h"
#include "sound.h"

#include <SDL_opengl.h>

namespace {

// A turret from the shop.
constexpr double WATER_PER_SHOT = 1.0;
constexpr double TURRET_RANGE = 300.0;
constexpr double JET_DAMAGE = 50.0;
constexpr double SECONDS_BETWEEN_SHOTS = 1.0;
constexpr double JET_SIZE = 10.0;
constexpr double JET_SPEED = 80.0;

// How far turrets must stand from the tower and from one another, in pixels.
constexpr double TOO_NEAR_THE_TOWER = 70.0;
constexpr double TOO_NEAR_A_TURRET = 50.0;

// The lower-left corner of the cell that a point lies in. Quirk: turrets stand there, not in the cell's middle.
int snappedX(int x) { return x - x % static_cast<int>(Game::largeur_case); }


int snappedY(int y) { return y - y % static_cast<int>(Game::hauteur_case); }

} // namespace


// Quirk: all edges but the lowest belong to the button.
bool Game::aCliqueTourelle(const int& x, const int& y) {
    return x >= x_tourelle && x <= x_tourelle + w_tourelle && y > y_tourelle && y <= y_tourelle + h_tourelle;
}


bool Game::tourelleActivite() const { return tourelle_active; }


void Game::activeTourelle() { tourelle_active = true; }


void Game::desactiveTourelle() { tourelle_active = false; }


void Game::poserTourelle(const int& x, const int& y) {
    const int cx = snappedX(x);
    const int cy = snappedY(y);
    const Vecteur2D weaponPlace(cx, cy);
    // Quirk: only the tower and other turrets are in the way, neither panels nor the edge of the window.
    bool conflict = m_tower.distanceTo(weaponPlace) < TOO_NEAR_THE_TOWER;
    for (const Weapon* w : weapons)
        conflict = conflict || w->distanceTo(weaponPlace) < TOO_NEAR_A_TURRET;
    if (conflict || argent - Weapon::price < 0)
        return;

    addWeapon(Weapon(weaponPlace, "", WATER_PER_SHOT, TURRET_RANGE, TURRET_RANGE, JET_DAMAGE, SECONDS_BETWEEN_SHOTS,
                     JET_SIZE, JET_SIZE, JET_SPEED));
    argent -= Weapon::price;
    playSound(Weapon::son_construct);
}


// Quirk: the preview is shown even where the turret can't be placed, or can't be paid for.
void Game::dessinerTourelleGrisee(const int& x, const int& y) const {
    constexpr double t = Weapon::SIZE_IN_CELLS;
    constexpr double w = t * largeur_case;
    constexpr double h = t * hauteur_case;
    const double cx = snappedX(x) - w / 2;
    const double cy = snappedY(y) - h / 2;
    constexpr double PREVIEW_ALPHA = 0.4;
    glColor4d(1, 1, 1, PREVIEW_ALPHA);
    drawTexturedQuad(m_texture_tourelle, cx, cy, w, h);
    openglDrawCircle(cx + w / 2, cy + h / 2, TURRET_RANGE, DISC_SEGMENTS);
    glColor4d(1, 1, 1, 1);
}
