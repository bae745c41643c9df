#include "tips/frmVypisTipu_Vyhry.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmKresleni.h"
#include "app/frmOvladani.h"
#include "app/frmTiskarna.h"
#include "app/modTombi.h"
#include "core/Dialogy.h"
#include "core/Hodiny.h"
#include "core/Vb.h"

#include <QAbstractListModel>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStackedLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

using modNastaveni_Ovladani::Indexem;
using modNastaveni_Ovladani::Prvek;

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmVypisTipu"_qs};
const QString Rimska[5] = {u"I"_qs, u"II"_qs, u"III"_qs, u"IV"_qs, u"V"_qs};
const QString Kody = u"6D543"_qs; // the one-letter codes of tiers 1..5

// The value of a money box, blanks of the grouping skipped.
double Hodnota(const QLineEdit* pole) {
    return Vb::Val(pole->text());
}

// The lines of lstTiketyVypis, made when shown: a list of half a million wins costs no time.
class Model_Vyher final : public QAbstractListModel {
public:
    Model_Vyher(const std::vector<Misto_Vyhry>& mista, QObject* parent) : QAbstractListModel(parent), Mista(mista) {}
    int rowCount(const QModelIndex& rodic) const override { return rodic.isValid() ? 0 : int(Mista.size()); }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole || !index.isValid() || std::size_t(index.row()) >= Mista.size())
            return {};
        return Radek_Vyhry(Mista[std::size_t(index.row())]);
    }
    void Obnov() {
        beginResetModel();
        endResetModel();
    }

private:
    const std::vector<Misto_Vyhry>& Mista;
};

} // namespace

