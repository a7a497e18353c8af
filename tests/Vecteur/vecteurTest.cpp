// The only header of the game: whoever calculates with vectors can catch their errors without naming another.
// NOLINTBEGIN(misc-include-cleaner)
#include "Vecteur/Vecteur2D.h"

#include "standin/standin.h"

static const Vecteur abc{1, 2, 3}, def{4, 5, 6}, two{3, 4};

// What an operation raises: its name, its text, and in that the line where it was raised.
static std::string errorOf(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const Exception& raised) {
        return raised.getExceptionType().getName() + ": " + raised.getExceptionText();
    }
    return "no error";
}

// An operation as text, with what it gives and what it should give, or with what it raises.
#define GIVES(operation, expected) std::tuple(#operation, toString(operation), expected)
#define RAISES(...) std::pair(#__VA_ARGS__, errorOf([&] { __VA_ARGS__; }))


TEST(Vecteur, calculatesJoinsSlicesAndPrints) {
    // clang-format off
    const std::tuple<std::string, std::string, std::string> cases[] = {
        GIVES(abc + def, "5 7 9"), GIVES(abc.plus(def), "5 7 9"),
        GIVES(abc - def, "-3 -3 -3"), GIVES(abc.moins(def), "-3 -3 -3"), GIVES(-abc, "-1 -2 -3"),
        GIVES(2.5 * abc, "2.5 5 7.5"), GIVES(abc / 0.5, "2 4 6"), GIVES(abc.scale(def), "4 10 18"),
        GIVES(abc * def, "32"), GIVES(abc ^ def, "-3 6 -3"), GIVES(two.compose(abc), "3 4 1 2 3"),
        GIVES(abc.cut(1, 2), "2 3"), GIVES(abc.cut(7, 0), ""),
        GIVES(abc.getSubVecteur(1, 2), "2 3"), GIVES(abc.getSubVecteur(2, 1), ""),
        GIVES(Vecteur(3.9, 1.5), "1.5 1.5 1.5"), GIVES(Vecteur(-2, 7), ""),
        GIVES(Vecteur(2, 0).normalise(), "0 0"), GIVES(two.distance(Vecteur(2, 0)), "5"),
        GIVES(two != Vecteur(2, 4), "1"), GIVES(Vecteur(1, 1e6), "1e+06"), GIVES(Vecteur2D(), "0 0")};
    // clang-format on
    for (const auto& [operation, result, expected] : cases)
        EXPECT_EQ(result, expected) << operation;
    EXPECT_EQ(two.normalise(), Vecteur({3 * 0.2, 4 * 0.2})) << "multiplies by the reciprocal";
    testing::internal::CaptureStdout();
    abc.affiche();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "1 2 3\n");
}


TEST(Vecteur, raisesItsKindOfErrorAndChangesNothing) {
    Vecteur pair{1, 2};
    Vecteur2D flat(1, 2);
    // clang-format off
    const std::pair<std::string, std::string> ofAnotherSize[] = {
        RAISES(pair.compare(abc)), RAISES(pair.plus(abc)), RAISES(pair.moins(abc)), RAISES(pair.scale(abc)),
        RAISES(pair.prodScal(abc)), RAISES(pair.prodVect(flat)), RAISES(pair.prodVect(abc)), RAISES(abc.prodVect(pair)),
        RAISES(pair += abc), RAISES(pair -= abc), RAISES(flat.addDim(1)), RAISES(Vecteur2D{abc}),
        RAISES(Vecteur2D(std::vector<double>(1))), RAISES(Vecteur2D({1, 2, 3}))};
    // clang-format on
    for (const auto& [operation, error] : ofAnotherSize)
        EXPECT_EQ(error.find("vecteurSizeIncorect: Exception 1. in src/Vecteur/"), 0U)
            << operation << " raises " << error;
    for (const auto& [operation, error] : {RAISES(abc.coord(3)), RAISES(pair.setCoord(4, 2))})
        EXPECT_EQ(error.find("vecteurReadValueIncorrect: "), 0U) << operation << " raises " << error;
    EXPECT_EQ(pair, flat) << "both are still 1 2";
}


TEST(Vecteur, anErrorComesFromTheFunctionThatFoundIt) {
    // A sum is checked by the assignment that it is made of, a distance by moins, a slice by coord; plus and moins
    // check for themselves. The function's name can't be asked for, but each raises in a line of its own.
    Vecteur sum;
    EXPECT_EQ(errorOf([&] { sum + abc; }), errorOf([&] { sum += abc; }));
    EXPECT_EQ(errorOf([&] { sum - abc; }), errorOf([&] { sum -= abc; }));
    EXPECT_NE(errorOf([&] { sum.plus(abc); }), errorOf([&] { sum += abc; }));
    EXPECT_NE(errorOf([&] { sum.moins(abc); }), errorOf([&] { sum -= abc; }));
    EXPECT_EQ(errorOf([&] { sum.distance(abc); }), errorOf([&] { sum.moins(abc); }));
    EXPECT_EQ(errorOf([&] { abc.cut(2, 2); }), errorOf([&] { abc.coord(3); }));
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
// NOLINTEND(misc-include-cleaner)
