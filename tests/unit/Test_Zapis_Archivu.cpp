// Archive edits are never lost: two tombi-cli processes editing one archive keep every draw, a save
// killed at any step leaves the archive or its backup whole and the next start finds it, an edit
// goes through a link into the user's file with its mode, a read-only file is refused and reading
// never changes its permissions, and an archive changed by another program is taken before an edit.
#include "Bajty.h"
#include "Dialogy_Testu.h"
#include "app/modTombi.h"
#include "archive/Editor_Tahu.h"
#include "core/Tip.h"
#include "data/Soubory.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <unistd.h>

namespace {

struct Beh {
    int Kod = -1;
    bool Zabit = false;
    QString Chyby;
};

QProcess* Spust_Archiv(const QString& sez, const QStringList& dalsi, const QString& prerus = {}) {
    auto* p = new QProcess;
    if (!prerus.isEmpty()) {
        QProcessEnvironment prostredi = QProcessEnvironment::systemEnvironment();
        prostredi.insert(u"TOMBI_PRERUS_ZAPIS"_qs, prerus);
        p->setProcessEnvironment(prostredi);
    }
    p->start(QStringLiteral(TOMBI_CLI), QStringList{u"archive"_qs, sez} + dalsi);
    return p;
}

Beh Dokonci(QProcess* p) {
    p->waitForFinished(60000);
    const Beh b{p->exitCode(), p->exitStatus() == QProcess::CrashExit, QString::fromUtf8(p->readAllStandardError())};
    delete p;
    return b;
}

Beh Archiv(const QString& sez, const QStringList& dalsi, const QString& prerus = {}) {
    return Dokonci(Spust_Archiv(sez, dalsi, prerus));
}

QStringList Pridej(int rok, int tyden, int tah, const QString& cisla) {
    return {u"--pridej"_qs, QString::number(rok), QString::number(tyden), QString::number(tah), cisla};
}

// The archive of the file, or nothing when it is missing or unreadable.
std::optional<Archiv_Tahu> Nacti(const QString& adresar, const QString& soubor) {
    Archiv_Tahu a;
    if (!Nacti_Tahy(a, adresar, soubor).Ok())
        return std::nullopt;
    return a;
}

// The owner's, group's and others' bits, without those Qt adds for the user who asks.
QFileDevice::Permissions Prava(const QString& cesta) {
    return QFile::permissions(cesta) & QFileDevice::Permissions::fromInt(0x7077);
}

} // namespace

