#include "sdlglutils.h"
#include "standin/standin.h"

TEST(Pictures, standUprightAndAreMissingOnlyForMissingFiles) {
    standin::image = {1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_NE(loadTexture("a.png", true), 0U);
    EXPECT_EQ(standin::texels, (standin::Bytes{8, 7, 6, 5, 4, 3, 2, 1}))
        << "from the bottom, with the picture's own alpha";
    EXPECT_EQ(loadTexture("nowhere.png", true), 0U);
}
