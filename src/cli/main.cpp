// tombi-cli: the headless companion of Tombi. It works on the same engine as the program and
// prints plain UTF-8 lines, so archives, tip files and settings can be checked and built in
// scripts, and the build can make the archives it ships.
//
// Exit codes: 0 success, 1 bad input (the Czech message goes to stderr), 2 usage error.

#include "data/Archiv_Tahu.h"
#include "generator/Generator.h"
#include "generator/Vyber_Cisel.h"
#include "data/Nastaveni.h"
#include "data/Soubor_Tipu.h"
#include "data/Soubory.h"
#include "net/Import_Tahu.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QStringList>

#include <csignal>
#include <cstdio>
#include <memory>
#include <optional>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int Uspech = 0;
constexpr int Chybny_Vstup = 1;
constexpr int Chybne_Pouziti = 2;

const char* const Pouziti =
    "Použití:\n"
    "  tombi-cli import --dbf SOUBOR --out SOUBOR.sez\n"
    "  tombi-cli import --csv SOUBOR --den streda|nedele --out SOUBOR.sez\n"
    "  tombi-cli archive SOUBOR.sez [--list 1|2]\n"
    "  tombi-cli tips SOUBOR.tip\n"
    "  tombi-cli tips --convert SOUBOR.tip\n"
    "  tombi-cli cfg SOUBOR\n"
    "  tombi-cli generate --tipy N [--tikety M] [--tutovky A,B,C] [--pouzit SEZNAM | --vynechat SEZNAM]\n"
    "      [--rsk S,R,K] [--treti N] [--ceny ARCHIV.sez] [--dekada N] [--neopakovat] [--sudlich S,L,R]\n"
    "      [--dvojice N] [--trojice N] [--suma OD,DO] [--rozsah MIN,MAX] [--prunik N]\n"
    "      [--pruchodu N] [--auto-oprava] [--opakovat 0|1] [--seminko S] [--cas SEKUNDY] --out SOUBOR.tip\n";

// Paths that Qt reaches through /proc/self/fd, with the names the user gave (see Cesta_Argumentu).
QList<std::pair<QString, QString>>& Nahradni_Cesty() {
    static QList<std::pair<QString, QString>> cesty;
    return cesty;
}

// Paths that can be read at most: no file can be written under their name.
QStringList& Jen_Ke_Cteni() {
    static QStringList cesty;
    return cesty;
}

// Qt names files in UTF-8 and turns any other byte into U+FFFD, so a name from a Latin-1 or
// CP1250 file system would not open by its text. Such a path is reached through /proc/self/fd:
// its folder, or the file itself when its own name is the odd one, is opened by the raw bytes,
// and Qt goes through the link of that descriptor.
QString Cesta_Argumentu(const char* argument) {
    const QByteArray bajty(argument);
    const QString cesta = QFile::decodeName(bajty);
    if (QFile::encodeName(cesta) == bajty)
        return cesta;
    const qsizetype lomitko = bajty.lastIndexOf('/');
    const QByteArray slozka = lomitko < 0 ? QByteArray(".") : lomitko == 0 ? QByteArray("/") : bajty.left(lomitko);
    const QByteArray jmeno = bajty.mid(lomitko + 1);
    const QString jmeno_qt = QFile::decodeName(jmeno);
    QString nahradni;
    if (QFile::encodeName(jmeno_qt) == jmeno) {
        if (const int d = ::open(slozka.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC); d >= 0)
            nahradni = u"/proc/self/fd/%1/"_qs.arg(d) + jmeno_qt;
    } else {
        // A file reached by its own descriptor can be read, but nothing can be written beside it;
        // a new file of such a name cannot even be named.
        if (const int f = ::open(bajty.constData(), O_PATH | O_CLOEXEC); f >= 0) {
            nahradni = u"/proc/self/fd/%1"_qs.arg(f);
            // Messages that name the file alone name it by the descriptor's number.
            Nahradni_Cesty().append({u"\""_qs + QString::number(f) + u'"', u'"' + jmeno_qt + u'"'});
        }
        Jen_Ke_Cteni() << (nahradni.isEmpty() ? cesta : nahradni);
    }
    if (nahradni.isEmpty())
        return cesta;
    Nahradni_Cesty().prepend({nahradni, cesta});
    return nahradni;
}

