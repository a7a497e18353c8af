#include "Game/Game.h"

#include "openglDrawCircle.h"
#include "sdlglutils.h"

namespace {

// A turret as the shop builds it.
constexpr double waterPerShot = 1.0;
constexpr double turretRange = 300.0;
constexpr double jetDamage = 50.0;
constexpr double secondsBetweenShots = 1.0;
constexpr double jetSize = 10.0;
constexpr double jetSpeed = 80.0;

// How close to the tower and to one another turrets may stand.
constexpr double tooNearTheTower = 70.0;
constexpr double tooNearATurret = 50.0;

// The lower-left corner of the cell that a coordinate lies in.
int snapped(int coordinate) { return coordinate - coordinate % static_cast<int>(Game::largeur_case); }

} // namespace


bool Game::aCliqueTourelle(const int& x, const int& y) {
    return x >= x_tourelle && x <= x_tourelle + w_tourelle && y > y_tourelle && y <= y_tourelle + h_tourelle;
}


bool Game::tourelleActivite() const { return tourelle_active; }


void Game::activeTourelle() { tourelle_active = true; }


void Game::desactiveTourelle() { tourelle_active = false; }


void Game::poserTourelle(const int& x, const int& y) {
    const Vecteur2D weaponPlace(snapped(x), snapped(y));
    bool conflict = m_tower.distanceTo(weaponPlace) < tooNearTheTower;
    for (const Weapon* w : weapons)
        conflict = conflict || w->distanceTo(weaponPlace) < tooNearATurret;
    if (conflict || argent - Weapon::price < 0)
        return;

    addWeapon(Weapon(weaponPlace, "", waterPerShot, turretRange, turretRange, jetDamage, secondsBetweenShots, jetSize,
                     jetSize, jetSpeed));
    argent -= Weapon::price;
    playSound(Weapon::son_construct);
}


void Game::dessinerTourelleGrisee(const int& x, const int& y) const {
    constexpr double t = 2.0;
    constexpr double w = t * largeur_case;
    constexpr double h = t * hauteur_case;
    const double cx = snapped(x) - w / 2;
    const double cy = snapped(y) - h / 2;
    glColor4d(1, 1, 1, 0.4);
    drawTexturedQuad(m_texture_tourelle, cx, cy, w, h);
    openglDrawCircle(Vecteur2D(cx + w / 2, cy + h / 2), turretRange, 40);
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
    // The bottle's picture is 1024 texels high; its liquid stands between these two rows.
    constexpr double texels = 1024.0;
    constexpr double full = 803.0;
    constexpr double empty = 144.0;
    const auto drawContentUpTo = [this](double py) {
        drawTexturedQuad(m_texture_bouteille_eau, x_bouteille, y_bouteille, w_bouteille, h_bouteille * py / texels,
                         {0.0, 0.0, 1.0, py / texels});
    };

    const double water = (full - empty) * (m_tower.getWater() / m_tower.getCapacity()) + empty;
    glColor4d(0, 0, 1, 1);
    drawContentUpTo(water);

    // The polluted share of the water stands at its bottom; an empty tank has none.
    if (m_tower.getWater() > 0.0) {
        glColor4d(1, 0, 0, 1);
        drawContentUpTo((water - empty) * m_tower.getRatio() + empty);
    }

    glColor4d(1, 1, 1, 1);
    drawTexturedQuad(m_texture_bouteille, x_bouteille, y_bouteille, w_bouteille, h_bouteille);
}


void Game::afficherArgent(const double& /*dt*/) const {
    glColor4d(1, 1, 1, 1);
    drawMoney(argent);
    glColor4d(1, 1, 1, 1);
}


void Game::afficherArgentGain(const double& /*dt*/) const { drawMoney(static_cast<int>(argentGain)); }


void Game::drawMoney(int amount) const {
    constexpr int digits = 6;
    constexpr double f = 2.4;
    constexpr double w = 32 / f;
    constexpr double h = 64 / f;
    glPushMatrix();
    glTranslated(964, 698, 0);
    drawDigits(m_texture_argent, amount, digits, w, h);
    drawTexturedQuad(m_texture_dollar, -(digits + 1) * w, 0, 64 / f, h);
    glPopMatrix();
}
