#include "Game/play.h"

TEST_F(Play, aRestartedGameIsAsNewOnTheSameGround) {
    standin::dice = {99};
    for (const bool restarted : {false, true}) {
        EXPECT_EQ(frame(), Words{"TitleScreen 0,0 1024,0 1024,768"});
        EXPECT_EQ(money(), 2000);
        EXPECT_FALSE(game.isPlaying() || game.getIsInBetwenWave() || game.tourelleActivite());
        EXPECT_EQ(game.isContinueToPlay(), !restarted);
        for (int i = 0; i < (restarted ? 40 : 60); ++i)
            game.update(0.02);
        steps(restarted ? 10 : 0);
        EXPECT_EQ(standin::entered, 0);
        steps(1);
        EXPECT_EQ(standin::entered, 1) << "the time on the title screen counts";
        EXPECT_EQ(game.getTower().getPureWaterLeft() + frame("WaterTurret").size(), 100);
        game.poserTourelle(800, 600), game.activeTourelle(), steps(2700), game.setContinueToPlay(true);
        EXPECT_TRUE(money() > 2000 && !game.isPlaying()) << "paid between waves";
        game.restart(), game.restart();
    }
    EXPECT_EQ(standin::dice.size(), 1U) << "no dice are thrown for another ground";
}


TEST_F(Play, gruntsEnterOutsideTheEdgeThatTheClockChose) {
    const std::tuple<long long, double, double> cases[] = {
        {(1LL << 32) + 60911, -30, 351.9975}, {21, 1054, 940.0601}, {139199, 512.0011, -30}};
    for (const auto& [seed, x, y] : cases) {
        standin::nanoseconds = seed;
        EXPECT_NEAR(game.spawnEnnemi().distance(Vecteur2D(x, y)), 0, 1e-4) << seed;
    }
}


TEST_F(Play, firesAndLosesOnlyWhilePlayingAndAfterASecondsGrace) {
    Weapon expensive = turretAt(800, 600, 99.5);
    game.addWeapon(&expensive), game.addWeapon(turretAt(800, 500, 0.5));
    expensive.setPosition({0, 0});
    game.shoot({800, 550}), steps(1);
    EXPECT_EQ(game.getTower().getWater(), 100) << "nobody fires on the title screen";
    game.shoot({800, 550}), steps(49);
    EXPECT_EQ(game.getTower().getWater() + game.hasLoos(), 0) << "the game's turret is a copy, which stayed in range";
    steps(1);
    EXPECT_EQ(standin::calls, Words{"volume 8 50"}) << "the jingle of the defeat";
    EXPECT_EQ(frame("- ", 800, 600), Words{}) << "ranges are shown while playing only";
    EXPECT_EQ(frame("BottleContent").size(), 1U) << "an empty tank has no polluted band";
    steps(4000), game.shoot({800, 550});
    EXPECT_TRUE(standin::played.empty() && standin::entered == 0) << "nobody fires, enters or ends a wave any more";
}


TEST_F(Play, defeatIsJudgedBeforeTheWavesEnd) {
    for (const double cost : {89.0, 89.5}) {
        game.restart(), game.addWeapon(turretAt(512, 252, cost));
        steps(1), game.shoot({512, 200}), steps(2511);
        EXPECT_EQ(standin::played.back(), cost == 89 ? "good job@8" : "defeat@8") << "one unit is left, or half of one";
    }
}


TEST_F(Play, jetsThatArriveInOneStepAllHurtAndBurst) {
    steps(52);
    for (const double y : {350.0, 352.0, 354.0})
        game.addWeapon(turretAt(0, y, 0, y == 354 ? 1 : 50));
    game.shoot({-100, 352}), standin::clear(), steps(1);
    EXPECT_EQ(standin::played, (Words{"boom@-1", "cry@-1", "boom@-1", "cry@-1", "splash@-1", "splash@-1", "splash@-1"}))
        << "the jets come before the grunt in the list, so each hurts before any of them bursts";
}


TEST_F(Play, theShopSellsOnItsButtonAndPlacesOnTheLatticeWithRoomAround) {
    const int clicks[][3] = {{960, 600, 1}, {1024, 600, 1}, {959, 600, 0}, {1025, 600, 0},
                             {990, 563, 0}, {990, 564, 1},  {990, 627, 1}, {990, 628, 0}};
    for (const auto& [x, y, hit] : clicks)
        EXPECT_EQ(game.aCliqueTourelle(x, y), hit != 0) << x << " " << y;
    // 64 pixels from the tower; 115 from it; 45 from that turret; 64 from it, for the last money; and without money.
    const int places[][3] = {{607, 383, 2000}, {639, 300, 1000}, {640, 330, 1000}, {672, 300, 0}, {99, 99, 0}};
    for (const auto& [x, y, left] : places) {
        game.poserTourelle(x, y);
        EXPECT_EQ(standin::played.size(), x == 639 || x == 672 ? 1U : 0U);
        EXPECT_EQ(money(), left) << x << " " << y;
    }
    steps(1);
    EXPECT_EQ(frame("WaterTurret")[1], "WaterTurret_64x64 640,256 704,256 704,320");
}
