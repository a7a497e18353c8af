#ifndef WEAPON_H
#define WEAPON_H

#include "Entity/Entity.h"
#include "Vecteur/Vecteur2D.h"

#include <SDL_mixer.h>
#include <SDL_opengl.h>

#include <string>
#include <vector>

/// A water turret. It never collides. Told to fire, it pays for one jet with water from the tower, if it is ready, the
/// target is in range and there is enough pure water. It owns its jets in flight.
class Weapon : public Entity {
public:
    /// Centred on `vect`. A shot takes `waterConsume` units of water; then the turret rests for `shotCoolldowmnTime`
    /// seconds. A target may be up to `radius` pixels away. The jets get `beamRadius` (range), `beamLength` and
    /// `beamWidth` in pixels, `beamSpeed` in pixels per second and `damage` in health. Quirk: `path` is not used.
    /// There is one kind of turret, so its picture is named in the constructor.
    Weapon(const Vecteur2D& vect, const std::string& path, const double& waterConsume, const double& radius,
           const double& beamRadius, const double& damage, const double& shotCoolldowmnTime, const double& beamLength,
           const double& beamWidth, const double& beamSpeed);
    /// A turret like `w`, with the same time left to rest, but without jets: those stay with `w`.
    Weapon(const Weapon& w);
    Weapon& operator=(const Weapon& w) = delete;
    ~Weapon() override;
    Weapon* copy() const override;

    /// Fires one jet at `pos`, paid from `tower`, if allowed. Returns whether it fired.
    bool shoot(Vecteur2D pos, Tower& tower);

    /// The jets in flight, none of them null.
    const std::vector<Beam*>& getBeams() const;
    double getRadius() const;
    double getBeamRadius() const;
    double getWaterConsume() const;
    double getDamage() const;

    void update(const double& time, const Game& game) override;
    void draw(const double& time) const override;

    void collide(Entity* entity) override;
    void onCollideBeam(Beam* beam) override;
    void onCollideEnnemi(Ennemi* ennemi) override;
    void onCollideTower(Tower* tower) override;

    /// The price of a turret in the shop, on whose panel it is also painted.
    static constexpr int price = 1000;
    /// The side of its square picture, in cells.
    static constexpr double SIZE_IN_CELLS = 2.0;
    /// The sounds of a shot and of a turret being built; audio.cpp loads and frees them.
    static Mix_Chunk* son_stream;
    static Mix_Chunk* son_construct;

private:
    GLuint m_texture;
    double waterConsume;
    double radius;
    double beamRadius;
    double damage;
    const double beamWidth;
    double shotCoolldowmnTime;
    std::vector<Beam*> beams;
    double cooldownStatue;
    double beamLength;
    double beamSpeed;
};

#endif
