#include "data/Operace_Tipu.h"

#include "core/Tip.h"
#include "data/Soubory.h"

#include <algorithm>
#include <memory>

namespace {

const QString Text_Pocet_Cisel = u"Nesouhlasí počet čísel v importovaném souboru tipu TXT."_qs;
const QString Text_Chyba_Importu = u"Chyba při importu v importovaném souboru tipu TXT."_qs;

bool Je_Prazdny(const Tip& tip) {
    return std::all_of(tip.begin(), tip.end(), [](uint8_t c) { return c == 0; });
}

int Tiketu(const Zaznam_Tipu& z) {
    return std::clamp<int>(z.Pocet_Tiketu, 0, Max_Tiketu);
}

} // namespace

Vysledek Pripoj_Soubor_Tipu(Stav_Tipu& stav, const QString& cesta, const Prubeh& prubeh) {
    if (!cesta.isEmpty()) {
        const QString jmeno = Jmeno_Bez_Adresare(cesta);
        const Nacteny_Soubor soubor = Nacti_Soubor(cesta, Nejvic_Souboru_Tipu);
        if (!soubor.Ok())
            return Vysledek::Chyba(soubor.Zprava(jmeno));
        stav.Soubor_Tipu_Pripojeny = Cti_Zaznam_Tipu(soubor.Data);
        QString zprava;
        if (Je_Stary_Format(jmeno, stav.Soubor_Tipu_Pripojeny.Pocet_Tipu, &zprava))
            return Vysledek::Chyba(zprava);
    }
    Zaznam_Tipu& cil = stav.Soubor_Tipu;
    const Zaznam_Tipu& zdroj = stav.Soubor_Tipu_Pripojeny;
    // The new tips go right after the last tip present: a header that counts otherwise would
    // leave a gap or write over tips.
    int n = Pocet_Tipu_V_Souboru(cil);
    if (n >= Max_Tiketu * Sloupcu_Tiketu)
        return Vysledek::Chyba(Text_Max_Tipu_Pripojeni);
    int t = n / Sloupcu_Tiketu + 1;
    int c = n % Sloupcu_Tiketu;
    cil.Tikety[t].Cislo_Tiketu = t;

    Vysledek vysledek;
    Sledovani_Prubehu sledovani(prubeh, Tiketu(zdroj));
    bool konec = false;
    for (int i = 1; i <= Tiketu(zdroj) && !konec; ++i) {
        sledovani.Krok(i);
        for (int j = 1; j <= Sloupcu_Tiketu && !konec; ++j) {
            if (Je_Prazdny(zdroj.Tikety[i].Cisla[j])) {
                konec = true;
                break;
            }
            ++c;
            ++n;
            cil.Tikety[t].Cisla[c] = zdroj.Tikety[i].Cisla[j];
            if (c < Sloupcu_Tiketu)
                continue;
            c = 0;
            const bool dalsi = j < Sloupcu_Tiketu ? !Je_Prazdny(zdroj.Tikety[i].Cisla[j + 1])
                                                  : i < Tiketu(zdroj) && !Je_Prazdny(zdroj.Tikety[i + 1].Cisla[1]);
            if (!dalsi) {
                konec = true;
            } else if (++t > Max_Tiketu) {
                --t;
                vysledek = Vysledek::Chyba(Text_Max_Tiketu_Pripojeni);
                konec = true;
            } else {
                cil.Tikety[t].Cislo_Tiketu = t;
            }
        }
    }
    cil.Pocet_Tiketu = int16_t(t);
    cil.Pocet_Tipu = int16_t(n);
    stav.Pocet_Tipu_Aktivni = int16_t(n);
    stav.Soubor_Tipu_Pripojeny = cil;
    return vysledek;
}

