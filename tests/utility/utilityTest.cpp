#include "utility/utility.h"

#include <gtest/gtest.h>
#include <memory>

TEST(Containers, deletingOwnedPointersLeavesNullsAndNeverDeletesTwice) {
    const auto witness = std::make_shared<int>(0);
    std::vector<std::shared_ptr<int>*> owned{new std::shared_ptr(witness), nullptr, new std::shared_ptr(witness)};
    deletePointerInVector(owned);
    deletePointerInVector(owned);
    EXPECT_EQ(witness.use_count(), 1);
    EXPECT_EQ(owned, decltype(owned)(3, nullptr));
}


TEST(Containers, removingWithoutOrderFillsTheHoleWithTheLast) {
    for (const auto& [pos, left] : {std::pair(0, "cb"), {2, "ab"}, {3, "abc"}}) {
        std::string letters = "abc";
        std::vector<char> vect(letters.begin(), letters.end());
        removeInVectorFromPosNoOrder<char>(vect, pos);
        EXPECT_EQ(std::string(vect.begin(), vect.end()), left);
    }
}
