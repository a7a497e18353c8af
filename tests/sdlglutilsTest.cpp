#include "sdlglutils.h"
#include "standin/standin.h"

#include <fstream>

using standin::Bytes;

TEST(Pictures, standUprightAndAreMissingOnlyForMissingFiles) {
    standin::image = {1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_NE(loadTexture("a.png", true), 0U);
    EXPECT_EQ(standin::texels, (Bytes{8, 7, 6, 5, 4, 3, 2, 1})) << "from the bottom, with the picture's own alpha";
    EXPECT_EQ(loadTexture("nowhere.png", true), 0U);
}


TEST(Pictures, ofTheScreenShowWhatTheWindowShowsWhateverItsAlpha) {
    standin::texels = {10, 20, 30, 0, 40, 50, 60, 128};
    EXPECT_EQ(takeScreenshot("shot.bmp"), 0);
    EXPECT_EQ(Bytes(standin::saved.begin() + 54, standin::saved.begin() + 61), (Bytes{30, 20, 10, 0, 60, 50, 40}));
    EXPECT_EQ(takeScreenshot("nowhere.bmp"), -1);
}


TEST(Pictures, becomeCursorsOfThreeColours) {
    standin::image = {255, 9, 9, 9, 127, 9, 9, 9, 128, 9, 9, 128};
    const std::string file = testing::TempDir() + "cursor.xpm";
    EXPECT_EQ(XPMFromImage("img/hand.png", file.c_str()), 0);
    std::ifstream xpm(file);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(xpm), {}),
              "const char *img/hand[] =\n\t{\n\t\t/* width height num_colors chars_per_pixel */\n\t\t\" 8 3 3 1 \",\n"
              "\t\t/* colors */\n\t\t\"X c #000000\",\n\t\t\". c #ffffff\",\n\t\t\"  c None\",\n\t\t/* pixels */\n"
              "\t\t\"X       \",\n\t\t\"        \",\n\t\t\".       \",\n\t\t\"0,0\"\n\t};\n");
    EXPECT_EQ(XPMFromImage("nowhere.png", file.c_str()), -1);
    const char* hand[] = {" 16 2 3 1 ", "", "", "", "X ........     X", "..........      ", "3,1"};
    cursorFromXPM(hand);
    EXPECT_EQ(standin::calls.back(), "cursor 16 2 3 1");
    EXPECT_EQ(standin::texels, (Bytes{0x80, 0x01, 0, 0, 0xBF, 0xC1, 0xFF, 0xC0}));
}


TEST(Pictures, ofTheAxesLeaveNoColourBehind) {
    standin::clear(), drawAxis(5);
    EXPECT_EQ(standin::drawn, standin::Words{"- 6 0,0 5,0 0,0 0 0 1"});
    EXPECT_TRUE(standin::isAtRest());
}
