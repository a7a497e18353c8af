#ifndef GAME_H
#define GAME_H

/// One game in progress.
class Game {
public:
    /// The map in cells, and a cell in pixels: exactly the 1024 x 768 window.
    static constexpr int largeur = 32;
    static constexpr int hauteur = 24;
    static constexpr double largeur_case = 32.0;
    static constexpr double hauteur_case = 32.0;
};

#endif
