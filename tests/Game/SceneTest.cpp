#include "Game/play.h"

using standin::Words;

TEST_F(Play, theFrameIsDrawnBackToFront) {
    game.addWeapon(turretAt(300, 300, 20));
    steps(51);
    game.shoot({400, 300});
    game.activeTourelle();
    Words lines = frame("", 300, 338.9);
    const std::string unitsDigit = "Numbers_320x64 964,698>0,0 977.333,698>0.1,0 977.333,724.667>0.1,1 1 1 1 1";
    const std::string thousands = "Numbers_320x64 924,698>0.2,0 937.333,698>0.3,0 937.333,724.667>0.3,1 1 1 1 1";
    const std::string sixthDigit = "Numbers_320x64 897.333,698>0,0 910.667,698>0.1,0 910.667,724.667>0.1,1 1 1 1 1";
    ASSERT_EQ(lines.size(), 22U);
    EXPECT_EQ(lines[18], thousands);
    lines.erase(lines.begin() + 16, lines.begin() + 20);
    EXPECT_EQ(
        lines,
        (Words{"VorelTower_back_128 448,288>0,0 576,288>1,0 576,416>1,1 1 1 1 1",
               "VorelTower_water_128 448,300.4>0,0 576,300.4>1,0 576,402.8>1,1 1 1 1 1",
               "VorelTower_front_128 448,288>0,0 576,288>1,0 576,416>1,1 1 1 1 1",
               "VorelDefense_grunts -46,335.998>0.001,0.76 -14,335.998>0.249,0.76 -14,367.998>0.249,0.997 1 1 1 1",
               "TurretIcon_64 256,288>0,0 320,288>1,0 320,352>1,1 1 1 1 0.4",
               "- 41 588,320 584.307,366.93 573.317,412.705 1 0 0 0.1",
               "WaterTurret_64x64 268,268>0,0 332,268>1,0 332,332>1,1 1 1 1 1",
               "VorelDefence_projectile 300,300>0,0 309.6,300>1,0 309.6,309.6>1,1 1 1 1 1",
               "- 41 600,300 596.307,346.93 585.317,392.705 1 0 0 0.1",
               "WeaponPanel_128x256 896,412>0,0 1024,412>1,0 1024,668>1,1 1 1 1 1",
               "TurretIcon_64 960,563>0,0 1024,563>1,0 1024,627>1,1 1 1 1 1",
               "BottleContent_128x1024 0,0>0,0 64,0>1,0 64,335.6>1,0.655469 0 0 1 1",
               "BottleContent_128x1024 0,0>0,0 64,0>1,0 64,72>1,0.140625 1 0 0 1",
               "BottleGauge_128x1024 0,0>0,0 64,0>1,0 64,512>1,1 1 1 1 1",
               "MoneyPanel_512x256 844,668>0,0 1014,668>1,0 1014,753>1,1 1 1 1 1", unitsDigit, sixthDigit,
               "DollarSign_64 870.667,698>0,0 897.333,698>1,0 897.333,724.667>1,1 1 1 1 1"}));
    EXPECT_EQ(frame("- ", 300, 339).size(), 2U) << "39 pixels away the range shows";
    EXPECT_EQ(frame("- ", 300, 340).size(), 1U) << "40 are too far";
    game.desactiveTourelle();
    game.restart();
    EXPECT_EQ(frame("", 300, 300).size(), 1U);
}


TEST_F(Play, theRoundEndPanelShowsPieEarningsAndWaveAndFades) {
    steps(2512 + 50);
    const auto panel = [this] { return frame("EndRound").at(0); };
    EXPECT_EQ(panel(), "EndRoundPanel_1024 0,0>0,0.125 1024,0>1,0.125 1024,768>1,0.875 1 1 1 0.5");
    EXPECT_EQ(frame("Numbers")[6], "Numbers_320x64 588,296>0,0 614.667,296>0.1,0 614.667,349.333>0.1,1 1 1 1 0.5");
    EXPECT_EQ(frame("WavePanel")[0], "WavePanel_512x256 150,500>0,0 150,756>0,1 662,756>1,1 1 1 1 0.5");
    EXPECT_EQ(frame("Numbers")[12], "Numbers_320x64 650,545>0.1,0 714,545>0.2,0 714,673>0.2,1 1 1 1 0.5");
    EXPECT_EQ(frame("Numbers")[13], "Numbers_320x64 586,545>0,0 650,545>0.1,0 650,673>0.1,1 1 1 1 0.5");
    // One tenth of the water is polluted: four of the forty slices, then the other thirty-six.
    EXPECT_EQ(frame("Red")[0],
              "RedCircle_512 6 745,376>0.5,0.5 795,376>1,0.5 794.384,383.822>0.993844,0.578217 1 1 1 0.5");
    EXPECT_EQ(frame("Blue")[0], "BlueCircle_512 38 745,376>0.5,0.5 785.451,405.389>0.904508,0.793893 "
                                "780.355,411.355>0.853553,0.853553 1 1 1 0.5");
    EXPECT_EQ(frame("Skin")[0],
              "SkinCircle_512 3 765,381>0.5,0.5 815,381>1,0.5 814.384,388.822>0.993844,0.578217 1 1 1 0.5");
    steps(300);
    EXPECT_EQ(panel().substr(panel().size() - 7), "1 1 1 1") << "held until the click";
    game.setContinueToPlay(true);
    steps(150);
    EXPECT_NEAR(std::stod(panel().substr(panel().size() - 4)), 0.5, 0.02) << "half faded out three seconds later";
}


TEST_F(Play, theDefeatBannerFadesInOverTheScene) {
    game.addWeapon(turretAt(800, 600, 100));
    steps(1);
    game.shoot({800, 500});
    steps(50 + 249);
    EXPECT_EQ(frame("Press")[0], "PressRToRestart_1024x256 0,256>0,0 1024,256>1,0 1024,512>1,1 1 1 1 0.5");
    EXPECT_EQ(frame("WavePanel").size(), 1U);
    EXPECT_EQ(frame("WeaponPanel").size(), 1U) << "the scene goes on under it";
    EXPECT_EQ(frame("BottleContent").size(), 1U) << "an empty tank has no polluted band";
    EXPECT_TRUE(frame("- ", 800, 600).empty()) << "no ranges after a defeat";
}
