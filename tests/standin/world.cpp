#include "standin/world.h"

#include <chrono>
#include <cstdlib>
#include <ctime>

namespace standin {

long calendar = 0;
long long nanoseconds = fromLeft;
int entered = 0;
std::deque<int> dice;

} // namespace standin


extern "C" time_t time(time_t* /*result*/) noexcept { return standin::calendar; }


extern "C" int rand() noexcept {
    static unsigned int sequence = 1;
    if (standin::dice.empty())
        return static_cast<int>((sequence = sequence * 1103515245U + 12345U) >> 16 & 0x7FFF);
    const int roll = standin::dice.front();
    return standin::dice.pop_front(), roll;
}


std::chrono::system_clock::time_point std::chrono::system_clock::now() noexcept {
    return ++standin::entered, time_point(std::chrono::nanoseconds(standin::nanoseconds));
}
