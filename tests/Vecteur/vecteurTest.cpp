#include "Vecteur/Vecteur2D.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

const Vecteur abc{1, 2, 3};

} // namespace


TEST(Vecteur, calculates) {
    EXPECT_EQ(abc + Vecteur(3.9, 1), Vecteur({2, 3, 4})) << "a count is truncated";
    EXPECT_EQ(abc - Vecteur({1, 1, 1}), Vecteur({0, 1, 2}));
    EXPECT_EQ(abc.plus(abc), abc.moins(-abc));
    EXPECT_EQ(abc * Vecteur({4, 5, 6}), 32.0);
    EXPECT_EQ(abc.scale(abc), Vecteur({1, 4, 9}));
    EXPECT_EQ(Vecteur({1, 0, 0}) ^ Vecteur({0, 1, 0}), Vecteur({0, 0, 1}));
    EXPECT_EQ(abc / 0.5, 2.0 * abc);
    EXPECT_EQ(Vecteur({3, 4}).normalise(), Vecteur({3 * 0.2, 4 * 0.2})) << "multiplies by the reciprocal";
    EXPECT_EQ(Vecteur({0, 0}).normalise(), Vecteur({0, 0}));
    EXPECT_EQ(Vecteur({0, 0}).distance({3, 4}), Vecteur({3, 4}).norme());
    EXPECT_TRUE(Vecteur({1, 2}) != Vecteur({1, 2.0000001}));
    EXPECT_TRUE(Vecteur() == Vecteur(-2.0, 7.0)) << "there is no negative count";
}


TEST(Vecteur, joinsSlicesAndPrints) {
    EXPECT_EQ(Vecteur({1}).compose({2, 3}), abc);
    EXPECT_EQ(abc.cut(1, 2), abc.getSubVecteur(1, 2));
    EXPECT_EQ(abc.cut(7, 0), abc.getSubVecteur(2, 1));
    EXPECT_EQ(Vecteur({1, 2.5, 1000000}).getPrintText(), "1 2.5 1e+06");
}


TEST(Vecteur, refusesWithItsKindOfErrorAndNothingChanged) {
    Vecteur pair{1, 2};
    Vecteur2D flat(1, 2);
    const std::vector<std::function<void()>> refused[] = {
        {[&] { pair.compare(abc); }, [&] { pair.plus(abc); }, [&] { pair.distance(abc); }, [&] { pair.scale(abc); },
         [&] { pair.prodScal(abc); },
         [&] {
             pair.prodVect({3, 4});
         },
         [&] { pair += abc; }, [&] { pair -= abc; }, [&] { flat.addDim(1); }, [] { Vecteur2D{abc}; },
         [] { Vecteur2D(std::vector<double>(1)); }},
        {[] { abc.coord(3); }, [&] { pair.setCoord(4, 2); }, [] { abc.cut(2, 2); }, [] { abc.getSubVecteur(0, 3); }}};
    for (size_t kind = 1; kind <= 2; ++kind)
        for (const auto& act : refused[kind - 1])
            try {
                act();
                ADD_FAILURE() << "nothing raised in row " << &act - refused[kind - 1].data();
            } catch (const Exception& raised) {
                EXPECT_EQ(raised.getExceptionType().getExceptionNumber(), kind);
            }
    EXPECT_EQ(pair, flat);
}


TEST(Vecteur2D, measuresHeadingsInDegreesAndTakesRadians) {
    EXPECT_EQ(Vecteur2D(Vecteur2D(1, 2) - Vecteur2D(3, 5)), Vecteur2D(-2, -3));
    const double headings[][3] = {{1, 1, 45}, {-1, 1, 135}, {-1, -1, 225}, {1, -1, -45},
                                  {0, 3, 90}, {0, -3, -90}, {0, 0, -90}};
    for (const auto& [x, y, degrees] : headings)
        EXPECT_DOUBLE_EQ(Vecteur2D(x, y).getAngle(), degrees) << x << " " << y;
    for (const auto& [degrees, normal] : {std::pair(225, -135), {180, 180}, {-180, 180}, {-190, 170}, {720, 0}})
        EXPECT_EQ(Vecteur2D::normaliserAngle(degrees), normal) << degrees;
    Vecteur2D polar;
    polar.setFormPolar(1, 90);
    EXPECT_NEAR(polar.distance(Vecteur2D(-0.448, 0.894)), 0, 0.001);
}
