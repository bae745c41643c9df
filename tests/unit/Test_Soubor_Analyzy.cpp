// _Analyza.txt: sections with their heads, the series chosen for writing, the cleaning of quotes.
#include "analysis/Soubor_Analyzy.h"
#include "core/Vb.h"
#include "data/Nastaveni.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

QString Obsah(const QString& cesta) {
    QFile f(cesta);
    return f.open(QIODevice::ReadOnly) ? Vb::Z_1250(f.readAll()) : QString();
}

} // namespace

class Test_Soubor_Analyzy final : public QObject {
    Q_OBJECT

private slots:
    void Oddily_A_Zapis() {
        QTemporaryDir slozka;
        Nastaveni_Zaznam n;
        n.Adresare[3] = slozka.path();
        n.Zapis_Analyzy = 1;
        n.Zapis_Tahu = {Vb::Nepravda, Vb::Pravda, Vb::Nepravda}; // the first series only
        n.Spojovat_Soubor = 1;
        bool zahlavi = false;
        const QDateTime kdy(QDate(2026, 11, 26), QTime(18, 5));
        QVERIFY(Zahlavi_Analyza(n, zahlavi, kdy).Ok());
        QVERIFY(zahlavi);
        for (int typ : {1, 2, 0})
            QVERIFY(Zapis_Analyza(n, typ, u"Četnost\nPrvní tah\n 5"_qs, u"Druhý"_qs, u"oba \"x\""_qs).Ok());
        QVERIFY(Zahlavi_Analyza(n, zahlavi, kdy.addSecs(600)).Ok());
        const QString hvezdy = u"\""_qs + QString(33, u'*') + u"\"\r\n"_qs;
        const QString ocekavano = hvezdy + u"\" dne 26.11.26      v 18:05 hod.\"\r\n"_qs + hvezdy +
                                  u"\"Četnost\r\nPrvní tah\r\n 5\r\n\"\r\n"_qs + hvezdy +
                                  u"\"      v 18:15 hod.\"\r\n"_qs + hvezdy;
        QCOMPARE(Obsah(Cesta_Analyzy(n)), ocekavano);

        // The cleaning keeps the length and is done once for all.
        QVERIFY(Ocisti_Analyza(n).Ok());
        QString ocistene = ocekavano;
        ocistene.replace(u'"', u' ');
        QCOMPARE(Obsah(Cesta_Analyzy(n)), ocistene);
        QVERIFY(Ocisti_Analyza(n).Ok());
        QCOMPARE(Obsah(Cesta_Analyzy(n)), ocistene);

        // Without joining, a new section starts the file anew with the date again; with the export
        // off nothing is written.
        n.Spojovat_Soubor = 0;
        QVERIFY(Zahlavi_Analyza(n, zahlavi, kdy).Ok());
        QVERIFY(Obsah(Cesta_Analyzy(n)).startsWith(hvezdy + u"\" dne "_qs));
        n.Zapis_Analyzy = 0;
        const qint64 delka = QFileInfo(Cesta_Analyzy(n)).size();
        QVERIFY(Zapis_Analyza(n, 1, u"x"_qs, u"y"_qs, u"z"_qs).Ok());
        QCOMPARE(QFileInfo(Cesta_Analyzy(n)).size(), delka);

        // A folder that is not there: a Czech reason, nothing else.
        n.Adresare[3] = slozka.filePath(u"neni/tu"_qs);
        n.Zapis_Analyzy = 1;
        QVERIFY(Zapis_Analyza(n, 1, u"x"_qs, u"y"_qs, u"z"_qs).Zprava.startsWith(u"Do souboru \"_Analyza.txt\""_qs));
    }
};

QTEST_GUILESS_MAIN(Test_Soubor_Analyzy)
#include "Test_Soubor_Analyzy.moc"
