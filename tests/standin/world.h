#ifndef STANDIN_WORLD_H
#define STANDIN_WORLD_H

#include <deque>

/// What the world outside tells the game: the calendar, the fine clock and the dice, all set by the test.
namespace standin {

/// What time() answers, in seconds since 1970.
extern long calendar;
/// What the system clock answers, in nanoseconds since 1970; it seeds the place where a grunt enters.
extern long long nanoseconds;
/// What rand() answers next; once it is used up, a fixed sequence follows.
extern std::deque<int> dice;

} // namespace standin

#endif
