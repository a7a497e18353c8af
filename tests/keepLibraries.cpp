// SDL and OpenGL would unload their drivers before the leak report, which could then no longer name them.
extern "C" int dlclose(void* /*library*/) { return 0; }
