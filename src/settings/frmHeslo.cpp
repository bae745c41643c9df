#include "settings/frmHeslo.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmMDITombi.h"
#include "app/frmOvladani.h"
#include "core/Tabulka_Textu.h"
#include "settings/Nastaveni_Programu.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QPushButton>
#include <QSettings>

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmHeslo"_qs};
const QString Jmeno_Zamku = u"Heslo"_qs;

// Zakaz_Menu: the draw days, the menus Tipy, Tahy and Seznamy with their recent files, and the
// settings, where a locked program could otherwise be changed.
frmMDITombi::Zamek Zamek_Menu(frmMDITombi& ram) {
    return [&ram](const QAction* prikaz) {
        for (const QMenu* menu : {ram.mnuTipy, ram.mnuTahy, ram.mnuSeznamy})
            if (menu->actions().contains(const_cast<QAction*>(prikaz)))
                return true;
        for (const QAction* den : {ram.mnuSportka_streda, ram.mnuSportka_patek, ram.mnuSportka_nedele})
            if (prikaz == den)
                return true;
        return prikaz == ram.mnuKonfigurace ||
               std::find(ram.mnuRecentFile.begin() + 1, ram.mnuRecentFile.end(), prikaz) != ram.mnuRecentFile.end();
    };
}

} // namespace

frmHeslo::frmHeslo(frmMDITombi& ram, QWidget* parent)
    : QWidget(parent), txtHeslo_Vstup(Okno.Pojmenuj(new QLineEdit(this), u"txtHeslo_Vstup"_qs)),
      Command1(Okno.Pojmenuj(new QPushButton(this), u"Command1"_qs)),
      lblPokus(Okno.Pojmenuj(new QLabel(this), u"lblPokus"_qs)), Label2(Okno.Pojmenuj(new QLabel(this), u"Label2"_qs)),
      Ram(ram), Sezeni(ram.Sezeni()), Pokusu(Nastaveni_Programu::Pocet_Pokusu) {
    setObjectName(Okno.Jmeno);
    setWindowTitle(Tabulka_Textu::Programu().Text(Okno.Jmeno));
    txtHeslo_Vstup->setEchoMode(QLineEdit::Password);
    modNastaveni_Ovladani::Vybirej_Pri_Vstupu(txtHeslo_Vstup);
    auto* mrizka = new QGridLayout(this);
    mrizka->addWidget(new QLabel(Okno.Text(u"Label1"_qs), this), 0, 0, 1, 3);
    mrizka->addWidget(txtHeslo_Vstup, 1, 0, 1, 3);
    mrizka->addWidget(new QLabel(Okno.Text(u"Label3"_qs), this), 2, 0, 1, 3);
    mrizka->addWidget(lblPokus, 3, 0);
    mrizka->addWidget(Label2, 3, 1);
    mrizka->addWidget(Command1, 3, 2);
    lblPokus->setText(QString::number(Pokusu));
    Label2->setText(Nastaveni_Programu::Slovo_Pokusu(Pokusu));
    Command1->setDefault(true);
    connect(txtHeslo_Vstup, &QLineEdit::textChanged, this,
            [this](const QString& text) { Vstup = Nastaveni_Programu::Zasifruj_Heslo(text); });
    connect(txtHeslo_Vstup, &QLineEdit::returnPressed, this, &frmHeslo::Command1_Click);
    connect(Command1, &QPushButton::clicked, this, &frmHeslo::Command1_Click);
    Ram.Nastav_Zamek(Jmeno_Zamku, Zamek_Menu(Ram));
    modNastaveni_Ovladani::Napoveda(this, u"Heslo"_qs);
}

void frmHeslo::Over_Pri_Startu(frmMDITombi& ram) {
    Relace& relace = ram.Sezeni();
    if (relace.Registr == nullptr || !Nastaveni_Programu::Je_Heslo_Nastaveno(relace.Nastaveni, *relace.Registr))
        return;
    auto* okno = ram.Otevri_Okno<frmHeslo>(ram);
    // In the middle of the inner area, where the eye goes at start.
    if (QWidget* podokno = okno->parentWidget(); podokno != nullptr && ram.Plocha() != nullptr) {
        const QSize plocha = ram.Plocha()->viewport()->size();
        podokno->move(std::max(0, (plocha.width() - podokno->width()) / 2),
                      std::max(0, (plocha.height() - podokno->height()) / 2));
    }
    okno->txtHeslo_Vstup->setFocus();
}

void frmHeslo::Command1_Click() {
    if (Pokusu <= 0)
        return;
    --Pokusu;
    lblPokus->setText(QString::number(Pokusu));
    Label2->setText(Nastaveni_Programu::Slovo_Pokusu(Pokusu));
    modNastaveni_Ovladani::Vyber_Text(txtHeslo_Vstup);
    // Every attempt the label counts is compared, the last one too: a count of attempts that could
    // not succeed would tell the user a wrong number.
    if (!Sezeni.Nastaveni.Heslo.isEmpty() && Vstup == Sezeni.Nastaveni.Heslo) {
        if (Sezeni.Registr != nullptr)
            Sezeni.Registr->setValue(QString::fromUtf16(Klic_Pws), Zasifruj_Pws(Sezeni.Nastaveni.Heslo));
        Heslo_OK = true;
        close();
        return;
    }
    if (Pokusu == 0) {
        Sezeni.Sluzby->Cekej(1);
        close();
    }
}

void frmHeslo::closeEvent(QCloseEvent* udalost) {
    const QString titulek = u" TOMBI   "_qs + Sezeni.Verze;
    Sezeni.Zamceno = !Heslo_OK;
    if (Heslo_OK) {
        Ram.setWindowTitle(titulek);
        Ram.Nastav_Zamek(Jmeno_Zamku, nullptr);
    } else {
        // The lock stays for this run: the menus of the work and the settings stay off.
        Ram.setWindowTitle(titulek + Okno.Text(u"Zamceno"_qs));
        Sezeni.Sluzby->Zprava(Okno.Text(u"Odmitnuti"_qs));
    }
    udalost->accept();
}
