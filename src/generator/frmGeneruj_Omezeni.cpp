#include "generator/frmGeneruj_Omezeni.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/Tabulka_Textu.h"
#include "app/Vb.h"
#include "app/frmOvladani.h"
#include "generator/Generator.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

using modNastaveni_Ovladani::Cele_Cislo;
using modNastaveni_Ovladani::Indexem;

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmGeneruj"_qs};

QString Cislo(double x) {
    return Vb::Text(x);
}

} // namespace

frmGeneruj_Omezeni::frmGeneruj_Omezeni(Relace& sezeni, QWidget* parent)
    : QWidget(parent), Text4(Okno.Pojmenuj(new QLineEdit(this), u"Text4"_qs)),
      Vynech_Tahy_1_Od(Okno.Pojmenuj(new QLineEdit(this), u"Vynech_Tahy_1_Od"_qs)),
      Vynech_Tahy_2_Od(Okno.Pojmenuj(new QLineEdit(this), u"Vynech_Tahy_2_Od"_qs)),
      txtCisel_V_Dekade(Okno.Pojmenuj(new QLineEdit(this), u"txtCisel_V_Dekade"_qs)),
      Text7(Okno.Pojmenuj(new QLineEdit(this), u"Text7"_qs)), Text8(Okno.Pojmenuj(new QLineEdit(this), u"Text8"_qs)),
      txtPrunik(Okno.Pojmenuj(new QLineEdit(this), u"txtPrunik"_qs)), Sezeni(sezeni) {
    for (int i = 0; i < 3; ++i) {
        txtOmezeni[std::size_t(i)] = Okno.Pojmenuj(new QLineEdit(this), Indexem(u"txtOmezeni"_qs, i));
        txtSudLich[std::size_t(i)] = Okno.Pojmenuj(new QLineEdit(this), Indexem(u"txtSudLich"_qs, i));
    }
    for (int i = 0; i < 2; ++i) {
        txtSuma[std::size_t(i)] = Okno.Pojmenuj(new QLineEdit(this), Indexem(u"txtSuma"_qs, i));
        txtRozsah_Min_Max[std::size_t(i)] = Okno.Pojmenuj(new QLineEdit(this), Indexem(u"txtRozsah_Min_Max"_qs, i));
    }
    Limity = {{{txtOmezeni[0], txtOmezeni[1], txtOmezeni[2]},
               {Text4},
               {Vynech_Tahy_1_Od, Vynech_Tahy_2_Od},
               {txtCisel_V_Dekade},
               {},
               {txtSudLich[1], txtSudLich[2], txtSudLich[0]},
               {Text7},
               {Text8},
               {txtSuma[0], txtSuma[1]},
               {txtRozsah_Min_Max[0], txtRozsah_Min_Max[1]},
               {txtPrunik}}};

    auto* ramec = Okno.Pojmenuj(new QGroupBox(this), u"fraOmezeni"_qs);
    auto* mrizka = new QGridLayout(ramec);
    mrizka->setVerticalSpacing(2);
    const int sirka = fontMetrics().horizontalAdvance(u"00000"_qs) + 10;
    for (int i = 0; i < 11; ++i) {
        auto* box = Okno.Pojmenuj(new QCheckBox(ramec), Indexem(u"Check1"_qs, i));
        Check1[std::size_t(i)] = box;
        Popisky[std::size_t(i)] = Okno.Pojmenuj(new QLabel(ramec), Indexem(u"lblOmezeni"_qs, i));
        mrizka->addWidget(box, i, 0);
        mrizka->addWidget(Popisky[std::size_t(i)], i, 1);
        int sloupec = 2;
        for (QLineEdit* pole : Limity[std::size_t(i)]) {
            pole->setParent(ramec);
            pole->setMaximumWidth(sirka);
            pole->setMaxLength(pole == Vynech_Tahy_1_Od || pole == Vynech_Tahy_2_Od ? 5 : 3);
            pole->setAlignment(Qt::AlignRight);
            modNastaveni_Ovladani::Jen_Cislice(pole);
            modNastaveni_Ovladani::Vybirej_Pri_Vstupu(pole);
            mrizka->addWidget(pole, i, sloupec++);
            connect(pole, &QLineEdit::textChanged, this, [this, pole] { Limit_Zmenen(pole); });
            connect(pole, &QLineEdit::editingFinished, this, [this, pole] { Limit_Opusten(pole); });
        }
        connect(box, &QCheckBox::toggled, this, [this, i](bool zapnuto) { Check1_Click(i, zapnuto); });
    }
    mrizka->setColumnStretch(1, 1);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    rozlozeni->addWidget(ramec);
    rozlozeni->addStretch();
    Obnov();
}

