#include "tips/frmVypisTipu.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmKresleni.h"
#include "app/frmMDITombi.h"
#include "app/frmMDITombi_Stav.h"
#include "app/frmOvladani.h"
#include "app/frmSloupec_Tiketu.h"
#include "app/modTombi.h"
#include "archive/frmVypisTahu.h"
#include "core/Dialogy.h"
#include "core/Hodiny.h"
#include "core/Tabulka_Textu.h"
#include "core/Vb.h"
#include "core/pTikety.h"
#include "data/Chyby_A_Prehled.h"
#include "data/Nedavne_Soubory.h"
#include "data/Soubory.h"
#include "generator/frmGeneruj.h"
#include "tips/Analyza_Tipu.h"
#include "tips/Vyhodnoceni.h"
#include "tips/Vypis_Tipu.h"
#include "tips/Vypis_Vyher.h"
#include "tips/frmVypisTipu_Analyza.h"
#include "tips/frmVypisTipu_Vyber.h"
#include "tips/frmVypisTipu_Vyhodnoceni.h"
#include "tips/frmVypisTipu_Vyhry.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedLayout>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// The window in twips: its width, its height while the list or a panel shows, and while the
// money of an evaluation shows below.
constexpr double Sirka_Okna = 11160;
constexpr double Vyska_Okna = 5184;
constexpr double Vyska_Vyhodnoceni = 9216;

const QColor Cervena(255, 0, 0);
const QColor Zelena(0, 255, 0);
const QColor Seda(0xC0, 0xC0, 0xC0);

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmVypisTipu"_qs};

// The numbers of a tip line of the list; tokens that are no numbers above 0 are skipped.
QList<int> Cisla_Radku(const QString& radek) {
    QList<int> cisla;
    for (const QString& slovo : radek.split(u' ', Qt::SkipEmptyParts))
        if (const int n = int(Vb::Val(slovo)); n > 0)
            cisla << n;
    return cisla;
}

} // namespace

