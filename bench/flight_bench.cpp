#include "bench/bare_loop.h"
#include "engine/lanes.h"
#include "engine/many_flights.h"
#include "exchange/csv_writer.h"
#include "exchange/shot_columns.h"
#include "measured/measured_flights.h"
#include "measured/shot_import.h"
#include "numbers/rounding.h"
#include "shots/fly.h"

#include <atomic>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <random>
#include <string>

namespace {
std::atomic<std::size_t> allocations = 0; ///< since the start of the process
}

// Not inlined: gcc then takes each allocation and its release for a pair that doesn't match.
[[gnu::noinline]] void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t /*size*/) noexcept {
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

constexpr std::size_t kManyShots = 2000;
constexpr std::size_t kMapShots = 12000;

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

/// Launches of all clubs in any weather.
std::vector<ShotState> clubShots(std::size_t count) {
    std::mt19937 random(1);
    const auto draw = [&](double from, double to) {
        return store32(std::uniform_real_distribution(from, to)(random));
    };
    std::vector<ShotState> shots;
    while (shots.size() < count) {
        Shot shot;
        shot.LaunchAngle = draw(8, 25);
        shot.RPM = draw(2000, 9000);
        shot.LaunchSpeed = draw(80, 168);
        shot.WindSpeed = draw(-15, 15);
        shot.Temperature = draw(40, 100);
        shots.push_back(*prepare(shot));
    }
    return shots;
}

/// The yardstick of many flights: the same flights by the bare loop.
void bareMany(benchmark::State& state) {
    const auto shots = clubShots(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
        for (const ShotState& shot : shots)
            benchmark::DoNotOptimize(bench::bareCarry(bench::bareShot(shot)));
}

void many(benchmark::State& state, FlightMeans means, std::size_t count) {
    const auto shots = clubShots(count);
    for (auto _ : state)
        benchmark::DoNotOptimize(SimulateFlights(shots, {}, means).data());
}

/// A file of shots with all clubs, as long as a file may be.
std::string measuredFile() {
    CsvWriter csv;
    csv.field(shot_columns::kBallSpeed).field(shot_columns::kLaunchAngle);
    csv.field(shot_columns::kSpin).endRow();
    for (const ShotState& shot : clubShots(kMostShotRows - 1)) {
        csv.field(shot.LaunchSpeed).field(shot.LaunchAngle).field(shot.RPM);
        csv.endRow();
    }
    return csv.text();
}

void importFile(benchmark::State& state) {
    const std::string file = measuredFile();
    for (auto _ : state)
        benchmark::DoNotOptimize(importShots(file)->rows.data());
}

void flyFile(benchmark::State& state) {
    const auto shots = importShots(measuredFile())->taken();
    for (auto _ : state)
        benchmark::DoNotOptimize(flyMeasured(shots, Shot(), false).data());
}

BENCHMARK(bareLoop);
BENCHMARK(carry);
BENCHMARK(flight);
BENCHMARK(bareMany)->Arg(kManyShots)->Arg(kMapShots)->Unit(benchmark::kMillisecond);
BENCHMARK(importFile)->Unit(benchmark::kMillisecond);
BENCHMARK(flyFile)->Unit(benchmark::kMillisecond)->UseRealTime();

void registerManyFlights() {
    const auto add = [](const std::string& name, FlightMeans means, std::size_t count) {
        auto* row = benchmark::RegisterBenchmark(name.c_str(), many, means, count);
        row->Unit(benchmark::kMillisecond);
        if (means.threads > 1)
            row->UseRealTime();
    };
    for (const LaneWay& way : laneWays())
        add(std::string("many/") + way.name, {&way, 1}, kManyShots);
    add("many/threads", {bestFlightMeans().lanes, 2}, kManyShots);
    add("map", bestFlightMeans(), kMapShots);
}

} // namespace

int main(int argc, char** argv) {
    // A yardstick that flies another shot measures nothing.
    const ShotState shot = driver();
    if (bench::bareCarry(bench::bareShot(shot)) != SimulateCarry(shot)) {
        std::fputs("The bare loop and the engine disagree.\n", stderr);
        return EXIT_FAILURE;
    }
    registerManyFlights();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