void frmGeneruj_Omezeni::Obnov() {
    // The boxes and limits as the session left them; the decade limit starts at 3 each time, and
    // the spread, sums and range of a former state only where they were set.
    Zadani_Generatoru& s = Sezeni.Generator.Omezeni;
    const Zadani_Generatoru vychozi;
    s.Limit_Dekada = 3;
    if (s.Rozptyl == 0)
        s.Rozptyl = vychozi.Rozptyl;
    if (s.Suma[0] == 0 && s.Suma[1] == 0)
        s.Suma = vychozi.Suma;
    if (s.Rozsah[0] == 0 && s.Rozsah[1] == 0)
        s.Rozsah = vychozi.Rozsah;
    const Zadani_Generatoru stav = s;
    Nastavuje = true;
    for (std::size_t i = 0; i < 3; ++i)
        txtOmezeni[i]->setText(Cislo(stav.Omezeni[i]));
    Text4->setText(Cislo(stav.Max_Tretich_Cen));
    txtCisel_V_Dekade->setText(Cislo(stav.Limit_Dekada));
    txtSudLich[0]->setText(Cislo(stav.Rozptyl));
    txtSudLich[1]->setText(Cislo(stav.Sudych));
    txtSudLich[2]->setText(Cislo(stav.Lichych));
    Text7->setText(Cislo(stav.Max_Dvojic));
    Text8->setText(Cislo(stav.Max_Trojic));
    for (std::size_t i = 0; i < 2; ++i) {
        txtSuma[i]->setText(Cislo(stav.Suma[i]));
        txtRozsah_Min_Max[i]->setText(Cislo(stav.Rozsah[i]));
    }
    txtPrunik->setText(Cislo(stav.Prunik));
    // Check1(2) walks the archive of the day: the draw counts, and the box only with draws.
    Vynech_Tahy_1_Od->setText(QString::number(Sezeni.Archiv.Pocet_Tahy_1));
    Vynech_Tahy_2_Od->setText(QString::number(Sezeni.Archiv.Pocet_Tahy_2));
    Nastavuje = false;
    Povol_Omezeni();
    for (std::size_t i = 0; i < Check1.size(); ++i) {
        const QSignalBlocker blokace(Check1[i]);
        Check1[i]->setChecked(stav.Check1[i] && !(i == 2 && !Je_Archiv()));
        Povol_Limity(int(i));
    }
}

bool frmGeneruj_Omezeni::Je_Archiv() const {
    return Sezeni.Archiv.Tahy_Nacteny && (Sezeni.Archiv.Pocet_Tahy_1 > 0 || Sezeni.Archiv.Pocet_Tahy_2 > 0);
}

void frmGeneruj_Omezeni::Povol_Limity(int index) {
    const bool zapnuto = Check1[std::size_t(index)]->isChecked() && Check1[std::size_t(index)]->isEnabled();
    for (QLineEdit* pole : Limity[std::size_t(index)])
        pole->setEnabled(zapnuto);
}

void frmGeneruj_Omezeni::Check1_Click(int index, bool zapnuto) {
    Sezeni.Generator.Omezeni.Check1[std::size_t(index)] = zapnuto;
    Povol_Limity(index);
    if (zapnuto && !Limity[std::size_t(index)].empty() && isVisible())
        Limity[std::size_t(index)].front()->setFocus();
    if (index == 10 && zapnuto)
        Tutovky_Zmeneny(Pocet_Tutovek);
}

// ---- The limits ----

void frmGeneruj_Omezeni::Prepis(QLineEdit* pole, double hodnota) {
    pole->setText(Cislo(hodnota));
}

void frmGeneruj_Omezeni::Limit_Zmenen(QLineEdit* pole) {
    if (Nastavuje)
        return;
    Nastavuje = true;
    Uprav_Pri_Zmene(pole);
    Nastavuje = false;
    Zapis_Stav();
}

