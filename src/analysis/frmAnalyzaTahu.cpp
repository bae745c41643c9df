#include "analysis/frmAnalyzaTahu.h"

#include "analysis/Soubor_Analyzy.h"
#include "analysis/frmAnalyzaTahu_Graf.h"
#include "analysis/frmVypisAnalyz.h"
#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmKresleni.h"
#include "app/frmMDITombi.h"
#include "app/frmOvladani.h"
#include "app/frmTiskarna.h"
#include "archive/frmVypisTahu.h"
#include "core/Dialogy.h"
#include "core/Hodiny.h"
#include "core/Vb.h"
#include "data/Chyby_A_Prehled.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTextEdit>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

using modNastaveni_Ovladani::Cele_Cislo;
using modNastaveni_Ovladani::Indexem;

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmAnalyzaTahu"_qs};
const QString Zpetne = u"Analýza tahů - tahy zpětně"_qs;
const QString Od_Do = u"Analýza tahů - tahy OD-DO"_qs;
constexpr int Nejvic_Radku = 4000;
const QColor Oznacena(0xFF, 0xC0, 0xC0); // 0xC0C0FF of the classic palette

void Podbarvi(QWidget* prvek, const QColor& barva) {
    QPalette paleta = prvek->palette();
    paleta.setColor(prvek->backgroundRole(), barva);
    prvek->setPalette(paleta);
    prvek->setAutoFillBackground(true);
}

} // namespace

