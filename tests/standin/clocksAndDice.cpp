// Replaces the clocks and the random numbers. The clocks stand still unless a test moves them; only SDL's moves on when
// the game waits or works.

#include "standin/standin.h"

#include <chrono>
#include <cstdlib>
#include <ctime>

std::chrono::system_clock::time_point std::chrono::system_clock::now() noexcept {
    clocks.readings += 1;
    return time_point(std::chrono::nanoseconds(clocks.nanoseconds));
}

extern "C" {

time_t time(time_t*) noexcept { return clocks.calendar; }
void srand(unsigned int seed) noexcept { call("seed of the dice", seed); }
int rand() noexcept {
    if (dice.empty())
        return 60;
    const int roll = dice.front();
    dice.pop_front();
    return roll;
}
Uint32 SDL_GetTicks() { return clocks.ticks; }
void SDL_Delay(Uint32 milliseconds) {
    call("wait", milliseconds);
    clocks.ticks += milliseconds;
}

} // extern "C"
