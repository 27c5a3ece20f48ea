// Harvesting generated menu trees of 10^2 to 10^5 elements: the time per element must not grow with their number.
#include <benchmark/benchmark.h>

#include <string>

#include "core/MenuHarvest.h"
#include "tests/doubles/FakeDesktop.h"

namespace orlamo {
namespace {

// Menus of twenty items, every fifth of which opens a submenu of ten, as applications have them.
std::vector<FakeElementPtr> generatedMenuBar(std::int64_t elements) {
    std::vector<FakeElementPtr> bar{FakeAccessibility::element(), FakeAccessibility::titled("Generated")};
    for (std::int64_t made = 0; made < elements;) {
        std::vector<FakeElementPtr> items;
        for (int i = 0; i < 20 && made < elements; ++i, ++made) {
            const std::string title = "Item " + std::to_string(made);
            if (i % 5 != 4) {
                items.push_back(FakeAccessibility::item(title, "K", i % 8));
                continue;
            }
            std::vector<FakeElementPtr> inner;
            for (int k = 0; k < 10 && made < elements; ++k, ++made) {
                inner.push_back(FakeAccessibility::item(title + "." + std::to_string(k), "J"));
            }
            items.push_back(FakeAccessibility::submenu(title, std::move(inner)));
        }
        bar.push_back(FakeAccessibility::menu("Menu " + std::to_string(bar.size()), std::move(items)));
    }
    return bar;
}

void harvest(benchmark::State& state) {
    FakeDesktop desktop;
    desktop.openEditor({});
    desktop.accessibility.setMenuBar(FakeDesktop::editorProcess, generatedMenuBar(state.range(0)));
    for (auto _ : state) {
        menuItemKeyCodes.clear();
        benchmark::DoNotOptimize(harvestMenuShortcuts());
    }
    state.SetComplexityN(state.range(0));
    state.counters["perElement"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

BENCHMARK(harvest)->RangeMultiplier(10)->Range(100, 100'000)->Complexity(benchmark::oN)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orlamo

BENCHMARK_MAIN();
