#include "generator/frmGeneruj_Omezeni.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "core/Tabulka_Textu.h"
#include "core/Vb.h"
#include "app/frmOvladani.h"
#include "generator/Generator.h"

#include <QCheckBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

using modNastaveni_Ovladani::Indexem;

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmGeneruj"_qs};

QString Cislo(double x) {
    return Vb::Text(x);
}

double Hodnota(const QLineEdit* pole) {
    return Vb::Val(pole->text());
}

bool Prazdne(const QLineEdit* pole) {
    return pole->text().trimmed().isEmpty();
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
    // The limit boxes of each filter in the order they stand in its row; the first takes the focus
    // when the filter is ticked.
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

    // One row a filter: the box (its tool tip is its only caption), the label, the limits.
    auto* ramec = Okno.Pojmenuj(new QGroupBox(this), u"fraOmezeni"_qs);
    auto* mrizka = new QGridLayout(ramec);
    mrizka->setVerticalSpacing(2);
    mrizka->setHorizontalSpacing(4);
    const int sirka = fontMetrics().horizontalAdvance(u"0000"_qs) + 14;
    for (int i = 0; i < 11; ++i) {
        auto* box = Okno.Pojmenuj(new QCheckBox(ramec), Indexem(u"Check1"_qs, i));
        Check1[std::size_t(i)] = box;
        Popisky[std::size_t(i)] = Okno.Pojmenuj(new QLabel(ramec), Indexem(u"lblOmezeni"_qs, i));
        mrizka->addWidget(box, i, 0);
        mrizka->addWidget(Popisky[std::size_t(i)], i, 1);
        int sloupec = 2;
        for (QLineEdit* pole : Limity[std::size_t(i)]) {
            pole->setParent(ramec);
            pole->setFixedWidth(sirka);
            pole->setMaxLength(pole == Vynech_Tahy_1_Od || pole == Vynech_Tahy_2_Od ? 5 : 3);
            pole->setAlignment(Qt::AlignRight);
            modNastaveni_Ovladani::Jen_Cislice(pole);
            modNastaveni_Ovladani::Vybirej_Pri_Vstupu(pole);
            pole->installEventFilter(this);
            mrizka->addWidget(pole, i, sloupec++);
            connect(pole, &QLineEdit::textChanged, this, [this, pole] { Limit_Zmenen(pole); });
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
    // A window opened before finds the boxes and limits as it left them: the spread only if it was
    // set, the sums and the range only if either of their two values was. A first opening starts
    // from the defaults. The decade limit starts at 3 each time.
    const bool drive = Sezeni.Generator.Cislo_Rozpisu >= 0;
    const Zadani_Generatoru vychozi;
    Zadani_Generatoru stav = drive ? Sezeni.Generator.Omezeni : vychozi;
    if (!drive)
        stav.Check1 = {};
    if (stav.Rozptyl == 0)
        stav.Rozptyl = vychozi.Rozptyl;
    if (stav.Suma[0] == 0 && stav.Suma[1] == 0)
        stav.Suma = vychozi.Suma;
    if (stav.Rozsah[0] == 0 && stav.Rozsah[1] == 0)
        stav.Rozsah = vychozi.Rozsah;
    stav.Limit_Dekada = 3;

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
    // Check1(2) walks the archive of the day: all its draws, and the box only with draws.
    Vynech_Tahy_1_Od->setText(QString::number(Sezeni.Archiv.Pocet_Tahy_1));
    Vynech_Tahy_2_Od->setText(QString::number(Sezeni.Archiv.Pocet_Tahy_2));
    Nastavuje = false;

    for (std::size_t i = 0; i < Check1.size(); ++i) {
        const QSignalBlocker blokace(Check1[i]);
        Check1[i]->setChecked(stav.Check1[i] && (i != 2 || Je_Archiv()));
    }
    Povol_Omezeni();
    for (std::size_t i = 0; i < Check1.size(); ++i)
        Sezeni.Generator.Omezeni.Check1[i] = Check1[i]->isChecked();
    Zapis_Stav();
    // The window sets its count of tips while it loads; that must not replace a restored limit.
    Drzet_Text4 = drive;
}

bool frmGeneruj_Omezeni::Je_Archiv() const {
    return Sezeni.Archiv.Tahy_Nacteny && (Sezeni.Archiv.Pocet_Tahy_1 > 0 || Sezeni.Archiv.Pocet_Tahy_2 > 0);
}

void frmGeneruj_Omezeni::showEvent(QShowEvent* udalost) {
    Drzet_Text4 = false;
    QWidget::showEvent(udalost);
}

bool frmGeneruj_Omezeni::eventFilter(QObject* objekt, QEvent* udalost) {
    // Leaving a limit box for another control; a switch of windows or a popup is no leaving.
    if (udalost->type() == QEvent::FocusOut) {
        const Qt::FocusReason duvod = static_cast<QFocusEvent*>(udalost)->reason();
        if (duvod != Qt::ActiveWindowFocusReason && duvod != Qt::PopupFocusReason)
            if (auto* pole = qobject_cast<QLineEdit*>(objekt))
                Limit_Opusten(pole);
    }
    return QWidget::eventFilter(objekt, udalost);
}

// ---- The filter boxes ----

void frmGeneruj_Omezeni::Povol_Limity(int index) {
    QCheckBox* box = Check1[std::size_t(index)];
    const bool zapnuto = box->isChecked() && box->isEnabledTo(this);
    for (QLineEdit* pole : Limity[std::size_t(index)])
        pole->setEnabled(zapnuto);
}

void frmGeneruj_Omezeni::Check1_Click(int index, bool zapnuto) {
    Sezeni.Generator.Omezeni.Check1[std::size_t(index)] = zapnuto;
    Povol_Limity(index);
    if (zapnuto && !Limity[std::size_t(index)].empty() && isVisible())
        Limity[std::size_t(index)].front()->setFocus(Qt::OtherFocusReason);
}

// ---- The limits ----

void frmGeneruj_Omezeni::Prepis(QLineEdit* pole, double hodnota) {
    pole->setText(Cislo(hodnota));
}

void frmGeneruj_Omezeni::Limit_Zmenen(QLineEdit* pole) {
    // A box written by a rule does not run the rules again, so two boxes can't write each other
    // back and forth.
    if (Nastavuje)
        return;
    Nastavuje = true;
    Uprav_Pri_Zmene(pole);
    Nastavuje = false;
    Zapis_Stav();
}

void frmGeneruj_Omezeni::Uprav_Pri_Zmene(QLineEdit* pole) {
    // An empty box is left alone while the user types; the rules for empty boxes run on leaving.
    const double v = Hodnota(pole);
    if (pole == txtOmezeni[0]) {
        if (!Prazdne(pole) && v < 2)
            Prepis(pole, 2);
    } else if (pole == txtOmezeni[1] || pole == txtOmezeni[2]) {
        if (v > 4)
            Prepis(pole, 4);
    } else if (pole == txtSudLich[1] || pole == txtSudLich[2]) {
        // Even and odd make six together.
        QLineEdit* druhe = pole == txtSudLich[1] ? txtSudLich[2] : txtSudLich[1];
        if (v > 6 || v < 0 || Hodnota(druhe) > 6 || Hodnota(druhe) < 0) {
            Prepis(txtSudLich[1], 3);
            Prepis(txtSudLich[2], 3);
        } else {
            druhe->setText(v == 6 ? QString() : Cislo(6 - v));
        }
    } else if (pole == txtSudLich[0]) {
        if (v > 2)
            Prepis(pole, 0);
        else if (v == 2 && (Hodnota(txtSudLich[1]) == 5 || Hodnota(txtSudLich[2]) == 5))
            Prepis(pole, 1);
    } else if (pole == Text4) {
        if (v > 255)
            Prepis(pole, 0);
    } else if (pole == txtSuma[0]) {
        if (v > Hodnota(txtSuma[1]))
            Prepis(pole, std::max(0.0, Hodnota(txtSuma[1]) - 5));
    } else if (pole == txtSuma[1]) {
        if (v > 279)
            Prepis(pole, 279);
    } else if (pole == txtRozsah_Min_Max[0] || pole == txtRozsah_Min_Max[1]) {
        if (!Prazdne(pole) && v < 1)
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
    Nastavuje = true;
    if (Prazdne(pole)) {
        if (pole == txtOmezeni[0] || pole == txtCisel_V_Dekade)
            Prepis(pole, 2);
        else if (pole == Text4)
            Prepis(pole, 0);
        else if (pole == txtRozsah_Min_Max[0] || pole == txtRozsah_Min_Max[1])
            Prepis(pole, 1);
    }
    if (pole == txtSuma[1] && Hodnota(txtSuma[1]) < Hodnota(txtSuma[0])) {
        Sezeni.Sluzby->Zprava(u"Hodnoty, zaměněny."_qs);
        const QString od = txtSuma[0]->text();
        txtSuma[0]->setText(txtSuma[1]->text());
        txtSuma[1]->setText(od);
    } else if ((pole == txtRozsah_Min_Max[0] || pole == txtRozsah_Min_Max[1]) &&
               Hodnota(txtRozsah_Min_Max[1]) < Hodnota(txtRozsah_Min_Max[0])) {
        const QString od = txtRozsah_Min_Max[0]->text();
        txtRozsah_Min_Max[0]->setText(txtRozsah_Min_Max[1]->text());
        txtRozsah_Min_Max[1]->setText(od);
    }
    Nastavuje = false;
    Zapis_Stav();
}

void frmGeneruj_Omezeni::Zapis_Stav() {
    // Every limit into the state that the next opening of the window restores.
    Zadani_Generatoru& s = Sezeni.Generator.Omezeni;
    for (std::size_t i = 0; i < 3; ++i)
        s.Omezeni[i] = Hodnota(txtOmezeni[i]);
    s.Max_Tretich_Cen = Hodnota(Text4);
    s.Limit_Dekada = Hodnota(txtCisel_V_Dekade);
    s.Rozptyl = Hodnota(txtSudLich[0]);
    s.Sudych = Hodnota(txtSudLich[1]);
    s.Lichych = Hodnota(txtSudLich[2]);
    s.Max_Dvojic = Hodnota(Text7);
    s.Max_Trojic = Hodnota(Text8);
    for (std::size_t i = 0; i < 2; ++i) {
        s.Suma[i] = Hodnota(txtSuma[i]);
        s.Rozsah[i] = Hodnota(txtRozsah_Min_Max[i]);
    }
    s.Prunik = Hodnota(txtPrunik);
}

// ---- What the window asks ----

void frmGeneruj_Omezeni::Vypln_Zadani(Zadani_Generatoru& z) const {
    for (std::size_t i = 0; i < Check1.size(); ++i)
        z.Check1[i] = Check1[i]->isChecked() && !Check1[i]->isHidden();
    for (std::size_t i = 0; i < 3; ++i)
        z.Omezeni[i] = Hodnota(txtOmezeni[i]);
    z.Max_Tretich_Cen = Hodnota(Text4);
    z.Vynech_Tahy_1_Od = Hodnota(Vynech_Tahy_1_Od);
    z.Vynech_Tahy_2_Od = Hodnota(Vynech_Tahy_2_Od);
    z.Limit_Dekada = Hodnota(txtCisel_V_Dekade);
    z.Rozptyl = Hodnota(txtSudLich[0]);
    z.Sudych = Hodnota(txtSudLich[1]);
    z.Lichych = Hodnota(txtSudLich[2]);
    z.Max_Dvojic = Hodnota(Text7);
    z.Max_Trojic = Hodnota(Text8);
    for (std::size_t i = 0; i < 2; ++i) {
        z.Suma[i] = Hodnota(txtSuma[i]);
        z.Rozsah[i] = Hodnota(txtRozsah_Min_Max[i]);
    }
    z.Prunik = Hodnota(txtPrunik);
    const Nastaveni_Zaznam& n = Sezeni.Nastaveni;
    z.Pocet_Pruchodu = n.Pocet_Pruchodu;
    z.Auto_Oprava = n.Auto_Oprava;
    z.Opakovat_Volba = n.Opakovat_Volba;
    const bool archiv = Je_Archiv();
    z.Tahy_1 = archiv ? &Sezeni.Archiv.Tahy_1 : nullptr;
    z.Tahy_2 = archiv ? &Sezeni.Archiv.Tahy_2 : nullptr;
}

void frmGeneruj_Omezeni::Po_Behu(double max_tretich_cen) {
    Text4->setText(Cislo(max_tretich_cen));
}

void frmGeneruj_Omezeni::Pocet_Tipu_Zmenen(int tipu) {
    if (Drzet_Text4)
        return;
    Text4->setText(Cislo(Pocatecni_Max_Tretich_Cen(tipu, Sezeni.Nastaveni.Auto_Oprava)));
}

void frmGeneruj_Omezeni::Tutovky_Zmeneny(int pocet_tutovek) {
    // The tutovky stand in every tip, so no more than 5 - tutovky of the drawn numbers can be
    // shared with the tip before.
    Pocet_Tutovek = pocet_tutovek;
    if (Check1[10]->isChecked() && pocet_tutovek + Hodnota(txtPrunik) > 5)
        txtPrunik->setText(Cislo(5 - pocet_tutovek));
}

void frmGeneruj_Omezeni::Zamkni_Pro_Beh(bool zamknout) {
    if (!zamknout) {
        Povol_Omezeni();
        return;
    }
    // The run pumps events: nothing here may change under it.
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
    for (const std::size_t i : {std::size_t(2), std::size_t(4)}) {
        Check1[i]->hide();
        Popisky[i]->hide();
        for (QLineEdit* pole : Limity[i])
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
