#include "settings/Nastaveni_Programu.h"

#include <QSettings>

namespace Nastaveni_Programu {

QString Zasifruj_Heslo(const QString& heslo) {
    QString text = heslo;
    Random sifra;
    sifra.Cipher(text, Random::Klic_Hesla_A, Random::Klic_Hesla_B, Random::Klic_Hesla_C);
    return text;
}

Zmena_Hesla Nastav_Heslo(Nastaveni_Zaznam& nastaveni, const QString& stare, const QString& nove,
                         const QString& znovu) {
    const bool nove_plati = nove == znovu && nove.size() >= Nejkratsi_Heslo;
    if (!Vb::Je_Pravda(nastaveni.Je_Heslo) || nastaveni.Heslo.isEmpty()) {
        if (!nove_plati)
            return {false, u"Nesprávná délka hesla nebo žádné."_qs};
        nastaveni.Heslo = Zasifruj_Heslo(nove);
        nastaveni.Je_Heslo = Vb::Pravda;
        return {true, u"Heslo bylo přijato k zápisu, stiskněte BUDIŽ"_qs};
    }
    if (Zasifruj_Heslo(stare) != nastaveni.Heslo || !nove_plati)
        return {false, u"Nesprávné  NOVÉ  heslo."_qs};
    nastaveni.Heslo = Zasifruj_Heslo(nove);
    return {true, u"Změna hesla přijata k zápisu, stiskni BUDIŽ"_qs};
}

Zmena_Hesla Zrus_Heslo(Nastaveni_Zaznam& nastaveni, const QString& stare) {
    if (Zasifruj_Heslo(stare) != nastaveni.Heslo)
        return {false, u"Nesprávně zadané  PŮVODNÍ  heslo."_qs};
    nastaveni.Heslo.clear();
    nastaveni.Je_Heslo = Vb::Nepravda;
    return {true, u"Heslo bude zrušeno, stiskněte BUDIŽ"_qs};
}

bool Je_Heslo_Nastaveno(Nastaveni_Zaznam& nastaveni, const QSettings& registr) {
    const QString pws = registr.value(QString::fromUtf16(Klic_Pws)).toString();
    if (pws.isEmpty())
        return false;
    if (!Vb::Je_Pravda(nastaveni.Je_Heslo) || nastaveni.Heslo.isEmpty()) {
        nastaveni.Heslo = Desifruj_Pws(pws);
        nastaveni.Je_Heslo = Vb::Pravda;
    }
    return true;
}

bool Je_Spravne_Heslo(const Nastaveni_Zaznam& nastaveni, const QString& vstup) {
    return !nastaveni.Heslo.isEmpty() && Zasifruj_Heslo(vstup) == nastaveni.Heslo;
}

QString Slovo_Pokusu(int pokusu) {
    if (pokusu == 1)
        return u"pokus"_qs;
    if (pokusu >= 2 && pokusu <= 4)
        return u"pokusy"_qs;
    return u"pokusů"_qs;
}

std::array<Vb::Mena, 10> Nahodne_Ceny(Random& random) {
    constexpr std::array<std::pair<int32_t, int32_t>, 5> meze = {
        {{1000000, 30000000}, {90000, 800000}, {10000, 20000}, {300, 750}, {40, 95}}};
    std::array<Vb::Mena, 10> ceny{};
    for (std::size_t i = 0; i < ceny.size(); ++i) {
        random.Dolni_Mez = meze[i % 5].first;
        random.Horni_Mez = meze[i % 5].second;
        ceny[i] = Vb::Mena::Z_Korun(random.RandomInt());
    }
    return ceny;
}

double Kombinace(int n, int k) {
    if (k < 0 || n < 0 || k > n)
        return 0;
    double c = 1;
    for (int i = 1; i <= k; ++i)
        c = c * (n - k + i) / i;
    return std::round(c);
}

std::optional<Vypocet> Spocitej(int cisel, double cena_tipu) {
    if (cisel < 6 || cisel > 49)
        return std::nullopt;
    Vypocet v;
    v.Tipu = Kombinace(cisel, 6);
    v.Naklady = v.Tipu * cena_tipu;
    v.Po_Peti = Kombinace(cisel, 5);
    v.Po_Ctyrech = Kombinace(cisel, 4);
    v.Po_Trech = Kombinace(cisel, 3);
    return v;
}

} // namespace Nastaveni_Programu
