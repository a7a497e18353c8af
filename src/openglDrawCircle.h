#ifndef OPENGL_DRAW_CIRCLE_H
#define OPENGL_DRAW_CIRCLE_H

#include "Vecteur/Vecteur2D.h"

/// Draws a translucent red disc: centre and `radius` in pixels, `pressison` segments. Texturing must be disabled; the
/// colour is opaque white afterwards. Belongs to the toolkit, which knows nothing of the game.
void openglDrawCircle(const Vecteur2D& vect, const double& radius, const unsigned int& pressison);

/// The same around (`x`, `y`), for callers without a vector.
void openglDrawCircle(double x, double y, double radius, unsigned int pressison);

#endif
