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
    // What is rolled for each group: its chance, its column and row, then radius, row and column of each of two
    // patches. The last group is in the middle and rolls no place.
    const std::vector<int> LOWER_LEFT{159, 19, 15, 0, 1, 1, 9, 2, 0}, LOWER_RIGHT{0, 15, 11, 0, 1, 1, 0, 1, 1},
        UPPER_LEFT{0, 19, 15, 0, 1, 1, 0, 1, 1}, UPPER_RIGHT{0, 15, 11, 0, 1, 1, 0, 1, 1}, MIDDLE{0, 0, 5, 3, 9, 4, 7};
    for (const auto& rolls : {LOWER_LEFT, LOWER_RIGHT, UPPER_LEFT, UPPER_RIGHT, MIDDLE})
        dice.insert(dice.end(), rolls.begin(), rolls.end());
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
    dice = {0, 5, 3, 0, 1, 1, 0, 1, 1}; // a disc of thirteen cells around (5, 3)
    screen.drawsWholeGround = true;
    Game(1024, 768).drawSol(20);
    ASSERT_EQ(screen.drawn.size(), 32U * 24);
    // The cell in the middle, one that it touches with a corner only, and one in the bend of its upper left edge.
    for (const std::string tile :
         {"160,96 160,128 192,128 192,96 part 0.343333,0.676667 0.343333,0.823333 0.656667,0.823333 0.656667,0.676667",
          "96,32 96,64 128,64 128,32 part 0.01,0.51 0.01,0.656667 0.323333,0.656667 0.323333,0.51",
          "128,160 128,192 160,192 160,160 part 0.676667,0.01 0.676667,0.156667 0.99,0.156667 0.99,0.01"})
        EXPECT_EQ(linesStarting("tileSet_v2_32x32 " + tile, screen.drawn).size(), 1U) << tile;
}