frmAnalyzaTahu::frmAnalyzaTahu(frmMDITombi& ram, QWidget* parent)
    : QWidget(parent), txtPocet_1Tahu(Okno.Pojmenuj(new QLineEdit(this), u"txtPocet_1Tahu"_qs)),
      txtPocet_2Tahu(Okno.Pojmenuj(new QLineEdit(this), u"txtPocet_2Tahu"_qs)),
      txtOd_Tah1(Okno.Pojmenuj(new QLineEdit(this), u"txtOd_Tah1"_qs)),
      txtDo_Tah1(Okno.Pojmenuj(new QLineEdit(this), u"txtDo_Tah1"_qs)),
      txtOd_Tah2(Okno.Pojmenuj(new QLineEdit(this), u"txtOd_Tah2"_qs)),
      txtDo_Tah2(Okno.Pojmenuj(new QLineEdit(this), u"txtDo_Tah2"_qs)),
      Check1(Okno.Pojmenuj(new QCheckBox(this), u"Check1"_qs)),
      chkDodatkova_Cisla(Okno.Pojmenuj(new QCheckBox(this), u"chkDodatkova_Cisla"_qs)), Zalozky(new QTabWidget(this)),
      RichTextBox1(Okno.Pojmenuj(new QTextEdit(this), u"RichTextBox1"_qs)),
      Graf(new frmAnalyzaTahu_Graf(ram.Sezeni(), this)),
      txtVypisAnalyzyTahuPopis(Okno.Pojmenuj(new QLabel(this), u"txtVypisAnalyzyTahuPopis"_qs)),
      lblSude(Okno.Pojmenuj(new QLabel(this), u"lblSude"_qs)),
      lblLiche(Okno.Pojmenuj(new QLabel(this), u"lblLiche"_qs)),
      cmdVymaz(Okno.Pojmenuj(new QPushButton(this), u"cmdVymaz"_qs)),
      cmdTisk(Okno.Pojmenuj(new QPushButton(this), u"cmdTisk"_qs)),
      cmdOK(Okno.Pojmenuj(new QPushButton(this), u"cmdOK"_qs)),
      cmdZrusit(Okno.Pojmenuj(new QPushButton(this), u"cmdZrusit"_qs)), Ram(ram), Sezeni(ram.Sezeni()) {
    setObjectName(Okno.Jmeno);
    modNastaveni_Ovladani::Napoveda(this, u"Anal"_qs);
    Sezeni.Formular_Otevren_Analyza = true;
    for (int i = 0; i < 2; ++i)
        otpTypVypisu[std::size_t(i)] = Okno.Pojmenuj(new QRadioButton(this), Indexem(u"otpTypVypisu"_qs, i));
    otpTypVypisu[0]->setChecked(true);

    QFont pevne(u"DejaVu Sans Mono"_qs);
    pevne.setPointSize(9);
    RichTextBox1->setFont(pevne);
    RichTextBox1->setReadOnly(true);
    RichTextBox1->setLineWrapMode(QTextEdit::FixedPixelWidth);
    RichTextBox1->viewport()->installEventFilter(this);
    Zalozky->addTab(RichTextBox1, Okno.Text(u"Zalozka_Vypis"_qs));
    Zalozky->addTab(Graf, Okno.Text(u"Zalozka_Graf"_qs));
    Graf->setObjectName(u"Graf"_qs);

    auto* vlevo = new QVBoxLayout;
    vlevo->addWidget(Rozsah());
    vlevo->addWidget(Typy());
    auto* vypis = new QHBoxLayout;
    for (QRadioButton* volba : otpTypVypisu)
        vypis->addWidget(volba);
    vypis->addStretch();
    vlevo->addLayout(vypis);
    auto* tlacitka = new QHBoxLayout;
    tlacitka->addWidget(cmdOK);
    tlacitka->addWidget(cmdZrusit);
    vlevo->addLayout(tlacitka);
    vlevo->addStretch();

    auto* vpravo = new QVBoxLayout;
    vpravo->addWidget(Zalozky, 1);
    auto* pod = new QHBoxLayout;
    pod->addWidget(txtVypisAnalyzyTahuPopis);
    pod->addWidget(new QLabel(Okno.Text(u"lblRadku"_qs), this));
    pod->addSpacing(12);
    pod->addWidget(new QLabel(Okno.Text(u"lblSude_Popis"_qs), this));
    pod->addWidget(lblSude);
    pod->addWidget(new QLabel(Okno.Text(u"lblLiche_Popis"_qs), this));
    pod->addWidget(lblLiche);
    pod->addStretch();
    pod->addWidget(cmdVymaz);
    pod->addWidget(cmdTisk);
    vpravo->addLayout(pod);

    auto* rozlozeni = new QHBoxLayout(this);
    rozlozeni->addLayout(vlevo);
    rozlozeni->addLayout(vpravo, 1);
    cmdOK->setDefault(true);

    connect(cmdOK, &QPushButton::clicked, this, &frmAnalyzaTahu::cmdOK_Click);
    // The draw list came with this window and goes with it.
    connect(cmdZrusit, &QPushButton::clicked, this, [this] {
        Ram.Zavri_Okno<frmVypisTahu>();
        close();
    });
    connect(cmdVymaz, &QPushButton::clicked, this, &frmAnalyzaTahu::cmdVymaz_Click);
    connect(cmdTisk, &QPushButton::clicked, this, &frmAnalyzaTahu::cmdTisk_Click);

    // The load: draws counted back over the whole archive, the ranges of the settings.
    const auto [prvni, druhe] = Spocitej_Tahy(Sezeni.Archiv);
    Celkem_Tahu = {prvni, druhe};
    Sezeni.Vybrana_Cisla.fill(0);
    optVolba_Tydnu[0]->setChecked(true);
    optVolba_Tydnu_Click(0);
    txtPocet_1Tahu->setText(QString::number(Celkem_Tahu[0]));
    txtPocet_2Tahu->setText(QString::number(Celkem_Tahu[1]));
    Nastav_Rozsah();
    optTyp[0]->setChecked(true);
    optTyp_Click(0);
    Nacteno = true;
    Nastav_Prahy(Cele_Cislo(txtPocet_2Tahu));
    txtVypisAnalyzyTahuPopis->setMinimumWidth(fontMetrics().horizontalAdvance(u"00000"_qs));
    txtVypisAnalyzyTahuPopis->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    resize(qRound(frmKresleni::Pixely(14500, *this)), qRound(frmKresleni::Pixely_Y(8500, *this)));
}

frmAnalyzaTahu::~frmAnalyzaTahu() {
    Sezeni.Formular_Otevren_Analyza = false;
}