frmVypisTipu::frmVypisTipu(frmMDITombi& ram, bool vlastni, QWidget* parent)
    : QWidget(parent), List1(Okno.Pojmenuj(new QListWidget(this), u"List1"_qs)),
      List2(Okno.Pojmenuj(new QListWidget(this), u"List2"_qs)),
      lstFIX(Okno.Pojmenuj(new QListWidget(this), u"lstFIX"_qs)),
      picSloupec_Vypis_Tipu(
          Okno.Pojmenuj(new frmSloupec_Tiketu(ram.Sezeni().Nastaveni, this), u"picSloupec_Vypis_Tipu"_qs)),
      txtSoubor_Tipu(Okno.Pojmenuj(new QLineEdit(this), u"txtSoubor_Tipu"_qs)),
      Label9(Okno.Pojmenuj(new QLabel(this), u"Label9"_qs)),
      cmdUlozTipy(Okno.Pojmenuj(new QPushButton(this), u"cmdUlozTipy"_qs)),
      cmdPridej_Tipy(Okno.Pojmenuj(new QPushButton(this), u"cmdPridej_Tipy"_qs)),
      cmdPouzita_Cisla(Okno.Pojmenuj(new QPushButton(this), u"cmdPouzita_Cisla"_qs)),
      cmdZrusTip(Okno.Pojmenuj(new QPushButton(this), u"cmdZrusTip"_qs)),
      cmdZpet(Okno.Pojmenuj(new QPushButton(this), u"cmdZpet"_qs)),
      txtOldCislo(Okno.Pojmenuj(new QLineEdit(this), u"txtOldCislo"_qs)),
      txtNewCislo(Okno.Pojmenuj(new QLineEdit(this), u"txtNewCislo"_qs)),
      cmdCisla_Tiketu(Okno.Pojmenuj(new QPushButton(this), u"cmdCisla_Tiketu"_qs)),
      cmdOpakovatGener(Okno.Pojmenuj(new QPushButton(this), u"cmdOpakovatGener"_qs)),
      cmdZrusit(Okno.Pojmenuj(new QPushButton(this), u"cmdZrusit"_qs)),
      lblPocetRadek(Okno.Pojmenuj(new QLabel(this), u"lblPocetRadek"_qs)), Picture1(new QStackedWidget(this)),
      Analyza(new frmVypisTipu_Analyza(ram.Sezeni(), Picture1)), Vyber(new frmVypisTipu_Vyber(ram.Sezeni(), Picture1)),
      Vyhodnoceni(nullptr), Vyhry(nullptr), Seznamy(new QStackedLayout), Ram(ram), Sezeni(ram.Sezeni()) {
    setObjectName(u"frmVypisTipu"_qs);
    setWindowTitle(Tabulka_Textu::Programu().Text(u"frmVypisTipu"_qs));
    Sezeni.Formular_Otevren_Tipy = true;
    ram.Zavri_Okno<frmGeneruj>();

    QFont pevne = List1->font();
    pevne.setFamily(u"DejaVu Sans"_qs);
    List1->setFont(pevne);
    List1->setUniformItemSizes(true);
    List1->setMinimumWidth(QFontMetrics(pevne).horizontalAdvance(Radek_Tipu(Tip{{10, 20, 30, 40, 44, 49}})) +
                           List1->verticalScrollBar()->sizeHint().width() + 4 * List1->frameWidth());
    for (QPushButton* tlacitko : {cmdPouzita_Cisla, cmdPridej_Tipy, cmdZrusTip})
        tlacitko->setMaximumWidth(picSloupec_Vypis_Tipu->sizeHint().width());
    lstFIX->addItems({QString(), Okno.Text(u"lstFIX"_qs)});
    lstFIX->setEnabled(false);
    List2->addItems({u"Analýza on line"_qs, u"Výběr tipů"_qs, u"Vyhodnotit!"_qs});
    List2->setMaximumHeight(List2->sizeHintForRow(0) * 3 + 2 * List2->frameWidth() + 4);
    Picture1->addWidget(Analyza);
    Picture1->addWidget(Vyber);
    connect(Analyza->cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(2); });
    connect(Vyber->cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(1); });
    connect(Vyber, &frmVypisTipu_Vyber::Zmena_Vyberu, this, [this] { Zmena_Vyberu = true; });
    Label9->setCursor(Qt::PointingHandCursor);
    Label9->installEventFilter(this);
    auto* lblCisla = new QLabel(Okno.Text(u"lblCisla_Tiketu"_qs), this);
    for (QLineEdit* cislo : {txtOldCislo, txtNewCislo})
        cislo->setMaxLength(10);

    // Left the list with the file's name and the ticket numbers under it, in the middle the
    // picture with its buttons, on the right the panels.
    Seznamy->addWidget(List1);
    Seznamy->addWidget(lstFIX);
    auto* soubor = new QGridLayout;
    soubor->addWidget(lblPocetRadek, 0, 0);
    soubor->addWidget(Label9, 0, 1);
    soubor->addWidget(txtSoubor_Tipu, 1, 0, 1, 2);
    soubor->addWidget(cmdUlozTipy, 1, 2);
    soubor->addWidget(lblCisla, 2, 0, 1, 2);
    soubor->addWidget(txtOldCislo, 3, 0);
    soubor->addWidget(txtNewCislo, 3, 1);
    soubor->addWidget(cmdCisla_Tiketu, 3, 2);
    auto* vlevo = new QVBoxLayout;
    vlevo->addLayout(Seznamy, 1);
    vlevo->addLayout(soubor);

    auto* uprostred = new QVBoxLayout;
    uprostred->addWidget(picSloupec_Vypis_Tipu, 0, Qt::AlignHCenter);
    uprostred->addWidget(cmdPouzita_Cisla);
    uprostred->addWidget(cmdPridej_Tipy);
    uprostred->addWidget(cmdZrusTip);
    uprostred->addStretch();

    auto* tlacitka = new QHBoxLayout;
    tlacitka->addWidget(cmdZpet);
    tlacitka->addWidget(cmdOpakovatGener);
    tlacitka->addWidget(cmdZrusit);
    auto* vpravo = new QVBoxLayout;
    vpravo->addWidget(List2);
    vpravo->addWidget(Picture1, 1);
    vpravo->addLayout(tlacitka);

    auto* nahore = new QHBoxLayout;
    nahore->addLayout(vlevo, 1);
    nahore->addLayout(uprostred, 0);
    nahore->addLayout(vpravo, 0);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->addLayout(nahore, 1);
    Spodek = new QVBoxLayout;
    rozlozeni->addLayout(Spodek);
    resize(Pixely(Sirka_Okna, *this), Pixely(Vyska_Okna, *this));

    connect(List2, &QListWidget::currentRowChanged, this, &frmVypisTipu::List2_Click);
    connect(List1, &QListWidget::currentRowChanged, this, [this](int radek) {
        if (!Meni_Cisla)
            Vyznac_Krizky(radek);
    });
    connect(picSloupec_Vypis_Tipu, &frmSloupec_Tiketu::Klik, this, &frmVypisTipu::picSloupec_Klik);
    connect(cmdPouzita_Cisla, &QPushButton::clicked, this, &frmVypisTipu::cmdPouzita_Cisla_Click);
    connect(cmdPridej_Tipy, &QPushButton::clicked, this, &frmVypisTipu::cmdPridej_Tipy_Click);
    connect(cmdZrusTip, &QPushButton::clicked, this, &frmVypisTipu::cmdZrusTip_Click);
    connect(cmdUlozTipy, &QPushButton::clicked, this, &frmVypisTipu::cmdUlozTipy_Click);
    connect(cmdCisla_Tiketu, &QPushButton::clicked, this, &frmVypisTipu::cmdCisla_Tiketu_Click);
    connect(cmdZpet, &QPushButton::clicked, this, &frmVypisTipu::cmdZpet_Click);
    connect(cmdZrusit, &QPushButton::clicked, this, [this] {
        Sezeni.Tikety.Zrusit_Beh = true;
        Ram.Zavri_Okno<frmVypisTahu>();
        close();
    });
    connect(cmdOpakovatGener, &QPushButton::clicked, this, [this] {
        frmMDITombi& ram = Ram;
        close();
        ram.Sezeni().Tikety.Zrusit_Beh = false;
        ram.Otevri_Okno<frmGeneruj>(ram);
    });
    connect(txtSoubor_Tipu, &QLineEdit::textEdited, this, [this] { Jmeno_Upraveno = true; });
    connect(&ram, &frmMDITombi::Den_Prepnut, this, &frmVypisTipu::Novy_Den);
    Nacti(vlastni);
}

