// SPDX-License-Identifier: MIT
//
// Time and bytes of one key.
#include <benchmark/benchmark.h>

#include <string>

#include "scenes.hpp"

namespace {

constexpr int kKeys = 100; // in one run of a dialog

void pressInScene(benchmark::State& state, const std::string& name)
{
    const kulbench::Scene* scene = kulbench::findScene(name);
    kulbench::makeDialog(*scene, static_cast<int>(state.range(0)));
    kulbench::pressKeys(*scene, 0);
    const long nBefore = kulbench::bytesSent();
    for ([[maybe_unused]] const auto& once : state)
        kulbench::pressKeys(*scene, kKeys);
    const auto keys = static_cast<double>(state.iterations() * kKeys);
    state.counters["bytes/key"] = static_cast<double>(kulbench::bytesSent() - nBefore) / keys;
    state.counters["time/key"] =
        benchmark::Counter(keys, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    kulbench::dropDialogs();
}

} // namespace

BENCHMARK_CAPTURE(pressInScene, focus, "focus")->Arg(3);
BENCHMARK_CAPTURE(pressInScene, button, "button")->Arg(3);
BENCHMARK_CAPTURE(pressInScene, items, "items")->Arg(20);
BENCHMARK_CAPTURE(pressInScene, menu, "menu")->Arg(100)->Arg(10000);
BENCHMARK_CAPTURE(pressInScene, checks, "checks")->Arg(100)->Arg(10000);
BENCHMARK_CAPTURE(pressInScene, options, "options")->Arg(100)->Arg(10000);

int main(int argc, char** argv)
{
    if (!kulbench::openTerminal("linux"))
        return 1;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
