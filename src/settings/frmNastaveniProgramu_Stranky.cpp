#include "settings/frmNastaveniProgramu_Stranky.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmOvladani.h"
#include "settings/Nastaveni_Programu.h"

#include <QCheckBox>
#include <QDir>
#include <QFileSystemModel>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTreeView>
#include <QVBoxLayout>

using modNastaveni_Ovladani::Indexem;

namespace {

uint8_t Zaskrtnuto(const QCheckBox* box) {
    return box->isChecked() ? 1 : 0;
}

} // namespace

// ---- 0: folders ----

Stranka_Adresare::Stranka_Adresare(Nastaveni_Zaznam& kopie, Relace& sezeni, QWidget* parent)
    : Stranka_Nastaveni(kopie, parent), txtCesta(Prvek(new QLineEdit(this), u"txtCesta"_qs)),
      Dir1(Prvek(new QTreeView(this), u"Dir1"_qs)), cmdZaloz_Adr(Prvek(new QPushButton(this), u"cmdZaloz_Adr"_qs)),
      txtIE_Cesta(Prvek(new QLineEdit(kopie.Adresare[5], this), u"txtIE_Cesta"_qs)),
      cmdNajdiIE(Prvek(new QPushButton(this), u"cmdNajdiIE"_qs)),
      cmdSmazatHistoriiSouboru(Prvek(new QPushButton(this), u"cmdSmazatHistoriiSouboru"_qs)),
      cmdSmazatHistoriiSouboruSeznamu(Prvek(new QPushButton(this), u"cmdSmazatHistoriiSouboruSeznamu"_qs)),
      Sezeni(sezeni), Model(new QFileSystemModel(this)) {
    for (std::size_t i = 0; i < Adresare.size(); ++i)
        Adresare[i] = kopie.Adresare[i];
    Model->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    Model->setRootPath(QDir::rootPath());
    Dir1->setModel(Model);
    for (int sloupec = 1; sloupec < Model->columnCount(); ++sloupec)
        Dir1->hideColumn(sloupec);
    Dir1->header()->hide();
    Dir1->setMinimumHeight(160);

    auto* volba = Prvek(new QGroupBox(this), u"Frame_Cesta"_qs);
    auto* mrizka = new QGridLayout(volba);
    for (std::size_t i = 0; i < optCesta.size(); ++i) {
        optCesta[i] = Prvek(new QRadioButton(volba), Indexem(u"optCesta"_qs, int(i)));
        mrizka->addWidget(optCesta[i], 0, int(i));
        connect(optCesta[i], &QRadioButton::toggled, this, [this, i](bool zapnuto) {
            if (zapnuto)
                Zvol_Adresar(int(i));
        });
    }
    mrizka->addWidget(txtCesta, 1, 0, 1, 3);
    mrizka->addWidget(cmdZaloz_Adr, 1, 3);
    mrizka->addWidget(Dir1, 2, 0, 1, 4);
    auto* prohlizec = Prvek(new QGroupBox(this), u"Frame_Prohlizec"_qs);
    auto* radek = new QHBoxLayout(prohlizec);
    radek->addWidget(txtIE_Cesta, 1);
    radek->addWidget(cmdNajdiIE);
    auto* historie = Prvek(new QGroupBox(this), u"Frame_Historie"_qs);
    auto* tlacitka = new QHBoxLayout(historie);
    tlacitka->addWidget(cmdSmazatHistoriiSouboru);
    tlacitka->addWidget(cmdSmazatHistoriiSouboruSeznamu);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->addWidget(volba, 1);
    rozlozeni->addWidget(prohlizec);
    rozlozeni->addWidget(historie);

    connect(txtCesta, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (Zvoleny != 0)
            Adresare[std::size_t(Zvoleny)] = QDir::fromNativeSeparators(text.trimmed());
    });
    connect(Dir1, &QTreeView::clicked, this,
            [this](const QModelIndex& index) { Slozka_Zvolena(Model->filePath(index)); });
    connect(cmdZaloz_Adr, &QPushButton::clicked, this, &Stranka_Adresare::cmdZaloz_Adr_Click);
    connect(cmdNajdiIE, &QPushButton::clicked, this, &Stranka_Adresare::cmdNajdiIE_Click);
    connect(cmdSmazatHistoriiSouboru, &QPushButton::clicked, this, [this] {
        Smazat_Tipy = true;
        cmdSmazatHistoriiSouboru->setEnabled(false);
    });
    connect(cmdSmazatHistoriiSouboruSeznamu, &QPushButton::clicked, this, [this] {
        Smazat_Seznamy = true;
        cmdSmazatHistoriiSouboruSeznamu->setEnabled(false);
    });
    optCesta[0]->setChecked(true);
    Zvol_Adresar(0);
}

