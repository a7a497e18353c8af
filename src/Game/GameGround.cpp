#include "Game/Game.h"

#include "sdlglutils.h"

#include <cstdlib>
#include <string>

namespace {

/// Where a group of patches may have its centre: so many cells from a corner of the map.
struct Corner {
    int column, row;
    int stepX, spreadX;
    int stepY, spreadY;
};

constexpr Corner corners[] = {
    {0, 0, 1, 10, 1, 8},
    {Game::largeur, 0, -1, 8, 1, 6},
    {0, Game::hauteur, 1, 10, -1, 8},
    {Game::largeur, Game::hauteur, -1, 8, -1, 6},
};

constexpr int plain = 0;
constexpr int patch = 1;
constexpr int patchTile = 4;
constexpr int plainTile = 13;

bool groupIsThere() { return rand() % 100 < 60; }


void creerGroupe(int px, int py, Ground& tab_sol) {
    for (int i = 0; i < 2; ++i) {
        const double r = 2.0 + (rand() % 10) / 9.0;
        const int y = py + rand() % 3 - 1;
        const int x = px + rand() % 3 - 1;
        creerTache(x, y, r, tab_sol);
    }
}


/// "1" for a patch, "0" for plain ground and for everything beyond the map.
char mark(const Ground& tab_sol, int x, int y) {
    const bool inside =
        x >= 0 && x < static_cast<int>(tab_sol.size()) && y >= 0 && y < static_cast<int>(tab_sol[x].size());
    return inside && tab_sol[x][y] == patch ? '1' : '0';
}


int plainCellTile(const Ground& tab_sol, int x, int y) {
    // The side neighbours: right, above, left, below; then the diagonal ones.
    const std::string code{mark(tab_sol, x + 1, y), mark(tab_sol, x, y + 1), mark(tab_sol, x - 1, y),
                           mark(tab_sol, x, y - 1)};
    const bool upperRight = mark(tab_sol, x + 1, y + 1) == '1';
    const bool upperLeft = mark(tab_sol, x - 1, y + 1) == '1';
    const bool lowerLeft = mark(tab_sol, x - 1, y - 1) == '1';
    const bool lowerRight = mark(tab_sol, x + 1, y - 1) == '1';

    // The first rule that matches wins.
    const struct {
        bool diagonal;
        const char* code;
        int tile;
    } rules[] = {
        {lowerRight, "0000", 0},   {true, "0001", 1},        {lowerLeft, "0000", 2},   {true, "1000", 3},
        {true, "1111", patchTile}, {true, "0010", 5},        {upperRight, "0000", 6},  {true, "0100", 7},
        {upperLeft, "0000", 8},    {upperLeft, "0110", 9},   {upperRight, "1100", 11}, {true, "0000", plainTile},
        {lowerLeft, "0011", 15},   {lowerRight, "1001", 17},
    };
    for (const auto& rule : rules)
        if (rule.diagonal && code == rule.code)
            return rule.tile;
    return plainTile;
}

} // namespace


Ground creation_sol() {
    Ground tab_sol(Game::largeur, std::vector<int>(Game::hauteur, plain));
    for (const Corner& corner : corners) {
        if (!groupIsThere())
            continue;
        const int px = corner.column + corner.stepX * (rand() % corner.spreadX);
        const int py = corner.row + corner.stepY * (rand() % corner.spreadY);
        creerGroupe(px, py, tab_sol);
    }
    if (groupIsThere())
        creerGroupe(Game::largeur / 2, Game::hauteur / 2, tab_sol);
    return tab_sol;
}


void creerTache(const int& x, const int& y, const double& r, Ground& tab_sol) {
    for (int i = static_cast<int>(x - r); i <= x + r; ++i)
        for (int j = static_cast<int>(y - r); j <= y + r; ++j) {
            const bool inside = i >= 0 && i < Game::largeur && j >= 0 && j < Game::hauteur;
            if (inside && r * r >= (i - x) * (i - x) + (j - y) * (j - y))
                tab_sol[i][j] = patch;
        }
}


Ground lisser(const Ground& tab_sol) {
    Ground sol_final = tab_sol;
    for (size_t x = 0; x < sol_final.size(); ++x)
        for (size_t y = 0; y < sol_final[x].size(); ++y)
            sol_final[x][y] =
                tab_sol[x][y] != plain ? patchTile : plainCellTile(tab_sol, static_cast<int>(x), static_cast<int>(y));
    return sol_final;
}


void Game::drawSol(const double& /*dt*/) const {
    // The tile set has 3 columns and 6 rows, the first row on top. The inset keeps neighbouring tiles out.
    constexpr double d = 0.01;
    glEnable(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, m_texture_sol);
    glBegin(GL_QUADS);
    for (int x = 0; x < largeur; ++x)
        for (int y = 0; y < hauteur; ++y) {
            const int id = m_sol[x][y];
            const double cx = (id % 3) / 3.0;
            const double cy = 1 - (id - id % 3) / 18.0 - 1.0 / 6.0;
            clockwiseQuadVertices(x * largeur_case, y * hauteur_case, largeur_case, hauteur_case,
                                  {cx + d, cy + d, cx + 1.0 / 3.0 - d, cy + 1.0 / 6.0 - d});
        }
    glEnd();
    glDisable(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, 0);
}
