#pragma once
// The session: all working data of one run of Tombi. main owns the one instance and hands it to
// every window, which reads and writes its members directly; tests make their own. The seams
// (clock, dialogs, the user's settings store, the window services) are set by whoever makes the
// session.

#include "analysis/Analyza_Tahu.h"
#include "bettors/Seznam_Sazejicich.h"
#include "core/Random.h"
#include "core/pTikety.h"
#include "data/Archiv_Tahu.h"
#include "data/Nastaveni.h"
#include "data/Soubor_Tipu.h"
#include "generator/Stav_Generatoru.h"
#include "tips/Vyhodnoceni.h"

#include <QString>

class Dialogy;
class Hodiny;
class QSettings;
class Sluzby_Oken;

struct Relace {
    // Seams.
    Hodiny* Cas = nullptr;
    Dialogy* Dialog = nullptr;
    QSettings* Registr = nullptr; // holds Pws and Friday's prize table
    // The notice, the status band and the busy state of the main window; none without windows.
    Sluzby_Oken* Sluzby = nullptr;

    QString Cesta_Programu;    // the program's directory: tombi.cfg and, by default, all data
    QString Verze;             // "major.minor"
    QString Soubor_Tahu_Dbf;   // FTP_Data1 or FTP_Data2 of the chosen day
    QString Dalsi_Tah;         // date of the next draw, worked out at start; empty on a Wednesday
    int Den_V_Tydnu = 0;       // weekday at start, 1 Sunday .. 7 Saturday
    Tip Aktualni_Tip;          // the tip under test or shown
    QString Obrazek_Pozadi;    // file name of the background picture

    // Who is open; set by the window on load, cleared on unload.
    bool Formular_Otevren_Generuj = false;
    bool Formular_Otevren_Analyza = false;
    bool Formular_Otevren_Tipy = false;
    bool Formular_Otevren_Tahy = false;
    bool Vypis_Tipu_Vsech_Otevren = false;
    bool Vypis_Cisel = false; // the analysis viewer frmVypisAnalyz is open
    bool Zamceno = false;     // the password at start was not given: the work stays locked

    // The draw list (frmVypisTahu) and those who use it.
    bool Tahy_Pro_Analyzu = false; // the analysis window opened the list: a click sets its range
    bool Tipy_Zobrazeny = false;   // the tip list shows tips in the normal mode: a click only shows a draw
    bool Suma_Vyberu = false;      // the list's "SUMA výběru": the marks of several draws add up
    bool Animace_Bezi = false;     // the replay of the draws runs
    bool Cas_Vyprsel = false;      // set by the frame's Timer2; the replay waits for it between steps

    // Even and odd numbers of the picked list (Spocitej_Suda_Licha).
    int Pocet_Sudych = 0;
    int Pocet_Lichych = 0;

    Archiv_Tahu Archiv;
    Stav_Tipu Tipy;
    Stav_Generatoru Generator;
    Ulozena_Cisla_Tahu Vyhodnoceni; // the draw boxes of the tip list, kept between openings
    Stav_Analyzy Analyza;
    // Vybrana_Cisla: the numbers picked out of the analysis, the draw list or the viewer, [1..49].
    std::array<uint8_t, 50> Vybrana_Cisla{};
    // The open bettors' list; with bettors in it, the list sets the count of tips of the generator.
    Stav_Seznamu Seznam;
    Nastaveni_Zaznam Nastaveni;
    pTikety Tikety;
    ::Random Random;

    // The data directory, Adresare[0].
    const QString& Adresar_Dat() const { return Nastaveni.Adresare[0]; }
};
