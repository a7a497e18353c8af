#include "Game/Game.h"

#include "drawing.h"

#include <SDL_opengl.h>

void Game::drawGUI(const double& dt, const int& /*x*/, const int& /*y*/) const {
    glColor4d(1, 1, 1, 1);
    drawTexturedQuad(m_texture_shop, x_shop, y_shop, w_shop, h_shop);
    drawTexturedQuad(m_texture_tourelle, x_tourelle, y_tourelle, w_tourelle, h_tourelle);
    drawGauge();
    drawTexturedQuad(m_texture_argent_fond, x_argent, y_argent, w_argent, h_argent);
    afficherArgent(dt);
}


void Game::drawGauge() const {
    // The bottle's picture is TEXELS high. Its liquid stands at row y1 when it is empty, and at y2 when it is full.
    constexpr double TEXELS = 1024.0;
    const double y1 = 144.0;
    double y2 = 803.0;
    const auto drawContentUpTo = [this](double row) {
        drawTexturedQuad(m_texture_bouteille_eau, x_bouteille, y_bouteille, w_bouteille, h_bouteille * row / TEXELS,
                         {0.0, 0.0, 1.0, row / TEXELS});
    };

    double r = m_tower.getWater() / m_tower.getCapacity();
    double py = (y2 - y1) * r + y1;
    glColor4d(0, 0, 1, 1);
    drawContentUpTo(py);

    // The polluted share of the water is shown at the bottom; an empty tank has none.
    if (m_tower.getWater() > 0.0) {
        y2 = py;
        r = m_tower.getRatio();
        py = (y2 - y1) * r + y1;
        glColor4d(1, 0, 0, 1);
        drawContentUpTo(py);
    }

    glColor4d(1, 1, 1, 1);
    drawTexturedQuad(m_texture_bouteille, x_bouteille, y_bouteille, w_bouteille, h_bouteille);
}


void Game::afficherArgent(const double& /*dt*/) const {
    glColor4d(1, 1, 1, 1);
    drawMoney(argent);
}


void Game::afficherArgentGain(const double& /*dt*/) const { drawMoney(static_cast<int>(argentGain)); }


void Game::drawMoney(int amount) const {
    // The dollar sign's square picture is as high as the digits.
    constexpr int DIGITS = 6; // Quirk: a million shows as 000000.
    constexpr double f = 2.4; // how much smaller than its picture a digit is
    constexpr double w = DIGIT_WIDTH / f;
    constexpr double h = DIGIT_HEIGHT / f;
    glPushMatrix();
    glTranslated(MONEY_X, MONEY_Y, 0);
    drawDigits(m_texture_argent, amount, DIGITS, w, h);
    drawTexturedQuad(m_texture_dollar, -(DIGITS + 1) * w, 0, h, h);
    glPopMatrix();
}
