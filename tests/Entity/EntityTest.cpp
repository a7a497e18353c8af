#include "Game/GameTest.h"

/// One object of each class, as the game builds them. `tower` stands where the game's own does, but is another: grunts
/// walk to the game's, and the turret, at (100, 100) like the jet, drinks from this one.
struct Combat : GameTest {
    Tower tower{{512, 352}};
    Beam jet{10, 80, 300, {100, 100}, 50, 10, {0, 7}};
    Ennemi grunt{{100, 352}, 100, 10, 10, 20, 20, "grunt"};
    Ennemi other = grunt;
    Weapon turret = turretAt(100, 100);

    void update(Entity& entity, int steps) const {
        while (steps-- > 0)
            entity.update(0.02, game);
    }

    static Lines drawnBy(const Entity& entity) {
        screen.drawn.clear();
        entity.draw(20);
        return screen.drawn;
    }
};


TEST_F(Combat, isCollidingWhenDiscsOfSolidActiveObjectsOverlap) {
    // clang-format off
    const std::tuple<Entity*, double, bool> cases[] = {
        {&other, 39.9, true}, {&other, 40, false}, {&tower, 49.9, true}, {&tower, 50, false}, {&jet, 29.9, true},
        {&jet, 30, false}, {&turret, 0, false}, {&grunt, 0, false}};
    // clang-format on
    for (const auto& [thing, distance, collides] : cases) {
        thing->setPosition({100 + distance, 352});
        EXPECT_EQ(grunt.isColliding(*thing), collides) << distance;
        EXPECT_EQ(thing->isColliding(grunt), collides) << distance;
    }
}


TEST_F(Combat, theTowerKeepsItsWaterWithinTheTank) {
    tower.addPollution(40);
    EXPECT_TRUE(tower.canRemoveWater(60));
    EXPECT_FALSE(tower.canRemoveWater(60.5));
    tower.removeWater(50);
    tower.addPollution(15);
    EXPECT_EQ(tower.getPollution(), 50) << "never more pollution than water";
    tower.removeWater(60);
    EXPECT_EQ(tower.getWater(), 0);
    EXPECT_EQ(tower.getRatio(), 0) << "an empty tank is not polluted";
    tower.addPollution(-60); // never less than none
    tower.refil(170);
    EXPECT_EQ(tower.getPureWaterLeft(), 100);
}


TEST_F(Combat, aJetFliesToTheEndOfItsRangeAndVanishes) {
    EXPECT_EQ(drawnBy(jet), Lines{"VorelDefence_projectile 110,100 110,109.6 100.4,109.6 100.4,100"}) << "upwards";
    Beam exact(10, 15000, 300, {100, 100}, 50, 10, {1, 0});
    update(exact, 1);
    EXPECT_TRUE(exact.isSolide()) << "300 pixels are within a range of 300";
    update(jet, 188);
    EXPECT_TRUE(jet.isNeedToBeDelete()) << "300.8 pixels are not";
}


TEST_F(Combat, aJetBurstsOnceAndStandsAsASplashFor23Frames) {
    const std::string splash = "VorelDefense_explosions_64 110,100 110,138.4 71.6,138.4 71.6,100 part ";
    jet.onCollideEnnemi(&grunt);
    update(jet, 22);
    EXPECT_EQ(drawnBy(jet), Lines{splash + "0.875,0 1,0 1,0.5 0.875,0.5"});
    jet.onCollideEnnemi(&grunt);
    EXPECT_EQ(mixer.sounds, Lines{"WaterSplash"});
    update(jet, 1);
    EXPECT_TRUE(jet.isNeedToBeDelete());
}


