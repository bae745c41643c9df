// A run of the generator at the size of the tip store: 9,500 tips with no filter, and with the
// usual filters together with the walk over the whole Sunday archive.
#include "Archiv_Nedele.h"
#include "generator/Generator.h"

#include <benchmark/benchmark.h>

namespace {

Zadani_Generatoru Zadani(bool filtry) {
    Zadani_Generatoru z;
    z.Pocet_Tipu = 9500;
    z.Pocet_Tiketu = 950;
    z.Seminko = 20261123;
    if (filtry) {
        for (int i : {0, 1, 2, 3, 5, 6, 7, 8})
            z.Check1[std::size_t(i)] = true;
        // Text4 as the window starts it for the number of tips without the automatic correction.
        z.Max_Tretich_Cen = int(9500 / 49.0 + 0.5);
        const Archiv_Tahu& a = Archiv_Nedele();
        z.Tahy_1 = &a.Tahy_1;
        z.Tahy_2 = &a.Tahy_2;
        z.Vynech_Tahy_1_Od = a.Pocet_Tahy_1;
        z.Vynech_Tahy_2_Od = a.Pocet_Tahy_2;
    }
    return z;
}

void Beh(benchmark::State& stav, bool filtry) {
    const Zadani_Generatoru z = Zadani(filtry);
    static Zaznam_Tipu soubor;
    Vysledek_Generatoru v;
    for (auto _ : stav) {
        v = Generuj(z, soubor);
        benchmark::DoNotOptimize(soubor.Tikety[1].Cisla[1][1]);
    }
    stav.counters["hotovo"] = v.Pocet_Tipu_Hotovo;
    stav.counters["tahu"] = filtry ? Archiv_Nedele().Pocet_Tahy_1 + Archiv_Nedele().Pocet_Tahy_2 : 0;
}

void Bez_Filtru(benchmark::State& stav) {
    Beh(stav, false);
}
BENCHMARK(Bez_Filtru)->Unit(benchmark::kMillisecond);

void S_Filtry_A_Archivem(benchmark::State& stav) {
    Beh(stav, true);
}
BENCHMARK(S_Filtry_A_Archivem)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