frmVypisTipu_Vyhry::frmVypisTipu_Vyhry(Relace& sezeni, QWidget* parent)
    : QWidget(parent), Tah1CelkVyhra(Okno.Pojmenuj(new QLineEdit(this), u"Tah1CelkVyhra"_qs)),
      Tah2CelkVyhra(Okno.Pojmenuj(new QLineEdit(this), u"Tah2CelkVyhra"_qs)),
      txtCelkemVyhra(Okno.Pojmenuj(new QLineEdit(this), u"txtCelkemVyhra"_qs)),
      txtVklad(Okno.Pojmenuj(new QLineEdit(this), u"txtVklad"_qs)),
      txtUspech(Okno.Pojmenuj(new QLineEdit(this), u"txtUspech"_qs)),
      txtSance(Okno.Pojmenuj(new QLineEdit(this), u"txtSance"_qs)),
      cmdSance(Okno.Pojmenuj(new QPushButton(this), u"cmdSance"_qs)),
      lstTiketyVypis(Okno.Pojmenuj(new QListView(this), u"lstTiketyVypis"_qs)),
      List3(Okno.Pojmenuj(new QListWidget(this), u"List3"_qs)),
      lblPocetRadekTiketu(Okno.Pojmenuj(new QLabel(this), u"lblPocetRadekTiketu"_qs)),
      lstSazejiciVypis(Okno.Pojmenuj(new QListWidget(this), u"lstSazejiciVypis"_qs)),
      lblPocetRadkuSazejici(Okno.Pojmenuj(new QLabel(this), u"lblPocetRadkuSazejici"_qs)),
      cmdTisk_Vyhernich_Tipu(Okno.Pojmenuj(new QPushButton(this), u"cmdTisk_Výhernich_Tipu"_qs)),
      Command1(Okno.Pojmenuj(new QPushButton(this), u"Command1"_qs)),
      lblCasZpracovani(Okno.Pojmenuj(new QLabel(this), u"lblCasZpracovani"_qs)), Sezeni(sezeni),
      Model_Vyher(new ::Model_Vyher(Mista, this)), Seznam_Vyher(new QStackedLayout) {
    setObjectName(u"frmVypisTipu_Vyhry"_qs);
    lstTiketyVypis->setModel(Model_Vyher);
    lstTiketyVypis->setUniformItemSizes(true);
    List3->addItem(Okno.Text(u"List3"_qs));
    List3->setEnabled(false);
    // Each list as wide as its lines and its scroll bar: the tier, the line's last character, stays
    // in view.
    const QString vzory[] = {Radek_Vyhry({999999, 10, 2, 5}), Okno.Text(u"lblSazejici"_qs)};
    int i = 0;
    for (QListView* seznam : {static_cast<QListView*>(lstTiketyVypis), static_cast<QListView*>(lstSazejiciVypis)}) {
        QFont pevne(u"DejaVu Sans Mono"_qs);
        pevne.setPointSizeF(seznam->font().pointSizeF());
        seznam->setFont(pevne);
        seznam->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        seznam->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        seznam->setMinimumWidth(QFontMetrics(pevne).horizontalAdvance(vzory[i++]) +
                                seznam->verticalScrollBar()->sizeHint().width() + 2 * seznam->frameWidth() + 8);
    }

    auto* rozlozeni = new QHBoxLayout(this);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    rozlozeni->addWidget(Tabulka_Cen(), 3);
    rozlozeni->addWidget(Penize(), 1);
    rozlozeni->addWidget(Seznamy(), 3);

    // Prizes of the draw day of the archive, the stake of the file and its Šance.
    const int den = std::size_t(Sezeni.Tikety.Den_Tahu) < optTyden.size() ? Sezeni.Tikety.Den_Tahu : 0;
    optTyden[std::size_t(den)]->setChecked(true);
    optTyden_Click(den);
    Prepis(txtVklad, Vb::Format(Sezeni.Tikety.Vklad.Korun(), u"### ### ###"));
    Prepis(txtSance, Vb::Format(Sezeni.Tikety.Vklad_Sance.Korun(), u"### ### ###"));
    cmdSance->setText(Sezeni.Tikety.Vklad_Sance.Hodnota > 0 ? Okno.Text(u"cmdSance.Plus"_qs)
                                                            : Okno.Text(u"cmdSance"_qs));

    connect(cmdSance, &QPushButton::clicked, this, &frmVypisTipu_Vyhry::cmdSance_Click);
    connect(txtVklad, &QLineEdit::textEdited, this, [this] {
        Prepis(txtVklad, Vb::Format(Hodnota(txtVklad), u"### ### ###"));
        Spocti_Uspech();
    });
    connect(txtSance, &QLineEdit::textEdited, this,
            [this] { Prepis(txtSance, Vb::Format(Hodnota(txtSance), u"### ### ###")); });
    connect(lstTiketyVypis, &QListView::clicked, this, [this](const QModelIndex& index) {
        if (index.isValid() && std::size_t(index.row()) < Mista.size())
            emit Vyhra_Zvolena(Mista[std::size_t(index.row())]);
    });
    connect(cmdTisk_Vyhernich_Tipu, &QPushButton::clicked, this, &frmVypisTipu_Vyhry::Tiskni_Vyhravajici_Tikety);
    // The bettors' wins come with their list; without one the printout says so.
    connect(Command1, &QPushButton::clicked, this, [this] {
        std::vector<Vyhra_Sazejiciho> vyhry;
        for (const Sazejici& s : Sezeni.Seznam.Seznam)
            vyhry.push_back({s.Jmeno, s.Vyhra.Korun()});
        Tiskni_Vyherni_Listinu(vyhry);
    });
}

frmVypisTipu_Vyhry::~frmVypisTipu_Vyhry() = default;

