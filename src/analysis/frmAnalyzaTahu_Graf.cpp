#include "analysis/frmAnalyzaTahu_Graf.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmOvladani.h"
#include "core/Dialogy.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QLabel>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QPushButton>
#include <QScatterSeries>
#include <QVBoxLayout>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmAnalyzaTahu"_qs};
const QColor Barvy[2] = {QColor(0x2f, 0x6f, 0xb0), QColor(0xd0, 0x80, 0x30)};
const QColor Vybrana(0xc0, 0x20, 0x30);

// A step of 1, 2 or 5 times a power of ten that leaves at most about eight steps up to `nejvic`.
double Krok_Osy(double nejvic) {
    double krok = 1;
    for (double mocnina = 1;; mocnina *= 10) {
        for (const double nasobek : {1.0, 2.0, 5.0}) {
            krok = nasobek * mocnina;
            if (nejvic / krok <= 8)
                return krok;
        }
    }
}

// The axis under the bars. A few categories are each labelled; a long row of numbers (1 to 49, or
// the sums) is labelled at round values only, so that the labels stay level and readable.
QAbstractAxis* Osa_Popisku(const QStringList& popisky, const QFont& pismo) {
    constexpr int Nejvic_Popisku = 16;
    if (popisky.size() <= Nejvic_Popisku) {
        auto* osa = new QBarCategoryAxis;
        osa->append(popisky);
        osa->setLabelsFont(pismo);
        return osa;
    }
    int krok = 1;
    for (const int k : {2, 5, 10, 20, 25, 50, 100}) {
        if (popisky.size() / krok <= 12)
            break;
        krok = k;
    }
    auto* osa = new QCategoryAxis;
    osa->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    osa->setRange(-0.5, double(popisky.size()) - 0.5);
    osa->setStartValue(-0.5);
    for (qsizetype i = 0; i < popisky.size(); ++i) {
        bool cislo = false;
        const int hodnota = popisky[i].toInt(&cislo);
        if (cislo ? hodnota % krok == 0 : i % krok == 0)
            osa->append(popisky[i], double(i));
    }
    osa->setLabelsFont(pismo);
    osa->setGridLineVisible(false);
    return osa;
}

} // namespace

frmAnalyzaTahu_Graf::frmAnalyzaTahu_Graf(Relace& sezeni, QWidget* parent)
    : QWidget(parent), Pohled(new QChartView(this)), lblBez_Grafu(Okno.Pojmenuj(new QLabel(this), u"lblBez_Grafu"_qs)),
      cmdUlozit_Graf(Okno.Pojmenuj(new QPushButton(this), u"cmdUlozit_Graf"_qs)), Sezeni(sezeni) {
    Pohled->setObjectName(u"Pohled"_qs);
    Pohled->setRenderHint(QPainter::Antialiasing);
    lblBez_Grafu->setAlignment(Qt::AlignCenter);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->addWidget(Pohled, 1);
    rozlozeni->addWidget(lblBez_Grafu, 1);
    rozlozeni->addWidget(cmdUlozit_Graf, 0, Qt::AlignRight);
    Pohled->hide();
    cmdUlozit_Graf->setEnabled(false);
    connect(cmdUlozit_Graf, &QPushButton::clicked, this, [this] {
        if (const auto cesta =
                Sezeni.Dialog->Ulozit_Soubor(u"Obrázek PNG (*.png)|*.png"_qs, Okno.Text(u"cmdUlozit_Graf"_qs),
                                             u"graf.png"_qs, Sezeni.Nastaveni.Adresare[3]))
            Uloz_Png(*cesta);
    });
}