frmVypisTipu::~frmVypisTipu() {
    Sezeni.Formular_Otevren_Tipy = false;
}

void frmVypisTipu::Prevezmi(frmMDITombi&, bool vlastni) {
    Nacti(vlastni);
}

void frmVypisTipu::Nacti(bool vlastni) {
    Nacita = true;
    Vlastni_Tipy = false;
    // Beside tips of a file a click in the draw list only shows the draw.
    Sezeni.Tipy_Zobrazeny = !vlastni;
    Pocet_Radek = 0;
    picSloupec_Vypis_Tipu->Vycisti();
    txtSoubor_Tipu->setText(Sezeni.Tipy.Jmeno_Souboru_Tipu);
    Jmeno_Upraveno = !txtSoubor_Tipu->text().isEmpty();
    Zrus_Zapis();
    if (Sezeni.Tipy.Pocet_Tipu_Aktivni > 0 && !vlastni)
        Vypis_Tipu_Do_Listu();
    if (vlastni) {
        cmdPridej_Tipy_Click();
        List1->clear();
        Sezeni.Sluzby->Nastav_Soubor_Tipu(QString::number(Sezeni.Tipy.Pocet_Tipu_Aktivni) + u" tipů"_qs);
        Sezeni.Sluzby->Nastav_Status(QString(), QString());
    }
    Zaloha_Tipu = std::make_unique<Zaznam_Tipu>(Sezeni.Tipy.Soubor_Tipu);
    Vytvor_Vyhodnoceni();
    Vyska(Vyska_Okna);
    Picture1->setCurrentIndex(2);
    List2->setCurrentRow(2);
    Nacita = false;
}

void frmVypisTipu::Vytvor_Vyhodnoceni() {
    // Every opening starts the evaluation afresh: the wins go, the numbers kept in the boxes stay.
    delete Vyhodnoceni;
    delete Vyhry;
    Vyhry = new frmVypisTipu_Vyhry(Sezeni, this);
    Vyhry->hide();
    Spodek->addWidget(Vyhry);
    Vyhodnoceni = new frmVypisTipu_Vyhodnoceni(Sezeni, *Vyhry, Picture1);
    Picture1->insertWidget(2, Vyhodnoceni);
    connect(Vyhodnoceni->cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(0); });
    connect(Vyhodnoceni, &frmVypisTipu_Vyhodnoceni::Vyhodnotit, this, [this] { cmdOK_Click(0); });
    connect(Vyhodnoceni, &frmVypisTipu_Vyhodnoceni::Vysledek_Neplatny, this, [this] {
        Vyhry->Vycisti_Formular();
        Vyska(Vyska_Okna);
    });
    connect(Vyhodnoceni, &frmVypisTipu_Vyhodnoceni::Tah_Zobrazen, this, [this] {
        if (List1->currentRow() < 0)
            picSloupec_Vypis_Tipu->Vycisti();
        Vyznac_Krizky(List1->currentRow());
        Zobraz_Tazena();
    });
    connect(Vyhry, &frmVypisTipu_Vyhry::Vyhra_Zvolena, this, &frmVypisTipu::Najdi_Vyhru);
    connect(Vyhry, &frmVypisTipu_Vyhry::Jeden_Tah, this, [this](int tah, QChar kod) {
        const int radek = List1->currentRow();
        if (radek >= 0)
            Vyhodnoceni->Vypis_Jeden_Tah(tah, kod, List1->item(radek)->text() + u' ');
    });
}

void frmVypisTipu::Novy_Den() {
    // A result belongs to the draw day it was counted on: the new day starts the evaluation afresh,
    // with its own prizes and its whole archive as the range. A run under way stops first.
    if (Vyhodnoceni->Bezi_Beh()) {
        Sezeni.Tikety.Zrusit_Beh = true;
        QTimer::singleShot(0, this, &frmVypisTipu::Novy_Den);
        return;
    }
    const int panel = Picture1->currentIndex();
    Vytvor_Vyhodnoceni();
    Picture1->setCurrentIndex(panel);
    Vyska(Vyska_Okna);
}

void frmVypisTipu::Vyska(double twipy) {
    Vyhry->setVisible(twipy > Vyska_Okna);
    // Panels made anew (another file opened into the open list) count only once the layouts hear
    // of them; measured before, the draw boxes would be squashed to slivers.
    for (QWidget* prvek :
         {static_cast<QWidget*>(Vyhodnoceni), static_cast<QWidget*>(Vyhry), static_cast<QWidget*>(Picture1)}) {
        prvek->ensurePolished();
        prvek->updateGeometry();
    }
    layout()->activate();
    const int vyska = std::max(Pixely(twipy, *this), minimumSizeHint().height());
    // In the area the frame around the window takes the new height.
    if (auto* ram = qobject_cast<QMdiSubWindow*>(parentWidget()))
        ram->resize(ram->width(), vyska + ram->height() - height());
    else
        resize(width(), vyska);
}