TEST_F(Combat, aGruntFacesTheTower) {
    // In which row of pictures (its lower edge) is one drawn who stands at a place: around the tower and on it, on the
    // diagonals, and half a degree to both sides of each?
    constexpr double RIGHT = 0.76, UP = 0.51, LEFT = 0.26, DOWN = 0.01;
    // clang-format off
    const std::tuple<double, double, double> cases[] = {
        {100, 352, RIGHT}, {512, 100, UP}, {900, 352, LEFT}, {512, 700, DOWN}, {512, 352, DOWN}, {412, 252, DOWN},
        {612, 252, DOWN}, {412, 452, DOWN}, {612, 452, DOWN}, {412, 252.9, RIGHT}, {412, 251.1, UP}, {612, 251.1, UP},
        {612, 252.9, LEFT}, {612, 451.1, LEFT}, {612, 452.9, DOWN}, {412, 452.9, DOWN}, {412, 451.1, RIGHT}};
    // clang-format on
    grunt.setSpeed(0);
    for (const auto& [x, y, row] : cases) {
        grunt.setPosition({x, y});
        update(grunt, 1);
        const std::string shown = drawnBy(grunt).at(0);
        EXPECT_EQ(std::stod(shown.substr(shown.find("part ") + 11)), row) << x << " " << y;
    }
}


TEST_F(Combat, aGruntWithoutHealthExplodesWalkingAndIsSometimesDrawnWrong) {
    const std::string last = " part 0.875,0.5 1,0.5 1,1 0.875,1"; // the last of eight pictures
    // One death in five, those that roll 81 or more of 100, shows the wrong sheet, on purpose. Each hit on an exploding
    // grunt rolls again.
    dice.rolls = {80, 81};
    grunt.removeHealth(100);
    update(grunt, 22);
    EXPECT_EQ(drawnBy(grunt), Lines{"VorelDefense_explosions_64 56.4,304 152.4,304 152.4,400 56.4,400" + last});
    grunt.removeHealth(1);
    EXPECT_EQ(drawnBy(grunt), Lines{"VorelDefense_grunts 88.4,336 120.4,336 120.4,368 88.4,368" + last});
    update(grunt, 1);
    EXPECT_EQ(drawnBy(grunt), Lines{}) << "23 steps after its death";
}


TEST_F(Combat, aWaveIsNotFinishedBeforeAllItsGruntsHaveEntered) {
    Wave wave(1);
    wave.addEnnemi(grunt, 2);
    wave.spawnEnnemi({100, 352});
    wave.getEnnemisInGame()[0].onCollideTower(&tower);
    EXPECT_FALSE(wave.isFinish()) << "one is gone, and one has yet to enter";
}


TEST_F(Combat, aTurretFiresWhenReadyInRangeAndPaidFor) {
    EXPECT_FALSE(turret.shoot({400.01, 100}, tower));
    EXPECT_TRUE(turret.shoot({400, 100}, tower)) << "exactly in range";
    update(turret, 49);
    EXPECT_FALSE(turret.shoot({100, 200}, tower)) << "it rests for a second";
    Weapon copy(turret);
    EXPECT_FALSE(copy.shoot({100, 200}, tower)) << "and a copy has the same rest to wait";
    update(turret, 1);
    tower.removeWater(98.5);
    EXPECT_FALSE(turret.shoot({100, 200}, tower)) << "half a unit does not pay a shot";
    tower.refil(0.5);
    EXPECT_TRUE(turret.shoot({100, 200}, tower)) << "the last unit does";
}


TEST_F(Combat, aTurretDropsSeveralSpentJetsAtOnceAndKeepsTheOthers) {
    turret.shoot({200, 100}, tower);
    update(turret, 50);
    const size_t read = textures.size();
    turret.shoot({100, 100}, tower); // at its own place, where the jet stays
    EXPECT_EQ(textures.size(), read) << "no shot reads its pictures again";
    update(turret, 50);
    turret.shoot({100, 200}, tower);
    turret.update(10, game);
    ASSERT_EQ(turret.getBeams().size(), 1U);
    EXPECT_EQ(turret.getBeams()[0]->getPos(), turret.getPos());
}
