#include "Game/Game.h"

#include "drawing.h"

#include <SDL_opengl.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace {

// Where a group of patches may have its centre: a few cells from a corner of the map.
struct Origin {
    int column, row;
    int stepX, spreadX;
    int stepY, spreadY;
};

// Quirk: on the right and above, a group's centre may lie one cell beyond the map.
constexpr Origin ORIGINS[] = {
    {0, 0, 1, 10, 1, 8},
    {Game::largeur, 0, -1, 8, 1, 6},
    {0, Game::hauteur, 1, 10, -1, 8},
    {Game::largeur, Game::hauteur, -1, 8, -1, 6},
};

constexpr int PLAIN = 0;
constexpr int PATCH = 1;
constexpr int PATCH_TILE = 4;
constexpr int PLAIN_TILE = 13;

constexpr int GROUPS_PER_HUNDRED = 60;
constexpr int PATCHES_IN_GROUP = 2;

// The tile set, its first row on top.
constexpr int TILE_COLUMNS = 3;
constexpr int TILE_ROWS = 6;


bool groupIsThere() { return std::rand() % 100 < GROUPS_PER_HUNDRED; }


void creerGroupe(int px, int py, Ground& tab_sol) {
    // Discs of two to three cells, each at most one cell off the group's own centre in either direction.
    for (int i = 0; i < PATCHES_IN_GROUP; ++i) {
        const double r = 2.0 + (std::rand() % 10) / 9.0;
        const int y = py + std::rand() % 3 - 1;
        const int x = px + std::rand() % 3 - 1;
        creerTache(x, y, r, tab_sol);
    }
}


// '1' for a patch, '0' for plain ground and everything beyond the map.
char mark(const Ground& tab_sol, int x, int y) {
    const bool inside =
        x >= 0 && x < static_cast<int>(tab_sol.size()) && y >= 0 && y < static_cast<int>(tab_sol[x].size());
    return inside && tab_sol[x][y] == PATCH ? '1' : '0';
}


int plainCellTile(const Ground& tab_sol, int x, int y) {
    // The neighbours at the sides (right, above, left, below), and the diagonal ones.
    const std::string code{mark(tab_sol, x + 1, y), mark(tab_sol, x, y + 1), mark(tab_sol, x - 1, y),
                           mark(tab_sol, x, y - 1)};
    const std::string coins{mark(tab_sol, x + 1, y + 1), mark(tab_sol, x - 1, y + 1), mark(tab_sol, x - 1, y - 1),
                            mark(tab_sol, x + 1, y - 1)};

    // The first rule whose diagonal neighbour is a patch and whose sides match gives the tile. Quirk: of several
    // diagonal patches it shows only one.
    enum Diagonal { UPPER_RIGHT, UPPER_LEFT, LOWER_LEFT, LOWER_RIGHT, WHATEVER };
    constexpr struct {
        Diagonal diagonal;
        const char* code;
        int tile;
    } RULES[] = {
        {LOWER_RIGHT, "0000", 0}, {WHATEVER, "0001", 1},          {LOWER_LEFT, "0000", 2},
        {WHATEVER, "1000", 3},    {WHATEVER, "1111", PATCH_TILE}, {WHATEVER, "0010", 5},
        {UPPER_RIGHT, "0000", 6}, {WHATEVER, "0100", 7},          {UPPER_LEFT, "0000", 8},
        {UPPER_LEFT, "0110", 9},  {UPPER_RIGHT, "1100", 11},      {WHATEVER, "0000", PLAIN_TILE},
        {LOWER_LEFT, "0011", 15}, {LOWER_RIGHT, "1001", 17},
    };
    for (const auto& rule : RULES)
        if (code == rule.code && (rule.diagonal == WHATEVER || coins[rule.diagonal] == '1'))
            return rule.tile;
    // Quirk: the ground stays plain between patches on opposite sides, on three sides, or on two around a plain corner.
    return PLAIN_TILE;
}

} // namespace


Ground creation_sol() {
    Ground tab_sol(Game::largeur, std::vector<int>(Game::hauteur, PLAIN));
    for (const Origin& origin : ORIGINS) {
        if (!groupIsThere())
            continue;
        const int px = origin.column + origin.stepX * (std::rand() % origin.spreadX);
        const int py = origin.row + origin.stepY * (std::rand() % origin.spreadY);
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
                tab_sol[i][j] = PATCH;
        }
}


Ground lisser(const Ground& tab_sol) {
    Ground sol_final = tab_sol;
    for (size_t x = 0; x < sol_final.size(); ++x)
        for (size_t y = 0; y < sol_final[x].size(); ++y)
            sol_final[x][y] =
                tab_sol[x][y] != PLAIN ? PATCH_TILE : plainCellTile(tab_sol, static_cast<int>(x), static_cast<int>(y));
    return sol_final;
}


void Game::drawSol(const double& /*dt*/) const {
    // The inset keeps the neighbouring tiles of the picture from showing.
    constexpr double d = 0.01;
    constexpr double w = 1.0 / TILE_COLUMNS;
    constexpr double h = 1.0 / TILE_ROWS;
    const TexturedBatch batch(m_texture_sol, GL_QUADS);
    for (int x = 0; x < largeur; ++x)
        for (int y = 0; y < hauteur; ++y) {
            const int id = m_sol[x][y];
            const double cx = static_cast<double>(id % TILE_COLUMNS) / TILE_COLUMNS;
            const double cy = 1 - static_cast<double>(id - id % TILE_COLUMNS) / (TILE_COLUMNS * TILE_ROWS) - h;
            clockwiseQuadVertices(x * largeur_case, y * hauteur_case, largeur_case, hauteur_case,
                                  {cx + d, cy + d, cx + w - d, cy + h - d});
        }
}
