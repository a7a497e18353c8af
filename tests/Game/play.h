#ifndef PLAY_H
#define PLAY_H

#include "Entity/Beam.h"
#include "Game/Game.h"
#include "standin/standin.h"

#include <cmath>

using standin::Words, standin::sound;

/// A game on plain ground whose sounds have names, and what a player can see of it.
struct Play : testing::Test {
    Game game{1024, 768};

    Play() {
        Weapon::son_stream = sound("stream"), Weapon::son_construct = sound("construct");
        Beam::son_splash = sound("splash"), Ennemi::son_explosion = sound("boom"), Ennemi::son_grunt = sound("cry");
        Game::son_defeat = sound("defeat"), Game::son_good_job = sound("good job");
        Game::son_coinsound = sound("coin"), Game::son_pourwater = sound("pour");
        Game::son_cashregister = sound("cash"), standin::clear(), standin::nanoseconds = standin::fromLeft;
    }

    /// Leaves the title screen and advances the game.
    void steps(int count) {
        game.setIsInTitleScreen(false);
        while (count-- > 0)
            game.update(0.02);
    }

    /// The lines of a frame that show one picture; without one, all of them.
    Words frame(const std::string& picture = "", double x = 0, double y = 0) const {
        standin::clear(), game.draw(20, x, y);
        EXPECT_TRUE(standin::isAtRest());
        return standin::only(standin::drawn, picture);
    }

    /// What the money counter shows.
    int money() const {
        standin::clear(), game.afficherArgent(20);
        double amount = 0;
        for (int i = 5; i >= 0; --i)
            amount = amount * 10 + std::stod(standin::drawn[i].substr(standin::drawn[i].find('>') + 1)) * 10;
        return static_cast<int>(std::lround(amount));
    }
};

/// A turret as the shop builds it, but for what its shots cost and its jets do.
inline Weapon turretAt(double x, double y, double waterConsume = 1, double damage = 50) {
    return {{x, y}, "", waterConsume, 300, 300, damage, 1, 10, 10, 80};
}

#endif
