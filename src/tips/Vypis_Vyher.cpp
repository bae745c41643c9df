#include "tips/Vypis_Vyher.h"

#include "core/Vb.h"

std::vector<Misto_Vyhry> Mista_Vyher(const Vysledek_Vyhodnoceni& vysledek) {
    std::vector<Misto_Vyhry> mista;
    mista.reserve(vysledek.Vyherni_Zaznamy.size());
    Pro_Kazdou_Vyhru(vysledek, [&](const Misto_Vyhry& m) { mista.push_back(m); });
    return mista;
}

QString Radek_Vyhry(const Misto_Vyhry& m) {
    return Vb::Format(m.Cislo_Tiketu, u" 000 000     ") + Vb::Format(m.Sloupec, u"##00        ") +
           QString::number(m.Tah) + u" / "_qs + QString::number(m.Poradi);
}

void Pripis_Radek_Vyhry(const Misto_Vyhry& m, std::string& cil) {
    // Ticket numbers of six digits at most and one-digit draws and tiers are the lines of every
    // file the program makes; anything else takes the general format.
    if (m.Cislo_Tiketu < 0 || m.Cislo_Tiketu > 999999 || m.Sloupec < 0 || m.Sloupec > 99 || m.Tah < 0 || m.Tah > 9 ||
        m.Poradi < 0 || m.Poradi > 9) {
        cil += Radek_Vyhry(m).toStdString();
        cil += '\n';
        return;
    }
    char r[] = " 000 000     00        0 / 0\n";
    const auto cislice = [](int n) { return char('0' + n % 10); };
    const int t = m.Cislo_Tiketu;
    r[1] = cislice(t / 100000);
    r[2] = cislice(t / 10000);
    r[3] = cislice(t / 1000);
    r[5] = cislice(t / 100);
    r[6] = cislice(t / 10);
    r[7] = cislice(t);
    r[13] = cislice(m.Sloupec / 10);
    r[14] = cislice(m.Sloupec);
    r[23] = cislice(m.Tah);
    r[27] = cislice(m.Poradi);
    cil.append(r, sizeof r - 1);
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

std::optional<double> Zisk_Procent(double vyhra, double vklad) {
    if (vklad == 0)
        return std::nullopt;
    return ((vyhra - vklad) / vklad) * 100;
}

QString Odhad_Casu(int n1, int n2, int pocet_tipu) {
    const auto tahu = int16_t(uint16_t(n1) + uint16_t(n2));
    return Vb::Format(double(tahu) * pocet_tipu * 0.00011, u"0") + u" s"_qs;
}
