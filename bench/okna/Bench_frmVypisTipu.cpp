// The tip list window at its largest: 9,500 tips listed into List1 as the window does it, with
// the busy state, the used numbers and the status band.
#include "Prostredi_Okna.h"
#include "tips/frmVypisTipu.h"
#include "tips/Vypis_Tipu.h"

#include <QApplication>
#include <QListWidget>
#include <benchmark/benchmark.h>

namespace {

void Vypis_9500_Tipu_V_Okne(benchmark::State& stav) {
    Prostredi prostredi(QDate(2026, 11, 26));
    frmMDITombi& okno = prostredi.Spust();
    Stav_Tipu& tipy = prostredi.Data->Tipy;
    for (int i = 0; i < Max_Tipu; ++i) {
        Tip tip;
        for (int k = 1; k <= 6; ++k)
            tip[k] = uint8_t((i * 7 + k * 8) % 49 + 1);
        Pridej_Tip(tipy.Soubor_Tipu, tipy.Pocet_Tipu_Aktivni, tip);
    }
    auto* vypis = okno.Otevri_Okno<frmVypisTipu>(okno, false);
    QCoreApplication::processEvents();
    for (auto _ : stav) {
        vypis->Vypis_Tipu_Do_Listu();
        QCoreApplication::processEvents();
    }
    stav.counters["radku"] = double(vypis->List1->count());
}
BENCHMARK(Vypis_9500_Tipu_V_Okne)->Unit(benchmark::kMillisecond)->Iterations(10);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication aplikace(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
