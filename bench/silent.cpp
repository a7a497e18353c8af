// OpenGL and a mixer that do nothing, so that only the game's own work is measured and only its own memory counted.

#include <SDL_mixer.h>
#include <SDL_opengl.h>

extern "C" {

void glEnable(GLenum) {}
void glDisable(GLenum) {}
void glClear(GLbitfield) {}
void glMatrixMode(GLenum) {}
void glLoadIdentity() {}
void gluOrtho2D(GLdouble, GLdouble, GLdouble, GLdouble) {}
void glBindTexture(GLenum, GLuint) {}
void glBegin(GLenum) {}
void glEnd() {}
void glColor4d(GLdouble, GLdouble, GLdouble, GLdouble) {}
void glColor3ub(GLubyte, GLubyte, GLubyte) {}
void glTexCoord2d(GLdouble, GLdouble) {}
void glVertex2d(GLdouble, GLdouble) {}
void glVertex3i(GLint, GLint, GLint) {}
void glPushMatrix() {}
void glPopMatrix() {}
void glTranslated(GLdouble, GLdouble, GLdouble) {}
void glRotated(GLdouble, GLdouble, GLdouble, GLdouble) {}
void glScaled(GLdouble, GLdouble, GLdouble) {}
void glPushAttrib(GLbitfield) {}
void glPopAttrib() {}
void glLineWidth(GLfloat) {}
void glBlendFunc(GLenum, GLenum) {}
void glGetIntegerv(GLenum, GLint*) {}
void glReadPixels(GLint, GLint, GLsizei, GLsizei, GLenum, GLenum, void*) {}
void glGenTextures(GLsizei, GLuint* name) { *name = 1; }
void glTexParameteri(GLenum, GLenum, GLint) {}
void glTexImage2D(GLenum, GLint, GLint, GLsizei, GLsizei, GLint, GLenum, GLenum, const void*) {}
GLint gluBuild2DMipmaps(GLenum, GLint, GLsizei, GLsizei, GLenum, GLenum, const void*) { return 0; }

int Mix_OpenAudio(int, Uint16, int, int) { return 0; }
int Mix_AllocateChannels(int) { return 0; }
Mix_Chunk* Mix_LoadWAV_RW(SDL_RWops*, int) { return nullptr; }
Mix_Music* Mix_LoadMUS(const char*) { return nullptr; }
void Mix_FreeChunk(Mix_Chunk*) {}
void Mix_FreeMusic(Mix_Music*) {}
int Mix_PlayMusic(Mix_Music*, int) { return -1; }
int Mix_FadeInMusicPos(Mix_Music*, int, int, double) { return -1; }
int Mix_VolumeMusic(int) { return 0; }
int Mix_PlayChannelTimed(int, Mix_Chunk*, int, int) { return -1; }
int Mix_Volume(int, int) { return 0; }

} // extern "C"
