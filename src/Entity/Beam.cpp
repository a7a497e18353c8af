#include "Entity/Beam.h"

#include "Entity/Ennemi.h"
#include "Entity/Entity.h"
#include "Entity/Tower.h"
#include "Game/Game.h"
#include "Vecteur/Vecteur2D.h"
#include "drawing.h"
#include "sound.h"

#include <SDL_mixer.h>
#include <SDL_opengl.h>

Mix_Chunk* Beam::son_splash = nullptr;


Beam::Beam(const double& width, const double& speed, const double& range, const Vecteur2D& positionOrigine,
           const double& damage, const double& length, const Vecteur2D& dir)
    : Entity(positionOrigine, true, true, width, length), length(length), width(width), range(range), speed(speed),
      origine(positionOrigine), damage(damage), isActive(true),
      m_texture(sharedTexture("Assets/img/VorelDefence_projectile.PNG")), m_explosion(sharedTexture(EXPLOSION_PICTURE)),
      sprite(0), explose(false), delta_temps(0.0), dir(dir) {}


Beam* Beam::copy() const { return new Beam(*this); }


bool Beam::getIsActive() const { return isActive && distanceTo(origine) <= range; }


bool Beam::isNeedToBeDelete() const { return !getIsActive(); }


bool Beam::isSolide() const { return Entity::isSolide() && getIsActive(); }


bool Beam::getExplose() const { return explose; }


double Beam::getDamage() const { return damage; }


double Beam::getLength() const { return length; }


double Beam::getRange() const { return range; }


double Beam::getWidth() const { return width; }


void Beam::update(const double& dt, const Game& /*game*/) {
    // Along the direction, scaled to length 1. A jet without a direction stays where it is.
    const double n = dir.norme();
    if (getIsActive() && !explose && n != 0.0)
        move(dir[0] * (1.0 / n) * dt * speed, dir[1] * (1.0 / n) * dt * speed);

    if (explose && advanceExplosion(dt, delta_temps, sprite))
        isActive = false;
}


void Beam::draw(const double& /*dt*/) const {
    if (!getIsActive())
        return;

    const double x = getPosition()[0];
    const double y = getPosition()[1];
    constexpr double t = 0.3; // the side of the square picture, in cells
    constexpr double tx = Game::largeur_case;
    constexpr double ty = Game::hauteur_case;

    // The picture points to the right; turn it to the direction of flight. Quirk: before the turn its lower-left
    // corner, not its middle, is at the jet's position.
    glPushMatrix();
    const double angle = dir.getAngle();
    glTranslated(x + width / 2, y + length / 2, 0);
    glRotated(angle, 0, 0, 1);
    glTranslated(-x - width / 2, -y - length / 2, 0);

    if (explose) {
        // The splash is larger than the jet, and its row of the sheet is the lower one. Quirk: it is not centred on the
        // jet: it shares the jet's lower-left corner, and turns with it.
        constexpr double f = 4.0;
        const double cx = static_cast<double>(sprite) / EXPLOSION_FRAMES;
        drawTexturedQuad(m_explosion, x, y, f * t * tx, f * t * ty, {cx, 0.0, cx + 1.0 / EXPLOSION_FRAMES, 0.5});
    } else {
        drawTexturedQuad(m_texture, x, y, t * tx, t * ty);
    }

    glColor4d(1, 1, 1, 1);
    glPopMatrix();
}


void Beam::collide(Entity* entity) { entity->onCollideBeam(this); }


void Beam::onCollideBeam(Beam* /*beam*/) {}


// The grunt takes the damage itself; the jet only bursts, once.
void Beam::onCollideEnnemi(Ennemi* /*entity*/) {
    if (!explose)
        playSound(son_splash);
    explose = true;
}


void Beam::onCollideTower(Tower* /*tower*/) {}
