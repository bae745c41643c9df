#include "archive/frmVypisTahu.h"

#include "analysis/frmAnalyzaTahu.h"
#include "core/Hodiny.h"
#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "core/Tabulka_Textu.h"
#include "core/Vb.h"
#include "app/frmMDITombi.h"
#include "app/frmMDITombi_Stav.h"
#include "app/frmOvladani.h"
#include "app/frmSloupec_Tiketu.h"
#include "archive/Editor_Tahu.h"
#include "data/Dny_Tahu.h"
#include "generator/frmGeneruj.h"
#include "tips/frmVypisTipu.h"
#include "tips/frmVypisTipu_Vyhodnoceni.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStackedLayout>
#include <QVBoxLayout>
#include <algorithm>

using modNastaveni_Ovladani::Cele_Cislo;
using modNastaveni_Ovladani::Indexem;

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmVypisTahu"_qs};

// The list stands over the analysis window with this height, in twips.
constexpr double Vyska_Pro_Analyzu = 5490;
const QColor Seda(0xC0, 0xC0, 0xC0);
const QColor Cervena(255, 0, 0);

QMdiSubWindow* Ramecek(const QWidget* okno) {
    return qobject_cast<QMdiSubWindow*>(okno->parentWidget());
}

// The seven boxes of the editor, 0 for an empty one.
Boxy_Tahu Boxy(const std::array<QLineEdit*, 7>& txtTah_Cislo) {
    Boxy_Tahu boxy;
    for (int k = 1; k <= 7; ++k)
        boxy[k] = uint8_t(std::clamp(Cele_Cislo(txtTah_Cislo[std::size_t(k - 1)]), 0, 49));
    return boxy;
}

void Podbarvi(QWidget* prvek, const QColor& barva) {
    QPalette paleta = prvek->palette();
    paleta.setColor(QPalette::Button, barva);
    prvek->setPalette(paleta);
}

} // namespace

