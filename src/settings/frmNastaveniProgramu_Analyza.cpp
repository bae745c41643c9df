#include "settings/frmNastaveniProgramu_Analyza.h"

#include "app/frmOvladani.h"
#include "core/Vb.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

using modNastaveni_Ovladani::Indexem;

namespace {

constexpr int Pocet_Analyz = 10;

QLineEdit* Pocet(const QString& text, const QString& jmeno, QWidget* rodic) {
    return Stranka_Nastaveni::Cislice(Stranka_Nastaveni::Prvek(new QLineEdit(text, rodic), jmeno), 4);
}

} // namespace

Stranka_Analyza_Tahu::Stranka_Analyza_Tahu(Nastaveni_Zaznam& kopie, QWidget* parent)
    : Stranka_Nastaveni(kopie, parent), Odecist_Tahy(Pocet(kopie.Odecist_Tahy, u"Odecist_Tahy"_qs, this)),
      Od_Do_1Tah_Str(Pocet(kopie.Od_Do_1Tah_Str, u"Od_Do_1Tah_Str"_qs, this)),
      Od_Do_2Tah_Str(Pocet(kopie.Od_Do_2Tah_Str, u"Od_Do_2Tah_Str"_qs, this)),
      Od_Do_1Tah_Ned(Pocet(kopie.Od_Do_1Tah_Ned, u"Od_Do_1Tah_Ned"_qs, this)),
      Od_Do_2Tah_Ned(Pocet(kopie.Od_Do_2Tah_Ned, u"Od_Do_2Tah_Ned"_qs, this)),
      txtPocet_Tahu_Analyzovat(Pocet(kopie.Pocet_Tahu_Analyzovat, u"txtPocet_Tahu_Analyzovat"_qs, this)),
      chkAut_Prep_Hodnot(Prvek(new QCheckBox(this), u"chkAut_Prep_Hodnot"_qs)) {
    chkAut_Prep_Hodnot->setChecked(kopie.Prepocitat_Hodnoty != 0);
    auto* formular = new QFormLayout;
    for (QLineEdit* pole : {Odecist_Tahy, Od_Do_1Tah_Str, Od_Do_2Tah_Str, Od_Do_1Tah_Ned, Od_Do_2Tah_Ned,
                            txtPocet_Tahu_Analyzovat})
        formular->addRow(Okno().Text(u"Label_"_qs + pole->objectName()), pole);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->addLayout(formular);
    rozlozeni->addWidget(chkAut_Prep_Hodnot);
    rozlozeni->addStretch();
}

void Stranka_Analyza_Tahu::Uloz() {
    Kopie.Odecist_Tahy = Odecist_Tahy->text().trimmed();
    Kopie.Od_Do_1Tah_Str = Od_Do_1Tah_Str->text().trimmed();
    Kopie.Od_Do_2Tah_Str = Od_Do_2Tah_Str->text().trimmed();
    Kopie.Od_Do_1Tah_Ned = Od_Do_1Tah_Ned->text().trimmed();
    Kopie.Od_Do_2Tah_Ned = Od_Do_2Tah_Ned->text().trimmed();
    Kopie.Pocet_Tahu_Analyzovat = txtPocet_Tahu_Analyzovat->text().trimmed();
    Kopie.Prepocitat_Hodnoty = chkAut_Prep_Hodnot->isChecked() ? 1 : 0;
}

