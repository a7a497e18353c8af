#include "Entity/Weapon.h"

#include "Entity/Beam.h"
#include "Entity/Ennemi.h"
#include "Entity/Entity.h"
#include "Entity/Tower.h"
#include "Game/Game.h"
#include "Vecteur/Vecteur2D.h"
#include "drawing.h"
#include "sound.h"
#include "utility/utility.h"

#include <SDL_mixer.h>
#include <SDL_opengl.h>

#include <cstddef>
#include <string>
#include <vector>

namespace {

constexpr double COLLIDE_RADIUS = 30.0;

} // namespace


Mix_Chunk* Weapon::son_stream = nullptr;
Mix_Chunk* Weapon::son_construct = nullptr;


Weapon::Weapon(const Vecteur2D& vect, const std::string& /*path*/, const double& waterConsume, const double& radius,
               const double& beamRadius, const double& damage, const double& shotCoolldowmnTime,
               const double& beamLength, const double& beamWidth, const double& beamSpeed)
    : Entity(vect, false, true, COLLIDE_RADIUS, COLLIDE_RADIUS),
      m_texture(sharedTexture("Assets/img/WaterTurret_64x64.PNG")), waterConsume(waterConsume), radius(radius),
      beamRadius(beamRadius), damage(damage), beamWidth(beamWidth), shotCoolldowmnTime(shotCoolldowmnTime),
      cooldownStatue(0.0), beamLength(beamLength), beamSpeed(beamSpeed) {}


Weapon::Weapon(const Weapon& w)
    : Entity(w.getPosition(), w.isSolide(), w.getIsActivate(), w.getCollideBoxWidth(), w.getCollideBoxHeigth()),
      m_texture(w.m_texture), waterConsume(w.waterConsume), radius(w.radius), beamRadius(w.beamRadius),
      damage(w.damage), beamWidth(w.beamWidth), shotCoolldowmnTime(w.shotCoolldowmnTime),
      cooldownStatue(w.cooldownStatue), beamLength(w.beamLength), beamSpeed(w.beamSpeed) {}


Weapon::~Weapon() { deletePointerInVector(beams); }


Weapon* Weapon::copy() const { return new Weapon(*this); }


bool Weapon::shoot(Vecteur2D pos, Tower& tower) {
    const bool allowed = cooldownStatue <= 0.0 && distanceTo(pos) <= radius && tower.canRemoveWater(waterConsume);
    if (!allowed)
        return false;

    cooldownStatue = shotCoolldowmnTime;
    tower.removeWater(waterConsume);
    // Quirk: a jet aimed at its own turret stays there until it touches a grunt.
    const Vecteur2D direction(pos - getPos());
    beams.push_back(new Beam(beamWidth, beamSpeed, beamRadius, getPos(), damage, beamLength, direction));
    playSound(son_stream);
    return true;
}


const std::vector<Beam*>& Weapon::getBeams() const { return beams; }


double Weapon::getRadius() const { return radius; }


double Weapon::getBeamRadius() const { return beamRadius; }


double Weapon::getWaterConsume() const { return waterConsume; }


double Weapon::getDamage() const { return damage; }


void Weapon::update(const double& time, const Game& game) {
    if (cooldownStatue > 0.0)
        cooldownStatue -= time;

    for (Beam*& beam : beams) {
        beam->update(time, game);
        if (beam->isNeedToBeDelete()) {
            delete beam;
            beam = nullptr;
        }
    }

    // Close the gaps: the last jet moves into each gap and is checked next.
    for (size_t i = 0; i < beams.size();) {
        if (beams[i] == nullptr)
            removeInVectorFromPosNoOrder(beams, i);
        else
            ++i;
    }
}


void Weapon::draw(const double& time) const {
    const Vecteur2D& pos = getPosition();
    const double x = pos[0];
    const double y = pos[1];
    constexpr double t = SIZE_IN_CELLS;
    constexpr double tx = Game::largeur_case;
    constexpr double ty = Game::hauteur_case;

    glPushMatrix();
    glTranslated(-t * tx / 2, -t * ty / 2, 0);
    drawTexturedQuad(m_texture, x, y, t * tx, t * ty);
    glPopMatrix();

    for (const Beam* beam : beams)
        beam->draw(time);
}


void Weapon::collide(Entity* /*entity*/) {}


void Weapon::onCollideBeam(Beam* /*beam*/) {}


void Weapon::onCollideEnnemi(Ennemi* /*ennemi*/) {}


void Weapon::onCollideTower(Tower* /*tower*/) {}
