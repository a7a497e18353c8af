#include "Game/GameTest.h"

TEST_F(GameTest, nobodyEntersOnTheTitleButItsTimeCounts) {
    for (int step = 0; step < 60; ++step)
        game.update(0.02);
    EXPECT_EQ(newGrunts(), 0) << "nobody enters";
    runSteps(1);
    EXPECT_EQ(newGrunts(), 1) << "a second has passed";
}


TEST_F(GameTest, restartLeavesNothingButTheGround) {
    const auto state = [this] {
        return joined("money", money(), "water", pureWater(), "selected", game.tourelleActivite(), "shows",
                      frameLines("")[0]);
    };
    const std::string fresh = state();
    EXPECT_EQ(fresh, "money 2000 water 100 selected 0 shows TitleScreen 0,0 1024,0 1024,768 0,768");
    game.poserTourelle(800, 600);
    game.activeTourelle();
    runSteps(2750);
    ASSERT_GT(money(), 1000) << "paid between waves";
    dice.rolls = {99};
    game.restart();
    game.restart();
    EXPECT_EQ(state(), fresh);
    EXPECT_EQ(dice.rolls.size(), 1U) << "no dice are thrown for another ground";
    newGrunts();
    runSteps(100);
    EXPECT_EQ(newGrunts(), 1) << "the one grunt of the first wave";
    EXPECT_EQ(frameLines("WaterTurret"), Lines{});
}


TEST_F(GameTest, theDefeatFadesInAnewAfterARestart) {
    for (const auto& [steps, colour] : {std::pair(101, " colour 1 1 1 0.202"), {1, " colour 1 1 1 0.002"}}) {
        game.restart();
        game.addWeapon(turretAt(800, 600, 100));
        runSteps(51);
        game.shoot({800, 600});
        runSteps(steps);
        EXPECT_EQ(frameLines("BottleContent").size(), 1U) << "an empty tank has no red band in the gauge";
        EXPECT_NE(frameLines("PressRToRestart").at(0).find(colour), std::string::npos) << steps;
    }
}


TEST_F(GameTest, spawnEnnemiChoosesAPlaceOutsideTheEdgesByTheClock) {
    // clang-format off
    const std::pair<long long, Vecteur2D> cases[] = {
        {LEFT_OF_TOWER + (1LL << 32), {-30, 351.9975}}, {ABOVE_TOWER, {511.9981, 798}}, // the low 32 bits choose
        {FAR_RIGHT, {1054, 940.0601}}, {BELOW_TOWER, {512.0011, -30}}};
    // clang-format on
    for (const auto& [nanoseconds, place] : cases) {
        clocks.nanoseconds = nanoseconds;
        EXPECT_NEAR(game.spawnEnnemi().distance(place), 0, 1e-4) << place;
    }
}


TEST_F(GameTest, theGameIsLostWithoutWaterAfterASecondsGrace) {
    game.addWeapon(turretAt(800, 600, 99.5));
    runSteps(1);
    game.shoot({800, 550});
    runSteps(49);
    EXPECT_FALSE(game.hasLoos());
    runSteps(4000);
    game.addWeapon(turretAt(800, 600, 0));
    game.shoot({800, 550});
    EXPECT_EQ(mixer.sounds, (Lines{"WaterStream", "VorelDefense_GameOver on channel 8"})) << "and nothing more";
}


TEST_F(GameTest, defeatIsJudgedBeforeTheWavesEnd) {
    // One unit of pure water is left when the only grunt arrives, or half of one.
    for (const auto& [cost, ending] :
         {std::pair(89.0, "VorelDefense_WellDone on channel 8"), {89.5, "VorelDefense_GameOver on channel 8"}}) {
        game.restart();
        game.addWeapon(turretAt(512, 252, cost));
        runSteps(1);
        game.shoot({512, 200});
        runSteps(2511);
        EXPECT_EQ(mixer.sounds.back(), ending);
    }
}


TEST_F(GameTest, betweenWavesNobodyFiresAndAStepOfNoLengthSoundsNoCoins) {
    // The drain begins 101 steps after the wave; thirty steps are more than from one coin to the next.
    runSteps(2512 + 110);
    ASSERT_LT(pureWater(), 90) << "the drain has begun";
    mixer.sounds.clear();
    for (int step = 0; step < 30; ++step)
        game.update(0);
    game.addWeapon(turretAt(800, 600));
    game.shoot({800, 550});
    EXPECT_EQ(mixer.sounds, Lines{}) << "coins sound only when water goes, jets only in a wave";
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


TEST_F(GameTest, poserTourelleBuysOnTheLatticeWithRoomAround) {
    // clang-format off
    const std::tuple<const char*, int, int, int> cases[] = {
        {"64 pixels from the tower are too near", 607, 383, 2000}, {"115 are not", 639, 300, 1000},
        {"45 from a turret are too near", 640, 330, 1000}, {"64 are not, and the last money pays", 672, 300, 0},
        {"nothing without money", 99, 99, 0}};
    // clang-format on
    for (const auto& [what, x, y, left] : cases) {
        game.poserTourelle(x, y);
        EXPECT_EQ(money(), left) << what;
    }
}
