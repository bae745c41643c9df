#include "archive/Editor_Tahu.h"

#include "core/Vb.h"
#include "data/Soubory.h"

#include <QFileInfo>
#include <algorithm>

namespace {

int Platny_Pocet_Let(const Archiv_Tahu& archiv) {
    return std::clamp(archiv.Pocet_Let, 0, int(archiv.Pole_Tahu.size()) - 1);
}

const Rok_Zaznam& Zaznam(const Archiv_Tahu& archiv, int r) {
    return archiv.Pole_Tahu[std::size_t(r)];
}

bool Je_Tah(const Tyden_Zaznam& tyden, int tah) {
    return Vb::Je_Pravda(tah == Prvni_Tah ? tyden.Je_Tah1 : tyden.Je_Tah2);
}

const Tah& Cisla(const Tyden_Zaznam& tyden, int tah) {
    return tah == Prvni_Tah ? tyden.Tah1 : tyden.Tah2;
}

Tah& Cisla(Tyden_Zaznam& tyden, int tah) {
    return tah == Prvni_Tah ? tyden.Tah1 : tyden.Tah2;
}

void Nastav_Priznak(Tyden_Zaznam& tyden, int tah, bool je) {
    (tah == Prvni_Tah ? tyden.Je_Tah1 : tyden.Je_Tah2) = Vb::Bool16(je);
}

bool Rok_Ma_Tahy(const Rok_Zaznam& rok, int tah) {
    return std::any_of(rok.Tyden.begin(), rok.Tyden.end(), [tah](const Tyden_Zaznam& t) { return Je_Tah(t, tah); });
}

bool Platny_Tyden(int tyden) {
    return tyden >= 1 && tyden <= 53;
}

// The week of the draw in hand, or nothing when the year or the week is not in the archive.
Tyden_Zaznam* Tyden_Roku(Archiv_Tahu& archiv, int rok, int tyden) {
    const int r = Najdi_Rok(archiv, rok);
    if (r == 0 || !Platny_Tyden(tyden))
        return nullptr;
    return &archiv.Pole_Tahu[std::size_t(r)].Tyden[tyden];
}

// The non-empty boxes go into the draw; an empty one leaves what stands there.
void Uloz_Boxy(Tah& tah, const Boxy_Tahu& boxy) {
    for (int k = 1; k <= 7; ++k)
        if (boxy[k] != 0)
            tah[k] = boxy[k];
}

Uprava_Tahu Zmena(Archiv_Tahu& archiv) {
    Priprav_Seznamy_Tahu(archiv);
    return {true, {}};
}

} // namespace

QString Radek_Roku(int rok) {
    return Vb::Str(int64_t(rok));
}

QString Radek_Tahu_Seznamu(int tyden, const Tah& tah) {
    QString radek = QString::number(tyden) + (tyden < 10 ? u"   - "_qs : u" - "_qs);
    for (int k = 1; k <= 6; ++k) {
        radek += tah[k] < 10 ? u"   "_qs : u" "_qs;
        if (tah[k] != 0)
            radek += Vb::Str(int64_t(tah[k]));
    }
    radek += tah[7] != 0 ? u" - "_qs + QString::number(tah[7]) : u"   "_qs;
    return radek;
}

Seznam_Tahu Vypis_Cisla_Tahu(const Archiv_Tahu& archiv, int tah, const Prubeh& prubeh) {
    Seznam_Tahu seznam;
    const int pocet_let = Platny_Pocet_Let(archiv);
    Sledovani_Prubehu sledovani(prubeh, pocet_let);
    for (int r = 1; r <= pocet_let; ++r) {
        const Rok_Zaznam& rok = Zaznam(archiv, r);
        bool rok_zapsan = false;
        for (int t = 1; t <= 53; ++t) {
            if (!Je_Tah(rok.Tyden[t], tah))
                continue;
            if (!rok_zapsan) {
                seznam.Radky << Radek_Roku(rok.Rok);
                rok_zapsan = true;
            }
            seznam.Radky << Radek_Tahu_Seznamu(t, Cisla(rok.Tyden[t], tah));
            ++seznam.Pocet_Tahu;
        }
        if (prubeh)
            sledovani.Krok(r);
    }
    return seznam;
}