// ---- The panels ----

void frmVypisTipu::List2_Click(int index) {
    if (Nacita || index < 0 || index == Picture1->currentIndex())
        return;
    Picture1->setCurrentIndex(index);
    Vyska(Vyska_Okna);
    Nakresli_Neobsazena();
    if (index == 0)
        cmdPridej_Tipy_Click();
    else if (index == 2)
        picSloupec_Vypis_Tipu->Vycisti();
}

void frmVypisTipu::Nakresli_Neobsazena() {
    // Numbers no tip holds yet are circled while tips are entered by hand.
    if (!Vlastni_Tipy)
        return;
    for (const QString& cislo :
         modAnalyza_Tipu::Neobsazena_Cisla(Sezeni.Tipy.Soubor_Tipu).split(u',', Qt::SkipEmptyParts))
        picSloupec_Vypis_Tipu->Pridej_Kruh(int(Vb::Val(cislo)));
}

void frmVypisTipu::cmdOK_Click(int index) {
    // The start common to the three panels' buttons.
    Zaloha_Tipu = std::make_unique<Zaznam_Tipu>(Sezeni.Tipy.Soubor_Tipu);
    Zrus_Zapis();
    const int radek = List1->currentRow();
    List1->setCurrentRow(-1);
    Sezeni.Tikety.Zrusit_Beh = false;
    if (index == 0) {
        const std::optional<Vysledek_Vyhodnoceni> vysledek = Vyhodnoceni->Vyhodnot();
        if (!vysledek)
            return;
        if (Vyhodnoceni->Hledano_V_Tazich())
            Ram.Zavri_Okno<frmVypisTahu>();
        Vyska(Vyska_Vyhodnoceni);
        QCoreApplication::processEvents();
        Vyhry->Vypis_Vyher(*vysledek, Vyhodnoceni->Typ() == 1);
        Sezeni.Sluzby->Nastav_Aktivni_Poradi(QString());
        return;
    }
    if (index == 1) {
        const int radku = List1->count();
        if (Vyber->Vyber_Tipy())
            Vypis_Tipu_Do_Listu();
        picSloupec_Vypis_Tipu->Vycisti();
        Nakresli_Neobsazena();
        if (List1->count() != radku)
            Sezeni.Tikety.Zmena_Dat = true;
    } else if (index == 2 && Zmena_Vyberu) {
        Vypis_Tipu_Do_Listu();
        Zmena_Vyberu = false;
    }
    if (radek >= 0 && radek < List1->count())
        List1->setCurrentRow(radek);
}

void frmVypisTipu::Zobraz_Tazena() {
    // The drawn numbers of both rows of boxes framed on the picture, each draw in its colour.
    for (int tah = 1; tah <= 2; ++tah) {
        const QColor barva =
            frmKresleni::Barva_Z_Vb(tah == 1 ? Sezeni.Nastaveni.Barva_Krizku_1 : Sezeni.Nastaveni.Barva_Krizku_2);
        const Radek_Tahu radek = Vyhodnoceni->Radek(tah);
        for (std::size_t i = 0; i < 6; ++i) {
            if (radek[i] <= 0 || radek[i] > 49)
                continue;
            int rad = 0, sloup = 0;
            pTikety::Dej_Rad_Sloup(radek[i], rad, sloup);
            const double posun = tah == 1 ? 95 : 80;
            picSloupec_Vypis_Tipu->Pridej_Ramecek(347.0 * sloup + posun + 25, 347.0 * rad + posun + 35, barva, 2);
        }
    }
}

void frmVypisTipu::Najdi_Vyhru(const Misto_Vyhry& misto) {
    // The ticket's place by its number, then the tip's line from the row where it should stand.
    const Zaznam_Tipu& tipy = Sezeni.Tipy.Soubor_Tipu;
    List1->setCurrentRow(-1);
    Sezeni.Sluzby->Nastav_Status(QString(), QString());
    int misto_tiketu = 0;
    for (int i = 1; i <= std::min<int>(tipy.Pocet_Tiketu, Max_Tiketu) && misto_tiketu == 0; ++i)
        if (tipy.Tikety[i].Cislo_Tiketu == misto.Cislo_Tiketu)
            misto_tiketu = i;
    if (misto_tiketu == 0 || misto.Sloupec < 1 || misto.Sloupec > Sloupcu_Tiketu)
        return;
    const QString text = Radek_Tipu(tipy.Tikety[misto_tiketu].Cisla[misto.Sloupec]);
    const int ocekavany = misto_tiketu * Radku_Na_Tiket - Radku_Na_Tiket + misto.Sloupec;
    for (int r = std::max(1, ocekavany); r < List1->count(); ++r)
        if (List1->item(r)->text() == text) {
            List1->setCurrentRow(r);
            List1->scrollToItem(List1->item(r));
            return;
        }
}

