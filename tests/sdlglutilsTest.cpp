#include "sdlglutils.h"

#include "standin/standin.h"

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

using Bytes = std::vector<Uint8>;

struct Pictures : StandinTest {};


TEST_F(Pictures, loadTextureSetsThemUprightAndFiltersThem) {
    files.picture = {{1, 2, 3, 4}, {5, 6, 7, 8}};
    for (const bool mipmaps : {true, false}) {
        const Texture texture = textures.at(loadTexture("a.png", mipmaps));
        EXPECT_EQ(screen.texels, (Bytes{5, 6, 7, 8, 1, 2, 3, 4})) << "row by row from the bottom, with their own alpha";
        EXPECT_EQ(texture.upload, mipmaps ? "4 RGBA mipmaps" : "4 RGBA");
        EXPECT_EQ(texture.smaller, mipmaps ? GL_LINEAR_MIPMAP_LINEAR : GL_LINEAR);
        EXPECT_EQ(texture.larger, GL_LINEAR);
    }
    EXPECT_EQ(loadTexture("nowhere.png", true), 0U);
}


TEST_F(Pictures, takeScreenshotShowsWhatTheWindowShowsWhateverItsAlpha) {
    screen.texels = {10, 20, 30, 0, 40, 50, 60, 128};
    EXPECT_EQ(takeScreenshot("shot.bmp"), 0);
    EXPECT_EQ(calls, Lines{"read 3 5 1 2"})
        << "the whole viewport, from its corner (3, 5): one pixel wide and two high";
    const auto firstRow = files.saved.begin() + 54; // behind the headers, blue, green and red
    EXPECT_EQ(Bytes(firstRow, firstRow + 7), (Bytes{30, 20, 10, 0, 60, 50, 40}));
    EXPECT_EQ(takeScreenshot("nowhere.bmp"), -1);
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


TEST_F(Pictures, drawAxisDrawsThreeColouredLinesWhateverWasEnabled) {
    glEnable(GL_TEXTURE_2D);
    glEnable(GL_LIGHTING);
    drawAxis(5);
    const std::string style = " width 2 smooth blended by alpha colour ";
    EXPECT_EQ(screen.drawn, (Lines{"no texture 0,0 5,0" + style + "1 0 0 1", "no texture 0,0 0,5" + style + "0 1 0 1",
                                   "no texture 0,0 0,0,1" + style + "0 0 1 1"}));
}


TEST_F(Pictures, drawAxisLeavesOpenGLAsItWas) {
    const auto drawLine = [] {
        glBegin(GL_LINES);
        glVertex3i(0, 0, 0);
        glVertex3i(1, 0, 0);
        glEnd();
    };
    for (const GLenum ability : {GL_TEXTURE_2D, GL_LIGHTING, GL_BLEND})
        glEnable(ability);
    glBindTexture(GL_TEXTURE_2D, loadTexture("a.png", true));
    glColor4d(1, 1, 0, 1);
    drawLine();
    drawAxis(5);
    drawLine();
    EXPECT_EQ(screen.drawn.front(), "a 0,0 1,0 width 1 blended lit part 0,0 0,0 colour 1 1 0 1");
    EXPECT_EQ(screen.drawn.back(), screen.drawn.front());
}


TEST_F(Pictures, initFullScreenSetsTheFirstModeOfSeveral) {
    SDL_Rect large{0, 0, 1920, 1080}, small{0, 0, 640, 480};
    SDL_Rect* modes[] = {&large, &small, nullptr};
    window.modes = modes;
    unsigned int width = 0, height = 0;
    EXPECT_EQ(initFullScreen(&width, nullptr), 0);
    EXPECT_EQ(initFullScreen(nullptr, &height), 0);
    EXPECT_EQ(width, 1920U);
    EXPECT_EQ(height, 1080U);
    EXPECT_EQ(calls, Lines(2, "full screen 1920 1080 24 OpenGL"));
    window.opens = false;
    EXPECT_EQ(initFullScreen(&width, &height), -1);
}


TEST_F(Pictures, initFullScreenChangesNothingWhereNoModesAreListed) {
    SDL_Rect** const anyModeWillDo = reinterpret_cast<SDL_Rect**>(-1);
    unsigned int size = 7;
    for (SDL_Rect** modes : {static_cast<SDL_Rect**>(nullptr), anyModeWillDo}) {
        window.modes = modes;
        EXPECT_EQ(initFullScreen(&size, &size), 0);
    }
    EXPECT_EQ(size, 7U);
    EXPECT_EQ(calls, Lines{});
}
