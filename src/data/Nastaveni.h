#pragma once
// The settings record and its file tombi.cfg: one record in field order, no header, no padding,
// little-endian numbers, texts as a signed 16-bit length and that many bytes of code page 1250.
// Besides the file, the enciphered password lives in the user's settings as "Pws", so that a
// lost tombi.cfg does not lose the lock.

#include "core/Vb.h"
#include "core/Vysledek.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>

class QSettings;

// In memory a Boolean is an int16_t holding -1 or 0, as on disk; a flag byte of a check box holds
// 0, 1 or 2 (greyed). A fresh record is all zero, which is what a missing file reads as.
struct Nastaveni_Zaznam {
    int16_t Tisk_Posun_X = 0;
    int16_t Tisk_Posun_Y = 0;
    int16_t Tisk_Posun_Z = 0;
    uint8_t Cena_Jednoho_Tipu = 0;
    int16_t Vychozi_Tipu = 0;
    // 0 data and tombi.cfg, 1 tip files, 2 lists, 3 analysis files, 4 unused, 5 web browser
    std::array<QString, 6> Adresare;
    uint8_t Cena_Sance = 0;
    uint8_t Auto_Oprava = 0;
    int16_t Pocet_Pruchodu = 0;
    uint8_t Opakovat_Volba = 0;
    // Five tiers of the first draw, then five of the second.
    std::array<Vb::Mena, 10> Ceny_Nedele;
    std::array<Vb::Mena, 10> Ceny_Streda;
    QString Verze_Cfg;
    uint8_t Stranka_Nastaveni = 0;
    uint8_t Tloustka_Cary_1 = 0;
    uint8_t Tloustka_Cary_2 = 0;
    uint8_t Bez_Pozadi = 0;
    int32_t Barva_Pozadi = 0;
    int32_t Barva_Zasahu = 0;
    int32_t Barva_Krizku_1 = 0;
    int32_t Barva_Krizku_2 = 0;
    uint8_t Vlastni_Pozadi = 0;
    QString Obrazek_Pozadi;
    QString Heslo; // enciphered once; never the plain password
    int16_t Je_Heslo = 0;
    QString Odecist_Tahy;
    QString Od_Do_1Tah_Str;
    QString Od_Do_2Tah_Str;
    QString Od_Do_1Tah_Ned;
    QString Od_Do_2Tah_Ned;
    uint8_t Smazat_Dbf = 0;
    QString FTP_Adresa;
    QString FTP_Data1;
    QString FTP_Data2;
    QString Zaloha_Tahu; // "1" when on
    uint8_t Prepocitat_Hodnoty = 0;
    uint8_t Zmena_Cisla_Tiketu = 0;
    uint8_t Zapis_Analyzy = 0;
    std::array<int16_t, 3> Zapis_Tahu{};
    uint8_t Spojovat_Soubor = 0;
    uint8_t Otevirat_Soubor = 0;
    uint8_t Pamatovat_Okno = 0;
    std::array<int16_t, 4> Okno_Analyz{};
    std::array<uint8_t, 7> Vyloucit_Sud_Lich{};
    std::array<uint8_t, 8> Zrus_Tip_Sous_Cis{};
    QString Max_Ve_Sloupci;
    QString Cislo_V_Tipu;
    std::array<int16_t, 10> Auto_Analyza{};
    int32_t Pismo_Barva_1 = 0;
    QString Pismo_Jmeno_1;
    uint8_t Pismo_Velikost_1 = 0;
    int16_t Pismo_Tucne_1 = 0;
    int32_t Pismo_Barva_2 = 0;
    QString Pismo_Jmeno_2;
    uint8_t Pismo_Velikost_2 = 0;
    int16_t Pismo_Tucne_2 = 0;
    int32_t Okno_Horni = 0;
    int32_t Okno_Leva = 0;
    int32_t Okno_Vyska = 0;
    int32_t Okno_Sirka = 0;
    std::array<int32_t, 3> Barvy_Prubehu_1{}; // red, green, blue
    std::array<int32_t, 3> Barvy_Prubehu_2{};
    uint8_t Styl_Prubehu = 0;
    uint8_t Pocet_Sloupcu_Tisk = 0;
    int32_t Barva_Vyber = 0;
    QString Pocet_Tahu_Analyzovat;
    uint8_t Grafika_Volba = 0;
    QString Nedavne_Tipy;
    int16_t Info_Tah = 0;
    QString Nedavne_Seznamy;
    uint8_t Klic_Vyberu = 0;