void frmVypisTipu::Vypis_Tipu_Do_Listu() {
    Vypis_Tipu vypis;
    {
        Seznamy->setCurrentWidget(lstFIX);
        const Prace prace(Sezeni.Sluzby);
        vypis = ::Vypis_Tipu_Do_Listu(Sezeni.Tipy.Soubor_Tipu, Sezeni.Tipy.Pocet_Tipu_Aktivni, prace.Prubeh_Prace());
    }
    const QSignalBlocker blokace(List1);
    List1->clear();
    List1->addItems(vypis.Radky);
    Seznamy->setCurrentWidget(List1);
    Sezeni.Tipy.Soubor_Tipu.Pocet_Tipu = int16_t(vypis.Pocet_Tipu_Celkem);
    Sezeni.Tipy.Pocet_Tipu_Celkem = vypis.Pocet_Tipu_Celkem;
    Sezeni.Sluzby->Nastav_Soubor_Tipu(QString::number(vypis.Pocet_Tipu_Celkem));
    if (!Jmeno_Upraveno || txtSoubor_Tipu->text().trimmed().isEmpty())
        Navrhni_Jmeno();
    int pocet = 0;
    const QString pouzita = Text_Pouzitych_Cisel(vypis.Pouzita_Cisla, pocet);
    Zobraz_Cisla(pouzita, pocet);
    if (List1->currentRow() < 0)
        Sezeni.Sluzby->Nastav_Aktivni_Poradi(QString());
    if (!Vlastni_Tipy)
        Pocet_Radek = 0;
    lblPocetRadek->setText(QString::number(List1->count()));
    Vyber->Vypocet_Pomeru();
}

void frmVypisTipu::Navrhni_Jmeno() {
    txtSoubor_Tipu->setText(modTombi::Navrh_Jmena(Sezeni.Cas->Dnes(), Sezeni.Tipy.Soubor_Tipu.Pocet_Tipu,
                                                  Sezeni.Tipy.Seznam_Navazany.size() > 2));
    Jmeno_Upraveno = false;
}

bool frmVypisTipu::eventFilter(QObject* objekt, QEvent* udalost) {
    if (objekt == Label9 && udalost->type() == QEvent::MouseButtonRelease)
        Navrhni_Jmeno();
    return QWidget::eventFilter(objekt, udalost);
}

void frmVypisTipu::Zobraz_Cisla(const QString& text, int pocet) {
    Sezeni.Sluzby->Nastav_Status(text, pocet > 0 ? QString::number(pocet) : QString());
}

void frmVypisTipu::Vyznac_Krizky(int radek) {
    if (radek < 0 || radek >= List1->count())
        return;
    const QString text = List1->item(radek)->text();
    // Arrow keys step over the blank line between tickets.
    if (text.trimmed().isEmpty()) {
        const int dalsi = radek > Posledni_Radek ? radek + 1 : radek - 1;
        Posledni_Radek = radek;
        if (dalsi >= 0 && dalsi < List1->count())
            List1->setCurrentRow(dalsi);
        return;
    }
    Posledni_Radek = radek;
    picSloupec_Vypis_Tipu->Vycisti();
    if (text.contains(u"slo"_qs)) {
        txtOldCislo->setText(text.mid(15));
        Sezeni.Sluzby->Nastav_Status(QString(), QString());
        Vyznac_Tiket(radek);
        return;
    }
    QList<int> cisla = Cisla_Radku(text);
    std::sort(cisla.begin(), cisla.end());
    if (cisla.size() != 6 || std::adjacent_find(cisla.begin(), cisla.end()) != cisla.end())
        Sezeni.Sluzby->Zprava(u"Chyba ve sloupci !!!"_qs);
    QString radek_cisel;
    for (const int n : cisla)
        radek_cisel += u' ' + QString::number(n);
    Zobraz_Cisla(radek_cisel, int(cisla.size()));
    int celkem = 0, sloupec = 0;
    pTikety::Poradi_Tip_CelkSlo(0, radek, celkem, sloupec);
    Sezeni.Sluzby->Nastav_Aktivni_Poradi(QString::number(celkem) + u" / "_qs + QString::number(sloupec));
    for (const int n : cisla)
        picSloupec_Vypis_Tipu->Pridej_Krizek(n);
    if (Vyhodnoceni != nullptr) {
        Tip tip;
        for (int i = 0; i < std::min<int>(int(cisla.size()), Tip::Pocet()); ++i)
            tip[i + 1] = uint8_t(cisla[i]);
        Vyhodnoceni->Obarvi_Tip(tip);
        Zobraz_Tazena();
    }
}

void frmVypisTipu::Vyznac_Tiket(int radek) {
    const int tiket = radek / Radku_Na_Tiket + 1;
    if (tiket < 1 || tiket > std::min<int>(Sezeni.Tipy.Soubor_Tipu.Pocet_Tiketu, Max_Tiketu))
        return;
    for (const Tip& tip : Sezeni.Tipy.Soubor_Tipu.Tikety[tiket].Cisla)
        for (const uint8_t n : tip)
            if (n != 0)
                picSloupec_Vypis_Tipu->Pridej_Krizek(n);
}

// ---- Hand entry ----

