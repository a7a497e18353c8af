#ifndef PLAY_H
#define PLAY_H

#include "Entity/Beam.h"
#include "Game/Game.h"
#include "standin/screen.h"
#include "standin/world.h"

#include <gtest/gtest.h>

/// A game whose sounds have names, and what a player can see of it.
struct Play : testing::Test {
    Game game{1024, 768};

    Play();

    /// Leaves the title screen and advances the game.
    void steps(int count);
    /// The lines of a frame that show one picture; without one, all but the ground.
    standin::Words frame(const std::string& picture = "", double x = 0, double y = 0);
    /// What the money counter shows.
    int money();
};

/// A turret as the shop builds it, but for what its shots cost and its jets do.
Weapon turretAt(double x, double y, double waterConsume = 1, double damage = 50);

#endif
