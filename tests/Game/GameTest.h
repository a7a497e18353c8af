#ifndef GAME_TEST_H
#define GAME_TEST_H

// This header brings what every test of the game uses.
// IWYU pragma: begin_exports
#include "Entity/Weapon.h"
#include "Game/Game.h"
#include "Vecteur/Vecteur2D.h"
#include "audio.h"
#include "standin/standin.h"

#include <cmath>
// IWYU pragma: end_exports

/// A turret from the shop, with another price and damage for its shots if wanted.
inline Weapon turretAt(double x, double y, double waterConsume = 1, double damage = 50) {
    return {{x, y}, "", waterConsume, 300, 300, damage, 1, 10, 10, 80};
}

/// A game on plain ground, and what a player can do and see in it. Unless the clock is set, the first grunt enters in
/// step 51 after the title and reaches the tower in step 2512.
struct GameTest : StandinTest {
    Game game{1024, 768};

    GameTest() {
        loadSounds();
        calls.clear();
    }

    /// Leaves the title screen, and lets steps of 0.02 seconds pass.
    void runSteps(int steps) {
        game.setIsInTitleScreen(false);
        while (steps-- > 0)
            game.update(0.02);
    }

    /// Fires one shot that costs this much water, if turrets may fire.
    void spill(double water) {
        game.addWeapon(turretAt(800, 600, water));
        game.shoot({800, 550});
    }

    /// The lines of a frame that show one picture, or all lines, with the mouse at (`x`, `y`).
    Lines frameLines(const std::string& picture = "", double x = 0, double y = 0) const {
        screen.drawn.clear();
        game.draw(20, x, y);
        EXPECT_TRUE(screen.isAtRest());
        return linesStarting(picture, screen.drawn);
    }

    /// How many grunts have entered since the last call.
    static int newGrunts() { return std::exchange(clocks.readings, 0); }

    double pureWater() const { return game.getTower().getPureWaterLeft(); }

    /// What the digits drawn last show, the units first: each its tenth of the picture of all ten.
    static std::string number() {
        std::string digits;
        for (const std::string& line : linesStarting("Numbers", screen.drawn))
            digits.insert(0, toString(std::lround(10 * partShown(line).real())));
        return digits;
    }

    /// What the money counter shows.
    int money() const {
        screen.drawn.clear();
        game.afficherArgent(20);
        return std::stoi(number());
    }
};

#endif
