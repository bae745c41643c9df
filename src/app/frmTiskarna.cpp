#include "app/frmTiskarna.h"

#include "app/Sluzby_Oken.h"
#include "core/Dialogy.h"

#include <QFontMetricsF>
#include <QPrinter>

#include <cmath>

frmTiskarna::frmTiskarna(QPrinter& tiskarna) : Tiskarna(tiskarna), Font(QStringLiteral("DejaVu Sans"), 10) {
    if (Kreslic.begin(&Tiskarna))
        Kreslic.setFont(QFont(Font, &Tiskarna));
}

std::unique_ptr<frmTiskarna> frmTiskarna::Otevri(QPrinter& tiskarna, Sluzby_Oken* sluzby) {
    auto tisk = std::make_unique<frmTiskarna>(tiskarna);
    if (tisk->Ok())
        return tisk;
    if (sluzby != nullptr)
        sluzby->Zprava(QStringLiteral("Není zapnuta tiskárna !"));
    return nullptr;
}

std::unique_ptr<frmTiskarna> frmTiskarna::Po_Dialogu(Dialogy& dialogy, Sluzby_Oken* sluzby) {
    if (!dialogy.Vybrat_Tiskarnu())
        return nullptr;
    return Otevri(dialogy.Tiskarna(), sluzby);
}

frmTiskarna::~frmTiskarna() {
    Konec();
}

void frmTiskarna::Pismo(const QString& jmeno) {
    Font.setFamily(jmeno);
    Kreslic.setFont(QFont(Font, &Tiskarna));
}

void frmTiskarna::Velikost(double body) {
    Font.setPointSizeF(body);
    Kreslic.setFont(QFont(Font, &Tiskarna));
}

void frmTiskarna::Text(const QString& text) {
    if (!Ok() || text.isEmpty())
        return;
    const QFontMetricsF mira(Kreslic.font(), &Tiskarna);
    Kreslic.drawText(QPointF(X, Y + mira.ascent()), text);
    X += mira.horizontalAdvance(text);
}

void frmTiskarna::Zona(const QString& text) {
    if (!Ok())
        return;
    const double zona = 14 * QFontMetricsF(Kreslic.font(), &Tiskarna).averageCharWidth();
    X = (std::floor(X / zona) + 1) * zona;
    Text(text);
}

void frmTiskarna::Radek(const QString& text) {
    Text(text);
    Novy_Radek();
}

double frmTiskarna::Sirka_Twips(const QString& text) const {
    const double pixely = QFontMetricsF(Kreslic.font(), &Tiskarna).horizontalAdvance(text);
    return pixely * 1440.0 / Tiskarna.resolution();
}

void frmTiskarna::Novy_Radek() {
    if (!Ok())
        return;
    X = 0;
    Y += QFontMetricsF(Kreslic.font(), &Tiskarna).lineSpacing();
    if (Y + QFontMetricsF(Kreslic.font(), &Tiskarna).height() > Kreslic.viewport().height()) {
        Tiskarna.newPage();
        Y = 0;
    }
}

void frmTiskarna::Nova_Strana() {
    if (!Ok())
        return;
    Tiskarna.newPage();
    X = 0;
    Y = 0;
}

void frmTiskarna::Konec() {
    if (Kreslic.isActive())
        Kreslic.end();
}
