#include "settings/frmNastaveniProgramu_Ceny.h"

#include "app/Relace.h"
#include "app/frmOvladani.h"
#include "app/modTombi.h"
#include "settings/Nastaveni_Programu.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

using modNastaveni_Ovladani::Indexem;

namespace {

QString Castka(double kc) {
    return Vb::Format(kc, u"### ### ###").trimmed();
}

} // namespace

// ---- 3: prices and prizes ----

Stranka_Ceny::Stranka_Ceny(Nastaveni_Zaznam& kopie, Relace& sezeni, QWidget* parent)
    : Stranka_Nastaveni(kopie, parent),
      txtCena_Jednoho_Tipu(Cislice(
          Prvek(new QLineEdit(QString::number(kopie.Cena_Jednoho_Tipu), this), u"txtCena_Jednoho_Tipu"_qs), 3)),
      txtCena_Sance(Cislice(Prvek(new QLineEdit(QString::number(kopie.Cena_Sance), this), u"txtCena_Sance"_qs), 3)),
      cmdCenyVytvor(Prvek(new QPushButton(this), u"cmdCenyVytvor"_qs)),
      chkZmena_Cisla_Tiketu(Prvek(new QCheckBox(this), u"chkZmena_Cisla_Tiketu"_qs)), Sezeni(sezeni),
      Den(std::clamp<int>(sezeni.Tikety.Den_Tahu, 0, 2)) {
    Ceny[0] = kopie.Ceny_Nedele;
    Ceny[1] = kopie.Ceny_Streda;
    Ceny[2] = modTombi::Ceny_Dne_Tahu(sezeni, ::Den::Patek);
    chkZmena_Cisla_Tiketu->setChecked(kopie.Zmena_Cisla_Tiketu != 0);
    auto* formular = new QFormLayout;
    formular->addRow(Okno().Text(u"Label_Cena_Jednoho_Tipu"_qs), txtCena_Jednoho_Tipu);
    formular->addRow(Okno().Text(u"Label_Cena_Sance"_qs), txtCena_Sance);
    auto* vyhry = Prvek(new QGroupBox(this), u"Frame_Ceny"_qs);
    auto* mrizka = new QGridLayout(vyhry);
    auto* dny = new QHBoxLayout;
    for (std::size_t i = 0; i < optTyden.size(); ++i) {
        optTyden[i] = Prvek(new QRadioButton(vyhry), Indexem(u"optTyden"_qs, int(i)));
        dny->addWidget(optTyden[i]);
    }
    mrizka->addLayout(dny, 0, 0, 1, 3);
    mrizka->addWidget(new QLabel(Okno().Text(u"Label_Tah_1"_qs), vyhry), 1, 1);
    mrizka->addWidget(new QLabel(Okno().Text(u"Label_Tah_2"_qs), vyhry), 1, 2);
    for (int poradi = 0; poradi < 5; ++poradi) {
        mrizka->addWidget(new QLabel(Okno().Text(Indexem(u"lblPoradi"_qs, poradi)), vyhry), poradi + 2, 0);
        for (int tah = 0; tah < 2; ++tah) {
            const int i = tah * 5 + poradi;
            QLineEdit*& pole = txtCena[std::size_t(i)];
            pole = Cislice(Prvek(new QLineEdit(vyhry), Indexem(u"txtCena"_qs, i)), 11);
            pole->setAlignment(Qt::AlignRight);
            mrizka->addWidget(pole, poradi + 2, tah + 1);
            connect(pole, &QLineEdit::textChanged, this, [this, i](const QString& text) {
                if (!Ukazuje)
                    Ceny[std::size_t(Den)][std::size_t(i)] = Vb::Mena::Z_Korun(Vb::Val(QString(text).remove(u' ')));
            });
            connect(pole, &QLineEdit::editingFinished, this, [this, i] {
                txtCena[std::size_t(i)]->setText(Castka(Ceny[std::size_t(Den)][std::size_t(i)].Korun()));
            });
        }
    }
    mrizka->addWidget(cmdCenyVytvor, 7, 0, 1, 3);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->addLayout(formular);
    rozlozeni->addWidget(vyhry);
    rozlozeni->addWidget(chkZmena_Cisla_Tiketu);
    rozlozeni->addStretch();

    for (std::size_t i = 0; i < optTyden.size(); ++i)
        connect(optTyden[i], &QRadioButton::toggled, this, [this, i](bool zapnuto) {
            if (!zapnuto)
                return;
            Den = int(i);
            Ukaz_Ceny();
        });
    connect(cmdCenyVytvor, &QPushButton::clicked, this, [this] {
        Ceny[std::size_t(Den)] = Nastaveni_Programu::Nahodne_Ceny(Sezeni.Random);
        Ukaz_Ceny();
    });
    optTyden[std::size_t(Den)]->setChecked(true);
    Ukaz_Ceny();
}

