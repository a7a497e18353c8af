#ifndef UTILITY_H
#define UTILITY_H

#include <cstddef>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

// Helpers of the toolkit for vectors and for texts.

/// Deletes every object in a vector of owning pointers. The vector keeps its length and its entries become null, so a
/// second call deletes nothing.
template <typename T>
void deletePointerInVector(std::vector<T*>& vect) {
    for (T*& pointer : vect) {
        delete pointer;
        pointer = nullptr;
    }
}

/// Removes the element at `pos` in constant time by moving the last element into its place: the order is lost. A
/// position outside the vector removes nothing. An object behind a removed pointer is not deleted.
template <typename T>
void removeInVectorFromPosNoOrder(std::vector<T>& vect, const size_t& pos) {
    if (pos < vect.size()) {
        std::swap(vect[pos], vect.back());
        vect.pop_back();
    }
}

/// `input` as text, as a plain output stream writes it: a double with six significant digits, a string unchanged.
template <typename T>
std::string toString(const T& input) {
    std::ostringstream text;
    text << input;
    return text.str();
}

#endif
