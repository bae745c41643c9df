// All ten statistics of the draw analysis over the whole Sunday archive, both series, with and
// without the supplementary number, as one batch (the pair statistic orders the draws in place,
// so every batch runs on fresh copies of the lists).
#include "Archiv_Nedele.h"
#include "analysis/Analyza_Tahu.h"

#include <benchmark/benchmark.h>

namespace {

void Deset_Analyz(benchmark::State& stav) {
    const Archiv_Tahu& a = Archiv_Nedele();
    qsizetype znaku = 0;
    for (auto _ : stav) {
        stav.PauseTiming();
        std::vector<Tah> tahy_1 = a.Tahy_1;
        std::vector<Tah> tahy_2 = a.Tahy_2;
        stav.ResumeTiming();
        for (const int cisel : {6, 7}) {
            Zadani_Analyzy z;
            z.Rady = {Rada_Zpetne(tahy_1, a.Pocet_Tahy_1, a.Pocet_Tahy_1), Rada_Zpetne(tahy_2, a.Pocet_Tahy_2, a.Pocet_Tahy_2)};
            z.Cisel_V_Tahu = cisel;
            for (int typ = 0; typ < Pocet_Analyz; ++typ) {
                z.Prah = Popis(Typ_Analyzy(typ)).Vychozi_Prah;
                const Vysledek_Analyzy v = Analyzuj(Typ_Analyzy(typ), z);
                znaku += v.Text_1.size() + v.Text_2.size();
            }
        }
    }
    benchmark::DoNotOptimize(znaku);
    stav.counters["tahu"] = a.Pocet_Tahy_1 + a.Pocet_Tahy_2;
}
BENCHMARK(Deset_Analyz)->Unit(benchmark::kMillisecond);

} // namespace
