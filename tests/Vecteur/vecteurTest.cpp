#include "Vecteur/vecteur.h"
#include "Vecteur/Vecteur2D.h"
#include "exception/exception.h"
#include "standin/standin.h"

#include <cmath>

static const Vecteur abc{1, 2, 3}, def{4, 5, 6}, two{3, 4};


static std::string errorOf(const std::function<void()>& act) {
    try {
        act();
    } catch (const Exception& raised) {
        return joined(raised.getExceptionType().getName(), raised.getExceptionType().getExceptionNumber());
    }
    return "no error";
}

// What an operation raises.
#define REFUSE(...) joined(#__VA_ARGS__, "raises", errorOf([&] { __VA_ARGS__; }))


TEST(Vecteur, calculatesJoinsSlicesAndPrints) {
    // clang-format off
    expectAsRecorded("vectors", {
        SHOW(abc + def), SHOW(abc.plus(def)), SHOW(abc - def), SHOW(abc.moins(def)), SHOW(-abc), SHOW(abc / 0.5),
        SHOW(2.5 * abc), SHOW(abc.scale(def)), SHOW(abc * def), SHOW(abc ^ def), SHOW(two.compose(abc)),
        SHOW(abc.cut(1, 2)), SHOW(abc.cut(7, 0)), SHOW(abc.getSubVecteur(1, 2)), SHOW(abc.getSubVecteur(2, 1)),
        SHOW(Vecteur(3.9, 1.5)), SHOW(Vecteur(-2, 7)), SHOW(Vecteur(2, 0).normalise()),
        SHOW(two.distance(Vecteur(2, 0))), SHOW(two != Vecteur(2, 4)), SHOW(Vecteur(1, 1e6)), SHOW(Vecteur2D())});
    // clang-format on
    EXPECT_EQ(two.normalise(), Vecteur({3 * 0.2, 4 * 0.2})) << "multiplies by the reciprocal";
}


TEST(Vecteur, refusesWithItsKindOfErrorAndNothingChanged) {
    Vecteur pair{1, 2};
    Vecteur2D flat(1, 2);
    // clang-format off
    expectAsRecorded("refusals", {
        REFUSE(pair.compare(abc)), REFUSE(pair.plus(abc)), REFUSE(pair.moins(abc)), REFUSE(pair.distance(abc)),
        REFUSE(pair.scale(abc)), REFUSE(pair.prodScal(abc)), REFUSE(pair.prodVect(flat)), REFUSE(pair.prodVect(abc)),
        REFUSE(abc.prodVect(pair)), REFUSE(pair += abc), REFUSE(pair -= abc), REFUSE(flat.addDim(1)),
        REFUSE(Vecteur2D{abc}), REFUSE(Vecteur2D(std::vector<double>(1))), REFUSE(Vecteur2D({1, 2, 3})),
        REFUSE(abc.coord(3)), REFUSE(pair.setCoord(4, 2)), REFUSE(abc.cut(2, 2)), REFUSE(abc.getSubVecteur(0, 3))});
    // clang-format on
    EXPECT_EQ(pair, flat) << "both are still 1 2";
}


TEST(Vecteur2D, getAngleIsTheHeadingInDegrees) {
    const std::tuple<Vecteur2D, double, double> cases[] = {
        {{1, 1}, 45, 45}, {{-1, 1}, 135, 135}, {{-1, -1}, 225, -135}, {{1, -1}, -45, -45},
        {{0, 3}, 90, 90}, {{0, -3}, -90, -90}, {{0, 0}, -90, -90},    {{-1, 0}, 180, 180}};
    for (const auto& [vector, angle, normalised] : cases) {
        EXPECT_EQ(vector.getAngle(), angle) << vector;
        EXPECT_EQ(Vecteur2D::normaliserAngle(angle - 720), normalised) << "two turns less";
    }
}


TEST(Vecteur2D, setFormPolarTakesALengthAndRadians) {
    Vecteur2D vector;
    vector.setFormPolar(2, Vecteur2D::PI / 6);
    EXPECT_NEAR(vector.distance({std::sqrt(3.0), 1}), 0, 1e-12);
}
