#include "bettors/frmSeznamSazejicich.h"

#include "app/Otevri_Dialog.h"
#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmMDITombi.h"
#include "app/frmMDITombi_Tipy.h"
#include "app/frmOvladani.h"
#include "bettors/frmSeznamSazejicich_Tisk.h"
#include "core/Hodiny.h"
#include "core/Tabulka_Textu.h"
#include "data/Nedavne_Soubory.h"
#include "data/Soubory.h"
#include "generator/frmGeneruj.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmSeznamSazejicich"_qs};
const QString Pripona = u".szn"_qs;
// The most tips a file holds: the stakes together may buy no more.
constexpr double Nejvic_Tipu = Max_Tiketu * Sloupcu_Tiketu;

QString Cele(double x) {
    return Vb::Format(x, u"### ###").trimmed();
}

// The list's line as the monospaced list shows it: each tab to the next stop of eight characters.
QString Rozvin_Tabulatory(const QString& radek) {
    QString vysledek;
    for (const QChar c : radek) {
        if (c == u'\t')
            vysledek += QString(8 - vysledek.size() % 8, u' ');
        else
            vysledek += c;
    }
    return vysledek;
}

// A caption whose key letter moves to its box.
QLabel* Popisek(const QString& klic, QWidget* pole) {
    auto* popisek = new QLabel(Okno.Text(klic), pole->parentWidget());
    popisek->setBuddy(pole);
    return popisek;
}

// A name that can stand as a file name in the lists' folder.
bool Platny_Nazev(const QString& nazev) {
    return !nazev.isEmpty() && !nazev.contains(u'/') && !nazev.contains(u'\\') && nazev != u"."_qs &&
           nazev != u".."_qs;
}

} // namespace