QWidget* frmVypisTipu_Vyhry::Tabulka_Cen() {
    auto* ramec = Okno.Pojmenuj(new QGroupBox(this), u"frmCenyTahu"_qs);
    auto* mrizka = new QGridLayout(ramec);
    mrizka->setVerticalSpacing(1);
    // The days in the order of the week; the index is the day's Den_Tahu.
    auto* dny = new QHBoxLayout;
    for (const Den den : Dny_Losovani) {
        const int i = int(den);
        optTyden[std::size_t(i)] = Okno.Pojmenuj(new QRadioButton(ramec), Indexem(u"optTyden"_qs, i));
        dny->addWidget(optTyden[std::size_t(i)]);
        connect(optTyden[std::size_t(i)], &QRadioButton::clicked, this, [this, i] { optTyden_Click(i); });
    }
    dny->addStretch(1);
    mrizka->addLayout(dny, 0, 0, 1, 6);
    for (int i = 0; i < 2; ++i) {
        auto* hlava = new QLabel(Okno.Text(u"lblPocPorKc"_qs), ramec);
        hlava->setObjectName(Indexem(u"lblPocPorKc"_qs, i));
        mrizka->addWidget(hlava, 1, 1 + 3 * i, 1, 2);
    }
    const int sirka = fontMetrics().horizontalAdvance(u"500 000 000"_qs) + 12;
    for (int i = 0; i < 5; ++i) {
        mrizka->addWidget(new QLabel(Rimska[i], ramec), 2 + i, 0);
        for (int tah = 0; tah < 2; ++tah) {
            auto* pocet = Okno.Pojmenuj(new QLineEdit(ramec), Indexem(tah == 0 ? u"Tah1Cena"_qs : u"Tah2Cena"_qs, i));
            auto* cena = Okno.Pojmenuj(new QLineEdit(ramec), Indexem(tah == 0 ? u"Tah1Vyhra"_qs : u"Tah2Vyhra"_qs, i));
            (tah == 0 ? Tah1Cena : Tah2Cena)[std::size_t(i)] = pocet;
            (tah == 0 ? Tah1Vyhra : Tah2Vyhra)[std::size_t(i)] = cena;
            pocet->setReadOnly(true);
            pocet->setAlignment(Qt::AlignRight);
            pocet->setMaximumWidth(sirka * 2 / 3);
            pocet->setCursor(Qt::PointingHandCursor);
            pocet->setToolTip(Okno.Text(tah == 0 ? u"Tah1Cena.ToolTipText"_qs : u"Tah2Cena.ToolTipText"_qs));
            pocet->installEventFilter(this);
            connect(pocet, &QLineEdit::textChanged, this, [this, pocet] { Obarvi_Pocet(pocet); });
            cena->setAlignment(Qt::AlignRight);
            cena->setMaximumWidth(sirka);
            modNastaveni_Ovladani::Jen_Cislice(cena);
            modNastaveni_Ovladani::Vybirej_Pri_Vstupu(cena);
            connect(cena, &QLineEdit::textEdited, this, [this, tah, i] { Vyhra_Zmenena(tah + 1, i); });
            mrizka->addWidget(pocet, 2 + i, 1 + 3 * tah);
            mrizka->addWidget(cena, 2 + i, 2 + 3 * tah);
        }
    }
    for (QLineEdit* soucet : {Tah1CelkVyhra, Tah2CelkVyhra}) {
        soucet->setReadOnly(true);
        soucet->setAlignment(Qt::AlignRight);
        connect(soucet, &QLineEdit::textChanged, this, [this, soucet] {
            Prepis(soucet, Vb::Format(Hodnota(soucet), u"### ### ### ###"));
            Soucet_Zmenen();
        });
    }
    mrizka->addWidget(Tah1CelkVyhra, 7, 1, 1, 2);
    mrizka->addWidget(Tah2CelkVyhra, 7, 4, 1, 2);
    mrizka->setColumnMinimumWidth(3, 8);
    return ramec;
}

