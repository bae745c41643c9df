#include "data/Nastaveni.h"

#include "core/Random.h"
#include "data/Soubory.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <type_traits>

namespace {

constexpr double Nejstarsi_Verze = 1.3; // the first writer of this layout
constexpr int Nejdelsi_Text = 32767;

QString Jmeno_Souboru() {
    return u"tombi.cfg"_qs;
}

// Reads the record as the Basic's Get does: past the end every byte is zero, so a short file simply
// leaves the remaining fields zero and nothing is ever read out of bounds.
class Ctenar final {
public:
    explicit Ctenar(const QByteArray& data) : Data(data) {}

    uint64_t Cislo(int bajtu) {
        uint64_t h = 0;
        for (int i = 0; i < bajtu; ++i)
            h |= uint64_t(Bajt()) << (8 * i);
        return h;
    }

    QString Text() {
        const auto delka = int16_t(Cislo(2));
        if (delka <= 0)
            return {};
        const qsizetype kolik = std::min<qsizetype>(delka, Data.size() - Pozice);
        const QByteArray bajty = Data.mid(Pozice, kolik);
        Pozice += kolik;
        return Vb::Z_1250(bajty);
    }

private:
    uint8_t Bajt() { return Pozice < Data.size() ? uint8_t(Data[Pozice++]) : 0; }

    const QByteArray& Data;
    qsizetype Pozice = 0;
};

void Cti(Ctenar& c, uint8_t& h) {
    h = uint8_t(c.Cislo(1));
}
void Cti(Ctenar& c, int16_t& h) {
    h = int16_t(c.Cislo(2));
}
void Cti(Ctenar& c, int32_t& h) {
    h = int32_t(c.Cislo(4));
}
void Cti(Ctenar& c, Vb::Mena& h) {
    h = Vb::Mena::Z_Hodnoty(int64_t(c.Cislo(8)));
}
void Cti(Ctenar& c, QString& h) {
    h = c.Text();
}
template <class T, std::size_t N> void Cti(Ctenar& c, std::array<T, N>& pole) {
    for (T& prvek : pole)
        Cti(c, prvek);
}

void Pridej_Cislo(QByteArray& data, uint64_t h, int bajtu) {
    for (int i = 0; i < bajtu; ++i)
        data.append(char(uint8_t(h >> (8 * i))));
}

void Pis(QByteArray& data, uint8_t h) {
    Pridej_Cislo(data, h, 1);
}
void Pis(QByteArray& data, int16_t h) {
    Pridej_Cislo(data, uint16_t(h), 2);
}
void Pis(QByteArray& data, int32_t h) {
    Pridej_Cislo(data, uint32_t(h), 4);
}
void Pis(QByteArray& data, Vb::Mena h) {
    Pridej_Cislo(data, uint64_t(h.Hodnota), 8);
}
void Pis(QByteArray& data, const QString& h) {
    QByteArray bajty = Vb::Do_1250(h);
    if (bajty.size() > Nejdelsi_Text)
        bajty.truncate(Nejdelsi_Text);
    Pridej_Cislo(data, uint16_t(bajty.size()), 2);
    data.append(bajty);
}
template <class T, std::size_t N> void Pis(QByteArray& data, const std::array<T, N>& pole) {
    for (const T& prvek : pole)
        Pis(data, prvek);
}

QString Hodnota(uint8_t h) {
    return QString::number(h);
}
QString Hodnota(int16_t h) {
    return QString::number(h);
}
QString Hodnota(int32_t h) {
    return QString::number(h);
}
QString Hodnota(Vb::Mena h) {
    return h.Text();
}
QString Hodnota(const QString& h) {
    return h;
}

template <class T> struct Je_Pole : std::false_type {};
template <class T, std::size_t N> struct Je_Pole<std::array<T, N>> : std::true_type {};

// The program directory as the first run stores it: with its trailing separator.
QString Adresar_Programu(const QString& cesta_programu) {
    if (cesta_programu.endsWith(u'/') || cesta_programu.endsWith(u'\\'))
        return cesta_programu;
    return cesta_programu + u'/';
}

// Paths of the old program use backslashes and may or may not end with one.
QString Cista_Cesta(const QString& cesta) {
    QString s = cesta;
    s.replace(u'\\', u'/');
    return QDir::cleanPath(s);
}

} // namespace