void frmAnalyzaTahu_Graf::Zobraz(const Graf_Analyzy& graf) {
    Posledni = graf;
    Sady = {};
    Legenda_Vybranych = nullptr;
    const bool je = !graf.Popisky.isEmpty();
    Pohled->setVisible(je);
    lblBez_Grafu->setVisible(!je);
    cmdUlozit_Graf->setEnabled(je);
    if (!je)
        return;
    auto* graf_qt = new QChart;
    graf_qt->setTitle(graf.Nazev);
    auto* sloupce = new QBarSeries;
    const QString nazvy[2] = {Okno.Text(u"Graf_Tah1"_qs), Okno.Text(u"Graf_Tah2"_qs)};
    double nejvic = 0;
    for (std::size_t t = 0; t < 2; ++t) {
        auto* sada = new QBarSet(nazvy[t]);
        sada->setColor(Barvy[t]);
        sada->setSelectedColor(Vybrana);
        for (const double h : graf.Hodnoty[t]) {
            *sada << h;
            nejvic = std::max(nejvic, h);
        }
        sloupce->append(sada);
        Sady[t] = sada;
    }
    sloupce->setBarWidth(0.95);
    graf_qt->addSeries(sloupce);
    QFont male = font();
    male.setPointSizeF(std::max(6.0, male.pointSizeF() - 1));
    QAbstractAxis* osa_x = Osa_Popisku(graf.Popisky, male);
    // Counts are whole: the value axis steps by whole numbers, 1, 2, 5 or 10 times a power of ten.
    const double krok = Krok_Osy(nejvic);
    auto* osa_y = new QValueAxis;
    osa_y->setRange(0, std::max(krok, std::ceil(nejvic * 1.05 / krok) * krok));
    osa_y->setTickType(QValueAxis::TicksDynamic);
    osa_y->setTickAnchor(0);
    osa_y->setTickInterval(krok);
    osa_y->setLabelFormat(u"%.0f"_qs);
    osa_y->setLabelsFont(male);
    graf_qt->addAxis(osa_x, Qt::AlignBottom);
    graf_qt->addAxis(osa_y, Qt::AlignLeft);
    sloupce->attachAxis(osa_x);
    sloupce->attachAxis(osa_y);
    // The averages across the whole width, as lines over the bars.
    auto* osa_prumeru = new QValueAxis;
    osa_prumeru->setRange(0, 1);
    osa_prumeru->setVisible(false);
    graf_qt->addAxis(osa_prumeru, Qt::AlignTop);
    for (std::size_t t = 0; t < 2; ++t) {
        if (std::isnan(graf.Prumer[t]))
            continue;
        auto* prumer = new QLineSeries;
        prumer->setName(Okno.Text(u"Graf_Prumer"_qs) + u' ' + nazvy[t]);
        prumer->setColor(Barvy[t].darker(150));
        prumer->append(0, graf.Prumer[t]);
        prumer->append(1, graf.Prumer[t]);
        graf_qt->addSeries(prumer);
        prumer->attachAxis(osa_prumeru);
        prumer->attachAxis(osa_y);
    }
    // The picked numbers' colour in the legend, as a series without points.
    Legenda_Vybranych = new QScatterSeries;
    Legenda_Vybranych->setName(Okno.Text(u"Graf_Vybrana"_qs));
    Legenda_Vybranych->setColor(Vybrana);
    Legenda_Vybranych->setBorderColor(Vybrana);
    graf_qt->addSeries(Legenda_Vybranych);
    graf_qt->legend()->setMarkerShape(QLegend::MarkerShapeRectangle);
    graf_qt->legend()->setAlignment(Qt::AlignBottom);
    graf_qt->legend()->setFont(male);
    graf_qt->setMargins(QMargins(2, 2, 2, 2));
    QChart* stary = Pohled->chart();
    Pohled->setChart(graf_qt);
    delete stary;
    Zvyrazni(Sezeni.Vybrana_Cisla);
}

void frmAnalyzaTahu_Graf::Zvyrazni(const std::array<uint8_t, 50>& vybrana) {
    bool nejaka = false;
    // Only a chart over the numbers 1 to 49 has bars of numbers: a sum of 36 is no number 36.
    const bool cisla =
        Posledni.Popisky.size() == 49 && Posledni.Popisky.front() == u"1"_qs && Posledni.Popisky.back() == u"49"_qs;
    for (QBarSet* sada : Sady) {
        if (sada == nullptr)
            continue;
        sada->deselectAllBars();
        for (qsizetype i = 0; cisla && i < Posledni.Popisky.size(); ++i) {
            bool cislo = false;
            const int n = Posledni.Popisky[i].toInt(&cislo);
            if (cislo && n >= 1 && n <= 49 && vybrana[std::size_t(n)] != 0) {
                sada->selectBar(int(i));
                nejaka = true;
            }
        }
    }
    if (Legenda_Vybranych != nullptr && Pohled->chart() != nullptr)
        for (QLegendMarker* znacka : Pohled->chart()->legend()->markers(Legenda_Vybranych))
            znacka->setVisible(nejaka);
}

bool frmAnalyzaTahu_Graf::Uloz_Png(const QString& cesta) {
    if (Pohled->grab().save(cesta, "PNG"))
        return true;
    Sezeni.Sluzby->Zprava(u"Obrázek \""_qs + cesta + u"\" nelze uložit."_qs);
    return false;
}
