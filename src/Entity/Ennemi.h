#ifndef ENNEMI_H
#define ENNEMI_H

#include "Entity/Entity.h"
#include "Vecteur/Vecteur2D.h"

#include <SDL_mixer.h>
#include <SDL_opengl.h>

#include <string>

/// A grunt. It walks straight to the tower. Jets take its health; without health it explodes, still walking, and is
/// gone. A grunt that touches the tower, exploding or not, is gone at once and leaves its pollution there.
class Ennemi : public Entity {
public:
    /// At `vect`, with `health` in hit points, `speed` in pixels per second, `polution` in units of water, the
    /// collision radius `w` in pixels, and a name to recognise it by in a debugger. All grunts show the same picture.
    Ennemi(const Vecteur2D& vect, const double& health, const double& speed, const double& polution, const double& w,
           const double& h, const std::string& name);
    Ennemi* copy() const override;

    bool isAlive() const;
    /// Takes health away. At 0 or below the grunt explodes and cries. Quirk: it cries again at every further hit.
    void removeHealth(const double& healthMinus);

    double getHealth() const;
    void setHealth(double newHealth);
    double getSpeed() const;
    void setSpeed(double newSpeed);
    double getPolution() const;
    void setPolution(double newPolution);

    void update(const double& dt, const Game& game) override;
    void draw(const double& dt) const override;

    void collide(Entity* entity) override;
    void onCollideBeam(Beam* entity) override;
    void onCollideEnnemi(Ennemi* entity) override;
    void onCollideTower(Tower* entity) override;

    /// The sounds of its death; audio.cpp loads and frees them.
    static Mix_Chunk* son_explosion;
    static Mix_Chunk* son_grunt;

private:
    /// Turns towards the point (`dx`, `dy`) pixels away.
    void face(double dx, double dy);

    GLuint m_texture;
    int direction;
    int n_sprite;
    double delta_temps;
    GLuint m_explosion;
    int e_sprite;
    bool explose;
    double e_delta_temps;
    bool glitch;
    double health;
    double speed;
    double polution;
    std::string name;
};

#endif
