// The shared procedures: dates and names, the even/odd count, the sort of a tip, the text of the
// tips, the switch of draw day over real files, the wait over midnight and the key filter.
#include "Bajty.h"
#include "Hodiny_Testu.h"
#include "app/modTombi.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

using namespace modTombi;

class Test_modTombi final : public QObject {
    Q_OBJECT

private slots:
    void dny_v_tydnu_data() {
        QTest::addColumn<QDate>("dnes");
        QTest::addColumn<int>("den_v_tydnu");
        QTest::addColumn<QString>("dalsi");
        QTest::addColumn<int>("archiv");
        // 22.11.2026 is a Sunday.
        const auto N = int(Den::Nedele), S = int(Den::Streda), P = int(Den::Patek);
        QTest::newRow("neděle") << QDate(2026, 11, 22) << 1 << u"22.11.2026"_qs << N;
        QTest::newRow("pondělí") << QDate(2026, 11, 23) << 2 << u"25.11.2026"_qs << S;
        QTest::newRow("úterý") << QDate(2026, 11, 24) << 3 << u"25.11.2026"_qs << S;
        QTest::newRow("středa") << QDate(2026, 11, 25) << 4 << QString() << S;
        QTest::newRow("čtvrtek přes rok") << QDate(2026, 12, 31) << 5 << u"1.1.2027"_qs << P;
        QTest::newRow("pátek") << QDate(2026, 11, 27) << 6 << u"27.11.2026"_qs << P;
        QTest::newRow("sobota") << QDate(2026, 11, 28) << 7 << u"29.11.2026"_qs << N;
    }
    void dny_v_tydnu() {
        QFETCH(QDate, dnes);
        QFETCH(int, den_v_tydnu);
        QFETCH(QString, dalsi);
        QFETCH(int, archiv);
        QCOMPARE(Den_V_Tydnu(dnes), den_v_tydnu);
        QCOMPARE(Dalsi_Tah(dnes), dalsi);
        QCOMPARE(int(Den_Podle_Tydne(den_v_tydnu)), archiv);
    }

    void jmena_souboru() {
        QCOMPARE(Datum_Soubor(QDate(2026, 11, 22)), u"261122"_qs);
        QCOMPARE(Datum_Soubor(QDate(2009, 1, 5)), u"090105"_qs);
        QCOMPARE(Navrh_Jmena(QDate(2009, 1, 5), 12, false), u"090105_12"_qs);
        QCOMPARE(Navrh_Jmena(QDate(2009, 1, 5), 7, true), u"S_090105_7"_qs);
        // Czech letters are single bytes in code page 1250 and stay; blanks and what the code page
        // cannot hold go.
        QCOMPARE(Jen_Jednobajtove(u" Tipy Šance  žluťoučký €5 ✓ 日本"_qs), u"TipyŠancežluťoučký€5"_qs);
    }

    void suda_licha_bez_prvniho_slova() {
        auto relace = std::make_unique<Relace>();
        Spocitej_Suda_Licha(*relace, u" 1 2 3 49"_qs);
        QCOMPARE(relace->Pocet_Sudych, 1);
        QCOMPARE(relace->Pocet_Lichych, 3);
        // Without the leading blank the first number is the skipped token; double blanks count nothing.
        Spocitej_Suda_Licha(*relace, u"7 8  10 11"_qs);
        QCOMPARE(relace->Pocet_Sudych, 2);
        QCOMPARE(relace->Pocet_Lichych, 1);
        Spocitej_Suda_Licha(*relace, QString());
        QCOMPARE(relace->Pocet_Sudych + relace->Pocet_Lichych, 0);
    }

    void setrideni_tipu() {
        Tip tip = Cisla<Tip>({40, 30, 20, 10, 5, 1});
        Setrid_Tip(tip, 3, 6);
        QCOMPARE(tip, Cisla<Tip>({40, 30, 1, 5, 10, 20}));
        Setrid_Tip(tip, 1, 6);
        QCOMPARE(tip, Cisla<Tip>({1, 5, 10, 20, 30, 40}));
    }