Nastaveni_Zaznam Cti_Nastaveni(const QByteArray& data) {
    Nastaveni_Zaznam z;
    Ctenar c(data);
    Projdi_Pole(z, [&c](QStringView, auto& pole) { Cti(c, pole); });
    return z;
}

QByteArray Zapis_Nastaveni(const Nastaveni_Zaznam& nastaveni) {
    QByteArray data;
    Projdi_Pole(nastaveni, [&data](QStringView, const auto& pole) { Pis(data, pole); });
    return data;
}

QStringList Vypis_Nastaveni(const Nastaveni_Zaznam& nastaveni) {
    QStringList radky;
    Projdi_Pole(nastaveni, [&radky](QStringView jmeno, const auto& pole) {
        if constexpr (Je_Pole<std::remove_cvref_t<decltype(pole)>>::value) {
            for (std::size_t i = 0; i < pole.size(); ++i)
                radky.append(jmeno % u'[' % QString::number(i) % u"] = " % Hodnota(pole[i]));
        } else {
            radky.append(jmeno % u" = " % Hodnota(pole));
        }
    });
    return radky;
}

Nastaveni_Zaznam Vychozi_Nastaveni(const QString& cesta_programu, const QString& verze) {
    Nastaveni_Zaznam z;
    z.Cena_Jednoho_Tipu = 12;
    z.Vychozi_Tipu = 8;
    const QString adresar = Adresar_Programu(cesta_programu);
    for (int i = 0; i <= 4; ++i)
        z.Adresare[i] = adresar;
    z.Cena_Sance = 10;
    z.Pocet_Pruchodu = 250;
    z.Verze_Cfg = verze;
    z.Tloustka_Cary_1 = 3;
    z.Tloustka_Cary_2 = 3;
    z.Barva_Zasahu = 0xC0C0FF;
    z.Barva_Krizku_1 = 0xFF0000;
    z.Barva_Krizku_2 = 0x8000;
    z.Obrazek_Pozadi = u"Pozadi_.jpg"_qs;
    z.Odecist_Tahy = u"3"_qs;
    z.Od_Do_1Tah_Str = u"52"_qs;
    z.Od_Do_2Tah_Str = u"52"_qs;
    z.Od_Do_1Tah_Ned = u"52"_qs;
    z.Od_Do_2Tah_Ned = u"52"_qs;
    z.FTP_Adresa = u"www.sazka.cz/set/generated_vysledky"_qs;
    z.FTP_Data1 = u"sportka-streda.dbf"_qs;
    z.FTP_Data2 = u"sportka-nedele.dbf"_qs;
    z.Zapis_Tahu = {Vb::Pravda, Vb::Nepravda, Vb::Nepravda};
    z.Pismo_Barva_1 = 255;
    z.Pismo_Jmeno_1 = u"MS Sans Serif"_qs;
    z.Pismo_Velikost_1 = 8;
    z.Pismo_Tucne_1 = Vb::Pravda;
    // The second font's default has always been the size text in the name field; kept as found.
    z.Pismo_Jmeno_2 = u"8"_qs;
    z.Pocet_Sloupcu_Tisk = 2;
    z.Info_Tah = Vb::Pravda;
    z.Klic_Vyberu = 3;
    return z;
}

