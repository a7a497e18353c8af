#include "Game/play.h"

TEST_F(Play, theFieldIsDrawnBackToFrontUnderTheRangeOfTheTurretAtTheMouse) {
    game.addWeapon(turretAt(300, 300, 20));
    steps(51);
    game.shoot({400, 300}), game.activeTourelle();
    Words lines = frame("", 300, 338.9);
    lines.resize(11);
    EXPECT_EQ(
        lines,
        (Words{
            "tileSet_v2_32x32 3072 0,0 0,32 32,32 > 0.343333,0.176667 0.343333,0.323333 0.656667,0.323333",
            "VorelTower_back_128 448,288 576,288 576,416", "VorelTower_water_128 448,300.4 576,300.4 576,402.8",
            "VorelTower_front_128 448,288 576,288 576,416",
            "VorelDefense_grunts -46,335.998 -14,335.998 -14,367.998 > 0.001,0.76 0.249,0.76 0.249,0.997",
            "TurretIcon_64 256,288 320,288 320,352 1 1 1 0.4", "- 41 588,320 584.307,366.93 573.317,412.705 1 0 0 0.1",
            "WaterTurret_64x64 268,268 332,268 332,332", "VorelDefence_projectile 300,300 309.6,300 309.6,309.6",
            "- 41 600,300 596.307,346.93 585.317,392.705 1 0 0 0.1", "WeaponPanel_128x256 896,412 1024,412 1024,668"}));
    game.desactiveTourelle();
    EXPECT_EQ(frame("- ", 300, 339).size() - frame("- ", 300, 340).size(), 1U) << "39 pixels away, but not 40";
}


TEST_F(Play, theRoundEndPanelShowsPieEarningsAndWaveAndFades) {
    steps(2512 + 50);
    // One tenth of the water is polluted: four of the forty slices, then the other thirty-six.
    const Words lines = frame();
    EXPECT_EQ(lines[7], "BottleContent_128x1024 0,0 64,0 64,104.95 > 0,0 1,0 1,0.20498 1 0 0 1");
    EXPECT_EQ(lines[17], "EndRoundPanel_1024 0,0 1024,0 1024,768 > 0,0.125 1,0.125 1,0.875 1 1 1 0.5");
    EXPECT_EQ(lines[18].find("RedCircle_512 6 745,376 795,376 794.384,383.822 > 0.5,0.5 1,0.5"), 0U);
    EXPECT_EQ(lines[19].find("BlueCircle_512 38 745,376 785.451,405.389 780.355,411.355 > 0.5,0.5"), 0U);
    EXPECT_EQ(lines[21], "Numbers_320x64 588,296 614.667,296 614.667,349.333 > 0,0 0.1,0 0.1,1 1 1 1 0.5");
    EXPECT_EQ(lines[29], "Numbers_320x64 650,545 714,545 714,673 > 0.1,0 0.2,0 0.2,1 1 1 1 0.5");
}
