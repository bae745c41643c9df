#include "app/frmPrehled.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "core/Tabulka_Textu.h"
#include "app/frmMDITombi.h"
#include "core/Vb.h"
#include "data/Chyby_A_Prehled.h"
#include "data/Soubory.h"

#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

frmPrehled::frmPrehled(const QString& cesta, QWidget* parent)
    : QWidget(parent), txtPrehled(new QPlainTextEdit(this)), cmdObnovit(new QPushButton(this)),
      cmdZavrit(new QPushButton(this)) {
    const Tabulka_Textu& texty = Tabulka_Textu::Programu();
    setObjectName(u"frmPrehled"_qs);
    setWindowTitle(texty.Text(u"frmPrehled"_qs));

    txtPrehled->setObjectName(u"txtPrehled"_qs);
    txtPrehled->setReadOnly(true);
    txtPrehled->setLineWrapMode(QPlainTextEdit::NoWrap);
    const QFont pismo = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    txtPrehled->setFont(pismo);
    // The columns are tabs; eight characters a stop, as in the viewers the file was made for.
    txtPrehled->setTabStopDistance(8 * QFontMetricsF(pismo).horizontalAdvance(u' '));

    cmdObnovit->setObjectName(u"cmdObnovit"_qs);
    cmdObnovit->setText(texty.Text(u"frmPrehled.cmdObnovit"_qs));
    cmdZavrit->setObjectName(u"cmdZavrit"_qs);
    cmdZavrit->setText(texty.Text(u"frmPrehled.cmdZavrit"_qs));

    auto* tlacitka = new QHBoxLayout;
    tlacitka->addStretch();
    tlacitka->addWidget(cmdObnovit);
    tlacitka->addWidget(cmdZavrit);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->addWidget(txtPrehled, 1);
    rozlozeni->addLayout(tlacitka);

    connect(cmdObnovit, &QPushButton::clicked, this, &frmPrehled::Obnovit);
    connect(cmdZavrit, &QPushButton::clicked, this, &QWidget::close);
    Prevezmi(cesta);
}

void frmPrehled::Prevezmi(const QString& cesta) {
    Cesta = cesta;
    Obnovit();
}

void frmPrehled::Obnovit() {
    // New lines come at the end: a reload keeps the place the user was reading.
    const int radek = txtPrehled->verticalScrollBar()->value();
    const Nacteny_Soubor obsah = Nacti_Soubor(Cesta, Nejvic_Textu);
    if (!obsah.Ok()) {
        txtPrehled->setPlainText(obsah.Zprava(QDir::toNativeSeparators(Cesta)));
        return;
    }
    QString text = Vb::Z_1250(obsah.Data);
    text.replace(u"\r\n"_qs, u"\n"_qs).replace(u'\r', u'\n');
    txtPrehled->setPlainText(text);
    txtPrehled->verticalScrollBar()->setValue(radek);
}

QSize frmPrehled::sizeHint() const {
    return {640, 420};
}

void frmPrehled::Pripoj_Prikazy(frmMDITombi& ram) {
    ram.Obsluz(ram.mnuPrehled, [&ram] {
        const QString cesta = Spoj_Cestu(ram.Sezeni().Nastaveni.Adresare[2], Soubor_Prehledu);
        if (QFileInfo::exists(cesta))
            ram.Otevri_Okno<frmPrehled>(cesta);
        else
            ram.Sezeni().Sluzby->Zprava(u"Přehled souborů \""_qs + QDir::toNativeSeparators(cesta) +
                                        u"\" zatím neexistuje. Vznikne s prvním uložením tipů se seznamem sázejících."_qs);
    });
}