frmVypisTahu::frmVypisTahu(frmMDITombi& ram, QWidget* parent)
    : QWidget(parent), List1Tah(Okno.Pojmenuj(new QListWidget(this), u"List1Tah"_qs)),
      List2Tah(Okno.Pojmenuj(new QListWidget(this), u"List2Tah"_qs)),
      List1Tah_Cekat(Okno.Pojmenuj(new QLabel(this), u"List1Tah_Cekat"_qs)),
      List2Tah_Cekat(Okno.Pojmenuj(new QLabel(this), u"List2Tah_Cekat"_qs)),
      Text1(Okno.Pojmenuj(new QLabel(this), u"Text1"_qs)), txtRok(Okno.Pojmenuj(new QLineEdit(this), u"txtRok"_qs)),
      txtTyden(Okno.Pojmenuj(new QLineEdit(this), u"txtTyden"_qs)),
      cmdDalsiTah(Okno.Pojmenuj(new QPushButton(this), u"cmdDalsiTah"_qs)),
      cmdOpravit(Okno.Pojmenuj(new QPushButton(this), u"cmdOpravit"_qs)),
      cmdSmaz(Okno.Pojmenuj(new QPushButton(this), u"cmdSmaz"_qs)),
      Picture1(Okno.Pojmenuj(new frmSloupec_Tiketu(ram.Sezeni().Nastaveni, this), u"Picture1"_qs)),
      chkDodatkova(Okno.Pojmenuj(new QCheckBox(this), u"chkDodatkova"_qs)),
      Check1(Okno.Pojmenuj(new QCheckBox(this), u"Check1"_qs)),
      Command1(Okno.Pojmenuj(new QPushButton(this), u"Command1"_qs)),
      cmdAnimace(Okno.Pojmenuj(new QPushButton(this), u"cmdAnimace"_qs)),
      scrCas(Okno.Pojmenuj(new QScrollBar(Qt::Horizontal, this), u"scrCas"_qs)),
      lblCas(Okno.Pojmenuj(new QLabel(this), u"lblCas"_qs)),
      lblTahDne(Okno.Pojmenuj(new QLabel(this), u"lblTahDne"_qs)), Ram(ram), Sezeni(ram.Sezeni()) {
    setObjectName(Okno.Jmeno);
    setWindowTitle(Tabulka_Textu::Programu().Text(Okno.Jmeno));
    modNastaveni_Ovladani::Napoveda(this, u"TahyVypis"_qs);

    auto* rozlozeni = new QHBoxLayout(this);
    rozlozeni->setContentsMargins(6, 6, 6, 6);
    rozlozeni->addWidget(Seznam_S_Krytem(0, Vrstvy[0]), 1);
    rozlozeni->addWidget(Seznam_S_Krytem(1, Vrstvy[1]), 1);
    rozlozeni->addWidget(Editor());
    rozlozeni->addWidget(Picture1, 0, Qt::AlignTop);

    connect(txtRok, &QLineEdit::textChanged, this, &frmVypisTahu::txtRok_Change);
    connect(txtTyden, &QLineEdit::textChanged, this, &frmVypisTahu::txtTyden_Change);
    for (int i = 0; i < 7; ++i)
        connect(txtTah_Cislo[std::size_t(i)], &QLineEdit::textChanged, this, [this, i] { txtTah_Cislo_Change(i); });
    for (int i = 0; i < 2; ++i)
        connect(cboTah[std::size_t(i)], &QRadioButton::clicked, this, [this, i] { cboTah_Click(i); });
    connect(cmdDalsiTah, &QPushButton::clicked, this, &frmVypisTahu::cmdDalsiTah_Click);
    connect(cmdOpravit, &QPushButton::clicked, this, &frmVypisTahu::cmdOpravit_Click);
    connect(cmdSmaz, &QPushButton::clicked, this, &frmVypisTahu::cmdSmaz_Click);
    connect(Check1, &QCheckBox::toggled, this, &frmVypisTahu::Check1_Click);
    // A new state of the supplementary number shows with the next click.
    connect(chkDodatkova, &QCheckBox::toggled, this, &frmVypisTahu::Zrus_Vyber_Seznamu);
    connect(Command1, &QPushButton::clicked, this, [this] { frmGeneruj::Nacti_Cisla_Do_Generatoru(Ram); });
    connect(cmdAnimace, &QPushButton::clicked, this, &frmVypisTahu::cmdAnimace_Click);
    connect(scrCas, &QScrollBar::valueChanged, this, &frmVypisTahu::scrCas_Change);
    // A day switched while the list is open: the list shows the new day's archive, or none.
    connect(&ram, &frmMDITombi::Den_Prepnut, this, [this] {
        if (Nacteno)
            Nacti_Seznamy();
    });

    // The load: both lists, nothing selected, the replay from the first draw at the pace of scrCas.
    Zapni_Tah(0);
    Nacti_Seznamy();
    Sezeni.Suma_Vyberu = false;
    Sezeni.Animace_Bezi = false;
    Sezeni.Formular_Otevren_Tahy = true;
    Nacteno = true;
    scrCas_Change();
    Animace_Od = 1;
}

frmVypisTahu::~frmVypisTahu() {
    // A window closed properly has cleared its marks already; a newer list may stand by now.
    if (Nacteno) {
        Sezeni.Formular_Otevren_Tahy = false;
        Sezeni.Animace_Bezi = false;
    }
}

