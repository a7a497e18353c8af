#include "Game/play.h"

/// One object of each class around the tower at (512, 352), as the game builds them.
struct Combat : Play {
    Tower tower{{512, 352}};
    Beam jet{10, 80, 300, {100, 100}, 50, 10, {0, 7}};
    Ennemi grunt{{100, 352}, 100, 10, 10, 20, 20, "grunt"};
    Ennemi other = grunt;
    Weapon turret = turretAt(100, 100);

    void step(Entity& entity, int steps = 1) {
        while (steps-- > 0)
            entity.update(0.02, game);
    }

    static Words picture(const Entity& entity) {
        standin::clear(), entity.draw(20);
        return standin::drawn;
    }
};


TEST_F(Combat, solidActiveDiscsTouchWhenTheyOverlap) {
    const std::tuple<Entity*, double, bool> cases[] = {{&other, 39.9, true}, {&other, 40, false}, {&tower, 49.9, true},
                                                       {&tower, 50, false},  {&jet, 29.9, true},  {&turret, 0, false}};
    for (const auto& [thing, distance, touches] : cases) {
        thing->setPosition(Vecteur2D(100 + distance, 352));
        EXPECT_TRUE(grunt.isColliding(*thing) == touches && thing->isColliding(grunt) == touches) << distance;
    }
    other.setPosition(grunt.getPos()), other.onCollideTower(&tower);
    EXPECT_FALSE(grunt.isColliding(grunt) || grunt.isColliding(other) || other.isColliding(grunt));
}


TEST_F(Combat, theTowerKeepsItsWaterWithinTheTankAndShowsIt) {
    tower.addPollution(40);
    EXPECT_TRUE(tower.canRemoveWater(60) && !tower.canRemoveWater(60.5));
    tower.removeWater(50), tower.addPollution(15);
    EXPECT_EQ(tower.getPollution(), 50) << "never more pollution than water";
    tower.addPollution(-60), tower.addPollution(25);
    EXPECT_EQ(picture(tower)[1], "VorelTower_water_128 448,319 576,319 576,383 1 0.5 0.5 1");
    tower.removePollution(), tower.removeWater(60);
    EXPECT_EQ(tower.getWater() + tower.getRatio(), 0) << "an empty tank has a defined share";
    tower.refil(170);
    EXPECT_EQ(tower.getPureWaterLeft(), 100);
}


TEST_F(Combat, aJetVanishesBeyondItsRangeOrAfter23FramesOfItsSplash) {
    Beam burst(jet), exact(10, 15000, 300, {100, 100}, 50, 10, {1, 0});
    EXPECT_EQ(picture(jet), Words{"VorelDefence_projectile 110,100 110,109.6 100.4,109.6"}) << "upwards";
    step(exact), step(jet, 188), burst.onCollideEnnemi(&grunt), step(burst, 22);
    EXPECT_TRUE(exact.isSolide()) << "300 pixels are within a range of 300";
    EXPECT_TRUE(jet.isNeedToBeDelete() && !jet.isSolide() && picture(jet).empty()) << "300.8 pixels are not";
    EXPECT_EQ(picture(burst), Words{"VorelDefense_explosions_64 110,100 110,138.4 71.6,138.4 > 0.875,0 1,0 1,0.5"});
    step(burst);
    EXPECT_TRUE(burst.isNeedToBeDelete());
}


TEST_F(Combat, aGruntFacesTheTowerAndChangesItsWalkFrameAtEveryNinthStep) {
    const double cases[][3] = {{100, 352, 0.76}, {512, 100, 0.51}, {900, 352, 0.26}, {512, 700, 0.01},
                               {512, 352, 0.01}, {412, 252, 0.01}, {612, 252, 0.01}, {412, 452, 0.01}};
    grunt.setSpeed(0);
    for (const auto& [x, y, row] : cases) {
        grunt.setPosition({x, y}), step(grunt);
        const std::string shown = picture(grunt)[0];
        EXPECT_EQ(std::stod(shown.substr(shown.find("> 0.001,") + 8)), row) << shown;
    }
    step(grunt);
    EXPECT_EQ(picture(grunt), Words{"VorelDefense_grunts 396,436 428,436 428,468 > 0.251,0.01 0.499,0.01 0.499,0.247"});
}


TEST_F(Combat, aGruntWithoutHealthExplodesWalkingAndIsSometimesDrawnWrong) {
    standin::dice = {80, 81};
    grunt.removeHealth(100), step(grunt, 22);
    EXPECT_EQ(picture(grunt), Words{"VorelDefense_explosions_64 56.4,304 152.4,304 152.4,400 > 0.875,0.5 1,0.5 1,1"});
    grunt.removeHealth(1);
    EXPECT_EQ(picture(grunt), Words{"VorelDefense_grunts 88.4,336 120.4,336 120.4,368 > 0.875,0.5 1,0.5 1,1"});
    Wave wave(1);
    wave.addEnnemi(grunt, 2), wave.spawnEnnemi({100, 352}), wave.update(0.02, game);
    EXPECT_FALSE(wave.isFinish()) << "one grunt of the wave has yet to enter";
    EXPECT_EQ(picture(wave.getEnnemisInGame()[0]), Words{}) << "23 steps after its death";
}


TEST_F(Combat, aTurretFiresWhenReadyInRangeAndPaidFor) {
    EXPECT_TRUE(!turret.shoot({400.01, 100}, tower) && turret.shoot({400, 100}, tower)) << "exactly in range";
    step(turret, 49);
    EXPECT_FALSE(Weapon(turret).shoot({100, 200}, tower)) << "a copy has the same rest to wait";
    EXPECT_TRUE(Weapon(turret).getBeams().empty()) << "jets stay with the turret that fired them";
    step(turret), tower.removeWater(98.5);
    EXPECT_FALSE(turret.shoot({100, 200}, tower)) << "half a unit does not pay a shot";
    tower.refil(0.5);
    const size_t read = standin::textures.size();
    EXPECT_TRUE(turret.shoot({100, 100}, tower)) << "the last unit does";
    EXPECT_EQ(standin::textures.size(), read) << "no shot reads its pictures again";
    step(turret, 50), tower.refil(9), turret.shoot({100, 200}, tower), turret.update(10, game);
    EXPECT_EQ(picture(turret), (Words{"WaterTurret_64x64 68,68 132,68 132,132",
                                      "VorelDefence_projectile 100,110 100,100.4 109.6,100.4"}))
        << "two jets are beyond their range at once, the one fired at the turret itself stays";
}
