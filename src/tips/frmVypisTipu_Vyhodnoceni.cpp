#include "tips/frmVypisTipu_Vyhodnoceni.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmKresleni.h"
#include "app/frmOvladani.h"
#include "core/Dialogy.h"
#include "core/Vb.h"
#include "data/Dny_Tahu.h"
#include "tips/Srovnani.h"
#include "tips/frmVypisTipu_Vyhry.h"

#include <QCheckBox>
#include <QDateTime>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

using modNastaveni_Ovladani::Cele_Cislo;
using modNastaveni_Ovladani::Indexem;
using modNastaveni_Ovladani::Prvek;

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmVypisTipu"_qs};
constexpr int32_t Barva_Vedle = 0xFFFF00; // near miss, blue-green-red
constexpr int32_t Barva_Zmeny = 255;      // red
constexpr int Souboru_Srovnani = 100;     // random files of the comparison with chance

} // namespace

frmVypisTipu_Vyhodnoceni::frmVypisTipu_Vyhodnoceni(Relace& sezeni, frmVypisTipu_Vyhry& vyhry, QWidget* parent)
    : QWidget(parent), Frame2(Okno.Pojmenuj(new QGroupBox(this), u"Frame2"_qs)),
      Label5(Okno.Pojmenuj(new QLabel(this), u"Label5"_qs)), Label6(Okno.Pojmenuj(new QLabel(this), u"Label6"_qs)),
      Label7(Okno.Pojmenuj(new QLabel(this), u"Label7"_qs)), Check1(Okno.Pojmenuj(new QCheckBox(this), u"Check1"_qs)),
      txtPocet_1Tahu(Okno.Pojmenuj(new QLineEdit(this), u"txtPocet_1Tahu"_qs)),
      txtPocet_2Tahu(Okno.Pojmenuj(new QLineEdit(this), u"txtPocet_2Tahu"_qs)),
      scrPocet_1Tahu(Okno.Pojmenuj(new QScrollBar(Qt::Horizontal, this), u"scrPocet_1Tahu"_qs)),
      scrPocet_2Tahu(Okno.Pojmenuj(new QScrollBar(Qt::Horizontal, this), u"scrPocet_2Tahu"_qs)),
      cmdGeneruji_Tip(Okno.Pojmenuj(new QPushButton(this), u"cmdGeneruji_Tip"_qs)),
      cmdOK(Okno.Pojmenuj(new QPushButton(this), u"cmdOK(0)"_qs)),
      cmdSrovnani(Okno.Pojmenuj(new QPushButton(this), u"cmdSrovnani"_qs)), Sezeni(sezeni), Vyhry(vyhry) {
    setObjectName(u"Picture1(2)"_qs);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    rozlozeni->addWidget(Druhy());
    rozlozeni->addWidget(Boxy());
    rozlozeni->addWidget(Pocty_Tahu());
    auto* tlacitka = new QHBoxLayout;
    tlacitka->addWidget(cmdGeneruji_Tip);
    tlacitka->addWidget(cmdSrovnani);
    tlacitka->addWidget(cmdOK);
    rozlozeni->addLayout(tlacitka);
    rozlozeni->addStretch();
    cmdOK->setDefault(true);

    connect(cmdGeneruji_Tip, &QPushButton::clicked, this, [this] {
        Nahodny_Los();
        emit Vyhodnotit();
    });
    connect(cmdSrovnani, &QPushButton::clicked, this, &frmVypisTipu_Vyhodnoceni::Srovnej);

    // The load: the kinds reset, the kept numbers back, the whole archive as the range.
    Sezeni.Random.Dolni_Mez = 1;
    Sezeni.Random.Horni_Mez = 49;
    Frame2->setTitle(Okno.Text(u"Frame2"_qs));
    Obnov_Cisla_Tahu();
    const Archiv_Tahu& archiv = Sezeni.Archiv;
    scrPocet_1Tahu->setRange(1, std::max(1, archiv.Pocet_Tahy_1));
    scrPocet_2Tahu->setRange(1, std::max(1, archiv.Pocet_Tahy_2));
    txtPocet_1Tahu->setText(QString::number(archiv.Pocet_Tahy_1));
    txtPocet_2Tahu->setText(QString::number(archiv.Pocet_Tahy_2));
    scrPocet_1Tahu->setValue(archiv.Pocet_Tahy_1);
    scrPocet_2Tahu->setValue(archiv.Pocet_Tahy_2);
    chkTah[0]->setChecked(true);
    chkTah[1]->setChecked(true);
    cmdGeneruji_Tip->setEnabled(false);
    Typ_Vyhodnoceni[0]->setChecked(true);
    Nastav_Typ_Vyhodnoceni();
    Nacita = false;
}

