#include "Game/GameTest.h"

#include "Wave/Wave.h"
#include "drawing.h"
#include "sdlglutils.h"
#include "standin/standin.h"

#include <stdexcept>

TEST_F(GameTest, nobodyEntersOnTheTitleButItsTimeCounts) {
    for (int step = 0; step < 60; ++step)
        game.update(0.02);
    EXPECT_EQ(newGrunts(), 0) << "nobody enters";
    runSteps(1);
    EXPECT_EQ(newGrunts(), 1) << "a second has passed";
}


TEST_F(GameTest, aRestartedGameGoesLikeANewOne) {
    for (const double spilled : {100, 1}) { // a game that is lost, and one whose first wave is paid
        Lines newGame, restarted;
        for (Lines* seen : {&newGame, &restarted}) {
            *seen = frameLines(); // the title
            runSteps(51);
            spill(spilled);
            for (const int steps : {101, 2660}) {
                runSteps(steps);
                seen->push_back(testing::PrintToString(frameLines()));
            }
            game.activeTourelle();
            game.startNewWave();
            runSteps(60);
            game.restart();
        }
        EXPECT_EQ(newGame, restarted) << spilled;
    }
}


TEST_F(GameTest, restartKeepsFourThings) {
    const int waves = Wave(1).getId();
    runSteps(2512 + 110); // the drain begins 101 steps after the wave
    const double countdown = game.getTimeBeforeNextWave();
    ASSERT_LT(std::abs(countdown - 12.8), 0.01);
    dice = {0};
    game.restart();
    EXPECT_EQ(dice.size(), 1U) << "the ground: no dice are thrown for another one";
    EXPECT_EQ(Wave(1).getId(), waves + 2) << "the number of the next wave; the restarted game has taken one";
    EXPECT_EQ(game.getTimeBeforeNextWave(), countdown);
    mixer.sounds.clear();
    runSteps(2512 + 115);
    EXPECT_EQ(mixer.sounds, (Lines{"VorelDefense_WellDone on channel 8", "CoinSound", "PourWater"}))
        << "every 21st step of a drain, and the ten before the restart count";
}


TEST_F(GameTest, isContinueToPlayInANewGameAndNotInARestartedOne) {
    EXPECT_TRUE(game.isContinueToPlay());
    game.restart();
    EXPECT_FALSE(game.isContinueToPlay());
}


TEST_F(GameTest, everyWaveHasThreeGruntsMoreThanTheOneBeforeButTheFirstHasOne) {
    runSteps(0);
    for (const int grunts : {1, 3, 6, 9, 12, 15}) {
        game.update(100); // all of them are due now
        game.update(0);
        EXPECT_EQ(newGrunts(), grunts);
        game.startNewWave();
    }
}


TEST_F(GameTest, spawnEnnemiChoosesAPlaceOutsideTheEdgesByTheClock) {
    // Where one edge ends and the next one begins. The low 32 bits decide.
    // clang-format off
    const std::pair<long long, Vecteur2D> cases[] = {
        {101 + (1LL << 32), {-30, 1022.5747}}, {19, {765.1972, 798}}, {612, {1054, 4.0368}}, {21, {1054, 940.0601}},
        {82, {1.3775, -30}}};
    // clang-format on
    for (const auto& [nanoseconds, place] : cases) {
        clocks.nanoseconds = nanoseconds;
        EXPECT_NEAR(game.spawnEnnemi().distance(place), 0, 1e-4) << place;
    }
}


TEST_F(GameTest, theGameIsLostWithoutWaterAfterASecondsGrace) {
    runSteps(1);
    spill(99.5);
    runSteps(49);
    EXPECT_FALSE(game.hasLoos());
    runSteps(1);
    EXPECT_TRUE(game.hasLoos());
}


TEST_F(GameTest, afterADefeatNobodyFiresAndNoWaveEnds) {
    runSteps(1);
    spill(100);
    runSteps(4000);
    spill(0);
    EXPECT_EQ(mixer.sounds, (Lines{"WaterStream", "VorelDefense_GameOver on channel 8"}));
}


TEST_F(GameTest, theFirstTurretFiresIfTheWaterPaysForOneShot) {
    runSteps(0);
    game.addWeapon(turretAt(100, 100, 60));
    game.addWeapon(turretAt(200, 100, 60));
    game.shoot({300, 100});
    EXPECT_EQ(frameLines("VorelDefence_projectile"),
              Lines{"VorelDefence_projectile 100,100 109.6,100 109.6,109.6 100,109.6"});
}


