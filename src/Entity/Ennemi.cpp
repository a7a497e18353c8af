#include "Entity/Ennemi.h"

#include "Entity/Beam.h"
#include "Entity/Entity.h"
#include "Entity/Tower.h"
#include "Game/Game.h"
#include "Vecteur/Vecteur2D.h"
#include "drawing.h"
#include "sound.h"

#include <SDL_mixer.h>
#include <SDL_opengl.h>

#include <cmath>
#include <cstdlib>
#include <string>

namespace {

// The sheet of walking grunts: a column for each frame, a row for each facing, from the top.
constexpr int WALK_FRAMES = 4;
constexpr int FACINGS = 4;
enum Facing { RIGHT, UP, LEFT, DOWN };
constexpr double SECONDS_PER_WALK_FRAME = 0.1666;

// Headings, in degrees, on which a grunt changes its facing.
constexpr double EIGHTH_TURN = 45.0;
constexpr double THREE_EIGHTHS_TURN = 135.0;

// Quirk: this many of a hundred deaths show the wrong picture.
constexpr int GLITCHES_PER_HUNDRED = 19;

} // namespace


Mix_Chunk* Ennemi::son_explosion = nullptr;
Mix_Chunk* Ennemi::son_grunt = nullptr;


Ennemi::Ennemi(const Vecteur2D& vect, const double& health, const double& speed, const double& polution,
               const double& w, const double& h, const std::string& name)
    : Entity(vect, true, true, w, h), m_texture(sharedTexture("Assets/img/VorelDefense_grunts.PNG")), direction(RIGHT),
      n_sprite(0), delta_temps(0.0), m_explosion(sharedTexture(EXPLOSION_PICTURE)), e_sprite(0), explose(false),
      e_delta_temps(0.0), glitch(false), health(health), speed(speed), polution(polution), name(name) {}


Ennemi* Ennemi::copy() const { return new Ennemi(*this); }


bool Ennemi::isAlive() const { return health > 0.0; }


void Ennemi::removeHealth(const double& healthMinus) {
    health -= healthMinus;
    if (isAlive())
        return;

    // Quirk: every further hit makes it cry again, and throws the dice for its picture again.
    playSound(son_explosion);
    playSound(son_grunt);
    glitch = std::rand() % 100 >= 100 - GLITCHES_PER_HUNDRED;
    explose = true;
}


double Ennemi::getHealth() const { return health; }


void Ennemi::setHealth(double newHealth) { health = newHealth; }


double Ennemi::getSpeed() const { return speed; }


void Ennemi::setSpeed(double newSpeed) { speed = newSpeed; }


double Ennemi::getPolution() const { return polution; }


void Ennemi::setPolution(double newPolution) { polution = newPolution; }


void Ennemi::update(const double& dt, const Game& game) {
    // Up to 300 grunts pass here in a step of wave 101, so nothing here allocates. Quirk: grunts that are gone walk on
    // unseen.
    const Vecteur2D& pos = getPosition();
    const Vecteur2D& goal = game.getTower().getPosition();
    const double dx = goal[0] - pos[0];
    const double dy = goal[1] - pos[1];

    // Quirk: an exploding grunt walks on, and still pollutes the tower if it reaches it.
    const double d = std::sqrt(dx * dx + dy * dy);
    if (d != 0.0)
        move(dx * (1.0 / d) * speed * dt, dy * (1.0 / d) * speed * dt);

    delta_temps += dt;
    if (delta_temps >= SECONDS_PER_WALK_FRAME) {
        delta_temps = 0.0;
        n_sprite = (n_sprite + 1) % WALK_FRAMES;
    }

    if (explose && advanceExplosion(dt, e_delta_temps, e_sprite))
        isActivate = false;

    face(goal[0] - pos[0], goal[1] - pos[1]); // from its new place, to which `pos` refers
}


void Ennemi::face(double dx, double dy) {
    const double alpha = Vecteur2D::normaliserAngle(Vecteur2D::angleOf(dx, dy));
    if (-EIGHTH_TURN < alpha && alpha < EIGHTH_TURN)
        direction = RIGHT;
    else if (EIGHTH_TURN < alpha && alpha < THREE_EIGHTHS_TURN)
        direction = UP;
    else if (alpha > THREE_EIGHTHS_TURN || alpha < -THREE_EIGHTHS_TURN)
        direction = LEFT;
    else
        direction = DOWN; // Quirk: exact diagonals face down too.
}


void Ennemi::draw(const double& /*dt*/) const {
    if (!isActivate)
        return;

    const Vecteur2D& pos = getPosition();
    const double x = pos[0];
    const double y = pos[1];
    constexpr double t = 1.0; // the side of a walking grunt's square picture, in cells
    constexpr double tx = Game::largeur_case;
    constexpr double ty = Game::hauteur_case;

    glPushMatrix();
    if (!explose) {
        // The margins keep the neighbouring frames of the sheet out.
        constexpr double SIDE_MARGIN = 0.001;
        constexpr double BOTTOM_MARGIN = 0.01;
        constexpr double TOP_MARGIN = 0.003;
        const double cx = static_cast<double>(n_sprite) / WALK_FRAMES;
        const double r = 1 - static_cast<double>(direction) / FACINGS;
        glTranslated(-t * tx / 2, -t * ty / 2, 0);
        drawTexturedQuad(m_texture, x, y, t * tx, t * ty,
                         {cx + SIDE_MARGIN, r - 1.0 / FACINGS + BOTTOM_MARGIN, cx + 1.0 / WALK_FRAMES - SIDE_MARGIN,
                          r - TOP_MARGIN});
    } else {
        // The explosion's row of its sheet is the upper one. A glitch cuts the same part out of the wrong sheet, that
        // of walking grunts, and does not enlarge it.
        constexpr double EXPLOSION_ENLARGED = 3.0;
        const double f = glitch ? 1.0 : EXPLOSION_ENLARGED;
        const double cx = static_cast<double>(e_sprite) / EXPLOSION_FRAMES;
        glTranslated(-f * t * tx / 2, -f * t * ty / 2, 0);
        drawTexturedQuad(glitch ? m_texture : m_explosion, x, y, f * t * tx, f * t * ty,
                         {cx, 0.5, cx + 1.0 / EXPLOSION_FRAMES, 1.0});
    }
    glColor4d(1, 1, 1, 1);
    glPopMatrix();
}


void Ennemi::collide(Entity* entity) { entity->onCollideEnnemi(this); }


void Ennemi::onCollideBeam(Beam* entity) {
    if (!entity->getExplose())
        removeHealth(entity->getDamage());
}


void Ennemi::onCollideEnnemi(Ennemi* /*entity*/) {}


void Ennemi::onCollideTower(Tower* /*entity*/) { isActivate = false; }
