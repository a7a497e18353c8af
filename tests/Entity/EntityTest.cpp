#include "Game/play.h"

#include <numeric>

using standin::Words;

namespace {

/// One object of each class around the tower at (512, 352), as the game builds them.
struct Combat : Play {
    Tower tower{{512, 352}};
    Beam jet{10, 80, 300, {100, 100}, 50, 10, {0, 7}};
    Ennemi grunt{{100, 352}, 100, 10, 10, 20, 20, "grunt"};
    Ennemi other = grunt;
    Weapon turret = turretAt(100, 100);

    void step(Entity& entity, int steps = 1) {
        for (int i = 0; i < steps; ++i)
            entity.update(0.02, game);
    }

    /// What the object draws, line by line.
    static std::string picture(const Entity& entity) {
        standin::clear();
        entity.draw(20);
        EXPECT_TRUE(standin::isAtRest());
        const Words lines = standin::drawing();
        return std::accumulate(lines.begin(), lines.end(), std::string());
    }
};

} // namespace


TEST_F(Combat, solidActiveDiscsTouchWhenTheyOverlap) {
    const std::tuple<Entity*, double, bool> cases[] = {{&other, 39.9, true}, {&other, 40, false}, {&tower, 49.9, true},
                                                       {&tower, 50, false},  {&jet, 29.9, true},  {&turret, 0, false}};
    for (const auto& [thing, distance, touches] : cases) {
        thing->setPosition(Vecteur2D(grunt.getPos()[0] + distance, 352));
        EXPECT_EQ(grunt.isColliding(*thing), touches) << distance;
        EXPECT_EQ(thing->isColliding(grunt), touches) << distance;
    }
    EXPECT_FALSE(grunt.isColliding(grunt));
    other.setPosition(grunt.getPos());
    other.onCollideTower(&tower);
    EXPECT_FALSE(grunt.isColliding(other) || other.isColliding(grunt)) << "who has left play touches nothing";
    const double cells[][4] = {{100, 70, 3, 2}, {31.999, 32, 0, 1}, {-31.9, 63.999, 0, 1}};
    for (const auto& [x, y, column, row] : cells) {
        grunt.setPosition({x, y});
        EXPECT_EQ(grunt.getPosCase(), Vecteur2D(column, row));
    }
    grunt.setPositionCase({3, 2});
    EXPECT_EQ(grunt.getPos(), Vecteur2D(96, 64));
}


TEST_F(Combat, everyClassAnswersEveryVisitorByItsRule) {
    tower.collide(&jet), turret.collide(&grunt), turret.collide(&jet), jet.collide(&tower), jet.collide(&turret);
    other.collide(&grunt), other.collide(&turret), jet.collide(&grunt);
    EXPECT_EQ(grunt.getHealth(), 50);
    EXPECT_TRUE(grunt.getIsActivate() && !jet.getExplose() && standin::played.empty());
    grunt.collide(&jet), grunt.collide(&jet), jet.collide(&grunt);
    EXPECT_TRUE(jet.getExplose());
    EXPECT_EQ(standin::played, Words{"splash@-1"}) << "a jet bursts once";
    EXPECT_EQ(grunt.getHealth(), 50) << "a burst jet is harmless";
    tower.collide(&grunt), grunt.collide(&tower);
    EXPECT_FALSE(grunt.getIsActivate()) << "who arrives is gone and leaves its pollution";
    EXPECT_EQ(tower.getPollution(), 10);
}


TEST_F(Combat, theTowerKeepsItsWaterWithinTheTankAndShowsIt) {
    tower.addPollution(40);
    EXPECT_TRUE(tower.canRemoveWater(60) && !tower.canRemoveWater(60.5));
    tower.removeWater(50);
    EXPECT_EQ(tower.getRatio(), 0.8) << "pollution stays when water goes";
    tower.addPollution(15);
    EXPECT_EQ(tower.getPollution(), 50) << "never more pollution than water";
    tower.addPollution(-60);
    EXPECT_EQ(tower.getPollution(), 0);
    tower.addPollution(25);
    EXPECT_EQ(picture(tower), "VorelTower_back_128 448,288>0,0 576,288>1,0 576,416>1,1 1 1 1 1"
                              "VorelTower_water_128 448,319>0,0 576,319>1,0 576,383>1,1 1 0.5 0.5 1"
                              "VorelTower_front_128 448,288>0,0 576,288>1,0 576,416>1,1 1 1 1 1");
    tower.removePollution(), tower.removeWater(60);
    EXPECT_EQ(tower.getRatio(), 0) << "an empty tank has a defined share";
    tower.refil(170);
    EXPECT_EQ(tower.getPureWaterLeft(), tower.getCapacity());
}


TEST_F(Combat, aJetFliesStraightAndVanishesBeyondItsRange) {
    EXPECT_EQ(picture(jet), "VorelDefence_projectile 110,100>0,0 110,109.6>1,0 100.4,109.6>1,1 1 1 1 1") << "upwards";
    step(jet, 187);
    EXPECT_NEAR(jet.getPos().distance(Vecteur2D(100, 399.2)), 0, 1e-9);
    EXPECT_TRUE(jet.isSolide());
    step(jet);
    EXPECT_TRUE(jet.isNeedToBeDelete() && !jet.isSolide()) << "188 steps of 1.6 pixels are more than 300";
    EXPECT_EQ(picture(jet), "");
    Beam exact{10, 15000, 300, {100, 100}, 50, 10, {1, 0}};
    step(exact);
    EXPECT_FALSE(exact.isNeedToBeDelete()) << "300 pixels are within a range of 300";
}


