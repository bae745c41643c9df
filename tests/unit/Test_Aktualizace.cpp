// The program update against an FTP server on 127.0.0.1 with the account of the program: new and
// current rows, the fetch of the new ones (an archive keeps its backup, the program comes as
// tombi_), a missing _data.ini, a wrong password, a cut connection and a stop, after which the
// program's folder is as it was; and tombi-cli update.
#include "Bajty.h"
#include "Server_Ftp.h"
#include "Spust_Cli.h"
#include "net/Aktualizace.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Aktualizace;

namespace {

const QByteArray Ini = "[new]\nprogram=999\nhelp=1.1.2000\ndata_str=1.1.2100\ndata_ned=1.1.2000\n"
                       "rozpisy=1.1.2000\nuzivatele=1.1.2100\npopis=1.1.2100\n";

// A program folder with a help, both archives and the wheel tool from today.
QTemporaryDir* Slozka_Programu() {
    auto* slozka = new QTemporaryDir;
    for (const char* soubor : {"tombi.chm", "SpS_tahy.sez", "SpN_tahy.sez", "Kolovka.exe"})
        Zapis_Souboru(slozka->filePath(QString::fromLatin1(soubor)), "stary");
    return slozka;
}

QByteArray Obsah(const QTemporaryDir& d) {
    QByteArray vse;
    for (const QString& jmeno : QDir(d.path()).entryList(QDir::Files, QDir::Name))
        vse += jmeno.toUtf8() + ':' + Obsah_Souboru(d.filePath(jmeno)) + '\n';
    return vse;
}

} // namespace

class Test_Aktualizace final : public QObject {
    Q_OBJECT

private slots:
    void Nove_A_Stazeni() {
        Server_Ftp server(Ini);
        QVERIFY(!server.Adresa.isEmpty());
        const std::unique_ptr<QTemporaryDir> slozka(Slozka_Programu());
        const Nabidka n = Zjisti_Verze(server.Pripojeni(), slozka->path(), u"2.0"_qs);
        QVERIFY2(n.Stav.Ok(), qPrintable(n.Stav.Zprava));
        // The program 999 > 200; the help and Sunday older than here; Wednesday newer; the companion
        // is never chosen; the change list is not here yet.
        QCOMPARE(n.Nove, (std::array<bool, Pocet_Radku>{true, false, true, false, false, false, true}));
        QCOMPARE(Zjisti_Verze(server.Pripojeni(), slozka->path(), u"9.9.9"_qs).Nove[0], false);

        const Stazeni st = Stahni_Soubory(server.Pripojeni(), slozka->path(), n.Nove);
        QVERIFY2(st.Stav.Ok(), qPrintable(st.Stav.Zprava));
        QCOMPARE(Obsah_Souboru(slozka->filePath(u"tombi_"_qs)), QByteArray("novy program"));
        QVERIFY(QFileInfo(slozka->filePath(u"tombi_"_qs)).isExecutable());
        QCOMPARE(Obsah_Souboru(slozka->filePath(u"SpS_tahy.sez"_qs)), QByteArray(956, 'S'));
        QCOMPARE(Obsah_Souboru(slozka->filePath(u"SpS_tahy.zal"_qs)), QByteArray("stary"));
        QCOMPARE(st.Zprava, u"Ukončete program a spusttě  tombi_"_qs);
        QCOMPARE(st.Zmeny, slozka->filePath(u"_zmeny.txt"_qs));
    }

    void Selhani_Nic_Nemeni() {
        const std::unique_ptr<QTemporaryDir> slozka(Slozka_Programu());
        const QByteArray pred = Obsah(*slozka);
        {
            Server_Ftp bez_ini({});
            QCOMPARE(Zjisti_Verze(bez_ini.Pripojeni(), slozka->path(), u"2.0"_qs).Stav.Zprava, Text_Neni_Ini);
        }
        {
            Server_Ftp jine_heslo(Ini, false, u"jine"_qs);
            const Vysledek v = Zjisti_Verze(jine_heslo.Pripojeni(), slozka->path(), u"2.0"_qs).Stav;
            QVERIFY2(v.Zprava.startsWith(Text_Chyba_Prenosu) && v.Zprava.contains(u"přihlášení"_qs), qPrintable(v.Zprava));
        }
        {
            Server_Ftp chybny("[new]\nprogram=abc\n");
            QCOMPARE(Zjisti_Verze(chybny.Pripojeni(), slozka->path(), u"2.0"_qs).Stav.Zprava, Text_Chyba_Ini);
        }
        std::array<bool, Pocet_Radku> archiv{};
        archiv[2] = true;
        {
            // The server goes away in the middle of the archive.
            Server_Ftp pomaly(Ini, true);
            Spojeni s = pomaly.Pripojeni();
            int volani = 0;
            s.Zrusit = [&] {
                if (++volani == 20)
                    pomaly.Proces.kill();
                return false;
            };
            const Stazeni st = Stahni_Soubory(s, slozka->path(), archiv);
            QVERIFY2(!st.Stav.Ok() && st.Stav.Zprava.startsWith(Text_Chyba_Souboru), qPrintable(st.Stav.Zprava));
        }
        {
            Server_Ftp pomaly(Ini, true);
            Spojeni s = pomaly.Pripojeni();
            s.Zrusit = [] { return true; };
            QCOMPARE(Stahni_Soubory(s, slozka->path(), archiv).Stav.Zprava, Text_Zruseno);
        }
        QCOMPARE(Obsah(*slozka), pred);
    }

    void Prikaz_Cli() {
        Server_Ftp server(Ini);
        const std::unique_ptr<QTemporaryDir> slozka(Slozka_Programu());
        const Beh b = Spust({u"update"_qs, u"--server"_qs, server.Adresa, u"--dir"_qs, slozka->path()});
        QCOMPARE(b.Kod, 0);
        QCOMPARE(b.Radky.size(), Pocet_Radku);
        QCOMPARE(b.Radky[0], u"program TOMBI_.EXE novy"_qs);
        QCOMPARE(b.Radky[1], u"popis programu TOMBI.HLP aktualni"_qs);
        const Beh vse = Spust({u"update"_qs, u"--server"_qs, server.Adresa, u"--dir"_qs, slozka->path(), u"--vse"_qs});
        QCOMPARE(vse.Kod, 0);
        QVERIFY(vse.Radky.contains(u"stazeno SpS_tahy.sez"_qs));
        QCOMPARE(vse.Radky.last(), u"Ukončete program a spusttě  tombi_"_qs);
        QCOMPARE(Spust({u"update"_qs, u"--dir"_qs, slozka->path()}).Kod, 2);
    }
};

QTEST_GUILESS_MAIN(Test_Aktualizace)
#include "Test_Aktualizace.moc"