void frmVypisTipu::Obarvi_Zapis(const QColor& barva, bool povolit) {
    cmdPouzita_Cisla->setStyleSheet(u"QPushButton { background: %1; }"_qs.arg(barva.name()));
    cmdPouzita_Cisla->setEnabled(povolit);
}

void frmVypisTipu::Zrus_Zapis() {
    cmdPouzita_Cisla->setText(Okno.Text(u"cmdPouzita_Cisla"_qs));
    Obarvi_Zapis(Seda, true);
    Vlastni_Tipy = false;
}

void frmVypisTipu::cmdPridej_Tipy_Click() {
    if (Vlastni_Tipy)
        return;
    cmdPouzita_Cisla->setText(Okno.Text(u"cmdPouzita_Cisla.Zapis"_qs));
    Obarvi_Zapis(Cervena, true);
    picSloupec_Vypis_Tipu->Vycisti();
    Vlastni_Tipy = true;
    Sezeni.Generator.Vyber.Rozpis_Aktivni = false;
    Pocet_Radek = 0;
    Nakresli_Neobsazena();
}

void frmVypisTipu::Nakresli_Rozpracovany() {
    picSloupec_Vypis_Tipu->Vycisti();
    for (int i = 1; i <= Pocet_Radek; ++i)
        picSloupec_Vypis_Tipu->Pridej_Krizek(Sezeni.Aktualni_Tip[i]);
    Nakresli_Neobsazena();
}

void frmVypisTipu::picSloupec_Klik(int cislo, Qt::MouseButton, bool ctrl) {
    // Ctrl+click fills the boxes of the drawn numbers and leaves the tip alone.
    if (ctrl) {
        if (cislo < 50)
            Vyhodnoceni->Zapis_Do_Tahu(cislo);
        return;
    }
    if (!Vlastni_Tipy && List1->count() > 0)
        return;
    List1->setCurrentRow(-1);
    Tip& tip = Sezeni.Aktualni_Tip;
    const auto konec = tip.begin() + Pocet_Radek;
    if (const auto nalezeno = std::find(tip.begin(), konec, uint8_t(cislo)); cislo < 50 && nalezeno != konec) {
        std::copy(nalezeno + 1, tip.end(), nalezeno);
        tip[Tip::Pocet()] = 0;
        --Pocet_Radek;
        Nakresli_Rozpracovany();
        Obarvi_Zapis(Cervena, true);
    } else if (cislo == 50) {
        if (!Vlastni_Tipy)
            return;
        Sezeni.Random.Dolni_Mez = 1;
        Sezeni.Random.Horni_Mez = 49;
        for (int i = 1; i <= Tip::Pocet(); ++i) {
            do
                tip[i] = uint8_t(Sezeni.Random.RandomInt());
            while (std::find(tip.begin(), tip.begin() + (i - 1), tip[i]) != tip.begin() + (i - 1));
        }
        Pocet_Radek = Tip::Pocet();
        Nakresli_Rozpracovany();
        Obarvi_Zapis(Zelena, true);
    } else if (Pocet_Radek < Tip::Pocet()) {
        tip[++Pocet_Radek] = uint8_t(cislo);
        Nakresli_Rozpracovany();
        if (Pocet_Radek == Tip::Pocet())
            Obarvi_Zapis(Zelena, true);
    }
    modTombi::Setrid_Tip(tip, 1, Pocet_Radek);
    QString text;
    for (int i = 1; i <= Pocet_Radek; ++i)
        text += u' ' + QString::number(tip[i]);
    Zobraz_Cisla(text, Pocet_Radek);
    // While the tip is unfinished, or filled at random, the on-line analysis follows each click.
    if (Vlastni_Tipy && (Pocet_Radek < Tip::Pocet() || cislo == 50)) {
        List2->setCurrentRow(0);
        Analyza->Klik_Cisla(cislo, text);
    }
}

void frmVypisTipu::cmdPouzita_Cisla_Click() {
    if (!Vlastni_Tipy) {
        picSloupec_Vypis_Tipu->Vycisti();
        const Vypis_Tipu vypis = ::Vypis_Tipu_Do_Listu(Sezeni.Tipy.Soubor_Tipu, Sezeni.Tipy.Pocet_Tipu_Aktivni);
        for (int n = 1; n <= 49; ++n)
            if (vypis.Pouzita_Cisla[std::size_t(n)])
                picSloupec_Vypis_Tipu->Pridej_Krizek(n);
        int pocet = 0;
        const QString text = Text_Pouzitych_Cisel(vypis.Pouzita_Cisla, pocet);
        Zobraz_Cisla(text, pocet);
        return;
    }
    if (Pocet_Radek != Tip::Pocet())
        return;
    Stav_Tipu& tipy = Sezeni.Tipy;
    const Vysledek pridani = Pridej_Tip(tipy.Soubor_Tipu, tipy.Pocet_Tipu_Aktivni, Sezeni.Aktualni_Tip);
    if (!pridani.Ok()) {
        Sezeni.Sluzby->Zprava(pridani.Zprava);
        cmdPouzita_Cisla->setEnabled(false);
        return;
    }
    Vypis_Tipu_Do_Listu();
    Analyza->Vycisti();
    List2->setCurrentRow(1);
    Sezeni.Tikety.Zmena_Dat = true;
    picSloupec_Vypis_Tipu->Vycisti();
    List1->scrollToBottom();
    Pocet_Radek = 0;
    if (tipy.Pocet_Tipu_Aktivni >= Max_Tipu) {
        cmdPouzita_Cisla->setEnabled(false);
        Zrus_Zapis();
    } else {
        Obarvi_Zapis(Cervena, true);
    }
}