Vysledek Nacti_Nastaveni(Nastaveni_Zaznam& nastaveni, const QString& cesta_programu, const QString& verze,
                         QSettings& registr) {
    const auto prvni_spusteni = [&] {
        nastaveni = Vychozi_Nastaveni(cesta_programu, verze);
        // The password outlives a lost or outdated tombi.cfg.
        const QString pws = registr.value(Klic_Pws).toString();
        if (!pws.isEmpty()) {
            nastaveni.Heslo = Desifruj_Pws(pws);
            nastaveni.Je_Heslo = Vb::Pravda;
        }
    };
    const QString cesta = Spoj_Cestu(cesta_programu, Jmeno_Souboru());
    const Nacteny_Soubor soubor = Nacti_Soubor(cesta, Nejvic_Nastaveni);
    // A file that is there but will not be read is no first run: it is left for the user to look at.
    if (!soubor.Ok() && QFileInfo::exists(cesta)) {
        prvni_spusteni();
        return Vysledek::Chyba(soubor.Zprava(cesta) + u" Program začíná s výchozím nastavením."_qs);
    }
    nastaveni = Cti_Nastaveni(soubor.Data);

    if (Vb::Val(nastaveni.Verze_Cfg) < Nejstarsi_Verze) {
        prvni_spusteni();
        return Uloz_Soubor(Spoj_Cestu(nastaveni.Adresare[0], Jmeno_Souboru()), Zapis_Nastaveni(nastaveni));
    }

    // A moved installation finds its data beside the program; the browser is elsewhere anyway.
    if (Cista_Cesta(nastaveni.Adresare[0]) != Cista_Cesta(cesta_programu)) {
        const QString adresar = Adresar_Programu(cesta_programu);
        for (int i = 0; i <= 4; ++i)
            nastaveni.Adresare[i] = adresar;
    }
    // A greyed box (2 or more) of the neighbour filters starts each session unticked.
    for (std::size_t i = 1; i < nastaveni.Zrus_Tip_Sous_Cis.size(); ++i) {
        if (nastaveni.Zrus_Tip_Sous_Cis[i] >= 2)
            nastaveni.Zrus_Tip_Sous_Cis[i] = 0;
    }
    return Vysledek::Uspech();
}

Vysledek Uloz_Nastaveni(Nastaveni_Zaznam& nastaveni, QSettings& registr) {
    nastaveni.Info_Tah = Vb::Pravda;
    registr.setValue(Klic_Pws, Vb::Je_Pravda(nastaveni.Je_Heslo) ? Zasifruj_Pws(nastaveni.Heslo) : nastaveni.Heslo);
    registr.sync();
    const Vysledek soubor = Uloz_Soubor(Spoj_Cestu(nastaveni.Adresare[0], Jmeno_Souboru()), Zapis_Nastaveni(nastaveni));
    if (!soubor.Ok())
        return soubor;
    if (registr.status() != QSettings::NoError)
        return Vysledek::Chyba(u"Heslo nelze uložit do uživatelského nastavení."_qs);
    return Vysledek::Uspech();
}

Vysledek Nastav_Tisk(Nastaveni_Zaznam& nastaveni, int16_t x, int16_t y, int16_t z, QSettings& registr) {
    nastaveni.Tisk_Posun_X = x;
    nastaveni.Tisk_Posun_Y = y;
    nastaveni.Tisk_Posun_Z = z;
    return Uloz_Nastaveni(nastaveni, registr);
}

QString Zasifruj_Pws(const QString& heslo) {
    QString pws = QStringView(Random::Predpona_Hesla) % heslo;
    Random sifra;
    sifra.Cipher(pws, Random::Klic_Hesla_A, Random::Klic_Hesla_B, Random::Klic_Hesla_C);
    return pws;
}

QString Desifruj_Pws(const QString& pws) {
    QString heslo = pws;
    Random sifra;
    sifra.Cipher(heslo, Random::Klic_Hesla_A, Random::Klic_Hesla_B, Random::Klic_Hesla_C);
    return heslo.mid(QStringView(Random::Predpona_Hesla).size());
}