frmVypisTipu_Vyhodnoceni::~frmVypisTipu_Vyhodnoceni() = default;

QWidget* frmVypisTipu_Vyhodnoceni::Druhy() {
    auto* ramec = new QWidget(this);
    auto* mrizka = new QGridLayout(ramec);
    mrizka->setContentsMargins(0, 0, 0, 0);
    mrizka->setVerticalSpacing(0);
    mrizka->addWidget(new QLabel(Okno.Text(u"lblV_Tipech"_qs), ramec), 0, 0);
    mrizka->addWidget(new QLabel(Okno.Text(u"lblV_Tazich"_qs), ramec), 0, 1);
    const std::pair<int, int> mista[] = {{1, 0}, {1, 1}, {2, 1}, {2, 0}};
    for (int i = 0; i < 4; ++i) {
        Typ_Vyhodnoceni[std::size_t(i)] = Okno.Pojmenuj(new QRadioButton(ramec), Indexem(u"Typ_Vyhodnoceni"_qs, i));
        mrizka->addWidget(Typ_Vyhodnoceni[std::size_t(i)], mista[i].first, mista[i].second);
        connect(Typ_Vyhodnoceni[std::size_t(i)], &QRadioButton::clicked, this, [this, i] { Typ_Click(i); });
    }
    return ramec;
}

QWidget* frmVypisTipu_Vyhodnoceni::Boxy() {
    auto* mrizka = new QGridLayout(Frame2);
    mrizka->setHorizontalSpacing(2);
    const int sirka = fontMetrics().horizontalAdvance(u"000"_qs) + 8;
    for (int tah = 1; tah <= 2; ++tah) {
        const int r = (tah - 1) * 2;
        lblTahCislo[std::size_t(tah - 1)] = Okno.Pojmenuj(new QLabel(Frame2), Indexem(u"lblTahCislo"_qs, tah - 1));
        mrizka->addWidget(lblTahCislo[std::size_t(tah - 1)], r, 0, 1, 7);
        for (int i = 0; i < 7; ++i) {
            auto* box = Okno.Pojmenuj(new QLineEdit(Frame2), Indexem(tah == 1 ? u"Tah1"_qs : u"Tah2"_qs, i));
            (tah == 1 ? Tah1 : Tah2)[std::size_t(i)] = box;
            box->setMaxLength(2);
            box->setMaximumWidth(sirka);
            box->setAlignment(Qt::AlignCenter);
            modNastaveni_Ovladani::Jen_Cislice(box);
            modNastaveni_Ovladani::Vybirej_Pri_Vstupu(box);
            Nastav_Barvu(box, Qt::white);
            connect(box, &QLineEdit::textEdited, this, [this, tah, i] { Box_Zmenen(tah, i); });
            mrizka->addWidget(box, r + 1, i);
        }
        auto* smaz = Okno.Pojmenuj(new QPushButton(Frame2), Indexem(u"cmdClear_Tazena_Cisla"_qs, tah - 1));
        cmdClear_Tazena_Cisla[std::size_t(tah - 1)] = smaz;
        smaz->setMaximumWidth(sirka + 8);
        connect(smaz, &QPushButton::clicked, this, [this, tah] {
            for (int i = 0; i < 7; ++i) {
                Box(tah, i)->clear();
                Nastav_Barvu(Box(tah, i), Qt::white);
            }
            lblTahCislo[std::size_t(tah - 1)]->clear();
        });
        mrizka->addWidget(smaz, r + 1, 7);
    }
    auto* legenda = new QHBoxLayout;
    for (QLabel* popis : {Label5, Label6, Label7}) {
        popis->setAlignment(Qt::AlignCenter);
        popis->setAutoFillBackground(true);
        legenda->addWidget(popis);
    }
    mrizka->addLayout(legenda, 4, 0, 1, 8);
    return Frame2;
}

