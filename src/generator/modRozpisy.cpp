#include "generator/modRozpisy.h"

#include "data/Soubor_Tipu.h"
#include "data/Soubory.h"

#include <algorithm>

namespace modRozpisy {

const QStringList& Katalog() {
    static const QStringList Radky = {
        u"žádný typ rozpisu - dle volby VYBRANÁ ČÍSLA"_qs,
        u"IMPORT  rozpisu ze souboru   *.rzp"_qs,
        u"1 tutovka a 15 čísel,                          14 sloupců"_qs,
        u"1 tutovka a 24 čísel,                          38 sloupců"_qs,
        u"1 tutovka a 31 čísel,                          27 sloupců"_qs,
        u"1 tutovka a 2 skupiny (18 čísel),         68 sloupců"_qs,
        u"2 tutovky a 12 čísel,                          27 sloupců"_qs,
        u"2 tutovky a 18 čísel                           15 sloupců"_qs,
        u"3 tutovky a 20 čísel                           31 sloupců"_qs,
        u"3 tutovky a 25 čísel                           31 sloupců"_qs,
        u"10 čísel,                                             5 sloupců"_qs,
        u"14 čísel,                                           19 sloupců"_qs,
        u"15 čísel,                                           46 sloupců"_qs,
        u"16 čísel,                                             6 sloupců"_qs,
        u"18 čísel,                                           41 sloupců"_qs,
        u"19 čísel,                                           15 sloupců"_qs,
        u"26 čísel,                                           24 sloupců"_qs,
        u"27 čísel,                                           30 sloupců"_qs,
        u"30 čísel,                                           35 sloupců"_qs,
        u"30 čísel, 12 oblíbených + 18               72 sloupců"_qs,
        u"36 čísel, 6 oblíbených + 30                 61 sloupců"_qs,
        u"36 čísel,                                           99 sloupců"_qs,
        u"30 čísel v 15 dvojicích,                      35 sloupců"_qs,
        u"15 čísel, 2 skupiny (1-7, 8-15)             77 sloupců"_qs,
        u"16 čísel, 4 trojice a 2 dvojice              36 sloupců"_qs,
    };
    return Radky;
}

namespace {

const QString Chyba_Rozpisu = u"Chyba v rozpisu"_qs;
const QString Chyba_Expanze = u"Chyba v proceduře Externí rozpis."_qs;
// More columns than the tip store holds can never be played.
constexpr int Nejvic_Sloupcu = Max_Tiketu * Sloupcu_Tiketu;

bool Je_Tutovka(uint8_t bunka) {
    return bunka >= T1 && bunka <= T3;
}

} // namespace

std::optional<Rozmery_Rozpisu> Rozpis(int cislo, const Seznam_Cisel& cisla_rozpisu, const Tip& aktualni_tip,
                                      Zaznam_Tipu& soubor) {
    const Tabulka_Rozpisu* tabulka = Tabulka(cislo);
    if (tabulka == nullptr)
        return std::nullopt;
    const int sloupcu = int(tabulka->Radky.size());
    soubor.Pocet_Tiketu = int16_t((sloupcu + Sloupcu_Tiketu - 1) / Sloupcu_Tiketu);
    soubor.Pocet_Tipu = int16_t(tabulka->Pocet_Tipu);
    for (int r = 0; r < sloupcu; ++r) {
        const Radek_Rozpisu& radek = tabulka->Radky[std::size_t(r)];
        Tiket& tiket = soubor.Tikety[r / Sloupcu_Tiketu + 1];
        tiket.Cislo_Tiketu = r / Sloupcu_Tiketu + 1;
        if (std::all_of(radek.begin(), radek.end(), [](uint8_t b) { return b == 0; }))
            continue; // the kept hole: this column is not written
        Tip& tip = tiket.Cisla[r % Sloupcu_Tiketu + 1];
        for (int i = 0; i < 6; ++i) {
            const uint8_t b = radek[std::size_t(i)];
            tip[i + 1] = Je_Tutovka(b) ? aktualni_tip[b - T1 + 1] : cisla_rozpisu[b];
        }
    }
    return Rozmery_Rozpisu{tabulka->Tutovek, tabulka->Sloupcu, tabulka->Cisel};
}

void Smaz_Sloupce(Tiket& tiket, int sloupec) {
    for (int s = std::max(sloupec, 1); s <= Sloupcu_Tiketu; ++s)
        tiket.Cisla[s] = Tip{};
}

QByteArray Text_Rozpisu(const QByteArray& soubor) {
    return Radky_Bez_Poznamek(soubor, false);
}

Vysledek Nacti_Rozpis(const QByteArray& text, Externi_Rozpis_Stav& rozpis) {
    if (text.isEmpty() || rozpis.Rozpis_Nacten)
        return Vysledek::Uspech();
    rozpis.Rozpis_Nacten = true;
    rozpis.Data_Rozpisu.clear();
    const auto chyba = [&](const char* co) {
        rozpis.Data_Rozpisu.clear();
        return Vysledek::Chyba(Chyba_Rozpisu + QString::fromUtf8(co));
    };
    int pocitadlo = 0;
    int nejvetsi = 0;
    int64_t token = -1; // -1: no digit yet; saturates far above any value that is accepted
    // The text always gets a line end, so its last token is closed too.
    const QByteArray uplny = text.endsWith('\n') ? text : text + "\r\n";
    for (const char znak : uplny) {
        if (znak >= '0' && znak <= '9') {
            token = std::min<int64_t>((token < 0 ? 0 : token * 10) + (znak - '0'), 1'000'000'000);
            continue;
        }
        if (token < 0)
            continue;
        const int64_t hodnota = token;
        token = -1;
        ++pocitadlo;
        if (pocitadlo == 1) {
            if (hodnota > 3)
                return chyba(", v počtu TUTOVEK !");
            rozpis.Tutovek = int(hodnota);
        } else if (pocitadlo == 2) {
            if (hodnota < 1 || hodnota > 49)
                return chyba(", v počtu ČÍSEL !");
            rozpis.Cisel = int(hodnota);
        } else if (pocitadlo == 3) {
            // More columns than a tip file holds could never be played.
            if (hodnota > Nejvic_Sloupcu)
                return chyba(", v počtu SLOUPCŮ !");
            rozpis.Sloupcu = int(hodnota);
        } else if (hodnota != 0) {
            // A cell above 255 does not fit its byte; it is above 49 as well.
            if (hodnota > 49)
                return chyba(", číslo v rozpisu mimo rozsah !");
            // Cells beyond what the largest wheel can use are not kept without bound.
            if (pocitadlo - 3 > Nejvic_Sloupcu * 6)
                return chyba(", příliš mnoho čísel v rozpisu !");
            rozpis.Data_Rozpisu.resize(std::size_t(pocitadlo - 3), 0);
            rozpis.Data_Rozpisu.back() = uint8_t(hodnota);
            nejvetsi = std::max(nejvetsi, int(hodnota));
        }
    }
    // A header cut short has no count of numbers.
    if (pocitadlo < 2)
        return chyba(", v počtu ČÍSEL !");
    if (nejvetsi != rozpis.Cisel)
        return chyba(", rozdíl mezi počtem čísel a největším číslem !");
    return Vysledek::Uspech();
}

Vysledek Externi_Rozpis(Externi_Rozpis_Stav& rozpis, const Seznam_Cisel& cisla_rozpisu, int tiketu,
                        Zaznam_Tipu& soubor) {
    const int tutovek = rozpis.Tutovek;
    const int sloupcu = rozpis.Sloupcu;
    const int k = (6 - tutovek) * sloupcu;
    // The positions are turned into numbers in a copy: translated in place, a second expansion of
    // the same table would read numbers as positions and write tips the user never chose.
    std::vector<uint8_t> cisla(std::size_t(std::max(k, 0)));
    for (int i = 0; i < k; ++i) {
        if (std::size_t(i) >= rozpis.Data_Rozpisu.size() || rozpis.Data_Rozpisu[std::size_t(i)] == 0)
            return Vysledek::Chyba(Chyba_Expanze);
        cisla[std::size_t(i)] = cisla_rozpisu[rozpis.Data_Rozpisu[std::size_t(i)]];
    }
    if (tiketu < 1 || tiketu > Max_Tiketu || rozpis.Cisel + tutovek > 49)
        return Vysledek::Chyba(Chyba_Expanze);
    soubor.Pocet_Tiketu = int16_t(tiketu);
    int c = 0;
    for (int t = 1; t <= tiketu; ++t) {
        soubor.Tikety[t].Cislo_Tiketu = t;
        for (Tip& tip : soubor.Tikety[t].Cisla) {
            const bool plny = c < k;
            for (int p = 1; p <= 6; ++p) {
                if (plny && p <= tutovek) {
                    tip[p] = cisla_rozpisu[rozpis.Cisel + p];
                } else {
                    ++c;
                    tip[p] = c <= k ? cisla[std::size_t(c - 1)] : 0;
                }
            }
        }
    }
    // The count is what stands in the store: fewer tickets than the wheel needs hold fewer tips.
    soubor.Pocet_Tipu = int16_t(std::min(sloupcu, tiketu * Sloupcu_Tiketu));
    return Vysledek::Uspech();
}

} // namespace modRozpisy
