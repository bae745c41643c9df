#pragma once
// What the settings window works out besides copying its boxes: the password (set, changed,
// cleared, asked for at start), the calculator of combinations, tips and costs, and prize tables
// made by chance for trying the program without real prizes.
//
// The password is kept enciphered with the program's fixed keys, in the settings record and once
// more in the user's settings (Pws). The cipher is weak by design, kept so that older settings stay
// readable: it hides the password from a glance, not from anyone who tries.

#include "core/Random.h"
#include "core/Vb.h"
#include "data/Nastaveni.h"

#include <QString>
#include <array>
#include <optional>

class QSettings;

namespace Nastaveni_Programu {

// Addresses kept in the user's settings beside Pws, since the record's layout has no place for
// them: the operator's CSV export of the whole history, and the update server as host:port.
inline constexpr char16_t Klic_Csv_Adresa[] = u"Stahovani/Csv_Adresa";
inline constexpr char16_t Klic_Serveru_Aktualizace[] = u"Aktualizace/Server";

// The shortest password taken is five characters.
inline constexpr int Nejkratsi_Heslo = 5;
inline constexpr int Pocet_Pokusu = 3;

// Cipher once with the fixed keys: how a typed password is compared and kept.
QString Zasifruj_Heslo(const QString& heslo);

// cmdHeslo: the old entry (when a password is set) and the two new ones. The text for
// lblSpatne_Heslo, and whether the record took the new password.
struct Zmena_Hesla {
    bool Prijato = false;
    QString Text;
};
Zmena_Hesla Nastav_Heslo(Nastaveni_Zaznam& nastaveni, const QString& stare, const QString& nove,
                         const QString& znovu);
// cmdZrusit_Heslo: the old entry must be the password.
Zmena_Hesla Zrus_Heslo(Nastaveni_Zaznam& nastaveni, const QString& stare);

// Je_Heslo_Nastaveno: whether Pws holds a password; a record without one takes it from Pws.
bool Je_Heslo_Nastaveno(Nastaveni_Zaznam& nastaveni, const QSettings& registr);
// Whether a typed password is the one set.
bool Je_Spravne_Heslo(const Nastaveni_Zaznam& nastaveni, const QString& vstup);
// Label2 beside the count of attempts left: "pokusů" for 0, "pokus" for 1, "pokusy" for 2 to 4.
QString Slovo_Pokusu(int pokusu);

// cmdCenyVytvor: both draws' prizes of the five tiers drawn by chance within the tiers' bounds.
std::array<Vb::Mena, 10> Nahodne_Ceny(Random& random);

// The calculator: n numbers played as a full system. Nothing for a count outside 6..49.
struct Vypocet {
    double Tipu = 0;        // C(n, 6)
    double Naklady = 0;     // the tips at the tip's price
    double Po_Peti = 0;     // C(n, 5), C(n, 4), C(n, 3): the fives, fours and threes among n numbers
    double Po_Ctyrech = 0;
    double Po_Trech = 0;
};
std::optional<Vypocet> Spocitej(int cisel, double cena_tipu);
// C(n, k), exact for n up to 49.
double Kombinace(int n, int k);

} // namespace Nastaveni_Programu
