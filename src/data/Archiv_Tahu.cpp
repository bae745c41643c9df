#include "data/Archiv_Tahu.h"

#include "core/Vb.h"
#include "data/Soubory.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QMutex>
#include <algorithm>
#include <cstring>
#include <map>
#include <optional>

namespace {

QString Chybi_Soubor(const QString& soubor) {
    return u"Chybí soubor tahů  \""_qs + soubor + u"\"  v aktuálním adresáři."_qs;
}

// Little-endian 16 bits from a record whose short tail reads as zeros.
int16_t Cti_16(const uint8_t* p) {
    return int16_t(uint16_t(p[0]) | uint16_t(p[1]) << 8);
}

void Zapis_16(char* p, int16_t hodnota) {
    p[0] = char(uint16_t(hodnota) & 0xFF);
    p[1] = char(uint16_t(hodnota) >> 8);
}

Rok_Zaznam Rok_Z_Bajtu(const uint8_t* p) {
    Rok_Zaznam rok;
    rok.Rok = Cti_16(p);
    for (int w = 1; w <= 53; ++w) {
        const uint8_t* t = p + 2 + Delka_Tydne * (w - 1);
        Tyden_Zaznam& tyden = rok.Tyden[w];
        for (int i = 1; i <= 7; ++i) {
            tyden.Tah1[i] = t[i - 1];
            tyden.Tah2[i] = t[7 + i - 1];
        }
        tyden.Je_Tah1 = Cti_16(t + 14);
        tyden.Je_Tah2 = Cti_16(t + 16);
    }
    return rok;
}

void Rok_Do_Bajtu(const Rok_Zaznam& rok, char* p) {
    Zapis_16(p, rok.Rok);
    for (int w = 1; w <= 53; ++w) {
        char* t = p + 2 + Delka_Tydne * (w - 1);
        const Tyden_Zaznam& tyden = rok.Tyden[w];
        for (int i = 1; i <= 7; ++i) {
            t[i - 1] = char(tyden.Tah1[i]);
            t[7 + i - 1] = char(tyden.Tah2[i]);
        }
        Zapis_16(t + 14, tyden.Je_Tah1);
        Zapis_16(t + 16, tyden.Je_Tah2);
    }
}

int Platny_Pocet_Let(const Archiv_Tahu& archiv) {
    return std::clamp(archiv.Pocet_Let, 0, int(archiv.Pole_Tahu.size()) - 1);
}

// The locks this process holds, by file, with how deep they nest.
QMutex Zamky_Mutex;
std::map<QString, int>& Drzene_Zamky() {
    static std::map<QString, int> zamky;
    return zamky;
}

// What a cut-off save leaves beside a file: the names Uloz_Se_Zalohou writes aside, the older
// ".nova" and the backup an older save moved aside.
QStringList Rozepsane_Soubory(const QString& cesta) {
    const QFileInfo info(cesta);
    const QDir slozka = info.absoluteDir();
    return slozka.entryList({info.fileName() + QStringView(Pripona_Rozepsaneho) + u"*"_qs}, QDir::Files | QDir::Hidden);
}

} // namespace

int Iso_Den_Tydne(Den den) {
    switch (den) {
    case Den::Streda:
        return 3;
    case Den::Patek:
        return 5;
    case Den::Nedele:
        break;
    }
    return 7;
}

QString Soubor_Tahu_Dne(Den den) {
    switch (den) {
    case Den::Streda:
        return u"SpS_tahy.sez"_qs;
    case Den::Patek:
        return u"SpP_tahy.sez"_qs;
    case Den::Nedele:
        break;
    }
    return u"SpN_tahy.sez"_qs;
}

std::optional<Den> Den_Souboru_Tahu(const QString& soubor) {
    for (const Den den : Dny_Losovani)
        if (soubor.compare(Soubor_Tahu_Dne(den), Qt::CaseInsensitive) == 0)
            return den;
    return std::nullopt;
}

void Nastav_Den_Archivu(Archiv_Tahu& archiv, Den den) {
    archiv.Soubor_Tahu = Soubor_Tahu_Dne(den);
    // Second draws began in 1965 on Sundays; the Wednesday and the Friday game have had both since
    // they began (a few Friday draws before 2020 were one-off specials).
    archiv.Rok_Zacatek_1 = den == Den::Streda ? 1995 : den == Den::Patek ? 2020 : 1957;
    archiv.Rok_Zacatek_2 = den == Den::Streda ? 1995 : den == Den::Patek ? 2020 : 1965;
}

