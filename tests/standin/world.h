#ifndef STANDIN_WORLD_H
#define STANDIN_WORLD_H

#include <deque>

/// What the world outside tells the game: the calendar, the fine clock and the dice, all set by the test.
namespace standin {

/// What time() answers, in seconds since 1970.
extern long calendar;
/// What the system clock answers, in nanoseconds since 1970, and how often it was asked: it seeds the place where a
/// grunt enters.
extern long long nanoseconds;
extern int entered;
/// What rand() answers next; once it is used up, a fixed sequence follows.
extern std::deque<int> dice;

/// Seeds with which a grunt enters at (-30, 351.9975), left of the tower, and at (511.9981, 798), above it.
constexpr long long fromLeft = 60911, fromTop = 224874;

} // namespace standin

#endif