// ---- Deleting, saving, ticket numbers, undo ----

void frmVypisTipu::cmdZrusTip_Click() {
    const int radek = List1->currentRow();
    if (radek < 0 || List1->item(radek)->text().trimmed().isEmpty() || List1->item(radek)->text().contains(u"čís"_qs) ||
        List1->count() == 0)
        return;
    // The list stands in 12 lines a ticket: the head, ten tips, the gap.
    int tiket = 0, sloupec = 0;
    pTikety::Zjisti_Tik_Slo(radek, Radku_Na_Tiket, tiket, sloupec);
    if ((Sezeni.Seznam.Pocet_Sazejicich() > 0 || Sezeni.Generator.Vyber.Rozpis_Aktivni) &&
        Sezeni.Dialog->Otazka(Dialogy::Ikona::Vykricnik, u"                              P O Z O R  !!!"_qs,
                              u"                             Máte zvolen\r\n\"ROZPIS\" nebo je vazba na \"SEZNAM "
                              u"SÁZEJÍCÍCH\"\r\n          Opravdu si přejete zrušit označený tip ?"_qs,
                              Dialogy::Tlacitka::Ano_Ne, Dialogy::Odpoved::Ne) != Dialogy::Odpoved::Ano)
        return;
    if (!Vlastni_Tipy)
        Zrus_Zapis();
    Analyza->Vycisti();
    Zrus_Tip(Sezeni.Tipy.Soubor_Tipu, tiket, sloupec);
    Sezeni.Tipy.Pocet_Tipu_Aktivni = std::max<int16_t>(0, int16_t(Sezeni.Tipy.Pocet_Tipu_Aktivni - 1));
    Sezeni.Tikety.Zmena_Dat = true;
    picSloupec_Vypis_Tipu->Vycisti();
    Vypis_Tipu_Do_Listu();
    int vybrany = std::min(radek, List1->count() - 1);
    while (vybrany > 0 &&
           (List1->item(vybrany)->text().trimmed().isEmpty() || List1->item(vybrany)->text().contains(u"čís"_qs)))
        --vybrany;
    Posledni_Radek = vybrany;
    List1->setCurrentRow(vybrany);
}

void frmVypisTipu::cmdUlozTipy_Click() {
    Stav_Tipu& tipy = Sezeni.Tipy;
    tipy.Jmeno_Souboru_Tipu = txtSoubor_Tipu->text().trimmed();
    if (tipy.Soubor_Tipu.Pocet_Tipu <= 0 || tipy.Jmeno_Souboru_Tipu.isEmpty()) {
        Sezeni.Sluzby->Zprava(u"Nejsou tipy k uložení nebo jméno souboru tipů !"_qs);
        return;
    }
    const QString jmeno = tipy.Jmeno_Souboru_Tipu + u".tip"_qs;
    const QString cesta = Spoj_Cestu(Sezeni.Nastaveni.Adresare[1], jmeno);
    if (QFileInfo::exists(cesta) &&
        Sezeni.Dialog->Otazka(Dialogy::Ikona::Vykricnik, u"                  P O Z O R !!!"_qs,
                              u"Soubor tipů stejného jména již existuje.\r\n              P Ř E P S A T ?"_qs,
                              Dialogy::Tlacitka::OK_Zrusit, Dialogy::Odpoved::OK) != Dialogy::Odpoved::OK)
        return;
    const Vysledek ulozeni = Uloz_Soubor_Tipu(tipy, cesta);
    if (!ulozeni.Ok()) {
        Sezeni.Sluzby->Zprava(ulozeni.Zprava);
        return;
    }
    Sezeni.Tikety.Zmena_Dat = false;
    tipy.Je_Soubor_Tipu = true;
    if (Sezeni.Seznam.Pocet_Sazejicich() >= 1) {
        const Vysledek prehled = Pridej_Do_Prehledu(Sezeni.Nastaveni.Adresare[2], jmeno,
                                                    tipy.Soubor_Tipu.Seznam_Soubor, Sezeni.Cas->Ted());
        if (!prehled.Ok())
            Sezeni.Sluzby->Zprava(prehled.Zprava);
    }
    Ram.Pridej_Nedavny(Druh_Tipy, jmeno);
    Sezeni.Sluzby->Zprava(u"Soubor s tipy uložen pod jménem  \""_qs + jmeno + u"\"."_qs);
}

