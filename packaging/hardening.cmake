# Makes a memory error in the released game end it instead of being of use to anybody. Included before the first target.

include(CheckPIESupported)
check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# Fortifying needs an optimising build, and sanitizers bring checks of their own: so only for the release.
add_compile_options("$<$<CONFIG:Release>:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
if(UNIX AND NOT APPLE)
  add_link_options("$<$<CONFIG:Release>:LINKER:-z,relro,-z,now>")
endif()