QWidget* frmAnalyzaTahu::Rozsah() {
    auto* ramec = Okno.Pojmenuj(new QGroupBox(this), u"fraRozsah"_qs);
    auto* mrizka = new QGridLayout(ramec);
    const int sirka = fontMetrics().horizontalAdvance(u"000000"_qs) + 10;
    for (int i = 0; i < 2; ++i) {
        optVolba_Tydnu[std::size_t(i)] = Okno.Pojmenuj(new QRadioButton(ramec), Indexem(u"optVolba_Tydnu"_qs, i));
        connect(optVolba_Tydnu[std::size_t(i)], &QRadioButton::clicked, this, [this, i] { optVolba_Tydnu_Click(i); });
    }
    mrizka->addWidget(optVolba_Tydnu[0], 0, 0);
    mrizka->addWidget(txtPocet_1Tahu, 0, 1);
    mrizka->addWidget(txtPocet_2Tahu, 0, 2);
    mrizka->addWidget(optVolba_Tydnu[1], 1, 0);
    mrizka->addWidget(new QLabel(Okno.Text(u"lblTah1_Od_Do"_qs), ramec), 2, 0);
    mrizka->addWidget(txtOd_Tah1, 2, 1);
    mrizka->addWidget(txtDo_Tah1, 2, 2);
    mrizka->addWidget(new QLabel(Okno.Text(u"lblTah2_Od_Do"_qs), ramec), 3, 0);
    mrizka->addWidget(txtOd_Tah2, 3, 1);
    mrizka->addWidget(txtDo_Tah2, 3, 2);
    mrizka->addWidget(Check1, 4, 0, 1, 3);
    const std::array<QLineEdit*, 6> pole{txtPocet_1Tahu, txtPocet_2Tahu, txtOd_Tah1,
                                         txtDo_Tah1,     txtOd_Tah2,     txtDo_Tah2};
    for (QLineEdit* p : pole) {
        p->setMaximumWidth(sirka);
        p->setMaxLength(5);
        modNastaveni_Ovladani::Jen_Cislice(p);
        modNastaveni_Ovladani::Vybirej_Pri_Vstupu(p);
    }
    connect(txtPocet_1Tahu, &QLineEdit::textChanged, this, [this] { Pocet_Zmenen(1); });
    connect(txtPocet_2Tahu, &QLineEdit::textChanged, this, [this] { Pocet_Zmenen(2); });
    connect(txtOd_Tah1, &QLineEdit::textChanged, this, [this] { Od_Zmenen(1); });
    connect(txtOd_Tah2, &QLineEdit::textChanged, this, [this] { Od_Zmenen(2); });
    connect(txtDo_Tah1, &QLineEdit::textChanged, this, [this] { Do_Zmenen(1); });
    connect(txtDo_Tah2, &QLineEdit::textChanged, this, [this] { Do_Zmenen(2); });
    connect(Check1, &QCheckBox::clicked, this, &frmAnalyzaTahu::Check1_Click);
    return ramec;
}

QWidget* frmAnalyzaTahu::Typy() {
    auto* ramec = Okno.Pojmenuj(new QGroupBox(this), u"fraTyp"_qs);
    auto* mrizka = new QGridLayout(ramec);
    mrizka->setVerticalSpacing(2);
    const int sirka = fontMetrics().horizontalAdvance(u"0000"_qs) + 10;
    for (int i = 0; i < Pocet_Analyz; ++i) {
        optTyp[std::size_t(i)] = Okno.Pojmenuj(new QRadioButton(ramec), Indexem(u"optTyp"_qs, i));
        mrizka->addWidget(optTyp[std::size_t(i)], i, 0);
        connect(optTyp[std::size_t(i)], &QRadioButton::clicked, this, [this, i] { optTyp_Click(i); });
        const Popis_Analyzy& popis = Popis(::Typ_Analyzy(i));
        if (popis.Prah.isEmpty())
            continue;
        auto* prah = Okno.Pojmenuj(new QLineEdit(ramec), popis.Prah);
        prah->setText(Vb::Text(popis.Vychozi_Prah));
        prah->setMaximumWidth(sirka);
        prah->setMaxLength(4);
        modNastaveni_Ovladani::Jen_Cislice(prah);
        modNastaveni_Ovladani::Vybirej_Pri_Vstupu(prah);
        Prahy[std::size_t(i)] = prah;
        mrizka->addWidget(prah, i, 1);
        if (i == int(::Typ_Analyzy::Interval_Cisla))
            connect(prah, &QLineEdit::textChanged, this, [prah] {
                if (Vb::Val(prah->text()) > 999)
                    prah->setText(u"0"_qs);
            });
    }
    // Statistic 6: below or above the average, beside "než prům.".
    auto* prumer = new QHBoxLayout;
    for (int i = 0; i < 2; ++i) {
        lblPrumer[std::size_t(i)] = Okno.Pojmenuj(new QLabel(ramec), Indexem(u"lblPrumer"_qs, i));
        lblPrumer[std::size_t(i)]->setAlignment(Qt::AlignCenter);
        lblPrumer[std::size_t(i)]->setFrameShape(QFrame::Box);
        lblPrumer[std::size_t(i)]->setMinimumWidth(sirka / 2);
        lblPrumer[std::size_t(i)]->installEventFilter(this);
        prumer->addWidget(lblPrumer[std::size_t(i)]);
    }
    prumer->addWidget(new QLabel(Okno.Text(u"lblPrumer_Popis"_qs), ramec));
    mrizka->addLayout(prumer, int(::Typ_Analyzy::Prumerne_Tazeno), 1, 1, 2);
    mrizka->addWidget(chkDodatkova_Cisla, Pocet_Analyz, 0, 1, 3);
    return ramec;
}

// ---- The statistic and the kind of range ----