QString Zobrazeni(QString text) {
    for (const auto& [nahradni, puvodni] : Nahradni_Cesty())
        text.replace(nahradni, puvodni);
    return text;
}

void Vypis(const QString& radek) {
    const QByteArray b = radek.toUtf8();
    std::fwrite(b.constData(), 1, size_t(b.size()), stdout);
    std::fputc('\n', stdout);
}

int Chyba(const QString& zprava) {
    const QByteArray b = Zobrazeni(zprava).toUtf8();
    std::fwrite(b.constData(), 1, size_t(b.size()), stderr);
    std::fputc('\n', stderr);
    return Chybny_Vstup;
}

int Nelze_Zapsat_Do(const QString& cesta) {
    return Chyba(u"Jméno souboru \""_qs + cesta +
                 u"\" není v kódování UTF-8 a tombi-cli do takového souboru zapisovat neumí. Přejmenujte ho, prosím."_qs);
}

int Spatne_Pouziti(const QString& co) {
    if (!co.isEmpty())
        Chyba(co);
    std::fputs(Pouziti, stderr);
    return Chybne_Pouziti;
}

// Options of the form "--name value" after the command; anything else is a positional argument.
struct Argumenty {
    QStringList Pozicni;
    QList<std::pair<QString, QString>> Volby;
    QStringList Prepinace; // options without a value
    QString Chyba;

    std::optional<QString> Volba(const QString& jmeno) const {
        for (const auto& [k, v] : Volby)
            if (k == jmeno)
                return v;
        return std::nullopt;
    }
};

Argumenty Rozeber(const QStringList& args, const QStringList& s_hodnotou, const QStringList& bez_hodnoty) {
    Argumenty a;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& x = args[i];
        if (!x.startsWith(u"--")) {
            a.Pozicni << x;
        } else if (bez_hodnoty.contains(x)) {
            a.Prepinace << x;
        } else if (s_hodnotou.contains(x) && i + 1 < args.size()) {
            a.Volby.append({x, args[++i]});
        } else {
            a.Chyba = u"Neznámá nebo neúplná volba \""_qs + x + u"\"."_qs;
        }
    }
    return a;
}

QString Radek_Archivu(const Archiv_Tahu& archiv) {
    const auto [tahy1, tahy2] = Spocitej_Tahy(archiv);
    return u"let %1 tahy1 %2 tahy2 %3"_qs.arg(archiv.Pocet_Let).arg(tahy1).arg(tahy2);
}

int Import(const QStringList& args) {
    const Argumenty a = Rozeber(args, {u"--dbf"_qs, u"--csv"_qs, u"--den"_qs, u"--out"_qs}, {});
    if (!a.Chyba.isEmpty() || !a.Pozicni.isEmpty())
        return Spatne_Pouziti(a.Chyba);
    const auto dbf = a.Volba(u"--dbf"_qs);
    const auto csv = a.Volba(u"--csv"_qs);
    const auto den = a.Volba(u"--den"_qs);
    const auto vystup = a.Volba(u"--out"_qs);
    if (!vystup || dbf.has_value() == csv.has_value() || (csv && !den) || (dbf && den))
        return Spatne_Pouziti({});
    std::optional<Den> den_tahu;
    if (den == u"streda")
        den_tahu = Den::Streda;
    else if (den == u"nedele")
        den_tahu = Den::Nedele;
    else if (csv)
        return Spatne_Pouziti(u"Den musí být \"streda\" nebo \"nedele\"."_qs);

    if (Jen_Ke_Cteni().contains(*vystup))
        return Nelze_Zapsat_Do(*vystup);
    const QString zdroj = dbf ? *dbf : *csv;
    const Nacteny_Soubor nacteny = Nacti_Soubor(zdroj, Nejvic_Zdroje_Tahu);
    if (!nacteny.Ok())
        return Chyba(nacteny.Zprava(zdroj));
    const Import_Vysledek vysledek = dbf ? Importuj_Dbf(nacteny.Data) : Importuj_Csv(nacteny.Data, *den_tahu);
    if (!vysledek.Stav.Ok())
        return Chyba(vysledek.Stav.Zprava);
    if (vysledek.Pocet_Let() == 0) {
        // A CSV source is named as it is; a dBase one as the program has always named it.
        const QFileInfo info(zdroj);
        return Chyba(csv ? Text_Chybneho_Zdroje(info.fileName(), true)
                         : Text_Chybneho_Zdroje(info.completeBaseName() + u".dbf"_qs, false));
    }

    Archiv_Tahu archiv;
    archiv.Pole_Tahu = vysledek.Roky;
    archiv.Pocet_Let = vysledek.Pocet_Let();
    const QFileInfo cil(*vystup);
    const Vysledek zapis = Uloz_Tahy(archiv, cil.absolutePath(), cil.fileName());
    if (!zapis.Ok())
        return Chyba(zapis.Zprava);
    Vypis(Radek_Archivu(archiv));
    return Uspech;
}

