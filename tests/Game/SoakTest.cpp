#include "Game/GameTest.h"
#include "standin/standin.h"

#include <cstdlib>
#include <random>

// A player who does anything at any time, in any state. VOREL_SOAK_STEPS sets another number of steps.
TEST_F(GameTest, nothingThatAPlayerDoesBreaksTheGame) {
    std::mt19937 random(20);
    int x = 0, y = 0;
    // Each action, and in how many steps it happens once on average.
    // clang-format off
    const std::pair<unsigned, std::function<void()>> actions[] = {
        {6000, [&] { game.restart(); }},          {60, [&] { game.setIsInTitleScreen(random() % 100 == 0); }},
        {50, [&] { game.activeTourelle(); }},     {50, [&] { game.poserTourelle(x, y); }},
        {2, [&] { game.desactiveTourelle(); }},   {100, [&] { game.setContinueToPlay(true); }},
        {20, [&] { game.shoot(Vecteur2D(x, y)); }}, {6000, [&] { game.addWeapon(turretAt(x, y, 0)); }},
        {20, [&] { EXPECT_EQ(testing::PrintToString(frameLines("", x, y)).find("nan"), std::string::npos); }}};
    // clang-format on
    const char* wish = std::getenv("VOREL_SOAK_STEPS");
    for (long step = wish == nullptr ? 20000 : std::atol(wish); step > 0; --step) {
        x = static_cast<int>(random() % 1200) - 90;
        y = static_cast<int>(random() % 900) - 60;
        clocks.nanoseconds = random();
        for (const auto& [rarity, action] : actions)
            if (random() % rarity == 0)
                action();
        game.update(0.02);
        ASSERT_GE(pureWater(), 0);
    }
}
