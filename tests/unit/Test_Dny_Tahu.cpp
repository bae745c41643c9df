// The dates of the draws: every draw of the real history gets the operator's date through the
// import and the .dny file on disk, a draw the file does not know gets the day of its week, and
// the reader takes odd files.
#include "Bajty.h"
#include "data/Dny_Tahu.h"
#include "net/Import_Tahu.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

const QByteArray Historie = Obsah_Souboru(QStringLiteral(TOMBI_HISTORIE));

QDate Datum_Csv(const QByteArray& text) {
    const QList<QByteArray> casti = text.split('.');
    return QDate(casti[2].trimmed().toInt(), casti[1].trimmed().toInt(), casti[0].trimmed().toInt());
}

} // namespace

class Test_Dny_Tahu final : public QObject {
    Q_OBJECT

private slots:
    void kazdy_tah_historie_ma_datum_provozovatele() {
        QTemporaryDir dir;
        Zapis_Souboru(dir.filePath(u"sportka.csv"_qs), Historie);
        for (const Den den : Dny_Losovani) {
            Archiv_Tahu a;
            Nastav_Den_Archivu(a, den);
            QVERIFY(Importuj_Tahy(a, dir.path(), u"sportka.csv"_qs, u"0"_qs, 0).Ok());
            Archiv_Tahu nacteny;
            Nastav_Den_Archivu(nacteny, den);
            QVERIFY(Nacti_Tahy(nacteny, dir.path(), nacteny.Soubor_Tahu).Ok());
            Priprav_Seznamy_Tahu(nacteny);
            // Every line of the day, both its draws, against the archive read back from disk.
            int radku = 0;
            for (const QByteArray& radek : Historie.split('\n')) {
                const QList<QByteArray> pole = radek.trimmed().split(';');
                if (pole.size() < 18 || pole[3].toInt() != Iso_Den_Tydne(den))
                    continue;
                ++radku;
                for (int tah = 1; tah <= 2; ++tah)
                    QCOMPARE(Datum_Tahu(nacteny, tah, pole[1].toInt(), pole[2].toInt()), Datum_Csv(pole[0]));
            }
            QCOMPARE(radku, nacteny.Pocet_Tahy_1);
            QCOMPARE(int(nacteny.Dny.Data.size()), nacteny.Pocet_Tahy_1 + nacteny.Pocet_Tahy_2);
        }
    }

    void datum_podle_tydne() {
        Archiv_Tahu a;
        const auto text = [&a](int rok, int tyden) { return Den_Tahu_Text(a, 1, rok, tyden); };
        Nastav_Den_Archivu(a, Den::Streda);
        QCOMPARE(text(2026, 2), u" 07.01.2026 "_qs);
        Nastav_Den_Archivu(a, Den::Patek);
        QCOMPARE(text(2026, 2), u" 09.01.2026 "_qs);
        // ISO week 53 of 2020 runs into 2021, week 1 of 2025 starts in 2024.
        QCOMPARE(text(2020, 53), u" 01.01.2021 "_qs);
        Nastav_Den_Archivu(a, Den::Nedele);
        QCOMPARE(text(2025, 1), u" 05.01.2025 "_qs);
        QCOMPARE(text(1957, 28), u" 14.07.1957 "_qs);
        // The operator numbered the weeks of 2000 one ahead; its own date wins over the week's.
        QCOMPARE(text(2000, 53), u" 07.01.2001 "_qs);
        a.Dny.Pridej(2000, 53, 1, QDate(2000, 12, 31));
        QCOMPARE(text(2000, 53), u" 31.12.2000 "_qs);
        QCOMPARE(Den_Tahu_Text(a, 2, 2000, 53), u" 07.01.2001 "_qs);
        // No week, or a file that names no draw day: no date.
        QVERIFY(text(2026, 0).isEmpty() && text(2026, 54).isEmpty() && text(0, 1).isEmpty());
        a.Soubor_Tahu = u"tahy.sez"_qs;
        QVERIFY(text(2026, 2).isEmpty());
        QCOMPARE(text(2000, 53), u" 31.12.2000 "_qs);
    }

    void soubor_dnu() {
        QCOMPARE(Soubor_Dnu(u"SpP_tahy.sez"_qs), u"SpP_tahy.dny"_qs);
        QCOMPARE(Soubor_Dnu(u"archiv"_qs), u"archiv.dny"_qs);
        Dny_Tahu dny;
        dny.Pridej(2026, 2, 2, QDate(2026, 1, 9));
        dny.Pridej(1994, 52, 1, QDate(1994, 12, 23));
        const QByteArray obraz = Zapis_Dny(dny);
        QCOMPARE(obraz, QByteArray("1994 52 1 23.12.1994\r\n2026 2 2 09.01.2026\r\n"));
        QCOMPARE(Cti_Dny(obraz), dny);
        QVERIFY(Cti_Dny(obraz).Vadne_Radky.isEmpty());

        // LF, tabs, blank lines and a one-digit day are fine; a spoilt line is passed over and named.
        const Dny_Tahu odd = Cti_Dny("\n2026\t2  2 9.1.2026\n2026 3 1 31.02.2026\r\n2026 4 3 01.01.2026\n"
                                     "x\n2026 54 1 01.01.2026\n1994 52 1 23.12.1994");
        QCOMPARE(odd, dny);
        QCOMPARE(odd.Vadne_Radky, u"řádek 3: datum není ve tvaru dd.mm.rrrr"_qs);

        // Written and read beside the archive; no dates, no file.
        QTemporaryDir dir;
        QVERIFY(Uloz_Dny(dny, dir.path(), u"SpP_tahy.sez"_qs).Ok());
        QCOMPARE(Nacti_Dny(dir.path(), u"SpP_tahy.sez"_qs), dny);
        QVERIFY(Uloz_Dny({}, dir.path(), u"SpP_tahy.sez"_qs).Ok());
        QCOMPARE(Obsah_Souboru(dir.filePath(u"SpP_tahy.dny"_qs)), QByteArray("<chybí>"));
        QVERIFY(Nacti_Dny(dir.path(), u"SpP_tahy.sez"_qs).Data.empty());
    }
};

QTEST_APPLESS_MAIN(Test_Dny_Tahu)
#include "Test_Dny_Tahu.moc"
