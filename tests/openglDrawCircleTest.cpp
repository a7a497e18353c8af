#include "openglDrawCircle.h"

#include "standin/standin.h"

struct Circle : StandinTest {};


TEST_F(Circle, openglDrawCircleTakesAVectorOrItsCoordinates) {
    openglDrawCircle(Vecteur2D(5, 7), 10, 4);
    openglDrawCircle(5.0, 7.0, 10.0, 4);
    EXPECT_EQ(screen.drawn, Lines(2, "no texture 15,7 5,17 -5,7 15,7 last of 5 colour 1 0 0 0.1"));
    EXPECT_TRUE(screen.isAtRest());
}
