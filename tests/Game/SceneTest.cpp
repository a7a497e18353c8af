#include "Game/GameTest.h"

TEST_F(GameTest, theTitleFillsTheWindow) { EXPECT_EQ(frameLines(), Lines{"TitleScreen 0,0 1024,0 1024,768 0,768"}); }


TEST_F(GameTest, theFieldIsDrawnBackToFront) {
    game.addWeapon(turretAt(300, 300, 20));
    runSteps(51);
    game.shoot({400, 300});
    game.activeTourelle();
    expectAsRecorded("field", frameLines("", 300, 338.9));
}
