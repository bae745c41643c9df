#pragma once
// What the commands of tombi-cli share: exit codes, the usage text, file names as the user gave
// them, output lines and messages, and the reading of options.

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

// Exit codes: 0 success, 1 bad input (the Czech message goes to stderr), 2 usage error.
inline constexpr int Uspech = 0;
inline constexpr int Chybny_Vstup = 1;
inline constexpr int Chybne_Pouziti = 2;

extern const char* const Pouziti;

// A path argument as Qt can open it (an odd byte in a name is reached through /proc/self/fd).
QString Cesta_Argumentu(const char* argument);
// Paths that can be read at most: no file can be written under their name.
QStringList& Jen_Ke_Cteni();

// One line to stdout in UTF-8.
void Vypis(const QString& radek);
// The message to stderr, paths named as the user gave them; returns Chybny_Vstup.
int Chyba(const QString& zprava);
int Nelze_Zapsat_Do(const QString& cesta);
// The message, if any, and the usage text to stderr; returns Chybne_Pouziti.
int Spatne_Pouziti(const QString& co);

// Options of the form "--name value" after the command; anything else is a positional argument.
struct Argumenty {
    QStringList Pozicni;
    QList<std::pair<QString, QString>> Volby;
    QStringList Prepinace; // options without a value
    QString Chyba;

    std::optional<QString> Volba(const QString& jmeno) const {
        for (const auto& [k, v] : Volby)
            if (k == jmeno)
                return v;
        return std::nullopt;
    }
};
Argumenty Rozeber(const QStringList& args, const QStringList& s_hodnotou, const QStringList& bez_hodnoty);

// Whole numbers separated by commas, pocet_od..pocet_do of them, each within od..do_; nothing when
// one is not.
std::optional<QList<int>> Cisla_Volby(const QString& text, int pocet_od, int pocet_do, int od, int do_);

// The commands.
int Generovani(const QStringList& args);
int Vyhodnoceni(const QStringList& args);
int Analyza(const QStringList& args);
// archive SOUBOR.sez --pridej|--oprav|--smaz ...: the editor of the draw list.
bool Je_Uprava_Archivu(const QStringList& args);
int Uprava_Archivu(const QStringList& args);
// tips --append|--sort|--export|--import ...: the operations on a whole tip file.
bool Je_Operace_Tipu(const QStringList& args);
int Operace_Tipu(const QStringList& args);
// wheel INDEX | wheel --rzp FILE: the wheels, their guarantees and their expansion.
int Rozpisy(const QStringList& args);
// print FILE.tip ...: the marks of the printed tickets.
int Tisk(const QStringList& args);
// update --server HOST:PORT --dir DIR [--vse]: the program update.
int Aktualizace_Programu(const QStringList& args);
// download --adresa URL [--csv URL] --dir DIR: the draw data download.
int Stahovani(const QStringList& args);
// bettors FILE.szn [--vyhra KC]: a bettors' list and the split of a win.
int Seznam_Sazejicich(const QStringList& args);
