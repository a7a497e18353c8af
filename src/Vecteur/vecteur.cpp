#include "Vecteur/vecteur.h"

#include "exception/exception.h"
#include "exception/exceptionTypeDef.h"

#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <iostream>
#include <sstream>
#include <utility>
#include <vector>

Vecteur::Vecteur() = default;


Vecteur::Vecteur(std::vector<double> coordsPara) : coords(std::move(coordsPara)) {}


Vecteur::Vecteur(double size, double value) : coords(size >= 1.0 ? static_cast<size_t>(size) : 0, value) {}


Vecteur::Vecteur(const std::initializer_list<double>& liste) : coords(liste) {}


void Vecteur::setCoord(double val, size_t x) {
    if (x >= size())
        throw Exception(__LINE__, __FILE__, __func__, VECTEUR_READ_VALUE_INCORRECT);
    coords[x] = val;
}


void Vecteur::addDim(double x) { coords.push_back(x); }


std::string Vecteur::getPrintText() const { return toString(); }


size_t Vecteur::size() const { return coords.size(); }


double Vecteur::coord(size_t x) const {
    if (x >= size())
        throw Exception(__LINE__, __FILE__, __func__, VECTEUR_READ_VALUE_INCORRECT);
    return coords[x];
}


std::string Vecteur::toString() const {
    std::ostringstream text;
    for (size_t i = 0; i < size(); ++i)
        text << (i == 0 ? "" : " ") << coords[i];
    return text.str();
}


void Vecteur::affiche() const { std::cout << toString() << std::endl; }


bool Vecteur::compare(const Vecteur& vectCompare) const {
    if (size() != vectCompare.size())
        refuseSize(__LINE__, __FILE__, __func__);
    return coords == vectCompare.coords;
}


// Checked here first, so that the error names the function that the caller used.
Vecteur Vecteur::plus(const Vecteur& vectAutre) const {
    if (size() != vectAutre.size())
        refuseSize(__LINE__, __FILE__, __func__);
    return *this + vectAutre;
}


Vecteur Vecteur::moins(const Vecteur& vectAutre) const {
    if (size() != vectAutre.size())
        refuseSize(__LINE__, __FILE__, __func__);
    return *this - vectAutre;
}


Vecteur Vecteur::oppose() const {
    Vecteur result;
    for (const double component : coords)
        result.addDim(-component);
    return result;
}


Vecteur Vecteur::mult(double x) const {
    Vecteur result;
    for (const double component : coords)
        result.addDim(component * x);
    return result;
}


Vecteur Vecteur::scale(const Vecteur& vectAutre) const {
    if (size() != vectAutre.size())
        refuseSize(__LINE__, __FILE__, __func__);
    Vecteur result;
    for (size_t i = 0; i < size(); ++i)
        result.addDim(coords[i] * vectAutre.coords[i]);
    return result;
}


double Vecteur::prodScal(const Vecteur& vectAutre) const {
    if (size() != vectAutre.size())
        refuseSize(__LINE__, __FILE__, __func__);
    double sum = 0.0;
    for (size_t i = 0; i < size(); ++i)
        sum += coords[i] * vectAutre.coords[i];
    return sum;
}


Vecteur Vecteur::prodVect(const Vecteur& vectAutre) const {
    if (size() != 3 || vectAutre.size() != 3)
        refuseSize(__LINE__, __FILE__, __func__);
    Vecteur result;
    for (size_t i = 0; i < 3; ++i) {
        const size_t j = (i + 1) % 3;
        const size_t k = (i + 2) % 3;
        result.addDim(coords[j] * vectAutre.coords[k] - coords[k] * vectAutre.coords[j]);
    }
    return result;
}


double Vecteur::norme() const { return std::sqrt(prodScal(*this)); }


Vecteur Vecteur::normalise() const {
    const double n = norme();
    return n == 0.0 ? Vecteur(*this) : mult(1.0 / n);
}


double Vecteur::distance(const Vecteur& vectAutre) const { return moins(vectAutre).norme(); }


Vecteur& Vecteur::operator+=(const Vecteur& vect) {
    if (size() != vect.size())
        refuseSize(__LINE__, __FILE__, __func__);
    for (size_t i = 0; i < size(); ++i)
        coords[i] += vect.coords[i];
    return *this;
}


Vecteur& Vecteur::operator-=(const Vecteur& vect) {
    if (size() != vect.size())
        refuseSize(__LINE__, __FILE__, __func__);
    for (size_t i = 0; i < size(); ++i)
        coords[i] -= vect.coords[i];
    return *this;
}


Vecteur Vecteur::compose(const Vecteur& vect) const {
    Vecteur result(coords);
    for (const double component : vect.coords)
        result.addDim(component);
    return result;
}


Vecteur Vecteur::cut(size_t start, size_t length) const {
    Vecteur result;
    for (size_t i = 0; i < length; ++i)
        result.addDim(coord(start + i));
    return result;
}


Vecteur Vecteur::getSubVecteur(const size_t& strat, const size_t& finish) const {
    Vecteur result;
    for (size_t i = strat; i <= finish; ++i)
        result.addDim(coord(i));
    return result;
}


void Vecteur::refuseSize(int line, const char* file, const char* function) {
    throw Exception(line, file, function, VECTEUR_SIZE_INCORRECT);
}


// Quirk: the error of a + b names operator+=, and that of a - b names operator-=.
const Vecteur operator+(Vecteur vect1, const Vecteur& vect2) { return vect1 += vect2; }


const Vecteur operator-(Vecteur vect1, const Vecteur& vect2) { return vect1 -= vect2; }


const Vecteur operator^(const Vecteur& vect1, const Vecteur& vect2) { return vect1.prodVect(vect2); }


const Vecteur operator-(const Vecteur& vect) { return vect.oppose(); }


const Vecteur operator*(const double& scal, const Vecteur& vect) { return vect.mult(scal); }


const Vecteur operator*(const Vecteur& vect, const double& scal) { return scal * vect; }


const Vecteur operator/(const Vecteur& vect, const double& scal) { return vect * (1.0 / scal); }


#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wignored-qualifiers"

const double operator*(const Vecteur& vect1, const Vecteur& vect2) { return vect1.prodScal(vect2); }


const bool operator==(const Vecteur& vect1, const Vecteur& vect2) { return vect1.compare(vect2); }


const bool operator!=(const Vecteur& vect1, const Vecteur& vect2) { return !vect1.compare(vect2); }

#pragma GCC diagnostic pop


std::ostream& operator<<(std::ostream& sortie, const Vecteur& vect) { return sortie << vect.toString(); }
