// Any bytes as a .vyb file: the record read is written as the first 105 bytes of the input (zeros
// where it was short) and reads back the same; any record, checked or not, applies to the pools
// without leaving them, and the pools take clicks, save and prepare a run without a fault.
#include "generator/Soubor_Vyb.h"
#include "generator/Vyber_Cisel.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bajty = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    const Zaznam_Vyb z = Cti_Zaznam_Vyb(bajty);
    const QByteArray zapsano = Zapis_Zaznam_Vyb(z);
    QByteArray cekano = bajty.left(Delka_Zaznamu_Vyb);
    cekano.append(Delka_Zaznamu_Vyb - cekano.size(), '\0');
    if (zapsano != cekano || !(Cti_Zaznam_Vyb(zapsano) == z))
        std::abort();

    const bool platny = Chyba_Zaznamu_Vyb(z).isEmpty();
    Vyber_Cisel v;
    Boxy_Tutovek boxy{};
    Pouzij_Zaznam_Vyb(v, z, boxy);
    for (const int pocet : {v.Pocet_Pouzit, v.Pocet_Vynechat, v.Pocet_Rozpisu})
        if (pocet < 0 || pocet > 49)
            std::abort();
    // A sound record of "Vynechat" or of a wheel comes back as it was saved.
    const Zaznam_Vyb ulozeny = Zaznam_Z_Vyberu(v, z.Rozpis, boxy);
    if (platny && v.Vynechat_Vybrana &&
        Zapis_Zaznam_Vyb(ulozeny).mid(51, 1 + z.Pocet_Vynechat) != zapsano.mid(51, 1 + z.Pocet_Vynechat))
        std::abort();
    // The bytes past the record click on the grid of whatever mode the record left: any number,
    // either colour, a full list, a wheel of any size.
    v.Cisla_Potreba = z.Rozpis > 0 ? 1 + z.Pocet_Cisel % 49 : 49;
    v.Pocet_Tutovek_Rozpisu = z.Pocet_Tutovek;
    for (qsizetype i = Delka_Zaznamu_Vyb; i < std::min<qsizetype>(bajty.size(), Delka_Zaznamu_Vyb + 48); ++i) {
        const uint8_t k = uint8_t(bajty[i]);
        const Stav_Vyberu stav = k == 0xFF ? Vypln_Rozsah(v, k & 3, boxy)
                                           : Klik_Cislo(v, k % 52, k & 0x80 ? Barva_Cervena : Barva_Cerna, boxy);
        if (stav.Pocet != Pocet_V_Platnosti(v) || stav.Pocet < 0 || stav.Pocet > 49 || v.Tutovka_Index > 3)
            std::abort();
    }
    if (Priprav_Okruh(v, boxy) > 49)
        std::abort();
    return 0;
}