QWidget* frmVypisTipu_Vyhry::Penize() {
    auto* sloupec = new QWidget(this);
    auto* rozlozeni = new QGridLayout(sloupec);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    const std::pair<QLineEdit*, QString> radky[] = {
        {txtCelkemVyhra, u"lblVyhra"_qs}, {txtVklad, u"lblVklad"_qs}, {txtUspech, u"lblUspech"_qs}};
    int r = 0;
    for (const auto& [pole, popis] : radky) {
        rozlozeni->addWidget(new QLabel(Okno.Text(popis), sloupec), r++, 0, 1, 2);
        rozlozeni->addWidget(pole, r++, 0, 1, 2);
        pole->setAlignment(Qt::AlignRight);
    }
    txtCelkemVyhra->setReadOnly(true);
    txtUspech->setReadOnly(true);
    modNastaveni_Ovladani::Jen_Cislice(txtVklad);
    modNastaveni_Ovladani::Jen_Cislice(txtSance);
    txtSance->setAlignment(Qt::AlignRight);
    rozlozeni->addWidget(txtSance, r, 0);
    rozlozeni->addWidget(cmdSance, r++, 1);
    rozlozeni->addWidget(lblCasZpracovani, r++, 0, 1, 2);
    rozlozeni->setRowStretch(r, 1);
    connect(txtCelkemVyhra, &QLineEdit::textChanged, this, &frmVypisTipu_Vyhry::Spocti_Uspech);
    return sloupec;
}

QWidget* frmVypisTipu_Vyhry::Seznamy() {
    auto* blok = new QWidget(this);
    auto* rozlozeni = new QGridLayout(blok);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    rozlozeni->addWidget(new QLabel(Okno.Text(u"lblTikety"_qs), blok), 0, 0, 1, 2);
    rozlozeni->addWidget(new QLabel(Okno.Text(u"lblSazejici"_qs), blok), 0, 2, 1, 2);
    Seznam_Vyher->addWidget(lstTiketyVypis);
    Seznam_Vyher->addWidget(List3);
    rozlozeni->addLayout(Seznam_Vyher, 1, 0, 1, 2);
    rozlozeni->addWidget(lstSazejiciVypis, 1, 2, 1, 2);
    rozlozeni->addWidget(lblPocetRadekTiketu, 2, 0);
    rozlozeni->addWidget(cmdTisk_Vyhernich_Tipu, 2, 1);
    rozlozeni->addWidget(lblPocetRadkuSazejici, 2, 2);
    rozlozeni->addWidget(Command1, 2, 3);
    rozlozeni->setRowStretch(1, 1);
    return blok;
}

void frmVypisTipu_Vyhry::Prepis(QLineEdit* pole, const QString& text) {
    // A box that rewrites itself on change would otherwise hear its own rewrite.
    if (Prepisuje || pole->text() == text)
        return;
    Prepisuje = true;
    pole->setText(text);
    Prepisuje = false;
}

// ---- Prizes and sums ----

void frmVypisTipu_Vyhry::optTyden_Click(int index) {
    const std::array<Vb::Mena, 10> ceny = modTombi::Ceny_Dne_Tahu(Sezeni, Den(index));
    for (std::size_t i = 0; i < 5; ++i) {
        Tah1Vyhra[i]->setText(Vb::Text(ceny[i].Korun()));
        Tah2Vyhra[i]->setText(Vb::Text(ceny[i + 5].Korun()));
    }
    // New prizes, new money: the sums, the total and the profit follow at once.
    Prepocti_Soucet(1);
    Prepocti_Soucet(2);
}

std::array<Ceny_Tahu, 2> frmVypisTipu_Vyhry::Ceny() const {
    std::array<Ceny_Tahu, 2> ceny{};
    for (std::size_t i = 0; i < 5; ++i) {
        ceny[0][i] = Hodnota(Tah1Vyhra[i]);
        ceny[1][i] = Hodnota(Tah2Vyhra[i]);
    }
    return ceny;
}

void frmVypisTipu_Vyhry::Vyhra_Zmenena(int tah, int index) {
    QLineEdit* pole = (tah == 1 ? Tah1Vyhra : Tah2Vyhra)[std::size_t(index)];
    if (Hodnota(pole) > Max_Ceny) {
        pole->setText(Vb::Text(Max_Ceny));
        pole->selectAll();
    } else {
        pole->setText(Vb::Format(Hodnota(pole), u"### ### ###"));
        pole->end(false);
    }
    Prepocti_Soucet(tah);
}

