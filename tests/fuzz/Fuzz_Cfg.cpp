// tombi.cfg: any bytes read as a record, and the record written and read again is the same record
// and the same bytes.
#include "data/Nastaveni.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray vstup(reinterpret_cast<const char*>(data), qsizetype(size));
    const Nastaveni_Zaznam z = Cti_Nastaveni(vstup);
    const QByteArray zapis = Zapis_Nastaveni(z);
    if (!(Cti_Nastaveni(zapis) == z) || Zapis_Nastaveni(Cti_Nastaveni(zapis)) != zapis)
        std::abort();
    (void)Vypis_Nastaveni(z);
    return 0;
}
