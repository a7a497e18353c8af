#include "Game/play.h"
#include "standin/standin.h"

TEST_F(Play, theFieldIsDrawnBackToFront) {
    game.addWeapon(turretAt(300, 300, 20));
    play(51);
    game.shoot({400, 300});
    game.activeTourelle();
    expectAsRecorded("field", seen("", 300, 338.9));
}


TEST_F(Play, theRoundEndPanelShowsPieEarningsAndWave) {
    // One tenth of the water is polluted: four of the forty slices, then the other thirty-six.
    play(2512 + 50);
    expectAsRecorded("roundEnd", seen());
}