QString Jmeno_Zalohy(const QString& soubor) {
    return soubor.left(std::max<qsizetype>(0, soubor.size() - 4)) + u".zal"_qs;
}

std::vector<Rok_Zaznam> Cti_Roky(const QByteArray& bajty) {
    std::vector<Rok_Zaznam> roky(1);
    const auto* data = reinterpret_cast<const uint8_t*>(bajty.constData());
    const qsizetype delka = bajty.size();
    roky.reserve(std::size_t(delka / Delka_Roku + 2));
    for (qsizetype o = 0; o < delka; o += Delka_Roku) {
        Rok_Zaznam rok;
        if (delka - o >= Delka_Roku) {
            rok = Rok_Z_Bajtu(data + o);
        } else {
            uint8_t zbytek[Delka_Roku] = {};
            std::memcpy(zbytek, data + o, std::size_t(delka - o));
            rok = Rok_Z_Bajtu(zbytek);
        }
        if (rok.Rok == 0)
            break;
        roky.push_back(rok);
    }
    return roky;
}

QByteArray Zapis_Roky(const std::vector<Rok_Zaznam>& roky, int pocet_let) {
    const int pocet = std::clamp(pocet_let, 0, int(roky.size()) - 1);
    QByteArray bajty(qsizetype(pocet) * Delka_Roku, '\0');
    for (int i = 1; i <= pocet; ++i)
        Rok_Do_Bajtu(roky[std::size_t(i)], bajty.data() + qsizetype(i - 1) * Delka_Roku);
    return bajty;
}

Vysledek Nacti_Tahy(Archiv_Tahu& archiv, const QString& adresar, const QString& soubor) {
    archiv.Pole_Tahu.assign(1, Rok_Zaznam{});
    archiv.Pocet_Let = 0;
    archiv.Dny = {};
    const Nacteny_Soubor nacteny = Nacti_Soubor(Spoj_Cestu(adresar, soubor), Nejvic_Archivu);
    if (!nacteny.Ok())
        return Vysledek::Chyba(nacteny.Nelze_Otevrit ? Chybi_Soubor(soubor) : nacteny.Zprava(soubor));
    archiv.Pole_Tahu = Cti_Roky(nacteny.Data);
    archiv.Pocet_Let = int(archiv.Pole_Tahu.size()) - 1;
    archiv.Dny = Nacti_Dny(adresar, soubor);
    archiv.Tahy_Nacteny = true;
    return Vysledek::Uspech();
}

Vysledek Uloz_Tahy(const Archiv_Tahu& archiv, const QString& adresar, const QString& soubor) {
    // A whole archive written over the live one waits for an edit in progress, as every writer does;
    // where the folder is missing there is nothing to wait for, and the writer tells why it fails.
    std::optional<Zamek_Archivu> zamek;
    if (QFileInfo(adresar).isDir())
        zamek.emplace(adresar, soubor);
    if (zamek && !zamek->Chyba().isEmpty())
        return Vysledek::Chyba(zamek->Chyba());
    return Uloz_Soubor(Spoj_Cestu(adresar, soubor), Zapis_Roky(archiv.Pole_Tahu, Platny_Pocet_Let(archiv)));
}

Vysledek Zaloha_Souboru(int druh, const Archiv_Tahu& archiv, const QString& adresar, const QString& soubor) {
    const QString a = Spoj_Cestu(adresar, soubor);
    const QString b = Spoj_Cestu(adresar, Jmeno_Zalohy(soubor));
    // The editor holds the lock already over its whole change; the import takes it here.
    const Zamek_Archivu zamek(adresar, soubor);
    if (!zamek.Chyba().isEmpty())
        return Vysledek::Chyba(zamek.Chyba());
    if (druh == 1)
        return Uloz_Se_Zalohou(a, Zapis_Roky(archiv.Pole_Tahu, Platny_Pocet_Let(archiv)), b);
    // Without a live file the old backup is all there is: keep it.
    if (!QFile::exists(a))
        return Vysledek::Chyba(Chybi_Soubor(soubor));
    return Prejmenuj_Soubor(a, b);
}

