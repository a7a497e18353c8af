#ifndef PACE_H
#define PACE_H

#include <SDL.h>

/// The pace of a loop that shows frames: it begins when this is made.
class Pace {
public:
    Pace();

    /// Waits until `dt` milliseconds have passed since the previous frame was shown. That frame's own wait counts
    /// towards this one, so light frames alternate between a whole wait and none, and the game runs faster than the
    /// clock.
    void wait(double dt);

private:
    Uint32 tempsActuel;
    Uint32 dernierTemps;
};

#endif
