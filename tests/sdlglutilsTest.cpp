#include "sdlglutils.h"
#include "standin/screen.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

/// A picture file whose pixels are given from the top row on, red, green, blue and alpha by byte.
std::string picture(const std::string& name, int w, const std::vector<std::array<Uint8, 4>>& pixels) {
    const std::string path = testing::TempDir() + name + ".tga";
    std::ofstream file(path, std::ios::binary);
    const int h = static_cast<int>(pixels.size()) / w;
    for (const int byte : {0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, w, 0, h, 0, 32, 0x28})
        file.put(static_cast<char>(byte));
    for (const auto& [r, g, b, a] : pixels)
        for (const Uint8 byte : {b, g, r, a})
            file.put(static_cast<char>(byte));
    return path;
}

std::string read(const std::string& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace


TEST(Textures, standUprightAndAreMissingOnlyForMissingFiles) {
    const std::string file = picture("upright", 3, {{1}, {2}, {3}, {4, 0, 0, 9}, {5}, {6}});
    for (const bool mipmaps : {true, false}) {
        EXPECT_NE(loadTexture(file.c_str(), mipmaps), 0U);
        EXPECT_EQ(standin::textureSize, (std::vector{3, 2}));
        EXPECT_EQ(standin::texels[0], 4) << "the first texel is the bottom left pixel";
        EXPECT_EQ(standin::texels[3], 9) << "alpha is the picture's own";
        EXPECT_EQ(standin::texels[20], 3) << "the last texel is the top right pixel";
    }
    standin::clear();
    EXPECT_EQ(loadTexture("nowhere.png", true), 0U);
    EXPECT_EQ(sharedTexture(file.c_str()), sharedTexture(file.c_str()));
    EXPECT_EQ(standin::loaded.size(), 1U) << "a shared picture is read once";
}


TEST(Screenshot, showsThePixelsOfTheWindowWhateverTheirAlpha) {
    standin::texels = {10, 20, 30, 0, 0, 0, 0, 255, 0, 0, 0, 255, 40, 50, 60, 128};
    const std::string file = testing::TempDir() + "shot.bmp";
    ASSERT_EQ(takeScreenshot(file.c_str()), 0);
    loadTexture(file.c_str(), false);
    EXPECT_EQ(std::vector(standin::texels.begin(), standin::texels.begin() + 3),
              (std::vector<Uint8>{10, 20, 30}));
    EXPECT_EQ(std::vector(standin::texels.end() - 4, standin::texels.end() - 1),
              (std::vector<Uint8>{40, 50, 60}));
    EXPECT_EQ(takeScreenshot("/nowhere/shot.bmp"), -1);
}


TEST(Cursor, isWrittenInThreeColoursAndReadBack) {
    std::vector<std::array<Uint8, 4>> pixels(20, {200, 10, 10, 255});
    pixels[0] = {10, 10, 10, 255};
    pixels[1] = {10, 10, 10, 127};
    const std::string file = testing::TempDir() + "cursor.xpm";
    const std::string image = picture("cursor", 10, pixels);
    ASSERT_EQ(XPMFromImage(image.c_str(), file.c_str()), 0);
    const std::string text = read(file);
    EXPECT_EQ(text.find("const char *" + image.substr(0, image.find('.')) + "[] =\n\t{\n"), 0U);
    EXPECT_NE(text.find("\t\t\" 16 2 3 1 \",\n"), std::string::npos);
    EXPECT_NE(text.find("\t\t\"X ........      \",\n\t\t\"..........      \",\n\t\t\"0,0\"\n\t};\n"),
              std::string::npos);
    EXPECT_EQ(XPMFromImage("nowhere.png", "never.xpm"), -1);
    EXPECT_FALSE(std::filesystem::exists("never.xpm"));

    const char* xpm[] = {" 16 2 3 1 ",       "X c #000000",      ". c #ffffff", "  c None",
                         "X ........     X", "..........      ", "0,0"};
    cursorFromXPM(xpm);
    EXPECT_EQ(standin::calls.back(), "cursor 16 2 0 0");
    EXPECT_EQ(standin::cursor, (std::vector<Uint8>{0x80, 0x01, 0, 0, 0xBF, 0xC1, 0xFF, 0xC0}));
}


TEST(Axes, areDrawnInTheirColoursAndLeaveNothingBehind) {
    drawAxis(5);
    EXPECT_EQ(standin::box(standin::drawn.back()), "0 0 5 5");
    EXPECT_TRUE(standin::isAtRest());
}
