#include "cli/Cli.h"

#include <QFile>

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

const char* const Pouziti =
    "Použití:\n"
    "  tombi-cli import --dbf SOUBOR --out SOUBOR.sez\n"
    "  tombi-cli import --csv SOUBOR --den streda|patek|nedele --out SOUBOR.sez\n"
    "  tombi-cli archive SOUBOR.sez [--list 1|2 [--datum]]\n"
    "  tombi-cli archive SOUBOR.sez --pridej|--oprav ROK TYDEN TAH \"n1 .. n7\"\n"
    "  tombi-cli archive SOUBOR.sez --smaz ROK TYDEN TAH\n"
    "  tombi-cli tips SOUBOR.tip\n"
    "  tombi-cli tips --convert SOUBOR.tip\n"
    "  tombi-cli tips --append SOUBOR.tip DALSI.tip --out VYSTUP.tip\n"
    "  tombi-cli tips --sort SOUBOR.tip --out VYSTUP.tip\n"
    "  tombi-cli tips --export SOUBOR.tip --out SOUBOR.txt\n"
    "  tombi-cli tips --import SOUBOR.txt --out SOUBOR.tip\n"
    "  tombi-cli wheel INDEX\n"
    "  tombi-cli wheel INDEX --cisla \"n1 n2 ...\" [--tutovky A,B,C] --out SOUBOR.tip\n"
    "  tombi-cli wheel --rzp SOUBOR.rzp [--cisla \"n1 n2 ...\" --tutovky A,B,C --tikety M --out SOUBOR.tip]\n"
    "  tombi-cli print SOUBOR.tip [--od T1] [--pocet P] [--osa-x MM] [--osa-y MM] [--cislo-tiketu]\n"
    "      [--den streda|nedele] [--sance]\n"
    "  tombi-cli bettors SOUBOR.szn [--vyhra KC]\n"
    "  tombi-cli download --adresa URL [--csv URL] --dir SLOZKA\n"
    "  tombi-cli update --server POCITAC:PORT --dir SLOZKA [--vse]\n"
    "  tombi-cli cfg SOUBOR\n"
    "  tombi-cli generate --tipy N [--tikety M] [--tutovky A,B,C] [--pouzit SEZNAM | --vynechat SEZNAM]\n"
    "      [--rsk S,R,K] [--treti N] [--ceny ARCHIV.sez] [--dekada N] [--neopakovat] [--sudlich S,L,R]\n"
    "      [--dvojice N] [--trojice N] [--suma OD,DO] [--rozsah MIN,MAX] [--prunik N]\n"
    "      [--pruchodu N] [--auto-oprava] [--opakovat 0|1] [--seminko S] [--cas SEKUNDY] --out SOUBOR.tip\n"
    "  tombi-cli evaluate SOUBOR.tip ARCHIV.sez N1 N2 [--ceny P1,..,P5[,Q1,..,Q5]]\n"
    "  tombi-cli evaluate --tipech SOUBOR.tip \"B0 .. B6\" [\"B0 .. B6\"] [--ceny ...]\n"
    "  tombi-cli evaluate --tazich ARCHIV.sez N1 N2 \"B0 .. B6\" [\"B0 .. B6\"] [--ceny ...]\n"
    "  tombi-cli evaluate --nahodne SOUBOR.tip [--seminko S] [--ceny ...]\n"
    "  tombi-cli evaluate --srovnani K SOUBOR.tip ARCHIV.sez N1 N2 [--seminko S] [--ceny ...]\n"
    "  tombi-cli analyse ARCHIV.sez STAT N1 N2 [--dodatkova] [--od T] [--rezim 0|1]\n"
    "  tombi-cli analyse ARCHIV.sez STAT --od-do OD1 DO1 OD2 DO2 [--dodatkova] [--od T] [--rezim 0|1]\n";

namespace {

// Paths that Qt reaches through /proc/self/fd, with the names the user gave (see Cesta_Argumentu).
QList<std::pair<QString, QString>>& Nahradni_Cesty() {
    static QList<std::pair<QString, QString>> cesty;
    return cesty;
}

QString Zobrazeni(QString text) {
    for (const auto& [nahradni, puvodni] : Nahradni_Cesty())
        text.replace(nahradni, puvodni);
    return text;
}

} // namespace

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
