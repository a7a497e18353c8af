#include "Wave/Wave.h"

#include "standin/standin.h"

struct WaveTest : StandinTest {
    Wave wave{1};

    WaveTest() { wave.addEnnemi(Ennemi({0, 0}, 100, 10, 10, 20, 20, "grunt"), 2); }
};


TEST_F(WaveTest, spawnEnnemiReleasesTheRosterWhereItIsTold) {
    for (const double x : {100.0, 200.0, 300.0})
        wave.spawnEnnemi({x, 352});
    ASSERT_EQ(wave.getEnnemisInGame().size(), 2U) << "nobody is left for the third place";
    EXPECT_EQ(wave.getEnnemisInGame()[1].getPos(), Vecteur2D(200, 352));
}


TEST_F(WaveTest, isFinishWhenAllHaveEnteredAndAreGone) {
    for (const bool finished : {false, true}) {
        wave.spawnEnnemi({100, 352});
        EXPECT_FALSE(wave.isFinish());
        wave.getEnnemisInGame().back().onCollideTower(nullptr);
        EXPECT_EQ(wave.isFinish(), finished);
    }
}


TEST_F(WaveTest, getIdCountsEveryWave) { EXPECT_EQ(Wave(1).getId(), wave.getId() + 1); }
