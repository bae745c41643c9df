#include "analysis/frmAnalyzaTahu_Graf.h"

#include "core/Dialogy.h"
#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmOvladani.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QLabel>
#include <QLineSeries>
#include <QPushButton>
#include <QValueAxis>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmAnalyzaTahu"_qs};
const QColor Barvy[2] = {QColor(0x2f, 0x6f, 0xb0), QColor(0xd0, 0x80, 0x30)};
const QColor Vybrana(0xc0, 0x20, 0x30);

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
        if (const auto cesta = Sezeni.Dialog->Ulozit_Soubor(u"Obrázek PNG (*.png)|*.png"_qs, Okno.Text(u"cmdUlozit_Graf"_qs),
                                                            u"graf.png"_qs, Sezeni.Nastaveni.Adresare[3]))
            Uloz_Png(*cesta);
    });
}

void frmAnalyzaTahu_Graf::Zobraz(const Graf_Analyzy& graf) {
    Posledni = graf;
    Sady = {};
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
    auto* osa_x = new QBarCategoryAxis;
    osa_x->append(graf.Popisky);
    QFont male = font();
    male.setPointSizeF(std::max(6.0, male.pointSizeF() - 2));
    osa_x->setLabelsFont(male);
    if (graf.Popisky.size() > 12)
        osa_x->setLabelsAngle(-90);
    auto* osa_y = new QValueAxis;
    osa_y->setRange(0, nejvic > 0 ? nejvic * 1.1 : 1);
    osa_y->setLabelFormat(u"%g"_qs);
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
    graf_qt->legend()->setAlignment(Qt::AlignBottom);
    graf_qt->legend()->setFont(male);
    graf_qt->setMargins(QMargins(2, 2, 2, 2));
    QChart* stary = Pohled->chart();
    Pohled->setChart(graf_qt);
    delete stary;
    Zvyrazni(Sezeni.Vybrana_Cisla);
}

void frmAnalyzaTahu_Graf::Zvyrazni(const std::array<uint8_t, 50>& vybrana) {
    for (QBarSet* sada : Sady) {
        if (sada == nullptr)
            continue;
        sada->deselectAllBars();
        for (qsizetype i = 0; i < Posledni.Popisky.size(); ++i) {
            bool cislo = false;
            const int n = Posledni.Popisky[i].toInt(&cislo);
            if (cislo && n >= 1 && n <= 49 && vybrana[std::size_t(n)] != 0)
                sada->selectBar(int(i));
        }
    }
}

bool frmAnalyzaTahu_Graf::Uloz_Png(const QString& cesta) {
    if (Pohled->grab().save(cesta, "PNG"))
        return true;
    Sezeni.Sluzby->Zprava(u"Obrázek \""_qs + cesta + u"\" nelze uložit."_qs);
    return false;
}