void Stranka_Ceny::Ukaz_Ceny() {
    Ukazuje = true;
    for (std::size_t i = 0; i < txtCena.size(); ++i)
        txtCena[i]->setText(Castka(Ceny[std::size_t(Den)][i].Korun()));
    Ukazuje = false;
}

void Stranka_Ceny::Uloz() {
    Kopie.Cena_Jednoho_Tipu = uint8_t(std::clamp(Cislo(txtCena_Jednoho_Tipu), 0, 255));
    Kopie.Cena_Sance = uint8_t(std::clamp(Cislo(txtCena_Sance), 0, 255));
    Kopie.Ceny_Nedele = Ceny[0];
    Kopie.Ceny_Streda = Ceny[1];
    Kopie.Zmena_Cisla_Tiketu = chkZmena_Cisla_Tiketu->isChecked() ? 1 : 0;
    modTombi::Uloz_Ceny_Patku(Sezeni, Ceny[2]);
}

// ---- 6: the calculator ----

Stranka_Vypocty::Stranka_Vypocty(Nastaveni_Zaznam& kopie, const QLineEdit* cena_tipu, QWidget* parent)
    : Stranka_Nastaveni(kopie, parent), Cena_Tipu(cena_tipu) {
    auto* formular = new QFormLayout(this);
    for (int i = 0; i < 2; ++i) {
        txtVstupy[std::size_t(i)] = Cislice(Prvek(new QLineEdit(this), Indexem(u"txtVstupy"_qs, i)), i == 0 ? 2 : 5);
        connect(txtVstupy[std::size_t(i)], &QLineEdit::textChanged, this, &Stranka_Vypocty::Spocitej);
    }
    for (std::size_t i = 0; i < lblVysledek.size(); ++i) {
        lblVysledek[i] = Prvek(new QLabel(this), Indexem(u"lblVysledek"_qs, int(i)));
        lblVysledek[i]->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    formular->addRow(Okno().Text(u"Label_Vstupy(0)"_qs), txtVstupy[0]);
    for (int i = 0; i < 5; ++i)
        formular->addRow(Okno().Text(Indexem(u"Label_Vysledek"_qs, i)), lblVysledek[std::size_t(i)]);
    formular->addRow(Okno().Text(u"Label_Vstupy(1)"_qs), txtVstupy[1]);
    formular->addRow(Okno().Text(u"Label_Vysledek(5)"_qs), lblVysledek[5]);
    formular->addRow(Okno().Text(u"Label_Vysledek(6)"_qs), lblVysledek[6]);
}

void Stranka_Vypocty::Spocitej() {
    const double cena = Vb::Val(Cena_Tipu->text());
    const QString nesmysl = u" N E S M Y S L "_qs;
    // An empty box gives no result: a made-up count would show numbers that mean nothing.
    if (txtVstupy[0]->text().isEmpty()) {
        for (int i = 0; i < 5; ++i)
            lblVysledek[std::size_t(i)]->clear();
    } else if (const auto v = Nastaveni_Programu::Spocitej(modNastaveni_Ovladani::Cele_Cislo(txtVstupy[0]), cena)) {
        lblVysledek[0]->setText(Vb::Format(v->Tipu, u"### ### ### ### ### ### ").trimmed());
        lblVysledek[1]->setText(Vb::Format(v->Naklady, u"### ### ### ### ### ### ").trimmed() + u" Kč"_qs);
        lblVysledek[2]->setText(Vb::Format(v->Po_Peti, u"### ### ### ### ").trimmed());
        lblVysledek[3]->setText(Vb::Format(v->Po_Ctyrech, u"### ### ### ### ").trimmed());
        lblVysledek[4]->setText(Vb::Format(v->Po_Trech, u"### ### ### ### ").trimmed());
    } else {
        for (int i = 0; i < 5; ++i)
            lblVysledek[std::size_t(i)]->setText(nesmysl);
    }
    const int tipu = modNastaveni_Ovladani::Cele_Cislo(txtVstupy[1]);
    if (txtVstupy[1]->text().isEmpty()) {
        lblVysledek[5]->clear();
        lblVysledek[6]->clear();
    } else if (tipu < 1 || tipu > 9500) {
        lblVysledek[5]->setText(nesmysl);
        lblVysledek[6]->setText(nesmysl);
    } else {
        lblVysledek[5]->setText(Vb::Format(tipu * cena, u"### ### ### ### ### ").trimmed() + u" Kč"_qs);
        lblVysledek[6]->setText(QString::number((tipu + 9) / 10));
    }
}
