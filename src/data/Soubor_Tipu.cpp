#include "data/Soubor_Tipu.h"

#include "app/Vb.h"
#include "data/Soubory.h"

#include <algorithm>
#include <limits>

namespace {

// Fields at fixed offsets, little-endian. A file may be shorter than the record: what lies past its
// end reads as zero, as a record read of the old program left it.
uint8_t Bajt(const QByteArray& b, qsizetype i) {
    return i >= 0 && i < b.size() ? uint8_t(b[i]) : 0;
}

int16_t Cti_Int16(const QByteArray& b, qsizetype i) {
    return int16_t(uint16_t(Bajt(b, i) | Bajt(b, i + 1) << 8));
}

int32_t Cti_Int32(const QByteArray& b, qsizetype i) {
    return int32_t(uint32_t(Bajt(b, i)) | uint32_t(Bajt(b, i + 1)) << 8 | uint32_t(Bajt(b, i + 2)) << 16 |
                   uint32_t(Bajt(b, i + 3)) << 24);
}

// The list name: its 16-bit length, then the text. Only the bytes that are there are taken.
QString Cti_Text(const QByteArray& b, qsizetype posun) {
    const int16_t delka = Cti_Int16(b, posun);
    const qsizetype zacatek = posun + 2;
    const qsizetype k_dispozici = std::max<qsizetype>(0, b.size() - zacatek);
    const qsizetype n = std::min<qsizetype>(std::max<int16_t>(delka, 0), k_dispozici);
    return n > 0 ? Vb::Z_1250(b.mid(zacatek, n)) : QString();
}

template <class Tiket_T, int Sloupcu> void Cti_Tikety(const QByteArray& b, Tiket_T& tiket, qsizetype posun) {
    for (int s = 1; s <= Sloupcu; ++s)
        for (int k = 1; k <= 6; ++k)
            tiket.Cisla[s][k] = Bajt(b, posun + 6 * (s - 1) + (k - 1));
    tiket.Cislo_Tiketu = Cti_Int32(b, posun + 6 * Sloupcu);
}

void Zapis_Int16(QByteArray& b, qsizetype i, int16_t h) {
    b[i] = char(uint16_t(h) & 0xFF);
    b[i + 1] = char(uint16_t(h) >> 8);
}

void Zapis_Int32(QByteArray& b, qsizetype i, int32_t h) {
    for (int k = 0; k < 4; ++k)
        b[i + k] = char((uint32_t(h) >> (8 * k)) & 0xFF);
}

QString Jmeno_Bez_Pripony(const QString& cesta) {
    const QString jmeno = Jmeno_Bez_Adresare(cesta);
    const qsizetype tecka = jmeno.lastIndexOf(u'.');
    return tecka > 0 ? jmeno.left(tecka) : jmeno;
}

Vysledek Nelze_Nacist(const QString& jmeno) {
    return Vysledek::Chyba(u"Soubor \""_qs + jmeno + u"\" nelze načíst."_qs);
}

} // namespace

Zaznam_Tipu Cti_Zaznam_Tipu(const QByteArray& bajty) {
    Zaznam_Tipu z;
    for (int t = 1; t <= Max_Tiketu; ++t)
        Cti_Tikety<Tiket, Sloupcu_Tiketu>(bajty, z.Tikety[t], qsizetype(t - 1) * Delka_Tiketu);
    z.Pocet_Tiketu = Cti_Int16(bajty, Posun_Pocet_Tiketu);
    z.Pocet_Tipu = Cti_Int16(bajty, Posun_Pocet_Tipu);
    z.Seznam_Soubor = Cti_Text(bajty, Posun_Delky_Seznamu);
    return z;
}

Stary_Zaznam_Tipu Cti_Stary_Zaznam_Tipu(const QByteArray& bajty) {
    constexpr qsizetype posun_poctu = qsizetype(Max_Starych_Tiketu) * Delka_Stareho_Tiketu;
    Stary_Zaznam_Tipu z;
    for (int t = 1; t <= Max_Starych_Tiketu; ++t)
        Cti_Tikety<Stary_Tiket, Sloupcu_Stareho_Tiketu>(bajty, z.Tikety[t], qsizetype(t - 1) * Delka_Stareho_Tiketu);
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
    for (int t = 1; t <= Max_Tiketu; ++t) {
        const Tiket& tiket = zaznam.Tikety[t];
        const qsizetype posun = qsizetype(t - 1) * Delka_Tiketu;
        for (int s = 1; s <= Sloupcu_Tiketu; ++s)
            for (int k = 1; k <= 6; ++k)
                b[posun + 6 * (s - 1) + (k - 1)] = char(tiket.Cisla[s][k]);
        Zapis_Int32(b, posun + 6 * Sloupcu_Tiketu, tiket.Cislo_Tiketu);
    }
    Zapis_Int16(b, Posun_Pocet_Tiketu, zaznam.Pocet_Tiketu);
    Zapis_Int16(b, Posun_Pocet_Tipu, zaznam.Pocet_Tipu);
    Zapis_Int16(b, Posun_Delky_Seznamu, int16_t(text.size()));
    std::copy(text.cbegin(), text.cend(), b.begin() + Delka_Zaznamu_Tipu);
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

Vysledek Nacti_Soubor_Tipu(Stav_Tipu& stav, const QString& cesta, Otevreni otevreni) {
    const QString jmeno = Jmeno_Bez_Adresare(cesta);
    const auto bajty = Nacti_Soubor(cesta);
    if (!bajty)
        return Nelze_Nacist(jmeno);
    const bool z_dialogu = otevreni == Otevreni::Z_Dialogu;
    if (z_dialogu && bajty->isEmpty())
        return Vysledek::Chyba(u"Soubor \""_qs + jmeno + u"\" je prázdný."_qs);
    stav.Soubor_Tipu = Cti_Zaznam_Tipu(*bajty);
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

Vysledek Konvertuj_Soubor_Tipu(Stav_Tipu& stav, const QString& cesta, const Prubeh& prubeh) {
    const QString jmeno = Jmeno_Bez_Adresare(cesta);
    const auto bajty = Nacti_Soubor(cesta);
    if (!bajty)
        return Nelze_Nacist(jmeno);
    const Stary_Zaznam_Tipu stary = Cti_Stary_Zaznam_Tipu(*bajty);
    // A current file of up to 812 tickets reads 0 here too: the old count lies in its empty ticket 813.
    if (stary.Pocet_Tiketu <= 0)
        return Vysledek::Chyba(u"Soubor \""_qs + jmeno + u"\" není třeba konvertovat."_qs);
    Zaznam_Tipu novy = Preved_Stary_Zaznam(stary, prubeh);
    if (Vysledek v = Uloz_Soubor(cesta, Zapis_Zaznam_Tipu(novy)); !v.Ok())
        return v;
    stav.Soubor_Tipu = std::move(novy);
    Po_Otevreni_Tipu(stav, cesta);
    return Vysledek::Uspech();
}

void Po_Otevreni_Tipu(Stav_Tipu& stav, const QString& cesta) {
    stav.Jmeno_Souboru_Tipu = Jmeno_Bez_Pripony(cesta);
    stav.Je_Soubor_Tipu = true;
    stav.Seznam_Navazany = stav.Soubor_Tipu.Seznam_Soubor;
    stav.Pocet_Tipu_Aktivni = stav.Soubor_Tipu.Pocet_Tipu;
}
