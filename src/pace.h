#ifndef PACE_H
#define PACE_H

#include <SDL.h>

/// Keeps the pace of the main loop, from its construction on.
class Pace {
public:
    Pace();

    /// Waits until `dt` milliseconds have passed since the previous call began. That call's own wait counts towards
    /// this one, so light frames alternate between a full wait and none, and the game runs ahead of the clock.
    void wait(double dt);

private:
    Uint32 tempsActuel;
    Uint32 dernierTemps;
};

#endif
