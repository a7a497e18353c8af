#include "Game/Game.h"

#include "Entity/Beam.h"
#include "sdlglutils.h"
#include "utility/HeterogeneousContainer.h"

namespace {

// Between waves, counted in the seconds that are left before the next one: the water drains into money
// between the first two, then the rest is paid, and without a click the countdown holds at the last.
constexpr double drainBegins = 13.0;
constexpr double drainEnds = 11.0;
constexpr double countdownHolds = 10.0;

constexpr double argentParWater = 20.0;
constexpr int stepsBetweenCoins = 20;

// Pure water below this is a defeat, but not in the first moments of a wave.
constexpr double leastPureWater = 1.0;
constexpr double timeOfGrace = 1.0;


void playJingle(Mix_Chunk* son) {
    constexpr int jingleChannel = 8;
    constexpr int jingleVolume = 50;
    Mix_Volume(jingleChannel, jingleVolume);
    playSound(son, jingleChannel);
}

} // namespace


void Game::update(const double& dt) {
    m_waves[currentWave].update(dt, *this);
    m_tower.update(dt, *this);
    for (Weapon* w : weapons)
        w->update(dt, *this);

    releaseEnnemis();
    collide();
    if (isInBetwenWave)
        updateBetwenWave(dt);

    if (m_tower.getPureWaterLeft() < leastPureWater && !isInBetwenWave && time > timeOfGrace && !loos) {
        loos = true;
        playJingle(son_defeat);
    }

    if (m_waves[currentWave].isFinish() && !isInBetwenWave && !hasLoos()) {
        isInBetwenWave = true;
        continueToPlay = false;
        playJingle(son_good_job);
        waterDepart = m_tower.getPureWaterLeft();
        argentGain = 0.0;
        timeBeforeNextWave = TIME_BETTWENN_WAVE;
    }

    if (hasLoos())
        timeLoos += dt;
    else
        time += dt;
}


void Game::releaseEnnemis() {
    if (!isPlaying())
        return;

    // How many should be out by now. Compared as doubles: the quotient may be beyond any whole number.
    Wave& wave = m_waves[currentWave];
    size_t target = wave.getEnnmisNumber();
    if (wave.getTimeDiffBetwenSpawn() != 0.0) {
        const double due = time / wave.getTimeDiffBetwenSpawn();
        if (due < static_cast<double>(target))
            target = due > 0.0 ? static_cast<size_t>(due) : 0;
    }
    for (size_t i = wave.getEnnemisInGame().size(); i < target; ++i)
        wave.spawnEnnemi(spawnEnnemi());
}


void Game::collide() {
    using Encounters = Duo<Entity*, std::vector<Entity*>>;
    std::vector<Encounters> entitys;
    const auto add = [&entitys](Entity* entity) { entitys.emplace_back(entity, std::vector<Entity*>()); };
    add(&m_tower);
    for (Weapon* w : weapons) {
        add(w);
        for (Beam* beam : w->getBeams())
            add(beam);
    }
    for (Ennemi& ennemi : m_waves[currentWave].getEnnemisInGame())
        add(&ennemi);

    // Find everything before anything reacts, so that no reaction makes or breaks an encounter of this step.
    for (Encounters& one : entitys)
        for (const Encounters& other : entitys)
            if (one.getFirst()->isColliding(*other.getFirst()))
                one.getSecond().push_back(other.getFirst());

    for (const Encounters& one : entitys)
        for (Entity* partner : one.getSecond())
            one.getFirst()->collide(partner);
}


void Game::updateBetwenWave(const double& dt) {
    if (continueToPlay || timeBeforeNextWave > countdownHolds)
        timeBeforeNextWave -= dt;

    if (timeBeforeNextWave <= 0.0) {
        isInBetwenWave = false;
        m_tower.removePollution();
        m_tower.refil(m_tower.getCapacity());
        finalWaterLeft = false;
        startNewWave();
    }

    if (drainEnds < timeBeforeNextWave && timeBeforeNextWave < drainBegins)
        drainWater();
    if (timeBeforeNextWave < drainEnds && !finalWaterLeft && isInBetwenWave)
        payOut();
}


void Game::drainWater() {
    // The share of the water that should be left at this instant falls evenly from 1 to 0.
    constexpr double drainLasts = drainBegins - drainEnds;
    const double elapsed = TIME_BETTWENN_WAVE - timeBeforeNextWave;
    const double ratioWater = 1 - (elapsed - (TIME_BETTWENN_WAVE - drainBegins)) / drainLasts;
    const double wateToLeav = waterDepart * ratioWater;
    const double diffWater = m_tower.getPureWaterLeft() - wateToLeav;
    if (!(diffWater > 0 && wateToLeav >= 0 && m_tower.canRemoveWater(diffWater)))
        return;

    argentGain += diffWater * argentParWater;
    temps_son += 1;
    if (temps_son > stepsBetweenCoins) {
        playSound(son_coinsound);
        playSound(son_pourwater);
        temps_son = 0;
    }
    m_tower.removeWater(diffWater);
}


void Game::payOut() {
    finalWaterLeft = true;
    argentGain += m_tower.getPureWaterLeft() * argentParWater;
    argent = static_cast<int>(argent + argentGain);
    playSound(son_cashregister);
}


void Game::shoot(const Vecteur2D& pos) {
    if (!isPlaying())
        return;
    for (Weapon* w : weapons)
        w->shoot(Vecteur2D(pos), m_tower);
}


void Game::addWeapon(const Weapon& w) { weapons.push_back(w.copy()); }


void Game::addWeapon(Weapon* w) { addWeapon(*w); }
