#ifndef BEAM_H
#define BEAM_H

#include "Entity/Entity.h"
#include "Vecteur/Vecteur2D.h"

#include <SDL_mixer.h>
#include <SDL_opengl.h>

/// A water jet. It flies straight from its turret until it leaves its range and vanishes, or until it touches grunts.
/// Then it hurts each of them once, bursts, and stays as a splash for a moment. Its turret owns it.
class Beam : public Entity {
public:
    /// From `positionOrigine` in the direction `dir`, whose length does not matter. `width` (the collision
    /// radius), `length` and `range` are pixels, `speed` is pixels per second, `damage` is health.
    Beam(const double& width, const double& speed, const double& range, const Vecteur2D& positionOrigine,
         const double& damage, const double& length, const Vecteur2D& dir);
    Beam* copy() const override;

    /// It is within its range, and its splash is not over.
    bool getIsActive() const;
    /// It is no longer active, so its turret deletes it.
    bool isNeedToBeDelete() const;
    bool isSolide() const override;
    /// It has burst, so it hurts nobody any more.
    bool getExplose() const;
    double getDamage() const;
    double getLength() const;
    double getRange() const;
    double getWidth() const;

    void update(const double& dt, const Game& game) override;
    void draw(const double& dt) const override;

    void collide(Entity* entity) override;
    void onCollideBeam(Beam* beam) override;
    void onCollideEnnemi(Ennemi* entity) override;
    void onCollideTower(Tower* tower) override;

    /// The splash; audio.cpp loads and frees it.
    static Mix_Chunk* son_splash;

private:
    double length;
    double width;
    double range;
    double speed;
    Vecteur2D origine;
    double damage;
    bool isActive;
    GLuint m_texture;
    GLuint m_explosion;
    int sprite;
    bool explose;
    double delta_temps;
    Vecteur2D dir;
};

#endif