frmSeznamSazejicich::frmSeznamSazejicich(frmMDITombi& ram, QWidget* parent)
    : QWidget(parent), Text3(Okno.Pojmenuj(new QLineEdit(this), u"Text3"_qs)),
      txtTah_Dne(Okno.Pojmenuj(new QLineEdit(this), u"txtTah_Dne"_qs)),
      txtSazkovy_Tyden(Okno.Pojmenuj(new QLineEdit(this), u"txtSazkovy_Tyden"_qs)),
      txtJmeno(Okno.Pojmenuj(new QLineEdit(this), u"txtJmeno"_qs)),
      txtVklad(Okno.Pojmenuj(new QLineEdit(this), u"txtVklad"_qs)),
      cmdDalsi_Sazejici(Okno.Pojmenuj(new QPushButton(this), u"cmdDalsi_Sazejici"_qs)),
      cmdOpravit(Okno.Pojmenuj(new QPushButton(this), u"cmdOpravit"_qs)),
      cmdSmazat(Okno.Pojmenuj(new QPushButton(this), u"cmdSmazat"_qs)),
      List1(Okno.Pojmenuj(new QListWidget(this), u"List1"_qs)),
      txtProvize(Okno.Pojmenuj(new QLineEdit(u"0"_qs, this), u"txtProvize"_qs)),
      lblProvize(Okno.Pojmenuj(new QLabel(this), u"lblProvize"_qs)),
      lblVklad(Okno.Pojmenuj(new QLabel(this), u"lblVklad"_qs)),
      lblPocet_Tipu(Okno.Pojmenuj(new QLabel(this), u"lblPocet_Tipu"_qs)),
      lblPocet_Tiketu(Okno.Pojmenuj(new QLabel(this), u"lblPocet_Tiketu"_qs)),
      lblZbytek(Okno.Pojmenuj(new QLabel(this), u"lblZbytek"_qs)),
      lblNazev_Sob_TIpu(Okno.Pojmenuj(new QLabel(this), u"lblNazev_Sob_TIpu"_qs)),
      Check2(Okno.Pojmenuj(new QCheckBox(this), u"Check2"_qs)),
      Check1(Okno.Pojmenuj(new QCheckBox(this), u"Check1"_qs)),
      cmdOK(Okno.Pojmenuj(new QPushButton(this), u"cmdOK"_qs)),
      cmdClose(Okno.Pojmenuj(new QPushButton(this), u"cmdClose"_qs)), Tisk(nullptr), Ram(ram),
      Sezeni(ram.Sezeni()) {
    setObjectName(Okno.Jmeno);
    setWindowTitle(Tabulka_Textu::Programu().Text(Okno.Jmeno));
    Tisk = new frmSeznamSazejicich_Tisk(ram, *this);
    QFont pevne(u"DejaVu Sans Mono"_qs);
    pevne.setPointSizeF(List1->font().pointSizeF());
    List1->setFont(pevne);
    List1->setMinimumWidth(QFontMetrics(pevne).horizontalAdvance(QString(64, u'0')) + 48); // the check box and the scroll bar
    txtJmeno->setMaxLength(Nejsirsi_Jmeno / 45);
    for (QLineEdit* pole : {txtVklad, txtProvize, txtSazkovy_Tyden}) {
        modNastaveni_Ovladani::Jen_Cislice(pole);
        modNastaveni_Ovladani::Vybirej_Pri_Vstupu(pole);
    }
    txtVklad->setMaxLength(5);
    txtProvize->setMaxLength(3);
    txtSazkovy_Tyden->setMaxLength(3);

    auto* vlevo = new QVBoxLayout;
    auto* hlava = new QFormLayout;
    hlava->addRow(Popisek(u"Label_Text3"_qs, Text3), Text3);
    auto* tah = new QHBoxLayout;
    tah->addWidget(txtTah_Dne);
    tah->addWidget(Popisek(u"Label_Tyden"_qs, txtSazkovy_Tyden));
    tah->addWidget(txtSazkovy_Tyden);
    hlava->addRow(Popisek(u"Label_Tah_Dne"_qs, txtTah_Dne), tah);
    vlevo->addLayout(hlava);
    vlevo->addWidget(Naplneni());
    vlevo->addWidget(List1, 1);
    auto* vpravo = new QVBoxLayout;
    vpravo->addWidget(Penize());
    vpravo->addWidget(Tisk);
    vpravo->addStretch();
    auto* tlacitka = new QHBoxLayout;
    tlacitka->addWidget(cmdOK);
    tlacitka->addWidget(cmdClose);
    vpravo->addLayout(tlacitka);
    auto* rozlozeni = new QHBoxLayout(this);
    rozlozeni->addLayout(vlevo, 1);
    rozlozeni->addLayout(vpravo);

    // On load, as the list stands: a new list takes the next draw and this week.
    Stav_Seznamu& stav = Sezeni.Seznam;
    stav.Zmena_Seznamu = false;
    if (stav.Pocet_Sazejicich() > 0) {
        Vypis_Seznam();
        const Sazejici& prvni = stav.Seznam.front();
        txtTah_Dne->setText(prvni.Tah_Dne);
        txtSazkovy_Tyden->setText(QString::number(prvni.Tyden));
        txtProvize->setText(prvni.Provize.isEmpty() ? u"0"_qs : prvni.Provize);
        Check2->setChecked(prvni.Sance != 0);
        Text3->setText(QFileInfo(stav.Seznam_Jmeno).completeBaseName());
    } else {
        txtTah_Dne->setText(Sezeni.Dalsi_Tah);
        const QDate dnes = Sezeni.Cas->Dnes();
        txtSazkovy_Tyden->setText(QString::number((dnes.day() + 30 * (dnes.month() - 1)) / 7 + 1));
        Text3->setText(u"Novy"_qs);
    }
    if (Check2->isChecked())
        Check2_Click();
    lblNazev_Sob_TIpu->setText(Sezeni.Tipy.Jmeno_Souboru_Tipu);
    Nepouzita_Cisla();
    Prepocti_Tipy();

    connect(cmdDalsi_Sazejici, &QPushButton::clicked, this, &frmSeznamSazejicich::cmdDalsi_Sazejici_Click);
    connect(cmdOpravit, &QPushButton::clicked, this, &frmSeznamSazejicich::cmdOpravit_Click);
    connect(cmdSmazat, &QPushButton::clicked, this, &frmSeznamSazejicich::cmdSmazat_Click);
    connect(List1, &QListWidget::itemClicked, this, &frmSeznamSazejicich::List1_Click);
    connect(txtProvize, &QLineEdit::textEdited, this, &frmSeznamSazejicich::txtProvize_Change);
    connect(Check2, &QCheckBox::clicked, this, &frmSeznamSazejicich::Check2_Click);
    connect(txtVklad, &QLineEdit::textEdited, this, [this] {
        if (Vb::Val(txtVklad->text()) > Nejvetsi_Vklad)
            modNastaveni_Ovladani::Vyber_Text(txtVklad);
    });
    for (QLineEdit* pole : {Text3, txtTah_Dne, txtSazkovy_Tyden})
        connect(pole, &QLineEdit::textEdited, this, [this] { Sezeni.Seznam.Zmena_Seznamu = true; });
    connect(cmdOK, &QPushButton::clicked, this, &frmSeznamSazejicich::cmdOK_Click);
    connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
    modNastaveni_Ovladani::Napoveda(this, u"Sezn"_qs);
    Nacita = false;
}

