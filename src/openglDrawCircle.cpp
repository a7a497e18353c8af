#include "openglDrawCircle.h"

#include "Vecteur/Vecteur2D.h"

#include <SDL_opengl.h>

#include <cmath>

void openglDrawCircle(const Vecteur2D& vect, const double& radius, const unsigned int& pressison) {
    openglDrawCircle(vect[0], vect[1], radius, pressison);
}


void openglDrawCircle(double x, double y, double radius, unsigned int pressison) {
    constexpr double DISC_ALPHA = 0.1;
    glPushMatrix();
    glColor4d(1, 0, 0, DISC_ALPHA);
    glBegin(GL_POLYGON);
    for (unsigned int i = 0; i < pressison; ++i) {
        const double a = i * (2 * Vecteur2D::PI) / pressison;
        glVertex2d(x + std::cos(a) * radius, y + std::sin(a) * radius);
    }
    glVertex2d(x + radius, y);
    glEnd();
    glColor4d(1, 1, 1, 1);
    glPopMatrix();
}
