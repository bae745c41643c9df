#include "data/Soubor_Tipu.h"

#include "core/Vb.h"
#include "data/Soubory.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <type_traits>

namespace {

// Fields at fixed offsets, little-endian. A file may be shorter than the record: what lies past its
// end reads as zero, as a record read of the old program left it.
uint8_t Bajt(const QByteArray& b, qsizetype i) {
    return i >= 0 && i < b.size() ? uint8_t(b[i]) : 0;
}

int16_t Cti_Int16(const QByteArray& b, qsizetype i) {
    return int16_t(uint16_t(Bajt(b, i) | Bajt(b, i + 1) << 8));
}

// The list name: its 16-bit length, then the text. Only the bytes that are there are taken.
QString Cti_Text(const QByteArray& b, qsizetype posun) {
    const int16_t delka = Cti_Int16(b, posun);
    const qsizetype zacatek = posun + 2;
    const qsizetype k_dispozici = std::max<qsizetype>(0, b.size() - zacatek);
    const qsizetype n = std::min<qsizetype>(std::max<int16_t>(delka, 0), k_dispozici);
    return n > 0 ? Vb::Z_1250(b.mid(zacatek, n)) : QString();
}

// The numbers of a ticket lie in memory as on disk, six bytes a column without padding, so a
// ticket's numbers are copied as one block rather than 60 KB of a record byte by byte.
static_assert(sizeof(Pole_Od_1<Tip, Sloupcu_Tiketu>) == 6 * Sloupcu_Tiketu);
static_assert(sizeof(Pole_Od_1<Tip, Sloupcu_Stareho_Tiketu>) == 6 * Sloupcu_Stareho_Tiketu);
static_assert(std::is_trivially_copyable_v<Tip>);

int32_t Int32_Z(const char* p) {
    const auto* u = reinterpret_cast<const uint8_t*>(p);
    return int32_t(uint32_t(u[0]) | uint32_t(u[1]) << 8 | uint32_t(u[2]) << 16 | uint32_t(u[3]) << 24);
}

void Int32_Do(char* p, int32_t h) {
    for (int k = 0; k < 4; ++k)
        p[k] = char((uint32_t(h) >> (8 * k)) & 0xFF);
}

// Tickets of `Delka` bytes from the start of the file; a ticket cut by the end is read as far as it
// goes, and those past the end stay zero.
template <int Delka, class Tiket_T, std::size_t Pocet>
void Cti_Tikety(const QByteArray& b, Pole_Od_1<Tiket_T, Pocet>& tikety) {
    static_assert(Delka == sizeof(Tiket_T::Cisla) + 4);
    const auto cti = [](const char* p, Tiket_T& tiket) {
        std::memcpy(&tiket.Cisla, p, sizeof tiket.Cisla);
        tiket.Cislo_Tiketu = Int32_Z(p + sizeof tiket.Cisla);
    };
    const qsizetype celych = std::min<qsizetype>(qsizetype(Pocet), b.size() / Delka);
    for (qsizetype t = 0; t < celych; ++t)
        cti(b.constData() + t * Delka, tikety.Prvky[std::size_t(t)]);
    if (celych < qsizetype(Pocet) && b.size() > celych * Delka) {
        char zbytek[Delka] = {};
        std::memcpy(zbytek, b.constData() + celych * Delka, std::size_t(b.size() - celych * Delka));
        cti(zbytek, tikety.Prvky[std::size_t(celych)]);
    }
}

void Zapis_Int16(char* p, int16_t h) {
    p[0] = char(uint16_t(h) & 0xFF);
    p[1] = char(uint16_t(h) >> 8);
}

QString Jmeno_Bez_Pripony(const QString& cesta) {
    const QString jmeno = Jmeno_Bez_Adresare(cesta);
    const qsizetype tecka = jmeno.lastIndexOf(u'.');
    return tecka > 0 ? jmeno.left(tecka) : jmeno;
}

} // namespace

