#include "standin/standin.h"

#include <SDL_image.h>
#include <SDL_opengl.h>

#include <chrono>
#include <complex>
#include <filesystem>
#include <sstream>

namespace standin {

Words drawn, played, calls, textures{"no picture"};
Bytes image(16, 255), texels, saved(100);
std::string session;
std::function<void()> onFrame;
long long calendar = 0, nanoseconds = fromLeft, entered = 0, work = 0, audio = 0;
std::deque<int> dice;

namespace {

using Point = std::complex<double>;

// A matrix draws the point p at first * p + second: the game turns, moves and enlarges, but never stretches. A corner
// is a place in the window and a spot in the picture.
std::vector<std::pair<Point, Point>> matrices{{1, 0}}, corners;
Point spot;
std::deque<std::string> names;
const std::string opaqueWhite = " 1 1 1 1";
std::string colour = opaqueWhite, opened;
bool texturing = false, quads = false;
GLuint bound = 0, ticks = 0;

const auto text = [](const auto&... values) {
    std::ostringstream line;
    ((line << " " << values), ...);
    return line.str();
};
const auto at = [](const Point& p) { return text(p.real()) + "," + text(p.imag()).substr(1); };
const auto say = [](const auto&... values) { return calls.push_back(text(values...).substr(1)), 0; };

const std::string& open(const char* file) { return opened = std::filesystem::path(file).stem(); }

const std::string& name(const void* sound) { return *static_cast<const std::string*>(sound); }

} // namespace

void clear() { drawn.clear(), played.clear(), calls.clear(), entered = bound = 0; }

Words only(const Words& all, const std::string& start) {
    Words found;
    std::copy_if(all.begin(), all.end(), std::back_inserter(found), [&](auto& line) { return line.find(start) == 0; });
    return found;
}

bool isAtRest() { return !texturing && bound == 0 && colour == opaqueWhite && matrices.size() == 1; }

Mix_Chunk* sound(const std::string& name) { return reinterpret_cast<Mix_Chunk*>(&names.emplace_back(name)); }

} // namespace standin

using namespace standin;

std::chrono::system_clock::time_point std::chrono::system_clock::now() noexcept {
    return ++entered, time_point(std::chrono::nanoseconds(standin::nanoseconds));
}

