#pragma once
// The program update: the update server's FTP account holds, in the folder "tombi", the file
// _data.ini that tells the newest version of the program and the dates of the other files, and in
// "tombi/data" the files themselves. What is newer than the files in the program's folder is
// offered, a row a file, and the rows the user keeps are fetched. A file arrives whole or not at
// all; an archive keeps the one it replaces as its .zal. The running program is never replaced:
// the new one arrives beside it as "tombi_".
//
// The calls wait for the server and may take long; the window runs them on a thread of their own.
// Each ends at a time limit without progress, or when `Zrusit` says so.

#include "core/Prubeh.h"
#include "core/Vysledek.h"

#include <QString>
#include <QStringList>
#include <array>
#include <functional>

namespace Aktualizace {

inline constexpr int Pocet_Radku = 7;
inline constexpr char Uzivatel[] = "cz417703";
inline constexpr char Heslo_Uctu[] = "62096209";

inline const QString Text_Neni_Ini = QStringLiteral("Není datový soubor !");
inline const QString Text_Chyba_Prenosu = QStringLiteral("Chyba při přenosu z domovské stránky !");
inline const QString Text_Chyba_Ini = QStringLiteral("Datový soubor je, ale je v něm chyba!");
inline const QString Text_Chyba_Souboru = QStringLiteral("Chyba při přenosu souboru z FTP !");
inline const QString Text_Zruseno = QStringLiteral("Aktualizace byla zrušena, soubory zůstaly beze změny.");

// The rows of chkDownload, the key of _data.ini for each and the file of the program's folder.
struct Soubor_Aktualizace {
    QString Text;
    QString Klic;
    QString Soubor;
};
const std::array<Soubor_Aktualizace, Pocet_Radku>& Soubory();

struct Spojeni {
    QString Server;       // host:port of the update server
    QString Uzivatel = QString::fromLatin1(Aktualizace::Uzivatel);
    QString Heslo = QString::fromLatin1(Heslo_Uctu);
    int Limit_S = 30;     // no progress for this long ends the transfer
    std::function<bool()> Zrusit;
    Prubeh Prubeh_Prenosu;
};

// Zjisti_Verze: which rows are new. `verze` is the program's "major.minor[.revision]".
struct Nabidka {
    Vysledek Stav;
    std::array<bool, Pocet_Radku> Nove{};
};
Nabidka Zjisti_Verze(const Spojeni& spojeni, const QString& adresar, const QString& verze);

// Stahni_Soubory: the marked rows into `adresar`, each told to `radek` as it starts and ends. On
// success Zprava holds the closing word when a program came ("Ukončete program a spusttě ..."),
// and Zmeny the path of the change list when it came.
struct Stazeni {
    Vysledek Stav;
    QString Zprava;
    QString Zmeny;
    QStringList Stazene;
};
Stazeni Stahni_Soubory(const Spojeni& spojeni, const QString& adresar, const std::array<bool, Pocet_Radku>& znacky,
                       const std::function<void(const QString& text, bool hotovo)>& radek = {});

} // namespace Aktualizace
