#include "Wave/Wave.h"

#include "Entity/Ennemi.h"
#include "Vecteur/Vecteur2D.h"

#include <algorithm>
#include <cstddef>
#include <vector>

int Wave::ID = 0;


Wave::Wave(const double& timeDiffBetwenSpawn)
    : m_id(ID++), currentPosToSpawnEnnemi(0), timeDiffBetwenSpawn(timeDiffBetwenSpawn) {}


void Wave::addEnnemi(const Ennemi& e, const unsigned int& n) { m_ennemis.insert(m_ennemis.end(), n, e); }


void Wave::spawnEnnemi(const Vecteur2D& pos) {
    if (currentPosToSpawnEnnemi >= m_ennemis.size())
        return;
    Ennemi& next = m_ennemis[currentPosToSpawnEnnemi];
    next.setPosition(pos);
    ennemisInGame.push_back(next);
    ++currentPosToSpawnEnnemi;
}


size_t Wave::getEnnmisNumber() const { return m_ennemis.size(); }


std::vector<Ennemi>& Wave::getEnnemisInGame() { return ennemisInGame; }


double Wave::getTimeDiffBetwenSpawn() const { return timeDiffBetwenSpawn; }


int Wave::getId() const { return m_id; }


bool Wave::isFinish() const {
    return ennemisInGame.size() == m_ennemis.size() &&
           std::none_of(ennemisInGame.begin(), ennemisInGame.end(),
                        [](const Ennemi& ennemi) { return ennemi.getIsActivate(); });
}


void Wave::draw(const double& dt) const {
    for (const Ennemi& ennemi : ennemisInGame)
        ennemi.draw(dt);
}


void Wave::update(const double& dt, const Game& game) {
    for (Ennemi& ennemi : ennemisInGame)
        ennemi.update(dt, game);
}