    void popisek_poctu_tipu() {
        QCOMPARE(Text_Poctu_Tipu(0), QString());
        QCOMPARE(Text_Poctu_Tipu(1), u"1 tip"_qs);
        QCOMPARE(Text_Poctu_Tipu(4), u"4 tipy"_qs);
        QCOMPARE(Text_Poctu_Tipu(5), u"5 tipů"_qs);
    }

    void text_tipu() {
        auto tipy = std::make_unique<Zaznam_Tipu>();
        tipy->Pocet_Tiketu = 2;
        tipy->Tikety[1].Cislo_Tiketu = 1;
        tipy->Tikety[1].Cisla[1] = Cisla<Tip>({1, 9, 10, 22, 48, 49});
        tipy->Tikety[1].Cisla[2] = Cisla<Tip>({3, 4, 0, 0, 0, 0});
        tipy->Tikety[2].Cislo_Tiketu = 17;
        tipy->Tikety[2].Cisla[1] = Cisla<Tip>({2, 4, 6, 8, 11, 13});
        // A ticket past the count is not listed.
        tipy->Tikety[3].Cisla[1] = Cisla<Tip>({5, 6, 7, 8, 9, 10});
        // Four blanks, then five before a one-digit number and three before a two-digit one; an empty
        // cell is seven blanks.
        const QString ocekavano = u"číslo tiketu - 1\n"
                                  u"         1     9   10   22   48   49\n"
                                  u"         3     4                            \n"
                                  u"\n"
                                  u"číslo tiketu - 17\n"
                                  u"         2     4     6     8   11   13\n"
                                  u"\n"_qs;
        QCOMPARE(Otevreny_Tip_Text(*tipy), ocekavano);
    }

    void prepnuti_dne() {
        QTemporaryDir adresar;
        QVERIFY(adresar.isValid());
        auto relace = std::make_unique<Relace>();
        relace->Nastaveni.Adresare[0] = adresar.path();
        relace->Nastaveni.FTP_Data1 = u"sportka-streda.dbf"_qs;
        relace->Nastaveni.FTP_Data2 = u"sportka-nedele.dbf"_qs;

        // A Sunday archive of one year: two weeks with a first draw, one of them with a second.
        Archiv_Tahu nedele;
        Rok_Zaznam& rok = nedele.Pole_Tahu.emplace_back();
        rok.Rok = 2025;
        rok.Tyden[1] = {Cisla<Tah>({1, 2, 3, 4, 5, 6, 7}), Cisla<Tah>({11, 12, 13, 14, 15, 16, 17}), -1, -1};
        rok.Tyden[2] = {Cisla<Tah>({21, 22, 23, 24, 25, 26, 27}), Tah{}, -1, 0};
        nedele.Pocet_Let = 1;
        QVERIFY(Uloz_Tahy(nedele, adresar.path(), u"SpN_tahy.sez"_qs).Ok());

        QVERIFY(Prepni_Den(*relace, Den::Nedele).Ok());
        QCOMPARE(relace->Tikety.Den_Tahu, uint8_t(0));
        QCOMPARE(relace->Soubor_Tahu_Dbf, u"sportka-nedele.dbf"_qs);
        QCOMPARE(relace->Tikety.Pocet_Tahu_1, int16_t(2));
        QCOMPARE(relace->Tikety.Pocet_Tahu_2, int16_t(1));
        QCOMPARE(relace->Archiv.Pocet_Tahy_1, 2);
        QCOMPARE(relace->Archiv.Tahy_1[2], Cisla<Tah>({21, 22, 23, 24, 25, 26, 27}));

        // No Wednesday file: the message names it, and nothing of Sunday is left behind.
        const Vysledek streda = Prepni_Den(*relace, Den::Streda);
        QCOMPARE(streda.Zprava, u"Chybí soubor tahů  \"SpS_tahy.sez\"  v aktuálním adresáři."_qs);
        QCOMPARE(relace->Tikety.Den_Tahu, uint8_t(1));
        QCOMPARE(relace->Soubor_Tahu_Dbf, u"sportka-streda.dbf"_qs);
        QCOMPARE(relace->Archiv.Pocet_Let, 0);
        QCOMPARE(relace->Archiv.Pocet_Tahy_1 + relace->Archiv.Pocet_Tahy_2, 0);
        QCOMPARE(relace->Tikety.Pocet_Tahu_1 + relace->Tikety.Pocet_Tahu_2, 0);

        QVERIFY(Prepni_Den(*relace, Den::Nedele).Ok());
        QCOMPARE(relace->Archiv.Pocet_Tahy_2, 1);
    }