void frmAnalyzaTahu::optTyp_Click(int index) {
    for (QLabel* smer : lblPrumer)
        Podbarvi(smer, Qt::white);
    chkDodatkova_Cisla->setEnabled(true);
    for (QRadioButton* volba : optVolba_Tydnu)
        volba->setEnabled(true);
    Typ_Analyzy = index;
    setWindowTitle(Popis_Okna + QString(20, u' ') + Popis(::Typ_Analyzy(index)).Nazev);
    if (index == int(::Typ_Analyzy::Interval_Cisla)) {
        // The interval runs only on draws counted back.
        optVolba_Tydnu[0]->setChecked(true);
        for (QRadioButton* volba : optVolba_Tydnu)
            volba->setEnabled(false);
    } else if (index == int(::Typ_Analyzy::Prumerne_Tazeno)) {
        Podbarvi(lblPrumer[0], Oznacena);
        Rezim_Prumeru = 0;
    } else if (index == int(::Typ_Analyzy::Cetnost_Dodatkovych)) {
        chkDodatkova_Cisla->setEnabled(false);
    }
}

void frmAnalyzaTahu::lblPrumer_Click(int index) {
    optTyp[std::size_t(::Typ_Analyzy::Prumerne_Tazeno)]->setChecked(true);
    Typ_Analyzy = int(::Typ_Analyzy::Prumerne_Tazeno);
    Rezim_Prumeru = index;
    Podbarvi(lblPrumer[std::size_t(index)], Oznacena);
    Podbarvi(lblPrumer[std::size_t(1 - index)], Qt::white);
}

void frmAnalyzaTahu::optVolba_Tydnu_Click(int index) {
    Nastav_Rozsah();
    // The tail after the 27th character: the blanks and the statistic's name. After the shorter
    // caption of OD-DO the same cut takes one blank too few, as it always has.
    const QString konec = windowTitle().mid(26);
    const QColor bila(Qt::white);
    const QColor seda = palette().color(QPalette::Light);
    for (QLineEdit* p : {txtPocet_1Tahu, txtPocet_2Tahu})
        Podbarvi(p, index == 0 ? bila : seda);
    for (QLineEdit* p : {txtOd_Tah1, txtDo_Tah1, txtOd_Tah2, txtDo_Tah2})
        Podbarvi(p, index == 0 ? seda : bila);
    if (index == 0) {
        Popis_Okna = Zpetne;
        // A comparison of the texts: "9" sorts after "10".
        const bool druhy_dal = Vb::Porovnej_Jako_Text(txtPocet_2Tahu->text(), txtPocet_1Tahu->text()) > 0;
        Nastav_Prahy(Cele_Cislo(druhy_dal ? txtPocet_1Tahu : txtPocet_2Tahu));
    } else {
        Popis_Okna = Od_Do;
        const int d1 = Cele_Cislo(txtDo_Tah1) - Cele_Cislo(txtOd_Tah1);
        const int d2 = Cele_Cislo(txtDo_Tah2) - Cele_Cislo(txtOd_Tah2);
        Nastav_Prahy(d2 >= d1 ? d2 : d1);
    }
    setWindowTitle(Popis_Okna + konec);
}

void frmAnalyzaTahu::Nastav_Rozsah() {
    const Nastaveni_Zaznam& n = Sezeni.Nastaveni;
    const bool streda = Sezeni.Tikety.Den_Tahu == 1;
    const double odecist = Vb::Val(n.Odecist_Tahy);
    Meni = true;
    txtDo_Tah1->setText(Vb::Text(Celkem_Tahu[0] - odecist));
    txtDo_Tah2->setText(Vb::Text(Celkem_Tahu[1] - odecist));
    txtOd_Tah1->setText(Vb::Text(Celkem_Tahu[0] - Vb::Val(streda ? n.Od_Do_1Tah_Str : n.Od_Do_1Tah_Ned)));
    txtOd_Tah2->setText(Vb::Text(Celkem_Tahu[1] - Vb::Val(streda ? n.Od_Do_2Tah_Str : n.Od_Do_2Tah_Ned)));
    for (QLineEdit* od : {txtOd_Tah1, txtOd_Tah2})
        if (Vb::Val(od->text()) < 1)
            od->setText(u"1"_qs);
    Meni = false;
}

