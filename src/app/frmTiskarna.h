#pragma once
// Text on the printer as the printouts write it: a font and its size, lines, items placed on
// print zones, and the end of the document. A page that fills up goes on to the next.

#include <QFont>
#include <QPainter>
#include <QString>

#include <memory>

class Dialogy;
class QPrinter;
class Sluzby_Oken;

class frmTiskarna final {
public:
    // Starts a document on the printer; Ok() tells whether the printer took it.
    explicit frmTiskarna(QPrinter& tiskarna);
    ~frmTiskarna();
    frmTiskarna(const frmTiskarna&) = delete;
    frmTiskarna& operator=(const frmTiskarna&) = delete;

    bool Ok() const { return Kreslic.isActive(); }
    // A document on the printer, or none when the printer does not take it: then the notice
    // "Není zapnuta tiskárna !" is shown.
    static std::unique_ptr<frmTiskarna> Otevri(QPrinter& tiskarna, Sluzby_Oken* sluzby);
    // The printer dialog first: nothing when it is cancelled, otherwise as Otevri on its printer.
    static std::unique_ptr<frmTiskarna> Po_Dialogu(Dialogy& dialogy, Sluzby_Oken* sluzby);
    void Pismo(const QString& jmeno);
    void Velikost(double body);
    // Text at the current place; the line goes on.
    void Text(const QString& text);
    // To the next print zone (every 14 average characters), then the text.
    void Zona(const QString& text = {});
    // The text, then a new line.
    void Radek(const QString& text = {});
    // The width of a text in the current font, in twips.
    double Sirka_Twips(const QString& text) const;
    // The next page, from its top.
    void Nova_Strana();
    // Ends the document.
    void Konec();

private:
    void Novy_Radek();

    QPrinter& Tiskarna;
    QPainter Kreslic;
    QFont Font;
    double X = 0; // pen position in device pixels
    double Y = 0;
};