QWidget* frmVypisTahu::Seznam_S_Krytem(int tah, QStackedLayout*& vrstvy) {
    QListWidget* seznam = Seznam(tah);
    QLabel* kryt = tah == 0 ? List1Tah_Cekat : List2Tah_Cekat;
    // The lines align by their blanks in a font whose digit is two blanks wide.
    QFont pismo(u"DejaVu Sans"_qs);
    pismo.setPointSize(9);
    seznam->setFont(pismo);
    seznam->setUniformItemSizes(true);
    seznam->setSelectionMode(QAbstractItemView::SingleSelection);
    // As wide as the widest line: a two-digit week, six one-digit numbers and the supplementary one.
    Tah vzor;
    for (int k = 1; k <= 7; ++k)
        vzor[k] = uint8_t(k);
    const QString nejsirsi = ::Radek_Tahu_Seznamu(53, vzor);
    seznam->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    seznam->setMinimumWidth(QFontMetrics(pismo).horizontalAdvance(nejsirsi) + 8 +
                            seznam->verticalScrollBar()->sizeHint().width() + 2 * seznam->frameWidth());
    seznam->viewport()->installEventFilter(this);
    connect(seznam, &QListWidget::currentRowChanged, this, [this, tah](int radek) {
        if (!Vybira && radek >= 0)
            Zvoleno(tah, radek);
    });
    // A click on the line already selected changes no row; its release is the click.
    connect(seznam, &QListWidget::clicked, this, [this, tah](const QModelIndex& index) {
        if (Klik_Na_Vybrany && index.isValid()) {
            Klik_Na_Vybrany = false;
            Zvoleno(tah, index.row());
        }
    });
    kryt->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    kryt->setAutoFillBackground(true);
    kryt->setFrameShape(QFrame::StyledPanel);

    auto* sloupec = new QWidget(this);
    auto* rozlozeni = new QVBoxLayout(sloupec);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    rozlozeni->setSpacing(2);
    auto* hlava = new QHBoxLayout;
    hlava->addWidget(new QLabel(Okno.Text(tah == 0 ? u"lblTah1"_qs : u"lblTah2"_qs), sloupec));
    hlava->addStretch();
    if (tah == 0)
        hlava->addWidget(Text1);
    rozlozeni->addLayout(hlava);
    vrstvy = new QStackedLayout;
    vrstvy->addWidget(seznam);
    vrstvy->addWidget(kryt);
    rozlozeni->addLayout(vrstvy, 1);
    return sloupec;
}

QWidget* frmVypisTahu::Editor() {
    auto* editor = new QWidget(this);
    modNastaveni_Ovladani::Napoveda(editor, u"Tahy"_qs);
    auto* rozlozeni = new QVBoxLayout(editor);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    rozlozeni->setSpacing(4);
    const int sirka_cisla = fontMetrics().horizontalAdvance(u"00"_qs) + 12;

    auto* datum = new QHBoxLayout;
    for (auto [pole, popis, delka] : {std::tuple{txtRok, u"lblRok"_qs, 4}, std::tuple{txtTyden, u"lblTyden"_qs, 3}}) {
        modNastaveni_Ovladani::Jen_Cislice(pole);
        modNastaveni_Ovladani::Vybirej_Pri_Vstupu(pole);
        pole->setMaxLength(delka);
        pole->setMaximumWidth(fontMetrics().horizontalAdvance(QString(delka + 1, u'0')) + 10);
        pole->installEventFilter(this);
        datum->addWidget(new QLabel(Okno.Text(popis), editor));
        datum->addWidget(pole);
    }
    datum->addStretch();
    rozlozeni->addLayout(datum);

    auto* serie = new QHBoxLayout;
    for (int i = 0; i < 2; ++i) {
        cboTah[std::size_t(i)] = Okno.Pojmenuj(new QRadioButton(editor), Indexem(u"cboTah"_qs, i));
        serie->addWidget(cboTah[std::size_t(i)]);
    }
    serie->addStretch();
    rozlozeni->addLayout(serie);

    auto* cisla = new QHBoxLayout;
    cisla->setSpacing(2);
    for (int i = 0; i < 7; ++i) {
        auto* box = Okno.Pojmenuj(new QLineEdit(editor), Indexem(u"txtTah_Cislo"_qs, i));
        box->setMaxLength(2);
        box->setFixedWidth(sirka_cisla);
        box->setAlignment(Qt::AlignCenter);
        modNastaveni_Ovladani::Jen_Cislice(box);
        modNastaveni_Ovladani::Vybirej_Pri_Vstupu(box);
        txtTah_Cislo[std::size_t(i)] = box;
        if (i == 6)
            cisla->addWidget(new QLabel(u"-"_qs, editor));
        cisla->addWidget(box);
    }
    cisla->addStretch();
    rozlozeni->addLayout(cisla);

    auto* prikazy = new QHBoxLayout;
    for (QPushButton* tlacitko : {cmdDalsiTah, cmdOpravit, cmdSmaz}) {
        // No wider than their words: the row of boxes sets the width of the editor.
        tlacitko->setMinimumWidth(fontMetrics().horizontalAdvance(tlacitko->text()) + 16);
        tlacitko->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        prikazy->addWidget(tlacitko);
    }
    rozlozeni->addLayout(prikazy);
    rozlozeni->addWidget(lblTahDne);
    rozlozeni->addStretch();

    rozlozeni->addWidget(chkDodatkova);
    rozlozeni->addWidget(Check1);
    auto* pouzit = new QHBoxLayout;
    pouzit->addWidget(Command1);
    pouzit->addWidget(cmdAnimace);
    rozlozeni->addLayout(pouzit);
    auto* cas = new QHBoxLayout;
    scrCas->setRange(1, 10);
    scrCas->setPageStep(1);
    cas->addWidget(scrCas, 1);
    cas->addWidget(lblCas);
    lblCas->setMinimumWidth(fontMetrics().horizontalAdvance(u" 10 s"_qs));
    rozlozeni->addLayout(cas);
    Podbarvi(cmdAnimace, Seda);
    return editor;
}