void frmAnalyzaTahu::Nastav_Prahy(int n) {
    if (n < 1 || !Nacteno || Sezeni.Nastaveni.Prepocitat_Hodnoty == 0)
        return;
    const auto nastav = [this](::Typ_Analyzy typ, double hodnota, double nejmene) {
        Prahy[std::size_t(typ)]->setText(Vb::Text(hodnota < nejmene ? nejmene : hodnota));
    };
    double nasobek = Vb::Int(std::sqrt(double(n)));
    if (n > 100)
        nasobek *= 2;
    nastav(::Typ_Analyzy::Cetnost_Cisel, nasobek, 1);
    nastav(::Typ_Analyzy::Cetnost_Dodatkovych, Vb::Int((n / 23.0 + 0.5) / 3), 1);
    nastav(::Typ_Analyzy::Dvojice_Cisel, Vb::Int(n * 0.02), 1);
    nastav(::Typ_Analyzy::Dvojice_Cisel_Volne, Vb::Int(n * 0.02), 3);
    nastav(::Typ_Analyzy::Trojice_Cisel, Vb::Int(n / 250.0), 1);
}

// ---- The range boxes ----

void frmAnalyzaTahu::Nastav_Text(QLineEdit* pole, const QString& text) {
    pole->setText(text);
    pole->selectAll();
}

void frmAnalyzaTahu::Pocet_Zmenen(int tah) {
    if (!Nacteno || Meni || !optVolba_Tydnu[0]->isChecked())
        return;
    QLineEdit* pole = tah == 1 ? txtPocet_1Tahu : txtPocet_2Tahu;
    QLineEdit* druhe = tah == 1 ? txtPocet_2Tahu : txtPocet_1Tahu;
    const int celkem = Celkem_Tahu[std::size_t(tah - 1)];
    Meni = true;
    if (Check1->isChecked()) {
        druhe->setText(pole->text());
        if (Cele_Cislo(druhe) == Celkem_Tahu[std::size_t(2 - tah)])
            druhe->selectAll();
    }
    if (Cele_Cislo(pole) > celkem)
        Nastav_Text(pole, QString::number(celkem));
    if (Cele_Cislo(pole) < 1)
        Nastav_Text(pole, u"1"_qs);
    Meni = false;
    Nastav_Prahy(std::min(Cele_Cislo(txtPocet_1Tahu), Cele_Cislo(txtPocet_2Tahu)));
}

void frmAnalyzaTahu::Od_Zmenen(int tah) {
    if (!Nacteno || Meni || !optVolba_Tydnu[1]->isChecked())
        return;
    QLineEdit* od = tah == 1 ? txtOd_Tah1 : txtOd_Tah2;
    QLineEdit* do_ = tah == 1 ? txtDo_Tah1 : txtDo_Tah2;
    Meni = true;
    if (Cele_Cislo(do_) < Cele_Cislo(od))
        do_->setText(od->text());
    if (Cele_Cislo(od) < 1 || Cele_Cislo(od) > Celkem_Tahu[std::size_t(tah - 1)]) {
        Nastav_Text(od, u"1"_qs);
    } else {
        if (Check1->isChecked())
            (tah == 1 ? txtOd_Tah2 : txtOd_Tah1)->setText(od->text());
        od->end(false);
    }
    Meni = false;
    Nastav_Prahy(Cele_Cislo(do_) - Cele_Cislo(od));
}

void frmAnalyzaTahu::Do_Zmenen(int tah) {
    if (!Nacteno || Meni || !optVolba_Tydnu[1]->isChecked())
        return;
    QLineEdit* od = tah == 1 ? txtOd_Tah1 : txtOd_Tah2;
    QLineEdit* do_ = tah == 1 ? txtDo_Tah1 : txtDo_Tah2;
    Meni = true;
    if (Cele_Cislo(do_) < 1 || Cele_Cislo(do_) > Celkem_Tahu[std::size_t(tah - 1)]) {
        // Back to the last index of the previous run, not to the total.
        const std::array<int, 2>& posledni = Sezeni.Analyza.Pocet_Tahy;
        const int zpet = tah == 2 || Check1->isChecked() ? posledni[1] : posledni[0];
        Nastav_Text(do_, QString::number(zpet));
    } else {
        // A comparison of the texts: "10" sorts before "9".
        if (!Check1->isChecked() && Vb::Porovnej_Jako_Text(do_->text(), od->text()) < 0)
            od->setText(do_->text());
        if (Check1->isChecked())
            (tah == 1 ? txtDo_Tah2 : txtDo_Tah1)->setText(do_->text());
        do_->end(false);
    }
    Meni = false;
    Nastav_Prahy(Cele_Cislo(do_) - Cele_Cislo(od));
}