void frmVypisTipu_Vyhry::Prepocti_Soucet(int tah) {
    // The sum is held wide enough for any count and prize: a sum that did not fit 32 bits would
    // otherwise leave the old sum standing beside the new prizes.
    const Vyhry& vyhry = tah == 1 ? Vyhry_1Tah : Vyhry_2Tah;
    QLineEdit* soucet = tah == 1 ? Tah1CelkVyhra : Tah2CelkVyhra;
    bool vyhra = false;
    for (std::size_t i = 0; i < 5; ++i)
        if (vyhry[i + 1] > 0) {
            (tah == 1 ? Tah1Cena : Tah2Cena)[i]->setText(Vb::Format(double(vyhry[i + 1]), u"### ###"));
            vyhra = true;
        }
    if (vyhra)
        soucet->setText(Vb::Format(Soucet_Tahu(vyhry, Ceny()[std::size_t(tah - 1)]), u"### ### ###"));
    else
        soucet->clear();
}

void frmVypisTipu_Vyhry::Soucet_Zmenen() {
    Prepis(txtCelkemVyhra, Vb::Format(Hodnota(Tah1CelkVyhra) + Hodnota(Tah2CelkVyhra), u"### ### ### ###"));
}

void frmVypisTipu_Vyhry::Spocti_Uspech() {
    // A stake of 0 leaves the per cent as it stood.
    if (const std::optional<double> zisk = Zisk_Procent(Hodnota(txtCelkemVyhra), Hodnota(txtVklad)))
        txtUspech->setText(Vb::Format(*zisk, u"### ### ###"));
    Rozdel_Vyhru();
}

void frmVypisTipu_Vyhry::Rozdel_Vyhru() {
    lstSazejiciVypis->clear();
    lstSazejiciVypis->addItems(::Rozdel_Vyhru(Sezeni.Seznam.Seznam, Hodnota(txtCelkemVyhra)));
    lblPocetRadkuSazejici->setText(Vb::Format(lstSazejiciVypis->count(), u"### ###"));
}

void frmVypisTipu_Vyhry::Obarvi_Pocet(QLineEdit* pocet) {
    QPalette paleta = pocet->palette();
    paleta.setColor(QPalette::Base, Hodnota(pocet) != 0 ? frmKresleni::Barva_Z_Vb(Sezeni.Nastaveni.Barva_Zasahu)
                                                        : palette().color(QPalette::Button));
    pocet->setPalette(paleta);
}

// ---- Stake ----

void frmVypisTipu_Vyhry::cmdSance_Click() {
    // The caption names what the click does: "+ šance" adds it to the stake, "- šance" takes it off.
    const bool pridat = cmdSance->text().contains(u'+');
    const double vklad = Hodnota(txtVklad) + (pridat ? 1 : -1) * Hodnota(txtSance);
    cmdSance->setText(pridat ? Okno.Text(u"cmdSance"_qs) : Okno.Text(u"cmdSance.Plus"_qs));
    txtVklad->setText(Vb::Format(vklad, u"### ### ###"));
    Spocti_Uspech();
}

void frmVypisTipu_Vyhry::Prepocti_Vklad(int n1, int n2) {
    cmdSance->setText(Okno.Text(u"cmdSance"_qs));
    cmdSance_Click();
    const int m = std::max(n1, n2);
    txtVklad->setText(Vb::Format(Sezeni.Tikety.Vklad.Korun() * m, u"### ### ###"));
    txtSance->setText(Vb::Format(Sezeni.Tikety.Vklad_Sance.Korun() * m, u"### ### ###"));
    Spocti_Uspech();
    lblCasZpracovani->setText(Odhad_Casu(n1, n2, Pocet_Tipu_V_Souboru(Sezeni.Tipy.Soubor_Tipu)));
}

// ---- The counts, the sums and the list of wins ----

