#pragma once
// Dialogs for tests: every box shown is written down as "icon|title|text", and the answers of the
// next questions, file, font and printer dialogs are preset in queues. An empty queue answers as
// a user who cancels.

#include "core/Dialogy.h"

#include <QQueue>
#include <QStringList>

#include <memory>

class Dialogy_Testu final : public Dialogy {
public:
    QStringList Okna;                           // message boxes and questions shown, in order
    QQueue<Odpoved> Odpovedi;                   // answers of the next questions
    QQueue<std::optional<QString>> Soubory;     // answers of the next open and save dialogs
    QQueue<std::optional<Pismo>> Pisma;         // answers of the next font dialogs
    QQueue<bool> Tiskarny;                      // answers of the next printer dialogs
    QStringList Filtry;                         // the filters the file dialogs were shown with
    QString Pdf;                                // printouts go to this PDF file

    Dialogy_Testu();
    ~Dialogy_Testu() override;

    void Okno_Zpravy(Ikona ikona, const QString& titulek, const QString& text) override;
    Odpoved Otazka(Ikona ikona, const QString& titulek, const QString& text, Tlacitka tlacitka,
                   Odpoved vychozi) override;
    std::optional<QString> Otevrit_Soubor(const QString& filtr, const QString& nazev, const QString& slozka) override;
    std::optional<QString> Ulozit_Soubor(const QString& filtr, const QString& nazev, const QString& jmeno,
                                         const QString& slozka) override;
    bool Vybrat_Pismo(Pismo& pismo) override;
    bool Vybrat_Tiskarnu() override;
    QPrinter& Tiskarna() override;

private:
    std::unique_ptr<QPrinter> Tiskarna_Pdf;
};
