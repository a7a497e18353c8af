#include "Game/Game.h"

#include "drawing.h"
#include "openglDrawCircle.h"
#include "sound.h"

#include <SDL_opengl.h>

namespace {

// A turret as the shop builds it.
constexpr double WATER_PER_SHOT = 1.0;
constexpr double TURRET_RANGE = 300.0;
constexpr double JET_DAMAGE = 50.0;
constexpr double SECONDS_BETWEEN_SHOTS = 1.0;
constexpr double JET_SIZE = 10.0;
constexpr double JET_SPEED = 80.0;

// How close to the tower and to one another turrets may stand.
constexpr double TOO_NEAR_THE_TOWER = 70.0;
constexpr double TOO_NEAR_A_TURRET = 50.0;

// How finely the discs of the ranges are drawn.
constexpr unsigned int DISC_SEGMENTS = 40;

// The lower-left corner of the cell that a point lies in.
int snappedX(int x) { return x - x % static_cast<int>(Game::largeur_case); }


int snappedY(int y) { return y - y % static_cast<int>(Game::hauteur_case); }

} // namespace


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


void Game::dessinerTourelleGrisee(const int& x, const int& y) const {
    constexpr double t = 2.0;
    constexpr double w = t * largeur_case;
    constexpr double h = t * hauteur_case;
    const double cx = snappedX(x) - w / 2;
    const double cy = snappedY(y) - h / 2;
    glColor4d(1, 1, 1, 0.4);
    drawTexturedQuad(m_texture_tourelle, cx, cy, w, h);
    openglDrawCircle(Vecteur2D(cx + w / 2, cy + h / 2), TURRET_RANGE, DISC_SEGMENTS);
    glColor4d(1, 1, 1, 1);
}


void Game::drawGUI(const double& dt, const int& /*x*/, const int& /*y*/) const {
    glColor4d(1, 1, 1, 1);
    drawTexturedQuad(m_texture_shop, x_shop, y_shop, w_shop, h_shop);
    drawTexturedQuad(m_texture_tourelle, x_tourelle, y_tourelle, w_tourelle, h_tourelle);
    drawGauge();
    drawTexturedQuad(m_texture_argent_fond, x_argent, y_argent, w_argent, h_argent);
    afficherArgent(dt);
}


void Game::drawGauge() const {
    // The bottle's picture is TEXELS high; its liquid stands between the rows y1, when it is empty, and y2.
    constexpr double TEXELS = 1024.0;
    const double y1 = 144.0;
    double y2 = 803.0;
    const auto drawContentUpTo = [this](double row) {
        drawTexturedQuad(m_texture_bouteille_eau, x_bouteille, y_bouteille, w_bouteille, h_bouteille * row / TEXELS,
                         {0.0, 0.0, 1.0, row / TEXELS});
    };

    double r = m_tower.getWater() / m_tower.getCapacity();
    double py = (y2 - y1) * r + y1;
    glColor4d(0, 0, 1, 1);
    drawContentUpTo(py);

    // The polluted share of the water stands at its bottom; an empty tank has none.
    if (m_tower.getWater() > 0.0) {
        y2 = py;
        r = m_tower.getRatio();
        py = (y2 - y1) * r + y1;
        glColor4d(1, 0, 0, 1);
        drawContentUpTo(py);
    }

    glColor4d(1, 1, 1, 1);
    drawTexturedQuad(m_texture_bouteille, x_bouteille, y_bouteille, w_bouteille, h_bouteille);
}


void Game::afficherArgent(const double& /*dt*/) const {
    glColor4d(1, 1, 1, 1);
    drawMoney(argent);
}


void Game::afficherArgentGain(const double& /*dt*/) const { drawMoney(static_cast<int>(argentGain)); }


void Game::drawMoney(int amount) const {
    constexpr int DIGITS = 6;
    constexpr double f = 2.4;
    constexpr double w = 32 / f;
    constexpr double h = 64 / f;
    glPushMatrix();
    glTranslated(964, 698, 0);
    drawDigits(m_texture_argent, amount, DIGITS, w, h);
    drawTexturedQuad(m_texture_dollar, -(DIGITS + 1) * w, 0, 64 / f, h);
    glPopMatrix();
}
