#include "app/frmOvladani.h"

#include "core/Vb.h"
#include "app/modTombi.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>

namespace modNastaveni_Ovladani {

namespace {

// Selects after the event is done: the click that gave the focus would otherwise place the
// cursor and undo the selection.
class Vyber_Pri_Vstupu final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* objekt, QEvent* udalost) override {
        if (udalost->type() == QEvent::FocusIn)
            if (auto* pole = qobject_cast<QLineEdit*>(objekt))
                QTimer::singleShot(0, pole, [pole] { Vyber_Text(pole); });
        return false;
    }
};

// Swallows every key that Filtr_Klavesy refuses for the digits; keys without a character (arrows,
// deletion, shortcuts) pass.
class Filtr_Cislic final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject*, QEvent* udalost) override {
        if (udalost->type() != QEvent::KeyPress)
            return false;
        const QString text = static_cast<QKeyEvent*>(udalost)->text();
        if (text.isEmpty() || !text.at(0).isPrint())
            return false;
        return modTombi::Filtr_Klavesy(text.at(0).unicode(), u'0', u'9') == 0;
    }
};

} // namespace

int Cele_Cislo(const QLineEdit* pole) {
    return int(std::clamp(Vb::Val(pole->text()), -1e9, 1e9));
}

QWidget* Pod_Slovy(QWidget* rodic, const QLabel* nadpis, const QStringList& slova, std::span<QLabel* const> popisky,
                   const QString& vzor_posledniho, QLabel* zahlavi) {
    auto* radek = new QWidget(rodic);
    auto* rozlozeni = new QHBoxLayout(radek);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    rozlozeni->setSpacing(0);
    const QFontMetrics metrika = nadpis->fontMetrics();
    const QString text = nadpis->text();
    const auto zacatek = [&](qsizetype i) { return metrika.horizontalAdvance(text.left(text.indexOf(slova[i]))); };
    int x = 0;
    if (zahlavi != nullptr) {
        x = zacatek(0);
        zahlavi->setFixedWidth(x);
        rozlozeni->addWidget(zahlavi);
    }
    for (qsizetype i = 0; i < qsizetype(popisky.size()); ++i) {
        const int od = zacatek(i);
        const int do_ = i + 1 < slova.size()
                            ? zacatek(i + 1)
                            : od + std::max(metrika.horizontalAdvance(slova[i]), metrika.horizontalAdvance(vzor_posledniho));
        const int sirka = std::max(8, do_ - od - 4);
        popisky[std::size_t(i)]->setFixedWidth(sirka);
        rozlozeni->addSpacing(od - x);
        rozlozeni->addWidget(popisky[std::size_t(i)]);
        x = od + sirka;
    }
    rozlozeni->addStretch();
    return radek;
}

void Jen_Cislice(QLineEdit* pole) {
    if (pole != nullptr)
        pole->installEventFilter(new Filtr_Cislic(pole));
}

void Vyber_Text(QLineEdit* pole) {
    if (pole != nullptr)
        pole->selectAll();
}

void Vybirej_Pri_Vstupu(QLineEdit* pole) {
    if (pole != nullptr)
        pole->installEventFilter(new Vyber_Pri_Vstupu(pole));
}

void Zobraz_Suda_Licha(QWidget* okno, int suda, int licha) {
    if (okno == nullptr)
        return;
    const bool prazdne = suda == 0 && licha == 0;
    if (auto* sude = okno->findChild<QLabel*>(u"lblSude"_qs))
        sude->setText(prazdne ? QString() : QString::number(suda));
    if (auto* liche = okno->findChild<QLabel*>(u"lblLiche"_qs))
        liche->setText(prazdne ? QString() : QString::number(licha));
}

void Napoveda(QWidget* okno, const QString& klic) {
    if (okno != nullptr)
        okno->setProperty("Napoveda", modTombi::Napoveda(klic));
}

} // namespace modNastaveni_Ovladani
