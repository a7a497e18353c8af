#include "Game/play.h"

#include <cmath>

Play::Play() {
    using standin::sound;
    Weapon::son_stream = sound("stream"), Weapon::son_construct = sound("construct"),
    Beam::son_splash = sound("splash");
    Ennemi::son_explosion = sound("boom"), Ennemi::son_grunt = sound("cry"), Game::son_defeat = sound("defeat");
    Game::son_good_job = sound("good job"), Game::son_cashregister = sound("cash");
    Game::son_coinsound = sound("coin"), Game::son_pourwater = sound("pour");
    standin::clear();
    standin::nanoseconds = standin::fromLeft;
}


void Play::steps(int count) {
    game.setIsInTitleScreen(false);
    for (int i = 0; i < count; ++i)
        game.update(0.02);
}


standin::Words Play::frame(const std::string& picture, double x, double y) {
    standin::clear();
    game.draw(20, x, y);
    EXPECT_TRUE(standin::isAtRest());
    standin::Words lines;
    for (const std::string& line : standin::drawing())
        if (line.rfind("tileSet", 0) != 0 && line.rfind(picture, 0) == 0)
            lines.push_back(line);
    return lines;
}


int Play::money() {
    standin::clear();
    game.afficherArgent(20);
    int amount = 0;
    for (size_t i = 6; i-- > 0;) {
        const std::string digit = standin::drawing()[i];
        amount = amount * 10 + static_cast<int>(std::lround(std::stod(digit.substr(digit.find('>') + 1)) * 10));
    }
    return amount;
}


Weapon turretAt(double x, double y, double waterConsume, double damage) {
    return {{x, y}, "", waterConsume, 300, 300, damage, 1, 10, 10, 80};
}
