#ifndef TOWER_H
#define TOWER_H

#include "Entity/Entity.h"
#include "Vecteur/Vecteur2D.h"

#include <SDL_opengl.h>

/// The water tower that the player defends. Every shot is paid from its tank, and every grunt that arrives pollutes it.
/// Water and pollution are counted in units. Pollution is part of the water; only the rest, the pure water, can be
/// spent.
class Tower : public Entity {
public:
    /// A full, clean tower centred on `vect`. Loads the tower's pictures.
    Tower(const Vecteur2D& vect);
    Tower* copy() const override;

    double getWater() const;
    double getCapacity() const;
    double getPollution() const;
    double getPureWaterLeft() const;
    /// The polluted share of the water, from 0 to 1; 0 for an empty tank.
    double getRatio() const;

    /// Whether there is that much pure water.
    bool canRemoveWater(const double& water) const;
    /// Takes water out, down to an empty tank. Quirk: pollution stays in the tank and may then exceed the water. Ask
    /// canRemoveWater first.
    void removeWater(const double& water);
    /// Fills water in, up to the capacity.
    void refil(const double& water);
    /// Turns that much of the water into pollution, at most all of it.
    void addPollution(const double& pollution);
    void removePollution();

    void update(const double& dt, const Game& game) override;
    void draw(const double& dt) const override;

    void collide(Entity* entity) override;
    void onCollideBeam(Beam* entity) override;
    void onCollideEnnemi(Ennemi* entity) override;
    void onCollideTower(Tower* entity) override;

protected:
    double m_water;
    double m_capacity;
    double m_pollution;
    GLuint m_texture_eau;
    GLuint m_texture_fond;
    GLuint m_texture_devant;
};

#endif