QWidget* frmVypisTipu_Vyhodnoceni::Pocty_Tahu() {
    auto* ramec = Okno.Pojmenuj(new QGroupBox(this), u"fraPocet_Tahu"_qs);
    auto* mrizka = new QGridLayout(ramec);
    mrizka->addWidget(Check1, 0, 0, 1, 3);
    for (int tah = 1; tah <= 2; ++tah) {
        QLineEdit* pole = tah == 1 ? txtPocet_1Tahu : txtPocet_2Tahu;
        QScrollBar* posuvnik = tah == 1 ? scrPocet_1Tahu : scrPocet_2Tahu;
        chkTah[std::size_t(tah - 1)] = Okno.Pojmenuj(new QCheckBox(ramec), Indexem(u"chkTah"_qs, tah - 1));
        mrizka->addWidget(chkTah[std::size_t(tah - 1)], tah, 0);
        mrizka->addWidget(pole, tah, 1);
        mrizka->addWidget(posuvnik, tah, 2);
        pole->setMaximumWidth(fontMetrics().horizontalAdvance(u"00000"_qs) + 12);
        modNastaveni_Ovladani::Jen_Cislice(pole);
        modNastaveni_Ovladani::Vybirej_Pri_Vstupu(pole);
        connect(pole, &QLineEdit::textChanged, this, [this, tah] { Pocet_Zmenen(tah); });
        connect(pole, &QLineEdit::editingFinished, this, [this, tah] { Pocet_Opusten(tah); });
        // The scroll bars follow their boxes, and a move of the bar writes the box.
        connect(posuvnik, &QScrollBar::valueChanged, this, [pole](int hodnota) {
            if (Cele_Cislo(pole) != hodnota)
                pole->setText(QString::number(hodnota));
        });
        connect(chkTah[std::size_t(tah - 1)], &QCheckBox::clicked, this, [this] {
            if (!chkTah[0]->isChecked() && !chkTah[1]->isChecked()) {
                chkTah[0]->setChecked(true);
                chkTah[1]->setChecked(true);
            }
        });
    }
    connect(Check1, &QCheckBox::clicked, this, &frmVypisTipu_Vyhodnoceni::Check1_Click);
    return ramec;
}

// ---- The kind of evaluation ----

void frmVypisTipu_Vyhodnoceni::Nastav_Typ_Vyhodnoceni() {
    const bool archiv = Sezeni.Archiv.Pocet_Tahy_1 > 0 || Sezeni.Archiv.Pocet_Tahy_2 > 0;
    const bool tipy = Sezeni.Tipy.Pocet_Tipu_Aktivni > 0 && Sezeni.Tipy.Soubor_Tipu.Tikety[1].Cisla[1][1] != 0;
    Typ_Vyhodnoceni[1]->setEnabled(archiv);
    for (int i : {0, 2, 3})
        Typ_Vyhodnoceni[std::size_t(i)]->setEnabled(tipy && (i != 2 || archiv));
    if (!tipy && archiv)
        Typ_Vyhodnoceni[1]->setChecked(true);
}

