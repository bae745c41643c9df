// The download of the draw data against a server on 127.0.0.1: the tables come and rebuild the
// archives, the CSV export rebuilds all three; a short answer (10000 and 10001 bytes), rubbish, a
// late answer, a stop and a cut connection each leave every archive as it was, with the message.
// The window shows the rows and loads the session's day anew; tombi-cli prints the rows.
#include "Bajty.h"
#include "Prostredi_Okna.h"
#include "Server_Ftp.h"
#include "Server_Http.h"
#include "Spust_Cli.h"
#include "net/Stahovani_Tahu.h"
#include "net/frmStin.h"
#include "settings/Nastaveni_Programu.h"

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>

using namespace Stahovani_Tahu;

namespace {

struct Archivy {
    QByteArray Streda, Patek, Nedele;
    friend bool operator==(const Archivy&, const Archivy&) = default;
};

Archivy Na_Disku(const Prostredi& p) {
    return {Obsah_Souboru(p.Cesta(u"SpS_tahy.sez"_qs)), Obsah_Souboru(p.Cesta(u"SpP_tahy.sez"_qs)),
            Obsah_Souboru(p.Cesta(u"SpN_tahy.sez"_qs))};
}

Zadani Zadani_Pro(const Prostredi& p, const Server_Http& server) {
    Zadani z;
    z.Adresa = server.Adresa() + u"/set"_qs;
    z.Data1 = u"sportka-streda.dbf"_qs;
    z.Data2 = u"sportka-nedele.dbf"_qs;
    z.Adresar = p.Slozka.path();
    z.Limit_Ms = 800;
    return z;
}

} // namespace

class Test_frmStin final : public QObject {
    Q_OBJECT

private slots:
    void Tabulky() {
        Prostredi p(QDate(2026, 11, 28));
        // The archives start shorter than the server's tables, so a rebuild shows.
        const QByteArray streda = Archiv(Den::Streda), nedele = Archiv(Den::Nedele);
        Zapis_Souboru(p.Cesta(u"SpS_tahy.sez"_qs), streda.left(streda.size() - Delka_Roku));
        Zapis_Souboru(p.Cesta(u"SpN_tahy.sez"_qs), nedele.left(nedele.size() - Delka_Roku));
        Server_Http server;
        server.Cesty[u"/set/sportka-streda.dbf"_qs] = {Tabulka_Dbf(int(Den::Streda))};
        server.Cesty[u"/set/sportka-nedele.dbf"_qs] = {Tabulka_Dbf(int(Den::Nedele), Nejmensi_Nedele)};
        QStringList radky;
        const Vysledek v = Stahni_Data_Tahu(
            Zadani_Pro(p, server), [&](const QString& t, bool hotovo) { if (hotovo) radky << t; }, [] { return false; });
        QVERIFY2(v.Ok(), qPrintable(v.Zprava));
        QCOMPARE(radky, (QStringList{Radek_Spojeni, Radek_Streda, Radek_Nedele, Radek_Aktualizace(u"STŘEDA"_qs),
                                     Radek_Aktualizace(u"NEDĚLE"_qs), Radek_Konec}));
        QCOMPARE(Obsah_Souboru(p.Cesta(u"SpS_tahy.sez"_qs)), streda);
        QCOMPARE(Obsah_Souboru(p.Cesta(u"SpN_tahy.sez"_qs)), nedele);
    }

    void Selhani_Nic_Nemeni_data() {
        QTest::addColumn<QByteArray>("telo");
        QTest::addColumn<int>("jak");
        QTest::addColumn<bool>("zrusit");
        QTest::addColumn<QString>("zprava");
        const QByteArray dobra = Tabulka_Dbf(int(Den::Streda));
        const QString neuspech = u"Neúspěšný přenos dat z"_qs;
        QTest::newRow("10000 B") << QByteArray(10000, 'x') << 0 << false << Text_Chyby_Prenosu;
        QTest::newRow("10001 B smetí") << QByteArray(10001, 'x') << 0 << false << u"Není soubor s tahy"_qs;
        QTest::newRow("pomalu") << dobra << 1 << false << neuspech;
        QTest::newRow("přerušeno") << dobra << 2 << false << neuspech;
        QTest::newRow("zrušeno") << dobra << 1 << true << Text_Zruseno;
    }

