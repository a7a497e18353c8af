#ifndef VECTEUR_2D_H
#define VECTEUR_2D_H

#include "Vecteur/FixeSizeVecteur.h"
#include "Vecteur/vecteur.h"

#include <initializer_list>
#include <vector>

/// A position, direction or size in the plane: component 0 is x, to the right, component 1 is y, upwards.
/// Arithmetic on it gives plain vectors, which the checked constructor turns back into positions.
class Vecteur2D : public FixeSizeVecteur<2> {
public:
    static constexpr double PI = 3.141592653589793;

    /// (0, 0)
    Vecteur2D();
    /// (value, value)
    Vecteur2D(const double& value);
    Vecteur2D(const double& c1, const double& c2);

    // Each of these raises an Exception of the kind VECTEUR_SIZE_INCORRECT unless given two components.
    Vecteur2D(const std::vector<double>& coords);
    Vecteur2D(const Vecteur& vect);
    Vecteur2D(const std::initializer_list<double>& liste);

    Vecteur2D(const FixeSizeVecteur<2>& vect);
    Vecteur2D(const Vecteur2D& vect) = default;
    Vecteur2D& operator=(const Vecteur2D& vect) = default;
    ~Vecteur2D() override = default;

    /// Becomes the vector of length `norme` at `angle` radians from the x axis towards the y axis. Quirk: this takes
    /// radians, everything else degrees.
    void setFormPolar(const double& norme, const double& angle);

    /// The heading in degrees from the x axis towards the y axis, from -90 up to 270. Quirk: a zero vector's is -90.
    double getAngle() const;
    /// The same for the vector (`x`, `y`).
    static double angleOf(double x, double y);

    /// The same angle, which must be finite, in degrees above -180 and up to 180.
    static double normaliserAngle(double degre);
};

#endif
