#include "Dialogy_Testu.h"

#include <QPrinter>

namespace {

QString Zaznam(Dialogy::Ikona ikona, const QString& titulek, const QString& text) {
    return QString::number(int(ikona)) + u'|' + titulek + u'|' + text;
}

} // namespace

void Dialogy_Testu::Okno_Zpravy(Ikona ikona, const QString& titulek, const QString& text) {
    Okna << Zaznam(ikona, titulek, text);
}

Dialogy::Odpoved Dialogy_Testu::Otazka(Ikona ikona, const QString& titulek, const QString& text, Tlacitka tlacitka,
                                       Odpoved) {
    Okna << Zaznam(ikona, titulek, text);
    if (!Odpovedi.isEmpty())
        return Odpovedi.dequeue();
    return tlacitka == Tlacitka::Ano_Ne ? Odpoved::Ne : tlacitka == Tlacitka::OK ? Odpoved::OK : Odpoved::Zrusit;
}

std::optional<QString> Dialogy_Testu::Otevrit_Soubor(const QString& filtr, const QString&, const QString&) {
    Filtry << filtr;
    return Soubory.isEmpty() ? std::nullopt : Soubory.dequeue();
}

std::optional<QString> Dialogy_Testu::Ulozit_Soubor(const QString& filtr, const QString&, const QString&,
                                                    const QString&) {
    Filtry << filtr;
    return Soubory.isEmpty() ? std::nullopt : Soubory.dequeue();
}

bool Dialogy_Testu::Vybrat_Pismo(Pismo& pismo) {
    if (Pisma.isEmpty())
        return false;
    const std::optional<Pismo> volba = Pisma.dequeue();
    if (!volba)
        return false;
    pismo = *volba;
    return true;
}

bool Dialogy_Testu::Vybrat_Tiskarnu() {
    return Tiskarny.isEmpty() ? false : Tiskarny.dequeue();
}

Dialogy_Testu::Dialogy_Testu() = default;
Dialogy_Testu::~Dialogy_Testu() = default;

QPrinter& Dialogy_Testu::Tiskarna() {
    if (!Tiskarna_Pdf) {
        Tiskarna_Pdf = std::make_unique<QPrinter>(QPrinter::ScreenResolution);
        Tiskarna_Pdf->setOutputFormat(QPrinter::PdfFormat);
    }
    Tiskarna_Pdf->setOutputFileName(Pdf);
    return *Tiskarna_Pdf;
}
