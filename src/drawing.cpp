#include "drawing.h"

namespace {

// The four corners of a quad in the usual order: lower left, lower right, upper right, upper left. The order decides
// how a quad is cut into triangles, and so how the colours of a few of its pixels are rounded. The ground and the wave
// panel are drawn in the opposite direction; with one order for all, single pixels of them would change.
void quadVertices(double x, double y, double w, double h, const TextureArea& area) {
    glTexCoord2d(area.left, area.bottom);
    glVertex2d(x, y);
    glTexCoord2d(area.right, area.bottom);
    glVertex2d(x + w, y);
    glTexCoord2d(area.right, area.top);
    glVertex2d(x + w, y + h);
    glTexCoord2d(area.left, area.top);
    glVertex2d(x, y + h);
}

} // namespace


TexturedBatch::TexturedBatch(GLuint texture, GLenum mode) {
    glEnable(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, texture);
    glBegin(mode);
}


TexturedBatch::~TexturedBatch() {
    glEnd();
    glBindTexture(GL_TEXTURE_2D, 0);
    glDisable(GL_TEXTURE_2D);
}


void prepareFrame(int width, int height) {
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    gluOrtho2D(0, width, 0, height);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
}


void drawTexturedQuad(GLuint texture, double x, double y, double w, double h, const TextureArea& area) {
    const TexturedBatch batch(texture, GL_QUADS);
    quadVertices(x, y, w, h, area);
}


void drawDigits(GLuint texture, int number, int count, double w, double h) {
    const TexturedBatch batch(texture, GL_QUADS);
    int arg = number;
    for (int i = 0; i < count; ++i) {
        const int d = arg % 10;
        arg = (arg - d) / 10;
        quadVertices(-i * w, 0.0, w, h, {d / 10.0, 0.0, d / 10.0 + 0.1, 1.0});
    }
}


void clockwiseQuadVertices(double x, double y, double w, double h, const TextureArea& area) {
    glTexCoord2d(area.left, area.bottom);
    glVertex2d(x, y);
    glTexCoord2d(area.left, area.top);
    glVertex2d(x, y + h);
    glTexCoord2d(area.right, area.top);
    glVertex2d(x + w, y + h);
    glTexCoord2d(area.right, area.bottom);
    glVertex2d(x + w, y);
}