void frmAnalyzaTahu::Check1_Click() {
    Meni = true;
    if (Check1->isChecked()) {
        // Both ranges become the one with the smaller last index.
        if (Cele_Cislo(txtDo_Tah1) > Cele_Cislo(txtDo_Tah2)) {
            txtDo_Tah1->setText(txtDo_Tah2->text());
            txtOd_Tah1->setText(txtOd_Tah2->text());
        } else {
            txtDo_Tah2->setText(txtDo_Tah1->text());
            txtOd_Tah2->setText(txtOd_Tah1->text());
        }
    } else {
        Nastav_Rozsah();
    }
    const int d1 = Cele_Cislo(txtDo_Tah1) - Cele_Cislo(txtOd_Tah1);
    const int d2 = Cele_Cislo(txtDo_Tah2) - Cele_Cislo(txtOd_Tah2);
    if (Check1->isChecked()) {
        if (Cele_Cislo(txtPocet_1Tahu) > Cele_Cislo(txtPocet_2Tahu))
            txtPocet_1Tahu->setText(txtPocet_2Tahu->text());
        else
            txtPocet_2Tahu->setText(txtPocet_1Tahu->text());
    } else {
        txtPocet_1Tahu->setText(QString::number(Celkem_Tahu[0]));
        txtPocet_2Tahu->setText(QString::number(Celkem_Tahu[1]));
    }
    Meni = false;
    Nastav_Prahy(d2 >= d1 ? d2 : d1);
}

// ---- A run ----

void frmAnalyzaTahu::cmdOK_Click() {
    if (otpTypVypisu[0]->isChecked()) {
        RichTextBox1->clear();
        Vypis_Analyz.clear();
        txtVypisAnalyzyTahuPopis->setText(u"0"_qs);
    }
    Sezeni.Sluzby->Nastav_Status(QString(), QString());
    Stav_Analyzy& stav = Sezeni.Analyza;
    Archiv_Tahu& archiv = Sezeni.Archiv;
    Zadani_Analyzy z;
    if (optVolba_Tydnu[1]->isChecked()) {
        z.Rady[0] = Rada_Od_Do(archiv.Tahy_1, Cele_Cislo(txtOd_Tah1), Cele_Cislo(txtDo_Tah1));
        z.Rady[1] = Rada_Od_Do(archiv.Tahy_2, Cele_Cislo(txtOd_Tah2), Cele_Cislo(txtDo_Tah2));
    } else {
        z.Rady[0] = Rada_Zpetne(archiv.Tahy_1, Celkem_Tahu[0], Cele_Cislo(txtPocet_1Tahu));
        z.Rady[1] = Rada_Zpetne(archiv.Tahy_2, Celkem_Tahu[1], Cele_Cislo(txtPocet_2Tahu));
    }
    for (std::size_t i = 0; i < 2; ++i) {
        stav.Pocet_Tahy[i] = z.Rady[i].Pocet_Tahy;
        stav.Rozsah_Tahu[i] = z.Rady[i].Rozsah_Tahu;
    }
    const bool dodatkova = chkDodatkova_Cisla->isChecked();
    z.Cisel_V_Tahu = dodatkova ? 7 : 6;
    if (QLineEdit* prah = Prahy[std::size_t(Typ_Analyzy)])
        z.Prah = Vb::Val(prah->text());
    z.Rezim_Prumeru = Rezim_Prumeru;

    Vysledek_Analyzy v;
    {
        const Prace prace(Sezeni.Sluzby);
        v = Analyzuj(::Typ_Analyzy(Typ_Analyzy), z, prace.Prubeh_Prace());
    }
    // A statistic that fails adds nothing: the report stands as it was. The rows statistic has
    // written its first series to the file before the second failed; the average has no handler of
    // its own, so its fault is the run's, with the error report.
    if (v.Selhala) {
        if (Typ_Analyzy == int(::Typ_Analyzy::Sloupce_Radky) && !v.Text_1.isEmpty())
            Zapis_Analyza(Sezeni.Nastaveni, 1, Nadpis_Analyzy(v, dodatkova) + v.Text_1, QString(), QString());
        if (Typ_Analyzy == int(::Typ_Analyzy::Prumerne_Tazeno))
            Zapis_Chybu(Sezeni.Adresar_Dat(), u"cmdOK, frmAnalyzaTahu"_qs, Sezeni.Archiv.Soubor_Tahu,
                        u"Číslo tahu mimo rozsah 1 až 49."_qs, Sezeni.Dialog);
        return;
    }
    const QString nadpis = Nadpis_Analyzy(v, dodatkova);
    const Nastaveni_Zaznam& n = Sezeni.Nastaveni;
    QString chyba = Zapis_Analyza(n, 1, nadpis + v.Text_1, QString(), QString()).Zprava;
    Vypis_Analyz += Vypis_Behu(v, dodatkova);
    if (const int okraj = Popis(::Typ_Analyzy(Typ_Analyzy)).Okraj; okraj > 0)
        RichTextBox1->setLineWrapColumnOrWidth(qRound(frmKresleni::Pixely(okraj, *this)));
    Zobraz_Vypis();
    if (chyba.isEmpty())
        chyba = Zapis_Analyza(n, 2, QString(), nadpis + v.Text_2, QString()).Zprava;
    if (chyba.isEmpty())
        chyba = Zapis_Analyza(n, 0, QString(), QString(), nadpis + v.Text_1 + u'\n' + v.Text_2).Zprava;
    if (chyba.isEmpty() && n.Zapis_Analyzy != 0)
        chyba = Ocisti_Analyza(n).Zprava;
    if (!chyba.isEmpty())
        Sezeni.Sluzby->Zprava(chyba);
    else if (n.Zapis_Analyzy != 0 && n.Otevirat_Soubor != 0)
        frmVypisAnalyz::Po_Zapisu_Analyzy(Ram);
    Graf->Zobraz(v.Graf);
}

