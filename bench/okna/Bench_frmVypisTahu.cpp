// The draw list's rebuild of both lists over the whole Sunday archive, as every add, repair and
// delete makes it: the lines, the covers, the lists filled and scrolled to the newest draw.
#include "Prostredi_Okna.h"
#include "archive/frmVypisTahu.h"

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <benchmark/benchmark.h>

namespace {

void Prestavba_Seznamu_Tahu(benchmark::State& stav) {
    Prostredi prostredi(QDate(2026, 11, 29));
    frmMDITombi& okno = prostredi.Spust();
    prostredi.Prikaz(u"mnuVypisTahu"_qs)->trigger();
    auto* tahy = okno.Najdi_Okno<frmVypisTahu>();
    QCoreApplication::processEvents();
    for (auto _ : stav) {
        tahy->Vypis_Cisla_1Tah();
        tahy->Vypis_Cisla_2Tah();
        QCoreApplication::processEvents();
    }
    stav.counters["radku"] = double(tahy->List1Tah->count() + tahy->List2Tah->count());
}
BENCHMARK(Prestavba_Seznamu_Tahu)->Unit(benchmark::kMillisecond)->Iterations(20);

} // namespace
