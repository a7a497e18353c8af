#include "standin/screen.h"
#include "standin/world.h"

#include <SDL_image.h>
#include <SDL_opengl.h>

#include <array>
#include <cmath>
#include <dlfcn.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace standin {

Words played, calls, loaded;
std::vector<unsigned char> texels;
std::vector<std::vector<SDL_Event>> session;
std::function<Uint32(size_t)> work = [](size_t) { return 0; };
std::function<void(size_t)> onFrame = [](size_t) {};

namespace {

// x' = a x + c y + e, y' = b x + d y + f
struct Matrix {
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;
    void apply(const Matrix& m) {
        *this = {a * m.a + c * m.b, b * m.a + d * m.b,     a * m.c + c * m.d,
                 b * m.c + d * m.d, a * m.e + c * m.f + e, b * m.e + d * m.f + f};
    }
};

struct Corner {
    double x, y, s, t;
};

struct Batch {
    std::string picture;
    bool quads;
    std::array<double, 4> colour;
    std::vector<Corner> corners;
};

const std::array<double, 4> opaqueWhite{1, 1, 1, 1};

std::vector<Batch> drawn;
std::vector<Matrix> matrices(1);
std::array<double, 4> colour = opaqueWhite;
std::string opened;
double s = 0, t = 0;
bool texturing = false;
GLuint bound = 0;
Words pictures{"no picture"};
std::map<std::string, Mix_Chunk> sounds;
std::map<const void*, std::string> names;
size_t frame = 0, event = 0;
Uint32 ticks = 0;

template <typename... Values>
std::string text(const char* separator, const Values&... values) {
    std::ostringstream line;
    ((line << separator << values), ...);
    return line.str().substr(std::string(separator).size());
}

template <typename... Values>
int say(const Values&... values) {
    calls.push_back(text(" ", values...));
    return 0;
}

std::string stem(const char* file) { return std::filesystem::path(file).stem(); }

bool isAsset(const std::string& file) { return file.rfind("Assets/", 0) == 0; }

// The function of the library that the stand-in hides.
template <typename Function>
Function* real(Function* /*standin*/, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

Words drawing() {
    Words lines;
    for (const auto& [picture, quads, colour, corners] : drawn) {
        const bool few = quads && corners.size() <= 40;
        for (size_t first = 0; first < (few ? corners.size() : 1); first += 4) {
            std::string line = few ? picture : text(" ", picture, corners.size());
            for (size_t i = first; i < std::min(first + 3, corners.size()); ++i) {
                line += " " + text(",", corners[i].x, corners[i].y);
                line += picture == "-" ? "" : ">" + text(",", corners[i].s, corners[i].t);
            }
            lines.push_back(text(" ", line, colour[0], colour[1], colour[2], colour[3]));
        }
    }
    return lines;
}

void clear() {
    played.clear(), calls.clear(), loaded.clear(), drawn.clear();
    bound = calendar = entered = 0;
}

// Every test begins with a window of its own.
struct Fresh : testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& /*test*/) override { clear(); }
};
const bool listening = (testing::UnitTest::GetInstance()->listeners().Append(new Fresh), true);

bool isAtRest() { return !texturing && bound == 0 && colour == opaqueWhite && matrices.size() == 1; }

Mix_Chunk* sound(const std::string& name) { return names[&sounds[name]] = name, &sounds[name]; }

} // namespace standin

using namespace standin;

extern "C" {

// OpenGL

void glEnable(GLenum what) { texturing |= what == GL_TEXTURE_2D; }
void glDisable(GLenum what) { texturing &= what != GL_TEXTURE_2D; }
void glBindTexture(GLenum, GLuint texture) { bound = texture; }
void glColor4d(GLdouble r, GLdouble g, GLdouble b, GLdouble a) { colour = {r, g, b, a}; }
void glColor3ub(GLubyte r, GLubyte g, GLubyte b) { glColor4d(r / 255.0, g / 255.0, b / 255.0, 1); }
void glBegin(GLenum mode) { drawn.push_back({texturing ? pictures[bound] : "-", mode == GL_QUADS, colour, {}}); }
void glEnd() {}
void glTexCoord2d(GLdouble left, GLdouble low) { s = left, t = low; }
void glVertex2d(GLdouble x, GLdouble y) {
    Matrix m = matrices.back();
    m.apply({1, 0, 0, 1, x, y});
    drawn.back().colour = colour;
    drawn.back().corners.push_back({m.e, m.f, s, t});
}
void glVertex3i(GLint x, GLint y, GLint) { glVertex2d(x, y); }
void glPushMatrix() { matrices.push_back(matrices.back()); }
void glPopMatrix() { matrices.pop_back(); }
void glTranslated(GLdouble x, GLdouble y, GLdouble) { matrices.back().apply({1, 0, 0, 1, x, y}); }
void glScaled(GLdouble x, GLdouble y, GLdouble) { matrices.back().apply({x, 0, 0, y, 0, 0}); }
void glRotated(GLdouble degrees, GLdouble, GLdouble, GLdouble) {
    const double a = degrees * M_PI / 180;
    matrices.back().apply({std::cos(a), std::sin(a), -std::sin(a), std::cos(a), 0, 0});
}
void glMatrixMode(GLenum) {}
void glLoadIdentity() { matrices.assign(1, {}); }
void gluOrtho2D(GLdouble left, GLdouble right, GLdouble low, GLdouble high) { say("ortho", left, right, low, high); }
void glClear(GLbitfield) { drawn.clear(); }
void glBlendFunc(GLenum from, GLenum to) { say("blend", from == GL_SRC_ALPHA, to == GL_ONE_MINUS_SRC_ALPHA); }
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
    texels.assign(static_cast<const Uint8*>(pixels), static_cast<const Uint8*>(pixels) + 4L * w * h);
}
GLint gluBuild2DMipmaps(GLenum, GLint, GLsizei w, GLsizei h, GLenum, GLenum, const void* pixels) {
    return glTexImage2D(0, 0, 0, w, h, 0, 0, 0, pixels), 0;
}
void glGetIntegerv(GLenum, GLint* viewport) { viewport[0] = viewport[1] = 0, viewport[2] = viewport[3] = 2; }
void glReadPixels(GLint, GLint, GLsizei, GLsizei, GLenum, GLenum, void* pixels) {
    std::copy(texels.begin(), texels.end(), static_cast<Uint8*>(pixels));
}

