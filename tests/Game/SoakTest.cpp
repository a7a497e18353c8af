#include "Game/play.h"

#include <cstdlib>
#include <random>

// A player who does anything at any time, in any state; VOREL_SOAK_STEPS asks for a longer life.
TEST_F(Play, nothingThatAPlayerDoesBreaksTheGame) {
    std::mt19937 random(20);
    const auto any = [&random](int count) { return static_cast<int>(random() % count); };
    const char* wish = std::getenv("VOREL_SOAK_STEPS");
    for (long step = 0, steps = wish == nullptr ? 20000 : std::atol(wish); step < steps; ++step) {
        const int x = any(1200) - 90, y = any(900) - 60, deed = any(6000);
        standin::nanoseconds = random();
        deed == 0 ? game.restart() : deed < 100 ? game.setIsInTitleScreen(deed == 1) : void();
        deed % 50 == 0 ? game.poserTourelle(x, y) : deed % 50 == 1 ? game.activeTourelle() : game.desactiveTourelle();
        deed % 100 == 3 ? game.setContinueToPlay(true) : deed % 20 == 0 ? game.shoot({1.0 * x, 1.0 * y}) : void();
        deed == 5 ? game.addWeapon(turretAt(x, y, 0)) : void();
        game.update(0.02);
        const double foul = game.getTower().getPollution(), water = game.getTower().getWater();
        ASSERT_TRUE(0 <= foul && foul <= water && water <= game.getTower().getCapacity()) << step;
        if (step % 20 == 0) {
            ASSERT_GE(money(), 0);
            for (const std::string& line : frame("", x, y))
                ASSERT_EQ(line.find("nan"), std::string::npos) << step << ": " << line;
        }
    }
}