    void ceny_dnu() {
        QTemporaryDir adresar;
        QSettings registr(adresar.filePath(u"registr.ini"_qs), QSettings::IniFormat);
        auto relace = std::make_unique<Relace>();
        relace->Nastaveni.Ceny_Streda[9] = Vb::Mena::Z_Korun(40);
        relace->Nastaveni.Ceny_Nedele[0] = Vb::Mena::Z_Korun(9000000);
        QCOMPARE(Ceny_Dne_Tahu(*relace, Den::Streda)[9].Korun(), 40.0);
        QCOMPARE(Ceny_Dne_Tahu(*relace, Den::Nedele)[0].Korun(), 9000000.0);
        // Friday's table is the settings store's: none there, or no store, is all zero.
        QCOMPARE(Ceny_Dne_Tahu(*relace, Den::Patek), (std::array<Vb::Mena, 10>{}));
        relace->Registr = &registr;
        QCOMPARE(Ceny_Dne_Tahu(*relace, Den::Patek), (std::array<Vb::Mena, 10>{}));
        std::array<Vb::Mena, 10> patek{};
        patek[0] = Vb::Mena::Z_Korun(12500000.5);
        patek[9] = Vb::Mena::Z_Korun(50);
        Uloz_Ceny_Patku(*relace, patek);
        registr.sync();
        QSettings znovu(adresar.filePath(u"registr.ini"_qs), QSettings::IniFormat);
        relace->Registr = &znovu;
        QCOMPARE(Ceny_Dne_Tahu(*relace, Den::Patek), patek);
        QCOMPARE(Ceny_Dne_Tahu(*relace, Den::Nedele)[0].Korun(), 9000000.0);
    }

    void cekani() {
        Hodiny_Testu hodiny(QDateTime(QDate(2026, 11, 20), QTime(20, 0)));
        int pumpovano = 0;
        Cekej(hodiny, 3, [&] { ++pumpovano; });
        QCOMPARE(pumpovano, 6); // the timer moves 0.5 s a read
        QCOMPARE(hodiny.Cas_Timeru, 72003.5);

        // Two seconds before midnight a wait of 3 ends when the timer starts again from 0.
        hodiny.Cas_Timeru = 86398;
        hodiny.Krok = 1;
        pumpovano = 0;
        Cekej(hodiny, 3, [&] {
            if (++pumpovano == 2)
                hodiny.Cas_Timeru = 0.2;
        });
        QCOMPARE(pumpovano, 2);
    }

    void filtr_a_napoveda() {
        QCOMPARE(Filtr_Klavesy('0', u'0', u'9'), int('0'));
        QCOMPARE(Filtr_Klavesy('9', u'0', u'9'), int('9'));
        QCOMPARE(Filtr_Klavesy(8, u'0', u'9'), 8);
        QCOMPARE(Filtr_Klavesy('/', u'0', u'9') + Filtr_Klavesy(':', u'0', u'9'), 0);
        QCOMPARE(Napoveda(u"Anal"_qs), 1);
        QCOMPARE(Napoveda(u"Heslo"_qs), 12);
        QCOMPARE(Napoveda(u"anal"_qs), 0);
    }
};

QTEST_GUILESS_MAIN(Test_modTombi)
#include "Test_modTombi.moc"
