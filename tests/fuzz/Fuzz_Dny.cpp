// Any bytes as the dates beside an archive: only whole, valid dates are taken, and what is taken
// is written and read back the same.
#include "data/Dny_Tahu.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bajty = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    const Dny_Tahu dny = Cti_Dny(bajty);
    for (const auto& [klic, datum] : dny.Data) {
        const auto& [rok, tyden, tah] = klic;
        if (rok < 1 || rok > 9999 || tyden < 1 || tyden > 53 || tah < 1 || tah > 2 || !datum.isValid())
            std::abort();
    }
    if (Cti_Dny(Zapis_Dny(dny)) != dny)
        std::abort();
    return 0;
}