Zaznam_Tipu Cti_Zaznam_Tipu(const QByteArray& bajty) {
    Zaznam_Tipu z;
    Cti_Tikety<Delka_Tiketu>(bajty, z.Tikety);
    z.Pocet_Tiketu = Cti_Int16(bajty, Posun_Pocet_Tiketu);
    z.Pocet_Tipu = Cti_Int16(bajty, Posun_Pocet_Tipu);
    z.Seznam_Soubor = Cti_Text(bajty, Posun_Delky_Seznamu);
    return z;
}

Stary_Zaznam_Tipu Cti_Stary_Zaznam_Tipu(const QByteArray& bajty) {
    constexpr qsizetype posun_poctu = qsizetype(Max_Starych_Tiketu) * Delka_Stareho_Tiketu;
    Stary_Zaznam_Tipu z;
    Cti_Tikety<Delka_Stareho_Tiketu>(bajty, z.Tikety);
    z.Pocet_Tiketu = Cti_Int16(bajty, posun_poctu);
    z.Pocet_Tipu = Cti_Int16(bajty, posun_poctu + 2);
    z.Seznam_Soubor = Cti_Text(bajty, posun_poctu + 4);
    return z;
}

QByteArray Zapis_Zaznam_Tipu(const Zaznam_Tipu& zaznam) {
    QByteArray text = Vb::Do_1250(zaznam.Seznam_Soubor);
    // The length field is signed 16-bit; a longer name would not read back.
    text.truncate(std::numeric_limits<int16_t>::max());
    QByteArray b(Delka_Zaznamu_Tipu + text.size(), '\0');
    char* p = b.data();
    for (const Tiket& tiket : zaznam.Tikety) {
        std::memcpy(p, &tiket.Cisla, sizeof tiket.Cisla);
        Int32_Do(p + sizeof tiket.Cisla, tiket.Cislo_Tiketu);
        p += Delka_Tiketu;
    }
    Zapis_Int16(b.data() + Posun_Pocet_Tiketu, zaznam.Pocet_Tiketu);
    Zapis_Int16(b.data() + Posun_Pocet_Tipu, zaznam.Pocet_Tipu);
    Zapis_Int16(b.data() + Posun_Delky_Seznamu, int16_t(text.size()));
    std::memcpy(b.data() + Delka_Zaznamu_Tipu, text.constData(), std::size_t(text.size()));
    return b;
}

Zaznam_Tipu Preved_Stary_Zaznam(const Stary_Zaznam_Tipu& stary, const Prubeh& prubeh) {
    // Even a full old record fits: 8000 tips make 800 tickets of ten.
    static_assert(Max_Starych_Tiketu * Sloupcu_Stareho_Tiketu <= Max_Tiketu * Sloupcu_Tiketu);
    const int pocet = std::clamp<int>(stary.Pocet_Tiketu, 0, Max_Starych_Tiketu);
    Sledovani_Prubehu sledovani(prubeh, pocet);
    Zaznam_Tipu novy;
    int t = 0; // last new ticket
    int c = 0; // columns filled on it, 0 when the next tip starts a new ticket
    for (int i = 1; i <= pocet; ++i) {
        for (int j = 1; j <= Sloupcu_Stareho_Tiketu; ++j) {
            const Tip& tip = stary.Tikety[i].Cisla[j];
            if (tip[1] == 0)
                continue;
            if (c == 0) {
                ++t;
                novy.Tikety[t].Cislo_Tiketu = t;
            }
            ++c;
            novy.Tikety[t].Cisla[c] = tip;
            if (c == Sloupcu_Tiketu)
                c = 0;
        }
        sledovani.Krok(i);
    }
    novy.Pocet_Tiketu = int16_t(t);
    novy.Pocet_Tipu = stary.Pocet_Tipu;
    novy.Seznam_Soubor = stary.Seznam_Soubor;
    return novy;
}

int Pocet_Tipu_V_Souboru(const Zaznam_Tipu& tipy) {
    int pocet = 0;
    for (int i = 1; i <= std::min<int>(tipy.Pocet_Tiketu, Max_Tiketu); ++i)
        for (int c = 1; c <= Sloupcu_Tiketu; ++c) {
            if (tipy.Tikety[i].Cisla[c][1] == 0)
                return pocet;
            ++pocet;
        }
    return pocet;
}