int Archiv(const QStringList& args) {
    const Argumenty a = Rozeber(args, {u"--list"_qs}, {});
    if (!a.Chyba.isEmpty() || a.Pozicni.size() != 1)
        return Spatne_Pouziti(a.Chyba);
    const auto seznam = a.Volba(u"--list"_qs);
    if (seznam && seznam != u"1" && seznam != u"2")
        return Spatne_Pouziti(u"Seznam tahů je 1 nebo 2."_qs);

    const QFileInfo soubor(a.Pozicni.front());
    Archiv_Tahu archiv;
    const Vysledek nacteni = Nacti_Tahy(archiv, soubor.absolutePath(), soubor.fileName());
    if (!nacteni.Ok())
        return Chyba(nacteni.Zprava);
    Vypis(Radek_Archivu(archiv));
    if (!seznam)
        return Uspech;

    Priprav_Seznamy_Tahu(archiv);
    const bool prvni = seznam == u"1";
    const std::vector<Tah>& tahy = prvni ? archiv.Tahy_1 : archiv.Tahy_2;
    const int pocet = prvni ? archiv.Pocet_Tahy_1 : archiv.Pocet_Tahy_2;
    for (int i = 1; i <= pocet; ++i) {
        QString radek = QString::number(i);
        for (uint8_t cislo : tahy[size_t(i)])
            radek += u' ' + QString::number(cislo);
        Vypis(radek);
    }
    return Uspech;
}

int Tipy(const QStringList& args) {
    const Argumenty a = Rozeber(args, {}, {u"--convert"_qs});
    if (!a.Chyba.isEmpty() || a.Pozicni.size() != 1)
        return Spatne_Pouziti(a.Chyba);
    const QString cesta = a.Pozicni.front();
    Stav_Tipu stav;

    if (a.Prepinace.contains(u"--convert")) {
        if (Jen_Ke_Cteni().contains(cesta))
            return Nelze_Zapsat_Do(cesta);
        const Vysledek konverze = Konvertuj_Soubor_Tipu(stav, cesta);
        if (!konverze.Ok())
            return Chyba(konverze.Zprava);
        Vypis(Text_Konverze_Hotova);
        return Uspech;
    }

    const Vysledek nacteni = Nacti_Soubor_Tipu(stav, cesta);
    if (!nacteni.Ok())
        return Chyba(nacteni.Zprava);
    const Zaznam_Tipu& z = stav.Soubor_Tipu;
    Vypis(u"tikety %1 tipy %2 seznam %3"_qs.arg(z.Pocet_Tiketu).arg(z.Pocet_Tipu).arg(z.Seznam_Soubor));
    const int tiketu = std::min<int>(z.Pocet_Tiketu, Max_Tiketu);
    for (int t = 1; t <= tiketu; ++t) {
        const Tiket& tiket = z.Tikety[t];
        for (int s = 1; s <= Sloupcu_Tiketu; ++s) {
            const Tip& tip = tiket.Cisla[s];
            if (tip[1] == 0)
                continue;
            QString radek = u"%1 %2 %3"_qs.arg(t).arg(tiket.Cislo_Tiketu).arg(s);
            for (uint8_t cislo : tip)
                radek += u' ' + QString::number(cislo);
            Vypis(radek);
        }
    }
    return Uspech;
}

