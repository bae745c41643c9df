// Marks on the ticket picture land where their twips say on a surface of any resolution, in the
// asked colour, and nothing else is touched.
#include "app/frmKresleni.h"

#include <QImage>
#include <QPainter>
#include <QTest>

namespace {

// A white picture of one column at the given resolution.
QImage Obrazek(int dpi) {
    const double na_pixel = dpi / 1440.0;
    QImage obrazek(qCeil(frmKresleni::Sirka_Sloupce_Twipy * na_pixel),
                   qCeil(frmKresleni::Vyska_Sloupce_Twipy * na_pixel), QImage::Format_RGB32);
    obrazek.setDotsPerMeterX(qRound(dpi / 0.0254));
    obrazek.setDotsPerMeterY(qRound(dpi / 0.0254));
    obrazek.fill(Qt::white);
    return obrazek;
}

QRgb Bod(const QImage& obrazek, double x_twipy, double y_twipy) {
    const double na_pixel = obrazek.logicalDpiX() / 1440.0;
    return obrazek.pixel(int(x_twipy * na_pixel), int(y_twipy * na_pixel));
}

// The bounding box of everything that is not white.
QRect Pomalovano(const QImage& obrazek) {
    QRect ramec;
    for (int y = 0; y < obrazek.height(); ++y)
        for (int x = 0; x < obrazek.width(); ++x)
            if (obrazek.pixel(x, y) != qRgb(255, 255, 255))
                ramec |= QRect(x, y, 1, 1);
    return ramec;
}

} // namespace

class Test_frmKresleni final : public QObject {
    Q_OBJECT

private slots:
    void Krizek_V_Bunce_Cisla() {
        const QRgb cervena = qRgb(255, 0, 0);
        for (int dpi : {96, 192}) {
            QImage obrazek = Obrazek(dpi);
            {
                QPainter kreslic(&obrazek);
                // 7 is row 1, column 1: its cell starts at 467, 477 twips.
                modTombi::Nakresli_Krizek(kreslic, 7, 12, 2);
            }
            QCOMPARE(Bod(obrazek, 467 + 75, 477 + 75), cervena);            // the middle
            QCOMPARE(Bod(obrazek, 467 + 20, 477 + 20), cervena);            // one arm
            QCOMPARE(Bod(obrazek, 467 + 130, 477 + 20), cervena);           // the other
            QCOMPARE(Bod(obrazek, 467 + 75, 477 + 5), qRgb(255, 255, 255)); // between the arms
            // Nothing outside the 150 x 150 box but the round ends of the pen.
            const double na_pixel = dpi / 1440.0;
            const QRect box(qFloor(467 * na_pixel) - 2, qFloor(477 * na_pixel) - 2, qCeil(150 * na_pixel) + 5,
                            qCeil(150 * na_pixel) + 5);
            QVERIFY(box.contains(Pomalovano(obrazek)));
        }

        // The corners of the grid: 1 top left, 49 in the last row's fourth cell.
        QImage obrazek = Obrazek(96);
        QPainter kreslic(&obrazek);
        modTombi::Nakresli_Krizek(kreslic, 1, 1, 1);
        modTombi::Nakresli_Krizek(kreslic, 49, 1, 1);
        kreslic.end();
        QCOMPARE(Bod(obrazek, 120 + 75, 130 + 75), qRgb(0, 0, 128));
        QCOMPARE(Bod(obrazek, 3 * 347 + 120 + 75, 9 * 347 + 130 + 75), qRgb(0, 0, 128));
    }

    void Cislo_Mimo_Tiket_Nekresli() {
        QImage obrazek = Obrazek(96);
        QPainter kreslic(&obrazek);
        for (int cislo : {0, 50, -3})
            modTombi::Nakresli_Krizek(kreslic, cislo, 0, 3);
        modTombi::Nakresli_Ramecek(kreslic, 300, 300, Qt::black, 3, 3);
        kreslic.end();
        QVERIFY(Pomalovano(obrazek).isNull());
    }

    void Krizek_A_Ramecek_Znacky() {
        const QRgb modra = qRgb(0, 0, 255);
        QImage krizek = Obrazek(144);
        QImage ramecek = Obrazek(144);
        {
            QPainter kreslic(&krizek);
            modTombi::Nakresli_Ramecek(kreslic, 400, 600, QColor(modra), 1, 2);
        }
        {
            QPainter kreslic(&ramecek);
            modTombi::Nakresli_Ramecek(kreslic, 400, 600, QColor(modra), 2, 2);
        }
        // A cross has its middle drawn and the middle of its sides empty; a frame the reverse.
        QCOMPARE(Bod(krizek, 500, 700), modra);
        QCOMPARE(Bod(krizek, 500, 600), qRgb(255, 255, 255));
        QCOMPARE(Bod(ramecek, 500, 700), qRgb(255, 255, 255));
        QCOMPARE(Bod(ramecek, 500, 600), modra);
        QCOMPARE(Bod(ramecek, 400, 700), modra);
        QCOMPARE(Pomalovano(krizek), Pomalovano(ramecek));
    }
};

QTEST_MAIN(Test_frmKresleni)
#include "Test_frmKresleni.moc"
