#include "app/Vb.h"
#include "data/Nastaveni.h"
#include "data/Soubory.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <array>
#include <type_traits>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

namespace {

// A file built field by field, independently of the writer.
struct Bajty {
    QByteArray Data;

    Bajty& Cislo(uint64_t h, int bajtu) {
        for (int i = 0; i < bajtu; ++i)
            Data.append(char(uint8_t(h >> (8 * i))));
        return *this;
    }
    Bajty& U8(uint8_t h) { return Cislo(h, 1); }
    Bajty& I16(int16_t h) { return Cislo(uint16_t(h), 2); }
    Bajty& I32(int32_t h) { return Cislo(uint32_t(h), 4); }
    Bajty& Mena(int64_t h) { return Cislo(uint64_t(h), 8); }
    Bajty& Text(const QByteArray& t) {
        I16(int16_t(t.size()));
        Data.append(t);
        return *this;
    }
    Bajty& Nuly(int kolik) {
        Data.append(QByteArray(kolik, '\0'));
        return *this;
    }
};

// Fixed widths of the whole record and the number of its texts.
constexpr int Pevna_Delka = 317;
constexpr int Pocet_Textu = 25;
constexpr int Prazdny_Zaznam = Pevna_Delka + 2 * Pocet_Textu;

QByteArray Soubor(const QString& adresar) {
    QFile f(Spoj_Cestu(adresar, u"tombi.cfg"_qs));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void Zapis(const QString& adresar, const QByteArray& data) {
    QVERIFY(Uloz_Soubor(Spoj_Cestu(adresar, u"tombi.cfg"_qs), data).Ok());
}

} // namespace

class Test_Nastaveni final : public QObject {
    Q_OBJECT

private slots:
    void rozlozeni_zacatku();
    void rozlozeni_konce();
    void podivne_bajty();
    void hotovy_soubor();
    void kruhovy_zapis();
    void vypis();
    void prvni_spusteni_data();
    void prvni_spusteni();
    void presunuta_instalace_data();
    void presunuta_instalace();
    void heslo_prezije_smazani();
    void sifra_pws();
    void ulozeni_a_tisk();
    void nepovedeny_zapis();
};

void Test_Nastaveni::rozlozeni_zacatku() {
    QCOMPARE(Zapis_Nastaveni({}), QByteArray(Prazdny_Zaznam, '\0'));

    Bajty b;
    b.I16(1).I16(-2).I16(3).U8(12).I16(8);
    for (const char* adresar : {"C:\\Tombi\\", "D:\\Tipy", "", "", "",
                                "C:\\Prohl\xED\x9E"
                                "e\xE8.exe"})
        b.Text(adresar);
    b.U8(10).U8(1).I16(250).U8(1);
    b.Mena(125000).Nuly(8 * 8).Mena(-1);
    b.Nuly(3 * 8).Mena(10'000'000'000).Nuly(6 * 8);
    const int texty = 6 * 2 + 9 + 7 + 16;
    QCOMPARE(b.Data.size(), 9 + texty + 5 + 160);
    b.Text("1.43").U8(2);

    const Nastaveni_Zaznam z = Cti_Nastaveni(b.Data);
    QCOMPARE(z.Tisk_Posun_X, 1);
    QCOMPARE(z.Tisk_Posun_Y, -2);
    QCOMPARE(z.Vychozi_Tipu, 8);
    QCOMPARE(z.Adresare[0], u"C:\\Tombi\\"_qs);
    QCOMPARE(z.Adresare[5], u"C:\\Prohlížeč.exe"_qs);
    QCOMPARE(z.Pocet_Pruchodu, 250);
    QCOMPARE(z.Ceny_Nedele[0].Text(), u"12.5"_qs);
    QCOMPARE(z.Ceny_Nedele[9].Hodnota, -1);
    QCOMPARE(z.Ceny_Streda[3].Text(), u"1000000"_qs);
    QCOMPARE(z.Verze_Cfg, u"1.43"_qs);
    QCOMPARE(z.Stranka_Nastaveni, 2);
    QCOMPARE(z.Tloustka_Cary_1, 0);

    // Written back, the head is the same bytes and the missing rest becomes zero fields.
    const QByteArray zpet = Zapis_Nastaveni(z);
    QCOMPARE(zpet.left(b.Data.size()), b.Data);
    QCOMPARE(zpet.size(), Prazdny_Zaznam + 9 + 7 + 16 + 4);
}

void Test_Nastaveni::rozlozeni_konce() {
    Nastaveni_Zaznam z;
    z.Barva_Vyber = 0x01020304;
    z.Pocet_Tahu_Analyzovat = u"100"_qs;
    z.Grafika_Volba = 1;
    z.Nedavne_Tipy = u"x"_qs;
    z.Info_Tah = Vb::Pravda;
    z.Nedavne_Seznamy = u"ab"_qs;
    z.Klic_Vyberu = 3;
    Bajty konec;
    konec.I32(0x01020304).Text("100").U8(1).Text("x").I16(-1).Text("ab").U8(3);
    QCOMPARE(Zapis_Nastaveni(z).right(konec.Data.size()), konec.Data);
}

void Test_Nastaveni::podivne_bajty() {
    QCOMPARE(Cti_Nastaveni({}), Nastaveni_Zaznam{});

    // A field cut by the end keeps the bytes that are there.
    Nastaveni_Zaznam z = Cti_Nastaveni(QByteArray(1, '\x05'));
    QCOMPARE(z.Tisk_Posun_X, 5);
    z.Tisk_Posun_X = 0;
    QCOMPARE(z, Nastaveni_Zaznam{});

    Bajty b;
    b.Nuly(9).Text("").Nuly(5 * 2 + 5).Cislo(0x2710, 3);
    QCOMPARE(Cti_Nastaveni(b.Data).Ceny_Nedele[0].Hodnota, 10000);

    // A negative length is an empty text; the next field follows the length at once.
    Bajty zaporna;
    zaporna.Nuly(9).I16(-1).Text("abc");
    z = Cti_Nastaveni(zaporna.Data);
    QCOMPARE(z.Adresare[0], QString());
    QCOMPARE(z.Adresare[1], u"abc"_qs);

    // A length past the end takes what is left, and nothing after it.
    Bajty dlouha;
    dlouha.Nuly(9).I16(32767).Data.append("C:\\T");
    z = Cti_Nastaveni(dlouha.Data);
    QCOMPARE(z.Adresare[0], u"C:\\T"_qs);
    z.Adresare[0].clear();
    QCOMPARE(z, Nastaveni_Zaznam{});

    // Every byte value of a text survives a read and a write.
    QByteArray vsechny;
    for (int i = 0; i < 256; ++i)
        vsechny.append(char(i));
    Bajty text;
    text.Nuly(9).Text(vsechny);
    QCOMPARE(Zapis_Nastaveni(Cti_Nastaveni(text.Data)).left(text.Data.size()), text.Data);
}

void Test_Nastaveni::hotovy_soubor() {
    // A whole file made by a separate tool: fields all along the record must land where they belong.
    QFile f(QStringLiteral(TOMBI_TEST_DATA "/korpus/Cfg/dobry_1.43.cfg"));
    QVERIFY(f.open(QIODevice::ReadOnly));
    const QByteArray data = f.readAll();
    const Nastaveni_Zaznam z = Cti_Nastaveni(data);
    QCOMPARE(z.Adresare[5], u"C:\\Program Files\\Prohlížeč\\p.exe"_qs);
    QCOMPARE(z.Ceny_Nedele[5].Text(), u"150"_qs);
    QCOMPARE(z.Verze_Cfg, u"1.43"_qs);
    QCOMPARE(z.Heslo, u"K7pQz"_qs);
    QCOMPARE(z.Je_Heslo, Vb::Pravda);
    QCOMPARE(z.Zrus_Tip_Sous_Cis[3], 2);
    QCOMPARE(z.Pismo_Tucne_1, Vb::Pravda);
    QCOMPARE(z.Okno_Sirka, 9600);
    QCOMPARE(z.Nedavne_Tipy, u"C:\\Tombi\\Tipy\\nedele.tip|C:\\Tombi\\Tipy\\středa.tip"_qs);
    QCOMPARE(z.Klic_Vyberu, 3);
    QCOMPARE(Zapis_Nastaveni(z), data);
}

void Test_Nastaveni::kruhovy_zapis() {
    // Every field gets its own value, so that two fields swapped between reader and writer show.
    Nastaveni_Zaznam z;
    int n = 0;
    const auto napln = [&n](auto& hodnota, auto&& napln) -> void {
        using T = std::remove_cvref_t<decltype(hodnota)>;
        ++n;
        if constexpr (std::is_same_v<T, QString>)
            hodnota = u"Žluťoučký "_qs + QString::number(n);
        else if constexpr (std::is_same_v<T, Vb::Mena>)
            hodnota = Vb::Mena::Z_Hodnoty(-int64_t(n) * 1'000'000'007);
        else if constexpr (std::is_same_v<T, uint8_t>)
            hodnota = uint8_t(200 + n);
        else if constexpr (std::is_integral_v<T>)
            hodnota = T(-n * 1001);
        else
            for (auto& prvek : hodnota)
                napln(prvek, napln);
    };
    Projdi_Pole(z, [&](QStringView, auto& pole) { napln(pole, napln); });

    const QByteArray data = Zapis_Nastaveni(z);
    QCOMPARE(Cti_Nastaveni(data), z);
    QCOMPARE(Zapis_Nastaveni(Cti_Nastaveni(data)), data);
    // A trailing tail, as the old writer left behind, is ignored.
    QCOMPARE(Cti_Nastaveni(data + QByteArray(50, '\x7F')), z);
}

void Test_Nastaveni::vypis() {
    // The fields in file order; a count in brackets is an array of that many elements.
    const QString tabulka =
        u"Tisk_Posun_X Tisk_Posun_Y Tisk_Posun_Z Cena_Jednoho_Tipu Vychozi_Tipu Adresare[6] Cena_Sance "
        "Auto_Oprava Pocet_Pruchodu Opakovat_Volba Ceny_Nedele[10] Ceny_Streda[10] Verze_Cfg Stranka_Nastaveni "
        "Tloustka_Cary_1 Tloustka_Cary_2 Bez_Pozadi Barva_Pozadi Barva_Zasahu Barva_Krizku_1 Barva_Krizku_2 "
        "Vlastni_Pozadi Obrazek_Pozadi Heslo Je_Heslo Odecist_Tahy Od_Do_1Tah_Str Od_Do_2Tah_Str Od_Do_1Tah_Ned "
        "Od_Do_2Tah_Ned Smazat_Dbf FTP_Adresa FTP_Data1 FTP_Data2 Zaloha_Tahu Prepocitat_Hodnoty "
        "Zmena_Cisla_Tiketu Zapis_Analyzy Zapis_Tahu[3] Spojovat_Soubor Otevirat_Soubor Pamatovat_Okno "
        "Okno_Analyz[4] Vyloucit_Sud_Lich[7] Zrus_Tip_Sous_Cis[8] Max_Ve_Sloupci Cislo_V_Tipu Auto_Analyza[10] "
        "Pismo_Barva_1 Pismo_Jmeno_1 Pismo_Velikost_1 Pismo_Tucne_1 Pismo_Barva_2 Pismo_Jmeno_2 "
        "Pismo_Velikost_2 Pismo_Tucne_2 Okno_Horni Okno_Leva Okno_Vyska Okno_Sirka Barvy_Prubehu_1[3] "
        "Barvy_Prubehu_2[3] Styl_Prubehu Pocet_Sloupcu_Tisk Barva_Vyber Pocet_Tahu_Analyzovat Grafika_Volba "
        "Nedavne_Tipy Info_Tah Nedavne_Seznamy Klic_Vyberu"_qs;
    QStringList jmena;
    for (const QString& pole : tabulka.split(u' ')) {
        const int pocet = pole.contains(u'[') ? pole.section(u'[', 1).chopped(1).toInt() : 0;
        if (pocet == 0)
            jmena.append(pole);
        for (int i = 0; i < pocet; ++i)
            jmena.append(pole.section(u'[', 0, 0) + u'[' + QString::number(i) + u']');
    }

    Nastaveni_Zaznam z = Vychozi_Nastaveni(u"/opt/tombi"_qs, u"1.43"_qs);
    z.Ceny_Nedele[0] = Vb::Mena::Z_Korun(12.5);
    z.Adresare[5] = u"C:\\Prohlížeč.exe"_qs;
    const QStringList radky = Vypis_Nastaveni(z);
    QStringList nalezena;
    for (const QString& radek : radky)
        nalezena.append(radek.section(u" = "_qs, 0, 0));
    QCOMPARE(nalezena, jmena);

    for (const auto* radek : {u"Cena_Jednoho_Tipu = 12", u"Tisk_Posun_X = 0", u"Ceny_Nedele[0] = 12.5",
                              u"Adresare[5] = C:\\Prohlížeč.exe", u"Zapis_Tahu[0] = -1", u"Barva_Zasahu = 12632319"})
        QVERIFY2(radky.contains(QStringView(radek).toString()), qPrintable(QStringView(radek).toString()));
}

void Test_Nastaveni::prvni_spusteni_data() {
    QTest::addColumn<QByteArray>("soubor");
    QTest::newRow("chybí") << QByteArray();
    QTest::newRow("prázdný") << QByteArray("");
    Nastaveni_Zaznam stary;
    stary.Vychozi_Tipu = 99;
    stary.Cena_Jednoho_Tipu = 20;
    stary.Ceny_Nedele[0] = Vb::Mena::Z_Korun(1000);
    stary.Verze_Cfg = u"1.29"_qs;
    QTest::newRow("verze 1.29") << Zapis_Nastaveni(stary);
    stary.Verze_Cfg = u"verze 2"_qs;
    QTest::newRow("nesmyslná verze") << Zapis_Nastaveni(stary);
}

void Test_Nastaveni::prvni_spusteni() {
    QFETCH(QByteArray, soubor);
    QTemporaryDir adresar;
    QSettings registr(adresar.filePath(u"registr.ini"_qs), QSettings::IniFormat);
    const QString program = adresar.path();
    if (!soubor.isNull())
        Zapis(program, soubor);

    Nastaveni_Zaznam z;
    z.Vychozi_Tipu = 77; // whatever was in memory goes
    QVERIFY(Nacti_Nastaveni(z, program, u"1.43"_qs, registr).Ok());

    QCOMPARE(z.Verze_Cfg, u"1.43"_qs);
    QCOMPARE(z.Vychozi_Tipu, 8);
    QCOMPARE(z.Pocet_Pruchodu, 250);
    QCOMPARE(z.Ceny_Nedele[0].Hodnota, 0);
    QCOMPARE(z.Barva_Zasahu, 0xC0C0FF);
    QCOMPARE(z.FTP_Adresa, u"www.sazka.cz/set/generated_vysledky"_qs);
    QCOMPARE(z.Pismo_Jmeno_2, u"8"_qs);
    QCOMPARE(z.Info_Tah, Vb::Pravda);
    QCOMPARE(z.Je_Heslo, Vb::Nepravda);
    QCOMPARE(z.Heslo, QString());
    for (int i = 0; i <= 4; ++i)
        QCOMPARE(z.Adresare[i], program + u'/');
    QCOMPARE(z.Adresare[5], QString());
    // The first run writes the record at once.
    QCOMPARE(Soubor(program), Zapis_Nastaveni(z));
}

void Test_Nastaveni::presunuta_instalace_data() {
    QTest::addColumn<QString>("adresar_0");
    QTest::addColumn<bool>("presunuto");
    QTest::newRow("jinde") << u"C:\\Tombi\\"_qs << true;
    QTest::newRow("tentýž s lomítkem") << u"%1/"_qs << false;
    QTest::newRow("tentýž bez lomítka") << u"%1"_qs << false;
    QTest::newRow("tentýž jinak zapsaný") << u"%1/./"_qs << false;
}

void Test_Nastaveni::presunuta_instalace() {
    QFETCH(QString, adresar_0);
    QFETCH(bool, presunuto);
    QTemporaryDir adresar;
    QSettings registr(adresar.filePath(u"registr.ini"_qs), QSettings::IniFormat);
    const QString program = adresar.path();

    Nastaveni_Zaznam ulozeny;
    ulozeny.Verze_Cfg = u"1.43"_qs;
    ulozeny.Vychozi_Tipu = 99;
    ulozeny.Adresare = {adresar_0.contains(u"%1"_qs) ? adresar_0.arg(program) : adresar_0,
                        u"D:\\Tipy\\"_qs,
                        u"D:\\Seznamy\\"_qs,
                        u"D:\\Analyzy\\"_qs,
                        u"x"_qs,
                        u"C:\\Program Files\\prohlizec.exe"_qs};
    ulozeny.Zrus_Tip_Sous_Cis = {2, 2, 1, 3, 0, 2, 255, 1};
    Zapis(program, Zapis_Nastaveni(ulozeny));

    Nastaveni_Zaznam z;
    QVERIFY(Nacti_Nastaveni(z, program, u"1.50"_qs, registr).Ok());
    QCOMPARE(z.Vychozi_Tipu, 99);
    QCOMPARE(z.Verze_Cfg, u"1.43"_qs);
    for (int i = 0; i <= 4; ++i)
        QCOMPARE(z.Adresare[i], presunuto ? program + u'/' : ulozeny.Adresare[i]);
    QCOMPARE(z.Adresare[5], ulozeny.Adresare[5]);
    // Greyed boxes (2 or more) of the neighbour filters come back unticked; element 0 stays as stored.
    const std::array<uint8_t, 8> zrus = {2, 0, 1, 0, 0, 0, 0, 1};
    QCOMPARE(z.Zrus_Tip_Sous_Cis, zrus);
}

void Test_Nastaveni::heslo_prezije_smazani() {
    QTemporaryDir adresar;
    QSettings registr(adresar.filePath(u"registr.ini"_qs), QSettings::IniFormat);
    const QString program = adresar.path();
    const QString cfg = Spoj_Cestu(program, u"tombi.cfg"_qs);

    Nastaveni_Zaznam z;
    QVERIFY(Nacti_Nastaveni(z, program, u"1.43"_qs, registr).Ok());
    z.Heslo = u"Qx7-ab"_qs;
    z.Je_Heslo = Vb::Pravda;
    QVERIFY(Uloz_Nastaveni(z, registr).Ok());
    const QString pws = registr.value(Klic_Pws).toString();
    QVERIFY(!pws.isEmpty());
    QVERIFY(!pws.endsWith(z.Heslo));

    QVERIFY(QFile::remove(cfg));
    Nastaveni_Zaznam znovu;
    QVERIFY(Nacti_Nastaveni(znovu, program, u"1.43"_qs, registr).Ok());
    QCOMPARE(znovu.Heslo, u"Qx7-ab"_qs);
    QCOMPARE(znovu.Je_Heslo, Vb::Pravda);

    // Taking the password off empties Pws, and a lost file then starts unlocked.
    znovu.Heslo.clear();
    znovu.Je_Heslo = Vb::Nepravda;
    QVERIFY(Uloz_Nastaveni(znovu, registr).Ok());
    QCOMPARE(registr.value(Klic_Pws).toString(), QString());
    QVERIFY(QFile::remove(cfg));
    QVERIFY(Nacti_Nastaveni(znovu, program, u"1.43"_qs, registr).Ok());
    QCOMPARE(znovu.Je_Heslo, Vb::Nepravda);
    QCOMPARE(znovu.Heslo, QString());
}

void Test_Nastaveni::sifra_pws() {
    for (const QString& heslo : {QString(), u"Heslo123"_qs, u"ab-c d!ž"_qs}) {
        const QString pws = Zasifruj_Pws(heslo);
        QCOMPARE(pws.size(), heslo.size() + 2);
        QCOMPARE(Desifruj_Pws(pws), heslo);
        // The cipher keeps state between calls; a second call must not depend on it.
        QCOMPARE(Zasifruj_Pws(heslo), pws);
    }
    QVERIFY(Zasifruj_Pws(u"aaaa"_qs).mid(2) != u"aaaa"_qs);
    QCOMPARE(Desifruj_Pws(u"x"_qs), QString());
}

void Test_Nastaveni::ulozeni_a_tisk() {
    QTemporaryDir program;
    QTemporaryDir data;
    QSettings registr(program.filePath(u"registr.ini"_qs), QSettings::IniFormat);
    Nastaveni_Zaznam z;
    z.Verze_Cfg = u"1.43"_qs;
    z.Adresare[0] = data.path() + u'/';
    QVERIFY(Nastav_Tisk(z, 5, -7, 1, registr).Ok());

    // The record goes to the data directory, not beside the program.
    QVERIFY(!QFile::exists(program.filePath(u"tombi.cfg"_qs)));
    const Nastaveni_Zaznam ulozeny = Cti_Nastaveni(Soubor(data.path()));
    QCOMPARE(ulozeny.Tisk_Posun_X, 5);
    QCOMPARE(ulozeny.Tisk_Posun_Y, -7);
    QCOMPARE(ulozeny.Tisk_Posun_Z, 1);
    QCOMPARE(ulozeny.Info_Tah, Vb::Pravda);
    QCOMPARE(ulozeny, z);
}

void Test_Nastaveni::nepovedeny_zapis() {
#ifdef Q_OS_UNIX
    QTemporaryDir adresar;
    QSettings registr(adresar.filePath(u"registr.ini"_qs), QSettings::IniFormat);
    Nastaveni_Zaznam z;
    QVERIFY(Nacti_Nastaveni(z, adresar.path(), u"1.43"_qs, registr).Ok());
    const QByteArray stary = Soubor(adresar.path());
    QVERIFY(!stary.isEmpty());

    // A file size limit below the record makes the write fail halfway, even for root.
    rlimit puvodni{};
    QVERIFY(getrlimit(RLIMIT_FSIZE, &puvodni) == 0);
    rlimit mala = puvodni;
    mala.rlim_cur = 100;
    const auto signal_predtim = std::signal(SIGXFSZ, SIG_IGN);
    QVERIFY(setrlimit(RLIMIT_FSIZE, &mala) == 0);
    z.Vychozi_Tipu = 42;
    const Vysledek v = Uloz_Nastaveni(z, registr);
    setrlimit(RLIMIT_FSIZE, &puvodni);
    std::signal(SIGXFSZ, signal_predtim);

    QVERIFY(!v.Ok());
    QVERIFY(v.Zprava.contains(u"tombi.cfg"_qs));
    QCOMPARE(Soubor(adresar.path()), stary);
#else
    QSKIP("needs a file size limit");
#endif
}

QTEST_GUILESS_MAIN(Test_Nastaveni)
#include "Test_Nastaveni.moc"
