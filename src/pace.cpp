#include "pace.h"

// The first frame is measured from dernierTemps, so that is read last. tempsActuel gets a value only so that none is
// undefined: wait() replaces it.
Pace::Pace() : tempsActuel(SDL_GetTicks()), dernierTemps(SDL_GetTicks()) {}


void Pace::wait(double dt) {
    tempsActuel = SDL_GetTicks();
    const Uint32 elapsed = tempsActuel - dernierTemps;
    if (elapsed < dt)
        SDL_Delay(static_cast<Uint32>(dt) - elapsed);
    // Quirk: the next frame is measured from before this wait, so the game runs ahead of the clock.
    dernierTemps = tempsActuel;
}
