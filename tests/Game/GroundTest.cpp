#include "Game/Game.h"
#include "standin/standin.h"

#include <algorithm>

static const Ground meadow(32, std::vector<int>(24, 0));
struct GroundTest : StandinTest {};


TEST_F(GroundTest, creerTacheMarksADiscOfWholeCellsCutAtTheMapsEdge) {
    const std::tuple<int, int, double, int> cases[] = {{10, 10, 2, 13}, {10, 10, 3, 29}, {10, 10, 2.3, 21},
                                                       {33, 5, 2, 1},   {-1, -1, 2, 1},  {32, 25, 2, 0}};
    for (const auto& [x, y, radius, expected] : cases) {
        Ground ground = meadow;
        creerTache(x, y, radius, ground);
        long cells = 0;
        for (const std::vector<int>& column : ground)
            cells += std::count(column.begin(), column.end(), 1);
        EXPECT_EQ(cells, expected) << x << " " << y << " " << radius;
    }
}


TEST_F(GroundTest, creation_solThrowsTheDiceOfFiveGroupsInOrder) {
    // Four groups take nine rolls each: chance, column and row, then radius, row and column of each of two patches. The
    // fifth is in the middle and rolls no place, so it takes seven.
    dice = {59, 19, 15, 0, 1, 1, 9,  2,  0, 0, 15, 11, 0, 1, 1, 0, 1, 1, 0, 19, 15, 0,
            1,  1,  0,  1, 1, 0, 15, 11, 0, 1, 1,  0,  1, 1, 0, 0, 5, 3, 9, 4,  7};
    Ground expected = meadow;
    for (const auto& [x, y, radius] :
         {std::tuple(9, 7, 2), {8, 8, 3}, {25, 5, 2}, {9, 17, 2}, {25, 19, 2}, {15, 13, 2}, {16, 12, 3}})
        creerTache(x, y, radius, expected);
    EXPECT_TRUE(creation_sol() == expected);
    EXPECT_TRUE(creation_sol() == meadow) << "rolls of 60 are no chance";
}


TEST_F(GroundTest, lisserGivesEveryNeighbourhoodItsTile) {
    // Rows from the top, 1 for a patch; the tile is that of the middle cell. The first rule that fits decides, and the
    // ground stays plain where none does.
    const std::pair<const char*, int> cases[] = {
        {"... ... ..1", 0},  {"... ... .1.", 1},  {"... ... 1..", 2},  {"... ..1 ...", 3},  {".1. 1.1 .1.", 4},
        {"... 1.. ...", 5},  {"..1 ... ...", 6},  {".1. ... ...", 7},  {"1.. ... ...", 8},  {"11. 1.. ...", 9},
        {".11 ..1 ...", 11}, {"... ... ...", 13}, {"... 1.. 11.", 15}, {"... ..1 .11", 17}, {"... .1. ...", 4},
        {"..1 ... 1..", 2},  {"1.1 ... 1.1", 0},  {"... 1.1 ...", 13}, {".1. 1.. ...", 13}, {"... 111 ...", 4},
        {".1. 1.1 ...", 13}, {"1.1 ..1 ...", 3},  {"1.1 ... ...", 6},  {"... ..1 .1.", 13}, {"... 1.. .1.", 13}};
    for (const auto& [left, low] : {std::pair(0, 0), {29, 21}}) // two corners of the map
        for (const auto& [cells, tile] : cases) {
            Ground ground = meadow;
            for (int i = 0; i < 9; ++i)
                ground[left + i % 3][low + 2 - i / 3] = cells[i / 3 * 4 + i % 3] == '1' ? 1 : 0;
            EXPECT_EQ(lisser(ground)[left + 1][low + 1], tile) << cells;
        }
}


TEST_F(GroundTest, drawSolShowsTheTileOfEachCellInItsPlace) {
    const std::deque<int> rolls{0, 5, 3, 4, 1, 2, 9, 0, 1, 0, 3, 2, 7, 2, 0};
    dice = rolls;
    Game(1024, 768).drawSol(20);
    dice = rolls;
    const Ground tiles = lisser(creation_sol());
    ASSERT_EQ(screen.longBatch.size(), 4U * 32 * 24);
    for (int cell = 0; cell < 32 * 24; ++cell) {
        const Point place(cell / 24, cell % 24);
        const int tile = tiles[cell / 24][cell % 24];
        const Point low(tile % 3 / 3.0 + 0.01, (5 - tile / 3) / 6.0 + 0.01);
        const Point high = low + Point(1 / 3.0 - 0.02, 1 / 6.0 - 0.02);
        const Point offsets[] = {{0, 0}, {0, 32}, {32, 32}, {32, 0}};
        const Point spots[] = {low, {low.real(), high.imag()}, high, {high.real(), low.imag()}};
        for (int i = 0; i < 4; ++i) {
            const Vertex& corner = screen.longBatch[4 * cell + i];
            EXPECT_EQ(corner.place, 32.0 * place + offsets[i]);
            EXPECT_NEAR(std::norm(corner.spot - spots[i]), 0, 1e-18) << place;
        }
    }
}