int frmVypisTipu_Vyhodnoceni::Typ() const {
    for (int i = 0; i < 4; ++i)
        if (Typ_Vyhodnoceni[std::size_t(i)]->isChecked())
            return i;
    return 0;
}

void frmVypisTipu_Vyhodnoceni::Vycisti_Vyhodnoceni() {
    for (QLabel* popis : {Label5, Label6, Label7}) {
        popis->clear();
        QPalette paleta = popis->palette();
        paleta.setColor(QPalette::Window, QColor(0xC0, 0xC0, 0xC0));
        paleta.setColor(QPalette::WindowText, Qt::black);
        popis->setPalette(paleta);
    }
    for (int tah = 1; tah <= 2; ++tah)
        for (int i = 0; i < 7; ++i)
            Nastav_Barvu(Box(tah, i), Qt::white);
    cmdGeneruji_Tip->setEnabled(false);
    Frame2->setTitle(Okno.Text(u"Frame2"_qs));
}

void frmVypisTipu_Vyhodnoceni::Typ_Click(int index) {
    // The option buttons show one kind chosen, and a run evaluates that one only: a kind clicked
    // earlier must not add its counts to the money of this one.
    Sezeni.Random.Dolni_Mez = 1;
    Sezeni.Random.Horni_Mez = 49;
    Vycisti_Vyhodnoceni();
    emit Vysledek_Neplatny();
    switch (index) {
    case 0:
    case 1:
        Obnov_Cisla_Tahu();
        break;
    case 2:
        Frame2->setTitle(QString());
        // A large file goes against the newest second draw only.
        if (Sezeni.Tipy.Pocet_Tipu_Aktivni > Max_Tiketu) {
            txtPocet_2Tahu->setText(u"1"_qs);
            scrPocet_2Tahu->setValue(1);
        }
        if (Check1->isChecked())
            Vyhry.Prepocti_Vklad(N1(), N2());
        break;
    default:
        Nahodny_Los();
        break;
    }
}

void frmVypisTipu_Vyhodnoceni::Obnov_Cisla_Tahu() {
    const Ulozena_Cisla_Tahu& ulozena = Sezeni.Vyhodnoceni;
    for (int tah = 1; tah <= 2; ++tah)
        if (ulozena.Jsou[std::size_t(tah - 1)])
            for (int i = 0; i < 7; ++i) {
                const int n = ulozena.Cisla[std::size_t(tah - 1)][std::size_t(i)];
                Box(tah, i)->setText(n > 0 ? QString::number(n) : QString());
            }
}

void frmVypisTipu_Vyhodnoceni::Nahodny_Los() {
    Sezeni.Random.Dolni_Mez = 1;
    Sezeni.Random.Horni_Mez = 49;
    Sezeni.Random.Zamichej_Podle_Casu();
    for (int tah = 1; tah <= 2; ++tah) {
        const Radek_Tahu los = ::Nahodny_Los([this] { return int(Sezeni.Random.RandomInt()); });
        for (int i = 0; i < 7; ++i) {
            Box(tah, i)->setText(QString::number(los[std::size_t(i)]));
            Nastav_Barvu(Box(tah, i), Qt::white);
        }
        lblTahCislo[std::size_t(tah - 1)]->clear();
    }
    Frame2->setTitle(Okno.Text(u"Frame2.Los"_qs));
    cmdGeneruji_Tip->setEnabled(true);
    emit Tah_Zobrazen();
}

// ---- The boxes ----

Radek_Tahu frmVypisTipu_Vyhodnoceni::Radek(int tah) const {
    Radek_Tahu radek{};
    for (int i = 0; i < 7; ++i)
        radek[std::size_t(i)] = Cele_Cislo(Box(tah, i));
    return radek;
}

void frmVypisTipu_Vyhodnoceni::Nastav_Barvu(QLineEdit* box, const QColor& barva) {
    QPalette paleta = box->palette();
    paleta.setColor(QPalette::Base, barva);
    box->setPalette(paleta);
}