QWidget* frmSeznamSazejicich::Naplneni() {
    auto* ramec = Okno.Pojmenuj(new QGroupBox(this), u"Frame_Naplneni"_qs);
    auto* mrizka = new QGridLayout(ramec);
    mrizka->addWidget(Popisek(u"Label_Jmeno"_qs, txtJmeno), 0, 0);
    mrizka->addWidget(txtJmeno, 0, 1, 1, 2);
    mrizka->addWidget(Popisek(u"Label_Vklad"_qs, txtVklad), 1, 0);
    mrizka->addWidget(txtVklad, 1, 1);
    auto* tlacitka = new QHBoxLayout;
    for (QPushButton* t : {cmdDalsi_Sazejici, cmdOpravit, cmdSmazat})
        tlacitka->addWidget(t);
    mrizka->addLayout(tlacitka, 2, 0, 1, 3);
    return ramec;
}

QWidget* frmSeznamSazejicich::Penize() {
    auto* ramec = new QWidget(this);
    auto* formular = new QFormLayout(ramec);
    formular->setContentsMargins(0, 0, 0, 0);
    auto* provize = new QHBoxLayout;
    provize->addWidget(txtProvize);
    provize->addWidget(new QLabel(Okno.Text(u"Label_Procent"_qs), ramec));
    provize->addWidget(lblProvize, 1);
    txtProvize->setMaximumWidth(fontMetrics().horizontalAdvance(u"0000"_qs) + 12);
    formular->addRow(Okno.Text(u"Label_Provize"_qs), provize);
    formular->addRow(Okno.Text(u"Label_Celkem"_qs), lblVklad);
    formular->addRow(Okno.Text(u"Label_Pocet_Tipu"_qs), lblPocet_Tipu);
    formular->addRow(Okno.Text(u"Label_Pocet_Tiketu"_qs), lblPocet_Tiketu);
    formular->addRow(Okno.Text(u"Label_Zbytek"_qs), lblZbytek);
    formular->addRow(Okno.Text(u"Label_Soubor_Tipu"_qs), lblNazev_Sob_TIpu);
    formular->addRow(Check2);
    formular->addRow(Check1);
    return ramec;
}

void frmSeznamSazejicich::Vypis_Seznam() {
    std::vector<Sazejici>& seznam = Sezeni.Seznam.Seznam;
    std::erase_if(seznam, [](const Sazejici& s) { return s.Jmeno.isEmpty(); });
    List1->clear();
    for (const Sazejici& s : seznam) {
        auto* radek = new QListWidgetItem(Rozvin_Tabulatory(Radek_Seznamu(s)), List1);
        radek->setFlags(radek->flags() | Qt::ItemIsUserCheckable);
        radek->setCheckState(Qt::Unchecked);
    }
    List1->setCurrentRow(List1->count() - 1);
    Prepocti_Tipy();
    if (Sezeni.Seznam.Zmena_Seznamu)
        Uloz_Seznam();
}

void frmSeznamSazejicich::Prepocti_Tipy() {
    const Penize_Seznamu p = Spocti_Penize(Sezeni.Seznam.Seznam, Vb::Val(txtProvize->text()),
                                           Sezeni.Nastaveni.Cena_Jednoho_Tipu, Cena_Sance);
    lblVklad->setText(Cele(p.Vklad));
    lblProvize->setText(Cele(p.Provize) + u" Kč"_qs);
    lblPocet_Tipu->setText(Cele(p.Pocet_Tipu));
    lblPocet_Tiketu->setText(Cele(p.Pocet_Tiketu));
    lblZbytek->setText(Vb::Format(p.Zbytek, u"### ##0").trimmed());
}

