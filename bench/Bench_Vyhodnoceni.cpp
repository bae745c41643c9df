// The costly evaluation: every tip of a full store (9,500 tips) against every first and second draw
// of the whole Sunday archive, the fast run beside the straightforward one; and the lines of its
// win list as tombi-cli writes them, from one reused buffer beside a string a line.
#include "Archiv_Nedele.h"
#include "generator/Generator.h"
#include "tips/Vyhodnoceni.h"
#include "tips/Vypis_Vyher.h"

#include <benchmark/benchmark.h>
#include <memory>

namespace {

const Zaznam_Tipu& Plny_Soubor() {
    static const std::unique_ptr<Zaznam_Tipu> tipy = [] {
        auto z = std::make_unique<Zaznam_Tipu>();
        Zadani_Generatoru zadani;
        zadani.Pocet_Tipu = 9500;
        zadani.Pocet_Tiketu = 950;
        zadani.Seminko = 20261123;
        Generuj(zadani, *z);
        return z;
    }();
    return *tipy;
}

void Beh(benchmark::State& stav, bool rychle) {
    const Archiv_Tahu& a = Archiv_Nedele();
    const Rozsah_Tahu r = Rozsah_Archivu(a, a.Pocet_Tahy_1, a.Pocet_Tahy_2);
    Vysledek_Vyhodnoceni v;
    for (auto _ : stav) {
        v.Vycisti();
        if (rychle)
            Vyh_Soubor_V_Tazich(Plny_Soubor(), r, v);
        else
            Vyh_Soubor_V_Tazich_Prosty(Plny_Soubor(), r, v);
        benchmark::DoNotOptimize(v.Vyherni_Zaznamy.data());
    }
    stav.counters["tahu"] = r.N1 + r.N2;
    stav.counters["vyher"] = double(v.Pocet_Vyhernich_Zaznamu());
}

void Soubor_V_Tazich(benchmark::State& stav) {
    Beh(stav, true);
}
BENCHMARK(Soubor_V_Tazich)->Unit(benchmark::kMillisecond);

void Soubor_V_Tazich_Prosty(benchmark::State& stav) {
    Beh(stav, false);
}
BENCHMARK(Soubor_V_Tazich_Prosty)->Unit(benchmark::kMillisecond)->Iterations(1);

// The wins of the whole run, made once.
const Vysledek_Vyhodnoceni& Vyhry_Behu() {
    static const Vysledek_Vyhodnoceni v = [] {
        const Archiv_Tahu& a = Archiv_Nedele();
        Vysledek_Vyhodnoceni vysledek;
        Vyh_Soubor_V_Tazich(Plny_Soubor(), Rozsah_Archivu(a, a.Pocet_Tahy_1, a.Pocet_Tahy_2), vysledek);
        return vysledek;
    }();
    return v;
}

void Radky_Vyher_Z_Bufferu(benchmark::State& stav) {
    std::string buffer;
    for (auto _ : stav) {
        buffer.clear();
        Pro_Kazdou_Vyhru(Vyhry_Behu(), [&](const Misto_Vyhry& m) { Pripis_Radek_Vyhry(m, buffer); });
        benchmark::DoNotOptimize(buffer.data());
    }
    stav.counters["radku"] = double(Vyhry_Behu().Pocet_Vyhernich_Zaznamu());
}
BENCHMARK(Radky_Vyher_Z_Bufferu)->Unit(benchmark::kMillisecond);

void Radky_Vyher_Formatem(benchmark::State& stav) {
    for (auto _ : stav) {
        std::size_t bajtu = 0;
        for (const Misto_Vyhry& m : Mista_Vyher(Vyhry_Behu()))
            bajtu += std::size_t(Radek_Vyhry(m).toUtf8().size()) + 1;
        benchmark::DoNotOptimize(bajtu);
    }
}
BENCHMARK(Radky_Vyher_Formatem)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