    void Selhani_Nic_Nemeni() {
        QFETCH(QByteArray, telo);
        QFETCH(int, jak);
        QFETCH(bool, zrusit);
        QFETCH(QString, zprava);
        Prostredi p(QDate(2026, 11, 28));
        const Archivy pred = Na_Disku(p);
        Server_Http server;
        server.Cesty[u"/set/sportka-streda.dbf"_qs] = {telo, Server_Http::Chovani(jak)};
        server.Cesty[u"/set/sportka-nedele.dbf"_qs] = {Tabulka_Dbf(int(Den::Nedele))};
        bool pozadano = false;
        if (zrusit)
            QTimer::singleShot(100, this, [&] { pozadano = true; });
        const Vysledek v = Stahni_Data_Tahu(Zadani_Pro(p, server), [](const QString&, bool) {}, [&] { return pozadano; });
        QVERIFY(!v.Ok());
        QVERIFY2(v.Zprava.contains(zprava), qPrintable(v.Zprava));
        QCOMPARE(Na_Disku(p), pred);
    }

    void Csv_Tri_Archivy() {
        Prostredi p(QDate(2026, 11, 28));
        const Archivy pred = Na_Disku(p);
        for (const char* jmeno : {"SpS_tahy.sez", "SpP_tahy.sez", "SpN_tahy.sez"})
            Zapis_Souboru(p.Cesta(QString::fromLatin1(jmeno)), Archiv(Den::Streda).left(Delka_Roku));
        Server_Http server;
        server.Cesty[u"/historie.csv"_qs] = {Obsah_Souboru(QStringLiteral(TOMBI_HISTORIE))};
        server.Cesty[u"/smeti.csv"_qs] = {QByteArray(20000, ';')};
        Zadani z = Zadani_Pro(p, server);
        z.Csv = server.Adresa() + u"/smeti.csv"_qs;
        const Archivy kratke = Na_Disku(p);
        QVERIFY(!Stahni_Data_Tahu(z, [](const QString&, bool) {}, [] { return false; }).Ok());
        QCOMPARE(Na_Disku(p), kratke);
        z.Csv = u"http://"_qs + server.Adresa() + u"/historie.csv"_qs;
        QStringList radky;
        const Vysledek v = Stahni_Data_Tahu(z, [&](const QString& t, bool hotovo) { if (hotovo) radky << t; },
                                            [] { return false; });
        QVERIFY2(v.Ok(), qPrintable(v.Zprava));
        QCOMPARE(Na_Disku(p), pred);
        QVERIFY(radky.contains(Radek_Aktualizace(u"PÁTEK"_qs)));
        QCOMPARE(server.Pocet_Dotazu, 2); // the export is fetched once for three days
    }

    void Okno() {
        Prostredi p(QDate(2026, 11, 28));
        Server_Http server;
        server.Cesty[u"/set/sportka-streda.dbf"_qs] = {QByteArray(500, 'x')};
        frmMDITombi& ram = p.Spust();
        p.Data->Nastaveni.FTP_Adresa = server.Adresa() + u"/set"_qs;
        const int tahu = p.Data->Archiv.Pocet_Tahy_1;
        p.Prikaz(u"mnuDownload"_qs)->trigger();
        auto* okno = ram.Najdi_Okno<frmStin>();
        QVERIFY(okno != nullptr);
        QCOMPARE(okno->lstPrubeh->item(0)->text(), Radek_Spojeni);
        QVERIFY(okno->cmdOK->isEnabled() && !okno->cmdZrusit->isEnabled());
        QCOMPARE(p.Oznameni().last(), Text_Chyby_Prenosu);
        QCOMPARE(p.Data->Archiv.Pocet_Tahy_1, tahu);
    }

    void Zrusit_V_Okne() {
        Prostredi p(QDate(2026, 11, 28));
        const Archivy pred = Na_Disku(p);
        Server_Http server;
        server.Cesty[u"/set/sportka-streda.dbf"_qs] = {Tabulka_Dbf(int(Den::Streda)), Server_Http::Chovani::Pomalu};
        frmMDITombi& ram = p.Spust();
        p.Data->Nastaveni.FTP_Adresa = server.Adresa() + u"/set"_qs;
        // Zrušit pressed while the server keeps silent; the window stays open until the fetch ends.
        QTimer::singleShot(200, this, [&ram] {
            auto* okno = ram.Najdi_Okno<frmStin>();
            okno->close();
            QVERIFY(okno->isVisible());
            okno->cmdZrusit->click();
        });
        p.Prikaz(u"mnuDownload"_qs)->trigger();
        QCOMPARE(p.Oznameni().last(), Text_Zruseno);
        QCOMPARE(Na_Disku(p), pred);
        QVERIFY(ram.Najdi_Okno<frmStin>()->cmdOK->isEnabled());
    }

