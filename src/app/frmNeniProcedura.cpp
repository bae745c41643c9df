#include "app/frmNeniProcedura.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QPainter>
#include <QScreen>

namespace {

// The window keeps a margin of 200 twips around its text, and the text wraps at no more than
// about 9 inches. Twips become pixels by the screen's own resolution.
constexpr double Okraj_Twipy = 200;
constexpr double Nejsirsi_Text_Twipy = 9 * 1440;
// A text up to 5 inches stays on one line; a longer one is folded into a box 1.8 times narrower,
// which gives a notice of two or three lines rather than one long strip.
constexpr double Jeden_Radek_Twipy = 5 * 1440;
constexpr double Pomer_Zalomeni = 1.8;

const QColor Barva_Pozadi{255, 251, 214};
const QColor Barva_Okraje{96, 88, 48};

} // namespace

frmNeniProcedura::frmNeniProcedura(const QString& text, QWidget* hlavni_okno)
    : QWidget(hlavni_okno, Qt::Tool | Qt::FramelessWindowHint), Label1(new QLabel(text, this)) {
    setObjectName(u"frmNeniProcedura"_qs);
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::StrongFocus);

    QFont pismo = QApplication::font();
    if (pismo.pointSizeF() > 0)
        pismo.setPointSizeF(pismo.pointSizeF() + 1);
    setFont(pismo);

    Label1->setObjectName(u"Label1"_qs);
    Label1->setWordWrap(true);
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setTextFormat(Qt::PlainText);
    // Clicks on the text belong to the window, which closes on them.
    Label1->setAttribute(Qt::WA_TransparentForMouseEvents);

    Uprav_Velikost();
    Vycentruj(hlavni_okno);
    show();
    raise();
    activateWindow();
}

QString frmNeniProcedura::Text() const {
    return Label1->text();
}

void frmNeniProcedura::Uprav_Velikost() {
    const double na_pixel = logicalDpiX() / 1440.0;
    const int okraj = qRound(Okraj_Twipy * na_pixel);
    const QFontMetrics metrika(Label1->font());
    const int delka = metrika.horizontalAdvance(Label1->text());

    int sirka = delka;
    if (delka > Jeden_Radek_Twipy * na_pixel)
        sirka = std::max(qRound(delka / Pomer_Zalomeni), qRound(Jeden_Radek_Twipy * na_pixel));
    sirka = std::min(sirka, qRound(Nejsirsi_Text_Twipy * na_pixel));
    // A word longer than the box would be cut; the box grows to hold it.
    for (const QString& slovo : Label1->text().split(u' ', Qt::SkipEmptyParts))
        sirka = std::max(sirka, metrika.horizontalAdvance(slovo));
    sirka += 2; // rounding of the measure must not fold the last word

    const int vyska = Label1->heightForWidth(sirka) > 0 ? Label1->heightForWidth(sirka) : metrika.height();
    Label1->setGeometry(okraj, okraj, sirka, vyska);
    setFixedSize(sirka + 2 * okraj, vyska + 2 * okraj);
}

void frmNeniProcedura::Vycentruj(QWidget* hlavni_okno) {
    QPoint stred;
    if (hlavni_okno == nullptr)
        stred = (screen() ? screen() : QGuiApplication::primaryScreen())->geometry().center();
    else if (hlavni_okno->isWindow())
        stred = hlavni_okno->frameGeometry().center();
    else
        stred = hlavni_okno->mapToGlobal(hlavni_okno->rect().center());
    move(stred - QPoint(width() / 2, height() / 2));
}

void frmNeniProcedura::paintEvent(QPaintEvent*) {
    QPainter kreslic(this);
    kreslic.fillRect(rect(), Barva_Pozadi);
    kreslic.setPen(QPen(Barva_Okraje, 1));
    kreslic.drawRect(rect().adjusted(0, 0, -1, -1));
}

void frmNeniProcedura::mousePressEvent(QMouseEvent*) {
    close();
}

void frmNeniProcedura::keyPressEvent(QKeyEvent*) {
    close();
}