TEST_F(Combat, aSplashHoldsItsFirstFrameAndIsGoneAfter23) {
    jet.onCollideEnnemi(&grunt);
    const std::string at = "VorelDefense_explosions_64 110,100>0.125,0 110,138.4>0.25,0 71.6,138.4>0.25,0.5 1 1 1 1";
    int shown = 0;
    for (; !jet.isNeedToBeDelete(); step(jet))
        EXPECT_EQ(picture(jet) == at, ++shown == 17) << "frame 0 for 16 steps, then each for one: " << shown;
    EXPECT_EQ(shown, 23);
}


TEST_F(Combat, aGruntWalksFacingTheTower) {
    const double cases[][5] = {{100, 352, 100.2, 352, 0.76}, {512, 100, 512, 100.2, 0.51}, {900, 352, 899.8, 352, 0.26},
                               {512, 700, 512, 699.8, 0.01}, {512, 352, 512, 352, 0.01},   {412, 252, 412, 252, 0.01}};
    for (const auto& [x, y, newX, newY, row] : cases) {
        grunt.setPosition({x, y});
        grunt.setSpeed(x == 412 ? 0 : 10); // walking would leave the exact diagonal
        step(grunt);
        EXPECT_NEAR(grunt.getPos().distance(Vecteur2D(newX, newY)), 0, 1e-9) << x << " " << y;
        EXPECT_EQ(std::stod(picture(grunt).substr(picture(grunt).find(">0.001,") + 7)), row) << x << " " << y;
    }
    step(grunt, 2);
    EXPECT_EQ(picture(grunt), "VorelDefense_grunts 396,236>0.001,0.01 428,236>0.249,0.01 428,268>0.249,0.247 1 1 1 1");
    step(grunt);
    EXPECT_NE(picture(grunt).find(">0.251,"), std::string::npos) << "the next walk frame after nine steps";
}


TEST_F(Combat, aGruntWithoutHealthExplodesWalkingAndIsGoneAfter23Steps) {
    standin::dice = {80, 81};
    grunt.removeHealth(50);
    EXPECT_TRUE(standin::played.empty());
    grunt.removeHealth(50);
    EXPECT_EQ(standin::played, (Words{"boom@-1", "cry@-1"}));
    EXPECT_FALSE(grunt.isAlive()) << "no health is dead";
    EXPECT_EQ(picture(grunt), "VorelDefense_explosions_64 52,304>0,0.5 148,304>0.125,0.5 148,400>0.125,1 1 1 1 1");
    step(grunt, 22);
    EXPECT_NE(picture(grunt).find(" 56.4,304>0.875,0.5"), std::string::npos) << picture(grunt);
    grunt.removeHealth(1);
    EXPECT_EQ(standin::played.size(), 2U) << "it cries at every hit, and may be drawn wrong";
    EXPECT_EQ(picture(grunt), "VorelDefense_grunts 88.4,336>0.875,0.5 120.4,336>1,0.5 120.4,368>1,1 1 1 1 1");
    step(grunt);
    EXPECT_FALSE(grunt.getIsActivate());
    EXPECT_EQ(picture(grunt), "");
}


TEST_F(Combat, aTurretFiresWhenReadyInRangeAndPaidFor) {
    EXPECT_FALSE(turret.shoot({400.01, 100}, tower));
    EXPECT_TRUE(turret.shoot({400, 100}, tower)) << "exactly in range";
    EXPECT_EQ(tower.getWater(), 99);
    EXPECT_EQ(standin::played, Words{"stream@-1"});
    int steps = 0;
    for (; !turret.shoot({100, 200}, tower); step(turret))
        ++steps;
    EXPECT_EQ(steps, 50) << "one shot a second";
    Weapon copy(turret);
    EXPECT_TRUE(copy.getBeams().empty()) << "jets stay with the turret that fired them";
    EXPECT_FALSE(copy.shoot({100, 200}, tower)) << "a copy has the same rest to wait";
    step(turret, 50);
    tower.removeWater(97.5);
    EXPECT_FALSE(turret.shoot({100, 200}, tower)) << "half a unit does not pay a shot";
    tower.refil(0.5);
    standin::clear();
    EXPECT_TRUE(turret.shoot({100, 100}, tower)) << "the last unit does";
    EXPECT_TRUE(standin::loaded.empty()) << "a shot reads no picture again";
    step(turret, 300);
    EXPECT_EQ(picture(turret), "WaterTurret_64x64 68,68>0,0 132,68>1,0 132,132>1,1 1 1 1 1"
                               "VorelDefence_projectile 100,110>0,0 100,100.4>1,0 109.6,100.4>1,1 1 1 1 1")
        << "jets beyond their range are gone, the one fired at the turret itself stays";
}
