#include "generator/Generator.h"

#include "core/Random.h"
#include "core/Vb.h"
#include "core/modTombi_Zaklad.h"
#include "core/pTikety.h"
#include "generator/modOkruh_Cisel.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

uint64_t Splitmix(uint64_t z) {
    z += 0x9E3779B97F4A7C15ull;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

uint64_t Seminko_Z_Hodin() {
    static QElapsedTimer hodiny;
    if (!hodiny.isValid())
        hodiny.start();
    return Splitmix(uint64_t(QDateTime::currentMSecsSinceEpoch()) ^ (uint64_t(hodiny.nsecsElapsed()) << 20));
}

// Draws between two looks at the stop flag: well under a millisecond of work.
constexpr int64_t Kroku_Mezi_Dotazy = 2048;
// Omezeni_Ceny walks the whole archive; it weighs as many draws.
constexpr int64_t Vaha_Ceny = 64;

// Who turned a candidate away, for the word of a run that gets stuck. The range and the pool only
// narrow the draw; what they leave is checked before the run.
enum Filtr { Pod_Sebou = 11, Pocet_Filtru = 12 };

const QString& Jmeno_Filtru(int filtr) {
    static const std::array<QString, Pocet_Filtru> jmena{
        u"sloupec, řádek, křížem"_qs, u"max. třetích cen"_qs,          u"vynechat tahy od"_qs,
        u"čísel v dekádě"_qs,         u"neopakovat čísla v tiketu"_qs, u"sudá / lichá / rozptyl"_qs,
        u"dvojic vedle sebe"_qs,      u"trojic vedle sebe"_qs,         u"suma od - do"_qs,
        u"rozsah čísel min - max"_qs, u"průnik s předchozím tipem"_qs, u"tři čísla pod sebou"_qs};
    return jmena[std::size_t(filtr)];
}

QString Text_Uvaznuti(const std::array<int64_t, Pocet_Filtru>& zamitnuto) {
    int nejvic = Pod_Sebou;
    int64_t celkem = 0;
    for (int f = 0; f < Pocet_Filtru; ++f) {
        celkem += zamitnuto[std::size_t(f)];
        if (zamitnuto[std::size_t(f)] > zamitnuto[std::size_t(nejvic)])
            nejvic = f;
    }
    const int procent = celkem > 0 ? int(100 * zamitnuto[std::size_t(nejvic)] / celkem) : 0;
    return u"Generování nemůže pokračovat: dlouho neprošel žádný tip. "
           u"Nejvíc kandidátů vyřazuje omezení \"%1\" (%2 %). Upravte omezení."_qs.arg(Jmeno_Filtru(nejvic))
               .arg(procent);
}

// Bounds that the window swaps on leaving its boxes: the engine reads them the same way.
Zadani_Generatoru Srovnane_Meze(Zadani_Generatoru z) {
    if (z.Suma[0] > z.Suma[1])
        std::swap(z.Suma[0], z.Suma[1]);
    if (z.Rozsah[0] > z.Rozsah[1])
        std::swap(z.Rozsah[0], z.Rozsah[1]);
    return z;
}

QString Cislo(double x) {
    return QString::number(x, 'g', 10);
}

void Oznac_Pouzita(std::array<uint8_t, 50>& pouzita, const Tiket& tiket, int pocet) {
    pouzita.fill(0);
    for (int s = 1; s <= pocet; ++s)
        for (int i = 1; i <= 6; ++i) {
            const uint8_t x = tiket.Cisla[s][i];
            if (x >= 1 && x <= 49)
                pouzita[x] = x;
        }
}

} // namespace

std::vector<int> Nacti_Tutovky(const std::array<QString, 3>& boxy) {
    std::vector<int> tutovky;
    for (const QString& box : boxy) {
        const double x = Vb::Val(box);
        if (x >= 1 && x <= 49)
            tutovky.push_back(int(x));
    }
    return tutovky;
}

