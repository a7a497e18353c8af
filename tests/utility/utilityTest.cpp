#include "utility/utility.h"

#include "standin/standin.h"

#include <memory>

TEST(Utility, deletePointerInVectorDeletesOnceAndLeavesNulls) {
    const auto witness = std::make_shared<int>();
    std::vector<std::shared_ptr<int>*> owned{new std::shared_ptr(witness), nullptr, new std::shared_ptr(witness)};
    deletePointerInVector(owned);
    deletePointerInVector(owned);
    EXPECT_EQ(witness.use_count(), 1);
    EXPECT_EQ(owned, decltype(owned)(3, nullptr));
}


TEST(Utility, removeInVectorFromPosNoOrderFillsTheGapWithTheLast) {
    for (const auto& [pos, left] : {std::pair(0, "cb"), {2, "ab"}, {3, "abc"}}) {
        std::vector<char> letters{'a', 'b', 'c'};
        removeInVectorFromPosNoOrder<char>(letters, pos);
        EXPECT_EQ(std::string(letters.begin(), letters.end()), left);
    }
}