// ---- The lists ----

void frmVypisTahu::Vypis_Cisla_1Tah() {
    Vypis_Cisla(0);
}

void frmVypisTahu::Vypis_Cisla_2Tah() {
    Vypis_Cisla(1);
}

void frmVypisTahu::Vypis_Cisla(int tah) {
    QListWidget* seznam = Seznam(tah);
    // The cover is painted at once: the rebuild runs without the event pump, so that no click can
    // reach a list half built.
    Vrstvy[std::size_t(tah)]->setCurrentIndex(1);
    if (isVisible())
        Vrstvy[std::size_t(tah)]->currentWidget()->repaint();
    const Prace prace(Sezeni.Sluzby);
    Seznam_Tahu vypis = Vypis_Cisla_Tahu(Sezeni.Archiv, tah);
    (tah == 0 ? Sezeni.Tikety.Pocet_Tahu_1 : Sezeni.Tikety.Pocet_Tahu_2) = int16_t(vypis.Pocet_Tahu);
    Vybira = true;
    seznam->clear();
    seznam->addItems(vypis.Radky);
    Vybira = false;
    Radky[std::size_t(tah)] = std::move(vypis.Radky);
    if (tah == 0)
        Text1->setText(QString::number(vypis.Pocet_Tahu));
    Animace_Do[std::size_t(tah)] = seznam->count() - 1;
    Vrstvy[std::size_t(tah)]->setCurrentIndex(0);
    Vyber_Radek(seznam, -1);
    seznam->scrollToBottom();
}

void frmVypisTahu::Nacti_Seznamy() {
    if (Sezeni.Animace_Bezi)
        Nastav_Animaci(false);
    Vypis_Cisla_1Tah();
    Vypis_Cisla_2Tah();
    Animace_Od = 1;
}

void frmVypisTahu::Vyber_Radek(QListWidget* seznam, int radek) {
    Vybira = true;
    if (radek < 0) {
        seznam->setCurrentRow(-1);
        seznam->clearSelection();
    } else {
        seznam->setCurrentRow(radek);
        seznam->scrollToItem(seznam->item(radek));
    }
    Vybira = false;
}

void frmVypisTahu::Zrus_Vyber_Seznamu() {
    Vyber_Radek(List1Tah, -1);
    Vyber_Radek(List2Tah, -1);
}

bool frmVypisTahu::eventFilter(QObject* objekt, QEvent* udalost) {
    if (udalost->type() == QEvent::MouseButtonPress) {
        for (QListWidget* seznam : {List1Tah, List2Tah})
            if (objekt == seznam->viewport()) {
                const int radek = seznam->indexAt(static_cast<QMouseEvent*>(udalost)->position().toPoint()).row();
                Klik_Na_Vybrany = radek >= 0 && radek == seznam->currentRow() && seznam->item(radek)->isSelected();
            }
    } else if (udalost->type() == QEvent::FocusOut && (objekt == txtRok || objekt == txtTyden)) {
        Najdi_Radek_Tahu(Aktivni_Tah);
    }
    return QWidget::eventFilter(objekt, udalost);
}

// ---- A click on a line ----

void frmVypisTahu::Zvoleno(int tah, int radek) {
    Aktivni_Tah = tah;
    Animace_Od = radek;
    Restart_Animace = true;
    Vyber_Radek(Seznam(1 - tah), -1);
    List_Click(tah);
}

