// Any bytes as the operator's dBase table: either a clear message and nothing imported, or year
// records that survive a round trip through the .sez format.
#include "net/Import_Tahu.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bajty = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    const Import_Vysledek v = Importuj_Dbf(bajty);
    if (!v.Stav.Ok()) {
        if (v.Roky.size() != 1)
            std::abort();
        return 0;
    }
    for (std::size_t i = 1; i < v.Roky.size(); ++i)
        if (v.Roky[i].Rok < 1 || v.Roky[i].Rok > 9999)
            std::abort();
    if (Cti_Roky(Zapis_Roky(v.Roky, v.Pocet_Let())) != v.Roky)
        std::abort();
    return 0;
}