Vypisy_Seznamu::Hlavicka frmSeznamSazejicich::Hlavicka() const {
    return {txtTah_Dne->text(), txtProvize->text(),
            Spocti_Penize(Sezeni.Seznam.Seznam, Vb::Val(txtProvize->text()), Sezeni.Nastaveni.Cena_Jednoho_Tipu,
                          Cena_Sance),
            lblNazev_Sob_TIpu->text()};
}

std::vector<Sazejici> frmSeznamSazejicich::Vybrani() const {
    std::vector<Sazejici> vybrani;
    const std::vector<Sazejici>& seznam = Sezeni.Seznam.Seznam;
    for (int i = 0; i < List1->count() && std::size_t(i) < seznam.size(); ++i)
        if (List1->item(i)->checkState() == Qt::Checked)
            vybrani.push_back(seznam[std::size_t(i)]);
    return vybrani;
}

void frmSeznamSazejicich::cmdDalsi_Sazejici_Click() {
    const Vysledek pridani = Pridej_Sazejiciho(Sezeni.Seznam.Seznam, txtJmeno->text().trimmed(),
                                               Vb::Val(txtVklad->text()),
                                               Sezeni.Nastaveni.Cena_Jednoho_Tipu * Nejvic_Tipu);
    if (!pridani.Ok()) {
        Sezeni.Sluzby->Zprava(pridani.Zprava);
        return;
    }
    Sezeni.Seznam.Zmena_Seznamu = true;
    Vypis_Seznam();
    txtJmeno->clear();
    txtVklad->clear();
    txtJmeno->setFocus();
}

void frmSeznamSazejicich::cmdOpravit_Click() {
    // The line clicked gave its name and stake to the boxes; the boxes as they now stand replace it.
    const int radek = List1->currentRow();
    if (radek < 0 || radek >= Sezeni.Seznam.Pocet_Sazejicich()) {
        Sezeni.Sluzby->Zprava(u"Označ něco v seznamu ... "_qs);
        return;
    }
    const Vysledek oprava =
        Pridej_Sazejiciho(Sezeni.Seznam.Seznam, txtJmeno->text().trimmed(), Vb::Val(txtVklad->text()),
                          Sezeni.Nastaveni.Cena_Jednoho_Tipu * Nejvic_Tipu, radek);
    if (!oprava.Ok()) {
        Sezeni.Sluzby->Zprava(oprava.Zprava);
        return;
    }
    Sezeni.Seznam.Zmena_Seznamu = true;
    Vypis_Seznam();
    List1->setCurrentRow(radek);
    txtJmeno->clear();
    txtVklad->clear();
}

void frmSeznamSazejicich::cmdSmazat_Click() {
    std::vector<Sazejici>& seznam = Sezeni.Seznam.Seznam;
    if (seznam.empty()) {
        Sezeni.Sluzby->Zprava(u"Není co mazat !"_qs);
        return;
    }
    bool smazano = false;
    for (int i = std::min<int>(List1->count(), int(seznam.size())) - 1; i >= 0; --i)
        if (List1->item(i)->checkState() == Qt::Checked) {
            seznam.erase(seznam.begin() + i);
            smazano = true;
        }
    if (!smazano) {
        Sezeni.Sluzby->Zprava(u"Označ něco v seznamu ... "_qs);
        return;
    }
    // The shares of those left are of what they now put in together.
    Prepocti_Podily(seznam, Celkem_Vkladu(seznam));
    Sezeni.Seznam.Zmena_Seznamu = true;
    Vypis_Seznam();
}

void frmSeznamSazejicich::List1_Click() {
    const int radek = List1->currentRow();
    if (radek < 0 || radek >= Sezeni.Seznam.Pocet_Sazejicich())
        return;
    const Sazejici& s = Sezeni.Seznam.Seznam[std::size_t(radek)];
    txtJmeno->setText(s.Jmeno);
    txtVklad->setText(QString::number(qint64(s.Vklad.Korun())));
}