void frmVypisTahu::List_Click(int tah) {
    const int radek = Seznam(tah)->currentRow();
    if (!Nacteno || radek < 0)
        return;
    const QStringList& radky = Radky[std::size_t(tah)];
    const QString text = radky.value(radek);
    if (Je_Radek_Tahu(text)) {
        Poradi_Tahu = ::Poradi_Tahu(radky, radek);
        if (auto* tipy = Ram.Najdi_Okno<frmVypisTipu>()) {
            const int pocet = tah == 0 ? Sezeni.Archiv.Pocet_Tahy_1 : Sezeni.Archiv.Pocet_Tahy_2;
            QLineEdit* pole = tah == 0 ? tipy->Vyhodnoceni->txtPocet_1Tahu : tipy->Vyhodnoceni->txtPocet_2Tahu;
            pole->setText(QString::number(pocet - Poradi_Tahu + 1));
        }
        Sezeni.Sluzby->Nastav_Aktivni_Poradi(QString::number(Poradi_Tahu));
        lblTahDne->setText(Den_Tahu_Text(Sezeni.Archiv, tah + 1, Rok_Radku(radky, radek), int(Vb::Val(text))));
    } else {
        Sezeni.Sluzby->Nastav_Aktivni_Poradi(QString());
        lblTahDne->clear();
    }
    // Beside the tips a click only shows the draw, for the evaluation of the tip list.
    if (Sezeni.Tipy_Zobrazeny) {
        Radek = text;
        if (Radek.size() > 6)
            Ukaz_Tah(Radek);
        return;
    }
    Posledni_Seznam = tah + 1;
    Radek = text;
    if (Sezeni.Tahy_Pro_Analyzu && Ram.Najdi_Okno<frmAnalyzaTahu>() != nullptr) {
        Rozsah_Analyzy(tah, radek);
        Ukaz_Tah(Radek);
        return;
    }
    if (Radek.size() < 6) {
        txtTyden->clear();
        txtRok->clear();
        Zapni_Tah(-1);
        Picture1->Vycisti();
        return;
    }
    Zapni_Tah(tah);
    txtRok->setText(QString::number(Rok_Radku(radky, radek)));
    txtTyden->setText(Radek.left(2).trimmed());
    Ukaz_Tah(Radek);
}

void frmVypisTahu::Rozsah_Analyzy(int tah, int radek) {
    // A click inside the analysed range shortens its end, one outside it moves its start.
    auto* analyza = Ram.Najdi_Okno<frmAnalyzaTahu>();
    const QStringList& radky = Radky[std::size_t(tah)];
    Poradi_Tahu = ::Poradi_Tahu(radky, radek);
    if (!Je_Radek_Tahu(radky.value(radek)))
        return;
    QLineEdit* od = tah == 0 ? analyza->txtOd_Tah1 : analyza->txtOd_Tah2;
    QLineEdit* do_ = tah == 0 ? analyza->txtDo_Tah1 : analyza->txtDo_Tah2;
    const QString poradi = QString::number(Poradi_Tahu);
    if (Poradi_Tahu > Cele_Cislo(od) && Poradi_Tahu < Cele_Cislo(do_))
        do_->setText(poradi);
    else
        od->setText(poradi);
    // The draws back to this one, in the clicked series.
    const int celkem = tah == 0 ? int(Vb::Val(Text1->text())) : Sezeni.Tikety.Pocet_Tahu_2;
    (tah == 0 ? analyza->txtPocet_1Tahu : analyza->txtPocet_2Tahu)->setText(QString::number(celkem - Poradi_Tahu + 1));
}

void frmVypisTahu::Ukaz_Tah(const QString& radek) {
    std::array<uint8_t, 50>& vybrana = Sezeni.Vybrana_Cisla;
    if (!Sezeni.Suma_Vyberu) {
        Picture1->Vycisti();
        vybrana.fill(0);
    }
    // The pieces above 0: the week, the six numbers, and the supplementary number if it is wanted.
    const int cisel = chkDodatkova->isChecked() ? 7 : 6;
    Cisla_Tahu.fill(0);
    int kus = 0;
    for (const QString& slovo : radek.split(u' ', Qt::SkipEmptyParts)) {
        const int n = int(std::clamp(Vb::Val(slovo), 0.0, 255.0));
        if (n <= 0)
            continue;
        if (++kus == 1)
            continue;
        if (kus - 1 > cisel)
            break;
        Cisla_Tahu[std::size_t(kus - 1)] = uint8_t(n);
        if (n <= 49)
            vybrana[std::size_t(n)] = 1;
    }
    for (int i = 1; i <= cisel; ++i)
        Picture1->Pridej_Krizek(Cisla_Tahu[std::size_t(i)], 0);
    QString text;
    int pocet = 0;
    for (int i = 1; i <= 49; ++i)
        if (vybrana[std::size_t(i)] != 0) {
            text += Vb::Str(int64_t(i));
            ++pocet;
        }
    Sezeni.Sluzby->Nastav_Status(text, pocet > 0 ? QString::number(pocet) : QString());
}

