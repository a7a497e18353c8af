#include "Game/Game.h"

#include "Entity/Beam.h"
#include "Entity/Ennemi.h"
#include "Entity/Entity.h"
#include "Entity/Weapon.h"
#include "Vecteur/Vecteur2D.h"
#include "Wave/Wave.h"
#include "sound.h"

#include <SDL_mixer.h>

#include <cstddef>

namespace {

// Between waves, in seconds left before the next one: the water drains into money between the first two moments, then
// the rest is paid. Without a click the countdown stops at the last.
constexpr double DRAIN_BEGINS = 13.0;
constexpr double DRAIN_ENDS = 11.0;
constexpr double COUNTDOWN_HOLDS = 10.0;

constexpr double argentParWater = 20.0;
constexpr int STEPS_BETWEEN_COINS = 20;

// Less pure water than this is a defeat, but not in the first moments of a wave.
constexpr double LEAST_PURE_WATER = 1.0;
constexpr double TIME_OF_GRACE = 1.0;

} // namespace


void Game::update(const double& dt) {
    m_waves[currentWave].update(dt, *this);
    m_tower.update(dt, *this);
    for (Weapon* w : weapons)
        w->update(dt, *this);

    releaseEnnemis();
    resolveCollisions();
    if (isInBetwenWave)
        updateBetwenWave(dt);

    // Quirk: defeat is checked first, so a wave whose last grunt spoils the water is lost, not cleared.
    if (m_tower.getPureWaterLeft() < LEAST_PURE_WATER && !isInBetwenWave && time > TIME_OF_GRACE && !loos) {
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

    // Quirk: the time spent on the title counts, so the grunts due by then enter together when it is left.
    if (hasLoos())
        timeLoos += dt;
    else
        time += dt;
}


void Game::releaseEnnemis() {
    if (!isPlaying())
        return;

    // How many should be out by now. Compared as doubles: the quotient may be too large for a whole number.
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


void Game::resolveCollisions() {
    // Not at the end: an exception in a reaction would leave this step's pairs behind for the next one.
    entitys.clear();
    discs.clear();
    encounters.clear();

    // Encounters are answered in this order.
    const auto add = [this](Entity* entity) {
        if (!entity->canCollide())
            return;
        entitys.push_back(entity);
        discs.push_back(entity->getDisc());
    };
    add(&m_tower);
    for (Weapon* w : weapons) {
        add(w);
        for (Beam* beam : w->getBeams())
            add(beam);
    }
    for (Ennemi& ennemi : m_waves[currentWave].getEnnemisInGame())
        add(&ennemi);

    // Find all encounters before any object reacts, so that no reaction adds or removes an encounter of this step.
    for (size_t i = 0; i < discs.size(); ++i) {
        const Entity::Disc one = discs[i];
        for (size_t j = 0; j < discs.size(); ++j)
            if (i != j && Entity::discsTouch(one, discs[j]))
                encounters.emplace_back(entitys[i], entitys[j]);
    }

    for (const auto& encounter : encounters)
        encounter.getFirst()->collide(encounter.getSecond());
}


void Game::updateBetwenWave(const double& dt) {
    if (continueToPlay || timeBeforeNextWave > COUNTDOWN_HOLDS)
        timeBeforeNextWave -= dt;

    if (timeBeforeNextWave <= 0.0) {
        isInBetwenWave = false;
        m_tower.removePollution();
        m_tower.refil(m_tower.getCapacity());
        finalWaterLeft = false;
        startNewWave();
    }

    if (DRAIN_ENDS < timeBeforeNextWave && timeBeforeNextWave < DRAIN_BEGINS)
        drainWater();
    if (timeBeforeNextWave < DRAIN_ENDS && !finalWaterLeft && isInBetwenWave)
        payOut();
}


void Game::drainWater() {
    // The share of the water that should be left at this instant falls evenly from 1 to 0.
    constexpr double DRAIN_LASTS = DRAIN_BEGINS - DRAIN_ENDS;
    const double elapsed = TIME_BETTWENN_WAVE - timeBeforeNextWave;
    const double ratioWater = 1 - (elapsed - (TIME_BETTWENN_WAVE - DRAIN_BEGINS)) / DRAIN_LASTS;
    const double wateToLeav = waterDepart * ratioWater;
    const double diffWater = m_tower.getPureWaterLeft() - wateToLeav;
    const bool drains = diffWater > 0 && wateToLeav >= 0 && m_tower.canRemoveWater(diffWater);
    if (!drains)
        return;

    argentGain += diffWater * argentParWater;
    // Quirk: the steps are counted on from wave to wave, and across a restart. Quirk: coins sound at every 21st step,
    // not at every 20th.
    temps_son += 1;
    if (temps_son > STEPS_BETWEEN_COINS) {
        playSound(son_coinsound);
        playSound(son_pourwater);
        temps_son = 0;
    }
    m_tower.removeWater(diffWater);
}


void Game::payOut() {
    finalWaterLeft = true;
    argentGain += m_tower.getPureWaterLeft() * argentParWater;
    // Quirk: the fraction of a coin is dropped, and the water paid for here stays in the tank.
    argent = static_cast<int>(argent + argentGain);
    playSound(son_cashregister); // Quirk: it rings even if nothing is paid.
}


void Game::shoot(const Vecteur2D& pos) {
    if (!isPlaying())
        return;
    for (Weapon* w : weapons)
        w->shoot(pos, m_tower);
}


void Game::addWeapon(const Weapon& w) { weapons.push_back(w.copy()); }


void Game::addWeapon(Weapon* w) { addWeapon(*w); }