void frmGeneruj_Omezeni::Uprav_Pri_Zmene(QLineEdit* pole) {
    const double v = Vb::Val(pole->text());
    const bool prazdne = pole->text().trimmed().isEmpty();
    if (pole == txtOmezeni[0]) {
        if (!prazdne && v < 2)
            Prepis(pole, 2);
    } else if (pole == txtOmezeni[1] || pole == txtOmezeni[2]) {
        if (v > 4)
            Prepis(pole, 4);
    } else if (pole == txtSudLich[1] || pole == txtSudLich[2]) {
        // Even and odd make six together.
        QLineEdit* druhe = pole == txtSudLich[1] ? txtSudLich[2] : txtSudLich[1];
        if (v > 6 || v < 0 || Vb::Val(druhe->text()) > 6) {
            Prepis(txtSudLich[1], 3);
            Prepis(txtSudLich[2], 3);
        } else {
            druhe->setText(6 - v == 0 ? QString() : Cislo(6 - v));
        }
        if (Vb::Val(txtSudLich[0]->text()) == 2 && (Vb::Val(txtSudLich[1]->text()) == 5 || Vb::Val(txtSudLich[2]->text()) == 5))
            Prepis(txtSudLich[0], 1);
    } else if (pole == txtSudLich[0]) {
        if (v > 2)
            Prepis(pole, 0);
        else if (v == 2 && (Vb::Val(txtSudLich[1]->text()) == 5 || Vb::Val(txtSudLich[2]->text()) == 5))
            Prepis(pole, 1);
    } else if (pole == Text4) {
        if (v > 255)
            Prepis(pole, 0);
    } else if (pole == txtSuma[0]) {
        if (v > Vb::Val(txtSuma[1]->text()))
            Prepis(pole, Vb::Val(txtSuma[1]->text()) - 5);
    } else if (pole == txtSuma[1]) {
        if (v > 279)
            Prepis(pole, 279);
    } else if (pole == txtRozsah_Min_Max[0] || pole == txtRozsah_Min_Max[1]) {
        if (!prazdne && v < 1)
            Prepis(pole, 1);
        else if (v > 49)
            Prepis(pole, 49);
    } else if (pole == Vynech_Tahy_1_Od || pole == Vynech_Tahy_2_Od) {
        const int tahu = pole == Vynech_Tahy_1_Od ? Sezeni.Archiv.Pocet_Tahy_1 : Sezeni.Archiv.Pocet_Tahy_2;
        if (v < 0 || v > tahu)
            Prepis(pole, tahu);
    }
}

void frmGeneruj_Omezeni::Limit_Opusten(QLineEdit* pole) {
    // Rules that would fight the typing run when the box is left.
    Nastavuje = true;
    if (pole == Text4 && pole->text().trimmed().isEmpty()) {
        Prepis(pole, 0);
    } else if (pole == txtCisel_V_Dekade && pole->text().trimmed().isEmpty()) {
        Prepis(pole, 2);
    } else if (pole == txtSuma[1] && Vb::Val(txtSuma[1]->text()) < Vb::Val(txtSuma[0]->text())) {
        Sezeni.Sluzby->Zprava(u"Hodnoty, zaměněny."_qs);
        const QString od = txtSuma[0]->text();
        txtSuma[0]->setText(txtSuma[1]->text());
        txtSuma[1]->setText(od);
    } else if ((pole == txtRozsah_Min_Max[0] || pole == txtRozsah_Min_Max[1]) &&
               Vb::Val(txtRozsah_Min_Max[1]->text()) < Vb::Val(txtRozsah_Min_Max[0]->text())) {
        const QString od = txtRozsah_Min_Max[0]->text();
        txtRozsah_Min_Max[0]->setText(txtRozsah_Min_Max[1]->text());
        txtRozsah_Min_Max[1]->setText(od);
    }
    Nastavuje = false;
    Zapis_Stav();
}

void frmGeneruj_Omezeni::Zapis_Stav() {
    // Each limit box writes its variable of the state the next opening restores.
    Zadani_Generatoru& s = Sezeni.Generator.Omezeni;
    for (std::size_t i = 0; i < 3; ++i)
        s.Omezeni[i] = Vb::Val(txtOmezeni[i]->text());
    s.Max_Tretich_Cen = Vb::Val(Text4->text());
    s.Limit_Dekada = Vb::Val(txtCisel_V_Dekade->text());
    s.Rozptyl = Vb::Val(txtSudLich[0]->text());
    s.Sudych = Vb::Val(txtSudLich[1]->text());
    s.Lichych = Vb::Val(txtSudLich[2]->text());
    s.Max_Dvojic = Vb::Val(Text7->text());
    s.Max_Trojic = Vb::Val(Text8->text());
    for (std::size_t i = 0; i < 2; ++i) {
        s.Suma[i] = Vb::Val(txtSuma[i]->text());
        s.Rozsah[i] = Vb::Val(txtRozsah_Min_Max[i]->text());
    }
    s.Prunik = Vb::Val(txtPrunik->text());
}

