#include "Vecteur/Vecteur2D.h"

#include <functional>
#include <gtest/gtest.h>
#include <limits>

namespace {

const Vecteur abc{1, 2, 3};
constexpr double infinity = std::numeric_limits<double>::infinity();

} // namespace


TEST(Vecteur, isBuiltFromCountsListsAndVectors) {
    EXPECT_EQ(Vecteur(3.9, 1.5), Vecteur({1.5, 1.5, 1.5}));
    EXPECT_EQ(Vecteur(0.5, 7.0).size(), 0U);
    EXPECT_EQ(Vecteur(-2.0, 7.0).size(), 0U);
    EXPECT_EQ(Vecteur().size(), 0U);
    EXPECT_TRUE(Vecteur() == Vecteur());
}


TEST(Vecteur, calculates) {
    EXPECT_EQ(abc + Vecteur({1, 1, 1}), Vecteur({2, 3, 4}));
    EXPECT_EQ(abc - Vecteur({1, 1, 1}), Vecteur({0, 1, 2}));
    EXPECT_EQ(abc.plus(abc), abc * 2.0);
    EXPECT_EQ(abc.moins(-abc), 2.0 * abc);
    EXPECT_EQ(abc * Vecteur({4, 5, 6}), 32.0);
    EXPECT_EQ(abc.scale(abc), Vecteur({1, 4, 9}));
    EXPECT_EQ(Vecteur({1, 0, 0}) ^ Vecteur({0, 1, 0}), Vecteur({0, 0, 1}));
    EXPECT_EQ(Vecteur({2, 4}) / 2.0, Vecteur({1, 2}));
    EXPECT_EQ(Vecteur({1, 1}) / 0.0, Vecteur({infinity, infinity}));
    EXPECT_EQ(Vecteur({3, 4}).norme(), 5.0);
    EXPECT_EQ(Vecteur().norme(), 0.0);
    EXPECT_EQ(Vecteur({3, 4}).normalise(), Vecteur({3 * 0.2, 4 * 0.2})) << "multiplies by the reciprocal";
    EXPECT_EQ(Vecteur({0, 0}).normalise(), Vecteur({0, 0}));
    EXPECT_EQ(Vecteur({0, 0}).distance({3, 4}), 5.0);
    EXPECT_TRUE(Vecteur({1, 2}) != Vecteur({1, 2.0000001}));
}


TEST(Vecteur, joinsSlicesAndPrints) {
    EXPECT_EQ(Vecteur({1}).compose({2, 3}), abc);
    EXPECT_EQ(abc.cut(1, 2), Vecteur({2, 3}));
    EXPECT_EQ(abc.cut(7, 0), Vecteur());
    EXPECT_EQ(abc.getSubVecteur(1, 1), Vecteur({2}));
    EXPECT_EQ(abc.getSubVecteur(2, 1), Vecteur());
    EXPECT_EQ(Vecteur({1, 2.5, 1000000}).getPrintText(), "1 2.5 1e+06");
    EXPECT_EQ(Vecteur({0.1, -3}).toString(), "0.1 -3");
    EXPECT_EQ(Vecteur().toString(), "");
}


TEST(Vecteur, refusesWithKindFileAndNothingChanged) {
    Vecteur pair{1, 2};
    Vecteur2D flat(1, 2);
    const struct {
        std::function<void()> act;
        unsigned int kind;
        std::string file;
    } refusals[] = {
        {[] { abc.coord(3); }, 2, "vecteur.cpp"},
        {[] { Vecteur().coord(0); }, 2, "vecteur.cpp"},
        {[&] { pair.setCoord(4, 2); }, 2, "vecteur.cpp"},
        {[] { abc.cut(2, 2); }, 2, "vecteur.cpp"},
        {[] { abc.getSubVecteur(0, 3); }, 2, "vecteur.cpp"},
        {[&] { pair.compare(abc); }, 1, "vecteur.cpp"},
        {[&] { pair.plus(abc); }, 1, "vecteur.cpp"},
        {[&] { pair.distance(abc); }, 1, "vecteur.cpp"},
        {[&] { pair.scale(abc); }, 1, "vecteur.cpp"},
        {[&] { pair.prodScal(abc); }, 1, "vecteur.cpp"},
        {[&] {
             pair.prodVect({3, 4});
         },
         1, "vecteur.cpp"},
        {[&] { pair += abc; }, 1, "vecteur.cpp"},
        {[&] { pair -= abc; }, 1, "vecteur.cpp"},
        {[&] { flat.addDim(1); }, 1, "FixeSizeVecteur.h"},
        {[] { Vecteur2D{abc}; }, 1, "FixeSizeVecteur.h"},
        {[] {
             Vecteur2D({1, 2, 3});
         },
         1, "FixeSizeVecteur.h"},
        {[] { Vecteur2D(std::vector<double>(1)); }, 1, "FixeSizeVecteur.h"},
    };
    int row = 0;
    for (const auto& refusal : refusals) {
        SCOPED_TRACE(row++);
        try {
            refusal.act();
            ADD_FAILURE() << "nothing was raised";
        } catch (const Exception& raised) {
            EXPECT_EQ(raised.getExceptionType().getExceptionNumber(), refusal.kind);
            EXPECT_NE(raised.getExceptionText().find(refusal.file + " at line "), std::string::npos);
        }
    }
    EXPECT_EQ(pair, Vecteur({1, 2}));
    EXPECT_EQ(flat, Vecteur({1, 2}));
}


TEST(Vecteur2D, becomesAPositionAgainAfterArithmetic) {
    EXPECT_EQ(Vecteur2D(Vecteur2D(1, 2) - Vecteur2D(3, 5)), Vecteur2D(-2, -3));
    EXPECT_EQ(Vecteur2D(), Vecteur2D(0, 0));
    EXPECT_EQ(Vecteur2D(5), Vecteur2D(5, 5));
    EXPECT_EQ(FixeSizeVecteur<2>(std::array<double, 2>{1, 2}), Vecteur2D(1, 2));
}


TEST(Vecteur2D, measuresHeadingsInDegreesAndTakesRadians) {
    const double headings[][3] = {{1, 1, 45}, {-1, 1, 135}, {-1, -1, 225}, {1, -1, -45},
                                  {0, 3, 90}, {0, -3, -90}, {0, 0, -90},   {-1, 0, 180}};
    for (const auto& [x, y, degrees] : headings)
        EXPECT_DOUBLE_EQ(Vecteur2D(x, y).getAngle(), degrees) << x << " " << y;
    const double turns[][2] = {{225, -135}, {180, 180}, {-180, 180}, {-190, 170}, {720, 0}, {540, 180}};
    for (const auto& [degrees, normal] : turns)
        EXPECT_EQ(Vecteur2D::normaliserAngle(degrees), normal) << degrees;
    Vecteur2D polar;
    polar.setFormPolar(1, 90);
    EXPECT_NEAR(polar[0], -0.448, 0.001);
    EXPECT_NEAR(polar[1], 0.894, 0.001);
}
