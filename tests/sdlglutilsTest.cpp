#include "sdlglutils.h"

#include "standin/standin.h"

#include <fstream>
#include <iterator>

using Bytes = std::vector<Uint8>;

struct Pictures : StandinTest {};


TEST_F(Pictures, loadTextureSetsThemUprightAndFiltersThem) {
    files.picture = {{1, 2, 3, 4}, {5, 6, 7, 8}};
    for (const auto& [mipmaps, smaller] : {std::pair(" mipmaps", GL_LINEAR_MIPMAP_LINEAR), {"", GL_LINEAR}}) {
        const Texture texture = textures.at(loadTexture("a.png", *mipmaps != 0));
        EXPECT_EQ(screen.texels, (Bytes{5, 6, 7, 8, 1, 2, 3, 4})) << "row by row from the bottom, with their own alpha";
        EXPECT_EQ(texture.made, joined("4 RGBA" + std::string(mipmaps) + " smaller", smaller, "larger", GL_LINEAR));
    }
    EXPECT_EQ(loadTexture("nowhere.png", true), 0U);
}


TEST_F(Pictures, XPMFromImageWritesThreeColoursInRowsOfEights) {
    const Pixel BLACK{9, 9, 9, 255}, CLEAR{9, 9, 9, 127}, RED{128, 9, 9, 128}, GREEN{9, 128, 9, 255},
        BLUE{9, 9, 128, 255};
    const std::string file = testing::TempDir() + "hand.xpm";
    Lines written;
    for (const int width : {1, 8}) {
        files.picture = {BLACK, CLEAR, RED, GREEN, BLUE, BLACK, BLACK, BLACK};
        files.width = width;
        EXPECT_EQ(XPMFromImage("img/hand.png", file.c_str()), 0);
        std::ifstream xpm(file);
        written.emplace_back(std::istreambuf_iterator<char>(xpm), std::istreambuf_iterator<char>());
    }
    expectAsRecorded("hands", written);
    EXPECT_EQ(XPMFromImage("nowhere.png", file.c_str()), -1);
}


TEST_F(Pictures, cursorFromXPMSetsABitForEachPixel) {
    const char* hand[] = {" 16 2 3 1 ", "", "", "", "X ........     X", "..........      ", "3,1"};
    cursorFromXPM(hand);
    EXPECT_EQ(calls, Lines{"cursor 16 2 3 1"});
    EXPECT_EQ(files.cursorData, (Bytes{0x80, 0x01, 0x00, 0x00})) << "black";
    EXPECT_EQ(files.cursorMask, (Bytes{0xBF, 0xC1, 0xFF, 0xC0})) << "black or white";
}


TEST_F(Pictures, drawAxisDrawsThreeLinesWhateverWasEnabledAndRestoresIt) {
    glEnable(GL_TEXTURE_2D);
    drawAxis(5);
    expectAsRecorded("axes", calls);
    EXPECT_TRUE(screen.isAtRest()) << "not textured, and with the matrix of before";
}


TEST_F(Pictures, initFullScreenSetsTheFirstModeIfAnyAreListed) {
    unsigned int width = 7, height = 7;
    for (const long answer : {0L, -1L}) { // no modes, or any mode will do
        window.modes = reinterpret_cast<SDL_Rect**>(answer);
        EXPECT_EQ(initFullScreen(&width, &height), 0);
    }
    EXPECT_EQ(joined("size", width, height), "size 7 7");
    EXPECT_EQ(calls, Lines{});

    SDL_Rect large{0, 0, 1920, 1080}, small{0, 0, 640, 480};
    SDL_Rect* modes[] = {&large, &small, nullptr};
    window.modes = modes;
    EXPECT_EQ(initFullScreen(&width, nullptr), 0);
    EXPECT_EQ(initFullScreen(nullptr, &height), 0);
    EXPECT_EQ(joined("size", width, height), "size 1920 1080");
    EXPECT_EQ(calls, Lines(2, "full screen 1920 1080 24 OpenGL"));
    window.opens = false;
    EXPECT_EQ(initFullScreen(&width, &height), -1);
}