Stranka_Auto_Analyza::Stranka_Auto_Analyza(Nastaveni_Zaznam& kopie, QWidget* parent)
    : Stranka_Nastaveni(kopie, parent),
      chkExport_Amalyz_Do_Text_Souboru(Prvek(new QCheckBox(this), u"chkExport_Amalyz_Do_Text_Souboru"_qs)),
      chkAnal_Soubor_Spoj(Prvek(new QCheckBox(this), u"chkAnal_Soubor_Spoj"_qs)),
      chkAnal_Auto_Form_Start(Prvek(new QCheckBox(this), u"chkAnal_Auto_Form_Start"_qs)),
      chkAnal_Form_Pamatovat(Prvek(new QCheckBox(this), u"chkAnal_Form_Pamatovat"_qs)),
      lstTyp_Analyzy(Prvek(new QListWidget(this), u"lstTyp_Analyzy"_qs)) {
    chkExport_Amalyz_Do_Text_Souboru->setChecked(kopie.Zapis_Analyzy != 0);
    chkAnal_Soubor_Spoj->setChecked(kopie.Spojovat_Soubor != 0);
    chkAnal_Auto_Form_Start->setChecked(kopie.Otevirat_Soubor != 0);
    chkAnal_Form_Pamatovat->setChecked(kopie.Pamatovat_Okno != 0);
    auto* soubor = Prvek(new QGroupBox(this), u"Frame_Soubor_Analyzy"_qs);
    auto* v_souboru = new QVBoxLayout(soubor);
    v_souboru->addWidget(chkExport_Amalyz_Do_Text_Souboru);
    auto* tahy = new QHBoxLayout;
    for (std::size_t i = 0; i < optAnal_Tahy_Zapis.size(); ++i) {
        optAnal_Tahy_Zapis[i] = Prvek(new QRadioButton(soubor), Indexem(u"optAnal_Tahy_Zapis"_qs, int(i)));
        optAnal_Tahy_Zapis[i]->setChecked(Vb::Je_Pravda(kopie.Zapis_Tahu[i]));
        tahy->addWidget(optAnal_Tahy_Zapis[i]);
    }
    if (!optAnal_Tahy_Zapis[1]->isChecked() && !optAnal_Tahy_Zapis[2]->isChecked())
        optAnal_Tahy_Zapis[0]->setChecked(true);
    v_souboru->addLayout(tahy);
    v_souboru->addWidget(chkAnal_Soubor_Spoj);
    v_souboru->addWidget(chkAnal_Auto_Form_Start);
    v_souboru->addWidget(chkAnal_Form_Pamatovat);

    lstTyp_Analyzy->setSelectionMode(QAbstractItemView::MultiSelection);
    for (int i = 0; i < Pocet_Analyz; ++i) {
        lstTyp_Analyzy->addItem(Okno().Text(Indexem(u"lstTyp_Analyzy"_qs, i)));
        lstTyp_Analyzy->item(i)->setSelected(Vb::Je_Pravda(kopie.Auto_Analyza[std::size_t(i)]));
    }
    auto* tlacitka = new QHBoxLayout;
    for (std::size_t i = 0; i < cmdAnalyza_Vse.size(); ++i) {
        cmdAnalyza_Vse[i] = Prvek(new QPushButton(this), Indexem(u"cmdAnalyza_Vse"_qs, int(i)));
        tlacitka->addWidget(cmdAnalyza_Vse[i]);
        connect(cmdAnalyza_Vse[i], &QPushButton::clicked, this, [this, i] {
            for (int r = 0; r < lstTyp_Analyzy->count(); ++r)
                lstTyp_Analyzy->item(r)->setSelected(i == 0);
        });
    }
    tlacitka->addStretch();
    auto* automaticka = Prvek(new QGroupBox(this), u"Frame_Auto_Analyza"_qs);
    auto* v_automaticke = new QVBoxLayout(automaticka);
    v_automaticke->addWidget(lstTyp_Analyzy);
    v_automaticke->addLayout(tlacitka);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->addWidget(soubor);
    rozlozeni->addWidget(automaticka);
}

void Stranka_Auto_Analyza::Uloz() {
    Kopie.Zapis_Analyzy = chkExport_Amalyz_Do_Text_Souboru->isChecked() ? 1 : 0;
    for (std::size_t i = 0; i < optAnal_Tahy_Zapis.size(); ++i)
        Kopie.Zapis_Tahu[i] = optAnal_Tahy_Zapis[i]->isChecked() ? Vb::Pravda : Vb::Nepravda;
    Kopie.Spojovat_Soubor = chkAnal_Soubor_Spoj->isChecked() ? 1 : 0;
    Kopie.Otevirat_Soubor = chkAnal_Auto_Form_Start->isChecked() ? 1 : 0;
    Kopie.Pamatovat_Okno = chkAnal_Form_Pamatovat->isChecked() ? 1 : 0;
    for (int i = 0; i < Pocet_Analyz; ++i)
        Kopie.Auto_Analyza[std::size_t(i)] = lstTyp_Analyzy->item(i)->isSelected() ? Vb::Pravda : Vb::Nepravda;
}
