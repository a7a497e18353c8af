#include "Game/play.h"


// One whole game, from the first turret to the defeat: a line for every step in which something is heard or a grunt
// enters, with the pure water that is left. The player fires one volley at step 1500, and without end after step 5400.
TEST_F(Play, aWholeGameGoesByTheRules) {
    game.setIsInTitleScreen(false);
    game.poserTourelle(352, 352);
    game.poserTourelle(352, 416);
    standin::Words heard;
    unsigned long long hash = 14695981039346656037ULL;
    for (int step = 1; step <= 7500; ++step) {
        standin::clear();
        standin::nanoseconds = step < 2000 ? standin::fromLeft : standin::fromTop;
        if (step == 1500 || step > 5400)
            game.shoot({200, 352});
        if (step == 1877 || step == 4600)
            game.setContinueToPlay(true);
        game.update(0.02);
        std::string line = standin::entered != 0 ? "enters " : "";
        for (const std::string& sound : standin::played)
            line += sound == "stream@-1" ? "" : sound + " ";
        const long pureWater = std::lround(game.getTower().getPureWaterLeft());
        if (!line.empty())
            heard.push_back(std::to_string(step) + " " + line + std::to_string(pureWater));
        if (step % 7 == 0)
            for (const std::string& drawn : frame("", 352, 390))
                for (const char letter : drawn)
                    hash = (hash ^ static_cast<unsigned char>(letter)) * 1099511628211ULL;
    }
    const std::string coins = " coin@-1 pour@-1 ";
    const standin::Words expected{
        // Released one second after the title. Jet and grunt meet at 30 pixels: the straight one 35 steps after the
        // volley, the slanting one 55. The wave ends 23 steps after the second hit.
        "51 enters 100", "1534 splash@-1 98", "1554 boom@-1 cry@-1 splash@-1 98", "1577 good job@8 98",
        // The drain begins 101 steps into the phase; coins sound at every 21st of its steps; it pays 98 times 20.
        "1698" + coins + "77", "1719" + coins + "57", "1740" + coins + "36", "1761" + coins + "16", "1778 cash@-1 0",
        // Held at 10 seconds until the click at 1877: the next wave starts at 2376. From above it is 446 pixels to the
        // tower, 396 of them to walk in 1981 steps; the third arrival, ten units each, ends the wave.
        "2426 enters 100", "2476 enters 100", "2526 enters 100", "4507 good job@8 70",
        // Sixteen steps of the last drain are still counted, so the first coin comes after five.
        "4612" + coins + "67", "4633" + coins + "52", "4654" + coins + "37", "4675" + coins + "22",
        "4696" + coins + "8", "4708 cash@-1 0",
        // An early click: 15 seconds of phase. Two units a second are fired, forty volleys and two arrivals empty it.
        "5308 enters 100", "5358 enters 100", "5408 enters 98", "5458 enters 96", "5509 enters 94", "5559 enters 92",
        "7351 defeat@8 0"};
    EXPECT_EQ(heard, expected);
    EXPECT_EQ(money(), 98 * 20 + 70 * 20);

    // Recorded, not worked out: whatever else changes a picture changes this number.
    EXPECT_EQ(hash, 15698900300906773509ULL);
}