void frmAnalyzaTahu::Zobraz_Vypis() {
    const qsizetype radku = Vypis_Analyz.count(u'\n');
    if (radku > Nejvic_Radku) {
        cmdVymaz_Click();
        Sezeni.Sluzby->Zprava(u"Maximální počet řádků ve výpisu je 4000 !"_qs);
        txtVypisAnalyzyTahuPopis->setText(u"0"_qs);
        return;
    }
    RichTextBox1->setPlainText(Vypis_Analyz);
    txtVypisAnalyzyTahuPopis->setText(QString::number(radku));
}

void frmAnalyzaTahu::cmdVymaz_Click() {
    // The text of the runs stays, so that with "hromadně" the next run brings it back.
    RichTextBox1->clear();
    txtVypisAnalyzyTahuPopis->clear();
}

void frmAnalyzaTahu::cmdTisk_Click() {
    const std::unique_ptr<frmTiskarna> otevrena = frmTiskarna::Po_Dialogu(*Sezeni.Dialog, Sezeni.Sluzby);
    if (!otevrena)
        return;
    frmTiskarna& tisk = *otevrena;
    tisk.Pismo(u"DejaVu Sans Mono"_qs);
    tisk.Velikost(8);
    tisk.Radek();
    for (const QString& radek : RichTextBox1->toPlainText().split(u'\n'))
        tisk.Radek(radek);
    tisk.Konec();
}

// ---- Picking numbers out of the report ----

bool frmAnalyzaTahu::eventFilter(QObject* objekt, QEvent* udalost) {
    if (udalost->type() == QEvent::MouseButtonRelease) {
        if (objekt == RichTextBox1->viewport())
            Vyber_Cisla();
        for (int i = 0; i < 2; ++i)
            if (objekt == lblPrumer[std::size_t(i)])
                lblPrumer_Click(i);
    }
    return QWidget::eventFilter(objekt, udalost);
}

void frmAnalyzaTahu::Vyber_Cisla() {
    const QString vyber = RichTextBox1->textCursor().selectedText();
    if (vyber.isEmpty() || vyber.size() > 100)
        return;
    std::array<uint8_t, 50>& vybrana = Sezeni.Vybrana_Cisla;
    QString token;
    // A token of digits and "x" counts when it holds no "x" ("12x" is a count) and lies in 1..49;
    // the last one, cut by the selection, counts by its digits alone.
    for (const QChar znak : vyber) {
        if (znak.isDigit() || znak == u'x') {
            token += znak;
            continue;
        }
        if (const double n = Vb::Val(token); !token.contains(u'x') && n > 0 && n <= 49)
            vybrana[std::size_t(n)] = 1;
        token.clear();
    }
    if (const double n = Vb::Val(token); n > 0 && n <= 49)
        vybrana[std::size_t(n)] = 1;
    QString text;
    int pocet = 0;
    for (int i = 1; i <= 49; ++i)
        if (vybrana[std::size_t(i)] != 0) {
            text += Vb::Str(int64_t(i));
            ++pocet;
        }
    Sezeni.Sluzby->Nastav_Status(text, pocet > 0 ? QString::number(pocet) : QString());
    Graf->Zvyrazni(vybrana);
}

// ---- The automatic analysis ----

void frmAnalyzaTahu::Zvol_Typ(int index) {
    optTyp[std::size_t(index)]->setChecked(true);
    optTyp_Click(index);
}