int Poradi_Tahu(const QStringList& radky, int radek) {
    if (radek < 0 || radek >= radky.size() || !Je_Radek_Tahu(radky[radek]))
        return 0;
    return int(std::count_if(radky.begin(), radky.begin() + radek + 1, Je_Radek_Tahu));
}

int Rok_Radku(const QStringList& radky, int radek) {
    for (int i = std::min(radek, int(radky.size()) - 1); i >= 0; --i) {
        const int rok = int(Vb::Val(QStringView(radky[i]).left(5)));
        if (!Je_Radek_Tahu(radky[i]) && rok >= 1956 && rok < 2100)
            return rok;
    }
    return 0;
}

int Najdi_Rok(const Archiv_Tahu& archiv, int rok) {
    const int pocet_let = Platny_Pocet_Let(archiv);
    for (int r = 1; r <= pocet_let; ++r)
        if (Zaznam(archiv, r).Rok == rok)
            return r;
    return 0;
}

bool Kontrola_Obsazeni(const Archiv_Tahu& archiv, int tah, int rok, int tyden) {
    const int r = Najdi_Rok(archiv, rok);
    return r != 0 && Platny_Tyden(tyden) && Je_Tah(Zaznam(archiv, r).Tyden[tyden], tah);
}

std::optional<Tah> Cisla_Tahu(const Archiv_Tahu& archiv, int tah, int rok, int tyden) {
    if (!Kontrola_Obsazeni(archiv, tah, rok, tyden))
        return std::nullopt;
    return Cisla(Zaznam(archiv, Najdi_Rok(archiv, rok)).Tyden[tyden], tah);
}

int Najdi_Radek_Tahu(const Archiv_Tahu& archiv, int tah, int rok, int tyden) {
    // The walk counts the lines as Vypis_Cisla_Tahu writes them: a year line only for a year that
    // has a draw of the series, so a year added last is found where the list shows it.
    const int pocet_let = Platny_Pocet_Let(archiv);
    int radek = -1;
    for (int r = 1; r <= pocet_let; ++r) {
        const Rok_Zaznam& zaznam = Zaznam(archiv, r);
        if (!Rok_Ma_Tahy(zaznam, tah))
            continue;
        ++radek;
        for (int t = 1; t <= 53; ++t) {
            if (!Je_Tah(zaznam.Tyden[t], tah))
                continue;
            ++radek;
            if (zaznam.Rok == rok && t == tyden)
                return radek;
        }
    }
    return -1;
}

Uprava_Tahu Pridej_Tah(Archiv_Tahu& archiv, int tah, int rok, int tyden, const Boxy_Tahu& boxy) {
    if (tyden == 0)
        return {false, u"Chybí číslo týdne !"_qs};
    if (Kontrola_Obsazeni(archiv, tah, rok, tyden))
        return {false, u"Týden a rok již obsazen, lze pouze OPRAVIT !"_qs};
    if (!Platny_Tyden(tyden) || rok < 1 || rok > INT16_MAX)
        return {false, u"Týden musí být 1 až 53 a rok kladné číslo."_qs};
    // A draw never holds a number twice: the evaluation would count such a draw wrong.
    if (Stejna_Cisla(boxy))
        return {false, u"Pozor, zadána stejná čísla !"_qs};
    if (Najdi_Rok(archiv, rok) == 0) {
        // A new year goes last; the records are never sorted.
        archiv.Pocet_Let = Platny_Pocet_Let(archiv) + 1;
        archiv.Pole_Tahu.resize(std::size_t(archiv.Pocet_Let));
        Rok_Zaznam novy;
        novy.Rok = int16_t(rok);
        archiv.Pole_Tahu.push_back(novy);
    }
    Tyden_Zaznam& zaznam = *Tyden_Roku(archiv, rok, tyden);
    Nastav_Priznak(zaznam, tah, true);
    // Numbers a foreign file left in a week without its flag do not slip into the new draw.
    Cisla(zaznam, tah) = boxy;
    return Zmena(archiv);
}