    friend bool operator==(const Nastaveni_Zaznam&, const Nastaveni_Zaznam&) = default;
};

// The one list of the fields in file order: reader, writer and dump all walk it, so a field can be
// added or moved in one place. An array is one call with the whole std::array.
template <class Z, class F> void Projdi_Pole(Z& z, F&& f) {
    f(u"Tisk_Posun_X", z.Tisk_Posun_X);
    f(u"Tisk_Posun_Y", z.Tisk_Posun_Y);
    f(u"Tisk_Posun_Z", z.Tisk_Posun_Z);
    f(u"Cena_Jednoho_Tipu", z.Cena_Jednoho_Tipu);
    f(u"Vychozi_Tipu", z.Vychozi_Tipu);
    f(u"Adresare", z.Adresare);
    f(u"Cena_Sance", z.Cena_Sance);
    f(u"Auto_Oprava", z.Auto_Oprava);
    f(u"Pocet_Pruchodu", z.Pocet_Pruchodu);
    f(u"Opakovat_Volba", z.Opakovat_Volba);
    f(u"Ceny_Nedele", z.Ceny_Nedele);
    f(u"Ceny_Streda", z.Ceny_Streda);
    f(u"Verze_Cfg", z.Verze_Cfg);
    f(u"Stranka_Nastaveni", z.Stranka_Nastaveni);
    f(u"Tloustka_Cary_1", z.Tloustka_Cary_1);
    f(u"Tloustka_Cary_2", z.Tloustka_Cary_2);
    f(u"Bez_Pozadi", z.Bez_Pozadi);
    f(u"Barva_Pozadi", z.Barva_Pozadi);
    f(u"Barva_Zasahu", z.Barva_Zasahu);
    f(u"Barva_Krizku_1", z.Barva_Krizku_1);
    f(u"Barva_Krizku_2", z.Barva_Krizku_2);
    f(u"Vlastni_Pozadi", z.Vlastni_Pozadi);
    f(u"Obrazek_Pozadi", z.Obrazek_Pozadi);
    f(u"Heslo", z.Heslo);
    f(u"Je_Heslo", z.Je_Heslo);
    f(u"Odecist_Tahy", z.Odecist_Tahy);
    f(u"Od_Do_1Tah_Str", z.Od_Do_1Tah_Str);
    f(u"Od_Do_2Tah_Str", z.Od_Do_2Tah_Str);
    f(u"Od_Do_1Tah_Ned", z.Od_Do_1Tah_Ned);
    f(u"Od_Do_2Tah_Ned", z.Od_Do_2Tah_Ned);
    f(u"Smazat_Dbf", z.Smazat_Dbf);
    f(u"FTP_Adresa", z.FTP_Adresa);
    f(u"FTP_Data1", z.FTP_Data1);
    f(u"FTP_Data2", z.FTP_Data2);
    f(u"Zaloha_Tahu", z.Zaloha_Tahu);
    f(u"Prepocitat_Hodnoty", z.Prepocitat_Hodnoty);
    f(u"Zmena_Cisla_Tiketu", z.Zmena_Cisla_Tiketu);
    f(u"Zapis_Analyzy", z.Zapis_Analyzy);
    f(u"Zapis_Tahu", z.Zapis_Tahu);
    f(u"Spojovat_Soubor", z.Spojovat_Soubor);
    f(u"Otevirat_Soubor", z.Otevirat_Soubor);
    f(u"Pamatovat_Okno", z.Pamatovat_Okno);
    f(u"Okno_Analyz", z.Okno_Analyz);
    f(u"Vyloucit_Sud_Lich", z.Vyloucit_Sud_Lich);
    f(u"Zrus_Tip_Sous_Cis", z.Zrus_Tip_Sous_Cis);
    f(u"Max_Ve_Sloupci", z.Max_Ve_Sloupci);
    f(u"Cislo_V_Tipu", z.Cislo_V_Tipu);
    f(u"Auto_Analyza", z.Auto_Analyza);
    f(u"Pismo_Barva_1", z.Pismo_Barva_1);
    f(u"Pismo_Jmeno_1", z.Pismo_Jmeno_1);
    f(u"Pismo_Velikost_1", z.Pismo_Velikost_1);
    f(u"Pismo_Tucne_1", z.Pismo_Tucne_1);
    f(u"Pismo_Barva_2", z.Pismo_Barva_2);
    f(u"Pismo_Jmeno_2", z.Pismo_Jmeno_2);
    f(u"Pismo_Velikost_2", z.Pismo_Velikost_2);
    f(u"Pismo_Tucne_2", z.Pismo_Tucne_2);
    f(u"Okno_Horni", z.Okno_Horni);
    f(u"Okno_Leva", z.Okno_Leva);
    f(u"Okno_Vyska", z.Okno_Vyska);
    f(u"Okno_Sirka", z.Okno_Sirka);
    f(u"Barvy_Prubehu_1", z.Barvy_Prubehu_1);
    f(u"Barvy_Prubehu_2", z.Barvy_Prubehu_2);
    f(u"Styl_Prubehu", z.Styl_Prubehu);
    f(u"Pocet_Sloupcu_Tisk", z.Pocet_Sloupcu_Tisk);
    f(u"Barva_Vyber", z.Barva_Vyber);
    f(u"Pocet_Tahu_Analyzovat", z.Pocet_Tahu_Analyzovat);
    f(u"Grafika_Volba", z.Grafika_Volba);
    f(u"Nedavne_Tipy", z.Nedavne_Tipy);
    f(u"Info_Tah", z.Info_Tah);
    f(u"Nedavne_Seznamy", z.Nedavne_Seznamy);
    f(u"Klic_Vyberu", z.Klic_Vyberu);
}