TEST_F(GameTest, aJetHitsAGruntIfTheirDiscsOverlap) {
    // As isColliding would say, but the step compares discs itself.
    runSteps(51);
    const Vecteur2D entry = game.spawnEnnemi();
    for (const auto& [distance, heard] : {std::pair(30.0, Lines{}), {29.9, Lines{"WaterSplash"}}}) {
        game.addWeapon(turretAt(entry[0] + distance, entry[1], 0));
        game.shoot(entry);
        mixer.sounds.clear();
        game.update(0);
        EXPECT_EQ(mixer.sounds, heard) << distance;
    }
}


TEST_F(GameTest, anEncounterIsForgottenThoughItsReactionRaises) {
    runSteps(51);
    const Vecteur2D entry = game.spawnEnnemi();
    game.addWeapon(turretAt(entry[0], entry[1], 0));
    game.shoot({-100, 352});
    mixer.onSound = []() -> int { throw std::runtime_error("This sound can't be played."); };
    EXPECT_THROW(game.update(0), std::runtime_error);
    mixer = {};
    game.update(1);
    EXPECT_EQ(mixer.sounds, Lines{}) << "the jet has flown on, and touches the grunt no more";
}


TEST_F(GameTest, allThatMeetInOneStepAreFoundBeforeAnyReacts) {
    runSteps(52);
    for (const double damage : {50.0, 50.0, 1.0})
        game.addWeapon(turretAt(0, 352, 0, damage));
    game.shoot({-100, 352});
    mixer.sounds.clear();
    runSteps(1);
    EXPECT_EQ(mixer.sounds, (Lines{"EnnemyExplosion", "EnnemyGrunt", "EnnemyExplosion", "EnnemyGrunt", "WaterSplash",
                                   "WaterSplash", "WaterSplash"}))
        << "the third jet hurts a grunt that the second has killed, and then all three burst";
}


TEST_F(GameTest, defeatIsJudgedBeforeTheWavesEnd) {
    // One unit of pure water is left when the only grunt has arrived, or half a unit.
    for (const auto& [cost, ending] :
         {std::pair(89.0, "VorelDefense_WellDone on channel 8"), {89.5, "VorelDefense_GameOver on channel 8"}}) {
        game.restart();
        runSteps(1);
        spill(cost);
        runSteps(2511);
        EXPECT_EQ(mixer.sounds.back(), ending);
    }
}


TEST_F(GameTest, theCashRegisterRingsThoughNothingIsPaid) {
    // Within the time of grace the only grunt enters, the tank is emptied, and the grunt arrives in one long step.
    runSteps(0);
    game.update(1);
    game.update(0);
    spill(100);
    game.update(50);
    runSteps(300);
    EXPECT_EQ(mixer.sounds, (Lines{"WaterStream", "VorelDefense_WellDone on channel 8", "CashRegister"}))
        << "and no coins, since no water drains";
    EXPECT_EQ(money(), 2000);
}


TEST_F(GameTest, thePayOutDropsTheFractionOfACoin) {
    runSteps(1);
    spill(0.51);
    runSteps(2511 + 300);
    EXPECT_EQ(money(), 3789) << "2,000 and 20 for each of the 89.49 units that are left";
}


TEST_F(GameTest, aCliqueTourelleOnTheButtonWithItsUpperEdge) {
    // clang-format off
    const std::tuple<int, int, bool> cases[] = {
        {960, 600, true}, {1024, 600, true}, {959, 600, false}, {1025, 600, false}, {990, 563, false},
        {990, 564, true}, {990, 627, true}, {990, 628, false}};
    // clang-format on
    for (const auto& [x, y, hit] : cases)
        EXPECT_EQ(game.aCliqueTourelle(x, y), hit) << x << " " << y;
}


TEST_F(GameTest, poserTourelleNeedsRoomAndMoney) {
    // clang-format off
    const std::tuple<const char*, int, int, int> cases[] = {
        {"64 pixels from the tower are too near", 607, 383, 2000}, {"71.6 are not", 607, 415, 1000},
        {"45 from a turret are too near", 608, 352, 1000}, {"64 are not, and the last money pays", 640, 384, 0},
        {"nothing without money", 99, 99, 0}};
    // clang-format on
    for (const auto& [what, x, y, left] : cases) {
        game.poserTourelle(x, y);
        EXPECT_EQ(money(), left) << what;
    }
}


TEST_F(GameTest, countersShowTheirLastDigits) {
    for (int wave = 1; wave < 100; ++wave)
        game.startNewWave();
    screen.drawn.clear();
    game.drawLoosScreen();
    EXPECT_EQ(number(), "00") << "wave 100";
    screen.drawn.clear();
    drawDigits(loadTexture("Numbers", true), 1000000, 6, 10, 20);
    EXPECT_EQ(number(), "000000") << "a million, with the six digits of the money counter";
}
