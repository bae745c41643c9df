#include "app/frmOProgramu.h"

#include "app/Relace.h"
#include "core/Tabulka_Textu.h"
#include "app/frmMDITombi.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmOProgramu::frmOProgramu(const QString& verze, QWidget* parent)
    : QWidget(parent), lblNazev(new QLabel(u"TOMBI"_qs, this)), lblPodtitul(new QLabel(this)),
      lblVerze(new QLabel(this)), lblPopis(new QLabel(this)), lblDomovska(new QLabel(this)),
      cmdOK(new QPushButton(this)) {
    const Tabulka_Textu& texty = Tabulka_Textu::Programu();
    const auto text = [&](const QString& jmeno) { return texty.Text(u"frmOProgramu."_qs + jmeno); };
    setObjectName(u"frmOProgramu"_qs);
    setWindowTitle(texty.Text(u"frmOProgramu"_qs));

    lblNazev->setObjectName(u"lblNazev"_qs);
    lblPodtitul->setObjectName(u"lblPodtitul"_qs);
    lblVerze->setObjectName(u"lblVerze"_qs);
    lblPopis->setObjectName(u"lblPopis"_qs);
    lblDomovska->setObjectName(u"lblDomovska"_qs);
    cmdOK->setObjectName(u"cmdOK"_qs);

    // The head: the name on the blue of the help pages.
    auto* hlavicka = new QFrame(this);
    hlavicka->setObjectName(u"Hlavicka"_qs);
    hlavicka->setStyleSheet(u"#Hlavicka { background-color: #0b4f8a; }"
                            u"#Hlavicka QLabel { color: white; background: transparent; }"_qs);
    QFont pismo = lblNazev->font();
    pismo.setPointSizeF(pismo.pointSizeF() * 2.6);
    pismo.setBold(true);
    pismo.setLetterSpacing(QFont::PercentageSpacing, 112);
    lblNazev->setFont(pismo);
    lblPodtitul->setText(text(u"lblPodtitul"_qs));
    auto* hlava = new QVBoxLayout(hlavicka);
    hlava->setContentsMargins(22, 16, 22, 14);
    hlava->setSpacing(2);
    hlava->addWidget(lblNazev);
    hlava->addWidget(lblPodtitul);

    QFont tucne = lblVerze->font();
    tucne.setBold(true);
    lblVerze->setFont(tucne);
    lblVerze->setText(text(u"lblVerze"_qs) + verze);
    lblPopis->setText(text(u"lblPopis"_qs));
    lblPopis->setWordWrap(true);
    lblDomovska->setText(text(u"lblDomovska"_qs).toHtmlEscaped() + u"<a href=\""_qs + Domovska_Stranka + u"\">"_qs +
                         Domovska_Stranka + u"</a>"_qs);
    lblDomovska->setTextFormat(Qt::RichText);
    lblDomovska->setOpenExternalLinks(true);
    cmdOK->setText(text(u"cmdOK"_qs));
    cmdOK->setDefault(true);
    cmdOK->setMinimumWidth(90);

    auto* tlacitka = new QHBoxLayout;
    tlacitka->addStretch();
    tlacitka->addWidget(cmdOK);
    auto* telo = new QVBoxLayout;
    telo->setContentsMargins(22, 14, 22, 16);
    telo->setSpacing(10);
    telo->addWidget(lblVerze);
    telo->addWidget(lblPopis);
    telo->addWidget(lblDomovska);
    telo->addStretch();
    telo->addLayout(tlacitka);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    rozlozeni->setSpacing(0);
    rozlozeni->addWidget(hlavicka);
    rozlozeni->addLayout(telo, 1);
    // Wide enough for the home page on one line; as high as the wrapped description needs.
    constexpr int Sirka = 420;
    setFixedSize(Sirka, rozlozeni->hasHeightForWidth() ? rozlozeni->totalHeightForWidth(Sirka) : sizeHint().height());

    connect(cmdOK, &QPushButton::clicked, this, &QWidget::close);
}

void frmOProgramu::Pripoj_Prikazy(frmMDITombi& ram) {
    ram.Obsluz(ram.mnuOProgramu, [&ram] { ram.Otevri_Okno<frmOProgramu>(ram.Sezeni().Verze); });
    ram.Obsluz(ram.mnuWebTombi, [&ram] { ram.Otevri_Web(Domovska_Stranka); });
}
