// The text of the tip list at its largest: 950 full tickets, as the tip list shows them.
#include "tips/Vypis_Tipu.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

void Vypis_9500_Tipu(benchmark::State& stav) {
    auto tipy = std::make_unique<Zaznam_Tipu>();
    int16_t aktivni = 0;
    for (int i = 0; i < Max_Tipu; ++i) {
        Tip tip;
        for (int k = 1; k <= 6; ++k)
            tip[k] = uint8_t((i * 7 + k * 8) % 49 + 1);
        Pridej_Tip(*tipy, aktivni, tip);
    }
    for (auto _ : stav) {
        const Vypis_Tipu vypis = Vypis_Tipu_Do_Listu(*tipy, aktivni);
        benchmark::DoNotOptimize(vypis.Radky.size());
    }
}
BENCHMARK(Vypis_9500_Tipu)->Unit(benchmark::kMillisecond);

} // namespace
