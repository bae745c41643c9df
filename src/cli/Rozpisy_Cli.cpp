// tombi-cli wheel: the rows of a built-in wheel with its guarantees, a .rzp wheel read and checked,
// and either expanded over the user's numbers into a tip file.
#include "cli/Cli.h"
#include "data/Soubor_Tipu.h"
#include "data/Soubory.h"
#include "generator/Zaruky_Rozpisu.h"
#include "generator/modRozpisy.h"

#include <QRegularExpression>
#include <QSet>
#include <memory>

using namespace modRozpisy;

namespace {

// A .rzp is a short text; a file far larger is not a wheel.
constexpr qint64 Nejvic_Rozpisu = 4 * Mebibajt;

QString Bunka(uint8_t b) {
    return b >= T1 && b <= T3 ? u"T"_qs + QString::number(b - T1 + 1) : QString::number(b);
}

// The numbers of --cisla (blanks or commas between them) and --tutovky: exactly the counts the wheel
// needs, each 1..49, none twice. They go into the wheel's list as the window's run leaves it: the
// numbers first, the tutovky behind them.
std::optional<QString> Cisla_Rozpisu(const Argumenty& a, int cisel, int tutovek, Seznam_Cisel& seznam, Tip& tip) {
    QList<int> vsechna;
    for (const auto& [volba, pocet] : {std::pair{u"--cisla"_qs, cisel}, std::pair{u"--tutovky"_qs, tutovek}}) {
        const QStringList casti =
            a.Volba(volba).value_or(QString()).split(QRegularExpression(u"[ ,]+"_qs), Qt::SkipEmptyParts);
        if (casti.size() != pocet)
            return u"Rozpis potřebuje %1 čísel a %2 tutovek."_qs.arg(cisel).arg(tutovek);
        for (const QString& cast : casti) {
            bool ok = false;
            const int n = cast.toInt(&ok);
            if (!ok || n < 1 || n > 49)
                return u"Číslo \""_qs + cast + u"\" není z rozsahu 1 až 49."_qs;
            vsechna << n;
        }
    }
    if (QSet<int>(vsechna.begin(), vsechna.end()).size() != vsechna.size())
        return u"Pozor, zadána stejná čísla !"_qs;
    for (int i = 0; i < vsechna.size(); ++i)
        seznam[i + 1] = uint8_t(vsechna[i]);
    for (int i = 0; i < tutovek; ++i)
        tip[i + 1] = uint8_t(vsechna[cisel + i]);
    return std::nullopt;
}

int Zapis(const Zaznam_Tipu& z, const QString& vystup) {
    if (const Vysledek zapis = Uloz_Soubor(vystup, Zapis_Zaznam_Tipu(z)); !zapis.Ok())
        return Chyba(zapis.Zprava);
    Vypis(u"tikety %1 tipy %2"_qs.arg(z.Pocet_Tiketu).arg(Pocet_Tipu_V_Souboru(z)));
    return Uspech;
}

int Vestaveny(const Argumenty& a, const std::optional<QString>& vystup) {
    bool ok = false;
    const int cislo = a.Pozicni.front().toInt(&ok);
    const Tabulka_Rozpisu* tabulka = ok ? Tabulka(cislo) : nullptr;
    if (tabulka == nullptr)
        return Spatne_Pouziti(u"Vestavěné rozpisy mají čísla 2 až 24."_qs);
    if (vystup) {
        auto soubor = std::make_unique<Zaznam_Tipu>();
        Seznam_Cisel seznam{};
        Tip tip{};
        if (const auto chyba = Cisla_Rozpisu(a, tabulka->Cisel, tabulka->Tutovek, seznam, tip))
            return Chyba(*chyba);
        Rozpis(cislo, seznam, tip, *soubor);
        return Zapis(*soubor, *vystup);
    }
    if (a.Volba(u"--cisla"_qs) || a.Volba(u"--tutovky"_qs))
        return Spatne_Pouziti(u"Chybí --out."_qs);
    for (const Radek_Rozpisu& radek : tabulka->Radky) {
        if (radek == Radek_Rozpisu{}) {
            Vypis(u"-"_qs);
            continue;
        }
        QStringList bunky;
        for (uint8_t b : radek)
            bunky << Bunka(b);
        Vypis(bunky.join(u' '));
    }
    const Zaruky_Rozpisu z = Spocti_Zaruky(Tipy_Tabulky(*tabulka));
    QString radek = u"zaruka"_qs;
    for (int k = 3; k <= 6; ++k)
        if (z.Zaruka[std::size_t(k)] != 0)
            radek += u" %1z%2"_qs.arg(k).arg(z.Zaruka[std::size_t(k)]);
    Vypis(radek + u" p3 "_qs + QString::number(z.P3, 'f', 6));
    return Uspech;
}

int Ze_Souboru(const Argumenty& a, const std::optional<QString>& vystup) {
    const QString cesta = *a.Volba(u"--rzp"_qs);
    const Nacteny_Soubor soubor = Nacti_Soubor(cesta, Nejvic_Rozpisu);
    if (!soubor.Ok())
        return Chyba(soubor.Zprava(Jmeno_Bez_Adresare(cesta)));
    Externi_Rozpis_Stav rozpis;
    const QByteArray text = Text_Rozpisu(soubor.Data);
    if (text.isEmpty())
        return Chyba(u"Soubor rozpisu \""_qs + Jmeno_Bez_Adresare(cesta) + u"\" je prázdný."_qs);
    if (const Vysledek nacteni = Nacti_Rozpis(text, rozpis); !nacteni.Ok())
        return Chyba(nacteni.Zprava);
    if (!vystup) {
        if (a.Volba(u"--cisla"_qs) || a.Volba(u"--tutovky"_qs) || a.Volba(u"--tikety"_qs))
            return Spatne_Pouziti(u"Chybí --out."_qs);
        Vypis(u"tutovky %1 cisel %2 sloupcu %3"_qs.arg(rozpis.Tutovek).arg(rozpis.Cisel).arg(rozpis.Sloupcu));
        const std::size_t v_radku = std::size_t(6 - rozpis.Tutovek);
        for (std::size_t i = 0; i < rozpis.Data_Rozpisu.size(); i += v_radku) {
            QStringList bunky;
            for (std::size_t j = i; j < std::min(i + v_radku, rozpis.Data_Rozpisu.size()); ++j)
                bunky << QString::number(rozpis.Data_Rozpisu[j]);
            Vypis(bunky.join(u' '));
        }
        return Uspech;
    }
    auto zaznam = std::make_unique<Zaznam_Tipu>();
    Seznam_Cisel seznam{};
    Tip tip{};
    if (const auto chyba = Cisla_Rozpisu(a, rozpis.Cisel, rozpis.Tutovek, seznam, tip))
        return Chyba(*chyba);
    int tiketu = (rozpis.Sloupcu + Sloupcu_Tiketu - 1) / Sloupcu_Tiketu;
    if (const auto volba = a.Volba(u"--tikety"_qs)) {
        const auto t = Cisla_Volby(*volba, 1, 1, 1, Max_Tiketu);
        if (!t)
            return Spatne_Pouziti(u"Chybná hodnota volby --tikety."_qs);
        tiketu = t->front();
    }
    if (const Vysledek expanze = Externi_Rozpis(rozpis, seznam, tiketu, *zaznam); !expanze.Ok())
        return Chyba(expanze.Zprava);
    return Zapis(*zaznam, *vystup);
}

} // namespace

int Rozpisy(const QStringList& args) {
    const Argumenty a = Rozeber(args, {u"--cisla"_qs, u"--tutovky"_qs, u"--out"_qs, u"--rzp"_qs, u"--tikety"_qs}, {});
    if (!a.Chyba.isEmpty())
        return Spatne_Pouziti(a.Chyba);
    const std::optional<QString> vystup = a.Volba(u"--out"_qs);
    if (vystup && Jen_Ke_Cteni().contains(*vystup))
        return Nelze_Zapsat_Do(*vystup);
    if (a.Volba(u"--rzp"_qs)) {
        if (!a.Pozicni.isEmpty())
            return Spatne_Pouziti({});
        return Ze_Souboru(a, vystup);
    }
    if (a.Pozicni.size() != 1 || a.Volba(u"--tikety"_qs))
        return Spatne_Pouziti({});
    return Vestaveny(a, vystup);
}
