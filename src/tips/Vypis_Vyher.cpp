#include "tips/Vypis_Vyher.h"

#include "core/Vb.h"

#include <limits>

std::vector<Misto_Vyhry> Mista_Vyher(const Vysledek_Vyhodnoceni& vysledek) {
    std::vector<Misto_Vyhry> mista;
    mista.reserve(vysledek.Vyherni_Zaznamy.size());
    for (const Vyherni_Zaznam& z : vysledek.Vyherni_Zaznamy)
        for (int c = 1; c <= Sloupcu_Tiketu; ++c)
            if (z.Sloupce[c].Poradi > 0)
                mista.push_back({z.Cislo_Tiketu, c, z.Sloupce[c].Tah, z.Sloupce[c].Poradi});
    return mista;
}

QString Radek_Vyhry(const Misto_Vyhry& m) {
    return Vb::Format(m.Cislo_Tiketu, u" 000 000     ") + Vb::Format(m.Sloupec, u"##00        ") +
           QString::number(m.Tah) + u" / "_qs + QString::number(m.Poradi);
}

std::array<Ceny_Tahu, 2> Ceny_Dne(const std::array<Vb::Mena, 10>& ceny) {
    std::array<Ceny_Tahu, 2> tahy{};
    for (std::size_t i = 0; i < 5; ++i) {
        tahy[0][i] = ceny[i].Korun();
        tahy[1][i] = ceny[i + 5].Korun();
    }
    return tahy;
}

double Soucet_Tahu(const Vyhry& vyhry, const Ceny_Tahu& ceny) {
    double soucet = 0;
    for (std::size_t i = 0; i < 5; ++i)
        if (vyhry[i + 1] > 0)
            soucet += double(vyhry[i + 1]) * ceny[i];
    return soucet;
}

std::optional<int32_t> Soucet_Tahu_32(const Vyhry& vyhry, const Ceny_Tahu& ceny) {
    int64_t soucet = 0;
    for (std::size_t i = 0; i < 5; ++i) {
        if (vyhry[i + 1] == 0)
            continue;
        const double cast = double(vyhry[i + 1]) * double(Vb::Zaokrouhli(ceny[i]));
        if (cast > double(std::numeric_limits<int32_t>::max()) || cast < double(std::numeric_limits<int32_t>::min()))
            return std::nullopt;
        soucet += int64_t(cast);
        if (soucet > std::numeric_limits<int32_t>::max() || soucet < std::numeric_limits<int32_t>::min())
            return std::nullopt;
    }
    return int32_t(soucet);
}

std::optional<double> Zisk_Procent(double vyhra, double vklad) {
    if (vklad == 0)
        return std::nullopt;
    return ((vyhra - vklad) / vklad) * 100;
}

QString Odhad_Casu(int n1, int n2, int pocet_tipu) {
    const auto tahu = int16_t(uint16_t(n1) + uint16_t(n2));
    return Vb::Format(double(tahu) * pocet_tipu * 0.00011, u"0") + u" s"_qs;
}
