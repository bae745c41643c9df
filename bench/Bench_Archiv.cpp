// The draw archive at the size of the real history: loading the Sunday archive with its flat
// lists, as every switch of draw day does, the lines of the draw list, and importing the
// operator's data.
#include "archive/Editor_Tahu.h"
#include "data/Archiv_Tahu.h"
#include "net/Import_Tahu.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

QByteArray Historie() {
    QFile f(QStringLiteral(TOMBI_HISTORIE));
    if (!f.open(QIODevice::ReadOnly))
        std::abort();
    return f.readAll();
}

// The Sunday archive as the import makes it, written once to a folder that lives for the run.
const QString& Adresar_Archivu() {
    static QTemporaryDir dir;
    static const bool zapsano = [] {
        Archiv_Tahu archiv;
        Nastav_Den_Archivu(archiv, Den::Nedele);
        const Import_Vysledek v = Importuj_Csv(Historie(), Den::Nedele);
        archiv.Pocet_Let = v.Pocet_Let();
        archiv.Pole_Tahu = v.Roky;
        return v.Stav.Ok() && Uloz_Tahy(archiv, dir.path(), archiv.Soubor_Tahu).Ok();
    }();
    if (!zapsano)
        std::abort();
    static const QString cesta = dir.path();
    return cesta;
}

// The same Sunday draws as the operator's dBase table, oldest first.
QByteArray Tabulka_Dbf() {
    const Import_Vysledek v = Importuj_Csv(Historie(), Den::Nedele);
    QByteArray b(545, '\0');
    for (int r = 1; r <= v.Pocet_Let(); ++r)
        for (int w = 1; w <= 53; ++w) {
            const Tyden_Zaznam& t = v.Roky[std::size_t(r)].Tyden[w];
            if (t.Je_Tah1 != -1)
                continue;
            b += ' ' + QByteArray::number(v.Roky[std::size_t(r)].Rok) + QByteArray::number(w).rightJustified(2, '0');
            for (int i = 1; i <= 7; ++i)
                b += QByteArray::number(t.Tah1[i]).rightJustified(2, ' ');
            for (int i = 1; i <= 7; ++i)
                b += QByteArray::number(t.Tah2[i]).rightJustified(2, ' ');
        }
    return b + '\x1A';
}

void Nacteni_Nedele_A_Seznamy(benchmark::State& stav) {
    const QString& adresar = Adresar_Archivu();
    Archiv_Tahu archiv;
    for (auto _ : stav) {
        if (!Nacti_Tahy(archiv, adresar, u"SpN_tahy.sez"_qs).Ok())
            std::abort();
        Priprav_Seznamy_Tahu(archiv);
        benchmark::DoNotOptimize(Spocitej_Tahy(archiv));
    }
    stav.counters["tahu"] = archiv.Pocet_Tahy_1;
}
BENCHMARK(Nacteni_Nedele_A_Seznamy)->Unit(benchmark::kMicrosecond);

void Seznamy_Tahu(benchmark::State& stav) {
    Archiv_Tahu archiv;
    if (!Nacti_Tahy(archiv, Adresar_Archivu(), u"SpN_tahy.sez"_qs).Ok())
        std::abort();
    for (auto _ : stav) {
        Priprav_Seznamy_Tahu(archiv);
        benchmark::DoNotOptimize(archiv.Tahy_1.data());
    }
}
BENCHMARK(Seznamy_Tahu)->Unit(benchmark::kMicrosecond);

// The lines of both lists of the draw list, made anew after each add, repair and delete.
void Radky_Seznamu_Tahu(benchmark::State& stav) {
    Archiv_Tahu archiv;
    if (!Nacti_Tahy(archiv, Adresar_Archivu(), u"SpN_tahy.sez"_qs).Ok())
        std::abort();
    for (auto _ : stav) {
        benchmark::DoNotOptimize(Vypis_Cisla_Tahu(archiv, Prvni_Tah));
        benchmark::DoNotOptimize(Vypis_Cisla_Tahu(archiv, Druhy_Tah));
    }
}
BENCHMARK(Radky_Seznamu_Tahu)->Unit(benchmark::kMicrosecond);

void Import_Csv(benchmark::State& stav) {
    const QByteArray csv = Historie();
    for (auto _ : stav)
        benchmark::DoNotOptimize(Importuj_Csv(csv, Den::Nedele));
    stav.SetBytesProcessed(int64_t(stav.iterations()) * csv.size());
}
BENCHMARK(Import_Csv)->Unit(benchmark::kMicrosecond);

void Import_Dbf(benchmark::State& stav) {
    const QByteArray dbf = Tabulka_Dbf();
    for (auto _ : stav)
        benchmark::DoNotOptimize(Importuj_Dbf(dbf));
    stav.SetBytesProcessed(int64_t(stav.iterations()) * dbf.size());
}
BENCHMARK(Import_Dbf)->Unit(benchmark::kMicrosecond);

} // namespace