void frmVypisTahu::Check1_Click() {
    Zrus_Vyber_Seznamu();
    Sezeni.Vybrana_Cisla.fill(0);
    Picture1->Vycisti();
    Sezeni.Suma_Vyberu = Check1->isChecked();
    Sezeni.Sluzby->Nastav_Status(QString(), QString());
}

// ---- The editor ----

int frmVypisTahu::Rok() const {
    return Cele_Cislo(txtRok);
}

int frmVypisTahu::Tyden() const {
    return Cele_Cislo(txtTyden);
}

void frmVypisTahu::Zobraz_Cisla(int tah) {
    const std::optional<Tah> cisla = ::Cisla_Tahu(Sezeni.Archiv, tah, Rok(), Tyden());
    for (int k = 1; k <= 7; ++k)
        txtTah_Cislo[std::size_t(k - 1)]->setText(cisla && (*cisla)[k] != 0 ? QString::number((*cisla)[k]) : QString());
}

void frmVypisTahu::Vycisti_Boxy() {
    for (QLineEdit* box : txtTah_Cislo)
        box->clear();
}

void frmVypisTahu::Zapni_Tah(int tah) {
    // Both options can be off: the exclusive rule is lifted for the moment of the change.
    for (int i = 0; i < 2; ++i) {
        cboTah[std::size_t(i)]->setAutoExclusive(false);
        cboTah[std::size_t(i)]->setChecked(i == tah);
        cboTah[std::size_t(i)]->setAutoExclusive(true);
    }
}

void frmVypisTahu::Najdi_Radek_Tahu(int tah) {
    if (txtRok->text().isEmpty() || txtTyden->text().isEmpty())
        return;
    const int radek = ::Najdi_Radek_Tahu(Sezeni.Archiv, tah, Rok(), Tyden());
    if (radek < 0 || radek >= Seznam(tah)->count())
        return;
    Vyber_Radek(Seznam(1 - tah), -1);
    Vyber_Radek(Seznam(tah), radek);
}

void frmVypisTahu::txtRok_Change() {
    Vycisti_Boxy();
    if (txtRok->text().isEmpty())
        return;
    const int letos = Sezeni.Cas->Dnes().year();
    if (Rok() > letos || Rok() < 1) {
        // The change of this text shows the numbers.
        txtRok->setText(QString::number(letos));
        txtRok->selectAll();
        return;
    }
    if (Rok() > 1956 && !txtTyden->text().isEmpty())
        Zobraz_Cisla(Aktivni_Tah);
}

void frmVypisTahu::txtTyden_Change() {
    Vycisti_Boxy();
    if (txtTyden->text().isEmpty())
        return;
    if (Tyden() > 53 || Tyden() < 1) {
        txtTyden->setText(Vb::Str(int64_t(53)));
        txtTyden->selectAll();
        return;
    }
    if (!txtRok->text().isEmpty())
        Zobraz_Cisla(Aktivni_Tah);
}

void frmVypisTahu::txtTah_Cislo_Change(int index) {
    QLineEdit* box = txtTah_Cislo[std::size_t(index)];
    if (!box->text().isEmpty() && (Cele_Cislo(box) < 1 || Cele_Cislo(box) > 49))
        box->clear();
}

void frmVypisTahu::cboTah_Click(int tah) {
    Aktivni_Tah = tah;
    Zobraz_Cisla(tah);
    Najdi_Radek_Tahu(tah);
}

