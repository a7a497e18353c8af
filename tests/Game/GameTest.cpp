#include "Game/play.h"

using standin::Words;

TEST_F(Play, beginsOnTheTitleScreenWithAFullTowerAndMoneyForTwoTurrets) {
    EXPECT_EQ(frame(), Words{"TitleScreen 0,0>0,0 1024,0>1,0 1024,768>1,1 1 1 1 1"});
    EXPECT_EQ(money(), 2000);
    EXPECT_TRUE(game.isContinueToPlay());
    for (int i = 0; i < 200; ++i)
        game.update(0.02);
    EXPECT_EQ(standin::entered, 0) << "nobody enters while the title is shown";
    EXPECT_FALSE(game.isPlaying() || game.getIsInBetwenWave() || game.hasLoos() || game.tourelleActivite());
    steps(1);
    EXPECT_EQ(standin::entered, 1) << "the time that has passed counts";
}


TEST_F(Play, gruntsEnterOutsideTheEdgeThatTheClockChose) {
    const std::tuple<long long, double, double> cases[] = {{60911, -30, 351.9975},
                                                           {(1LL << 32) + 60911, -30, 351.9975},
                                                           {224874, 511.9981, 798},
                                                           {99999, 1054, 527.8391},
                                                           {139199, 512.0011, -30}};
    for (const auto& [seed, x, y] : cases) {
        standin::nanoseconds = seed;
        EXPECT_NEAR(game.spawnEnnemi().distance(Vecteur2D(x, y)), 0, 1e-4) << seed;
    }
}


TEST_F(Play, leftWaterDrainsBetweenWavesAndTheCountdownWaitsForTheClick) {
    steps(2512);
    ASSERT_TRUE(game.getIsInBetwenWave() && !game.isContinueToPlay());
    EXPECT_EQ(game.getTimeBeforeNextWave(), 15);
    EXPECT_EQ(standin::calls, Words{"volume 8 50"});
    for (const double left : {90, 90, 45}) {
        EXPECT_NEAR(game.getTower().getPureWaterLeft(), left, 0.01);
        steps(left == 45 ? 3000 : 50 + 50 * (standin::played.size() == 1));
        standin::played.clear();
    }
    EXPECT_NEAR(game.getTimeBeforeNextWave(), 10, 0.021) << "the countdown holds";
    EXPECT_EQ(game.getTower().getPollution(), 10) << "until the next wave";
}


TEST_F(Play, firesAndLosesOnlyWhilePlayingAndAfterASecondsGrace) {
    Weapon expensive = turretAt(800, 600, 99);
    game.addWeapon(&expensive);
    game.addWeapon(turretAt(800, 500, 0.5));
    expensive.setPosition({0, 0});
    game.shoot({800, 550});
    EXPECT_EQ(game.getTower().getWater(), 100) << "nobody fires on the title screen";
    steps(1);
    game.shoot({800, 550});
    EXPECT_EQ(game.getTower().getWater(), 0.5) << "the game's turret is a copy, which stayed in range";
    steps(49);
    EXPECT_FALSE(game.hasLoos());
    steps(1);
    EXPECT_TRUE(game.hasLoos());
    steps(4000);
    EXPECT_TRUE(frame("VorelDefense_grunts").empty()) << "the grunt that had entered has arrived, no other enters";
    EXPECT_FALSE(game.getIsInBetwenWave()) << "a lost game stays lost";
    game.shoot({800, 550});
    EXPECT_EQ(game.getTower().getWater(), 0.5);
}


TEST_F(Play, defeatIsJudgedBeforeTheWavesEnd) {
    game.addWeapon(turretAt(512, 252, 89.5));
    steps(1);
    game.shoot({512, 200});
    steps(2511);
    EXPECT_EQ(standin::played, (Words{"stream@-1", "defeat@8"})) << "the arriving grunt leaves half a unit";
}


TEST_F(Play, jetsThatArriveInOneStepAllHurtAndBurst) {
    steps(52);
    for (const double y : {350.0, 352.0, 354.0})
        game.addWeapon(turretAt(0, y, 0, y == 354 ? 1 : 50));
    game.shoot({-100, 352});
    standin::clear();
    steps(1);
    EXPECT_EQ(standin::played, (Words{"boom@-1", "cry@-1", "boom@-1", "cry@-1", "splash@-1", "splash@-1", "splash@-1"}))
        << "the jets come before the grunt in the list, so each hurts before any of them bursts";
}


TEST_F(Play, restartGivesAFreshGameOnTheSameGround) {
    game.drawSol(20);
    const Words ground = standin::drawing();
    game.poserTourelle(800, 600);
    game.activeTourelle();
    steps(2520);
    for (int times = 0; times < 2; ++times)
        game.restart();
    EXPECT_TRUE(game.getIsInTitleScreen());
    EXPECT_FALSE(game.getIsInBetwenWave() || game.isContinueToPlay() || game.tourelleActivite());
    EXPECT_EQ(game.getTower().getPureWaterLeft(), 100);
    EXPECT_EQ(money(), 2000);
    standin::clear();
    game.drawSol(20);
    EXPECT_EQ(standin::drawing(), ground);
    steps(200);
    EXPECT_EQ(standin::entered, 1) << "the first wave again";
    EXPECT_TRUE(frame("WaterTurret").empty());
}


TEST_F(Play, theShopSellsOnItsButtonAndPlacesOnTheLatticeWithRoomAround) {
    const std::tuple<int, int, bool> clicks[] = {{960, 600, true},   {1024, 600, true}, {959, 600, false},
                                                 {1025, 600, false}, {990, 563, false}, {990, 564, true},
                                                 {990, 627, true},   {990, 628, false}};
    for (const auto& [x, y, hit] : clicks)
        EXPECT_EQ(game.aCliqueTourelle(x, y), hit) << x << " " << y;
    // 64 pixels from the tower; 115 from it; 45 from that turret; 64 from it, for the last money; and without money.
    const std::tuple<int, int, int> places[] = {
        {607, 383, 2000}, {639, 300, 1000}, {640, 330, 1000}, {672, 300, 0}, {99, 99, 0}};
    for (const auto& [x, y, left] : places) {
        game.poserTourelle(x, y);
        EXPECT_EQ(standin::played.size(), x == 639 || x == 672 ? 1U : 0U);
        EXPECT_EQ(money(), left) << x << " " << y;
    }
    steps(1);
    EXPECT_EQ(frame("WaterTurret"), (Words{"WaterTurret_64x64 576,256>0,0 640,256>1,0 640,320>1,1 1 1 1 1",
                                           "WaterTurret_64x64 640,256>0,0 704,256>1,0 704,320>1,1 1 1 1 1"}));
}
