#include "generator/Generator.h"

#include "core/Random.h"
#include "core/Vb.h"
#include "core/modTombi_Zaklad.h"
#include "core/pTikety.h"
#include "generator/modOkruh_Cisel.h"

#include <QDateTime>
#include <QElapsedTimer>
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

float Seminko_Tiketu(uint64_t seminko_behu, int tiket, uint32_t obnoveni) {
    const uint64_t h = Splitmix(seminko_behu ^ Splitmix((uint64_t(uint32_t(tiket)) << 32) | obnoveni));
    return float(h >> 40) * (1.0f / 16777216.0f);
}

Vysledek_Generatoru Generuj(const Zadani_Generatoru& z, Zaznam_Tipu& soubor, const Zpetna_Volani_Generatoru& volani,
                            Zdroj_Nahody* zdroj) {
    Vysledek_Generatoru v;
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
    Tip tip;

    auto chyba = [&] {
        v.Konec = Konec_Behu::Chyba;
        v.Chyba = Text_Chyba_Generovani;
    };
    // The stop flag; the callback also lets the window's events run.
    auto zastavit = [&] {
        if (kroky < dalsi_dotaz)
            return false;
        dalsi_dotaz = kroky + Kroku_Mezi_Dotazy;
        return volani.Procenta && !volani.Procenta(procento);
    };

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
                if (c[3] && ++dekady[(x - 1) / 10] > z.Limit_Dekada)
                    goto novy_pokus;
                if (c[4] && sloupec < 9 && ((pouzita >> x) & 1)) {
                    if (++pokusy > z.Pocet_Pruchodu)
                        goto novy_tiket;
                    goto tah;
                }
            }

            {
                bool dlouhe = false;
                bool kratke = false;
                if (pTikety::Cisla_Pod_Sebou(3, 0, tip))
                    dlouhe = true;
                else if (c[0] && modOkruh_Cisel::Omezeni_Rad_Slo_Kriz(tip, pocet_tutovek, z.Omezeni[0], z.Omezeni[1],
                                                                      z.Omezeni[2]))
                    dlouhe = true;
                if (!dlouhe && c[1]) {
                    if (z.Auto_Oprava == 0)
                        ++zamitnuti;
                    if (modOkruh_Cisel::Omezeni_Treti_Ceny(soubor, tip, tiket, v.Max_Tretich_Cen)) {
                        ++zamitnuti;
                        if (int16_t(zamitnuti) == z.Pocet_Pruchodu && z.Auto_Oprava == 1) {
                            v.Max_Tretich_Cen += 1;
                            zamitnuti = 0;
                            if (z.Opakovat_Volba == 0)
                                goto beh;
                            if (z.Opakovat_Volba == 1)
                                goto novy_tiket;
                        } else if (int16_t(zamitnuti) > 5000 && volani.Zprava) {
                            volani.Zprava(Text_Treti_Ceny);
                        }
                        goto novy_pokus;
                    }
                }
                if (!dlouhe && c[5] && modOkruh_Cisel::Omezeni_Sud_Lich(tip, z.Sudych, z.Lichych, z.Rozptyl))
                    dlouhe = true;
                if (dlouhe) {
                    // The long form: in column 10 the fourth one gives the ticket up.
                    if (c[4] && sloupec == 10 && ++pokusy == 4)
                        goto novy_tiket;
                    if (c[4])
                        Oznac_Pouzita(v.Pouzita_Cisla, t, sloupec - 1);
                    goto novy_pokus;
                }
                if (c[6] && modOkruh_Cisel::Omezeni_Dvojice(tip, z.Max_Dvojic))
                    kratke = true;
                else if (c[7] && modOkruh_Cisel::Omezeni_Trojice(tip, z.Max_Trojic))
                    kratke = true;
                else if (c[2]) {
                    kroky += Vaha_Ceny;
                    kratke = modOkruh_Cisel::Omezeni_Ceny(tip, tahy_1, z.Vynech_Tahy_1_Od, tahy_2, z.Vynech_Tahy_2_Od);
                }
                if (kratke) {
                    if (c[4])
                        Oznac_Pouzita(v.Pouzita_Cisla, t, sloupec - 1);
                    goto novy_pokus;
                }
                if (c[8] && modOkruh_Cisel::Omezeni_Suma(tip, z.Suma[0], z.Suma[1]))
                    goto novy_pokus;
                if (c[10]) {
                    if (!modOkruh_Cisel::Prunik_V_Mezich(tiket, sloupec)) {
                        chyba();
                        goto konec;
                    }
                    if (!modOkruh_Cisel::Omezeni_Prunik(soubor, tip, pocet_tutovek, prunik, tiket, sloupec))
                        goto novy_pokus;
                }
            }

            // Tutovky stay in front as entered; the drawn part is sorted.
            modTombi::Setrid_Tip(tip, pocet_tutovek + 1, 6);
            ++pocet;
            for (int i = 1; i <= 6; ++i)
                t.Cisla[sloupec][i] = pocet_tipu_16 < pocet ? 0 : tip[i];
        }
        tipu_pred_tiketem = pocet;
        if (volani.Hotovy_Tiket)
            volani.Hotovy_Tiket(pocet);
    }

konec:
    v.Pocet_Tipu_Hotovo = pocet;
    return v;
}
