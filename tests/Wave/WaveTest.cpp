#include "Wave/Wave.h"

#include "standin/standin.h"

struct WaveTest : StandinTest {
    Wave wave{1};

    WaveTest() { wave.addEnnemi(Ennemi({0, 0}, 100, 10, 10, 20, 20, "grunt"), 2); }
};


TEST_F(WaveTest, spawnEnnemiReleasesAMixedRosterInItsOrder) {
    wave.addEnnemi(Ennemi({0, 0}, 7, 10, 10, 20, 20, "weak grunt"), 1);
    for (const double x : {1, 2, 3, 4})
        wave.spawnEnnemi({x, 0});
    std::string released;
    for (Ennemi& grunt : wave.getEnnemisInGame())
        released += joined(" at", grunt.getPos(), "with", grunt.getHealth());
    EXPECT_EQ(released, " at 1 0 with 100 at 2 0 with 100 at 3 0 with 7");
}
