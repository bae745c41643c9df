// The recent files as the settings keep them: order, numbering, a reopened file and a full list.
#include "data/Nedavne_Soubory.h"

#include <QTest>

class Test_Nedavne_Soubory final : public QObject {
    Q_OBJECT

private slots:
    void Poradi_A_Cislovani() {
        QString s = Pridej_Nedavny(QString(), Druh_Tipy, u"b.tip"_qs);
        s = Pridej_Nedavny(s, Druh_Tipy, u"a.tip"_qs);
        s = Pridej_Nedavny(s, Druh_Tipy, u"c.tip"_qs);
        QCOMPARE(s, u" ,1.  c.tip,2.  a.tip,3.  b.tip"_qs);
        // A reopened file moves to the top and the numbers close up.
        s = Pridej_Nedavny(s, Druh_Tipy, u"b.tip"_qs);
        QCOMPARE(s, u" ,1.  b.tip,2.  c.tip,3.  a.tip"_qs);
        // Any entry that holds the name goes, not only the same file.
        s = Pridej_Nedavny(u" ,1.  aa.tip,2.  x.tip"_qs, Druh_Tipy, u"a.tip"_qs);
        QCOMPARE(s, u" ,1.  a.tip,2.  x.tip"_qs);

        QCOMPARE(Polozky_Nedavnych(s), (QStringList{u"1.  a.tip"_qs, u"2.  x.tip"_qs}));
        QCOMPARE(Soubor_Z_Polozky(u"2.  x.tip"_qs), u"x.tip"_qs);
        QVERIFY(Polozky_Nedavnych(QString()).isEmpty());
    }

    void Plny_Seznam() {
        QString tipy, seznamy;
        for (int i = 1; i <= 9; ++i) {
            tipy = Pridej_Nedavny(tipy, Druh_Tipy, QString::number(i) + u".tip"_qs);
            seznamy = Pridej_Nedavny(seznamy, Druh_Seznamy, QString::number(i) + u".szn"_qs);
        }
        // The ninth file drops the oldest: eight tip files, seven lists.
        const QStringList t = Polozky_Nedavnych(tipy), s = Polozky_Nedavnych(seznamy);
        QCOMPARE(std::pair(t.size(), s.size()), std::pair(qsizetype(8), qsizetype(7)));
        QCOMPARE(std::pair(t.first(), t.last()), std::pair(u"1.  9.tip"_qs, u"8.  2.tip"_qs));
        QCOMPARE(s.last(), u"7.  3.szn"_qs);
    }
};

QTEST_APPLESS_MAIN(Test_Nedavne_Soubory)
#include "Test_Nedavne_Soubory.moc"
