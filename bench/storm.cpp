// How long a step takes in a late wave, compared with a plain loop over the same pairs, and how long a frame takes.
// After the first step and the first frame, which reserve memory for the later ones, neither may allocate anything.

#include "Entity/Weapon.h"
#include "Game/Game.h"
#include "counting.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstddef>
#include <memory>

namespace {

constexpr int TURRETS = 60;
constexpr int JETS = 4;
constexpr int WALKING = 100;

// A step so short that a scene does not change, however often it is measured.
constexpr double STANDSTILL = 1e-9;

/// Wave `wave` under fire: all but a hundred of its grunts killed and gone, the others a hundred pixels inside the
/// edges, and sixty turrets around the middle with four jets each in flight.
std::unique_ptr<Game> storm(int wave) {
    auto game = std::make_unique<Game>(1024.0, 768.0);
    game->setIsInTitleScreen(false);
    for (int i = 0; i < wave; ++i)
        game->startNewWave();

    // One jet, larger than the field, kills everybody; its turret fires only at itself.
    game->addWeapon(Weapon({5000, 5000}, "", 0, 1, 1e9, 1e9, 0, 1e5, 1e5, 0));
    game->update(wave * 3.0 - WALKING + 0.5);
    game->update(0.02);
    game->shoot({5000, 5000});
    for (int i = 0; i < 30; ++i)
        game->update(0.02);

    game->update(WALKING);
    game->update(10);
    for (int i = 0; i < TURRETS; ++i)
        game->addWeapon(Weapon({330.0 + i % 10 * 40, 250.0 + i / 10 * 40}, "", 0, 2000, 1e9, 0, 0, 10, 10, 80));
    for (int i = 0; i < JETS; ++i) {
        game->shoot({512, 360.0 + i});
        game->update(0.27);
    }
    return game;
}


/// Measures how long `act` takes, and counts the allocations of each run after the first.
template <typename Act>
void measure(benchmark::State& state, const Act& act) {
    act();
    const size_t before = allocations;
    for (auto _ : state)
        act();
    state.counters["allocations"] = static_cast<double>(allocations - before) / static_cast<double>(state.iterations());
}


void step(benchmark::State& state) {
    const auto game = storm(static_cast<int>(state.range(0)));
    measure(state, [&game] { game->update(STANDSTILL); });
}


void frame(benchmark::State& state) {
    const auto game = storm(static_cast<int>(state.range(0)));
    measure(state, [&game] { game->draw(20, 512, 100); });
}


/// The same with a turret selected and the mouse on another, so with the discs of both.
void preview(benchmark::State& state) {
    const auto game = storm(static_cast<int>(state.range(0)));
    game->activeTourelle();
    measure(state, [&game] { game->draw(20, 330, 250); });
}


/// Compares every ordered pair of as many discs as the storm has: the tower, the jets and the grunts that still walk.
void plainLoop(benchmark::State& state) {
    constexpr int COUNT = 1 + TURRETS * JETS + WALKING;
    double x[COUNT];
    double y[COUNT];
    double radius[COUNT];
    for (int i = 0; i < COUNT; ++i) {
        const double angle = i * 2.399963;
        x[i] = 512 + (i < WALKING ? 440 : 200) * std::cos(angle);
        y[i] = 384 + (i < WALKING ? 300 : 150) * std::sin(angle * 1.7);
        radius[i] = i < WALKING ? 20 : 10;
    }
    for (auto _ : state) {
        int touching = 0;
        for (int i = 0; i < COUNT; ++i)
            for (int j = 0; j < COUNT; ++j) {
                const double dx = x[j] - x[i];
                const double dy = y[j] - y[i];
                touching += i != j && radius[i] + radius[j] > std::sqrt(dx * dx + dy * dy);
            }
        benchmark::DoNotOptimize(touching);
        benchmark::ClobberMemory();
    }
}


/// The memory that a hundred restarts and a long wave leave behind.
void growth(benchmark::State& state) {
    const auto game = storm(1);
    const auto oneGame = [&game] {
        game->restart();
        game->setIsInTitleScreen(false);
        for (int i = 0; i < 100; ++i)
            game->update(0.02);
    };
    for (auto _ : state) {
        oneGame();
        long long before = liveBytes;
        for (int i = 0; i < 100; ++i)
            oneGame();
        state.counters["bytesAfterRestarts"] = static_cast<double>(liveBytes - before);
        before = liveBytes;
        for (int i = 0; i < 200000; ++i)
            game->update(STANDSTILL);
        state.counters["bytesAfterSteps"] = static_cast<double>(liveBytes - before);
        before = liveBytes;
        game->startNewWave();
        state.counters["bytesOfWave2"] = static_cast<double>(liveBytes - before);
    }
}

} // namespace


BENCHMARK(plainLoop)->Unit(benchmark::kMicrosecond);
BENCHMARK(step)->Name("stormStep")->Arg(100)->Unit(benchmark::kMicrosecond);
BENCHMARK(step)->Name("growthStep")->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(frame)->Name("drawnFrame")->Arg(100)->Unit(benchmark::kMicrosecond);
BENCHMARK(preview)->Name("previewFrame")->Arg(100)->Unit(benchmark::kMicrosecond);
BENCHMARK(growth)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