void Stranka_Adresare::Zvol_Adresar(int index) {
    Zvoleny = index;
    // The settings are read at start from the program's folder and the data go with them: a data
    // folder elsewhere would be written to and never read back, so it is shown, not changed.
    const bool pevny = index == 0;
    txtCesta->setReadOnly(pevny);
    Dir1->setEnabled(!pevny);
    cmdZaloz_Adr->setEnabled(!pevny);
    txtCesta->setToolTip(Okno().Text(pevny ? u"txtCesta.Data.ToolTipText"_qs : u"txtCesta.ToolTipText"_qs));
    txtCesta->setText(QDir::toNativeSeparators(Adresare[std::size_t(index)]));
    const QModelIndex slozka = Model->index(Adresare[std::size_t(index)]);
    if (slozka.isValid()) {
        Dir1->setCurrentIndex(slozka);
        Dir1->scrollTo(slozka);
    }
}

void Stranka_Adresare::Slozka_Zvolena(const QString& cesta) {
    if (Zvoleny == 0)
        return;
    Adresare[std::size_t(Zvoleny)] = cesta;
    txtCesta->setText(QDir::toNativeSeparators(cesta));
}

void Stranka_Adresare::cmdZaloz_Adr_Click() {
    QString cesta = QDir::fromNativeSeparators(txtCesta->text().trimmed());
    while (cesta.size() > 1 && cesta.endsWith(u'/'))
        cesta.chop(1);
    if (cesta.isEmpty() || QFileInfo::exists(cesta) || !QDir().mkpath(cesta)) {
        Sezeni.Sluzby->Zprava(u"Špatně zadaná cesta nebo adresář existuje !"_qs);
        return;
    }
    Slozka_Zvolena(cesta);
}

void Stranka_Adresare::cmdNajdiIE_Click() {
    for (const QString& program : {u"firefox"_qs, u"firefox-esr"_qs, u"chromium"_qs, u"google-chrome"_qs,
                                   u"epiphany-browser"_qs, u"konqueror"_qs})
        if (const QString cesta = QStandardPaths::findExecutable(program); !cesta.isEmpty()) {
            txtIE_Cesta->setText(cesta);
            return;
        }
    Sezeni.Sluzby->Zprava(u"Webový prohlížeč (firefox, chromium ...) nebyl nalezen ! Bez cesty se otevře "
                          u"prohlížeč nastavený v systému."_qs);
}

void Stranka_Adresare::Uloz() {
    for (std::size_t i = 0; i < Adresare.size(); ++i)
        Kopie.Adresare[i] = Adresare[i];
    Kopie.Adresare[5] = txtIE_Cesta->text().trimmed();
    if (Smazat_Tipy)
        Kopie.Nedavne_Tipy.clear();
    if (Smazat_Seznamy)
        Kopie.Nedavne_Seznamy.clear();
}

// ---- 2: the generator ----

Stranka_Generovani::Stranka_Generovani(Nastaveni_Zaznam& kopie, QWidget* parent)
    : Stranka_Nastaveni(kopie, parent),
      txtVych_Poc_Tipu(Cislice(Prvek(new QLineEdit(QString::number(kopie.Vychozi_Tipu), this), u"txtVych_Poc_Tipu"_qs), 4)),
      txtKlicVyberuCislo(
          Cislice(Prvek(new QLineEdit(QString::number(kopie.Klic_Vyberu), this), u"txtKlicVyberuCislo"_qs), 1)),
      chkAutomatickeOpravy(Prvek(new QCheckBox(this), u"chkAutomatickeOpravy"_qs)),
      txtPocet_Pruchodu(
          Cislice(Prvek(new QLineEdit(QString::number(kopie.Pocet_Pruchodu), this), u"txtPocet_Pruchodu"_qs), 5)),
      txtMax_Ve_Sloupci(Prvek(new QLineEdit(kopie.Max_Ve_Sloupci, this), u"txtMax_Ve_Sloupci"_qs)),
      txtCislo_V_Tipu(Prvek(new QLineEdit(kopie.Cislo_V_Tipu, this), u"txtCislo_V_Tipu"_qs)) {
    chkAutomatickeOpravy->setChecked(kopie.Auto_Oprava != 0);
    auto* formular = new QFormLayout;
    formular->addRow(Okno().Text(u"Label_Vych_Poc_Tipu"_qs), txtVych_Poc_Tipu);
    formular->addRow(Okno().Text(u"Label_KlicVyberu"_qs), txtKlicVyberuCislo);
    formular->addRow(Okno().Text(u"Label_Pocet_Pruchodu"_qs), txtPocet_Pruchodu);
    formular->addRow(chkAutomatickeOpravy);
    auto* opakovat = Prvek(new QGroupBox(this), u"Frame_Opakovat"_qs);
    auto* volby = new QHBoxLayout(opakovat);
    for (std::size_t i = 0; i < optOpakovat.size(); ++i) {
        optOpakovat[i] = Prvek(new QRadioButton(opakovat), Indexem(u"optOpakovat"_qs, int(i)));
        volby->addWidget(optOpakovat[i]);
    }
    optOpakovat[kopie.Opakovat_Volba == 1 ? 1 : 0]->setChecked(true);
    auto* pomery = Prvek(new QGroupBox(this), u"Frame_Sud_Lich"_qs);
    auto* radek = new QHBoxLayout(pomery);
    for (std::size_t i = 0; i < chkVyloucit_Sud_Lich.size(); ++i) {
        chkVyloucit_Sud_Lich[i] = Prvek(new QCheckBox(pomery), Indexem(u"chkVyloucit_Sud_Lich"_qs, int(i)));
        chkVyloucit_Sud_Lich[i]->setChecked(kopie.Vyloucit_Sud_Lich[i] != 0);
        radek->addWidget(chkVyloucit_Sud_Lich[i]);
    }
    auto* vypis = new QFormLayout;
    vypis->addRow(Okno().Text(u"Label_Max_Ve_Sloupci"_qs), txtMax_Ve_Sloupci);
    vypis->addRow(Okno().Text(u"Label_Cislo_V_Tipu"_qs), txtCislo_V_Tipu);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->addLayout(formular);
    rozlozeni->addWidget(opakovat);
    rozlozeni->addWidget(pomery);
    rozlozeni->addLayout(vypis);
    rozlozeni->addStretch();
}

