#include "Wave/Wave.h"

#include "standin/standin.h"

struct WaveTest : StandinTest {
    Wave wave{1};

    WaveTest() { wave.addEnnemi(Ennemi({0, 0}, 100, 10, 10, 20, 20, "grunt"), 2); }
};


TEST_F(WaveTest, isFinishWhenAllHaveEnteredAndAreGone) {
    for (const bool finished : {false, true}) {
        wave.spawnEnnemi({100, 352});
        EXPECT_FALSE(wave.isFinish());
        wave.getEnnemisInGame().back().onCollideTower(nullptr);
        EXPECT_EQ(wave.isFinish(), finished);
    }
}


TEST_F(WaveTest, getIdCountsEveryWave) { EXPECT_EQ(Wave(1).getId(), wave.getId() + 1); }
