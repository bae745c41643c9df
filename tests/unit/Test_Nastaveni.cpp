// tombi.cfg: the record byte by byte, odd files, the start-up read (first run, old version, moved
// installation), the password kept in Pws, and where the record is saved.
#include "Bajty.h"
#include "data/Nastaveni.h"
#include "data/Soubory.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace {

// The record with every number zero and every text empty: 317 bytes of numbers and 25 text lengths.
constexpr int Prazdny_Zaznam = 317 + 2 * 25;

QString Cfg(const QString& adresar) {
    return Spoj_Cestu(adresar, u"tombi.cfg"_qs);
}

// The user's settings as an INI file inside the test's folder.
struct Prostredi {
    QTemporaryDir Adresar;
    QSettings Registr{Adresar.filePath(u"registr.ini"_qs), QSettings::IniFormat};
    QString Program() const { return Adresar.path(); }
};

} // namespace

class Test_Nastaveni final : public QObject {
    Q_OBJECT

private slots:
    void rozlozeni() {
        // The head up to Stranka_Nastaveni: shifts, price, default tips, directories, prices of ten tiers a day.
        QByteArray b = Bajty(1, 2) + Bajty(-2, 2) + Bajty(3, 2) + Bajty(12, 1) + Bajty(8, 2);
        for (const char* adresar : {"C:\\Tombi\\", "D:\\Tipy", "", "", "", "C:\\Prohl\xED\x9E\x65\xE8.exe"})
            b += Text_S_Delkou(adresar);
        b += Bajty(10, 1) + Bajty(1, 1) + Bajty(250, 2) + Bajty(1, 1);
        b += Bajty(125000, 8) + QByteArray(8 * 8, '\0') + Bajty(-1, 8);
        b += QByteArray(3 * 8, '\0') + Bajty(10'000'000'000, 8) + QByteArray(6 * 8, '\0');
        b += Text_S_Delkou("1.43") + Bajty(2, 1);
        const Nastaveni_Zaznam z = Cti_Nastaveni(b);
        QCOMPARE((std::tuple(z.Tisk_Posun_Y, z.Vychozi_Tipu, z.Pocet_Pruchodu)),
                 (std::tuple<int16_t, int16_t, int16_t>(-2, 8, 250)));
        QCOMPARE(z.Adresare[5], u"C:\\Prohlížeč.exe"_qs);
        QCOMPARE(std::pair(z.Ceny_Nedele[0].Text(), z.Ceny_Nedele[9].Hodnota), (std::pair(u"12.5"_qs, int64_t(-1))));
        QCOMPARE(z.Ceny_Streda[3].Text(), u"1000000"_qs);
        QCOMPARE(std::pair(z.Verze_Cfg, z.Stranka_Nastaveni), std::pair(u"1.43"_qs, uint8_t(2)));
        // Written back, the head is the same bytes and the missing rest becomes zero fields.
        QCOMPARE(Zapis_Nastaveni(z).left(b.size()), b);
        QCOMPARE(Zapis_Nastaveni(z).size(), Prazdny_Zaznam + 9 + 7 + 16 + 4);
    }

    void podivne_bajty() {
        QCOMPARE(Cti_Nastaveni({}), Nastaveni_Zaznam{});
        // A field cut by the end keeps the byte that is there.
        Nastaveni_Zaznam z = Cti_Nastaveni(QByteArray(1, '\x05'));
        QCOMPARE(z.Tisk_Posun_X, 5);
        // A negative length is an empty text; the next field follows the length at once.
        z = Cti_Nastaveni(QByteArray(9, '\0') + Bajty(-1, 2) + Text_S_Delkou("abc"));
        QCOMPARE(std::pair(z.Adresare[0], z.Adresare[1]), std::pair(QString(), u"abc"_qs));
        // A length past the end takes what is left, and nothing after it.
        z = Cti_Nastaveni(QByteArray(9, '\0') + Bajty(32767, 2) + "C:\\T");
        QCOMPARE(z.Adresare[0], u"C:\\T"_qs);
        z.Adresare[0].clear();
        QCOMPARE(z, Nastaveni_Zaznam{});
    }

    void hotovy_soubor() {
        // A whole file made by a separate tool: fields all along the record must land where they belong.
        const QByteArray data = Obsah_Souboru(QStringLiteral(TOMBI_TEST_DATA "/korpus/Cfg/dobry_1.43.cfg"));
        const Nastaveni_Zaznam z = Cti_Nastaveni(data);
        QCOMPARE(z.Adresare[5], u"C:\\Program Files\\Prohlížeč\\p.exe"_qs);
        QCOMPARE(z.Ceny_Nedele[5].Text(), u"150"_qs);
        QCOMPARE(std::pair(z.Heslo, z.Je_Heslo), std::pair(u"K7pQz"_qs, Vb::Pravda));
        QCOMPARE(z.Zrus_Tip_Sous_Cis[3], 2);
        QCOMPARE(std::pair(z.Pismo_Tucne_1, z.Okno_Sirka), std::pair(Vb::Pravda, 9600));
        QCOMPARE(z.Nedavne_Tipy, u"C:\\Tombi\\Tipy\\nedele.tip|C:\\Tombi\\Tipy\\středa.tip"_qs);
        QCOMPARE(z.Klic_Vyberu, 3);
        QCOMPARE(Zapis_Nastaveni(z), data);
        const QStringList vypis = Vypis_Nastaveni(z);
        QVERIFY(vypis.contains(u"Ceny_Nedele[5] = 150"_qs) && vypis.contains(u"Verze_Cfg = 1.43"_qs));
    }

    void prvni_spusteni_data() {
        QTest::addColumn<QByteArray>("soubor");
        QTest::newRow("chybí") << QByteArray();
        QTest::newRow("prázdný") << QByteArray("");
        Nastaveni_Zaznam stary;
        stary.Vychozi_Tipu = 99;
        stary.Ceny_Nedele[0] = Vb::Mena::Z_Korun(1000);
        stary.Verze_Cfg = u"1.29"_qs;
        QTest::newRow("verze 1.29") << Zapis_Nastaveni(stary);
        stary.Verze_Cfg = u"verze 2"_qs;
        QTest::newRow("nesmyslná verze") << Zapis_Nastaveni(stary);
    }
    void prvni_spusteni() {
        QFETCH(QByteArray, soubor);
        Prostredi p;
        if (!soubor.isNull())
            Zapis_Souboru(Cfg(p.Program()), soubor);
        Nastaveni_Zaznam z;
        z.Vychozi_Tipu = 77; // whatever was in memory goes
        QVERIFY(Nacti_Nastaveni(z, p.Program(), u"1.43"_qs, p.Registr).Ok());
        QCOMPARE(z.Verze_Cfg, u"1.43"_qs);
        QCOMPARE(std::pair(z.Vychozi_Tipu, z.Pocet_Pruchodu), (std::pair<int16_t, int16_t>(8, 250)));
        QCOMPARE(std::pair(z.Barva_Zasahu, z.Pismo_Jmeno_2), std::pair(0xC0C0FF, u"8"_qs));
        QCOMPARE(std::pair(z.Heslo, z.Je_Heslo), std::pair(QString(), Vb::Nepravda));
        for (int i = 0; i <= 4; ++i)
            QCOMPARE(z.Adresare[i], p.Program() + u'/');
        QCOMPARE(z.Adresare[5], QString());
        // The first run writes the record at once.
        QCOMPARE(Obsah_Souboru(Cfg(p.Program())), Zapis_Nastaveni(z));
    }

    void necitelny_soubor_se_neprepise() {
        // A tombi.cfg far too large for the record gives the defaults for the session, and the file stays.
        Prostredi p;
        QFile velky(Cfg(p.Program()));
        QVERIFY(velky.open(QIODevice::WriteOnly) && velky.resize(Nejvic_Nastaveni + 1));
        velky.close();
        Nastaveni_Zaznam z;
        QCOMPARE(Nacti_Nastaveni(z, p.Program(), u"1.43"_qs, p.Registr).Zprava,
                 u"Soubor \"%1\" nelze načíst: má 1 048 577 bajtů, soubor tohoto druhu může mít nejvýše 1 MiB. "
                 u"Program začíná s výchozím nastavením."_qs.arg(Cfg(p.Program())));
        QCOMPARE(std::pair(z.Verze_Cfg, z.Vychozi_Tipu), std::pair(u"1.43"_qs, int16_t(8)));
        QCOMPARE(QFileInfo(Cfg(p.Program())).size(), Nejvic_Nastaveni + 1);
    }

    void presunuta_instalace_data() {
        QTest::addColumn<QString>("adresar_0");
        QTest::addColumn<bool>("presunuto");
        QTest::newRow("jinde") << u"C:\\Tombi\\"_qs << true;
        QTest::newRow("tentýž s lomítkem") << u"%1/"_qs << false;
        QTest::newRow("tentýž bez lomítka") << u"%1"_qs << false;
        QTest::newRow("tentýž jinak zapsaný") << u"%1/./"_qs << false;
    }
    void presunuta_instalace() {
        QFETCH(QString, adresar_0);
        QFETCH(bool, presunuto);
        Prostredi p;
        Nastaveni_Zaznam ulozeny;
        ulozeny.Verze_Cfg = u"1.43"_qs;
        ulozeny.Vychozi_Tipu = 99;
        const QString stary = adresar_0.contains(u"%1"_qs) ? adresar_0.arg(p.Program()) : adresar_0;
        ulozeny.Adresare = {stary, u"D:\\T\\"_qs, u"D:\\S\\"_qs, u"D:\\A\\"_qs, u"x"_qs, u"C:\\p.exe"_qs};
        ulozeny.Zrus_Tip_Sous_Cis = {2, 2, 1, 3, 0, 2, 255, 1};
        Zapis_Souboru(Cfg(p.Program()), Zapis_Nastaveni(ulozeny));

        Nastaveni_Zaznam z;
        QVERIFY(Nacti_Nastaveni(z, p.Program(), u"1.50"_qs, p.Registr).Ok());
        QCOMPARE(std::pair(z.Vychozi_Tipu, z.Verze_Cfg), std::pair(int16_t(99), u"1.43"_qs));
        for (int i = 0; i <= 4; ++i)
            QCOMPARE(z.Adresare[i], presunuto ? p.Program() + u'/' : ulozeny.Adresare[i]);
        QCOMPARE(z.Adresare[5], ulozeny.Adresare[5]);
        // Greyed boxes (2 or more) of the neighbour filters come back unticked; element 0 stays as stored.
        QCOMPARE(z.Zrus_Tip_Sous_Cis, (std::array<uint8_t, 8>{2, 0, 1, 0, 0, 0, 0, 1}));
    }

    void heslo_prezije_ztratu_souboru() {
        Prostredi p;
        Nastaveni_Zaznam z;
        QVERIFY(Nacti_Nastaveni(z, p.Program(), u"1.43"_qs, p.Registr).Ok());
        z.Heslo = u"Qx7-ab"_qs;
        z.Je_Heslo = Vb::Pravda;
        QVERIFY(Uloz_Nastaveni(z, p.Registr).Ok());
        const QString pws = p.Registr.value(Klic_Pws).toString();
        QVERIFY(pws.size() == 2 + z.Heslo.size() && !pws.endsWith(z.Heslo));
        QCOMPARE(Zasifruj_Pws(z.Heslo), pws); // the cipher starts afresh on every call

        QVERIFY(QFile::remove(Cfg(p.Program())));
        Nastaveni_Zaznam znovu;
        QVERIFY(Nacti_Nastaveni(znovu, p.Program(), u"1.43"_qs, p.Registr).Ok());
        QCOMPARE(std::pair(znovu.Heslo, znovu.Je_Heslo), std::pair(u"Qx7-ab"_qs, Vb::Pravda));

        // Taking the password off empties Pws, and a lost file then starts unlocked.
        znovu.Heslo.clear();
        znovu.Je_Heslo = Vb::Nepravda;
        QVERIFY(Uloz_Nastaveni(znovu, p.Registr).Ok());
        QCOMPARE(p.Registr.value(Klic_Pws).toString(), QString());
        QVERIFY(QFile::remove(Cfg(p.Program())));
        QVERIFY(Nacti_Nastaveni(znovu, p.Program(), u"1.43"_qs, p.Registr).Ok());
        QCOMPARE(std::pair(znovu.Heslo, znovu.Je_Heslo), std::pair(QString(), Vb::Nepravda));
    }

    void ulozeni_do_adresare_dat() {
        // The record goes to the data directory, not beside the program, and always says Info_Tah.
        Prostredi p;
        QTemporaryDir data;
        Nastaveni_Zaznam z;
        z.Adresare[0] = data.path() + u'/';
        QVERIFY(Nastav_Tisk(z, 5, -7, 1, p.Registr).Ok());
        QVERIFY(!QFile::exists(Cfg(p.Program())));
        const Nastaveni_Zaznam ulozeny = Cti_Nastaveni(Obsah_Souboru(Cfg(data.path())));
        QCOMPARE(ulozeny, z);
        QCOMPARE(std::pair(ulozeny.Tisk_Posun_Y, ulozeny.Info_Tah), (std::pair<int16_t, int16_t>(-7, -1)));
    }
};

QTEST_GUILESS_MAIN(Test_Nastaveni)
#include "Test_Nastaveni.moc"