// ---- What the window asks ----

void frmGeneruj_Omezeni::Vypln_Zadani(Zadani_Generatoru& z) const {
    for (std::size_t i = 0; i < Check1.size(); ++i)
        z.Check1[i] = Check1[i]->isChecked() && Check1[i]->isEnabled() && !Check1[i]->isHidden();
    for (std::size_t i = 0; i < 3; ++i)
        z.Omezeni[i] = Vb::Val(txtOmezeni[i]->text());
    z.Max_Tretich_Cen = Vb::Val(Text4->text());
    z.Vynech_Tahy_1_Od = Vb::Val(Vynech_Tahy_1_Od->text());
    z.Vynech_Tahy_2_Od = Vb::Val(Vynech_Tahy_2_Od->text());
    z.Limit_Dekada = Vb::Val(txtCisel_V_Dekade->text());
    z.Rozptyl = Vb::Val(txtSudLich[0]->text());
    z.Sudych = Vb::Val(txtSudLich[1]->text());
    z.Lichych = Vb::Val(txtSudLich[2]->text());
    z.Max_Dvojic = Vb::Val(Text7->text());
    z.Max_Trojic = Vb::Val(Text8->text());
    for (std::size_t i = 0; i < 2; ++i) {
        z.Suma[i] = Vb::Val(txtSuma[i]->text());
        z.Rozsah[i] = Vb::Val(txtRozsah_Min_Max[i]->text());
    }
    z.Prunik = Vb::Val(txtPrunik->text());
    const Nastaveni_Zaznam& n = Sezeni.Nastaveni;
    z.Pocet_Pruchodu = n.Pocet_Pruchodu;
    z.Auto_Oprava = n.Auto_Oprava;
    z.Opakovat_Volba = n.Opakovat_Volba;
    z.Tahy_1 = Je_Archiv() ? &Sezeni.Archiv.Tahy_1 : nullptr;
    z.Tahy_2 = Je_Archiv() ? &Sezeni.Archiv.Tahy_2 : nullptr;
}

void frmGeneruj_Omezeni::Po_Behu(double max_tretich_cen) {
    Text4->setText(Cislo(max_tretich_cen));
}

void frmGeneruj_Omezeni::Pocet_Tipu_Zmenen(int tipu) {
    Text4->setText(Cislo(Pocatecni_Max_Tretich_Cen(tipu, Sezeni.Nastaveni.Auto_Oprava)));
}

void frmGeneruj_Omezeni::Tutovky_Zmeneny(int pocet_tutovek) {
    Pocet_Tutovek = pocet_tutovek;
    if (Check1[10]->isChecked() && pocet_tutovek + Vb::Val(txtPrunik->text()) > 5)
        txtPrunik->setText(Cislo(5 - pocet_tutovek));
}

void frmGeneruj_Omezeni::Zamkni_Pro_Beh(bool zamknout) {
    if (!zamknout) {
        Povol_Omezeni();
        return;
    }
    for (std::size_t i = 0; i < Check1.size(); ++i) {
        Check1[i]->setEnabled(false);
        Povol_Limity(int(i));
    }
}

void frmGeneruj_Omezeni::Zakaz_Omezeni() {
    // Wheels make their tips without any filter.
    for (std::size_t i = 0; i < Check1.size(); ++i) {
        Check1[i]->setChecked(false);
        Check1[i]->setEnabled(false);
        Povol_Limity(int(i));
    }
    for (const int i : {2, 4}) {
        Check1[std::size_t(i)]->hide();
        Popisky[std::size_t(i)]->hide();
        for (QLineEdit* pole : Limity[std::size_t(i)])
            pole->hide();
    }
}

void frmGeneruj_Omezeni::Povol_Omezeni() {
    for (std::size_t i = 0; i < Check1.size(); ++i) {
        const bool videt = i != 2 || Je_Archiv();
        Check1[i]->setVisible(videt);
        Popisky[i]->setVisible(videt);
        for (QLineEdit* pole : Limity[i])
            pole->setVisible(videt);
        Check1[i]->setEnabled(true);
        Povol_Limity(int(i));
    }
}
