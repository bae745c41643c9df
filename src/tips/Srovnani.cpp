#include "tips/Srovnani.h"

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

QString Veta(double penize, const Rozlozeni& nahoda) {
    if (penize > nahoda.Devadesat)
        return QStringLiteral("Soubor vyhrál víc než 95 % náhodných souborů: filtry tu pomohly.");
    if (penize < nahoda.Pet)
        return QStringLiteral("Soubor vyhrál méně než 95 % náhodných souborů: filtry tu uškodily.");
    return QStringLiteral("Soubor dopadl jako náhodné soubory: od náhody se neliší.");
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
    // With no prizes set the verdict weighs the number of wins instead of the money.
    const bool podle_penez = std::any_of(ceny.begin(), ceny.end(), [](const Ceny_Tahu& c) {
        return std::any_of(c.begin(), c.end(), [](double cena) { return cena != 0; });
    });
    if (podle_penez) {
        s.Veta = Veta(s.Penize_Souboru, s.Penize_Nahody);
    } else {
        std::vector<double> pocty(std::size_t(s.Pocet_Souboru), 0.0);
        for (std::size_t t = 1; t < 6; ++t)
            for (std::size_t i = 0; i < pocty.size(); ++i)
                pocty[i] += vyhry[t][i];
        const double soubor = double(std::accumulate(s.Vyhry_Souboru.begin(), s.Vyhry_Souboru.end(), uint64_t(0)));
        s.Veta = Veta(soubor, Rozloz(pocty));
    }
    if (s.Pocet_Souboru == 0)
        s.Veta.clear();
    return s;
}
