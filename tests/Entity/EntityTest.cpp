#include "Entity/Entity.h"

#include <gtest/gtest.h>

namespace {

struct Thing : Entity {
    Thing(double x, double width, bool solid = true, bool active = true)
        : Entity({x, 0}, solid, active, width, 0) {}
    void collide(Entity*) override {}
    void draw(const double&) const override {}
    void update(const double&, const Game&) override {}
    void onCollideBeam(Beam*) override {}
    void onCollideEnnemi(Ennemi*) override {}
    void onCollideTower(Tower*) override {}
    Thing* copy() const override { return new Thing(*this); }
};

} // namespace


TEST(Collision, needsTwoSolidActiveThingsCloserThanTheirRadii) {
    Thing still(0, 20);
    EXPECT_FALSE(still.isColliding(still)) << "never with itself";
    const struct {
        Thing other;
        bool touches;
    } cases[] = {
        {{39.9, 20}, true},
        {{40, 20}, false},
        {{-49.9, 30}, true},
        {{5, 20, false}, false},
        {{5, 20, true, false}, false},
    };
    for (auto [other, touches] : cases) {
        EXPECT_EQ(still.isColliding(other), touches) << other.getPos();
        EXPECT_EQ(other.isColliding(still), touches) << other.getPos();
    }
}


TEST(Cells, areTruncatedTowardsZeroAndStartAtTheirLowerLeftCorner) {
    Thing thing(0, 1);
    const double positions[][4] = {{100, 70, 3, 2}, {31.999, 32, 0, 1}, {-31.9, 63.999, 0, 1}};
    for (const auto& [x, y, column, row] : positions) {
        thing.setPosition({x, y});
        EXPECT_EQ(thing.getPosCase(), Vecteur2D(column, row)) << x << " " << y;
    }
    thing.setPositionCase({3, 2});
    EXPECT_EQ(thing.getPos(), Vecteur2D(96, 64));
}
