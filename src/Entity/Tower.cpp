#include "Entity/Tower.h"

#include "Entity/Ennemi.h"
#include "Entity/Entity.h"
#include "Game/Game.h"
#include "Vecteur/Vecteur2D.h"
#include "drawing.h"
#include "sdlglutils.h"

#include <SDL_opengl.h>

#include <algorithm>

namespace {

constexpr double FULL_TANK = 100.0;
constexpr double COLLIDE_RADIUS = 30.0;

} // namespace


Tower::Tower(const Vecteur2D& vect)
    : Entity(vect, true, true, COLLIDE_RADIUS, COLLIDE_RADIUS), m_water(FULL_TANK), m_capacity(FULL_TANK),
      m_pollution(0.0), m_texture_eau(loadTexture("Assets/img/VorelTower_water_128.PNG", true)),
      m_texture_fond(loadTexture("Assets/img/VorelTower_back_128.PNG", true)),
      m_texture_devant(loadTexture("Assets/img/VorelTower_front_128.PNG", true)) {}


Tower* Tower::copy() const { return new Tower(*this); }


double Tower::getWater() const { return m_water; }


double Tower::getCapacity() const { return m_capacity; }


double Tower::getPollution() const { return m_pollution; }


double Tower::getPureWaterLeft() const { return m_water - m_pollution; }


double Tower::getRatio() const { return m_water > 0.0 ? m_pollution / m_water : 0.0; }


bool Tower::canRemoveWater(const double& water) const { return getPureWaterLeft() >= water; }


void Tower::removeWater(const double& water) { m_water = std::max(m_water - water, 0.0); }


void Tower::refil(const double& water) { m_water = std::min(m_water + water, m_capacity); }


void Tower::addPollution(const double& pollution) {
    m_pollution += pollution;
    if (m_pollution > m_water)
        m_pollution = m_water;
    else if (m_pollution < 0.0)
        m_pollution = 0.0;
}


void Tower::removePollution() { m_pollution = 0.0; }


void Tower::update(const double& /*dt*/, const Game& /*game*/) {}


void Tower::draw(const double& /*dt*/) const {
    const Vecteur2D& pos = getPosition();
    const int x = static_cast<int>(pos[0]);
    const int y = static_cast<int>(pos[1]);
    constexpr double tx = Game::largeur_case;
    constexpr double ty = Game::hauteur_case;
    constexpr double t = 4.0; // the side of the square pictures, in cells

    glPushMatrix();
    glTranslated(-t * tx / 2, -t * ty / 2, 0);
    glColor4d(1, 1, 1, 1);
    drawTexturedQuad(m_texture_fond, x, y, t * tx, t * ty);

    // The water turns red with pollution. Quirk: its picture is not cut but squeezed, towards the row this far above
    // the bottom.
    constexpr double posy = 62.0;
    const double factor = m_water / m_capacity;
    const double decallage = (1 - factor) * posy;
    glColor4d(1, 1 - getRatio(), 1 - getRatio(), 1);
    drawTexturedQuad(m_texture_eau, x, y + decallage, t * tx, factor * t * ty);

    glColor4d(1, 1, 1, 1);
    drawTexturedQuad(m_texture_devant, x, y, t * tx, t * ty);
    glPopMatrix();
}


void Tower::collide(Entity* entity) { entity->onCollideTower(this); }


void Tower::onCollideBeam(Beam* /*entity*/) {}


void Tower::onCollideEnnemi(Ennemi* entity) { addPollution(entity->getPolution()); }


void Tower::onCollideTower(Tower* /*entity*/) {}
