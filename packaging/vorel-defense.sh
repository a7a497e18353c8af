#!/bin/sh
# Starts Vorel Defense in the folder of its pictures and sounds, if the display can show OpenGL.
set -eu

complain() {
  echo "vorel-defense: $1" >&2
  exit 1
}

prefix=$(dirname "$(dirname "$(readlink -f "$0")")")
game=$prefix/libexec/vorel-defense
cd "$prefix/share/games/vorel-defense"

[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || complain "There is no display: start it from a desktop, or set DISPLAY."

if [ -n "${DISPLAY:-}" ] && command -v xdpyinfo >/dev/null; then
  extensions=$(xdpyinfo -queryExtensions 2>/dev/null) || complain "The display $DISPLAY can't be opened."
  case $extensions in
    *GLX*) exec "$game" ;;
    *) complain "The display $DISPLAY can't show OpenGL (it has no GLX)." ;;
  esac
fi

# Nothing here can tell what the display supports, so try it: a failure may mean that OpenGL is missing.
"$game" || complain "The game ended with an error. Does ${DISPLAY:-$WAYLAND_DISPLAY} support OpenGL? The game needs it."