extern "C" {

time_t time(time_t*) noexcept { return calendar; }

int rand() noexcept {
    const int roll = dice.empty() ? 60 : dice.front();
    return dice.empty() ? roll : (dice.pop_front(), roll);
}

// OpenGL

void glEnable(GLenum what) { texturing |= what == GL_TEXTURE_2D; }
void glDisable(GLenum what) { texturing &= what != GL_TEXTURE_2D; }
void glBindTexture(GLenum, GLuint texture) { bound = texture; }
void glColor4d(GLdouble r, GLdouble g, GLdouble b, GLdouble a) { colour = text(r, g, b, a); }
void glColor3ub(GLubyte r, GLubyte g, GLubyte b) { colour = text(r / 255, g / 255, b / 255); }
void glBegin(GLenum mode) { corners.clear(), quads = mode == GL_QUADS; }
void glTexCoord2d(GLdouble left, GLdouble low) { spot = {left, low}; }
void glVertex2d(GLdouble x, GLdouble y) {
    corners.emplace_back(matrices.back().first * Point(x, y) + matrices.back().second, spot);
}
void glVertex3i(GLint x, GLint y, GLint) { glVertex2d(x, y); }
void glEnd() {
    const bool few = quads && corners.size() <= 40;
    for (size_t first = 0; first < (few ? corners.size() : 1); first += 4) {
        std::string line = (texturing ? textures[bound] : "-") + (few ? "" : text(corners.size())), spots;
        for (size_t i = first; i < std::min(first + 3, corners.size()); ++i)
            line += at(corners[i].first), spots += at(corners[i].second);
        line += !texturing || spots == " 0,0 1,0 1,1" ? "" : " >" + spots;
        drawn.push_back(line + (colour == opaqueWhite ? "" : colour));
    }
}
void glPushMatrix() { matrices.push_back(matrices.back()); }
void glPopMatrix() { matrices.pop_back(); }
void glLoadIdentity() { matrices = {{1, 0}}; }
void glTranslated(GLdouble x, GLdouble y, GLdouble) { matrices.back().second += matrices.back().first * Point(x, y); }
void glScaled(GLdouble x, GLdouble y, GLdouble) { matrices.back().first *= x == y ? x : NAN; }
void glRotated(GLdouble a, GLdouble, GLdouble, GLdouble z) { matrices.back().first *= std::polar(z, a * M_PI / 180); }
void glMatrixMode(GLenum) {}
void gluOrtho2D(GLdouble left, GLdouble right, GLdouble low, GLdouble high) { say("ortho", left, right, low, high); }
void glClear(GLbitfield) { drawn.clear(); }
void glBlendFunc(GLenum from, GLenum to) { say("blend", from == GL_SRC_ALPHA, to == GL_ONE_MINUS_SRC_ALPHA); }
void glFlush() {}
void glLineWidth(GLfloat) {}
void glPushAttrib(GLbitfield) {}
void glPopAttrib() { colour = opaqueWhite; }
void glGenTextures(GLsizei, GLuint* name) { *name = textures.size(), textures.push_back(opened); }
void glTexParameteri(GLenum, GLenum, GLint) {}
void glTexImage2D(GLenum, GLint, GLint, GLsizei, GLsizei, GLint, GLenum, GLenum, const void*) {}
GLint gluBuild2DMipmaps(GLenum, GLint, GLsizei w, GLsizei h, GLenum, GLenum, const void* pixels) {
    return texels.assign(static_cast<const Uint8*>(pixels), static_cast<const Uint8*>(pixels) + 4 * w * h), 0;
}
void glGetIntegerv(GLenum, GLint* viewport) { viewport[2] = 1, viewport[3] = static_cast<GLint>(texels.size() / 4); }
void glReadPixels(GLint, GLint, GLsizei, GLsizei, GLenum, GLenum, void* pixels) {
    std::copy(texels.begin(), texels.end(), static_cast<Uint8*>(pixels));
}

// The mixer

int Mix_OpenAudio(int hz, Uint16 form, int sides, int chunk) { return say("audio", hz, form, sides, chunk) + audio; }
int Mix_AllocateChannels(int count) { return say("channels", count); }
Mix_Chunk* Mix_LoadWAV_RW(SDL_RWops*, int) { return say("load", opened), sound(opened); }
Mix_Music* Mix_LoadMUS(const char* file) { return reinterpret_cast<Mix_Music*>(Mix_LoadWAV(file)); }
int Mix_PlayMusic(Mix_Music* music, int loops) { return say("play", name(music), loops); }
int Mix_FadeInMusicPos(Mix_Music* music, int loops, int ms, double) { return say("fade in", name(music), loops, ms); }
int Mix_VolumeMusic(int volume) { return say("music volume", volume); }
int Mix_Volume(int channel, int volume) { return say("volume", channel, volume); }
int Mix_PlayChannelTimed(int channel, Mix_Chunk* chunk, int, int) {
    return played.push_back(name(chunk) + "@" + std::to_string(channel)), 0;
}
void Mix_FreeChunk(Mix_Chunk* chunk) { say("free", name(chunk)); }
void Mix_FreeMusic(Mix_Music* music) { say("free", name(music)); }
void Mix_CloseAudio() { say("close audio"); }

// SDL: surfaces are the real ones.

SDL_Surface* IMG_Load(const char* file) {
    const int h = open(file) == "nowhere" ? 0 : static_cast<int>(image.size() / 4);
    return h == 0 ? nullptr : SDL_CreateRGBSurfaceFrom(image.data(), 1, h, 32, 4, 0xFF000000, 0xFF0000, 0xFF00, 0xFF);
}
SDL_RWops* SDL_RWFromFile(const char* file, const char* mode) {
    const bool writes = open(file) != "nowhere" && *mode == 'w';
    return writes ? SDL_RWFromMem(saved.data(), static_cast<int>(saved.size())) : (SDL_SetError("nowhere"), nullptr);
}
SDL_Cursor* SDL_CreateCursor(Uint8* data, Uint8* mask, int w, int h, int hot_x, int hot_y) {
    texels.assign(data, data + w / 8 * h), texels.insert(texels.end(), mask, mask + w / 8 * h);
    return say("cursor", w, h, hot_x, hot_y), nullptr;
}
int SDL_Init(Uint32 what) { return ticks = 0xFFFFFFF0, say("init", what == SDL_INIT_VIDEO); }
void SDL_Quit() { say("quit"); }
void SDL_WM_SetCaption(const char* title, const char*) { say("caption", title); }
SDL_Surface* SDL_SetVideoMode(int w, int h, int bits, Uint32 what) { return say("video", w, h, bits, what), nullptr; }
int SDL_PollEvent(SDL_Event* next) {
    enum : Uint8 { quit = SDL_QUIT, move = SDL_MOUSEMOTION, down, up, wheel = SDL_BUTTON_WHEELUP };
    constexpr Uint16 mouse[][5] = {{'Q', quit, 0, 0, 0},     {'W', down, wheel, 992, 204}, {'S', down, 1, 992, 204},
                                   {'1', down, 1, 200, 200}, {'2', down, 1, 250, 300},     {'u', up, wheel, 0, 0},
                                   {'n', move, 0, 250, 60},  {'f', move, 0, 900, 700}};
    const char now = session.at(0);
    if (now == ' ')
        return 0;
    next->type = SDL_KEYDOWN;
    next->key.keysym.sym = now == '_' ? SDLK_SPACE : now == 'E' ? SDLK_ESCAPE : SDLKey(now);
    for (const auto& [deed, type, button, x, y] : mouse)
        if (deed == now) // a motion has its place where a button has it
            next->button = {Uint8(type), 0, Uint8(button), 0, x, y};
    return session.erase(0, 1), 1;
}
void SDL_GL_SwapBuffers() { onFrame(), session.erase(0, 1), ticks += work; }
Uint32 SDL_GetTicks() { return ticks; }
void SDL_Delay(Uint32 ms) { ticks += ms, say("delay", ms); }

} // extern "C"
