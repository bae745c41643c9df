#include "settings/frmNastaveniProgramu.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmMDITombi.h"
#include "app/frmOvladani.h"
#include "core/Tabulka_Textu.h"
#include "data/Nedavne_Soubory.h"
#include "settings/frmNastaveniProgramu_Analyza.h"
#include "settings/frmNastaveniProgramu_Ceny.h"
#include "settings/frmNastaveniProgramu_Stranky.h"
#include "settings/frmNastaveniProgramu_Vzhled.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmNastaveniProgramu"_qs};
constexpr int Pocet_Stranek = 10;

} // namespace

Stranka_Nastaveni::Stranka_Nastaveni(Nastaveni_Zaznam& kopie, QWidget* parent) : QWidget(parent), Kopie(kopie) {}

const modNastaveni_Ovladani::Texty_Okna& Stranka_Nastaveni::Okno() {
    return ::Okno;
}

QLineEdit* Stranka_Nastaveni::Cislice(QLineEdit* pole, int znaku) {
    modNastaveni_Ovladani::Jen_Cislice(pole);
    modNastaveni_Ovladani::Vybirej_Pri_Vstupu(pole);
    pole->setMaxLength(znaku);
    pole->setMaximumWidth(pole->fontMetrics().horizontalAdvance(QString(znaku + 2, u'0')) + 12);
    return pole;
}

int Stranka_Nastaveni::Cislo(const QLineEdit* pole, int prazdna) {
    return pole->text().trimmed().isEmpty() ? prazdna : modNastaveni_Ovladani::Cele_Cislo(pole);
}

frmNastaveniProgramu::frmNastaveniProgramu(frmMDITombi& ram, QWidget* parent)
    : QWidget(parent), List1(Okno.Pojmenuj(new QListWidget(this), u"List1"_qs)),
      lblNadpis(Okno.Pojmenuj(new QLabel(this), u"lblNadpis"_qs)),
      cmdOK(Okno.Pojmenuj(new QPushButton(this), u"cmdOK"_qs)),
      cmdClose(Okno.Pojmenuj(new QPushButton(this), u"cmdClose"_qs)), Ram(ram), Sezeni(ram.Sezeni()),
      Kopie(ram.Sezeni().Nastaveni), Stranky(new QStackedWidget(this)) {
    setObjectName(Okno.Jmeno);
    setWindowTitle(Tabulka_Textu::Programu().Text(Okno.Jmeno));
    auto* ceny = new Stranka_Ceny(Kopie, Sezeni, this);
    Seznam_Stranek = {
        new Stranka_Adresare(Kopie, Sezeni, this),
        new Stranka_Vzhled(Kopie, Sezeni.Cesta_Programu, this),
        new Stranka_Generovani(Kopie, this),
        ceny,
        new Stranka_Analyza_Tahu(Kopie, this),
        new Stranka_Heslo(Kopie, this),
        new Stranka_Vypocty(Kopie, ceny->txtCena_Jednoho_Tipu, this),
        new Stranka_Download(Kopie, Sezeni, this),
        new Stranka_Ruseni(Kopie, this),
        new Stranka_Auto_Analyza(Kopie, this),
    };
    for (int i = 0; i < Pocet_Stranek; ++i) {
        List1->addItem(Okno.Text(modNastaveni_Ovladani::Indexem(u"List1"_qs, i)));
        // A page taller than the window scrolls rather than cutting its last controls.
        auto* posuv = new QScrollArea(Stranky);
        posuv->setWidget(Seznam_Stranek[std::size_t(i)]);
        posuv->setWidgetResizable(true);
        posuv->setFrameShape(QFrame::NoFrame);
        Stranky->addWidget(posuv);
    }
    List1->setMaximumWidth(List1->sizeHintForColumn(0) + 2 * List1->frameWidth() + 8);
    // Room for the widest and, up to what a laptop's screen leaves, the tallest page.
    QSize nejvetsi;
    for (const Stranka_Nastaveni* stranka : Seznam_Stranek)
        nejvetsi = nejvetsi.expandedTo(stranka->sizeHint());
    Stranky->setMinimumSize(nejvetsi.width() + 24, std::min(nejvetsi.height(), 500));
    QFont nadpis = lblNadpis->font();
    nadpis.setBold(true);
    nadpis.setPointSizeF(nadpis.pointSizeF() * 1.2);
    lblNadpis->setFont(nadpis);
    lblNadpis->setWordWrap(true);

    auto* vpravo = new QVBoxLayout;
    vpravo->addWidget(lblNadpis);
    vpravo->addWidget(Stranky, 1);
    auto* tlacitka = new QHBoxLayout;
    tlacitka->addStretch();
    tlacitka->addWidget(cmdOK);
    tlacitka->addWidget(cmdClose);
    vpravo->addLayout(tlacitka);
    auto* rozlozeni = new QHBoxLayout(this);
    rozlozeni->addWidget(List1);
    rozlozeni->addLayout(vpravo, 1);

    connect(List1, &QListWidget::currentRowChanged, this, &frmNastaveniProgramu::Ukaz_Stranku);
    connect(cmdOK, &QPushButton::clicked, this, &frmNastaveniProgramu::cmdOK_Click);
    connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
    List1->setCurrentRow(std::clamp<int>(Kopie.Stranka_Nastaveni, 0, Pocet_Stranek - 1));
    modNastaveni_Ovladani::Napoveda(this, u"NastavPrg"_qs);
}

void frmNastaveniProgramu::Ukaz_Stranku(int stranka) {
    if (stranka < 0 || stranka >= Pocet_Stranek)
        return;
    if (List1->currentRow() != stranka)
        List1->setCurrentRow(stranka);
    Stranky->setCurrentIndex(stranka);
    lblNadpis->setText(Okno.Text(modNastaveni_Ovladani::Indexem(u"lblNadpis"_qs, stranka)));
}

Stranka_Nastaveni* frmNastaveniProgramu::Stranka(int stranka) const {
    return stranka >= 0 && stranka < Pocet_Stranek ? Seznam_Stranek[std::size_t(stranka)] : nullptr;
}

void frmNastaveniProgramu::cmdOK_Click() {
    for (Stranka_Nastaveni* stranka : Seznam_Stranek)
        stranka->Uloz();
    Kopie.Verze_Cfg = Sezeni.Verze;
    Kopie.Stranka_Nastaveni = uint8_t(std::max(0, List1->currentRow()));
    Sezeni.Nastaveni = Kopie;
    if (Sezeni.Registr != nullptr) {
        const Vysledek ulozeni = Uloz_Nastaveni(Sezeni.Nastaveni, *Sezeni.Registr);
        if (!ulozeni.Ok())
            Sezeni.Sluzby->Zprava(ulozeni.Zprava);
    }
    Ram.Nastav_Pozadi();
    Ram.Naplnit_Menu_Nedavnych(Druh_Tipy);
    Ram.Naplnit_Menu_Nedavnych(Druh_Seznamy);
    close();
}

void frmNastaveniProgramu::Pripoj_Prikazy(frmMDITombi& ram) {
    ram.Obsluz(ram.mnuKonfigurace, [&ram] { ram.Otevri_Okno<frmNastaveniProgramu>(ram); });
}
