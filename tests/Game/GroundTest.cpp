#include "Game/play.h"

#include <numeric>

static const Ground meadow(32, std::vector<int>(24, 0));


TEST(Ground, patchesAreDiscsOfWholeCellsCutAtTheMapsEdge) {
    const int cases[][4] = {{10, 10, 2, 13}, {10, 10, 3, 29}, {33, 5, 2, 1}, {-1, -1, 2, 1}, {32, 25, 2, 0}};
    for (const auto& [x, y, r, cells] : cases) {
        Ground ground = meadow;
        creerTache(x, y, r, ground);
        int patches = 0;
        for (const auto& column : ground)
            patches += std::accumulate(column.begin(), column.end(), 0);
        EXPECT_EQ(patches, cells) << x << " " << y << " " << r;
    }
}


TEST(Ground, fiveGroupsDrawTheirDiceInOrder) {
    // Chance, column and row of a group, then radius, row and column of each of its two patches.
    standin::dice = {59, 19, 15, 0, 1, 1, 9,  2,  0, 0, 15, 11, 0, 1, 1, 0, 1, 1, 0, 19, 15, 0,
                     1,  1,  0,  1, 1, 0, 15, 11, 0, 1, 1,  0,  1, 1, 0, 0, 1, 1, 0, 1,  1};
    Ground expected = meadow;
    for (const auto& [x, y] : {std::pair(9, 7), {25, 5}, {9, 17}, {25, 19}, {16, 12}})
        creerTache(x, y, 2, expected);
    creerTache(8, 8, 3, expected);
    EXPECT_EQ(creation_sol(), expected);
    EXPECT_TRUE(standin::dice.empty() && creation_sol() == meadow) << "chances of 60 are too small";
}


TEST(Ground, everyNeighbourhoodHasItsTile) {
    // Rows from the top; the cell in the middle is the one asked for.
    const std::pair<const char*, int> cases[] = {
        {"... ... ..1", 0},  {"... ... .1.", 1},  {"... ... 1..", 2},  {"... ..1 ...", 3},  {".1. 1.1 .1.", 4},
        {"... 1.. ...", 5},  {"..1 ... ...", 6},  {".1. ... ...", 7},  {"1.. ... ...", 8},  {"11. 1.. ...", 9},
        {".11 ..1 ...", 11}, {"... ... ...", 13}, {"... 1.. 11.", 15}, {"... ..1 .11", 17}, {"... .1. ...", 4},
        {"..1 ... 1..", 2},  {"1.1 ... 1.1", 0},  {"... 1.1 ...", 13}, {".1. 1.. ...", 13}, {"... 111 ...", 4},
        {".1. 1.1 ...", 13}, {"1.1 ..1 ...", 3},  {"1.1 ... ...", 6}};
    for (const auto& [cells, tile] : cases) {
        Ground raw = meadow;
        for (int i = 0; i < 9; ++i)
            raw[29 + i % 3][23 - i / 3] = cells[i / 3 * 4 + i % 3] == '1';
        EXPECT_EQ(lisser(raw)[30][22], tile) << cells;
    }
    Ground corner = meadow;
    corner[30][22] = corner[5][22] = 1;
    EXPECT_EQ(lisser(corner)[31][23] * 100 + lisser(corner)[5][23], 201) << "beyond the map there is no patch";
}