QColor frmVypisTipu_Vyhodnoceni::Barva(const QLineEdit* box) const {
    return box->palette().color(QPalette::Base);
}

void frmVypisTipu_Vyhodnoceni::Box_Zmenen(int tah, int index) {
    QLineEdit* box = Box(tah, index);
    const int n = Cele_Cislo(box);
    Tah_Zmenen();
    if (!box->text().isEmpty() && (n < 1 || n > 49)) {
        box->clear();
        return;
    }
    // Two digits fill a box: on to the next one, across to the second draw.
    if (box->text().size() == 2) {
        const int dalsi = (tah - 1) * 7 + index + 1;
        if (dalsi < 14)
            Box(dalsi / 7 + 1, dalsi % 7)->setFocus();
    }
}

void frmVypisTipu_Vyhodnoceni::Tah_Zmenen() {
    // The money below answered the draw as it stood: a number changed by the user leaves it untrue.
    if (Typ() != 2 && Vyhry.isVisible())
        Vyhry.Vycisti_Formular();
}

void frmVypisTipu_Vyhodnoceni::Zapis_Do_Tahu(int cislo) {
    Tah_Zmenen();
    QLineEdit* box = Box(Aktivni_Tah + 1, Aktivni_Pozice);
    box->setText(QString::number(cislo));
    Nastav_Barvu(box, frmKresleni::Barva_Z_Vb(Barva_Zmeny));
    if (++Aktivni_Pozice > 6) {
        Aktivni_Pozice = 0;
        Aktivni_Tah = 1 - Aktivni_Tah;
    }
    Nastav_Barvu(Box(Aktivni_Tah + 1, Aktivni_Pozice), palette().color(QPalette::Highlight).lighter(170));
}

void frmVypisTipu_Vyhodnoceni::Obarvi_Tip(const Tip& tip) {
    for (int tah = 1; tah <= 2; ++tah)
        for (int i = 0; i < 7; ++i)
            Nastav_Barvu(Box(tah, i), Qt::white);
    for (const uint8_t n : tip)
        if (n != 0)
            Obarvi_Tahy(n);
}

void frmVypisTipu_Vyhodnoceni::Zobraz_Legendu(bool zmena) {
    const std::pair<QLabel*, int32_t> popisy[] = {
        {Label5, Sezeni.Nastaveni.Barva_Zasahu}, {Label6, Barva_Zmeny}, {Label7, Barva_Vedle}};
    for (const auto& [popis, barva] : popisy) {
        if (popis == Label6 && !zmena)
            continue;
        popis->setText(Okno.Text(popis->objectName()));
        QPalette paleta = popis->palette();
        paleta.setColor(QPalette::Window, frmKresleni::Barva_Z_Vb(barva));
        popis->setPalette(paleta);
    }
}

void frmVypisTipu_Vyhodnoceni::Obarvi_Tahy(int cislo) {
    const QColor zasah = frmKresleni::Barva_Z_Vb(Sezeni.Nastaveni.Barva_Zasahu);
    const QColor vedle = frmKresleni::Barva_Z_Vb(Barva_Vedle);
    Zobraz_Legendu(false);
    for (int tah = 1; tah <= 2; ++tah) {
        for (int i = 0; i < 7; ++i) {
            QLineEdit* box = Box(tah, i);
            const int v = Cele_Cislo(box);
            if (v == 0)
                continue;
            // A near miss first, then a hit: a hit replaces a near miss, never the other way.
            if ((v + 1 == cislo || v - 1 == cislo) && Barva(box) != zasah) {
                Nastav_Barvu(box, vedle);
                for (int j = 0; j < 7; ++j)
                    if (Cele_Cislo(Box(tah, j)) == cislo && Barva(Box(tah, j)) == zasah)
                        Nastav_Barvu(box, Qt::white);
            }
            if (v == cislo) {
                Nastav_Barvu(box, zasah);
                for (int j = 0; j < 7; ++j)
                    if (Barva(Box(tah, j)) == vedle && std::abs(Cele_Cislo(Box(tah, j)) - cislo) == 1)
                        Nastav_Barvu(Box(tah, j), Qt::white);
            }
        }
    }
}