void frmSeznamSazejicich::txtProvize_Change() {
    if (Vb::Val(txtProvize->text()) > 100)
        txtProvize->setText(u"100"_qs);
    Prepocti_Tipy();
    Sezeni.Seznam.Zmena_Seznamu = true;
}

void frmSeznamSazejicich::Check2_Click() {
    Cena_Sance = 0;
    Sezeni.Generator.Stav_Sance = false;
    if (Check2->isChecked()) {
        if (Sezeni.Nastaveni.Cena_Sance == 0) {
            Sezeni.Sluzby->Zprava(u"Nastavte cenu \"šance\" v PROGRAM-NASTAVENÍ-GENEROVÁNÍ."_qs);
            Check2->setChecked(false);
        } else {
            Cena_Sance = Sezeni.Nastaveni.Cena_Sance;
            Sezeni.Generator.Stav_Sance = true;
        }
    }
    if (!Nacita)
        Sezeni.Seznam.Zmena_Seznamu = true;
    Prepocti_Tipy();
}

void frmSeznamSazejicich::Uloz_Seznam() {
    Stav_Seznamu& stav = Sezeni.Seznam;
    if (!stav.Zmena_Seznamu)
        return;
    const QString nazev = Text3->text().trimmed();
    if (!Platny_Nazev(nazev)) {
        Sezeni.Sluzby->Zprava(u"Seznam nebyl uložen: zadejte název souboru bez znaků \"/\" a \"\\\"."_qs);
        return;
    }
    if (!stav.Seznam.empty()) {
        Sazejici& prvni = stav.Seznam.front();
        prvni.Tah_Dne = txtTah_Dne->text();
        prvni.Tyden = uint8_t(std::clamp(modNastaveni_Ovladani::Cele_Cislo(txtSazkovy_Tyden), 0, 255));
        prvni.Provize = txtProvize->text();
        prvni.Sance = Sezeni.Generator.Stav_Sance ? 1 : 0;
    }
    const QString jmeno = nazev + Pripona;
    const Vysledek ulozeni = ::Uloz_Seznam(stav, Spoj_Cestu(Sezeni.Nastaveni.Adresare[2], jmeno));
    if (!ulozeni.Ok()) {
        Sezeni.Sluzby->Zprava(ulozeni.Zprava);
        return;
    }
    stav.Zmena_Seznamu = false;
    Stav_Tipu& tipy = Sezeni.Tipy;
    if (tipy.Soubor_Tipu.Seznam_Soubor != jmeno) {
        tipy.Soubor_Tipu.Seznam_Soubor = jmeno;
        // The link is part of the tip file: unsaved tips now carry it.
        if (tipy.Soubor_Tipu.Pocet_Tipu > 0)
            Sezeni.Tikety.Zmena_Dat = true;
    }
    tipy.Seznam_Navazany = jmeno;
    Ram.Pridej_Nedavny(Druh_Seznamy, jmeno);
}

void frmSeznamSazejicich::cmdOK_Click() {
    const int tipu = int(std::min(Vb::Val(lblPocet_Tipu->text().remove(u' ')), Nejvic_Tipu));
    const bool generovat = Sezeni.Seznam.Pocet_Sazejicich() > 0 && Check1->isChecked() && tipu > 0;
    if (generovat) {
        Sezeni.Tipy.Pocet_Tipu_Celkem = tipu;
        Sezeni.Tipy.Soubor_Tipu.Pocet_Tipu = int16_t(tipu);
    }
    // The boxes of the head are written on OK too, not only with a change of the bettors.
    Uloz_Seznam();
    frmMDITombi& ram = Ram;
    close();
    if (generovat)
        ram.Otevri_Okno<frmGeneruj>(ram);
}