// The mixer

int Mix_OpenAudio(int rate, Uint16 format, int sides, int chunk) {
    return say("open audio", rate, format, sides, chunk);
}
int Mix_AllocateChannels(int count) { return say("channels", count); }
Mix_Music* Mix_LoadMUS(const char* file) {
    return say("load", stem(file)), reinterpret_cast<Mix_Music*>(sound(stem(file)));
}
Mix_Chunk* Mix_LoadWAV_RW(SDL_RWops*, int) { return say("load", stem(opened.c_str())), sound(stem(opened.c_str())); }
int Mix_PlayMusic(Mix_Music* music, int loops) { return say("play", names[music], loops); }
int Mix_FadeInMusicPos(Mix_Music* music, int loops, int ms, double) { return say("fade in", names[music], loops, ms); }
int Mix_VolumeMusic(int volume) { return say("music volume", volume); }
int Mix_Volume(int channel, int volume) { return say("volume", channel, volume); }
int Mix_PlayChannelTimed(int channel, Mix_Chunk* chunk, int, int) {
    return played.push_back(text("@", names[chunk], channel)), 0;
}
void Mix_FreeChunk(Mix_Chunk* chunk) { say("free", names[chunk]); }
void Mix_FreeMusic(Mix_Music* music) { say("free", names[music]); }
void Mix_CloseAudio() { say("close audio"); }

// SDL: the window and the clock are ours; surfaces and files are the real ones, but for the game's own assets,
// which are any small picture and any sound.

SDL_Surface* IMG_Load(const char* file) {
    SDL_Surface* surface = isAsset(file) ? SDL_CreateRGBSurface(0, 2, 2, 32, 0xFF, 0xFF00, 0xFF0000, 0xFF000000)
                                         : real(IMG_Load, "IMG_Load")(file);
    if (surface != nullptr)
        loaded.push_back(stem(file));
    return surface;
}
SDL_RWops* SDL_RWFromFile(const char* file, const char* mode) {
    opened = file;
    return isAsset(file) ? nullptr : real(SDL_RWFromFile, "SDL_RWFromFile")(file, mode);
}
SDL_Cursor* SDL_CreateCursor(Uint8* data, Uint8* mask, int w, int h, int hot_x, int hot_y) {
    texels.assign(data, data + w / 8 * h);
    texels.insert(texels.end(), mask, mask + w / 8 * h);
    return say("cursor", w, h, hot_x, hot_y), nullptr;
}
int SDL_Init(Uint32 what) {
    frame = event = ticks = 0;
    return say("init", what == SDL_INIT_VIDEO);
}
void SDL_Quit() { say("quit"); }
void SDL_WM_SetCaption(const char* title, const char*) { say("caption", title); }
SDL_Surface* SDL_SetVideoMode(int w, int h, int bits, Uint32 flags) {
    return say("video", w, h, bits, flags == SDL_OPENGL), nullptr;
}
int SDL_PollEvent(SDL_Event* next) {
    if (frame >= session.size())
        next->type = SDL_QUIT;
    else if (event < session[frame].size())
        *next = session[frame][event];
    return event++ < (frame < session.size() ? session[frame].size() : 1);
}
void SDL_GL_SwapBuffers() {
    onFrame(frame);
    ticks += work(frame++);
    event = 0;
}
Uint32 SDL_GetTicks() { return ticks; }
void SDL_Delay(Uint32 ms) {
    ticks += ms;
    say("delay", ms);
}

} // extern "C"
