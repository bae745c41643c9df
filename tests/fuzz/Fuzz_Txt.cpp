// Any bytes as a text file of tips: the import either refuses with its message and leaves the store
// as it was, or fills it with whole tips of six different numbers 1..49 whose text form reads back
// to the same store.
#include "data/Operace_Tipu.h"

#include <cstdint>
#include <cstdlib>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bajty = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    auto stav = std::make_unique<Stav_Tipu>();
    stav->Soubor_Tipu.Pocet_Tiketu = 1;
    stav->Soubor_Tipu.Tikety[1].Cisla[1] = Tip{{1, 2, 3, 4, 5, 6}};
    const Zaznam_Tipu pred = stav->Soubor_Tipu;
    const QByteArray text = Text_Importu(bajty);
    if (text.contains("REM") || (!text.isEmpty() && !text.endsWith("\r\n")))
        std::abort();
    if (!Import_Tipu(text, *stav).Ok()) {
        if (!(stav->Soubor_Tipu == pred))
            std::abort();
        return 0;
    }
    const Zaznam_Tipu& z = stav->Soubor_Tipu;
    if (z.Pocet_Tiketu < 1 || z.Pocet_Tiketu > Max_Tiketu || z.Pocet_Tipu != stav->Pocet_Tipu_Aktivni ||
        z.Pocet_Tipu > (z.Pocet_Tiketu) * Sloupcu_Tiketu)
        std::abort();
    auto zpet = std::make_unique<Stav_Tipu>();
    if (Pocet_Tipu_V_Souboru(z) != z.Pocet_Tipu || !Import_Tipu(Text_Importu(Export_Tipu(*stav)), *zpet).Ok() ||
        !(zpet->Soubor_Tipu == z))
        std::abort();
    return 0;
}