void frmVypisTipu_Vyhry::Vycisti_Formular() {
    Mista.clear();
    static_cast<::Model_Vyher*>(Model_Vyher)->Obnov();
    lstSazejiciVypis->clear();
    for (std::size_t i = 0; i < 5; ++i) {
        Tah1Cena[i]->clear();
        Tah2Cena[i]->clear();
    }
    Tah1CelkVyhra->clear();
    Tah2CelkVyhra->clear();
    lblPocetRadekTiketu->clear();
    lblPocetRadkuSazejici->clear();
    Vyhry_1Tah = {};
    Vyhry_2Tah = {};
    Pozice_Poradi = {};
}

void frmVypisTipu_Vyhry::Cekej(bool cekat) {
    Seznam_Vyher->setCurrentWidget(cekat ? static_cast<QWidget*>(List3) : lstTiketyVypis);
}

void frmVypisTipu_Vyhry::Vypis_Vyher(const Vysledek_Vyhodnoceni& vysledek, bool jen_pocty) {
    Vyhry_1Tah = vysledek.Vyhry_1Tah;
    Vyhry_2Tah = vysledek.Vyhry_2Tah;
    const std::array<Ceny_Tahu, 2> ceny = Ceny();
    double soucet_1 = 0;
    double soucet_2 = 0;
    for (std::size_t i = 0; i < 5; ++i) {
        if (Vyhry_1Tah[i + 1] > 0) {
            Tah1Cena[i]->setText(Vb::Format(double(Vyhry_1Tah[i + 1]), u"### ###"));
            soucet_1 += double(Vyhry_1Tah[i + 1]) * ceny[0][i];
            Tah1CelkVyhra->setText(Vb::Format(soucet_1, u"### ### ###"));
        }
        if (Vyhry_2Tah[i + 1] > 0) {
            Tah2Cena[i]->setText(Vb::Format(double(Vyhry_2Tah[i + 1]), u"### ###"));
            soucet_2 += double(Vyhry_2Tah[i + 1]) * ceny[1][i];
            Tah2CelkVyhra->setText(Vb::Format(soucet_2, u"### ### ###"));
        }
    }
    Mista = jen_pocty ? std::vector<Misto_Vyhry>() : Mista_Vyher(vysledek);
    static_cast<::Model_Vyher*>(Model_Vyher)->Obnov();
    lblPocetRadekTiketu->setText(Vb::Format(double(Mista.size()), u"### ###"));
    Cekej(false);
}

bool frmVypisTipu_Vyhry::eventFilter(QObject* objekt, QEvent* udalost) {
    if (udalost->type() == QEvent::MouseButtonRelease)
        for (std::size_t i = 0; i < 5; ++i) {
            if (objekt == Tah1Cena[i])
                Hledej_Poradi(1, int(i));
            else if (objekt == Tah2Cena[i])
                Hledej_Poradi(2, int(i));
        }
    return QWidget::eventFilter(objekt, udalost);
}

void frmVypisTipu_Vyhry::Hledej_Poradi(int tah, int index) {
    std::array<int, 5>& pozice = Pozice_Poradi[std::size_t(tah - 1)];
    for (std::size_t i = std::size_t(std::max(0, pozice[std::size_t(index)])); i < Mista.size(); ++i) {
        if (Mista[i].Poradi != index + 1 || Mista[i].Tah != tah)
            continue;
        const QModelIndex radek = Model_Vyher->index(int(i));
        lstTiketyVypis->setCurrentIndex(radek);
        lstTiketyVypis->scrollTo(radek);
        emit Vyhra_Zvolena(Mista[i]);
        // Nuluj_Hledani_Poradi: the walk of every other tier starts again from the top.
        pozice.fill(0);
        pozice[std::size_t(index)] = int(i) + 1;
        const Vyhry& vyhry = tah == 1 ? Vyhry_1Tah : Vyhry_2Tah;
        if (vyhry[std::size_t(index) + 1] == 1)
            emit Jeden_Tah(tah, Kody.at(index));
        return;
    }
}

