#ifndef ENTITY_H
#define ENTITY_H

#include "Vecteur/Vecteur2D.h"

#include <SDL_opengl.h>

#include <cmath>

class Beam;
class Ennemi;
class Game;
class Tower;

/// An object that stands in the play field. Two solid and active objects collide when their discs overlap;
/// the first then tells the second what it is (collide), and the second answers (onCollide...).
class Entity {
public:
    /// At `position` (pixels). Quirk: `collideBoxWidth` is the radius of the collision disc in pixels, and
    /// `collideBoxHeigth` is only reported.
    Entity(const Vecteur2D& position, const bool& _isSolide, const bool& isActivate, double collideBoxWidth,
           double collideBoxHeigth);
    Entity(const Entity& entity) = default;
    Entity& operator=(const Entity& entity) = default;

    // What every kind of object does in its own way.

    /// Tells `entity` what touched it: this object.
    virtual void collide(Entity* entity) = 0;
    /// `dt` is the frame period in milliseconds, which no object needs.
    virtual void draw(const double& dt) const = 0;
    /// One step of `dt` seconds.
    virtual void update(const double& dt, const Game& game) = 0;
    virtual void onCollideBeam(Beam* beam) = 0;
    virtual void onCollideEnnemi(Ennemi* ennemi) = 0;
    virtual void onCollideTower(Tower* tower) = 0;
    virtual ~Entity() = default;
    /// A copy of the object's own class, owned by the caller.
    virtual Entity* copy() const = 0;
    /// Takes part in collisions at all.
    virtual bool isSolide() const;
    /// Still in play; what has left play never comes back.
    virtual bool getIsActivate() const;

    /// The position in pixels from the window's lower-left corner.
    Vecteur2D getPos() const;
    Vecteur2D& getPos();
    void setPosition(const Vecteur2D& vect);
    /// The position itself, for callers in every step or frame: a copy would allocate.
    const Vecteur2D& getPosition() const { return position; }

    /// The distance to a point in pixels.
    double distanceTo(const Vecteur2D& point) const;
    double distanceTo(double x, double y) const;

    /// The column and row of the cell at the position, with the fraction cut off: -31 is in cell 0.
    Vecteur2D getPosCase() const;
    /// Moves to the lower-left corner of the cell with the column and row `vect`.
    void setPositionCase(const Vecteur2D& vect);

    double getCollideBoxWidth() const;
    double getCollideBoxHeigth() const;
    void setIsSolide(bool solide);

    // What decides about collisions.

    /// Takes part in the collisions of this step: solid and in play.
    bool canCollide() const { return isSolide() && getIsActivate(); }
    /// What decides whether a pair touches: centre and radius, in pixels. A step compares every pair of objects, so
    /// this allocates nothing.
    struct Disc {
        double x, y, radius;
    };
    Disc getDisc() const { return {position[0], position[1], collideBoxWidth}; }
    /// The discs of two objects overlap; touching at one point only does not count.
    static bool discsTouch(const Disc& one, const Disc& other) {
        const double dx = other.x - one.x;
        const double dy = other.y - one.y;
        return one.radius + other.radius > std::sqrt(dx * dx + dy * dy);
    }
    /// Two different objects that both take part in collisions, and whose discs touch.
    bool isColliding(Entity& entity) const;

private:
    Vecteur2D position;
    bool _isSolide;
    double collideBoxWidth;
    double collideBoxHeigth;

protected:
    bool isActivate;

    /// Moves by (`dx`, `dy`) pixels.
    void move(double dx, double dy);

    /// The texture of a picture that many objects show. Its file is read only once while the program runs. If it can't
    /// be loaded, the answer stays 0.
    static GLuint sharedTexture(const char* filename);

    // What jets and grunts share when they burst: one sheet with a row for each of them, of eight frames.

    static constexpr const char* EXPLOSION_PICTURE = "Assets/img/VorelDefense_explosions_64.png";
    static constexpr int EXPLOSION_FRAMES = 8;

    /// Advances a burst by `dt` seconds: its first frame is held for a time. Quirk: then every step
    /// shows the next one, however long the step is. `elapsed` is the time since the burst, in seconds. Returns whether
    /// the burst is over.
    static bool advanceExplosion(const double& dt, double& elapsed, int& frame);
};

#endif
