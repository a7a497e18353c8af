#ifndef OPENGL_DRAW_CIRCLE_H
#define OPENGL_DRAW_CIRCLE_H

#include "Vecteur/Vecteur2D.h"

/// How finely the game draws the discs of its turrets' ranges.
inline constexpr unsigned int DISC_SEGMENTS = 40;

/// Draws the translucent red disc that shows a turret's range: centre and `radius` in pixels, `pressison`
/// segments. Texturing must be disabled; the colour is opaque white afterwards.
void openglDrawCircle(const Vecteur2D& vect, const double& radius, const unsigned int& pressison);

/// The same around (`x`, `y`), for callers without a vector.
void openglDrawCircle(double x, double y, double radius, unsigned int pressison);

#endif
