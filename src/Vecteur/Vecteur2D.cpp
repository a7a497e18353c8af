#include "Vecteur/Vecteur2D.h"

#include "Vecteur/FixeSizeVecteur.h"
#include "Vecteur/vecteur.h"

#include <cmath>
#include <initializer_list>
#include <vector>

namespace {

constexpr double HALF_TURN = 180.0;
constexpr double FULL_TURN = 360.0;

} // namespace


Vecteur2D::Vecteur2D() : Vecteur2D(0.0) {}


Vecteur2D::Vecteur2D(const double& value) : FixeSizeVecteur<2>(value) {}


Vecteur2D::Vecteur2D(const double& c1, const double& c2) : FixeSizeVecteur<2>({c1, c2}) {}


Vecteur2D::Vecteur2D(const std::vector<double>& coords) : FixeSizeVecteur<2>(coords) {}


Vecteur2D::Vecteur2D(const Vecteur& vect) : FixeSizeVecteur<2>(vect) {}


Vecteur2D::Vecteur2D(const std::initializer_list<double>& liste) : FixeSizeVecteur<2>(liste) {}


Vecteur2D::Vecteur2D(const FixeSizeVecteur<2>& vect) : FixeSizeVecteur<2>(vect) {}


void Vecteur2D::setFormPolar(const double& norme, const double& angle) {
    (*this)[0] = std::cos(angle) * norme;
    (*this)[1] = std::sin(angle) * norme;
}


double Vecteur2D::getAngle() const { return angleOf(coord(0), coord(1)); }


double Vecteur2D::angleOf(double x, double y) {
    if (x == 0.0)
        return y > 0.0 ? HALF_TURN / 2 : -HALF_TURN / 2;
    const double angle = std::atan(y / x) / PI * HALF_TURN;
    return x > 0.0 ? angle : angle + HALF_TURN;
}


double Vecteur2D::normaliserAngle(double degre) {
    while (degre > HALF_TURN)
        degre -= FULL_TURN;
    while (degre <= -HALF_TURN)
        degre += FULL_TURN;
    return degre;
}
