#include "Entity/Entity.h"

#include "Game/Game.h"
#include "Vecteur/Vecteur2D.h"
#include "sdlglutils.h"

#include <cmath>
#include <map>
#include <string>

Entity::Entity(const Vecteur2D& position, const bool& _isSolide, const bool& isActivate, double collideBoxWidth,
               double collideBoxHeigth)
    : position(position), _isSolide(_isSolide), collideBoxWidth(collideBoxWidth), collideBoxHeigth(collideBoxHeigth),
      isActivate(isActivate) {}


bool Entity::isSolide() const { return _isSolide; }


bool Entity::getIsActivate() const { return isActivate; }


Vecteur2D Entity::getPos() const { return position; }


Vecteur2D& Entity::getPos() { return position; }


void Entity::setPosition(const Vecteur2D& vect) { position = vect; }


double Entity::distanceTo(const Vecteur2D& point) const { return distanceTo(point[0], point[1]); }


double Entity::distanceTo(double x, double y) const {
    const double dx = position[0] - x;
    const double dy = position[1] - y;
    return std::sqrt(dx * dx + dy * dy);
}


Vecteur2D Entity::getPosCase() const {
    const int column = static_cast<int>(position[0]) / static_cast<int>(Game::largeur_case);
    const int row = static_cast<int>(position[1]) / static_cast<int>(Game::hauteur_case);
    return {static_cast<double>(column), static_cast<double>(row)};
}


void Entity::setPositionCase(const Vecteur2D& vect) {
    position = Vecteur2D(vect.scale(Vecteur2D(Game::largeur_case, Game::hauteur_case)));
}


double Entity::getCollideBoxWidth() const { return collideBoxWidth; }


double Entity::getCollideBoxHeigth() const { return collideBoxHeigth; }


void Entity::setIsSolide(bool solide) { _isSolide = solide; }


bool Entity::isColliding(Entity& entity) const {
    return isSolide() && entity.isSolide() && &entity != this && isActivate && entity.getIsActivate() &&
           discsTouch(getDisc(), entity.getDisc());
}


void Entity::move(double dx, double dy) {
    position[0] += dx;
    position[1] += dy;
}


GLuint Entity::sharedTexture(const char* filename) {
    static std::map<std::string, GLuint> textures;
    const auto known = textures.find(filename);
    if (known != textures.end())
        return known->second;
    return textures[filename] = loadTexture(filename, true);
}


bool Entity::advanceExplosion(const double& dt, double& elapsed, int& frame) {
    constexpr double FIRST_FRAME_HELD = 0.3;
    elapsed += dt;
    return elapsed > FIRST_FRAME_HELD && ++frame >= EXPLOSION_FRAMES;
}