Vysledek Obnov_Zalohu(const Archiv_Tahu& archiv, const QString& adresar) {
    const QString zive = Spoj_Cestu(adresar, archiv.Soubor_Tahu);
    const QString zaloha = Spoj_Cestu(adresar, Jmeno_Zalohy(archiv.Soubor_Tahu));
    if (archiv.Soubor_Tahu.isEmpty() || !QFile::exists(zaloha))
        return Vysledek::Chyba(u"Není soubor *.ZAL  v aktuálním adresáři."_qs);
    const Zamek_Archivu zamek(adresar, archiv.Soubor_Tahu);
    if (!zamek.Chyba().isEmpty())
        return Vysledek::Chyba(zamek.Chyba());
    const QString cil = Skutecna_Cesta(zive);
    if (cil != QFileInfo(zive).filePath() || QFileInfo(cil).exists()) {
        // Through a link, or over a file the user may have made read-only: the content goes where
        // the file is, with its checks, and only then is the backup used up.
        const Nacteny_Soubor obsah = Nacti_Soubor(zaloha, Nejvic_Archivu);
        if (!obsah.Ok())
            return Vysledek::Chyba(obsah.Zprava(Jmeno_Zalohy(archiv.Soubor_Tahu)));
        if (const Vysledek zapis = Uloz_Soubor(cil, obsah.Data); !zapis.Ok())
            return zapis;
        return Smaz_Soubor(zaloha);
    }
    // One rename replaces the live file, so a failure leaves both as they were.
    return Prejmenuj_Soubor(zaloha, zive);
}

Zamek_Archivu::Zamek_Archivu(const QString& adresar, const QString& soubor, int cekat_ms)
    : Cesta(QFileInfo(Skutecna_Cesta(Spoj_Cestu(adresar, soubor))).absoluteFilePath()) {
    // One file reached by two paths (a linked folder) gets one lock.
    const QFileInfo info(Cesta);
    if (const QString slozka = QFileInfo(info.absolutePath()).canonicalFilePath(); !slozka.isEmpty())
        Cesta = Spoj_Cestu(slozka, info.fileName());
    {
        const QMutexLocker zamceno(&Zamky_Mutex);
        if (auto it = Drzene_Zamky().find(Cesta); it != Drzene_Zamky().end()) {
            ++it->second;
            return;
        }
    }
    Zamek = std::make_unique<QLockFile>(Cesta + u".lock"_qs);
    if (Zamek->tryLock(cekat_ms)) {
        const QMutexLocker zamceno(&Zamky_Mutex);
        Drzene_Zamky()[Cesta] = 1;
        return;
    }
    const QString jmeno = QFileInfo(Cesta).fileName();
    switch (Zamek->error()) {
    case QLockFile::LockFailedError:
        Duvod = u"Archiv tahů \""_qs + jmeno +
                u"\" právě mění jiný program (jiné okno Tomba nebo tombi-cli). Zkuste to, prosím, znovu."_qs;
        break;
    case QLockFile::PermissionError:
        Duvod = u"Archiv tahů \""_qs + jmeno + u"\" nelze zamknout pro zápis: do složky \""_qs +
                QFileInfo(Cesta).absolutePath() + u"\" chybí oprávnění k zápisu."_qs;
        break;
    default:
        Duvod = u"Archiv tahů \""_qs + jmeno + u"\" nelze zamknout pro zápis."_qs;
        break;
    }
    Zamek.reset();
}

Zamek_Archivu::~Zamek_Archivu() {
    if (!Duvod.isEmpty())
        return;
    const QMutexLocker zamceno(&Zamky_Mutex);
    auto it = Drzene_Zamky().find(Cesta);
    if (it != Drzene_Zamky().end() && --it->second == 0)
        Drzene_Zamky().erase(it);
    // The QLockFile, if this is the outer lock, unlocks as it goes.
}

