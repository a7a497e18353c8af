#ifndef VECTEUR_H
#define VECTEUR_H

// Who calls a vector can catch what it raises.
#include "exception/exception.h" // IWYU pragma: export

#include <cstddef>
#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

/// A vector of doubles of any dimension, zero included: a part of the toolkit, of which the game uses what it needs.
/// Operations that build a new vector return a plain Vecteur, whatever their operands are. An operation that needs
/// equal dimensions, and does not get them, raises an Exception of the kind VECTEUR_SIZE_INCORRECT and changes nothing.
class Vecteur {
public:
    /// A vector without components.
    Vecteur();
    Vecteur(std::vector<double> coordsPara);
    /// `size` components, truncated to a whole count, each equal to `value`; none if `size` is negative or not a
    /// number.
    Vecteur(double size, double value);
    Vecteur(const std::initializer_list<double>& liste);
    Vecteur(const Vecteur& vect) = default;
    /// Takes the components of `vect`, however many there are.
    Vecteur& operator=(const Vecteur& vect) = default;

    // What a vector of fixed dimension may override.

    /// Sets component `x` to `val`; raises VECTEUR_READ_VALUE_INCORRECT outside the vector.
    virtual void setCoord(double val, size_t x);
    /// Appends a component.
    virtual void addDim(double x);
    virtual std::string getPrintText() const;
    /// Component `pos`, not checked: `pos` must be below size().
    virtual double& operator[](size_t pos) { return coords[pos]; }
    virtual const double& operator[](size_t pos) const { return coords[pos]; }
    virtual ~Vecteur() = default;

    // Reading.

    size_t size() const;
    /// Component `x`; raises VECTEUR_READ_VALUE_INCORRECT outside the vector.
    double coord(size_t x) const;
    /// The components separated by single spaces, six significant digits each.
    std::string toString() const;
    /// Writes the text and an end of line to standard output.
    void affiche() const;
    /// Exact equality of all components; two vectors without components are equal.
    bool compare(const Vecteur& vectCompare) const;

    // Arithmetic.

    Vecteur plus(const Vecteur& vectAutre) const;
    Vecteur moins(const Vecteur& vectAutre) const;
    Vecteur oppose() const;
    Vecteur mult(double x) const;
    /// The component-wise product.
    Vecteur scale(const Vecteur& vectAutre) const;
    double prodScal(const Vecteur& vectAutre) const;
    /// The right-handed cross product; both vectors need exactly three components.
    Vecteur prodVect(const Vecteur& vectAutre) const;
    double norme() const;
    /// The vector of length 1 in the same direction; a zero vector stays as it is.
    Vecteur normalise() const;
    /// The norm of the difference.
    double distance(const Vecteur& vectAutre) const;
    Vecteur& operator+=(const Vecteur& vect);
    Vecteur& operator-=(const Vecteur& vect);

    // Joining and slicing.

    /// These components followed by those of `vect`.
    Vecteur compose(const Vecteur& vect) const;
    /// `length` components from index `start` on; raises as coord() does beyond the end.
    Vecteur cut(size_t start, size_t length) const;
    /// The components `strat` to `finish`, both included; none if `strat` is greater. Raises as coord() does beyond the
    /// end.
    Vecteur getSubVecteur(const size_t& strat, const size_t& finish) const;

protected:
    /// Raises an Exception of the kind VECTEUR_SIZE_INCORRECT that names the caller's place.
    [[noreturn]] static void refuseSize(int line, const char* file, const char* function);

private:
    std::vector<double> coords;
};

// The results are constant, so that nobody assigns to a sum by mistake.

const Vecteur operator+(Vecteur vect1, const Vecteur& vect2);
const Vecteur operator-(Vecteur vect1, const Vecteur& vect2);
/// The cross product.
const Vecteur operator^(const Vecteur& vect1, const Vecteur& vect2);
const Vecteur operator-(const Vecteur& vect);
const Vecteur operator*(const double& scal, const Vecteur& vect);
const Vecteur operator*(const Vecteur& vect, const double& scal);
/// Multiplies by 1 / `scal`, which is not checked: dividing by zero gives infinities.
const Vecteur operator/(const Vecteur& vect, const double& scal);

// Constant like the others. On a double or a bool that has no effect, and a compiler may warn about it.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wignored-qualifiers"

/// The dot product.
const double operator*(const Vecteur& vect1, const Vecteur& vect2);
/// Quirk: for vectors of different dimensions this and != raise VECTEUR_SIZE_INCORRECT, like compare().
const bool operator==(const Vecteur& vect1, const Vecteur& vect2);
const bool operator!=(const Vecteur& vect1, const Vecteur& vect2);

#pragma GCC diagnostic pop

std::ostream& operator<<(std::ostream& sortie, const Vecteur& vect);

#endif