class Test_Zapis_Archivu final : public QObject {
    Q_OBJECT

private slots:
    void dva_procesy_nic_neztrati() {
        const QTemporaryDir dir;
        const QString sez = dir.filePath(u"SpN_tahy.sez"_qs);
        // Both start on a file that is not there, and both make the same new year.
        for (int tyden = 1; tyden <= 50; ++tyden) {
            QProcess* prvni = Spust_Archiv(sez, Pridej(2030, tyden, 1, u"1 2 3 4 5 6 7"_qs));
            QProcess* druhy = Spust_Archiv(sez, Pridej(2030, tyden, 2, u"11 12 13 14 15 16 17"_qs));
            QCOMPARE(Dokonci(prvni).Kod, 0);
            QCOMPARE(Dokonci(druhy).Kod, 0);
        }
        const std::optional<Archiv_Tahu> a = Nacti(dir.path(), u"SpN_tahy.sez"_qs);
        QVERIFY(a);
        QCOMPARE(a->Pocet_Let, 1);
        QCOMPARE(Spocitej_Tahy(*a), std::pair(50, 50));
        const std::optional<Archiv_Tahu> zaloha = Nacti(dir.path(), u"SpN_tahy.zal"_qs);
        QVERIFY(zaloha);
        const auto [prvnich, druhych] = Spocitej_Tahy(*zaloha);
        QCOMPARE(prvnich + druhych, 99);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), (QStringList{u"SpN_tahy.sez"_qs, u"SpN_tahy.zal"_qs}));
    }

    void preruseny_zapis_necha_archiv_nebo_zalohu() {
        for (int krok = 1; krok <= 4; ++krok) {
            const QTemporaryDir dir;
            const QString sez = dir.filePath(u"SpS_tahy.sez"_qs);
            QCOMPARE(Archiv(sez, Pridej(2026, 1, 1, u"1 2 3 4 5 6 7"_qs)).Kod, 0);
            QCOMPARE(Archiv(sez, Pridej(2026, 2, 1, u"8 9 10 11 12 13 14"_qs)).Kod, 0);
            const QByteArray stary = Obsah_Souboru(sez);
            const QByteArray stara_zaloha = Obsah_Souboru(dir.filePath(u"SpS_tahy.zal"_qs));

            QVERIFY(Archiv(sez, Pridej(2026, 3, 1, u"15 16 17 18 19 20 21"_qs), QString::number(krok)).Zabit);
            const QByteArray zive = Obsah_Souboru(sez);
            const QByteArray zaloha = Obsah_Souboru(dir.filePath(u"SpS_tahy.zal"_qs));
            QCOMPARE(zive == stary, krok < 4);
            QCOMPARE(Cti_Roky(zive).size(), std::size_t(2));
            QCOMPARE(zaloha, krok < 3 ? stara_zaloha : stary);

            // The next start clears what the cut-off save left aside, and the next edit goes through
            // the lock the killed process held.
            const Preruseny_Zapis nalez = Uklid_Po_Preruseni(dir.path(), u"SpS_tahy.sez"_qs);
            QVERIFY(!nalez.Zaloha_Bez_Archivu);
            QCOMPARE(nalez.Uklizeno.size(), krok == 2 ? 2 : krok == 4 ? 0 : 1);
            QCOMPARE(Archiv(sez, Pridej(2026, 4, 1, u"22 23 24 25 26 27 28"_qs)).Kod, 0);
            QCOMPARE(QDir(dir.path()).entryList(QDir::Files).join(u' '), u"SpS_tahy.sez SpS_tahy.zal"_qs);
        }
    }

    void start_nabidne_zalohu_za_chybejici_archiv() {
        // What an older save left after a crash between its renames: the archive gone, the backup and
        // the new content beside it.
        const QTemporaryDir dir;
        const Archiv_Tahu a = Archiv_Z_Historie(Den::Streda);
        const QByteArray obraz = Zapis_Roky(a.Pole_Tahu, a.Pocet_Let);
        Zapis_Souboru(dir.filePath(u"SpS_tahy.zal"_qs), obraz);
        Zapis_Souboru(dir.filePath(u"SpS_tahy.sez.nova"_qs), obraz);

        auto sezeni = std::make_unique<Relace>();
        Relace& relace = *sezeni;
        Dialogy_Testu dialogy;
        relace.Dialog = &dialogy;
        relace.Nastaveni.Adresare[0] = dir.path();
        dialogy.Odpovedi.enqueue(Dialogy::Odpoved::Ne);
        QVERIFY(!modTombi::Prepni_Den(relace, Den::Streda).Ok());
        QCOMPARE(dialogy.Okna.size(), 1);
        QVERIFY(dialogy.Okna[0].contains(u"Obnovit archiv ze zálohy ?"_qs));
        // Refused, nothing is touched; accepted, the archive is back and the backup stays.
        QVERIFY(QFile::exists(dir.filePath(u"SpS_tahy.sez.nova"_qs)));
        dialogy.Odpovedi.enqueue(Dialogy::Odpoved::Ano);
        QVERIFY(modTombi::Prepni_Den(relace, Den::Streda).Ok());
        QCOMPARE(relace.Archiv.Pocet_Tahy_1, a.Pocet_Tahy_1);
        QCOMPARE(Obsah_Souboru(dir.filePath(u"SpS_tahy.zal"_qs)), obraz);

        // The next start finds the archive whole and says that the leftover was removed.
        dialogy.Okna.clear();
        QVERIFY(modTombi::Prepni_Den(relace, Den::Streda).Ok());
        QCOMPARE(dialogy.Okna.size(), 1);
        QVERIFY(dialogy.Okna[0].contains(u"SpS_tahy.sez.nova"_qs));
        QVERIFY(!QFile::exists(dir.filePath(u"SpS_tahy.sez.nova"_qs)));
    }

    void odkaz_prava_a_jen_pro_cteni() {
        const QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkdir(u"data"_qs));
        const QString skutecny = dir.filePath(u"data/archiv.sez"_qs);
        const QString odkaz = dir.filePath(u"SpN_tahy.sez"_qs);
        QCOMPARE(Archiv(skutecny, Pridej(2026, 1, 1, u"1 2 3 4 5 6 7"_qs)).Kod, 0);
        const auto vlastni = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup;
        QVERIFY(QFile::setPermissions(skutecny, vlastni));
        // Root may give the file any group; any other user only one of its own, as it already has.
        const uint skupina = ::geteuid() == 0 ? 65534 : QFileInfo(skutecny).groupId();
        QCOMPARE(::chown(QFile::encodeName(skutecny).constData(), uid_t(-1), gid_t(skupina)), 0);
        QVERIFY(QFile::link(u"data/archiv.sez"_qs, odkaz));

        // The edit lands in the user's file, which keeps its mode; the link stays a link.
        QCOMPARE(Archiv(odkaz, Pridej(2026, 2, 1, u"8 9 10 11 12 13 14"_qs)).Kod, 0);
        QVERIFY(QFileInfo(odkaz).isSymLink());
        QCOMPARE(Spocitej_Tahy(*Nacti(dir.filePath(u"data"_qs), u"archiv.sez"_qs)), std::pair(2, 0));
        QCOMPARE(std::pair(Prava(skutecny), QFileInfo(skutecny).groupId()), std::pair(vlastni, skupina));
        QCOMPARE(Prava(dir.filePath(u"SpN_tahy.zal"_qs)), vlastni);

        // A file made read-only is read as it is and refused for writing, and stays read-only.
        const auto jen_cteni = QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther;
        Zapis_Souboru(dir.filePath(u"data/archiv.dny"_qs), "2026 1 1 04.01.2026\r\n");
        QVERIFY(QFile::setPermissions(skutecny, jen_cteni));
        QVERIFY(QFile::setPermissions(dir.filePath(u"data/archiv.dny"_qs), jen_cteni));
        const QByteArray pred = Obsah_Souboru(skutecny);
        QVERIFY(Nacti(dir.path(), u"SpN_tahy.sez"_qs));
        const Beh odmitnuto = Archiv(odkaz, Pridej(2026, 3, 1, u"15"_qs));
        QCOMPARE(odmitnuto.Kod, 1);
        QVERIFY2(odmitnuto.Chyby.contains(u"jen pro čtení"_qs), qPrintable(odmitnuto.Chyby));
        QCOMPARE(Obsah_Souboru(skutecny), pred);
        QCOMPARE(Prava(skutecny), jen_cteni);
        QCOMPARE(Prava(dir.filePath(u"data/archiv.dny"_qs)), jen_cteni);

        // Every other file (tips, settings, dates) is written by the same rules.
        const QString tipy = dir.filePath(u"data/tipy.tip"_qs);
        Zapis_Souboru(tipy, "stare");
        QVERIFY(QFile::setPermissions(tipy, vlastni));
        QVERIFY(QFile::link(u"data/tipy.tip"_qs, dir.filePath(u"tipy.tip"_qs)));
        QVERIFY(Uloz_Soubor(dir.filePath(u"tipy.tip"_qs), "nove").Ok());
        QVERIFY(QFileInfo(dir.filePath(u"tipy.tip"_qs)).isSymLink());
        QCOMPARE(std::pair(Obsah_Souboru(tipy), Prava(tipy)), std::pair(QByteArray("nove"), vlastni));
        QVERIFY(QFile::setPermissions(tipy, jen_cteni));
        QVERIFY(Uloz_Soubor(dir.filePath(u"tipy.tip"_qs), "jine").Zprava.contains(u"jen pro čtení"_qs));
        QCOMPARE(Obsah_Souboru(tipy), QByteArray("nove"));
    }

    void oprava_stejnych_cisel_a_prazdna_oprava() {
        const QTemporaryDir dir;
        const QString sez = dir.filePath(u"SpN_tahy.sez"_qs);
        const QString zal = dir.filePath(u"SpN_tahy.zal"_qs);
        QCOMPARE(Archiv(sez, Pridej(2025, 52, 1, u"1 2 3 4 5 6 7"_qs)).Kod, 0);
        QCOMPARE(Archiv(sez, Pridej(2025, 53, 1, u"1 2 3 4 5 6 7"_qs)).Kod, 0);
        const QByteArray archiv = Obsah_Souboru(sez);
        const QByteArray zaloha = Obsah_Souboru(zal);

        const Beh stejna = Archiv(sez, {u"--oprav"_qs, u"2025"_qs, u"53"_qs, u"1"_qs, u"2 - - - - - -"_qs});
        QCOMPARE(std::pair(stejna.Kod, stejna.Chyby), std::pair(1, u"Pozor, zadána stejná čísla !\n"_qs));
        QCOMPARE(Archiv(sez, Pridej(2025, 51, 1, u"7 7 7 7 7 7 - 7"_qs)).Kod, 2);
        QCOMPARE(Archiv(sez, Pridej(2025, 51, 1, u"7 7 7 7 7 7 -"_qs)).Kod, 1);
        // A repair to the numbers that stand writes nothing: the only backup is not rotated away.
        QCOMPARE(Archiv(sez, {u"--oprav"_qs, u"2025"_qs, u"53"_qs, u"1"_qs, u"1 2 3"_qs}).Kod, 0);
        const Beh smazani = Archiv(sez, {u"--smaz"_qs, u"2025"_qs, u"50"_qs, u"1"_qs});
        QCOMPARE(std::pair(smazani.Kod, smazani.Chyby), std::pair(1, u"Není co SMAZAT, týden či rok neexistuje.\n"_qs));
        QCOMPARE(Obsah_Souboru(sez), archiv);
        QCOMPARE(Obsah_Souboru(zal), zaloha);
    }

    void uprava_vezme_archiv_zmeneny_jinym_programem() {
        const QTemporaryDir dir;
        Archiv_Tahu okno;
        Nastav_Den_Archivu(okno, Den::Nedele);
        QVERIFY(Uprav_Archiv(okno, dir.path(), [](Archiv_Tahu& a) {
                    return Pridej_Tah(a, Prvni_Tah, 2026, 1, Cisla<Tah>({1, 2, 3, 4, 5, 6, 7}));
                }).Zapis.Ok());
        // Another program adds a draw the window does not know of; the window's edit keeps it.
        QCOMPARE(Archiv(dir.filePath(okno.Soubor_Tahu), Pridej(2026, 2, 1, u"8 9 10 11 12 13 14"_qs)).Kod, 0);
        const Zmena_Archivu z = Uprav_Archiv(okno, dir.path(), [](Archiv_Tahu& a) {
            return Pridej_Tah(a, Prvni_Tah, 2026, 3, Cisla<Tah>({15, 16, 17, 18, 19, 20, 21}));
        });
        QVERIFY(z.Zapis.Ok() && z.Uprava.Zmeneno && z.Znovu_Nacteno);
        QCOMPARE(okno.Pocet_Tahy_1, 3);
        QCOMPARE(Spocitej_Tahy(*Nacti(dir.path(), okno.Soubor_Tahu)), std::pair(3, 0));
    }
};

QTEST_GUILESS_MAIN(Test_Zapis_Archivu)
#include "Test_Zapis_Archivu.moc"
