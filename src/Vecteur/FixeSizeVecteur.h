#ifndef FIXE_SIZE_VECTEUR_H
#define FIXE_SIZE_VECTEUR_H

#include "Vecteur/vecteur.h"

#include <array>
#include <initializer_list>
#include <utility>
#include <vector>

/// A vector of exactly N components. A constructor that is given another number of them raises an Exception of the kind
/// VECTEUR_SIZE_INCORRECT.
template <unsigned int N>
class FixeSizeVecteur : public Vecteur {
public:
    FixeSizeVecteur(const std::initializer_list<double>& liste) : Vecteur(liste) {
        if (size() != N)
            refuseSize(__LINE__, __FILE__, __func__);
    }

    FixeSizeVecteur(std::vector<double> coords) : Vecteur(std::move(coords)) {
        if (size() != N)
            refuseSize(__LINE__, __FILE__, __func__);
    }

    FixeSizeVecteur(const Vecteur& vect) : Vecteur(vect) {
        if (size() != N)
            refuseSize(__LINE__, __FILE__, __func__);
    }

    /// N components, each equal to `value`.
    FixeSizeVecteur(double value) : FixeSizeVecteur(std::vector<double>(N, value)) {}
    FixeSizeVecteur(const std::array<double, N>& coords)
        : FixeSizeVecteur(std::vector<double>(coords.begin(), coords.end())) {}
    FixeSizeVecteur(const FixeSizeVecteur<N>& vect) = default;
    FixeSizeVecteur<N>& operator=(const FixeSizeVecteur<N>& vect) = default;
    ~FixeSizeVecteur() override = default;

    /// Always raises VECTEUR_SIZE_INCORRECT: the dimension is fixed.
    void addDim(double /*x*/) override { refuseSize(__LINE__, __FILE__, __func__); }
};

#endif