bool Setridit_Soubor_Tipu(Zaznam_Tipu& soubor, const Prubeh& prubeh) {
    bool zmena = false;
    Sledovani_Prubehu sledovani(prubeh, Tiketu(soubor));
    for (int t = 1; t <= Tiketu(soubor); ++t) {
        sledovani.Krok(t);
        for (Tip& tip : soubor.Tikety[t].Cisla) {
            if (Je_Prazdny(tip))
                continue;
            for (int i = 1; i <= 5; ++i)
                for (int j = i + 1; j <= 6; ++j)
                    if (tip[i] > tip[j]) {
                        std::swap(tip[i], tip[j]);
                        zmena = true;
                    }
        }
    }
    return zmena;
}

QByteArray Export_Tipu(const Stav_Tipu& stav, const Prubeh& prubeh) {
    const Zaznam_Tipu& z = stav.Soubor_Tipu;
    QByteArray text;
    bool tip_je = false;
    Sledovani_Prubehu sledovani(prubeh, Tiketu(z));
    for (int t = 1; t <= Tiketu(z); ++t) {
        sledovani.Krok(t);
        for (const Tip& tip : z.Tikety[t].Cisla) {
            // Every tip the store holds goes out: a header that counts fewer must not drop tips.
            if (tip[1] != 0) {
                tip_je = true;
                for (int i = 1; i <= 6; ++i) {
                    text += QByteArray::number(tip[i]);
                    if (i < 6)
                        text += '\t';
                }
            }
            text += "\r\n";
        }
    }
    return tip_je ? text : QByteArray();
}

QByteArray Text_Importu(const QByteArray& soubor) {
    return Radky_Bez_Poznamek(soubor, true);
}

Vysledek Import_Tipu(const QByteArray& text, Stav_Tipu& stav) {
    // The walk fills a store of its own: a text that fails leaves the user's tips as they were.
    auto novy = std::make_unique<Zaznam_Tipu>();
    novy->Pocet_Tiketu = 1;
    novy->Tikety[1].Cislo_Tiketu = 1;
    int cisel = 0, sloupec = 1, misto = 0;
    int token = -1; // -1: no digit yet
    const auto ukonci_cislo = [&]() -> bool {
        ++misto;
        ++cisel;
        if (misto > 6) {
            ++sloupec;
            misto = 1;
        }
        if (sloupec > Sloupcu_Tiketu) {
            if (novy->Pocet_Tiketu == Max_Tiketu)
                return false;
            ++novy->Pocet_Tiketu;
            novy->Tikety[novy->Pocet_Tiketu].Cislo_Tiketu = novy->Pocet_Tiketu;
            sloupec = 1;
        }
        novy->Tikety[novy->Pocet_Tiketu].Cisla[sloupec][misto] = uint8_t(token);
        token = -1;
        return true;
    };
    for (const char znak : text) {
        if (znak >= '0' && znak <= '9') {
            token = (token < 0 ? 0 : token * 10) + (znak - '0');
            if (token > 255)
                return Vysledek::Chyba(Text_Chyba_Importu);
        } else if (token >= 0 && !ukonci_cislo()) {
            return Vysledek::Chyba(Text_Chyba_Importu);
        }
    }
    if (token >= 0 && !ukonci_cislo())
        return Vysledek::Chyba(Text_Chyba_Importu);
    if (cisel % 6 != 0)
        return Vysledek::Chyba(Text_Pocet_Cisel);
    if (cisel == 0)
        return Vysledek::Chyba(u"V importovaném souboru tipu TXT není žádné číslo."_qs);
    // A tip outside 1..49 or with a repeated number would be evaluated into wins it cannot have.
    for (int i = 0; i < cisel / 6; ++i)
        if (Maska_Cisteho_Tipu(novy->Tikety[i / 10 + 1].Cisla[i % 10 + 1]) == 0)
            return Vysledek::Chyba(
                u"Tip č. %1 v importovaném souboru tipu TXT má číslo mimo 1 až 49 nebo dvakrát stejné číslo."_qs.arg(
                    i + 1));
    stav.Soubor_Tipu = *novy;
    // The counters count tips, so the list and the stake see the tips the text held.
    stav.Soubor_Tipu.Pocet_Tipu = int16_t(cisel / 6);
    stav.Pocet_Tipu_Aktivni = int16_t(cisel / 6);
    stav.Je_Soubor_Tipu = true;
    return Vysledek::Uspech();
}
