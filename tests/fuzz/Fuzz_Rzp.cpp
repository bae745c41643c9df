// Any bytes as a .rzp wheel: the reading either refuses with a message and keeps no cells, or
// keeps a header in range and cells of 0..N whose largest is N; the expansion over numbers 1..49
// then either refuses or writes tickets of numbers from the list only.
#include "data/Soubor_Tipu.h"
#include "generator/modRozpisy.h"

#include <cstdint>
#include <cstdlib>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bajty = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    const QByteArray text = modRozpisy::Text_Rozpisu(bajty);
    if (text.contains("REM"))
        std::abort();
    modRozpisy::Externi_Rozpis_Stav rozpis;
    const Vysledek v = modRozpisy::Nacti_Rozpis(text, rozpis);
    if (!v.Ok()) {
        if (!v.Zprava.startsWith(u"Chyba v rozpisu, "_qs) || !rozpis.Data_Rozpisu.empty())
            std::abort();
        return 0;
    }
    if (text.isEmpty())
        return 0;
    if (rozpis.Tutovek < 0 || rozpis.Tutovek > 3 || rozpis.Cisel < 1 || rozpis.Cisel > 49 || rozpis.Sloupcu < 0)
        std::abort();
    for (uint8_t c : rozpis.Data_Rozpisu)
        if (c > rozpis.Cisel)
            std::abort();
    Seznam_Cisel cisla{};
    for (int i = 1; i <= 49; ++i)
        cisla[i] = uint8_t(50 - i);
    auto soubor = std::make_unique<Zaznam_Tipu>();
    const int tiketu = 1 + int(size % 7);
    if (!modRozpisy::Externi_Rozpis(rozpis, cisla, tiketu, *soubor).Ok())
        return 0;
    if (soubor->Pocet_Tiketu != tiketu || soubor->Pocet_Tipu > tiketu * Sloupcu_Tiketu)
        std::abort();
    for (int t = 1; t <= tiketu; ++t)
        for (const Tip& tip : soubor->Tikety[t].Cisla)
            for (uint8_t c : tip)
                if (c > 49)
                    std::abort();
    return 0;
}
