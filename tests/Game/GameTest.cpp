#include "Game/GameTest.h"

#include "standin/standin.h"

TEST_F(GameTest, nobodyEntersOnTheTitleButItsTimeCounts) {
    for (int step = 0; step < 60; ++step)
        game.update(0.02);
    EXPECT_EQ(newGrunts(), 0) << "nobody enters";
    runSteps(1);
    EXPECT_EQ(newGrunts(), 1) << "a second has passed";
}


TEST_F(GameTest, restartLeavesNothingButTheGround) {
    const Lines title = frameLines();
    runSteps(100);
    const Lines field = frameLines();
    game.poserTourelle(800, 600);
    game.activeTourelle();
    runSteps(2750);
    ASSERT_GT(money(), 1000) << "paid between waves";
    dice = {99};
    game.restart();
    game.restart();
    EXPECT_EQ(frameLines(), title);
    runSteps(100);
    EXPECT_EQ(frameLines(), field) << "with money, water and grunts as in a new game, and without turrets";
    EXPECT_EQ(dice.size(), 1U) << "no dice are thrown for another ground";
}


TEST_F(GameTest, theFirstWaveIsPaidAgainAfterARestart) {
    runSteps(2512 + 300);
    game.restart();
    runSteps(2512 + 300);
    EXPECT_GT(money(), 2000);
}


TEST_F(GameTest, theDefeatFadesInAnewAfterARestart) {
    for (const auto& [steps, colour] : {std::pair(101, " colour 1 1 1 0.202"), {1, " colour 1 1 1 0.002"}}) {
        game.restart();
        runSteps(51);
        spill(100);
        runSteps(steps);
        EXPECT_NE(frameLines("PressRToRestart").at(0).find(colour), std::string::npos) << steps;
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


TEST_F(GameTest, nobodyFiresOnTheTitleNorBetweenWaves) {
    spill(1);
    runSteps(2600);
    spill(1);
    EXPECT_EQ(mixer.sounds, Lines{"VorelDefense_WellDone on channel 8"});
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


TEST_F(GameTest, coinsSoundOnlyWhenWaterDrains) {
    // The drain begins 101 steps after the wave. Two coins sound less than thirty steps apart.
    runSteps(2512 + 110);
    const double water = pureWater();
    ASSERT_LT(water, 90) << "the drain has begun";
    mixer.sounds.clear();
    for (int step = 0; step < 30; ++step)
        game.update(0);
    EXPECT_EQ(pureWater(), water);
    EXPECT_EQ(mixer.sounds, Lines{});
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