Preruseny_Zapis Uklid_Po_Preruseni(const QString& adresar, const QString& soubor) {
    Preruseny_Zapis nalez;
    const QString zive = Skutecna_Cesta(Spoj_Cestu(adresar, soubor));
    const QString zaloha = Skutecna_Cesta(Spoj_Cestu(adresar, Jmeno_Zalohy(soubor)));
    const QString odlozena = zaloha + u".predchozi"_qs;
    const bool stopy = QFile::exists(odlozena) || !Rozepsane_Soubory(zive).isEmpty() ||
                       !Rozepsane_Soubory(zaloha).isEmpty() || !QFile::exists(zive);
    if (!stopy)
        return nalez;
    const Zamek_Archivu zamek(adresar, soubor, 2000);
    if (!zamek.Chyba().isEmpty())
        return nalez;
    if (QFile::exists(odlozena) && !QFile::exists(zaloha))
        Prejmenuj_Soubor(odlozena, zaloha);
    if (!QFile::exists(zive)) {
        // What was written aside may be all there is of the last edit: it stays for the user.
        nalez.Zaloha_Bez_Archivu = QFileInfo(zaloha).isFile();
        return nalez;
    }
    // The archive stands whole, old or new: what a cut-off save wrote aside is no one's any more.
    QStringList zbytky;
    for (const QString& jmeno : Rozepsane_Soubory(zive))
        zbytky << QFileInfo(zive).absoluteDir().filePath(jmeno);
    for (const QString& jmeno : Rozepsane_Soubory(zaloha))
        zbytky << QFileInfo(zaloha).absoluteDir().filePath(jmeno);
    if (QFile::exists(odlozena))
        zbytky << odlozena;
    for (const QString& zbytek : zbytky)
        if (QFile::remove(zbytek))
            nalez.Uklizeno << QFileInfo(zbytek).fileName();
    return nalez;
}

Vysledek Obnov_Chybejici_Archiv(const QString& adresar, const QString& soubor) {
    const Zamek_Archivu zamek(adresar, soubor);
    if (!zamek.Chyba().isEmpty())
        return Vysledek::Chyba(zamek.Chyba());
    const QString jmeno_zalohy = Jmeno_Zalohy(soubor);
    const Nacteny_Soubor obsah = Nacti_Soubor(Spoj_Cestu(adresar, jmeno_zalohy), Nejvic_Archivu);
    if (!obsah.Ok())
        return Vysledek::Chyba(obsah.Zprava(jmeno_zalohy));
    return Uloz_Soubor(Spoj_Cestu(adresar, soubor), obsah.Data);
}

void Priprav_Seznamy_Tahu(Archiv_Tahu& archiv) {
    const int pocet_let = Platny_Pocet_Let(archiv);
    auto sestav = [&](std::vector<Tah>& tahy, int& pocet, bool prvni) {
        tahy.assign(1, Tah{});
        for (int r = 1; r <= pocet_let; ++r)
            for (const Tyden_Zaznam& tyden : archiv.Pole_Tahu[std::size_t(r)].Tyden)
                if (Vb::Je_Pravda(prvni ? tyden.Je_Tah1 : tyden.Je_Tah2))
                    tahy.push_back(prvni ? tyden.Tah1 : tyden.Tah2);
        pocet = int(tahy.size()) - 1;
    };
    sestav(archiv.Tahy_1, archiv.Pocet_Tahy_1, true);
    sestav(archiv.Tahy_2, archiv.Pocet_Tahy_2, false);
}

std::pair<int, int> Spocitej_Tahy(const Archiv_Tahu& archiv) {
    int prvni = 0, druhe = 0;
    const int pocet_let = Platny_Pocet_Let(archiv);
    for (int r = 1; r <= pocet_let; ++r)
        for (const Tyden_Zaznam& tyden : archiv.Pole_Tahu[std::size_t(r)].Tyden) {
            prvni += Vb::Je_Pravda(tyden.Je_Tah1);
            druhe += Vb::Je_Pravda(tyden.Je_Tah2);
        }
    return {prvni, druhe};
}

std::pair<int, int> Rok_A_Tyden(const Archiv_Tahu& archiv, int tah, int index) {
    const int pocet_let = Platny_Pocet_Let(archiv);
    int poradi = 0;
    for (int r = 1; r <= pocet_let; ++r) {
        const Rok_Zaznam& rok = archiv.Pole_Tahu[std::size_t(r)];
        for (int t = 1; t <= 53; ++t)
            if (Vb::Je_Pravda(tah == 1 ? rok.Tyden[t].Je_Tah1 : rok.Tyden[t].Je_Tah2) && ++poradi == index)
                return {rok.Rok, t};
    }
    return {0, 0};
}