int Tiketu_Pro_Tipy(int tipu) {
    return tipu / 10 + int(tipu % 10 != 0);
}

double Pocatecni_Max_Tretich_Cen(int tipu, int auto_oprava) {
    return auto_oprava == 0 ? std::floor(tipu / 49.0 + 0.5) : 0;
}

QString Kontrola_Zadani(const Zadani_Generatoru& zadani) {
    const Zadani_Generatoru z = Srovnane_Meze(zadani);
    const auto& c = z.Check1;
    if (z.Pocet_Tipu < 1 || z.Pocet_Tipu > Max_Tiketu * Sloupcu_Tiketu)
        return u"Počet tipů musí být od 1 do %1."_qs.arg(Max_Tiketu * Sloupcu_Tiketu);
    if (z.Pocet_Tiketu < 1 || z.Pocet_Tiketu > Max_Tiketu)
        return u"Počet tiketů musí být od 1 do %1."_qs.arg(Max_Tiketu);
    const int tutovek = std::min<int>(int(z.Tutovky.size()), 3);
    uint64_t tutovky = 0;
    int suma_tutovek = 0, sudych_tutovek = 0;
    for (int i = 0; i < tutovek; ++i) {
        const int t = z.Tutovky[std::size_t(i)];
        if (t < 1 || t > 49)
            return u"Tutovka musí být číslo od 1 do 49."_qs;
        if ((tutovky >> t) & 1)
            return u"Tutovka %1 je zadána dvakrát: tip nesmí obsahovat stejné číslo dvakrát."_qs.arg(t);
        tutovky |= uint64_t(1) << t;
        suma_tutovek += t;
        sudych_tutovek += int(t % 2 == 0);
    }
    const int potreba = 6 - tutovek;

    // The numbers a drawn position can take.
    uint64_t okruh = 0;
    for (int x : z.Okruh_Cisel)
        if (x >= 1 && x <= 49)
            okruh |= uint64_t(1) << x;
    std::vector<int> dovolena;
    for (int x = 1; x <= 49; ++x) {
        if ((tutovky >> x) & 1)
            continue;
        if (c[9] && (x < z.Rozsah[0] || x > z.Rozsah[1]))
            continue;
        if (z.Vyber == Vyber_Okruhu::Pouzit_Vybrana && !((okruh >> x) & 1))
            continue;
        if (z.Vyber == Vyber_Okruhu::Vynechat_Vybrana && ((okruh >> x) & 1))
            continue;
        dovolena.push_back(x);
    }
    const int pocet = int(dovolena.size());
    if (pocet < potreba) {
        if (c[9] && z.Rozsah[1] - z.Rozsah[0] + 1 < potreba)
            return u"Rozsah čísel %1 - %2 je užší než %3 čísel, která tip potřebuje."_qs
                .arg(Cislo(z.Rozsah[0]), Cislo(z.Rozsah[1]))
                .arg(potreba);
        return u"Omezení nechávají k losování jen %1 čísel, tip jich potřebuje %2."_qs.arg(pocet).arg(potreba);
    }
    if (c[3]) {
        int vejde = 0;
        for (int d = 0; d < 5; ++d) {
            const auto v_dekade =
                std::count_if(dovolena.begin(), dovolena.end(), [d](int x) { return (x - 1) / 10 == d; });
            vejde += int(std::clamp<double>(double(v_dekade), 0, std::max(0.0, std::floor(z.Limit_Dekada))));
        }
        if (vejde < potreba)
            return u"S omezením \"čísel v dekádě\" %1 nelze z dovolených čísel sestavit tip."_qs.arg(
                Cislo(z.Limit_Dekada));
    }
    if (c[5]) {
        const int sudych = int(std::count_if(dovolena.begin(), dovolena.end(), [](int x) { return x % 2 == 0; }));
        const int lichych = pocet - sudych;
        bool lze = false;
        for (int d = std::max(0, potreba - lichych); d <= std::min(potreba, sudych); ++d) {
            const int e = sudych_tutovek + d, o = 6 - e;
            lze = lze || !(e < z.Sudych - z.Rozptyl || e > z.Sudych + z.Rozptyl || o > z.Lichych + z.Rozptyl ||
                           o < z.Lichych - z.Rozptyl);
        }
        if (!lze)
            return u"Poměr sudých a lichých %1 / %2 s rozptylem %3 nedává tip o šesti číslech."_qs.arg(
                Cislo(z.Sudych), Cislo(z.Lichych), Cislo(z.Rozptyl));
    }
    if (c[8]) {
        int nejmene = suma_tutovek, nejvic = suma_tutovek;
        for (int i = 0; i < potreba; ++i) {
            nejmene += dovolena[std::size_t(i)];
            nejvic += dovolena[std::size_t(pocet - 1 - i)];
        }
        // Both bounds are exclusive.
        const double od = std::max<double>(nejmene, std::floor(z.Suma[0]) + 1);
        const double do_ = std::min<double>(nejvic, std::ceil(z.Suma[1]) - 1);
        if (od > do_)
            return u"Součet čísel tipu může být jen od %1 do %2; suma od %3 do %4 (bez krajních hodnot) nepropustí žádný tip."_qs
                .arg(nejmene)
                .arg(nejvic)
                .arg(Cislo(z.Suma[0]), Cislo(z.Suma[1]));
    }
    if (c[4]) {
        // Columns 1 to 8 of a ticket may not share a drawn number.
        const int sloupcu = std::min(8, z.Pocet_Tipu < Sloupcu_Tiketu ? z.Pocet_Tipu : Sloupcu_Tiketu);
        if (sloupcu * potreba > pocet)
            return u"\"Neopakovat čísla v tiketu\" potřebuje %1 různých čísel, k losování je jich jen %2."_qs
                .arg(sloupcu * potreba)
                .arg(pocet);
    }
    // Grid columns: the OR of their counts stays within the limit, so a limit of 1 holds five
    // numbers at most (one a column) and 2 holds six (two in each of three columns).
    const int ve_sloupcich = z.Omezeni[0] >= 2 ? 6 : z.Omezeni[0] >= 1 ? 5 : 0;
    if (c[0] && (potreba > ve_sloupcich || z.Omezeni[1] < 1))
        return u"Omezení \"sloupec, řádek, křížem\" %1 / %2 nepropustí žádný tip."_qs.arg(Cislo(z.Omezeni[0]),
                                                                                          Cislo(z.Omezeni[1]));
    if (c[10] && z.Prunik > potreba)
        return u"Průnik s předchozím tipem může být nejvýš %1."_qs.arg(potreba);
    return {};
}