void Stranka_Generovani::Uloz() {
    // A default count outside what a file holds would start the generator with a count it refuses.
    Kopie.Vychozi_Tipu = int16_t(std::clamp(Cislo(txtVych_Poc_Tipu, 8), 1, 9500));
    Kopie.Klic_Vyberu = uint8_t(std::clamp(Cislo(txtKlicVyberuCislo, 3), 3, 9));
    Kopie.Pocet_Pruchodu = int16_t(std::clamp(Cislo(txtPocet_Pruchodu, 0), 0, 32767));
    Kopie.Auto_Oprava = Zaskrtnuto(chkAutomatickeOpravy);
    Kopie.Opakovat_Volba = optOpakovat[1]->isChecked() ? 1 : 0;
    for (std::size_t i = 0; i < chkVyloucit_Sud_Lich.size(); ++i)
        Kopie.Vyloucit_Sud_Lich[i] = Zaskrtnuto(chkVyloucit_Sud_Lich[i]);
    Kopie.Max_Ve_Sloupci = txtMax_Ve_Sloupci->text().trimmed();
    Kopie.Cislo_V_Tipu = txtCislo_V_Tipu->text().trimmed();
}

// ---- 5: the password ----

Stranka_Heslo::Stranka_Heslo(Nastaveni_Zaznam& kopie, QWidget* parent)
    : Stranka_Nastaveni(kopie, parent), cmdHeslo(Prvek(new QPushButton(this), u"cmdHeslo"_qs)),
      cmdZrusit_Heslo(Prvek(new QPushButton(this), u"cmdZrusit_Heslo"_qs)),
      lblSpatne_Heslo(Prvek(new QLabel(this), u"lblSpatne_Heslo"_qs)) {
    auto* formular = new QFormLayout;
    for (std::size_t i = 0; i < txtHeslo.size(); ++i) {
        txtHeslo[i] = Prvek(new QLineEdit(this), Indexem(u"txtHeslo"_qs, int(i)));
        txtHeslo[i]->setEchoMode(QLineEdit::Password);
        formular->addRow(Okno().Text(Indexem(u"Label_Heslo"_qs, int(i))), txtHeslo[i]);
    }
    auto* tlacitka = new QHBoxLayout;
    tlacitka->addWidget(cmdHeslo);
    tlacitka->addWidget(cmdZrusit_Heslo);
    tlacitka->addStretch();
    auto* poznamka = new QLabel(Okno().Text(u"Label_Sifra"_qs), this);
    poznamka->setWordWrap(true);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->addLayout(formular);
    rozlozeni->addLayout(tlacitka);
    rozlozeni->addWidget(lblSpatne_Heslo);
    rozlozeni->addWidget(poznamka);
    rozlozeni->addStretch();
    const auto vysledek = [this](const Nastaveni_Programu::Zmena_Hesla& zmena) {
        lblSpatne_Heslo->setText(zmena.Text);
        for (QLineEdit* pole : txtHeslo)
            pole->clear();
    };
    connect(cmdHeslo, &QPushButton::clicked, this, [this, vysledek] {
        vysledek(Nastaveni_Programu::Nastav_Heslo(Kopie, txtHeslo[0]->text(), txtHeslo[1]->text(),
                                                  txtHeslo[2]->text()));
    });
    connect(cmdZrusit_Heslo, &QPushButton::clicked, this,
            [this, vysledek] { vysledek(Nastaveni_Programu::Zrus_Heslo(Kopie, txtHeslo[0]->text())); });
}

