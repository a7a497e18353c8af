#include "standin/screen.h"

#include <SDL_image.h>
#include <SDL_opengl.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <dlfcn.h>
#include <map>
#include <sstream>

namespace standin {

std::vector<Shape> drawn;
std::vector<std::string> played;
std::vector<std::string> calls;
std::vector<std::string> loaded;
std::vector<int> textureSize;
std::vector<unsigned char> texels;
std::vector<unsigned char> cursor;
std::vector<std::vector<SDL_Event>> session;
Uint32 ticks = 0;
std::function<Uint32(size_t)> work;
std::function<void(size_t)> onFrame;

namespace {

using Colour = std::array<double, 4>;

// x' = a x + c y + e, y' = b x + d y + f
struct Matrix {
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;
    Matrix operator*(const Matrix& m) const {
        return {a * m.a + c * m.b, b * m.a + d * m.b,     a * m.c + c * m.d,
                b * m.c + d * m.d, a * m.e + c * m.f + e, b * m.e + d * m.f + f};
    }
};

const Colour opaqueWhite{1, 1, 1, 1};
std::vector<Matrix> matrices(1);
Colour colour = opaqueWhite;
bool texturing = false;
GLuint bound = 0;
double s = 0;
double t = 0;
std::vector<std::string> pictures{""};
std::map<std::string, Mix_Chunk> sounds;
std::map<const void*, std::string> names;
std::string opened;
size_t frame = 0;
size_t event = 0;

template <typename... Words>
void say(const Words&... words) {
    std::ostringstream line;
    ((line << words << ' '), ...);
    calls.push_back(line.str().substr(0, line.str().size() - 1));
}

std::string extent(const Shape& shape, double Vertex::*x, double Vertex::*y) {
    double low[2] = {1e9, 1e9};
    double high[2] = {-1e9, -1e9};
    for (const Vertex& vertex : shape.vertices)
        for (int axis = 0; axis < 2; ++axis) {
            low[axis] = std::min(low[axis], vertex.*(axis == 0 ? x : y));
            high[axis] = std::max(high[axis], vertex.*(axis == 0 ? x : y));
        }
    std::ostringstream text;
    text << low[0] << ' ' << low[1] << ' ' << high[0] - low[0] << ' ' << high[1] - low[1];
    return text.str();
}

template <typename Function>
Function* real(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

void clear() {
    for (auto* list : {&played, &calls, &loaded})
        list->clear();
    drawn.clear();
    session.clear();
    frame = event = ticks = 0;
    work = nullptr;
    onFrame = nullptr;
}

bool isAtRest() { return !texturing && bound == 0 && colour == opaqueWhite && matrices.size() == 1; }

std::vector<Shape> drawnWith(const std::string& picture) {
    std::vector<Shape> found;
    for (const Shape& shape : drawn)
        if (shape.picture == "Assets/img/" + picture)
            found.push_back(shape);
    return found;
}

std::string box(const Shape& shape) { return extent(shape, &Vertex::x, &Vertex::y); }

std::string textureBox(const Shape& shape) { return extent(shape, &Vertex::s, &Vertex::t); }

Mix_Chunk* sound(const std::string& name) {
    names[&sounds[name]] = name;
    return &sounds[name];
}

} // namespace standin

using namespace standin;

extern "C" {

// OpenGL

void glEnable(GLenum what) { texturing |= what == GL_TEXTURE_2D; }
void glDisable(GLenum what) { texturing &= what != GL_TEXTURE_2D; }
void glBindTexture(GLenum, GLuint texture) { bound = texture; }
void glColor4d(GLdouble r, GLdouble g, GLdouble b, GLdouble a) { colour = {r, g, b, a}; }
void glColor3ub(GLubyte r, GLubyte g, GLubyte b) { colour = {r / 255.0, g / 255.0, b / 255.0, 1}; }
void glBegin(GLenum mode) { drawn.push_back({mode, texturing ? pictures[bound] : "", colour, {}}); }
void glEnd() {}
void glTexCoord2d(GLdouble s, GLdouble t) {
    standin::s = s;
    standin::t = t;
}
void glVertex2d(GLdouble x, GLdouble y) {
    const Matrix m = matrices.back() * Matrix{1, 0, 0, 1, x, y};
    drawn.back().vertices.push_back({m.e, m.f, s, t});
}
void glVertex3i(GLint x, GLint y, GLint) { glVertex2d(x, y); }
void glPushMatrix() { matrices.push_back(matrices.back()); }
void glPopMatrix() { matrices.pop_back(); }
void glTranslated(GLdouble x, GLdouble y, GLdouble) {
    matrices.back() = matrices.back() * Matrix{1, 0, 0, 1, x, y};
}
void glScaled(GLdouble x, GLdouble y, GLdouble) {
    matrices.back() = matrices.back() * Matrix{x, 0, 0, y, 0, 0};
}
void glRotated(GLdouble degrees, GLdouble, GLdouble, GLdouble) {
    const double angle = degrees * M_PI / 180;
    matrices.back() =
        matrices.back() * Matrix{std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0, 0};
}
void glMatrixMode(GLenum mode) { say(mode == GL_PROJECTION ? "projection" : "modelview"); }
void glLoadIdentity() { matrices = std::vector<Matrix>(1); }
void gluOrtho2D(GLdouble left, GLdouble right, GLdouble bottom, GLdouble top) {
    say("ortho", left, right, bottom, top);
}
void glClear(GLbitfield) { drawn.clear(); }
void glBlendFunc(GLenum source, GLenum target) {
    say("blend", source == GL_SRC_ALPHA, target == GL_ONE_MINUS_SRC_ALPHA);
}
void glFlush() {}
void glLineWidth(GLfloat) {}
void glPushAttrib(GLbitfield) {}
void glPopAttrib() { colour = opaqueWhite; }
void glGenTextures(GLsizei, GLuint* name) {
    *name = static_cast<GLuint>(pictures.size());
    pictures.push_back(loaded.back());
}
void glTexParameteri(GLenum, GLenum, GLint) {}
void glTexImage2D(GLenum, GLint, GLint, GLsizei w, GLsizei h, GLint, GLenum, GLenum, const void* pixels) {
    textureSize = {w, h};
    const auto* bytes = static_cast<const unsigned char*>(pixels);
    texels.assign(bytes, bytes + 4L * w * h);
}
GLint gluBuild2DMipmaps(GLenum target, GLint components, GLsizei w, GLsizei h, GLenum format, GLenum type,
                        const void* pixels) {
    glTexImage2D(target, 0, components, w, h, 0, format, type, pixels);
    return 0;
}
void glGetIntegerv(GLenum, GLint* viewport) {
    const GLint size[4] = {0, 0, 2, 2};
    std::copy(size, size + 4, viewport);
}
void glReadPixels(GLint, GLint, GLsizei w, GLsizei h, GLenum, GLenum, void* pixels) {
    std::copy(texels.begin(), texels.begin() + 4L * w * h, static_cast<unsigned char*>(pixels));
}

// The mixer

int Mix_OpenAudio(int rate, Uint16 format, int channels, int chunk) {
    say("open audio", rate, format, channels, chunk);
    return 0;
}
int Mix_AllocateChannels(int count) { return say("channels", count), count; }
Mix_Music* Mix_LoadMUS(const char* file) {
    say("load", file);
    return reinterpret_cast<Mix_Music*>(sound(file));
}
Mix_Chunk* Mix_LoadWAV_RW(SDL_RWops*, int) {
    say("load", opened);
    return sound(opened);
}
int Mix_PlayMusic(Mix_Music* music, int loops) { return say("play", names[music], loops), 0; }
int Mix_FadeInMusicPos(Mix_Music* music, int loops, int ms, double) {
    return say("fade in", names[music], loops, ms), 0;
}
int Mix_VolumeMusic(int volume) { return say("music volume", volume), 0; }
int Mix_Volume(int channel, int volume) { return say("volume", channel, volume), 0; }
int Mix_PlayChannelTimed(int channel, Mix_Chunk* chunk, int, int) {
    played.push_back(names[chunk] + "@" + std::to_string(channel));
    return 0;
}
void Mix_FreeChunk(Mix_Chunk* chunk) { say("free", names[chunk]); }
void Mix_FreeMusic(Mix_Music* music) { say("free", names[music]); }
void Mix_CloseAudio() { say("close audio"); }

// SDL: the window and the clock are ours; surfaces and files are the real ones, but for the game's own
// assets, which are any small picture and any sound.

SDL_Surface* IMG_Load(const char* file) {
    if (std::strncmp(file, "Assets/", 7) == 0) {
        loaded.emplace_back(file);
        return SDL_CreateRGBSurface(SDL_SWSURFACE, 2, 2, 32, 0xFF, 0xFF00, 0xFF0000, 0xFF000000);
    }
    SDL_Surface* surface = real<SDL_Surface*(const char*)>("IMG_Load")(file);
    if (surface != nullptr)
        loaded.emplace_back(file);
    return surface;
}
SDL_RWops* SDL_RWFromFile(const char* file, const char* mode) {
    opened = file;
    return opened.rfind("Assets/", 0) == 0
               ? nullptr
               : real<SDL_RWops*(const char*, const char*)>("SDL_RWFromFile")(file, mode);
}
SDL_Cursor* SDL_CreateCursor(Uint8* data, Uint8* mask, int w, int h, int hot_x, int hot_y) {
    cursor.assign(data, data + w / 8 * h);
    cursor.insert(cursor.end(), mask, mask + w / 8 * h);
    say("cursor", w, h, hot_x, hot_y);
    return nullptr;
}
int SDL_Init(Uint32 what) { return say("init", what), 0; }
void SDL_Quit() { say("quit"); }
void SDL_WM_SetCaption(const char* title, const char*) { say("caption", title); }
SDL_Surface* SDL_SetVideoMode(int w, int h, int bits, Uint32 flags) {
    say("video", w, h, bits, flags == SDL_OPENGL);
    return nullptr;
}
int SDL_PollEvent(SDL_Event* next) {
    if (frame >= session.size()) {
        next->type = SDL_QUIT;
        return event++ == 0;
    }
    if (event >= session[frame].size())
        return 0;
    *next = session[frame][event++];
    return 1;
}
void SDL_GL_SwapBuffers() {
    if (onFrame)
        onFrame(frame);
    ticks += work ? work(frame) : 0;
    ++frame;
    event = 0;
}
Uint32 SDL_GetTicks() { return ticks; }
void SDL_Delay(Uint32 ms) {
    say("delay", ms);
    ticks += ms;
}

} // extern "C"