// ---- How many draws back ----

int frmVypisTipu_Vyhodnoceni::N1() const {
    return Cele_Cislo(txtPocet_1Tahu);
}

int frmVypisTipu_Vyhodnoceni::N2() const {
    return Cele_Cislo(txtPocet_2Tahu);
}

void frmVypisTipu_Vyhodnoceni::Pocet_Zmenen(int tah) {
    QLineEdit* pole = tah == 1 ? txtPocet_1Tahu : txtPocet_2Tahu;
    QLineEdit* druhe = tah == 1 ? txtPocet_2Tahu : txtPocet_1Tahu;
    QScrollBar* posuvnik = tah == 1 ? scrPocet_1Tahu : scrPocet_2Tahu;
    const int pocet = tah == 1 ? Sezeni.Archiv.Pocet_Tahy_1 : Sezeni.Archiv.Pocet_Tahy_2;
    const int pocet_druhych = tah == 1 ? Sezeni.Archiv.Pocet_Tahy_2 : Sezeni.Archiv.Pocet_Tahy_1;
    const int hodnota = Cele_Cislo(pole);
    if (hodnota <= 0) {
        const QSignalBlocker blokace(posuvnik);
        posuvnik->setValue(1);
        return;
    }
    if (hodnota > pocet) {
        pole->setText(QString::number(pocet));
        return;
    }
    {
        const QSignalBlocker blokace(posuvnik);
        posuvnik->setValue(hodnota);
    }
    // "Stejný počet": the other box follows as far as its list reaches.
    if (Check1->isChecked() && hodnota <= pocet_druhych && druhe->text() != pole->text())
        druhe->setText(pole->text());
    if (Nacita)
        return;
    Zobraz_Tah(tah, pocet - hodnota + 1);
    if (Typ() == 2)
        Vyhry.Prepocti_Vklad(N1(), N2());
}

void frmVypisTipu_Vyhodnoceni::Pocet_Opusten(int tah) {
    QLineEdit* pole = tah == 1 ? txtPocet_1Tahu : txtPocet_2Tahu;
    if (Cele_Cislo(pole) <= 0)
        pole->setText(u"1"_qs);
}

void frmVypisTipu_Vyhodnoceni::Check1_Click() {
    if (Typ_Vyhodnoceni[2]->isEnabled() && !Typ_Vyhodnoceni[2]->isChecked()) {
        Typ_Vyhodnoceni[2]->setChecked(true);
        Typ_Click(2);
    }
    if (Check1->isChecked()) {
        txtPocet_1Tahu->setText(u"1"_qs);
        txtPocet_2Tahu->setText(u"1"_qs);
    } else {
        txtPocet_1Tahu->setText(QString::number(Sezeni.Archiv.Pocet_Tahy_1));
        txtPocet_2Tahu->setText(QString::number(Sezeni.Archiv.Pocet_Tahy_2));
    }
}

void frmVypisTipu_Vyhodnoceni::Zobraz_Tah(int tah, int index) {
    const std::vector<Tah>& tahy = tah == 1 ? Sezeni.Archiv.Tahy_1 : Sezeni.Archiv.Tahy_2;
    if (index < 1 || std::size_t(index) >= tahy.size())
        return;
    for (int i = 0; i < 7; ++i) {
        const int n = tahy[std::size_t(index)][i + 1];
        Box(tah, i)->setText(n > 0 ? QString::number(n) : QString());
        Nastav_Barvu(Box(tah, i), Qt::white);
    }
    const auto [rok, tyden] = Rok_A_Tyden(Sezeni.Archiv, tah, index);
    lblTahCislo[std::size_t(tah - 1)]->setText(rok > 0 ? Den_Tahu_Text(Sezeni.Archiv, tah, rok, tyden) : QString());
    emit Tah_Zobrazen();
}