// ---- Printouts ----

void frmVypisTipu_Vyhry::Tiskni_Vyhravajici_Tikety() {
    const std::unique_ptr<frmTiskarna> otevrena = frmTiskarna::Po_Dialogu(*Sezeni.Dialog, Sezeni.Sluzby);
    if (!otevrena)
        return;
    frmTiskarna& tisk = *otevrena;
    tisk.Radek();
    tisk.Radek();
    tisk.Velikost(10);
    tisk.Radek(u"               Přehled vyhrávajících tiketů souboru  "_qs + Sezeni.Tipy.Jmeno_Souboru_Tipu);
    tisk.Radek();
    tisk.Velikost(7);
    const QString hlava = u"čís. tiketu       sloupec      tah/pořadí"_qs;
    tisk.Text(u"                 "_qs + hlava);
    tisk.Zona(hlava);
    tisk.Zona(hlava);
    tisk.Radek();
    tisk.Text(QString(18, u' '));
    int na_radku = 0;
    for (const Misto_Vyhry& m : Mista) {
        tisk.Velikost(7);
        const QString polozka = Vb::Format(m.Cislo_Tiketu, u"000 000            ") +
                                Vb::Format(m.Sloupec, u"##0             ") + QString::number(m.Tah) + u" / "_qs +
                                QString::number(m.Poradi);
        if (na_radku == 0)
            tisk.Text(polozka);
        else
            tisk.Zona(polozka);
        if (++na_radku == 3) {
            tisk.Radek();
            tisk.Text(QString(18, u' '));
            na_radku = 0;
        }
    }
    tisk.Konec();
}

void frmVypisTipu_Vyhry::Tiskni_Vyherni_Listinu(const std::vector<Vyhra_Sazejiciho>& sazejici) {
    if (!Sezeni.Dialog->Vybrat_Tiskarnu())
        return;
    if (sazejici.empty()) {
        Sezeni.Sluzby->Zprava(u"Není žádný seznam účastníků."_qs);
        return;
    }
    const std::unique_ptr<frmTiskarna> otevrena = frmTiskarna::Otevri(Sezeni.Dialog->Tiskarna(), Sezeni.Sluzby);
    if (!otevrena)
        return;
    frmTiskarna& tisk = *otevrena;
    const QString cara = u"   "_qs + QString(109, u'_');
    tisk.Radek();
    tisk.Radek();
    tisk.Pismo(u"Arial CE"_qs);
    tisk.Velikost(15);
    tisk.Radek(u"                            Výherní listina ze dne "_qs + Vb::Format(Sezeni.Cas->Dnes(), u"dd.mm.yy"));
    tisk.Radek();
    tisk.Velikost(10);
    tisk.Zona(u"jméno"_qs);
    for (int i = 0; i < 4; ++i)
        tisk.Zona();
    tisk.Text(u"výhra Kč"_qs);
    tisk.Zona();
    tisk.Zona();
    tisk.Radek(u"dne               převzal (podpis)"_qs);
    tisk.Radek(cara);
    tisk.Radek();
    for (const Vyhra_Sazejiciho& s : sazejici) {
        // Blanks to align the amounts: never fewer than none, however long the name.
        const int mezer = std::max(0, int((2500 - tisk.Sirka_Twips(s.Jmeno)) / 45));
        tisk.Text(u"    "_qs + s.Jmeno + QString(mezer, u' '));
        // Whole crowns as ",-"; a share with hellers keeps them, or the sheet would pay out a wrong sum.
        const bool cele = s.Vyhra == std::floor(s.Vyhra);
        tisk.Zona(cele ? Vb::Format(s.Vyhra, u"### ### ###") + u",-"_qs : Vb::Format(s.Vyhra, u"### ### ##0.00"));
        tisk.Radek();
        tisk.Radek(cara);
        tisk.Radek();
    }
    tisk.Konec();
}