// ---- 7: where the data come from ----

Stranka_Download::Stranka_Download(Nastaveni_Zaznam& kopie, Relace& sezeni, QWidget* parent)
    : Stranka_Nastaveni(kopie, parent), txtFTP_Adresa(Prvek(new QLineEdit(kopie.FTP_Adresa, this), u"txtFTP_Adresa"_qs)),
      txtFTP_data1(Prvek(new QLineEdit(kopie.FTP_Data1, this), u"txtFTP_data1"_qs)),
      txtFTP_data2(Prvek(new QLineEdit(kopie.FTP_Data2, this), u"txtFTP_data2"_qs)),
      txtCsv_Adresa(Prvek(new QLineEdit(this), u"txtCsv_Adresa"_qs)),
      txtServer_Aktualizace(Prvek(new QLineEdit(this), u"txtServer_Aktualizace"_qs)),
      chkSmazatAktSoubor(Prvek(new QCheckBox(this), u"chkSmazatAktSoubor"_qs)),
      chkZalohaDatTahu(Prvek(new QCheckBox(this), u"chkZalohaDatTahu"_qs)), Sezeni(sezeni) {
    if (sezeni.Registr != nullptr) {
        txtCsv_Adresa->setText(sezeni.Registr->value(QString::fromUtf16(Nastaveni_Programu::Klic_Csv_Adresa)).toString());
        txtServer_Aktualizace->setText(
            sezeni.Registr->value(QString::fromUtf16(Nastaveni_Programu::Klic_Serveru_Aktualizace)).toString());
    }
    chkSmazatAktSoubor->setChecked(kopie.Smazat_Dbf != 0);
    chkZalohaDatTahu->setChecked(kopie.Zaloha_Tahu == u"1");
    auto* formular = new QFormLayout(this);
    formular->addRow(Okno().Text(u"Label_FTP_Adresa"_qs), txtFTP_Adresa);
    formular->addRow(Okno().Text(u"Label_FTP_data1"_qs), txtFTP_data1);
    formular->addRow(Okno().Text(u"Label_FTP_data2"_qs), txtFTP_data2);
    formular->addRow(Okno().Text(u"Label_Csv_Adresa"_qs), txtCsv_Adresa);
    formular->addRow(chkSmazatAktSoubor);
    formular->addRow(chkZalohaDatTahu);
    formular->addRow(Okno().Text(u"Label_Server_Aktualizace"_qs), txtServer_Aktualizace);
}

void Stranka_Download::Uloz() {
    Kopie.FTP_Adresa = txtFTP_Adresa->text().trimmed();
    Kopie.FTP_Data1 = txtFTP_data1->text().trimmed();
    Kopie.FTP_Data2 = txtFTP_data2->text().trimmed();
    Kopie.Smazat_Dbf = Zaskrtnuto(chkSmazatAktSoubor);
    Kopie.Zaloha_Tahu = chkZalohaDatTahu->isChecked() ? u"1"_qs : QString();
    if (Sezeni.Registr != nullptr) {
        Sezeni.Registr->setValue(QString::fromUtf16(Nastaveni_Programu::Klic_Csv_Adresa), txtCsv_Adresa->text().trimmed());
        Sezeni.Registr->setValue(QString::fromUtf16(Nastaveni_Programu::Klic_Serveru_Aktualizace),
                                 txtServer_Aktualizace->text().trimmed());
    }
}

// ---- 8: removing tips ----

Stranka_Ruseni::Stranka_Ruseni(Nastaveni_Zaznam& kopie, QWidget* parent) : Stranka_Nastaveni(kopie, parent) {
    auto* ramec = Prvek(new QGroupBox(this), u"Frame_Sous_Cis"_qs);
    auto* mrizka = new QGridLayout(ramec);
    for (std::size_t i = 0; i < chkZrus_Tip_Sous_Cis.size(); ++i) {
        chkZrus_Tip_Sous_Cis[i] = Prvek(new QCheckBox(ramec), Indexem(u"chkZrus_Tip_Sous_Cis"_qs, int(i)));
        chkZrus_Tip_Sous_Cis[i]->setChecked(kopie.Zrus_Tip_Sous_Cis[i] == 1);
        mrizka->addWidget(chkZrus_Tip_Sous_Cis[i], int(i) / 2, int(i) % 2);
    }
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->addWidget(ramec);
    rozlozeni->addStretch();
}

void Stranka_Ruseni::Uloz() {
    for (std::size_t i = 0; i < chkZrus_Tip_Sous_Cis.size(); ++i)
        Kopie.Zrus_Tip_Sous_Cis[i] = Zaskrtnuto(chkZrus_Tip_Sous_Cis[i]);
}