void frmVypisTahu::cmdDalsiTah_Click() {
    const int rok = Rok();
    const int tyden = Tyden();
    const Boxy_Tahu boxy = Boxy(txtTah_Cislo);
    bool obsazeno = false;
    const Uprava_Tahu uprava = Proved([&](Archiv_Tahu& archiv) {
        obsazeno = tyden != 0 && Kontrola_Obsazeni(archiv, Aktivni_Tah, rok, tyden);
        return Pridej_Tah(archiv, Aktivni_Tah, rok, tyden, boxy);
    });
    // Ready for the next week, also after the message of a filled one.
    if (uprava.Zmeneno || obsazeno)
        txtTyden->setText(QString::number(tyden + 1));
}

void frmVypisTahu::cmdOpravit_Click() {
    const int radek = Seznam(Aktivni_Tah)->currentRow();
    const Boxy_Tahu boxy = Boxy(txtTah_Cislo);
    const int rok = Rok(), tyden = Tyden();
    const Uprava_Tahu uprava =
        Proved([&](Archiv_Tahu& archiv) { return Oprav_Tah(archiv, Aktivni_Tah, rok, tyden, boxy); });
    if (uprava.Zmeneno && radek >= 0 && radek < Seznam(Aktivni_Tah)->count())
        Vyber_Radek(Seznam(Aktivni_Tah), radek);
}

void frmVypisTahu::cmdSmaz_Click() {
    const int rok = Rok(), tyden = Tyden();
    Proved([&](Archiv_Tahu& archiv) { return Smaz_Tah(archiv, Aktivni_Tah, rok, tyden); });
}

Uprava_Tahu frmVypisTahu::Proved(const std::function<Uprava_Tahu(Archiv_Tahu&)>& zmena) {
    // Where the day had no archive, this draw makes it.
    const bool bez_archivu = Ram.Bez_Tahu();
    const Zmena_Archivu vysledek = Uprav_Archiv(Sezeni.Archiv, Sezeni.Adresar_Dat(), zmena);
    const Uprava_Tahu& uprava = vysledek.Uprava;
    if (vysledek.Znovu_Nacteno) {
        // Another program wrote the archive since it was loaded: its draws stand, and this change
        // went onto them.
        Nacti_Seznamy();
        Sezeni.Sluzby->Zprava(u"Archiv tahů mezitím změnil jiný program; seznamy ukazují jeho nový stav."_qs);
    }
    if (!uprava.Zprava.isEmpty())
        Sezeni.Sluzby->Zprava(uprava.Zprava);
    if (!vysledek.Zapis.Ok())
        Sezeni.Sluzby->Zprava(vysledek.Zapis.Zprava);
    if (!uprava.Zmeneno)
        return uprava;
    if (!vysledek.Znovu_Nacteno)
        Vypis_Cisla(Aktivni_Tah);
    // A change written to disk leaves nothing unsaved; one that could not be written does.
    if (!vysledek.Zapis.Ok())
        Sezeni.Tikety.Zmena_Dat = true;
    else if (bez_archivu)
        Ram.Tahy_Zalozeny();
    return uprava;
}

// ---- The replay ----

void frmVypisTahu::Nastav_Animaci(bool bezi) {
    Sezeni.Animace_Bezi = bezi;
    cmdAnimace->setText(Okno.Text(bezi ? u"cmdAnimace.Stop"_qs : u"cmdAnimace.Znovu"_qs));
    Podbarvi(cmdAnimace, bezi ? Cervena : Seda);
}

void frmVypisTahu::cmdAnimace_Click() {
    if (Sezeni.Animace_Bezi) {
        Nastav_Animaci(false);
        return;
    }
    Nastav_Animaci(true);
    Relace& sezeni = Sezeni;
    const QPointer<frmVypisTahu> zije(this);
    // A click in a list during the replay (Restart_Animace) starts it again from that line.
    for (bool znovu = true; znovu;) {
        znovu = false;
        const int tah = Aktivni_Tah;
        QListWidget* seznam = Seznam(tah);
        for (int radek = std::max(Animace_Od, 0); radek <= Animace_Do[std::size_t(tah)] && radek < seznam->count();
             ++radek) {
            if (Restart_Animace) {
                Restart_Animace = false;
                znovu = true;
                break;
            }
            Vyber_Radek(seznam, radek);
            List_Click(tah);
            Cekej_Krok();
            if (!zije || !sezeni.Animace_Bezi)
                return;
        }
    }
    // At the end the button stays on "STOP" until it is pressed.
}