void frmAnalyzaTahu::Analyza_Automaticky() {
    const std::array<int16_t, 10>& zvolene = Sezeni.Nastaveni.Auto_Analyza;
    // Entries of the settings' list in the order they run, with the statistic of each.
    constexpr std::array<std::pair<int, ::Typ_Analyzy>, 9> poradi{{{0, ::Typ_Analyzy::Cetnost_Cisel},
                                                                   {1, ::Typ_Analyzy::Cetnost_Dodatkovych},
                                                                   {2, ::Typ_Analyzy::Dvojice_Cisel},
                                                                   {3, ::Typ_Analyzy::Trojice_Cisel},
                                                                   {4, ::Typ_Analyzy::Dvojice_Cisel_Volne},
                                                                   {5, ::Typ_Analyzy::Prumerne_Tazeno},
                                                                   {6, ::Typ_Analyzy::Sloupce_Radky},
                                                                   {8, ::Typ_Analyzy::Suda_Licha},
                                                                   {9, ::Typ_Analyzy::Suma_Tahu}}};
    Vypis_Analyz.clear();
    bool probehlo = false;
    otpTypVypisu[1]->setChecked(true);
    optVolba_Tydnu[1]->setChecked(true);
    optVolba_Tydnu_Click(1);
    for (const auto& [polozka, typ] : poradi) {
        if (zvolene[std::size_t(polozka)] == 0)
            continue;
        Zvol_Typ(int(typ));
        cmdOK_Click();
        if (typ == ::Typ_Analyzy::Prumerne_Tazeno) {
            // Both directions: below the average first, then above.
            lblPrumer_Click(1);
            cmdOK_Click();
            lblPrumer_Click(0);
        }
        probehlo = true;
    }
    if (zvolene[7] != 0) {
        // The interval last: it forces draws counted back, over the last 45 of each series.
        txtPocet_1Tahu->setText(u"45"_qs);
        txtPocet_2Tahu->setText(u"45"_qs);
        Zvol_Typ(int(::Typ_Analyzy::Interval_Cisla));
        cmdOK_Click();
        probehlo = true;
    }
    Check1->setChecked(true);
    Check1_Click();
    Check1->setChecked(false);
    Check1_Click();
    otpTypVypisu[0]->setChecked(true);
    Zvol_Typ(0);
    if (!probehlo)
        Sezeni.Sluzby->Zprava(
            u"Automatická analýza nemá zvolenou žádnou analýzu. Zvolte je v Program - Nastavení, stránka "
            u"Automatická analýza; jednu analýzu spustí typ zvolený v tomto okně a \"Budiž\"."_qs);
}

// ---- Commands ----

void frmAnalyzaTahu::Pripoj_Prikazy(frmMDITombi& ram) {
    const auto otevri = [&ram]() -> frmAnalyzaTahu* {
        Relace& sezeni = ram.Sezeni();
        sezeni.Sluzby->Nastav_Status(QString(), QString());
        if (sezeni.Archiv.Pocet_Let == 0) {
            sezeni.Sluzby->Zprava(u"Chybí soubor tahů  \""_qs + sezeni.Archiv.Soubor_Tahu +
                                  u"\"  v aktuálním adresáři."_qs);
            return nullptr;
        }
        // The windows that must not stand beside the analysis go first; an open analysis stays.
        if (ram.Najdi_Okno<frmAnalyzaTahu>() == nullptr)
            ram.Zavri_Pro_Analyzu();
        auto* okno = ram.Otevri_Okno<frmAnalyzaTahu>(ram);
        frmVypisTahu::Otevri_Pro_Analyzu(ram, okno);
        // A wide area gives the chart its width; the right edge stays for the viewer.
        if (auto* ramecek = qobject_cast<QMdiSubWindow*>(okno->parentWidget()))
            ramecek->resize(std::max(ramecek->width(), ram.Plocha()->viewport()->width() * 73 / 100),
                            ramecek->height());
        if (sezeni.Nastaveni.Zapis_Analyzy != 0) {
            const Vysledek hlava = Zahlavi_Analyza(sezeni.Nastaveni, sezeni.Analyza.Analyza_Zahlavi, sezeni.Cas->Ted());
            // A file started anew empties the open viewer, which itself shows where the reports go.
            frmVypisAnalyz* vypis = ram.Najdi_Okno<frmVypisAnalyz>();
            if (hlava.Ok() && vypis != nullptr && sezeni.Nastaveni.Spojovat_Soubor == 0)
                vypis->Vymaz_Text();
            if (!hlava.Ok())
                sezeni.Sluzby->Zprava(hlava.Zprava);
            else if (!sezeni.Vypis_Cisel)
                sezeni.Sluzby->Zprava(Text_Aktivni_Zapis);
        }
        return okno;
    };
    ram.Obsluz(ram.mnuAnalyza, [otevri] { otevri(); });
    ram.Obsluz(ram.mnuAnalyzaAutomat, [otevri] {
        if (frmAnalyzaTahu* okno = otevri())
            okno->Analyza_Automaticky();
    });
}
