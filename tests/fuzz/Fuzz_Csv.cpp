// Any bytes as the operator's CSV export, for both draw days: either a clear message and nothing
// imported, or one record a year in ascending order with numbers of the game only.
#include "net/Import_Tahu.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bajty = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    for (const Den den : {Den::Nedele, Den::Streda}) {
        const Import_Vysledek v = Importuj_Csv(bajty, den);
        if (!v.Stav.Ok()) {
            if (v.Roky.size() != 1)
                std::abort();
            continue;
        }
        for (std::size_t i = 1; i < v.Roky.size(); ++i) {
            if (v.Roky[i].Rok < 1 || (i > 1 && v.Roky[i].Rok <= v.Roky[i - 1].Rok))
                std::abort();
            for (const Tyden_Zaznam& t : v.Roky[i].Tyden)
                for (int c = 1; c <= 7; ++c)
                    if (t.Tah1[c] > 49 || t.Tah2[c] > 49)
                        std::abort();
        }
        if (Cti_Roky(Zapis_Roky(v.Roky, v.Pocet_Let())) != v.Roky)
            std::abort();
    }
    return 0;
}
