#include "app/modTombi.h"

#include "core/Dialogy.h"
#include "core/Hodiny.h"
#include "core/Vb.h"

#include <QSettings>
#include <QStringList>
#include <algorithm>
#include <array>

namespace modTombi {

namespace {

const QString Klic_Cen_Patku = u"Common/Ceny_Patek"_qs;

// Every character that code page 1250 holds in one byte: the decoded 256 byte values.
const QString& Znaky_1250() {
    static const QString znaky = [] {
        QByteArray bajty(256, '\0');
        for (int i = 0; i < 256; ++i)
            bajty[i] = char(i);
        return Vb::Z_1250(bajty);
    }();
    return znaky;
}

// A save cut off by a crash or a power cut: the user learns of it, and where the archive is gone
// but its backup stands, may take the backup rather than start without draws.
void Prohledni_Preruseny_Zapis(Relace& relace) {
    const QString& soubor = relace.Archiv.Soubor_Tahu;
    const Preruseny_Zapis nalez = Uklid_Po_Preruseni(relace.Adresar_Dat(), soubor);
    if (relace.Dialog == nullptr)
        return;
    const QString titulek = u"Archiv tahů"_qs;
    if (nalez.Zaloha_Bez_Archivu) {
        const QString otazka = u"Archiv tahů \""_qs + soubor +
                               u"\" chybí, nejspíš proto, že jeho poslední zápis byl přerušen. Je tu ale jeho "
                               u"záloha \""_qs +
                               Jmeno_Zalohy(soubor) +
                               u"\" se stavem před poslední změnou.\r\nObnovit archiv ze zálohy ?"_qs;
        if (relace.Dialog->Otazka(Dialogy::Ikona::Vykricnik, titulek, otazka, Dialogy::Tlacitka::Ano_Ne,
                                  Dialogy::Odpoved::Ano) != Dialogy::Odpoved::Ano)
            return;
        if (const Vysledek obnova = Obnov_Chybejici_Archiv(relace.Adresar_Dat(), soubor); !obnova.Ok())
            relace.Dialog->Okno_Zpravy(Dialogy::Ikona::Stop, titulek, obnova.Zprava);
    } else if (!nalez.Uklizeno.isEmpty()) {
        relace.Dialog->Okno_Zpravy(Dialogy::Ikona::Informace, titulek,
                                   u"Zápis archivu tahů \""_qs + soubor +
                                       u"\" byl přerušen. Archiv zůstal celý; nedokončené soubory byly smazány: "_qs +
                                       nalez.Uklizeno.join(u", "_qs) + u'.');
    }
}

} // namespace

void Spocitej_Suda_Licha(Relace& relace, const QString& text) {
    relace.Pocet_Sudych = 0;
    relace.Pocet_Lichych = 0;
    // The status text starts with a blank, so its first token is the empty one before it; a text
    // without that blank loses its first number, as it always has. Words (a wheel's name) are no numbers.
    const QStringList casti = text.split(u' ');
    for (qsizetype i = 1; i < casti.size(); ++i) {
        const double cislo = Vb::Val(casti[i]);
        if (cislo <= 0)
            continue;
        if (Je_Sude(int(Vb::Int(cislo))))
            ++relace.Pocet_Sudych;
        else
            ++relace.Pocet_Lichych;
    }
}

QString Datum_Soubor(const QDate& dnes) {
    return u"%1%2%3"_qs.arg(dnes.year() % 100, 2, 10, QChar(u'0'))
        .arg(dnes.month(), 2, 10, QChar(u'0'))
        .arg(dnes.day(), 2, 10, QChar(u'0'));
}

QString Jen_Jednobajtove(const QString& text) {
    QString vysledek;
    vysledek.reserve(text.size());
    for (const QChar znak : text)
        if (znak != u' ' && !znak.isSurrogate() && Znaky_1250().contains(znak))
            vysledek += znak;
    return vysledek;
}

QString Navrh_Jmena(const QDate& dnes, int pocet, bool seznam_nacten) {
    // Str gives the count its leading blank; the filter takes it away again.
    const QString jmeno = Datum_Soubor(dnes) + u'_' + Vb::Str(int64_t(pocet));
    return Jen_Jednobajtove(seznam_nacten ? u"S_"_qs + jmeno : jmeno);
}

QString Otevreny_Tip_Text(const Zaznam_Tipu& tipy) {
    // The text is printed in a proportional font, where a digit is as wide as two blanks. Every tip
    // line is indented by four blanks, and a number gets five blanks before it if it has one digit
    // and three if it has two: each number then ends seven blank widths after the one before, so the
    // columns stand right-aligned. An empty cell is seven blanks, which keeps the columns in place.
    static const QString Odsazeni = u"    "_qs;
    static const QString Pred_Jednocifernym = u"     "_qs;
    static const QString Pred_Dvoucifernym = u"   "_qs;

    QString text;
    const int pocet_tiketu = std::clamp<int>(tipy.Pocet_Tiketu, 0, Max_Tiketu);
    for (int t = 1; t <= pocet_tiketu; ++t) {
        const Tiket& tiket = tipy.Tikety[t];
        text += u"číslo tiketu - "_qs + QString::number(tiket.Cislo_Tiketu) + u'\n';
        for (const Tip& tip : tiket.Cisla) {
            if (tip[1] == 0)
                continue;
            text += Odsazeni;
            for (const uint8_t cislo : tip) {
                if (cislo == 0)
                    text += Pred_Jednocifernym + u"  "_qs;
                else
                    text += (cislo < 10 ? Pred_Jednocifernym : Pred_Dvoucifernym) + QString::number(cislo);
            }
            text += u'\n';
        }
        text += u'\n';
    }
    return text;
}

int Den_V_Tydnu(const QDate& datum) {
    return datum.dayOfWeek() % 7 + 1;
}

QString Dalsi_Tah(const QDate& dnes) {
    // Days to the next draw from Sunday (1) to Saturday (7); Wednesday has none of its own.
    static constexpr std::array<int, 7> Dnu_Do_Tahu = {0, 2, 1, -1, 1, 0, 1};
    const int den = Den_V_Tydnu(dnes);
    const int dnu = Dnu_Do_Tahu[std::size_t(den - 1)];
    if (dnu < 0)
        return {};
    return Vb::Format(dnes.addDays(dnu), u"d.m.yyyy");
}

Den Den_Podle_Tydne(int den_v_tydnu) {
    if (den_v_tydnu >= 2 && den_v_tydnu <= 4)
        return Den::Streda;
    return den_v_tydnu == 5 || den_v_tydnu == 6 ? Den::Patek : Den::Nedele;
}

Vysledek Prepni_Den(Relace& relace, Den den) {
    relace.Tikety.Den_Tahu = uint8_t(den);
    relace.Soubor_Tahu_Dbf = den == Den::Nedele   ? relace.Nastaveni.FTP_Data2
                             : den == Den::Streda ? relace.Nastaveni.FTP_Data1
                                                  : QStringView(Soubor_Dat_Patku).toString();
    Nastav_Den_Archivu(relace.Archiv, den);
    Prohledni_Preruseny_Zapis(relace);
    const Vysledek nacteni = Nacti_Tahy(relace.Archiv, relace.Adresar_Dat(), relace.Archiv.Soubor_Tahu);
    // A failed load has emptied the archive; the flat lists and counts follow it, so that no window
    // goes on with the draws of the other day.
    const auto [prvni, druhe] = Spocitej_Tahy(relace.Archiv);
    relace.Tikety.Pocet_Tahu_1 = int16_t(prvni);
    relace.Tikety.Pocet_Tahu_2 = int16_t(druhe);
    Priprav_Seznamy_Tahu(relace.Archiv);
    return nacteni;
}

std::array<Vb::Mena, 10> Ceny_Dne_Tahu(const Relace& relace, Den den) {
    if (den == Den::Streda)
        return relace.Nastaveni.Ceny_Streda;
    if (den == Den::Nedele)
        return relace.Nastaveni.Ceny_Nedele;
    std::array<Vb::Mena, 10> ceny{};
    if (relace.Registr == nullptr)
        return ceny;
    const QStringList texty = relace.Registr->value(Klic_Cen_Patku).toStringList();
    for (std::size_t i = 0; i < ceny.size() && qsizetype(i) < texty.size(); ++i)
        ceny[i] = Vb::Mena::Z_Korun(Vb::Val(texty[qsizetype(i)]));
    return ceny;
}

void Uloz_Ceny_Patku(Relace& relace, const std::array<Vb::Mena, 10>& ceny) {
    if (relace.Registr == nullptr)
        return;
    QStringList texty;
    for (const Vb::Mena& cena : ceny)
        texty << cena.Text();
    relace.Registr->setValue(Klic_Cen_Patku, texty);
}

void Cekej(const Hodiny& hodiny, double sekundy, const std::function<void()>& pumpa) {
    const double zacatek = hodiny.Timer();
    for (;;) {
        if (pumpa)
            pumpa();
        const double ted = hodiny.Timer();
        // The timer starts again from 0 at midnight; rather than count across it, the wait stops.
        if (ted < zacatek || ted - zacatek >= sekundy)
            return;
    }
}

int Filtr_Klavesy(int klavesa, QChar od, QChar do_) {
    constexpr int Backspace = 8;
    if (klavesa == Backspace || (klavesa >= od.unicode() && klavesa <= do_.unicode()))
        return klavesa;
    return 0;
}

int Napoveda(const QString& klic) {
    static const std::array<QString, 12> Klice = {
        u"Anal"_qs,      u"Gener"_qs,     u"NastavPrg"_qs,        u"OProg"_qs,
        u"Tahy"_qs,      u"Sezn"_qs,      u"TiskTik"_qs,          u"AnalVypis"_qs,
        u"TahyVypis"_qs, u"TipyVypis"_qs, u"TipyVypisVlastni"_qs, u"Heslo"_qs};
    const auto it = std::find(Klice.begin(), Klice.end(), klic);
    return it == Klice.end() ? 0 : int(it - Klice.begin()) + 1;
}

} // namespace modTombi
