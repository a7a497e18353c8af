#include "sdlglutils.h"
#include "standin/screen.h"

#include <fstream>
#include <gtest/gtest.h>

namespace {

using Bytes = std::vector<Uint8>;

/// An uncompressed picture file of `w` pixels a row, given from the top row on as blue, green, red and alpha.
std::string picture(Uint8 w, const Bytes& pixels) {
    const std::string path = testing::TempDir() + "picture.tga";
    std::ofstream file(path, std::ios::binary);
    const Bytes header{0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, w, 0, Uint8(pixels.size() / w / 4), 0, 32, 0x28};
    for (const Bytes& part : {header, pixels})
        file.write(reinterpret_cast<const char*>(part.data()), static_cast<std::streamsize>(part.size()));
    return path;
}

} // namespace


TEST(Pictures, standUprightAndAreMissingOnlyForMissingFiles) {
    const std::string file = picture(1, {1, 2, 3, 4, 5, 6, 7, 8});
    EXPECT_NE(loadTexture(file.c_str(), true), loadTexture(file.c_str(), false));
    EXPECT_EQ(standin::texels, (Bytes{7, 6, 5, 8, 3, 2, 1, 4})) << "from the bottom, with the picture's own alpha";
    standin::clear();
    EXPECT_EQ(loadTexture("nowhere.png", true), 0U);
    EXPECT_EQ(sharedTexture(file.c_str()), sharedTexture(file.c_str()));
    EXPECT_EQ(standin::loaded.size(), 1U) << "a shared picture is read once";
}


TEST(Pictures, ofTheScreenShowWhatTheWindowShowsWhateverItsAlpha) {
    const Bytes window{10, 20, 30, 0, 0, 0, 0, 255, 0, 0, 0, 255, 40, 50, 60, 128};
    standin::texels = window;
    const std::string file = testing::TempDir() + "shot.bmp";
    ASSERT_EQ(takeScreenshot(file.c_str()), 0);
    loadTexture(file.c_str(), false);
    EXPECT_TRUE(std::equal(window.begin(), window.begin() + 3, standin::texels.begin()));
    EXPECT_TRUE(std::equal(window.begin() + 12, window.begin() + 15, standin::texels.begin() + 12));
    EXPECT_EQ(takeScreenshot("/nowhere/shot.bmp"), -1);
}


TEST(Pictures, becomeCursorsOfThreeColours) {
    const std::string image = picture(3, {9, 9, 9, 255, 9, 9, 9, 127, 9, 9, 200, 255});
    const std::string file = testing::TempDir() + "cursor.xpm";
    ASSERT_EQ(XPMFromImage(image.c_str(), file.c_str()), 0);
    std::ifstream text(file);
    EXPECT_EQ(
        std::string(std::istreambuf_iterator<char>(text), {}),
        "const char *" + image.substr(0, image.find('.')) +
            "[] =\n\t{\n\t\t/* width height num_colors chars_per_pixel */\n" +
            "\t\t\" 8 1 3 1 \",\n\t\t/* colors */\n\t\t\"X c #000000\",\n\t\t\". c #ffffff\",\n\t\t\"  c None\",\n" +
            "\t\t/* pixels */\n\t\t\"X .     \",\n\t\t\"0,0\"\n\t};\n");
    EXPECT_EQ(XPMFromImage("nowhere.png", file.c_str()), -1);
    const char* xpm[] = {" 16 2 3 1 ", "", "", "", "X ........     X", "..........      ", "3,1"};
    cursorFromXPM(xpm);
    EXPECT_EQ(standin::calls, standin::Words{"cursor 16 2 3 1"});
    EXPECT_EQ(standin::texels, (Bytes{0x80, 0x01, 0, 0, 0xBF, 0xC1, 0xFF, 0xC0}));
}


TEST(Pictures, ofTheAxesLeaveNoColourBehind) {
    drawAxis(5);
    EXPECT_EQ(standin::drawing(), standin::Words{"- 6 0,0 5,0 0,0 0 0 1 1"});
    EXPECT_TRUE(standin::isAtRest());
}