// Where the enciphered password stands in the user's settings. Production opens
// QSettings(Organizace_Registru, Aplikace_Registru); tests pass an INI file of their own.
inline constexpr char16_t Organizace_Registru[] = u"Tombi";
inline constexpr char16_t Aplikace_Registru[] = u"Tombi";
inline constexpr char16_t Klic_Pws[] = u"Common/Pws";

// The Basic "Get" of the record: any bytes are taken. A short file leaves the rest zero or empty,
// a field cut by the end takes the bytes that are there, a negative text length reads as empty
// and a text length past the end takes what is left.
Nastaveni_Zaznam Cti_Nastaveni(const QByteArray& data);

// The record as it goes to disk. Reading it back gives the same record. A text longer than a
// 16-bit length can hold is cut to 32767 bytes.
QByteArray Zapis_Nastaveni(const Nastaveni_Zaznam& nastaveni);

// "Name = value" in file order; an array gives one "Name[i] = value" line per element. Money is
// written as Vb::Mena::Text, texts as they stand.
QStringList Vypis_Nastaveni(const Nastaveni_Zaznam& nastaveni);

// The record of a first run: every default, the program directory (with a trailing separator) in
// Adresare[0..4], and `verze` in Verze_Cfg. No password.
Nastaveni_Zaznam Vychozi_Nastaveni(const QString& cesta_programu, const QString& verze);

// With every text at its longest the record takes 820 KB.
inline constexpr qint64 Nejvic_Nastaveni = 1024 * 1024;

// The start-up read of cesta_programu/tombi.cfg (missing reads as all zero). A record older than
// 1.3 is dropped for the first-run defaults, with the password taken back from Pws, and written
// out; a newer one is repointed to the program directory if the installation has moved. A file
// that is there but cannot be read (unreadable, a folder, above Nejvic_Nastaveni) gives the
// defaults too, but is not written over, and the message says why. Otherwise the message, if any,
// is that of the failed first-run write; the record is set up all the same.
Vysledek Nacti_Nastaveni(Nastaveni_Zaznam& nastaveni, const QString& cesta_programu, const QString& verze,
                         QSettings& registr);

// Writes Pws and the record to Adresare[0]/tombi.cfg. Info_Tah is set on every save.
Vysledek Uloz_Nastaveni(Nastaveni_Zaznam& nastaveni, QSettings& registr);

// The three corrections of the ticket print, then a save.
Vysledek Nastav_Tisk(Nastaveni_Zaznam& nastaveni, int16_t x, int16_t y, int16_t z, QSettings& registr);

// Pws is the fixed two-character prefix and Heslo, enciphered once more with the fixed keys.
// Reading deciphers with the same keys and drops the prefix.
QString Zasifruj_Pws(const QString& heslo);
QString Desifruj_Pws(const QString& pws);