void frmVypisTipu::cmdCisla_Tiketu_Click() {
    Stav_Tipu& tipy = Sezeni.Tipy;
    if (tipy.Pocet_Tipu_Aktivni == 0) {
        txtOldCislo->clear();
        txtNewCislo->clear();
        return;
    }
    picSloupec_Vypis_Tipu->Vycisti();
    if (txtOldCislo->text().trimmed().isEmpty() || txtNewCislo->text().trimmed().isEmpty()) {
        Sezeni.Sluzby->Zprava(u"Není zadáno číslo tiketu STARÉ nebo NOVÉ"_qs);
        return;
    }
    const auto stare = int32_t(std::clamp<double>(Vb::Val(txtOldCislo->text()), INT32_MIN, INT32_MAX));
    const auto nove = int32_t(std::clamp<double>(Vb::Val(txtNewCislo->text()), INT32_MIN, INT32_MAX));
    const Vysledek zmena = Zmen_Cislo_Tiketu(tipy.Soubor_Tipu, stare, nove);
    if (!zmena.Ok()) {
        Sezeni.Sluzby->Zprava(zmena.Zprava);
        return;
    }
    if (tipy.Seznam_Navazany.size() <= 2)
        tipy.Soubor_Tipu.Seznam_Soubor.clear();
    // Written at once, to the file of the list's name; ".tip" as everywhere, since on this system
    // ".TIP" would be a second file beside the first.
    const Vysledek ulozeni =
        Uloz_Soubor_Tipu(tipy, Spoj_Cestu(Sezeni.Nastaveni.Adresare[1], txtSoubor_Tipu->text().trimmed() + u".tip"_qs));
    if (!ulozeni.Ok())
        Sezeni.Sluzby->Zprava(ulozeni.Zprava);
    const int radek = List1->currentRow();
    Meni_Cisla = true;
    for (int i = 0; i < List1->count(); ++i)
        if (List1->item(i)->text() == Hlavicka_Tiketu(stare))
            List1->item(i)->setText(Hlavicka_Tiketu(nove));
    List1->setCurrentRow(radek);
    Meni_Cisla = false;
}

void frmVypisTipu::cmdZpet_Click() {
    Stav_Tipu& tipy = Sezeni.Tipy;
    // A change that left the count as it was cannot be told from none, and is not undone.
    if (Zaloha_Tipu == nullptr || tipy.Soubor_Tipu.Pocet_Tipu == Zaloha_Tipu->Pocet_Tipu)
        return;
    const int radku = List1->count();
    tipy.Soubor_Tipu = *Zaloha_Tipu;
    tipy.Pocet_Tipu_Aktivni = tipy.Soubor_Tipu.Pocet_Tipu;
    Vypis_Tipu_Do_Listu();
    if (List1->count() != radku)
        Sezeni.Tikety.Zmena_Dat = true;
}

void frmVypisTipu::closeEvent(QCloseEvent* udalost) {
    Sezeni.Tipy_Zobrazeny = false;
    Sezeni.Sluzby->Nastav_Status(QString(), QString());
    Sezeni.Sluzby->Nastav_Aktivni_Poradi(QString());
    Vlastni_Tipy = false;
    QWidget::closeEvent(udalost);
}

// ---- Commands ----

void frmVypisTipu::Pripoj_Prikazy(frmMDITombi& ram) {
    ram.Obsluz(ram.mnuVyhodnoceniTipu, [&ram] {
        ram.Zavri_Formulare(1);
        if (ram.Sezeni().Tipy.Soubor_Tipu.Pocet_Tiketu != 0)
            ram.Otevri_Okno<frmVypisTipu>(ram, false);
        else
            ram.Sezeni().Sluzby->Zprava(u"Není soubor tipů."_qs);
    });
    ram.Obsluz(ram.mnuVlastniTipy, [&ram] {
        Relace& relace = ram.Sezeni();
        Stav_Tipu& tipy = relace.Tipy;
        // Tips that were never saved are not thrown away unasked.
        if (Pocet_Tipu_V_Souboru(tipy.Soubor_Tipu) > 0 && !tipy.Je_Soubor_Tipu &&
            relace.Dialog->Otazka(
                Dialogy::Ikona::Otaznik, u"Vlastní tipy"_qs,
                u"Stávající tipy nejsou uloženy v souboru.\r\nOpravdu začít nový soubor vlastních tipů ?"_qs,
                Dialogy::Tlacitka::Ano_Ne, Dialogy::Odpoved::Ne) != Dialogy::Odpoved::Ano)
            return;
        // The bettors' list closes here too once it is built.
        ram.Zavri_Okno<frmGeneruj>();
        ram.Zavri_Okno<frmVypisTahu>();
        ram.Zavri_Okno<frmVypisTipu>();
        // Own tips start a new file, as the empty list shows: "Zapiš" must not add them to the
        // file opened before.
        tipy.Soubor_Tipu = Zaznam_Tipu();
        tipy.Pocet_Tipu_Aktivni = 0;
        tipy.Pocet_Tipu_Celkem = 0;
        tipy.Jmeno_Souboru_Tipu.clear();
        tipy.Je_Soubor_Tipu = false;
        tipy.Seznam_Navazany.clear();
        ram.Otevri_Okno<frmVypisTipu>(ram, true);
        ram.Sezeni().Sluzby->Nastav_Status(QString(), QString());
    });
    QObject::connect(&ram, &frmMDITombi::Tipy_Otevreny, &ram, [&ram] { ram.Otevri_Okno<frmVypisTipu>(ram, false); });
}
