#include "tips/Srovnani.h"

#include "core/Vb.h"
#include "generator/Generator.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>

namespace {

double Penize(const Vysledek_Vyhodnoceni& v, const std::array<Ceny_Tahu, 2>& ceny) {
    return Soucet_Tahu(v.Vyhry_1Tah, ceny[0]) + Soucet_Tahu(v.Vyhry_2Tah, ceny[1]);
}

// Mean and the 5th and 95th percentile, the nearest rank of the sorted values.
Rozlozeni Rozloz(std::vector<double> hodnoty) {
    Rozlozeni r;
    if (hodnoty.empty())
        return r;
    std::sort(hodnoty.begin(), hodnoty.end());
    const auto poradi = [&](double p) {
        const auto i = std::size_t(std::ceil(p * double(hodnoty.size())));
        return hodnoty[std::clamp<std::size_t>(i, 1, hodnoty.size()) - 1];
    };
    r.Prumer = std::accumulate(hodnoty.begin(), hodnoty.end(), 0.0) / double(hodnoty.size());
    r.Pet = poradi(0.05);
    r.Devadesat = poradi(0.95);
    return r;
}

// Money in crowns; a count whole for the file and with one decimal for the mean of the random files.
QString Cislo(double x, bool penize, bool prumer) {
    if (penize)
        return Vb::Format(x, u"### ### ### ##0").trimmed() + u" Kč"_qs;
    return Vb::Format(x, prumer ? u"### ### ##0.0" : u"### ### ##0").trimmed();
}

QStringList Veta(const Vysledek_Srovnani& s) {
    const QString co = s.Podle_Penez ? u"Výhra souboru"_qs : u"Počet výher souboru"_qs;
    return {
        co + u": "_qs + Cislo(s.Hodnota_Souboru, s.Podle_Penez, false) + u", průměr náhodných souborů: "_qs +
            Cislo(s.Prumer_Nahody, s.Podle_Penez, true) + u"."_qs,
        u"Soubor dopadl lépe než %1 % náhodných souborů (pořadí %2 z %3)."_qs.arg(Vb::Format(s.Percentil(), u"##0"))
            .arg(s.Poradi())
            .arg(s.Pocet_Souboru + 1),
        u"V losování má každý tip stejnou naději na výhru, s filtry i bez nich: pořadí souboru je dílem náhody "
        u"v těchto tazích, ne důkazem, že filtry pomáhají. Je-li soubor sestaven z menšího počtu čísel, kolísá víc "
        u"než náhodné soubory, a tak bývá častěji nahoře i dole."_qs,
        u"Pozor: čísla souboru mohla být vybrána podle týchž tahů, na kterých se teď zkouší; pak srovnání "
        u"vychází v jeho prospěch."_qs,
        u"Minulé tahy nemění šanci příštího tahu."_qs,
    };
}

} // namespace

Vysledek_Srovnani Srovnej_S_Nahodou(const Zaznam_Tipu& tipy, int pocet_tipu, const Rozsah_Tahu& rozsah,
                                    const std::array<Ceny_Tahu, 2>& ceny, int k, uint64_t seminko,
                                    const Prubeh& prubeh) {
    Vysledek_Srovnani s;
    s.Seminko = seminko;
    Vysledek_Vyhodnoceni v;
    Vyh_Soubor_V_Tazich(tipy, rozsah, v, {}, Bez_Zaznamu);
    for (std::size_t t = 1; t < 6; ++t)
        s.Vyhry_Souboru[t] = v.Vyhry_1Tah[t] + v.Vyhry_2Tah[t];
    s.Penize_Souboru = Penize(v, ceny);

    std::array<std::vector<double>, 6> vyhry;
    std::vector<double> penize;
    Sledovani_Prubehu sledovani(prubeh, int64_t(k) + 1);
    auto nahodne = std::make_unique<Zaznam_Tipu>();
    for (int i = 0; i < k; ++i) {
        if (!sledovani.Krok(i + 1)) {
            s.Zastaveno = true;
            break;
        }
        Zadani_Generatoru z;
        z.Pocet_Tipu = pocet_tipu;
        z.Pocet_Tiketu = Tiketu_Pro_Tipy(pocet_tipu);
        z.Seminko = seminko + uint64_t(i) * 0x9E3779B97F4A7C15ULL;
        *nahodne = Zaznam_Tipu();
        Generuj(z, *nahodne);
        v.Vycisti();
        Vyh_Soubor_V_Tazich(*nahodne, rozsah, v, {}, Bez_Zaznamu);
        for (std::size_t t = 1; t < 6; ++t)
            vyhry[t].push_back(double(v.Vyhry_1Tah[t] + v.Vyhry_2Tah[t]));
        penize.push_back(Penize(v, ceny));
        ++s.Pocet_Souboru;
    }
    for (std::size_t t = 1; t < 6; ++t)
        s.Vyhry_Nahody[t] = Rozloz(vyhry[t]);
    s.Penize_Nahody = Rozloz(penize);
    // With no prizes set the file is ranked by the number of its wins instead of the money.
    s.Podle_Penez = std::any_of(ceny.begin(), ceny.end(), [](const Ceny_Tahu& c) {
        return std::any_of(c.begin(), c.end(), [](double cena) { return cena != 0; });
    });
    std::vector<double> hodnoty = penize;
    s.Hodnota_Souboru = s.Penize_Souboru;
    if (!s.Podle_Penez) {
        hodnoty.assign(std::size_t(s.Pocet_Souboru), 0.0);
        for (std::size_t t = 1; t < 6; ++t)
            for (std::size_t i = 0; i < hodnoty.size(); ++i)
                hodnoty[i] += vyhry[t][i];
        s.Hodnota_Souboru = double(std::accumulate(s.Vyhry_Souboru.begin(), s.Vyhry_Souboru.end(), uint64_t(0)));
    }
    for (const double h : hodnoty) {
        s.Lepsich += h > s.Hodnota_Souboru ? 1 : 0;
        s.Stejnych += h == s.Hodnota_Souboru ? 1 : 0;
        s.Horsich += h < s.Hodnota_Souboru ? 1 : 0;
    }
    s.Prumer_Nahody = Rozloz(hodnoty).Prumer;
    if (s.Pocet_Souboru > 0)
        s.Veta = Veta(s);
    return s;
}
