#include "Game/play.h"

#include <algorithm>

namespace {

const Ground meadowless(32, std::vector<int>(24, 0));

size_t patches(const Ground& ground) {
    size_t count = 0;
    for (const auto& column : ground)
        count += std::count(column.begin(), column.end(), 1);
    return count;
}

} // namespace


TEST(Ground, patchesAreDiscsOfWholeCellsCutAtTheMapsEdge) {
    const struct {
        int x, y;
        double r;
        size_t cells;
    } cases[] = {{10, 10, 2, 13}, {10, 10, 3, 29}, {33, 5, 2, 1}, {-1, -1, 2, 1}, {32, 25, 2, 0}, {40, 40, 3, 0}};
    for (const auto& [x, y, r, cells] : cases) {
        Ground ground = meadowless;
        creerTache(x, y, r, ground);
        EXPECT_EQ(patches(ground), cells) << x << " " << y << " " << r;
    }
}


TEST(Ground, fiveGroupsDrawTheirDiceInOrder) {
    // Chance, column, row, then radius, row and column of each patch; a group that fails its chance draws no more.
    standin::dice = {59, 9, 7, 0, 1, 1, 9, 2, 0, 60, 99, 0, 7, 5, 0, 1, 1, 0, 1, 1, 60};
    Ground expected = meadowless;
    creerTache(9, 7, 2, expected);
    creerTache(8, 8, 3, expected);
    creerTache(25, 19, 2, expected);
    EXPECT_EQ(creation_sol(), expected);
    EXPECT_TRUE(standin::dice.empty());
}


TEST(Ground, everyNeighbourhoodHasItsTile) {
    // Rows from the top; the cell in the middle is the one asked for.
    const struct {
        const char* cells;
        int tile;
    } cases[] = {{"... ... ..1", 0},  {"... ... .1.", 1},  {"... ... 1..", 2},  {"... ..1 ...", 3},  {".1. 1.1 .1.", 4},
                 {"... 1.. ...", 5},  {"..1 ... ...", 6},  {".1. ... ...", 7},  {"1.. ... ...", 8},  {"11. 1.. ...", 9},
                 {".11 ..1 ...", 11}, {"... ... ...", 13}, {"... 1.. 11.", 15}, {"... ..1 .11", 17}, {"... .1. ...", 4},
                 {"..1 ... 1..", 2},  {"1.1 ... 1.1", 0},  {"... 1.1 ...", 13}, {".1. 1.. ...", 13}, {"... 111 ...", 4},
                 {".1. 1.1 ...", 13}, {"1.1 ..1 ...", 3}};
    for (const auto& [cells, tile] : cases)
        for (const auto& [x, y] : {std::pair(5, 5), {30, 22}}) {
            Ground raw = meadowless;
            for (int row = 0; row < 3; ++row)
                for (int column = 0; column < 3; ++column)
                    raw[x - 1 + column][y + 1 - row] = cells[row * 4 + column] == '1';
            EXPECT_EQ(lisser(raw)[x][y], tile) << cells;
        }
    Ground corner = meadowless;
    corner[30][22] = corner[5][22] = 1;
    EXPECT_EQ(lisser(corner)[31][23], 2) << "beyond the map there is no patch";
    EXPECT_EQ(lisser(corner)[5][23], 1);
}


TEST_F(Play, theGroundIsOneBatchOfTiles) {
    standin::dice.assign(5, 99);
    const Game plain(1024, 768);
    plain.drawSol(20);
    EXPECT_EQ(standin::drawing(), standin::Words{"tileSet_v2_32x32 3072 0,0>0.343333,0.176667 0,32>0.343333,0.323333 "
                                                 "32,32>0.656667,0.323333 1 1 1 1"});
}
