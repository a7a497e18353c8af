#include "pace.h"

// The second reading is the time that the first frame is measured from. The first reading is replaced before it is
// used; the order of the two is kept all the same.
Pace::Pace() : tempsActuel(SDL_GetTicks()), dernierTemps(SDL_GetTicks()) {}


void Pace::wait(double dt) {
    tempsActuel = SDL_GetTicks();
    const Uint32 elapsed = tempsActuel - dernierTemps;
    if (elapsed < dt)
        SDL_Delay(static_cast<Uint32>(dt) - elapsed);
    // Fixed: the time before the wait, so the game runs ahead of the clock.
    dernierTemps = tempsActuel;
}
