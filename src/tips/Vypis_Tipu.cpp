#include "tips/Vypis_Tipu.h"

#include "core/modTombi_Zaklad.h"
#include "core/pTikety.h"

#include <algorithm>

QString Hlavicka_Tiketu(int32_t cislo_tiketu) {
    return u"číslo tiketu - "_qs + QString::number(cislo_tiketu);
}

QString Radek_Tipu(const Tip& tip) {
    QString radek(4, u' ');
    radek.reserve(4 + 6 * 5);
    for (const uint8_t cislo : tip) {
        if (cislo != 0)
            radek += QString::number(cislo);
        radek += cislo < 10 ? u"     "_qs : u"   "_qs;
    }
    return radek;
}

Vypis_Tipu Vypis_Tipu_Do_Listu(const Zaznam_Tipu& tipy, int pocet_tipu_aktivni, const Prubeh& prubeh) {
    Vypis_Tipu vypis;
    const int pocet_tiketu = std::clamp<int>(tipy.Pocet_Tiketu, 0, Max_Tiketu);
    vypis.Radky.reserve(pocet_tiketu * Radku_Na_Tiket);
    Sledovani_Prubehu sledovani(prubeh, pocet_tiketu);
    for (int t = 1; t <= pocet_tiketu; ++t) {
        sledovani.Krok(t - 1);
        const Tiket& tiket = tipy.Tikety[t];
        for (int s = 1; s <= Sloupcu_Tiketu; ++s) {
            const Tip& tip = tiket.Cisla[s];
            // The tips stand without gaps: the first empty column is the end of them all.
            if (tip[1] == 0)
                return vypis;
            if (vypis.Pocet_Tipu_Celkem > pocet_tipu_aktivni)
                continue;
            if (s == 1)
                vypis.Radky << Hlavicka_Tiketu(tiket.Cislo_Tiketu);
            ++vypis.Pocet_Tipu_Celkem;
            for (const uint8_t cislo : tip)
                if (cislo >= 1 && cislo <= 49)
                    vypis.Pouzita_Cisla[cislo] = true;
            vypis.Radky << Radek_Tipu(tip);
            if (!vypis.Netrideno && pTikety::Setridit(vypis.Radky.back()))
                vypis.Netrideno = true;
        }
        vypis.Radky << QString();
    }
    sledovani.Krok(pocet_tiketu);
    return vypis;
}

QString Text_Pouzitych_Cisel(const std::array<bool, 50>& pouzita, int& pocet) {
    QString text;
    pocet = 0;
    for (int n = 1; n <= 49; ++n)
        if (pouzita[std::size_t(n)]) {
            text += u' ' + QString::number(n);
            ++pocet;
        }
    return text;
}

Vysledek Pridej_Tip(Zaznam_Tipu& tipy, int16_t& pocet_tipu_aktivni, Tip tip) {
    // The tip goes right after the last tip present: a run stopped early, or a header that asked
    // for more tips than were made, must not send it to a ticket far behind the list.
    int pritomno = 0;
    const int pocet_tiketu = std::clamp<int>(tipy.Pocet_Tiketu, 0, Max_Tiketu);
    while (pritomno < pocet_tiketu * Sloupcu_Tiketu &&
           tipy.Tikety[pritomno / Sloupcu_Tiketu + 1].Cisla[pritomno % Sloupcu_Tiketu + 1][1] != 0)
        ++pritomno;
    if (pritomno >= Max_Tipu)
        return Vysledek::Chyba(u"Maximu je  "_qs + u" 9500"_qs + u"  tipů"_qs);
    const int tiket = pritomno / Sloupcu_Tiketu + 1;
    const int sloupec = pritomno % Sloupcu_Tiketu + 1;
    Tiket& t = tipy.Tikety[tiket];
    if (sloupec == 1) {
        // A ticket opened anew holds nothing from before.
        for (int k = 2; k <= Sloupcu_Tiketu; ++k)
            t.Cisla[k] = Tip{};
        if (tiket > pocet_tiketu || t.Cislo_Tiketu == 0)
            t.Cislo_Tiketu = tiket;
    }
    modTombi::Setrid_Tip(tip, 1, Tip::Pocet());
    t.Cisla[sloupec] = tip;
    pocet_tipu_aktivni = int16_t(pritomno + 1);
    tipy.Pocet_Tipu = int16_t(pritomno + 1);
    tipy.Pocet_Tiketu = int16_t(std::max(pocet_tiketu, tiket));
    return Vysledek::Uspech();
}

void Zrus_Tip(Zaznam_Tipu& tipy, int tiket, int sloupec) {
    const int pocet_tiketu = std::clamp<int>(tipy.Pocet_Tiketu, 0, Max_Tiketu);
    if (tiket < 1 || tiket > pocet_tiketu || sloupec < 1 || sloupec > Sloupcu_Tiketu)
        return;
    tipy.Tikety[tiket].Cisla[sloupec] = Tip{};
    int cil = 0; // places filled so far, from the beginning
    for (int t = 1; t <= pocet_tiketu; ++t)
        for (int s = 1; s <= Sloupcu_Tiketu; ++s) {
            const Tip tip = tipy.Tikety[t].Cisla[s];
            tipy.Tikety[t].Cisla[s] = Tip{};
            if (tip[1] == 0)
                continue;
            const int t_cil = cil / Sloupcu_Tiketu + 1;
            tipy.Tikety[t_cil].Cisla[cil % Sloupcu_Tiketu + 1] = tip;
            ++cil;
        }
    const int novych_tiketu = (cil + Sloupcu_Tiketu - 1) / Sloupcu_Tiketu;
    for (int t = 2; t <= novych_tiketu; ++t)
        tipy.Tikety[t].Cislo_Tiketu = tipy.Tikety[t - 1].Cislo_Tiketu + 1;
    for (int t = novych_tiketu + 1; t <= pocet_tiketu; ++t)
        tipy.Tikety[t].Cislo_Tiketu = 0;
    tipy.Pocet_Tiketu = int16_t(novych_tiketu);
    tipy.Pocet_Tipu = int16_t(std::max(0, tipy.Pocet_Tipu - 1));
}

bool Cislo_Tiketu_Pouzito(const Zaznam_Tipu& tipy, int32_t cislo) {
    const int pocet_tiketu = std::clamp<int>(tipy.Pocet_Tiketu, 0, Max_Tiketu);
    for (int t = 1; t <= pocet_tiketu; ++t)
        if (tipy.Tikety[t].Cislo_Tiketu == cislo)
            return true;
    return false;
}

Vysledek Zmen_Cislo_Tiketu(Zaznam_Tipu& tipy, int32_t stare, int32_t nove) {
    if (Cislo_Tiketu_Pouzito(tipy, nove))
        return Vysledek::Chyba(u"Pozor, NOVÉ číslo tiketu bylo již jednou použito !"_qs);
    const int pocet_tiketu = std::clamp<int>(tipy.Pocet_Tiketu, 0, Max_Tiketu);
    for (int t = 1; t <= pocet_tiketu; ++t)
        if (tipy.Tikety[t].Cislo_Tiketu == stare)
            tipy.Tikety[t].Cislo_Tiketu = nove;
    return Vysledek::Uspech();
}
