// Drivers that SDL and OpenGL load would be unloaded before the leak report, which could not name them any more.
extern "C" int dlclose(void* /*library*/) { return 0; }
