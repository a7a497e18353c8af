#ifndef WAVE_H
#define WAVE_H

#include "Entity/Ennemi.h"
#include "Vecteur/Vecteur2D.h"

#include <cstddef>
#include <vector>

class Game;

/// One attack: a roster of grunts that are released one by one, and those released so far.
class Wave {
public:
    /// An empty wave that releases one grunt every `timeDiffBetwenSpawn` seconds, all at once for 0.
    Wave(const double& timeDiffBetwenSpawn);
    Wave(const Wave& wave) = default;
    Wave& operator=(const Wave& wave) = default;
    Wave(Wave&& wave) = default;
    Wave& operator=(Wave&& wave) = default;
    virtual ~Wave() = default;

    /// Appends `n` copies of `e` to the roster.
    void addEnnemi(const Ennemi& e, const unsigned int& n);
    /// Releases the next grunt of the roster at `pos` (pixels), if there is one left. Invalidates pointers to
    /// released grunts.
    void spawnEnnemi(const Vecteur2D& pos);

    /// The size of the roster: grunts that have been released count too.
    size_t getEnnmisNumber() const;
    /// The grunts released so far, gone ones included.
    std::vector<Ennemi>& getEnnemisInGame();
    /// Seconds between two releases.
    double getTimeDiffBetwenSpawn() const;
    /// The number of waves built before this one, in all games.
    int getId() const;
    /// The whole roster has been released, and none of it is still in play.
    bool isFinish() const;

    void draw(const double& dt) const;
    /// One step of `dt` seconds for every released grunt, gone ones included.
    void update(const double& dt, const Game& game);

private:
    static int ID;

    int m_id;
    std::vector<Ennemi> m_ennemis;
    std::vector<Ennemi> ennemisInGame;
    size_t currentPosToSpawnEnnemi;
    double timeDiffBetwenSpawn;
};

#endif
