#include "Game/Game.h"

#include "Entity/Weapon.h"
#include "Vecteur/Vecteur2D.h"
#include "drawing.h"
#include "openglDrawCircle.h"

#include <SDL_opengl.h>

#include <array>
#include <cmath>

namespace {

// The pie chart of the round-end panel: its segments, radius and centre, and how far off its frame stands.
constexpr int pressision = 40;
constexpr double rad = 50.0;
constexpr double xPosChart = 745.0;
constexpr double yPosChart = 376.0;
constexpr double xSkinDiff = 20.0;
constexpr double ySkinDiff = 5.0;

// The last digit of the money earned, in the panel.
constexpr double GAIN_X = 588.0;
constexpr double GAIN_Y = 296.0;
constexpr double GAIN_ENLARGED = 2.0;

// The banner of a defeat, a band across the window.
constexpr double BANNER_Y = 256.0;
constexpr double BANNER_HEIGHT = 256.0;

// The wave panel, and the last digit of its number, from the panel's corner.
constexpr double WAVE_PANEL_X = 150.0;
constexpr double WAVE_PANEL_Y = 500.0;
constexpr double WAVE_PANEL_WIDTH = 512.0;
constexpr double WAVE_PANEL_HEIGHT = 256.0;
constexpr double WAVE_NUMBER_X = 500.0;
constexpr double WAVE_NUMBER_Y = 45.0;
constexpr double WAVE_NUMBER_ENLARGED = 2.0;
constexpr int WAVE_NUMBER_DIGITS = 2; // Quirk: wave 100 shows as 00.


// A slice of the pie around (`x`, `y`), between two points on its rim. It is a fan because a slice of more than half
// the pie is not convex.
void drawSlice(GLuint texture, double x, double y, int first, int last) {
    const TexturedBatch batch(texture, GL_TRIANGLE_FAN);
    glTexCoord2d(0.5, 0.5);
    glVertex2d(x, y);
    for (int i = first; i <= last; ++i) {
        const double a = i * (2 * Vecteur2D::PI) / pressision;
        glTexCoord2d((std::cos(a) + 1) / 2, (std::sin(a) + 1) / 2);
        glVertex2d(x + std::cos(a) * rad, y + std::sin(a) * rad);
    }
}

} // namespace


void Game::draw(const double& dt, const double& x, const double& y) const {
    if (isInTitleScreen) {
        drawTitleScreen();
        return;
    }

    drawSol(dt);
    m_tower.draw(dt);
    m_waves[currentWave].draw(dt);

    const std::array<double, 2> mousePos{x, y}; // a vector would allocate in every frame
    if (tourelleActivite())
        dessinerTourelleGrisee(static_cast<int>(x), static_cast<int>(y));

    constexpr double waeponRadiusForMouse = 40.0;
    for (const Weapon* w : weapons) {
        w->draw(dt);
        // Quirk: the disc lies over this turret and under the next.
        if (w->distanceTo(mousePos[0], mousePos[1]) < waeponRadiusForMouse && isPlaying())
            openglDrawCircle(w->getPosition(), w->getRadius(), DISC_SEGMENTS);
    }

    drawGUI(dt, static_cast<int>(x), static_cast<int>(y));

    if (hasLoos())
        drawLoosScreen();
    else if (isInBetwenWave)
        drawRoudEnd(dt, x, y);
}


void Game::drawTitleScreen() const { drawTexturedQuad(m_texture_Title_screen, 0, 0, width, heigth); }


void Game::drawLoosScreen() const {
    constexpr double SECONDS_TO_FADE_IN = 10.0;
    glColor4d(1, 1, 1, timeLoos / SECONDS_TO_FADE_IN);
    drawTexturedQuad(m_texture_loos_screen, 0, BANNER_Y, width, BANNER_HEIGHT);
    drawWavePanel();
    glColor4d(1, 1, 1, 1);
}


void Game::drawRoudEnd(const double& dt, const double& /*x*/, const double& /*y*/) const {
    const double e = TIME_BETTWENN_WAVE - timeBeforeNextWave;
    constexpr double FADES_OUT = timeApearRoundMenu + timeStayRoundMenu;
    double alpha = 1.0;
    if (e < timeApearRoundMenu)
        alpha = e / timeApearRoundMenu;
    else if (e >= FADES_OUT) // Quirk: alpha falls below 0 after nine seconds.
        alpha = 1 - (e - FADES_OUT) / timeDisapearRoundMenu;
    glColor4d(1, 1, 1, alpha);

    constexpr TextureArea MIDDLE_THREE_QUARTERS{0.0, 0.125, 1.0, 0.875}; // of a square picture, as wide as the window
    drawTexturedQuad(m_texture_welldone, 0, 0, width, heigth, MIDDLE_THREE_QUARTERS);

    const double pollution = m_tower.getPollution();
    const double ratio = waterDepart + pollution != 0 ? pollution / (pollution + waterDepart) : 0.0;
    const int boundary = static_cast<int>(ratio * pressision);
    drawSlice(m_texture_Piechart_evil, xPosChart, yPosChart, 0, boundary);
    drawSlice(m_texture_Piechart_water, xPosChart, yPosChart, boundary, pressision);
    // Quirk: only a fortieth of the frame is drawn, beside the pie.
    drawSlice(m_texture_Piechart_skin, xPosChart + xSkinDiff, yPosChart + ySkinDiff, 0, 1);

    glPushMatrix();
    glScaled(GAIN_ENLARGED, GAIN_ENLARGED, 1);
    glTranslated(GAIN_X / GAIN_ENLARGED - MONEY_X, GAIN_Y / GAIN_ENLARGED - MONEY_Y, 0); // from the counter's place
    afficherArgentGain(dt);
    glPopMatrix();

    drawWavePanel();
    glColor4d(1, 1, 1, 1);
}


void Game::drawWavePanel() const {
    glPushMatrix();
    glTranslated(WAVE_PANEL_X, WAVE_PANEL_Y, 0);
    {
        const TexturedBatch batch(m_texture_wave, GL_QUADS);
        clockwiseQuadVertices(0, 0, WAVE_PANEL_WIDTH, WAVE_PANEL_HEIGHT);
    }

    glPushMatrix();
    glTranslated(WAVE_NUMBER_X, WAVE_NUMBER_Y, 0);
    glScaled(WAVE_NUMBER_ENLARGED, WAVE_NUMBER_ENLARGED, 0);
    const int number = static_cast<int>(currentWave) + 1; // players count from 1
    drawDigits(m_texture_argent, number, WAVE_NUMBER_DIGITS, DIGIT_WIDTH, DIGIT_HEIGHT);
    glPopMatrix();
    glPopMatrix();
}
