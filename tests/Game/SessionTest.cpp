#include "Game/GameTest.h"
#include "standin/standin.h"

#include <fstream>

constexpr int STEPS = 7500, STRETCH = 500, STEPS_TO_NEXT_FRAME = 7;


// Compares what frames showed in each stretch of steps with what is recorded: its fingerprint, and the last frame.
static void expectFramesAsRecorded(const std::string& name, const Lines& stretches) {
    Lines frames;
    for (size_t i = 0; i < stretches.size(); ++i) {
        unsigned long long hash = 14695981039346656037ULL; // FNV-1a
        for (const char letter : stretches[i])
            hash = (hash ^ static_cast<unsigned char>(letter)) * 1099511628211ULL;
        const std::string last = toString(STRETCH * (i + 1));
        frames.push_back(joined("frames to step", last, hash));
        frames.push_back("the last of them: " + stretches[i].substr(stretches[i].rfind("step ")));
        std::ofstream("build/" + name + "-to-step-" + last + ".lines") << stretches[i];
    }
    expectAsRecorded(name, frames);
}


// One whole game, from the first turret to the defeat. The player fires one volley at step 1500 and keeps firing after
// step 5400. He clicks to continue at steps 1877 and 4600.
TEST_F(GameTest, aWholeGameGoesByTheRules) {
    runSteps(0);
    game.poserTourelle(352, 352);
    game.poserTourelle(352, 416);
    Lines moments;                                // the steps in which a grunt enters, or anything but a shot is heard
    Lines field(STEPS / STRETCH), panels = field; // what frames show, in each stretch of steps
    for (int step = 1; step <= STEPS; ++step) {
        mixer.sounds.clear();
        clocks.nanoseconds = step < 2000 ? LEFT_OF_TOWER : ABOVE_TOWER;
        if (step == 1500 || step > 5400)
            game.shoot({200, 352});
        if (step == 1877 || step == 4600)
            game.setContinueToPlay(true);
        game.update(0.02);

        std::string moment = newGrunts() > 0 ? " grunt" : "";
        for (const std::string& sound : mixer.sounds)
            moment += sound == "WaterStream" ? "" : " " + sound;
        if (!moment.empty())
            moments.push_back(toString(step) + moment + ", " + toString(std::lround(pureWater())) + " left");
        if (step % STEPS_TO_NEXT_FRAME == 0) {
            // A frame shows the field first, and then the panels, from the shop's on.
            const size_t stretch = (step - 1) / STRETCH;
            std::string* part = &field[stretch];
            for (std::string* text : {part, &panels[stretch]})
                *text += joined("step", step) + "\n";
            for (const std::string& line : frameLines("", 352, 390)) {
                if (line.find("WeaponPanel") == 0)
                    part = &panels[stretch];
                *part += line + "\n";
            }
        }
    }
    const Lines expected{
        // The first grunt enters after one second of play, as no time was spent on the title. A second is 50 or 51
        // steps, because 0.02 can't be summed exactly. Jet and grunt meet at 30 pixels: the straight jet 35 steps after
        // the volley, the slanting one 55. The wave ends 23 steps after the second hit.
        "51 grunt, 100 left", "1534 WaterSplash, 98 left", "1554 EnnemyExplosion EnnemyGrunt WaterSplash, 98 left",
        "1577 VorelDefense_WellDone on channel 8, 98 left",
        // The drain begins 101 steps into the phase. Coins sound at every 21st of its steps. It pays 98 times 20.
        "1698 CoinSound PourWater, 77 left", "1719 CoinSound PourWater, 57 left", "1740 CoinSound PourWater, 36 left",
        "1761 CoinSound PourWater, 16 left", "1778 CashRegister, 0 left",
        // The countdown holds with ten seconds left until the click at 1877, and the next wave starts at 2376. From
        // above, the tower is 446 pixels away; the grunts walk 396 of them, in 1981 steps. Each arrival spoils ten
        // units, and the third ends the wave.
        "2426 grunt, 100 left", "2476 grunt, 100 left", "2526 grunt, 100 left",
        "4507 VorelDefense_WellDone on channel 8, 70 left",
        // Sixteen steps of the last drain still count, so the first coin comes after five.
        "4612 CoinSound PourWater, 67 left", "4633 CoinSound PourWater, 52 left", "4654 CoinSound PourWater, 37 left",
        "4675 CoinSound PourWater, 22 left", "4696 CoinSound PourWater, 8 left", "4708 CashRegister, 0 left",
        // The click is early, so the phase takes 15 seconds. Shots take two units a second; forty volleys and two
        // arrivals empty the tank.
        "5308 grunt, 100 left", "5358 grunt, 100 left", "5408 grunt, 98 left", "5458 grunt, 96 left",
        "5509 grunt, 94 left", "5559 grunt, 92 left", "7351 VorelDefense_GameOver on channel 8, 0 left"};
    EXPECT_EQ(moments, expected);
    EXPECT_EQ(calls, Lines(3, "volume 8 50")) << "each of the three jingles sets the volume of its channel";
    EXPECT_EQ(money(), 98 * 20 + 70 * 20);
    expectFramesAsRecorded("wholeGameField", field);
    expectFramesAsRecorded("wholeGamePanels", panels);
}