void frmSeznamSazejicich::Nepouzita_Cisla() {
    const Zaznam_Tipu& z = Sezeni.Tipy.Soubor_Tipu;
    std::array<bool, 50> pouzito{};
    bool tipy = false;
    for (int t = 1; t <= std::clamp<int>(z.Pocet_Tiketu, 0, Max_Tiketu); ++t)
        for (int s = 1; s <= Sloupcu_Tiketu; ++s)
            for (int i = 1; i <= 6; ++i)
                if (const int n = z.Tikety[t].Cisla[s][i]; n >= 1 && n <= 49) {
                    pouzito[std::size_t(n)] = true;
                    tipy = true;
                }
    if (!tipy)
        return;
    QStringList nepouzita;
    for (int n = 1; n <= 49; ++n)
        if (!pouzito[std::size_t(n)])
            nepouzita << QString::number(n);
    lblNazev_Sob_TIpu->setToolTip(nepouzita.join(u' ') + u"  poměr nepoužito/použito  "_qs +
                                  QString::number(nepouzita.size()) + u'/' + QString::number(49 - nepouzita.size()) +
                                  u'\n');
}

// ---- The Seznamy menu ----

namespace {

void Otevri_Seznam(frmMDITombi& ram, const QString& cesta) {
    Relace& relace = ram.Sezeni();
    const Vysledek nacteni = Nacti_Seznam(relace.Seznam, cesta);
    if (!nacteni.Ok()) {
        relace.Sluzby->Zprava(nacteni.Zprava);
        return;
    }
    if (relace.Seznam.Pocet_Sazejicich() == 0) {
        relace.Sluzby->Zprava(u"Seznam \""_qs + Jmeno_Bez_Adresare(cesta) +
                              u"\" byl prázdný a byl smazán."_qs);
        return;
    }
    ram.Pridej_Nedavny(Druh_Seznamy, relace.Seznam.Seznam_Jmeno);
    ram.Otevri_Okno<frmSeznamSazejicich>(ram);
}

void Pred_Seznamem(frmMDITombi& ram) {
    frmMDITombi_Tipy::Zapomen_Soubor_Tipu(ram.Sezeni());
    ram.Zavri_Formulare(1);
}

} // namespace

void frmSeznamSazejicich::Pripoj_Prikazy(frmMDITombi& ram) {
    ram.Obsluz(ram.mnuOtevriSeznam, [&ram] {
        Pred_Seznamem(ram);
        Relace& relace = ram.Sezeni();
        QString cesta;
        bool vybrano = false;
        Otevri_Dialog(relace, 0, u"Seznam účastínků (*.szn)|*.szn"_qs, u"Otevřít seznam sázejících"_qs, cesta,
                      relace.Nastaveni.Adresare[2], vybrano);
        if (vybrano)
            Otevri_Seznam(ram, cesta);
    });
    ram.Obsluz(ram.mnuNovySeznam, [&ram] {
        frmMDITombi_Tipy::Zapomen_Soubor_Tipu(ram.Sezeni());
        ram.Sezeni().Seznam.Vyprazdni();
        ram.Zavri_Formulare(1);
        ram.Otevri_Okno<frmSeznamSazejicich>(ram);
    });
    ram.Obsluz(ram.mnuVypisSeznamu, [&ram] {
        if (ram.Sezeni().Seznam.Pocet_Sazejicich() == 0) {
            ram.Sezeni().Sluzby->Zprava(u"Není otevřen žádný seznam sázejících !"_qs);
            return;
        }
        ram.Zavri_Formulare(1);
        ram.Ukaz_Modalne<frmSeznamSazejicich>(ram);
    });
    ram.Obsluz(ram.mnuUvolnit, [&ram] {
        ram.Sezeni().Seznam.Vyprazdni();
        ram.Zavri_Okno<frmSeznamSazejicich>();
    });
    for (int i = 1; i < int(ram.mnuSeznamFile.size()); ++i)
        ram.Obsluz(ram.mnuSeznamFile[std::size_t(i)], [&ram, i] {
            Relace& relace = ram.Sezeni();
            const QString jmeno = Soubor_Z_Polozky(ram.mnuSeznamFile[std::size_t(i)]->data().toString());
            const QString cesta = Spoj_Cestu(relace.Nastaveni.Adresare[2], jmeno);
            if (!QFileInfo(cesta).isFile()) {
                relace.Sluzby->Zprava(u"Soubor \""_qs + jmeno + u"\" nebyl nalezen ve složce seznamů \""_qs +
                                      QDir::toNativeSeparators(relace.Nastaveni.Adresare[2]) + u"\"."_qs);
                return;
            }
            Pred_Seznamem(ram);
            Otevri_Seznam(ram, cesta);
        });
}
