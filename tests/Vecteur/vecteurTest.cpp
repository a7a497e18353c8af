#include "Vecteur/Vecteur2D.h"

#include <functional>
#include <gtest/gtest.h>

static const Vecteur abc{1, 2, 3};


TEST(Vecteur, calculatesJoinsSlicesAndPrintsAndMeasuresHeadings) {
    std::ostringstream out;
    for (const Vecteur& v :
         {abc + Vecteur(3.9, 1), abc - Vecteur({1, 0, 1}), abc.plus(abc), abc.moins(-abc), abc.scale(abc), abc / 0.5,
          2.5 * abc, Vecteur({1, 0, 0}) ^ Vecteur({0, 1, 0}), Vecteur({0, 0}).normalise(), Vecteur({1}).compose(abc),
          abc.cut(1, 2), abc.cut(7, 0), abc.getSubVecteur(1, 2), abc.getSubVecteur(2, 1), Vecteur(-2.0, 7.0),
          Vecteur({0, 0.1, 1000000})})
        out << v << "; ";
    for (const Vecteur2D& v : {Vecteur2D(1, 1), {-1, 1}, {-1, -1}, {1, -1}, {0, 3}, {0, 0}})
        out << v.getAngle() << " " << Vecteur2D::normaliserAngle(4 * v.getAngle()) << "; ";
    Vecteur2D polar;
    polar.setFormPolar(1, 90);
    out << polar << "; " << Vecteur({1, 1}).distance({4, 5}) << "; " << abc * Vecteur({4, 5, 6})
        << (Vecteur({1, 2}) != Vecteur({1, 2.0000001}));
    EXPECT_EQ(out.str(), "2 3 4; 0 2 2; 2 4 6; 2 4 6; 1 4 9; 2 4 6; 2.5 5 7.5; 0 0 1; 0 0; 1 1 2 3; 2 3; ; 2 3; ; ; "
                         "0 0.1 1e+06; 45 180; 135 180; 225 180; -45 180; 90 0; -90 0; -0.448074 0.893997; 5; 321");
    EXPECT_EQ(Vecteur({3, 4}).normalise(), Vecteur({3 * 0.2, 4 * 0.2})) << "multiplies by the reciprocal";
}


TEST(Vecteur, refusesWithItsKindOfErrorAndNothingChanged) {
    Vecteur pair{1, 2};
    Vecteur2D flat(1, 2);
    std::string kinds;
    for (const auto& act : std::vector<std::function<void()>>{
             [&] { pair.compare(abc); }, [&] { pair.plus(abc); }, [&] { pair.distance(abc); }, [&] { pair.scale(abc); },
             [&] { pair.prodScal(abc); }, [&] { pair.prodVect(flat); }, [&] { pair += abc; }, [&] { pair -= abc; },
             [&] { flat.addDim(1); }, [] { Vecteur2D{abc}; }, [] { Vecteur2D(std::vector<double>(1)); },
             [] { abc.coord(3); }, [&] { pair.setCoord(4, 2); }, [] { abc.cut(2, 2); },
             [] { abc.getSubVecteur(0, 3); }})
        try {
            act(), kinds += "nothing";
        } catch (const Exception& raised) {
            kinds += std::to_string(raised.getExceptionType().getExceptionNumber());
        }
    EXPECT_EQ(kinds, "111111111112222");
    EXPECT_EQ(pair, flat);
}