float Seminko_Tiketu(uint64_t seminko_behu, int tiket, uint32_t obnoveni) {
    const uint64_t h = Splitmix(seminko_behu ^ Splitmix((uint64_t(uint32_t(tiket)) << 32) | obnoveni));
    return float(h >> 40) * (1.0f / 16777216.0f);
}

Vysledek_Generatoru Generuj(const Zadani_Generatoru& zadani, Zaznam_Tipu& soubor,
                            const Zpetna_Volani_Generatoru& volani, Zdroj_Nahody* zdroj) {
    Vysledek_Generatoru v;
    const Zadani_Generatoru z = Srovnane_Meze(zadani);
    v.Seminko = z.Seminko ? *z.Seminko : Seminko_Z_Hodin();
    v.Max_Tretich_Cen = z.Max_Tretich_Cen;

    // The run's own source starts from the seed, so no two seeds share the first tips.
    Zdroj_Seminka vlastni_zdroj(v.Seminko);
    Random nahoda(zdroj ? *zdroj : vlastni_zdroj);

    const auto& c = z.Check1;
    const int pocet_tutovek = std::min<int>(int(z.Tutovky.size()), 3);
    static const std::vector<Tah> zadne_tahy(1);
    const std::vector<Tah>& tahy_1 = z.Tahy_1 ? *z.Tahy_1 : zadne_tahy;
    const std::vector<Tah>& tahy_2 = z.Tahy_2 ? *z.Tahy_2 : zadne_tahy;

    uint64_t okruh = 0;
    for (int x : z.Okruh_Cisel)
        if (x >= 1 && x <= 49)
            okruh |= uint64_t(1) << x;

    int pocet = 0;
    int prunik = 0;
    int pocet_tipu_16 = 0;
    uint32_t zamitnuti = 0;
    uint32_t obnoveni = 0;
    int tipu_pred_tiketem = 0;
    int pokusy = 0;
    int procento = 0;
    int64_t kroky = 0, dalsi_dotaz = Kroku_Mezi_Dotazy;
    int64_t kroky_pri_tipu = 0;
    bool uvaznuti_ohlaseno = false;
    bool treti_ceny_ohlaseny = false;
    std::array<int64_t, Pocet_Filtru> zamitnuto{};
    Tip tip;

    auto chyba = [&] {
        v.Konec = Konec_Behu::Chyba;
        v.Chyba = Text_Chyba_Generovani;
    };
    // The stop flag; the callback also lets the window's events run. A long stretch without a tip
    // is told once, and the caller may end the run there.
    auto zastavit = [&] {
        if (kroky < dalsi_dotaz)
            return false;
        if (!uvaznuti_ohlaseno && kroky - kroky_pri_tipu > z.Kroku_Bez_Tipu) {
            uvaznuti_ohlaseno = true;
            const QString zprava = Text_Uvaznuti(zamitnuto);
            if (volani.Uvaznuti && !volani.Uvaznuti(zprava)) {
                v.Konec = Konec_Behu::Nelze_Dokoncit;
                v.Chyba = zprava;
                return true;
            }
        }
        dalsi_dotaz = kroky + Kroku_Mezi_Dotazy;
        return volani.Procenta && !volani.Procenta(procento);
    };

    if (const QString chyba = Kontrola_Zadani(z); !chyba.isEmpty()) {
        v.Konec = Konec_Behu::Chyba;
        v.Chyba = chyba;
        return v;
    }
    if (c[10]) {
        // Val of the box goes into a byte: what doesn't fit is the run's fault.
        if (!(z.Prunik > -0.5 && z.Prunik < 255.5)) {
            chyba();
            return v;
        }
        prunik = int(std::nearbyint(z.Prunik));
    }
    for (int i = 1; i <= pocet_tutovek; ++i)
        tip[i] = uint8_t(z.Tutovky[std::size_t(i - 1)]);

beh:
    soubor = Zaznam_Tipu{};
    if (z.Pocet_Tiketu > std::numeric_limits<int16_t>::max() || z.Pocet_Tiketu < std::numeric_limits<int16_t>::min() ||
        z.Pocet_Tipu > std::numeric_limits<int16_t>::max() || z.Pocet_Tipu < std::numeric_limits<int16_t>::min()) {
        chyba();
        goto konec;
    }
    soubor.Pocet_Tiketu = int16_t(z.Pocet_Tiketu);
    soubor.Pocet_Tipu = int16_t(z.Pocet_Tipu);
    pocet_tipu_16 = soubor.Pocet_Tipu;
    nahoda.Dolni_Mez = 1;
    nahoda.Horni_Mez = 49;
    pocet = 0;
    tipu_pred_tiketem = 0;
    procento = 0;

    for (int tiket = 1; tiket <= soubor.Pocet_Tiketu; ++tiket) {
        if (tiket > Max_Tiketu) {
            chyba();
            goto konec;
        }
        soubor.Tikety[tiket].Cislo_Tiketu = tiket;
    novy_tiket:
        // The columns of an attempt given up are not tips: the count goes back to where the ticket
        // began, which is what Tipu_Pred_Tiketem is kept for, so that Pocet_Tipu_Hotovo tells the truth.
        pocet = tipu_pred_tiketem;
        pokusy = 0;
        // A ticket given up leaves none of its columns: they are no tips, and "neopakovat" would
        // not hold between them and the new ones.
        for (int k = 1; k <= Sloupcu_Tiketu; ++k)
            soubor.Tikety[tiket].Cisla[k] = Tip{};
        v.Pouzita_Cisla.fill(0);
        nahoda.Shuffle(double(Seminko_Tiketu(v.Seminko, tiket, obnoveni++)));
        const int sloupcu =
            int(std::floor(double(z.Pocet_Tipu) / (tiket * 10))) == 0 ? z.Pocet_Tipu - (tiket - 1) * 10 : 10;
        Tiket& t = soubor.Tikety[tiket];

        for (int sloupec = 1; sloupec <= sloupcu; ++sloupec) {
            if (volani.Pozice)
                volani.Pozice(tiket, sloupec);
            if (pocet_tipu_16 > 0) {
                const int p = int((100 * int64_t(sloupec + pocet)) / pocet_tipu_16);
                if (p > procento) {
                    procento = p;
                    dalsi_dotaz = kroky + Kroku_Mezi_Dotazy;
                    if (volani.Procenta && !volani.Procenta(p)) {
                        v.Konec = Konec_Behu::Zastaveno;
                        goto konec;
                    }
                }
            }
        novy_pokus:
            // The numbers of this ticket so far; after a restart the cells of the failed attempt count too.
            uint64_t pouzita = 0;
            for (int s = 1; s <= sloupec; ++s)
                pouzita |= Maska_Tipu(t.Cisla[s]);
            int dekady[5] = {};
            for (int i = pocet_tutovek + 1; i <= 6; ++i)
                tip[i] = 0;

            for (int i = pocet_tutovek + 1; i <= 6; ++i) {
            tah:
                const int x = nahoda.RandomInt();
                tip[i] = uint8_t(x);
                for (int j = 1; j < i; ++j)
                    if (tip[i] == tip[j])
                        tip[i] = 0;
                if (tip[i] == 0)
                    goto tah;
                ++kroky;
                if (zastavit()) {
                    if (v.Konec != Konec_Behu::Nelze_Dokoncit)
                        v.Konec = Konec_Behu::Zastaveno;
                    goto konec;
                }
                if (c[9] && (x < z.Rozsah[0] || x > z.Rozsah[1]))
                    goto tah;
                if (z.Vyber == Vyber_Okruhu::Pouzit_Vybrana && !((okruh >> x) & 1))
                    goto tah;
                if (z.Vyber == Vyber_Okruhu::Vynechat_Vybrana && ((okruh >> x) & 1))
                    goto tah;
                // A count stays even when a later test sends the number back to the draw.
                if (c[3] && ++dekady[(x - 1) / 10] > z.Limit_Dekada) {
                    ++zamitnuto[3];
                    goto novy_pokus;
                }
                if (c[4] && sloupec < 9 && ((pouzita >> x) & 1)) {
                    ++zamitnuto[4];
                    if (++pokusy > z.Pocet_Pruchodu)
                        goto novy_tiket;
                    goto tah;
                }
            }

            {
                int filtr = -1; // who rejected the candidate
                if (pTikety::Cisla_Pod_Sebou(3, 0, tip))
                    filtr = Pod_Sebou;
                else if (c[0] && modOkruh_Cisel::Omezeni_Rad_Slo_Kriz(tip, pocet_tutovek, z.Omezeni[0], z.Omezeni[1],
                                                                      z.Omezeni[2]))
                    filtr = 0;
                if (filtr < 0 && c[1]) {
                    if (z.Auto_Oprava == 0)
                        ++zamitnuti;
                    if (modOkruh_Cisel::Omezeni_Treti_Ceny(soubor, tip, tiket, v.Max_Tretich_Cen)) {
                        ++zamitnuto[1];
                        ++zamitnuti;
                        if (int16_t(zamitnuti) == z.Pocet_Pruchodu && z.Auto_Oprava == 1) {
                            v.Max_Tretich_Cen += 1;
                            zamitnuti = 0;
                            if (z.Opakovat_Volba == 0)
                                goto beh;
                            if (z.Opakovat_Volba == 1)
                                goto novy_tiket;
                        } else if (int16_t(zamitnuti) > 5000 && !treti_ceny_ohlaseny && volani.Zprava) {
                            // Once a run: the advice does not change by repeating it.
                            treti_ceny_ohlaseny = true;
                            volani.Zprava(Text_Treti_Ceny);
                        }
                        goto novy_pokus;
                    }
                }
                if (filtr < 0 && c[5] && modOkruh_Cisel::Omezeni_Sud_Lich(tip, z.Sudych, z.Lichych, z.Rozptyl))
                    filtr = 5;
                if (filtr >= 0) {
                    ++zamitnuto[std::size_t(filtr)];
                    // The long form: in column 10 the fourth one gives the ticket up.
                    if (c[4] && sloupec == 10 && ++pokusy == 4)
                        goto novy_tiket;
                    if (c[4])
                        Oznac_Pouzita(v.Pouzita_Cisla, t, sloupec - 1);
                    goto novy_pokus;
                }
                if (c[6] && modOkruh_Cisel::Omezeni_Dvojice(tip, z.Max_Dvojic))
                    filtr = 6;
                else if (c[7] && modOkruh_Cisel::Omezeni_Trojice(tip, z.Max_Trojic))
                    filtr = 7;
                else if (c[2]) {
                    kroky += Vaha_Ceny;
                    if (modOkruh_Cisel::Omezeni_Ceny(tip, tahy_1, z.Vynech_Tahy_1_Od, tahy_2, z.Vynech_Tahy_2_Od))
                        filtr = 2;
                }
                if (filtr >= 0) {
                    // The short form.
                    ++zamitnuto[std::size_t(filtr)];
                    if (c[4])
                        Oznac_Pouzita(v.Pouzita_Cisla, t, sloupec - 1);
                    goto novy_pokus;
                }
                if (c[8] && modOkruh_Cisel::Omezeni_Suma(tip, z.Suma[0], z.Suma[1])) {
                    ++zamitnuto[8];
                    goto novy_pokus;
                }
                if (c[10]) {
                    if (!modOkruh_Cisel::Prunik_V_Mezich(tiket, sloupec)) {
                        chyba();
                        goto konec;
                    }
                    if (!modOkruh_Cisel::Omezeni_Prunik(soubor, tip, pocet_tutovek, prunik, tiket, sloupec)) {
                        ++zamitnuto[10];
                        goto novy_pokus;
                    }
                }
            }

            // Tutovky stay in front as entered; the drawn part is sorted.
            modTombi::Setrid_Tip(tip, pocet_tutovek + 1, 6);
            ++pocet;
            kroky_pri_tipu = kroky;
            uvaznuti_ohlaseno = false;
            zamitnuto.fill(0);
            for (int i = 1; i <= 6; ++i)
                t.Cisla[sloupec][i] = pocet_tipu_16 < pocet ? 0 : tip[i];
        }
        tipu_pred_tiketem = pocet;
        if (volani.Hotovy_Tiket)
            volani.Hotovy_Tiket(pocet);
    }

konec:
    v.Pocet_Tipu_Hotovo = pocet;
    // The header tells the tips that stand, not the tips asked for; a run that ended early keeps
    // only the tickets that hold them.
    soubor.Pocet_Tipu = int16_t(pocet);
    if (v.Konec != Konec_Behu::Hotovo) {
        const int tiketu = Tiketu_Pro_Tipy(pocet);
        for (int t = tiketu + 1; t <= std::min<int>(soubor.Pocet_Tiketu, Max_Tiketu); ++t)
            soubor.Tikety[t] = Tiket{};
        soubor.Pocet_Tiketu = int16_t(tiketu);
    }
    return v;
}
