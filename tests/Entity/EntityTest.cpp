#include "Entity/Entity.h"

#include "Entity/Beam.h"
#include "Entity/Ennemi.h"
#include "Entity/Tower.h"
#include "Game/GameTest.h"
#include "standin/standin.h"

/// One object of each class, as the game builds them. `tower` stands where the game's own tower does. Grunts walk to
/// the game's, but the turret, at (100, 100) like the jet, takes its water from this one.
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


TEST_F(Combat, noMeasureIsTakenForAnother) {
    const Beam beam(1, 2, 3, {0, 0}, 4, 5, {1, 0});
    EXPECT_EQ(joined("jet", beam.getWidth(), beam.getRange(), beam.getDamage(), beam.getLength()), "jet 1 3 4 5");
    const Weapon gun({0, 0}, "", 1, 2, 3, 4, 5, 6, 7, 8);
    EXPECT_EQ(joined("turret", gun.getWaterConsume(), gun.getRadius(), gun.getBeamRadius(), gun.getDamage()),
              "turret 1 2 3 4");
    Ennemi ennemi({0, 0}, 1, 2, 3, 4, 5, "");
    ennemi.setHealth(10 * ennemi.getHealth());
    ennemi.setPolution(10 * ennemi.getPolution());
    EXPECT_EQ(joined("grunt", ennemi.getHealth(), ennemi.getSpeed(), ennemi.getPolution()), "grunt 10 2 30");
    EXPECT_EQ(joined("box", ennemi.getCollideBoxWidth(), ennemi.getCollideBoxHeigth()), "box 4 5");
}


TEST_F(Combat, isCollidingWhenDiscsOfSolidActiveObjectsOverlap) {
    Ennemi gone = grunt;
    gone.onCollideTower(&tower);
    Ennemi exploding = grunt;
    exploding.removeHealth(100);
    // clang-format off
    const std::tuple<Entity*, double, bool> cases[] = {
        {&other, 39.9, true}, {&other, 40, false}, {&tower, 49.9, true}, {&tower, 50, false}, {&jet, 29.9, true},
        {&jet, 30, false}, {&exploding, 0, true}, {&turret, 0, false}, {&gone, 0, false},
        {&grunt, 0, false}};
    // clang-format on
    for (const auto& [thing, distance, collides] : cases) {
        thing->setPosition({100 + distance, 352});
        EXPECT_EQ(grunt.isColliding(*thing), collides) << distance;
        EXPECT_EQ(thing->isColliding(grunt), collides) << distance;
    }
}


TEST_F(Combat, getPosCaseIsTheCellUnderTheObjectAndSetPositionCaseItsCorner) {
    grunt.setPositionCase({3, 2});
    EXPECT_EQ(grunt.getPos(), Vecteur2D(96, 64));
    grunt.setPosition({127.9, 64});
    EXPECT_EQ(grunt.getPosCase(), Vecteur2D(3, 2));
    grunt.setPosition({-31.9, 63.9});
    EXPECT_EQ(grunt.getPosCase(), Vecteur2D(0, 1)) << "beyond the left edge too";
}


TEST_F(Combat, theTowersWaterAndPollutionStayWithinTheirBounds) {
    tower.removeWater(101);
    EXPECT_EQ(tower.getWater(), 0);
    EXPECT_EQ(tower.getRatio(), 0) << "an empty tank is not polluted";
    tower.refil(50);
    for (const auto& [added, then] : {std::pair(0.5, 0.5), {60, 50}, {-60, 0}}) {
        tower.addPollution(added);
        EXPECT_EQ(tower.getPollution(), then) << added;
    }
    tower.refil(120);
    EXPECT_EQ(tower.getWater(), 100);
}


TEST_F(Combat, aJetFliesToTheEndOfItsRange) {
    Beam exact(10, 15000, 300, {100, 100}, 50, 10, {1, 0});
    update(exact, 1);
    EXPECT_TRUE(exact.isSolide()) << "300 pixels are within a range of 300";
    update(jet, 188);
    EXPECT_TRUE(jet.isNeedToBeDelete()) << "300.8 pixels are not";
    EXPECT_FALSE(jet.isSolide());
}


TEST_F(Combat, aGruntFacesTheTower) {
    // Each place of a grunt, and the lower edge of the row of pictures that shows it there: around the tower and on it,
    // on the diagonals, and half a degree to both sides of each.
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
        EXPECT_EQ(partShown(drawnBy(grunt).at(0)).imag(), row) << x << " " << y;
    }
}


TEST_F(Combat, aGruntWalksInFourPictures) {
    Lines changes; // the steps in which it begins to show another part of its picture
    Point shown;
    for (int step = 1; step <= 36; ++step) {
        update(grunt, 1);
        const std::string drawn = drawnBy(grunt).at(0);
        if (partShown(drawn) != shown)
            changes.push_back(joined("step", step, drawn));
        shown = partShown(drawn);
    }
    expectAsRecorded("walk", changes);
}


TEST_F(Combat, oneDeathInFiveIsDrawnWrong) {
    // On purpose: a roll of 81 or more of 100 shows the wrong sheet, as large as a grunt.
    const std::string part = " part 0,0.5 0.125,0.5 0.125,1 0,1";
    for (const auto& [roll, picture] : {std::pair(80, "VorelDefense_explosions_64 52,304 148,304 148,400 52,400"),
                                        {181, "VorelDefense_grunts 84,336 116,336 116,368 84,368"}}) {
        dice = {roll};
        grunt.removeHealth(100);
        EXPECT_EQ(drawnBy(grunt), Lines{picture + part}) << roll;
    }
}


TEST_F(Combat, aTurretFiresWithinItsRange) {
    EXPECT_FALSE(turret.shoot({400.01, 100}, tower));
    EXPECT_TRUE(turret.shoot({400, 100}, tower));
}


TEST_F(Combat, aTurretRestsForASecondAndItsCopyAsLong) {
    turret.shoot({200, 100}, tower);
    update(turret, 49);
    Weapon copy(turret);
    for (Weapon* one : {&turret, &copy}) {
        EXPECT_FALSE(one->shoot({100, 200}, tower));
        update(*one, 1);
        EXPECT_TRUE(one->shoot({100, 200}, tower));
    }
}


TEST_F(Combat, aShotIsPaidWithCleanWaterOrIsNotFired) {
    tower.addPollution(98.5);
    EXPECT_TRUE(turret.shoot({200, 100}, tower));
    EXPECT_EQ(tower.getPureWaterLeft(), 0.5);
    update(turret, 50);
    EXPECT_FALSE(turret.shoot({200, 100}, tower)) << "half a unit does not pay for a shot";
    tower.refil(0.5);
    EXPECT_TRUE(turret.shoot({200, 100}, tower)) << "the last unit does";
}


TEST_F(Combat, aTurretDropsSeveralSpentJetsAtOnceAndKeepsTheOthers) {
    for (const Vecteur2D& target : {Vecteur2D(200, 100), turret.getPos(), Vecteur2D(100, 200)}) {
        turret.shoot(target, tower); // the second shot is aimed at the turret itself, so its jet stays there
        update(turret, 50);
    }
    turret.update(10, game);
    ASSERT_EQ(turret.getBeams().size(), 1U);
    EXPECT_EQ(turret.getBeams()[0]->getPos(), turret.getPos());
}
