#include "analysis/Analyza_Tahu.h"

#include <array>

namespace {

const std::array<Popis_Analyzy, Pocet_Analyz> Popisy{{
    {QStringLiteral("Četnost tažených čísel"), QStringLiteral("txtOd_Nasobku"), 3, 5200},
    {QStringLiteral("Dvojice sousedních čísel"), QStringLiteral("txtOd_Poctu"), 3, 4500},
    {QStringLiteral("Trojice sousedních čísel"), QStringLiteral("txtOd_Poc"), 1, 0},
    {QStringLiteral("Interval čísla"), QStringLiteral("txtOd_Interval"), 5, 4500},
    {QStringLiteral("Řádky, sloupce, kříže - počet čísel"), QString(), 0, 5200},
    {QStringLiteral("Sudá /lichá  poměr čísel"), QString(), 0, 5210},
    {QStringLiteral("Průměrně taženo"), QString(), 0, 4800},
    {QStringLiteral("Dodatková čísla - četnost"), QStringLiteral("txtDodat_Od_Poctu"), 3, 5210},
    {QStringLiteral("Dvojice volné"), QStringLiteral("txtOd_Poctu_Dvojice_Volne"), 2, 4500},
    {QStringLiteral("Suma čísel tahu"), QString(), 0, 4500},
}};

// The names a failing statistic leaves in Chyba_Proces; the supplementary count has always given
// the pair statistic's name.
const std::array<QString, Pocet_Analyz> Procesy{
    QStringLiteral("A_Cetnost_Cisel"),   QStringLiteral("A_Dvojice_Cisel"),   QStringLiteral("A_Trojice_Cisel"),
    QStringLiteral("A_Interval_Cisla"),  QStringLiteral("A_Sloupce_Radky"),   QStringLiteral("A_Suda_Licha"),
    QStringLiteral("A_Prumerne_Tazeno"), QStringLiteral("A_Dvojice_Cisel"),   QStringLiteral("A_Dvojice_Cisel_Volne"),
    QStringLiteral("A_Suma_Tahu")};

// A slice that reaches outside its list is the index fault of the statistic.
bool Platna(const Rada_Tahu& r) {
    return r.Tahy != nullptr && r.Rozsah_Tahu >= 0 && r.Pocet_Tahy - r.Rozsah_Tahu >= 1 &&
           r.Pocet_Tahy < int(r.Tahy->size());
}

} // namespace

Vysledek_Analyzy Analyzuj(Typ_Analyzy typ, const Zadani_Analyzy& z, const Prubeh& p) {
    if (!Platna(z.Rady[0]) || !Platna(z.Rady[1])) {
        Vysledek_Analyzy chyba;
        chyba.Selhala = true;
        chyba.Chyba_Proces = Procesy[std::size_t(typ)];
        return chyba;
    }
    switch (typ) {
    case Typ_Analyzy::Cetnost_Cisel: return A_Cetnost_Cisel(z, p);
    case Typ_Analyzy::Dvojice_Cisel: return A_Dvojice_Cisel(z, p);
    case Typ_Analyzy::Trojice_Cisel: return A_Trojice_Cisel(z, p);
    case Typ_Analyzy::Interval_Cisla: return A_Interval_Cisla(z, p);
    case Typ_Analyzy::Sloupce_Radky: return A_Sloupce_Radky(z, p);
    case Typ_Analyzy::Suda_Licha: return A_Suda_Licha(z, p);
    case Typ_Analyzy::Prumerne_Tazeno: return A_Prumerne_Tazeno(z, p);
    case Typ_Analyzy::Cetnost_Dodatkovych: return A_Cetnost_Dodatkovych(z, p);
    case Typ_Analyzy::Dvojice_Cisel_Volne: return A_Dvojice_Cisel_Volne(z, p);
    case Typ_Analyzy::Suma_Tahu: return A_Suma_Tahu(z, p);
    }
    return {};
}

const Popis_Analyzy& Popis(Typ_Analyzy typ) {
    return Popisy[std::size_t(typ)];
}

QString Nadpis_Analyzy(const Vysledek_Analyzy& v, bool dodatkova) {
    return dodatkova ? v.Nadpis + QStringLiteral(" včetně dodatkových") : v.Nadpis;
}

QString Vypis_Behu(const Vysledek_Analyzy& v, bool dodatkova) {
    QString vypis;
    vypis.reserve(v.Text_1.size() + v.Text_2.size() + v.Nadpis.size() + 24);
    vypis += Nadpis_Analyzy(v, dodatkova);
    vypis += v.Text_1;
    vypis += u'\n';
    vypis += v.Text_2;
    vypis += QStringLiteral("\n\n");
    return vypis;
}

Rada_Tahu Rada_Zpetne(const std::vector<Tah>& tahy, int celkem, int pocet) {
    return {&tahy, celkem, pocet - 1};
}

Rada_Tahu Rada_Od_Do(const std::vector<Tah>& tahy, int od, int do_) {
    return {&tahy, do_, do_ - od};
}