bool Stejna_Cisla(const Boxy_Tahu& boxy) {
    for (int i = 1; i <= 6; ++i)
        for (int j = i + 1; j <= 7; ++j)
            if (boxy[j] != 0 && boxy[i] == boxy[j])
                return true;
    return false;
}

Uprava_Tahu Oprav_Tah(Archiv_Tahu& archiv, int tah, int rok, int tyden, const Boxy_Tahu& boxy) {
    if (Stejna_Cisla(boxy))
        return {false, u"Pozor, zadána stejná čísla !"_qs};
    if (!Kontrola_Obsazeni(archiv, tah, rok, tyden))
        return {false, u"Není co OPRAVIT, týden či rok neexistuje."_qs};
    Tah& cisla = Cisla(*Tyden_Roku(archiv, rok, tyden), tah);
    // The draw as it will stand is checked, old numbers kept by empty boxes included.
    Tah nova = cisla;
    Uloz_Boxy(nova, boxy);
    if (Stejna_Cisla(nova))
        return {false, u"Pozor, zadána stejná čísla !"_qs};
    if (nova == cisla)
        return {};
    cisla = nova;
    return Zmena(archiv);
}

Uprava_Tahu Smaz_Tah(Archiv_Tahu& archiv, int tah, int rok, int tyden) {
    if (Najdi_Rok(archiv, rok) == 0)
        return {false, u"Není co SMAZAT, týden či rok neexistuje."_qs};
    if (!Kontrola_Obsazeni(archiv, tah, rok, tyden))
        return {};
    Tyden_Zaznam& zaznam = *Tyden_Roku(archiv, rok, tyden);
    Nastav_Priznak(zaznam, tah, false);
    Cisla(zaznam, tah) = Tah{};
    return Zmena(archiv);
}

Vysledek Zaloha_Soubor_Tahu(const Archiv_Tahu& archiv, const QString& adresar) {
    return Zaloha_Souboru(1, archiv, adresar, archiv.Soubor_Tahu);
}

Zmena_Archivu Uprav_Archiv(Archiv_Tahu& archiv, const QString& adresar,
                           const std::function<Uprava_Tahu(Archiv_Tahu&)>& zmena) {
    Zmena_Archivu vysledek;
    const Zamek_Archivu zamek(adresar, archiv.Soubor_Tahu);
    if (!zamek.Chyba().isEmpty()) {
        vysledek.Zapis = Vysledek::Chyba(zamek.Chyba());
        return vysledek;
    }
    const QString cesta = Spoj_Cestu(adresar, archiv.Soubor_Tahu);
    if (QFileInfo::exists(cesta)) {
        const Nacteny_Soubor nacteny = Nacti_Soubor(cesta, Nejvic_Archivu);
        if (!nacteny.Ok()) {
            vysledek.Zapis = Vysledek::Chyba(nacteny.Zprava(archiv.Soubor_Tahu));
            return vysledek;
        }
        std::vector<Rok_Zaznam> na_disku = Cti_Roky(nacteny.Data);
        const int pocet_let = Platny_Pocet_Let(archiv);
        const bool stejne = int(na_disku.size()) - 1 == pocet_let &&
                            std::equal(na_disku.begin() + 1, na_disku.end(), archiv.Pole_Tahu.begin() + 1);
        if (!stejne) {
            archiv.Pole_Tahu = std::move(na_disku);
            archiv.Pocet_Let = int(archiv.Pole_Tahu.size()) - 1;
            archiv.Dny = Nacti_Dny(adresar, archiv.Soubor_Tahu);
            archiv.Tahy_Nacteny = true;
            Priprav_Seznamy_Tahu(archiv);
            vysledek.Znovu_Nacteno = true;
        }
    }
    vysledek.Uprava = zmena(archiv);
    if (vysledek.Uprava.Zmeneno)
        vysledek.Zapis = Zaloha_Soubor_Tahu(archiv, adresar);
    return vysledek;
}
