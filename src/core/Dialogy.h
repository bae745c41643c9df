#pragma once
// The platform's dialogs as the program uses them: message boxes, questions, the file, font and
// printer dialogs. The windows give the real ones (frmCDlg); tests and tombi-cli give stand-ins
// whose answers are preset. A cancelled dialog is an answer like any other, never an error.

#include <QString>

#include <optional>

class QPrinter;

class Dialogy {
public:
    enum class Ikona { Informace, Otaznik, Vykricnik, Stop };
    enum class Tlacitka { OK, OK_Zrusit, Ano_Ne, Ano_Ne_Zrusit };
    enum class Odpoved { OK, Zrusit, Ano, Ne };

    // A font as the settings keep it (Pismo_Jmeno_1, Pismo_Velikost_1, Pismo_Tucne_1, Pismo_Barva_1).
    struct Pismo {
        QString Jmeno;
        int Velikost = 8;
        bool Tucne = false;
        int32_t Barva = 0;
    };

    virtual ~Dialogy() = default;
    // A message box with a title and an OK button.
    virtual void Okno_Zpravy(Ikona ikona, const QString& titulek, const QString& text) = 0;
    // A question; closing the box counts as the cancelling button (Zrusit or Ne).
    virtual Odpoved Otazka(Ikona ikona, const QString& titulek, const QString& text, Tlacitka tlacitka,
                           Odpoved vychozi) = 0;
    // The open dialog, filter in the form "Soubor tipů (*.tip)|*.tip"; nothing on cancel.
    virtual std::optional<QString> Otevrit_Soubor(const QString& filtr, const QString& nazev,
                                                  const QString& slozka) = 0;
    // The save dialog with `jmeno` proposed; nothing on cancel.
    virtual std::optional<QString> Ulozit_Soubor(const QString& filtr, const QString& nazev, const QString& jmeno,
                                                 const QString& slozka) = 0;
    // The font dialog on `pismo`, which takes the choice; false on cancel.
    virtual bool Vybrat_Pismo(Pismo& pismo) = 0;
    // The printer dialog; false on cancel.
    virtual bool Vybrat_Tiskarnu() = 0;
    // The printer the dialog chose last; printouts go to it.
    virtual QPrinter& Tiskarna() = 0;
};