int Nastaveni(const QStringList& args) {
    if (args.size() != 1 || args.front().startsWith(u"--"))
        return Spatne_Pouziti({});
    const Nacteny_Soubor nacteny = Nacti_Soubor(args.front(), Nejvic_Nastaveni);
    if (!nacteny.Ok())
        return Chyba(nacteny.Zprava(args.front()));
    for (const QString& radek : Vypis_Nastaveni(Cti_Nastaveni(nacteny.Data)))
        Vypis(radek);
    return Uspech;
}


// ---- generate ----

volatile std::sig_atomic_t Preruseno = 0;

// Whole numbers separated by commas, each within od..do_; nothing when one is not.
std::optional<QList<int>> Cisla_Volby(const QString& text, int pocet_od, int pocet_do, int od, int do_) {
    QList<int> cisla;
    for (const QString& cast : text.split(u',')) {
        bool ok = false;
        const int n = cast.trimmed().toInt(&ok);
        if (!ok || n < od || n > do_)
            return std::nullopt;
        cisla << n;
    }
    if (cisla.size() < pocet_od || cisla.size() > pocet_do)
        return std::nullopt;
    return cisla;
}

int Generovani(const QStringList& args) {
    const QStringList s_hodnotou{u"--tipy"_qs,    u"--tikety"_qs,   u"--tutovky"_qs, u"--pouzit"_qs,  u"--vynechat"_qs,
                                 u"--rsk"_qs,     u"--treti"_qs,    u"--ceny"_qs,    u"--dekada"_qs,  u"--sudlich"_qs,
                                 u"--dvojice"_qs, u"--trojice"_qs,  u"--suma"_qs,    u"--rozsah"_qs,  u"--prunik"_qs,
                                 u"--pruchodu"_qs, u"--opakovat"_qs, u"--seminko"_qs, u"--cas"_qs,    u"--out"_qs};
    const Argumenty a = Rozeber(args, s_hodnotou, {u"--neopakovat"_qs, u"--auto-oprava"_qs});
    if (!a.Chyba.isEmpty() || !a.Pozicni.isEmpty())
        return Spatne_Pouziti(a.Chyba);
    const auto tipy = a.Volba(u"--tipy"_qs);
    const auto vystup = a.Volba(u"--out"_qs);
    if (!tipy || !vystup)
        return Spatne_Pouziti(u"Chybí --tipy nebo --out."_qs);
    if (a.Volba(u"--pouzit"_qs) && a.Volba(u"--vynechat"_qs))
        return Spatne_Pouziti(u"Volby --pouzit a --vynechat nelze použít zároveň."_qs);

    QString spatna;
    // One option's numbers, or nothing with the option named as wrong.
    const auto cisla = [&](const QString& volba, int pocet_od, int pocet_do, int od, int do_) -> QList<int> {
        const auto hodnota = a.Volba(volba);
        if (!hodnota)
            return {};
        const auto c = Cisla_Volby(*hodnota, pocet_od, pocet_do, od, do_);
        if (!c) {
            if (spatna.isEmpty())
                spatna = volba;
            return {};
        }
        return *c;
    };
    Zadani_Generatoru z;
    z.Pocet_Tipu = cisla(u"--tipy"_qs, 1, 1, 1, Max_Tiketu * Sloupcu_Tiketu).value(0);
    z.Pocet_Tiketu = a.Volba(u"--tikety"_qs) ? cisla(u"--tikety"_qs, 1, 1, 1, Max_Tiketu).value(0)
                                             : Tiketu_Pro_Tipy(z.Pocet_Tipu);
    const QList<int> tutovky = cisla(u"--tutovky"_qs, 1, 3, 1, 49);
    z.Tutovky.assign(tutovky.begin(), tutovky.end());
    // The pool as the window makes it: the list of "Použít" or "Vynechat", then Priprav_Okruh.
    Vyber_Cisel vyber;
    Boxy_Tutovek boxy{};
    for (std::size_t i = 0; i < z.Tutovky.size(); ++i)
        boxy[i] = uint8_t(z.Tutovky[i]);
    for (const QString& volba : {u"--pouzit"_qs, u"--vynechat"_qs})
        if (a.Volba(volba)) {
            const bool pouzit = volba == u"--pouzit";
            vyber.Pouzit_Vybrana = pouzit;
            vyber.Vynechat_Vybrana = !pouzit;
            vyber.Volba_Vybrana = pouzit ? 1 : 2;
            QList<int> seznam = cisla(volba, 1, 49, 1, 49);
            std::sort(seznam.begin(), seznam.end());
            if (std::adjacent_find(seznam.begin(), seznam.end()) != seznam.end() && spatna.isEmpty())
                spatna = volba;
            for (const int n : seznam)
                Seznam_V_Platnosti(vyber)[++Pocet_V_Platnosti(vyber)] = uint8_t(n);
            z.Vyber = pouzit ? Vyber_Okruhu::Pouzit_Vybrana : Vyber_Okruhu::Vynechat_Vybrana;
        }
    // A filter is on when its option is given; its limits come from the option.
    const auto filtr = [&](int index, const QString& volba, int pocet, int od, int do_) -> QList<int> {
        if (!a.Volba(volba))
            return {};
        z.Check1[std::size_t(index)] = true;
        return cisla(volba, pocet, pocet, od, do_);
    };
    if (const QList<int> c = filtr(0, u"--rsk"_qs, 3, 0, 255); c.size() == 3)
        z.Omezeni = {double(c[0]), double(c[1]), double(c[2])};
    if (const QList<int> c = filtr(1, u"--treti"_qs, 1, 0, 255); !c.isEmpty())
        z.Max_Tretich_Cen = c[0];
    if (const QList<int> c = filtr(3, u"--dekada"_qs, 1, 0, 255); !c.isEmpty())
        z.Limit_Dekada = c[0];
    if (const QList<int> c = filtr(5, u"--sudlich"_qs, 3, 0, 6); c.size() == 3) {
        z.Sudych = c[0];
        z.Lichych = c[1];
        z.Rozptyl = c[2];
    }
    if (const QList<int> c = filtr(6, u"--dvojice"_qs, 1, 0, 255); !c.isEmpty())
        z.Max_Dvojic = c[0];
    if (const QList<int> c = filtr(7, u"--trojice"_qs, 1, 0, 255); !c.isEmpty())
        z.Max_Trojic = c[0];
    if (const QList<int> c = filtr(8, u"--suma"_qs, 2, 0, 999); c.size() == 2)
        z.Suma = {double(c[0]), double(c[1])};
    if (const QList<int> c = filtr(9, u"--rozsah"_qs, 2, 1, 49); c.size() == 2)
        z.Rozsah = {double(c[0]), double(c[1])};
    if (const QList<int> c = filtr(10, u"--prunik"_qs, 1, 0, 255); !c.isEmpty())
        z.Prunik = c[0];
    z.Check1[4] = a.Prepinace.contains(u"--neopakovat");
    z.Auto_Oprava = a.Prepinace.contains(u"--auto-oprava") ? 1 : 0;
    if (a.Volba(u"--pruchodu"_qs))
        z.Pocet_Pruchodu = cisla(u"--pruchodu"_qs, 1, 1, 0, 32767).value(0);
    if (a.Volba(u"--opakovat"_qs))
        z.Opakovat_Volba = cisla(u"--opakovat"_qs, 1, 1, 0, 1).value(0);
    if (const auto seminko = a.Volba(u"--seminko"_qs)) {
        bool ok = false;
        z.Seminko = seminko->toULongLong(&ok);
        if (!ok && spatna.isEmpty())
            spatna = u"--seminko"_qs;
    }
    double cas = 0;
    if (const auto sekundy = a.Volba(u"--cas"_qs)) {
        bool ok = false;
        cas = sekundy->toDouble(&ok);
        if (!ok || cas <= 0)
            spatna = spatna.isEmpty() ? u"--cas"_qs : spatna;
    }
    if (!spatna.isEmpty())
        return Spatne_Pouziti(u"Chybná hodnota volby "_qs + spatna + u"."_qs);
    if (Jen_Ke_Cteni().contains(*vystup))
        return Nelze_Zapsat_Do(*vystup);

    if (vyber.Pouzit_Vybrana || vyber.Vynechat_Vybrana) {
        if (const Vysledek kontrola = Kontrola_Vyberu(vyber, 0, Zbytek_Cisel(vyber)); !kontrola.Ok())
            return Chyba(kontrola.Zprava);
        const int pocet = Priprav_Okruh(vyber, boxy);
        z.Okruh_Cisel.assign(vyber.Okruh_Cisel.begin(), vyber.Okruh_Cisel.begin() + pocet);
    }

    // Check1(2) walks the whole archive of the file, both draws.
    Archiv_Tahu archiv;
    if (const auto ceny = a.Volba(u"--ceny"_qs)) {
        const QFileInfo soubor(*ceny);
        const Vysledek nacteni = Nacti_Tahy(archiv, soubor.path(), soubor.fileName());
        if (!nacteni.Ok())
            return Chyba(nacteni.Zprava);
        Priprav_Seznamy_Tahu(archiv);
        z.Check1[2] = true;
        z.Tahy_1 = &archiv.Tahy_1;
        z.Tahy_2 = &archiv.Tahy_2;
        z.Vynech_Tahy_1_Od = archiv.Pocet_Tahy_1;
        z.Vynech_Tahy_2_Od = archiv.Pocet_Tahy_2;
    }

    // --cas and Ctrl+C stop the run as the window's button does: what was made is written.
    QElapsedTimer hodiny;
    hodiny.start();
    std::signal(SIGINT, [](int) { Preruseno = 1; });
    Zpetna_Volani_Generatoru volani;
    volani.Procenta = [&](int) { return Preruseno == 0 && (cas <= 0 || hodiny.elapsed() < qint64(cas * 1000)); };
    auto soubor_tipu = std::make_unique<Zaznam_Tipu>();
    const Vysledek_Generatoru vysledek = Generuj(z, *soubor_tipu, volani);
    std::signal(SIGINT, SIG_DFL);

    const Vysledek zapis = Uloz_Soubor(*vystup, Zapis_Zaznam_Tipu(*soubor_tipu));
    if (!zapis.Ok())
        return Chyba(zapis.Zprava);
    Vypis(u"tikety %1 tipy %2 hotovo %3 seminko %4"_qs.arg(soubor_tipu->Pocet_Tiketu)
              .arg(soubor_tipu->Pocet_Tipu)
              .arg(vysledek.Pocet_Tipu_Hotovo)
              .arg(vysledek.Seminko));
    if (vysledek.Konec == Konec_Behu::Chyba)
        return Chyba(vysledek.Chyba);
    return Uspech;
}

} // namespace

int main(int argc, char** argv) {
    Priprav_Zapis_Souboru();
    QStringList args;
    for (int i = 1; i < argc; ++i)
        args << Cesta_Argumentu(argv[i]);
    if (args.isEmpty())
        return Spatne_Pouziti({});
    const QString prikaz = args.takeFirst();
    if (prikaz == u"--help" || prikaz == u"-h") {
        std::fputs(Pouziti, stdout);
        return Uspech;
    }
    if (prikaz == u"import")
        return Import(args);
    if (prikaz == u"archive")
        return Archiv(args);
    if (prikaz == u"tips")
        return Tipy(args);
    if (prikaz == u"cfg")
        return Nastaveni(args);
    if (prikaz == u"generate")
        return Generovani(args);
    return Spatne_Pouziti(u"Neznámý příkaz \""_qs + prikaz + u"\"."_qs);
}
