#ifndef OPENGL_DRAW_CIRCLE_H
#define OPENGL_DRAW_CIRCLE_H

#include "Vecteur/Vecteur2D.h"

/// Draws the translucent red disc that shows a turret's range: centre and `radius` in pixels, `pressison`
/// segments. Texturing must be disabled; the colour is opaque white afterwards.
void openglDrawCircle(const Vecteur2D& vect, const double& radius, const unsigned int& pressison);

#endif
