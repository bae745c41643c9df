// Any bytes as a .sez archive: the reader never fails, and what it read writes back as the same
// bytes it came from and reads again the same.
#include "data/Archiv_Tahu.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bajty = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    Archiv_Tahu archiv;
    archiv.Pole_Tahu = Cti_Roky(bajty);
    archiv.Pocet_Let = int(archiv.Pole_Tahu.size()) - 1;

    const QByteArray zapis = Zapis_Roky(archiv.Pole_Tahu, archiv.Pocet_Let);
    const qsizetype spolecne = std::min(zapis.size(), bajty.size());
    if (zapis.left(spolecne) != bajty.left(spolecne) || Cti_Roky(zapis) != archiv.Pole_Tahu)
        std::abort();

    Priprav_Seznamy_Tahu(archiv);
    const auto [prvni, druhe] = Spocitej_Tahy(archiv);
    if (prvni != archiv.Pocet_Tahy_1 || druhe != archiv.Pocet_Tahy_2)
        std::abort();
    return 0;
}