    void Aktualizace_V_Okne() {
        Server_Ftp server("[new]\nprogram=999\nhelp=1.1.2000\ndata_str=1.1.2000\ndata_ned=1.1.2000\n"
                          "rozpisy=1.1.2000\nuzivatele=1.1.2000\npopis=1.1.2000\n");
        Prostredi p(QDate(2026, 11, 28));
        for (const char* soubor : {"tombi.chm", "Kolovka.exe", "Tombi_Vyhodnoceni.exe", "_zmeny.txt"})
            Zapis_Souboru(p.Cesta(QString::fromLatin1(soubor)), "stary");
        frmMDITombi& ram = p.Spust();
        p.Registr->setValue(QString::fromUtf16(Nastaveni_Programu::Klic_Serveru_Aktualizace), server.Adresa);
        p.Prikaz(u"mnuWebTombiNovaVer"_qs)->trigger();
        auto* okno = ram.Najdi_Okno<frmStin>();
        QVERIFY(okno != nullptr);
        QVERIFY(okno->chkDownload[0]->isChecked() && okno->chkDownload[0]->isVisible());
        for (std::size_t i = 1; i < okno->chkDownload.size(); ++i)
            QVERIFY(!okno->chkDownload[i]->isChecked());
        QCOMPARE(okno->lblOtazka->text(), u"Provést stažení vybraných souborů ?"_qs);
        okno->cmdDownloadAno->click();
        QCOMPARE(Obsah_Souboru(p.Cesta(u"tombi_"_qs)), QByteArray("novy program"));
        QCOMPARE(p.Oznameni().last(), u"Ukončete program a spusttě  tombi_"_qs);
        QCOMPARE(okno->lstPrubeh->item(0)->checkState(), Qt::Checked);
    }

    void Prikaz_Cli() {
        // The server runs in a process of its own, since tombi-cli is waited for here.
        QTemporaryDir web;
        QDir().mkpath(web.filePath(u"set"_qs));
        Zapis_Souboru(web.filePath(u"set/sportka-streda.dbf"_qs), Tabulka_Dbf(int(Den::Streda)));
        Zapis_Souboru(web.filePath(u"set/sportka-nedele.dbf"_qs), QByteArray(100, 'x'));
        QTcpServer volny;
        QVERIFY(volny.listen(QHostAddress::LocalHost, 0));
        const QString port = QString::number(volny.serverPort());
        volny.close();
        QProcess python;
        python.setWorkingDirectory(web.path()); // the test's own may be a folder already gone
        python.start(u"/usr/bin/python3"_qs, {u"-m"_qs, u"http.server"_qs, port, u"--bind"_qs, u"127.0.0.1"_qs,
                                               u"--directory"_qs, web.path()});
        QVERIFY(python.waitForStarted());
        // Ready once it takes a connection.
        bool pripraven = false;
        for (int i = 0; i < 100 && !pripraven; ++i) {
            QTcpSocket zkouska;
            zkouska.connectToHost(QHostAddress::LocalHost, quint16(port.toInt()));
            pripraven = zkouska.waitForConnected(100);
            if (!pripraven)
                QTest::qWait(50);
        }
        QVERIFY2(pripraven, python.readAllStandardError().constData());
        QTemporaryDir data;
        const Beh b = Spust({u"download"_qs, u"--adresa"_qs, u"127.0.0.1:"_qs + port + u"/set"_qs, u"--dir"_qs, data.path()});
        python.kill();
        python.waitForFinished();
        QVERIFY2(b.Kod == 1 && !b.Radky.isEmpty(), qPrintable(b.Chyby));
        QCOMPARE(b.Radky, (QStringList{Radek_Spojeni, Radek_Streda, Radek_Aktualizace(u"STŘEDA"_qs)}));
        QVERIFY(b.Chyby.contains(Text_Chyby_Prenosu));
        QCOMPARE(Obsah_Souboru(data.filePath(u"SpS_tahy.sez"_qs)), Archiv(Den::Streda));
    }
};

QTEST_MAIN(Test_frmStin)
#include "Test_frmStin.moc"
