// Any bytes as a tip file, of the current and of the old format. What the reader takes must come
// back byte for byte from the writer; a current file is never taken for one to convert; and what
// the conversion makes of an old file, written by the writer, reads back as the same record.
#include "data/Soubor_Tipu.h"

#include <cstdint>
#include <cstdlib>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bajty = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));

    const auto zaznam = std::make_unique<Zaznam_Tipu>(Cti_Zaznam_Tipu(bajty));
    const QByteArray zapsano = Zapis_Zaznam_Tipu(*zaznam);
    if (zapsano.size() < Delka_Zaznamu_Tipu || *std::make_unique<Zaznam_Tipu>(Cti_Zaznam_Tipu(zapsano)) != *zaznam)
        std::abort();
    // A whole record with a sound length reads and writes back as it was, less any tail.
    if (bajty.size() >= Delka_Zaznamu_Tipu) {
        const auto bajt = [&](int i) { return uint16_t(uint8_t(bajty[i])); };
        const int delka = int16_t(bajt(Posun_Delky_Seznamu) | bajt(Posun_Delky_Seznamu + 1) << 8);
        if (delka >= 0 && bajty.size() >= Delka_Zaznamu_Tipu + delka && bajty.left(zapsano.size()) != zapsano)
            std::abort();
    }
    Je_Stary_Format(QStringLiteral("x.tip"), zaznam->Pocet_Tipu);
    if (zaznam->Pocet_Tipu > 0 && Je_Treba_Konvertovat(zapsano))
        std::abort();

    if (!Je_Treba_Konvertovat(bajty))
        return 0;
    const auto stary = std::make_unique<Stary_Zaznam_Tipu>(Cti_Stary_Zaznam_Tipu(bajty));
    const auto novy = std::make_unique<Zaznam_Tipu>(Preved_Stary_Zaznam(*stary));
    if (novy->Pocet_Tiketu < 0 || novy->Pocet_Tiketu > Max_Tiketu)
        std::abort();
    if (*std::make_unique<Zaznam_Tipu>(Cti_Zaznam_Tipu(Zapis_Zaznam_Tipu(*novy))) != *novy)
        std::abort();
    return 0;
}