void frmVypisTipu_Vyhodnoceni::Vypis_Jeden_Tah(int tah, QChar kod, const QString& radek_tipu) {
    const Rozsah_Tahu rozsah = Rozsah_Archivu(Sezeni.Archiv, N1(), N2());
    const int hledano = int(Vb::Val(QString(kod)));
    int nalezeno = 0;
    for (int d = rozsah.Od(tah); d <= rozsah.Do(tah); ++d) {
        int c = 0;
        for (const uint8_t cislo : rozsah.Tahy(tah)[std::size_t(d)])
            c += radek_tipu.contains(u' ' + QString::number(cislo) + u' ') ? 1 : 0;
        if (c == hledano || (kod == u'D' && c == 6))
            nalezeno = d;
    }
    // The walk from the oldest leaves the newest such draw on show.
    if (nalezeno > 0)
        Zobraz_Tah(tah, nalezeno);
}

// ---- The run ----

std::optional<Vysledek_Vyhodnoceni> frmVypisTipu_Vyhodnoceni::Vyhodnot() {
    if (Bezi)
        return std::nullopt;
    Sezeni.Tikety.Zmena_Dat = true;
    Vyhry.Cekej(true);
    Vyhry.Vycisti_Formular();
    const int typ = Typ();
    const Zaznam_Tipu& tipy = Sezeni.Tipy.Soubor_Tipu;
    if (typ != 1 && (Sezeni.Tipy.Pocet_Tipu_Aktivni <= 0 || tipy.Tikety[1].Cisla[1][1] == 0)) {
        Vyhry.Cekej(false);
        return std::nullopt;
    }
    const std::array<Radek_Tahu, 2> radky{Radek(1), Radek(2)};
    if (typ != 3)
        for (std::size_t t = 0; t < 2; ++t)
            for (std::size_t i = 0; i < 7; ++i)
                if (radky[t][i] != 0) {
                    Sezeni.Vyhodnoceni.Cisla[t][i] = radky[t][i];
                    Sezeni.Vyhodnoceni.Jsou[t] = true;
                }
    if ((typ == 0 || typ == 1) && !Kontrola_Cisel(radky[0]) && !Kontrola_Cisel(radky[1])) {
        Sezeni.Sluzby->Zprava(Text_Malo_Cisel);
        Vyhry.Cekej(false);
        return std::nullopt;
    }
    // A draw holds each number once; a number typed twice would count its hits twice.
    if (typ != 2 && (Opakovane_Cislo(radky[0]) || Opakovane_Cislo(radky[1]))) {
        Sezeni.Sluzby->Zprava(Text_Stejna_Cisla);
        Vyhry.Cekej(false);
        return std::nullopt;
    }

    Bezi = true;
    cmdOK->setEnabled(false);
    Vysledek_Vyhodnoceni v;
    {
        const Prace prace(Sezeni.Sluzby);
        const Prubeh prubeh = prace.Prubeh_Prace();
        const Rozsah_Tahu rozsah = Rozsah_Archivu(Sezeni.Archiv, N1(), N2());
        if (typ == 0 || typ == 3) {
            Barvy_Radku barvy1{}, barvy2{};
            Vyh_Tah_V_Tipech(tipy, radky[0], radky[1], v, barvy1, barvy2, prubeh);
            const QColor zasah = frmKresleni::Barva_Z_Vb(Sezeni.Nastaveni.Barva_Zasahu);
            const QColor vedle = frmKresleni::Barva_Z_Vb(Barva_Vedle);
            for (int tah = 1; tah <= 2; ++tah)
                for (int i = 0; i < 7; ++i) {
                    const Barva_Boxu b = (tah == 1 ? barvy1 : barvy2)[std::size_t(i)];
                    Nastav_Barvu(Box(tah, i), b == Barva_Boxu::Zasah   ? zasah
                                              : b == Barva_Boxu::Vedle ? vedle
                                                                       : Qt::white);
                }
            if (Pocet_Cisel(radky[0]) > 2)
                Zobraz_Legendu(true);
        }
        if (typ == 1)
            Vyh_Cisla_V_Tazich(radky[0], radky[1], chkTah[0]->isChecked(), chkTah[1]->isChecked(), rozsah, v, prubeh);
        if (typ == 2)
            Vyh_Soubor_V_Tazich(tipy, rozsah, v, prubeh);
    }
    Bezi = false;
    cmdOK->setEnabled(true);
    if (v.Preteceni)
        Sezeni.Sluzby->Zprava(Text_Preteceni_Vyher);
    if (Sezeni.Tikety.Zrusit_Beh || v.Zastaveno) {
        Vyhry.Cekej(false);
        return std::nullopt;
    }
    return v;
}

