#pragma once
// The platform's dialogs behind the Dialogy seam: message boxes, questions, the file, font and
// printer dialogs, all owned by one window.

#include "core/Dialogy.h"

#include <QPointer>
#include <QPrinter>
#include <QWidget>

class frmCDlg final : public Dialogy {
public:
    explicit frmCDlg(QWidget* vlastnik);

    void Okno_Zpravy(Ikona ikona, const QString& titulek, const QString& text) override;
    Odpoved Otazka(Ikona ikona, const QString& titulek, const QString& text, Tlacitka tlacitka,
                   Odpoved vychozi) override;
    std::optional<QString> Otevrit_Soubor(const QString& filtr, const QString& nazev, const QString& slozka) override;
    std::optional<QString> Ulozit_Soubor(const QString& filtr, const QString& nazev, const QString& jmeno,
                                         const QString& slozka) override;
    bool Vybrat_Pismo(Pismo& pismo) override;
    bool Vybrat_Tiskarnu() override;

    QPrinter& Tiskarna() override { return Vybrana_Tiskarna; }

    // "Soubor tipů (*.tip)|*.tip|Vše (*.*)|*.*" becomes "Soubor tipů (*.tip);;Vše (*.*)".
    static QString Qt_Filtr(const QString& filtr);

private:
    QPointer<QWidget> Vlastnik;
    QPrinter Vybrana_Tiskarna;
};
