#include "bench/bare_loop.h"
#include "shots/fly.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace {
std::size_t allocations = 0; ///< since the start of the process
}

void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}

namespace {

using namespace parabolt;

/// A driver's launch in mild weather: 691 steps.
ShotState driver() {
    return *prepare(Shot());
}

void bareLoop(benchmark::State& state) {
    bench::BareShot shot = bench::bareShot(driver());
    for (auto _ : state) {
        benchmark::DoNotOptimize(shot);
        benchmark::DoNotOptimize(bench::bareCarry(shot));
    }
}

void carry(benchmark::State& state) {
    ShotState shot = driver();
    for (auto _ : state) {
        benchmark::DoNotOptimize(shot);
        benchmark::DoNotOptimize(SimulateCarry(shot));
    }
}

/// With path and outcome, into a record that is new each time.
void flight(benchmark::State& state) {
    ShotState shot = driver();
    std::size_t points = 0;
    const std::size_t before = allocations;
    for (auto _ : state) {
        RunRecord record;
        benchmark::DoNotOptimize(shot);
        benchmark::DoNotOptimize(static_cast<bool>(SimulateFlight(shot, {}, record)));
        benchmark::DoNotOptimize(record.Path.data());
        points = record.Path.size();
    }
    state.counters["allocations"] =
        static_cast<double>(allocations - before) / static_cast<double>(state.iterations());
    state.counters["steps"] = static_cast<double>(points - 1);
}

BENCHMARK(bareLoop);
BENCHMARK(carry);
BENCHMARK(flight);

} // namespace

int main(int argc, char** argv) {
    // A yardstick that flies another shot measures nothing.
    const ShotState shot = driver();
    if (bench::bareCarry(bench::bareShot(shot)) != SimulateCarry(shot)) {
        std::fputs("The bare loop and the engine disagree.\n", stderr);
        return EXIT_FAILURE;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