void frmVypisTipu_Vyhodnoceni::Srovnej() {
    const Zaznam_Tipu& tipy = Sezeni.Tipy.Soubor_Tipu;
    const int pocet_tipu = Pocet_Tipu_V_Souboru(tipy);
    if (Bezi || pocet_tipu <= 0 || Sezeni.Archiv.Pocet_Tahy_1 + Sezeni.Archiv.Pocet_Tahy_2 == 0)
        return;
    Bezi = true;
    cmdOK->setEnabled(false);
    const uint64_t seminko = uint64_t(QDateTime::currentMSecsSinceEpoch());
    Vysledek_Srovnani s;
    {
        const Prace prace(Sezeni.Sluzby);
        s = Srovnej_S_Nahodou(tipy, pocet_tipu, Rozsah_Archivu(Sezeni.Archiv, N1(), N2()), Vyhry.Ceny(),
                              Souboru_Srovnani, seminko, prace.Prubeh_Prace());
    }
    Bezi = false;
    cmdOK->setEnabled(true);
    if (s.Pocet_Souboru == 0)
        return;
    QString text = u"Výhry souboru a %1 náhodných souborů stejné velikosti (semínko %2):\n\n"_qs.arg(s.Pocet_Souboru)
                       .arg(s.Seminko);
    text += u"pořadí\tsoubor\tprůměr\t5 %\t95 %\n"_qs;
    const QString Rimska[] = {u"I"_qs, u"II"_qs, u"III"_qs, u"IV"_qs, u"V"_qs};
    for (std::size_t t = 1; t < 6; ++t)
        text += u"%1\t%2\t%3\t%4\t%5\n"_qs.arg(Rimska[t - 1])
                    .arg(s.Vyhry_Souboru[t])
                    .arg(Vb::Format(s.Vyhry_Nahody[t].Prumer, u"0.0"))
                    .arg(Vb::Format(s.Vyhry_Nahody[t].Pet, u"0"))
                    .arg(Vb::Format(s.Vyhry_Nahody[t].Devadesat, u"0"));
    text += u"Kč\t%1\t%2\t%3\t%4\n\n"_qs.arg(Vb::Format(s.Penize_Souboru, u"### ### ###").trimmed())
                .arg(Vb::Format(s.Penize_Nahody.Prumer, u"### ### ###").trimmed())
                .arg(Vb::Format(s.Penize_Nahody.Pet, u"### ### ###").trimmed())
                .arg(Vb::Format(s.Penize_Nahody.Devadesat, u"### ### ###").trimmed());
    Sezeni.Dialog->Okno_Zpravy(Dialogy::Ikona::Informace, Okno.Text(u"cmdSrovnani"_qs).remove(u'&'),
                               text + s.Veta.join(u"\n"_qs));
}
