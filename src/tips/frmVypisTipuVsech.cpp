#include "tips/frmVypisTipuVsech.h"

#include "app/Relace.h"
#include "core/Tabulka_Textu.h"
#include "core/Vb.h"
#include "app/frmKresleni.h"
#include "app/frmMDITombi.h"
#include "app/frmOvladani.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTextEdit>
#include <QVBoxLayout>

#include <set>

namespace {

constexpr double Vyska_Okna = 4000;     // twips
constexpr double Nejmensi_Misto = 1000; // room beside the generator, twips

QMdiSubWindow* Ramecek(const QWidget* okno) {
    return okno == nullptr ? nullptr : qobject_cast<QMdiSubWindow*>(okno->parentWidget());
}

} // namespace

frmVypisTipuVsech::frmVypisTipuVsech(frmMDITombi& ram, QWidget* parent)
    : QWidget(parent), rtbVypisTipuVsech(new QTextEdit(this)), Ram(ram), Sezeni(ram.Sezeni()) {
    setObjectName(u"frmVypisTipuVsech"_qs);
    setWindowTitle(Tabulka_Textu::Programu().Text(u"frmVypisTipuVsech"_qs));
    Sezeni.Vypis_Tipu_Vsech_Otevren = true;
    rtbVypisTipuVsech->setObjectName(u"rtbVypisTipuVsech"_qs);
    rtbVypisTipuVsech->setFont(QFont(u"Courier New"_qs, 10));
    rtbVypisTipuVsech->setLineWrapMode(QTextEdit::NoWrap);
    auto* nahore = new QHBoxLayout;
    for (int i = 0; i < 2; ++i) {
        lblTutovky[std::size_t(i)] = modNastaveni_Ovladani::Prvek(new QLabel(this), u"frmVypisTipuVsech"_qs,
                                                                  u"lblTutovky(%1)"_qs.arg(i));
        nahore->addWidget(lblTutovky[std::size_t(i)]);
    }
    nahore->addStretch();
    lblTutovky[0]->setWordWrap(false);
    lblTutovky[0]->installEventFilter(this);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->addLayout(nahore);
    rozlozeni->addWidget(rtbVypisTipuVsech, 1);
    resize(width(), qRound(frmKresleni::Pixely_Y(Vyska_Okna, *this)));
}

frmVypisTipuVsech::~frmVypisTipuVsech() {
    Sezeni.Vypis_Tipu_Vsech_Otevren = false;
}

void frmVypisTipuVsech::Zobraz(const QString& tipy, const QString& cisla) {
    rtbVypisTipuVsech->setPlainText(tipy);
    std::set<int> serazena;
    for (const QString& slovo : cisla.split(u' ', Qt::SkipEmptyParts))
        if (const int n = int(Vb::Val(slovo)); n != 0)
            serazena.insert(n);
    QString text;
    for (const int n : serazena)
        text += QString::number(n) + u' ';
    lblTutovky[0]->setText(text + u"  "_qs);
    lblTutovky[1]->setText(QString::number(serazena.size()) + u" tut."_qs);
}

void frmVypisTipuVsech::Umisti(const QWidget* generator) {
    QMdiSubWindow* ram = Ramecek(this);
    QMdiSubWindow* vedle = Ramecek(generator);
    if (ram == nullptr || ram->mdiArea() == nullptr)
        return;
    const int plocha = ram->mdiArea()->viewport()->width();
    const int vyska = qRound(frmKresleni::Pixely_Y(Vyska_Okna, *this));
    const int misto = vedle == nullptr ? 0 : plocha - (vedle->x() + vedle->width());
    if (vedle != nullptr && misto >= qRound(frmKresleni::Pixely(Nejmensi_Misto, *this)))
        ram->setGeometry(vedle->x() + vedle->width(), vedle->y(), misto, vyska);
    else
        ram->setGeometry(0, ram->y(), plocha, vyska);
}

bool frmVypisTipuVsech::eventFilter(QObject* objekt, QEvent* udalost) {
    // A double click on the numbers spreads the window over the whole area.
    if (objekt == lblTutovky[0] && udalost->type() == QEvent::MouseButtonDblClick)
        if (QMdiSubWindow* ram = Ramecek(this); ram != nullptr && ram->mdiArea() != nullptr) {
            const QWidget* plocha = ram->mdiArea()->viewport();
            ram->setGeometry(0, 0, plocha->width(), plocha->height() - 5);
        }
    return QWidget::eventFilter(objekt, udalost);
}
