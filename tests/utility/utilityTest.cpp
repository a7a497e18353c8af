#include "utility/utility.h"
#include "utility/HeterogeneousContainer.h"

#include <gtest/gtest.h>

TEST(Containers, deletingOwnedPointersLeavesNullsAndNeverDeletesTwice) {
    int deaths = 0;
    struct Mortal {
        int& deaths;
        ~Mortal() { ++deaths; }
    };
    std::vector<Mortal*> owned{new Mortal{deaths}, nullptr, new Mortal{deaths}};
    deletePointerInVector(owned);
    deletePointerInVector(owned);
    EXPECT_EQ(deaths, 2);
    EXPECT_EQ(owned, std::vector<Mortal*>(3, nullptr));
}


TEST(Containers, removingWithoutOrderFillsTheHoleWithTheLast) {
    const std::vector<std::pair<size_t, std::string>> cases{{0, "cb"}, {2, "ab"}, {3, "abc"}};
    for (const auto& [pos, left] : cases) {
        std::vector<char> letters{'a', 'b', 'c'};
        removeInVectorFromPosNoOrder(letters, pos);
        EXPECT_EQ(std::string(letters.begin(), letters.end()), left);
    }
    std::vector<int> empty;
    removeInVectorFromPosNoOrder(empty, 0);
    EXPECT_TRUE(empty.empty());
}


TEST(Containers, aDuoHoldsCopies) {
    std::vector<int> list{1, 2};
    Duo<int, std::vector<int>> duo(7, list);
    duo.getSecond().push_back(3);
    duo.setFirst(8);
    EXPECT_EQ(list.size(), 2U);
    EXPECT_EQ(duo.getSecond().size(), 3U);
    EXPECT_EQ(duo.getFirst(), 8);
}