Vysledek Nacti_Soubor_Tipu(Stav_Tipu& stav, const QString& cesta, Otevreni otevreni) {
    const QString jmeno = Jmeno_Bez_Adresare(cesta);
    const Nacteny_Soubor soubor = Nacti_Soubor(cesta, Nejvic_Souboru_Tipu);
    if (!soubor.Ok())
        return Vysledek::Chyba(soubor.Zprava(jmeno));
    const bool z_dialogu = otevreni == Otevreni::Z_Dialogu;
    if (z_dialogu && soubor.Data.isEmpty())
        return Vysledek::Chyba(u"Soubor \""_qs + jmeno + u"\" je prázdný."_qs);
    stav.Soubor_Tipu = Cti_Zaznam_Tipu(soubor.Data);
    QString zprava;
    if (z_dialogu && Je_Stary_Format(jmeno, stav.Soubor_Tipu.Pocet_Tipu, &zprava))
        return Vysledek::Chyba(zprava);
    return Vysledek::Uspech();
}

bool Je_Stary_Format(const QString& jmeno, int pocet_tipu, QString* zprava) {
    if (pocet_tipu != 0)
        return false;
    if (zprava)
        *zprava = u"Provedte konverzi souboru tipu \""_qs + jmeno + u"\", nelze načíst - starý formát."_qs;
    return true;
}

Vysledek Uloz_Soubor_Tipu(const Stav_Tipu& stav, const QString& cesta) {
    return Uloz_Soubor(cesta, Zapis_Zaznam_Tipu(stav.Soubor_Tipu));
}

bool Je_Treba_Konvertovat(const QByteArray& bajty) {
    if (bajty.size() >= Delka_Zaznamu_Tipu && Cti_Int16(bajty, Posun_Pocet_Tipu) > 0)
        return false;
    // A current file of up to 812 tickets reads 0 here: the old count lies in its empty ticket 813.
    return Cti_Int16(bajty, qsizetype(Max_Starych_Tiketu) * Delka_Stareho_Tiketu) > 0;
}

QString Zaloha_Konverze(const QString& cesta) {
    return cesta + u".zal"_qs;
}

Vysledek Konvertuj_Soubor_Tipu(Stav_Tipu& stav, const QString& cesta, const Prubeh& prubeh) {
    const QString jmeno = Jmeno_Bez_Adresare(cesta);
    const Nacteny_Soubor soubor = Nacti_Soubor(cesta, Nejvic_Souboru_Tipu);
    if (!soubor.Ok())
        return Vysledek::Chyba(soubor.Zprava(jmeno));
    if (!Je_Treba_Konvertovat(soubor.Data))
        return Vysledek::Chyba(u"Soubor \""_qs + jmeno + u"\" není třeba konvertovat."_qs);
    auto novy = std::make_unique<Zaznam_Tipu>(Preved_Stary_Zaznam(Cti_Stary_Zaznam_Tipu(soubor.Data), prubeh));
    // Whatever the file really was, its bytes stay beside it, so the conversion can be undone.
    if (const Vysledek zaloha = Uloz_Soubor(Zaloha_Konverze(cesta), soubor.Data); !zaloha.Ok())
        return Vysledek::Chyba(zaloha.Zprava + u" Soubor \""_qs + jmeno + u"\" proto nebyl převeden."_qs);
    if (Vysledek v = Uloz_Soubor(cesta, Zapis_Zaznam_Tipu(*novy)); !v.Ok())
        return v;
    stav.Soubor_Tipu = std::move(*novy);
    Po_Otevreni_Tipu(stav, cesta);
    return Vysledek::Uspech();
}

void Po_Otevreni_Tipu(Stav_Tipu& stav, const QString& cesta) {
    stav.Jmeno_Souboru_Tipu = Jmeno_Bez_Pripony(cesta);
    stav.Je_Soubor_Tipu = true;
    stav.Seznam_Navazany = stav.Soubor_Tipu.Seznam_Soubor;
    stav.Pocet_Tipu_Aktivni = stav.Soubor_Tipu.Pocet_Tipu;
}