void frmVypisTahu::Cekej_Krok() {
    // The mark comes from Timer2 of the main window; the stop and the window's closing also end
    // the wait, so that a replay never outlives its window.
    Relace& sezeni = Sezeni;
    const QPointer<frmVypisTahu> zije(this);
    sezeni.Cas_Vyprsel = false;
    while (!sezeni.Cas_Vyprsel && sezeni.Animace_Bezi && zije)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void frmVypisTahu::scrCas_Change() {
    Ram.Nastav_Timer2(scrCas->value());
    lblCas->setText(Vb::Str(int64_t(scrCas->value())) + u" s"_qs);
}

// ---- Opening and closing ----

void frmVypisTahu::closeEvent(QCloseEvent* udalost) {
    Nacteno = false;
    Sezeni.Animace_Bezi = false;
    Sezeni.Formular_Otevren_Tahy = false;
    Ram.Zastav_Timer2();
    Sezeni.Sluzby->Nastav_Aktivni_Poradi(QString());
    Ram.Zavri_Okno<frmAnalyzaTahu>();
    QWidget::closeEvent(udalost);
}

frmVypisTahu* frmVypisTahu::Otevri(frmMDITombi& ram) {
    const bool nove = ram.Najdi_Okno<frmVypisTahu>() == nullptr;
    auto* okno = ram.Otevri_Okno<frmVypisTahu>(ram);
    QMdiSubWindow* ramecek = Ramecek(okno);
    if (!nove || ramecek == nullptr)
        return okno;
    ramecek->resize(ramecek->width(), Pixely(Vyska_Pro_Analyzu, *okno));
    // Beside the tip list the list stands at the right edge and under it.
    QPoint misto(0, 0);
    if (auto* tipy = ram.Najdi_Okno<frmVypisTipu>(); tipy != nullptr && Ramecek(tipy) != nullptr)
        misto = {std::max(0, ram.Plocha()->viewport()->width() - ramecek->width()), Ramecek(tipy)->height()};
    ramecek->move(misto);
    return okno;
}

void frmVypisTahu::Otevri_Pro_Analyzu(frmMDITombi& ram, QWidget* analyza) {
    ram.Sezeni().Tahy_Pro_Analyzu = true;
    frmVypisTahu* tahy = Otevri(ram);
    tahy->Picture1->Vycisti();
    QMdiSubWindow* ramecek = Ramecek(tahy);
    if (ramecek == nullptr)
        return;
    ramecek->resize(ramecek->width(), Pixely(Vyska_Pro_Analyzu, *tahy));
    ramecek->move(0, 0);
    if (QMdiSubWindow* pod = Ramecek(analyza)) {
        pod->move(0, ramecek->height());
        ram.Plocha()->setActiveSubWindow(pod);
    }
}

void frmVypisTahu::Pripoj_Prikazy(frmMDITombi& ram) {
    ram.Obsluz(ram.mnuVypisTahu, [&ram] {
        Relace& sezeni = ram.Sezeni();
        ram.Zavri_Okno<frmGeneruj>();
        if (sezeni.Archiv.Pocet_Let == 0) {
            sezeni.Sluzby->Zprava(u"Chybí soubor tahů  \""_qs + sezeni.Archiv.Soubor_Tahu +
                                  u"\"  v aktuálním adresáři."_qs);
            return;
        }
        // For reading: a click sets no range unless the analysis is open beside the list.
        if (ram.Najdi_Okno<frmAnalyzaTahu>() == nullptr)
            sezeni.Tahy_Pro_Analyzu = false;
        Otevri(ram);
    });
    // For entry: also where the day has no archive yet, as the first draw typed in makes it.
    ram.Obsluz(ram.mnuRozsirSouborTahy, [&ram] {
        Relace& sezeni = ram.Sezeni();
        if (!ram.Zavri_Okno<frmAnalyzaTahu>())
            return;
        sezeni.Sluzby->Nastav_Status(QString(), QString());
        sezeni.Tahy_Pro_Analyzu = false;
        frmVypisTahu* okno = Otevri(ram);
        okno->txtRok->setFocus();
    });
}
