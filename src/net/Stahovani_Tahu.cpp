#include "net/Stahovani_Tahu.h"

#include "data/Soubory.h"
#include "net/Import_Tahu.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <QUrl>

namespace Stahovani_Tahu {

namespace {

QString Adresa_Souboru(const QString& adresa, const QString& soubor) {
    QString a = adresa.trimmed();
    if (!a.contains(u"://"_qs))
        a.prepend(u"http://"_qs);
    if (soubor.isEmpty())
        return a;
    if (!a.endsWith(u'/'))
        a += u'/';
    return a + soubor;
}

Vysledek Neuspech(const QString& adresa) {
    return Vysledek::Chyba(u"Neúspěšný přenos dat z \""_qs + adresa + u"\"."_qs);
}

// Fetches a table or the export: the bytes when they are there and long enough.
Odpoved Stahni_Zdroj(const QString& adresa, qsizetype nejmene, const Zadani& z, const std::function<bool()>& zrusit,
                     const Prubeh& prubeh) {
    Odpoved o = Stahni(adresa, z.Limit_Ms, zrusit, prubeh);
    if (o.Stav.Ok() && o.Data.size() < nejmene)
        o.Stav = Vysledek::Chyba(Text_Chyby_Prenosu);
    return o;
}

Vysledek Importuj(const Zadani& z, Den den, const QString& zdroj, int smazat, const Radek& radek, const QString& jmeno,
                  const Prubeh& prubeh) {
    radek(Radek_Aktualizace(jmeno), false);
    Archiv_Tahu archiv;
    Nastav_Den_Archivu(archiv, den);
    const Vysledek v = Importuj_Tahy(archiv, z.Adresar, zdroj, z.Zaloha_Tahu, smazat, prubeh);
    if (v.Ok())
        radek(Radek_Aktualizace(jmeno), true);
    return v;
}

Vysledek Stahni_Csv(const Zadani& z, const Radek& radek, const std::function<bool()>& zrusit, const Prubeh& prubeh) {
    const Odpoved o = Stahni_Zdroj(Adresa_Souboru(z.Csv, {}), Nejmensi_Streda, z, zrusit, prubeh);
    if (!o.Stav.Ok())
        return o.Stav;
    radek(Radek_Spojeni, true);
    radek(Radek_Csv, false);
    // All three days are read before anything is written: an export that fails one day rebuilds
    // none, so the archives never come from two different sources.
    const QString soubor = QString::fromUtf16(Soubor_Csv);
    for (const Den den : Dny_Losovani) {
        const Import_Vysledek zkouska = Importuj_Csv(o.Data, den);
        if (!zkouska.Stav.Ok())
            return zkouska.Stav;
        if (zkouska.Pocet_Let() == 0)
            return Vysledek::Chyba(Text_Chybneho_Zdroje(soubor, true));
    }
    if (const Vysledek zapis = Uloz_Soubor(Spoj_Cestu(z.Adresar, soubor), o.Data); !zapis.Ok())
        return zapis;
    radek(Radek_Csv, true);
    const std::pair<Den, QString> dny[] = {
        {Den::Streda, u"STŘEDA"_qs}, {Den::Patek, u"PÁTEK"_qs}, {Den::Nedele, u"NEDĚLE"_qs}};
    for (std::size_t i = 0; i < std::size(dny); ++i) {
        // The export serves all three days: it may go only after the last.
        const int smazat = i + 1 == std::size(dny) ? z.Smazat_Dbf : 0;
        if (const Vysledek v = Importuj(z, dny[i].first, soubor, smazat, radek, dny[i].second, prubeh); !v.Ok())
            return v;
    }
    return Vysledek::Uspech();
}

} // namespace

QString Radek_Aktualizace(const QString& den) {
    return u" aktualizace dat tahů  "_qs + den;
}

Odpoved Stahni(const QString& adresa, int limit_ms, const std::function<bool()>& zrusit, const Prubeh& prubeh) {
    const QUrl url(adresa, QUrl::StrictMode);
    if (!url.isValid() || url.host().isEmpty() || (url.scheme() != u"http" && url.scheme() != u"https"))
        return {{}, Neuspech(adresa)};
    QNetworkAccessManager spojeni;
    QNetworkRequest pozadavek(url);
    pozadavek.setTransferTimeout(limit_ms);
    pozadavek.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    QNetworkReply* odpoved = spojeni.get(pozadavek);
    QEventLoop smycka;
    bool prilis_velke = false;
    bool zruseno = false;
    QObject::connect(odpoved, &QNetworkReply::finished, &smycka, &QEventLoop::quit);
    QObject::connect(odpoved, &QNetworkReply::downloadProgress, &smycka, [&](qint64 prijato, qint64 celkem) {
        if (prijato > Nejvic_Zdroje_Tahu || celkem > Nejvic_Zdroje_Tahu) {
            prilis_velke = true;
            odpoved->abort();
            return;
        }
        if (prubeh && celkem > 0)
            prubeh(int(prijato * 100 / celkem));
    });
    // A stop is asked for from the window's button, between events.
    QTimer hlidac;
    QObject::connect(&hlidac, &QTimer::timeout, &smycka, [&] {
        if (zrusit && zrusit()) {
            zruseno = true;
            odpoved->abort();
        }
    });
    hlidac.start(50);
    if (!odpoved->isFinished())
        smycka.exec();
    hlidac.stop();
    Odpoved o;
    const int status = odpoved->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (zruseno)
        o.Stav = Vysledek::Chyba(Text_Zruseno);
    else if (prilis_velke)
        o.Stav = Vysledek::Chyba(u"Odpověď serveru \""_qs + adresa + u"\" je větší než jakákoli historie tahů."_qs);
    else if (odpoved->error() == QNetworkReply::OperationCanceledError)
        o.Stav = Vysledek::Chyba(Neuspech(adresa).Zprava + u" Server neodpověděl včas."_qs);
    else if (odpoved->error() != QNetworkReply::NoError || status >= 400)
        o.Stav = Neuspech(adresa);
    else
        o.Data = odpoved->readAll();
    delete odpoved;
    return o;
}

Vysledek Stahni_Data_Tahu(const Zadani& z, const Radek& radek, const std::function<bool()>& zrusit,
                          const Prubeh& prubeh) {
    radek(Radek_Spojeni, false);
    if (!z.Csv.trimmed().isEmpty()) {
        const Vysledek v = Stahni_Csv(z, radek, zrusit, prubeh);
        if (v.Ok())
            radek(Radek_Konec, true);
        return v;
    }
    const Odpoved streda = Stahni_Zdroj(Adresa_Souboru(z.Adresa, z.Data1), Nejmensi_Streda, z, zrusit, prubeh);
    if (!streda.Stav.Ok())
        return streda.Stav;
    radek(Radek_Spojeni, true);
    radek(Radek_Streda, false);
    if (const Vysledek zapis = Uloz_Soubor(Spoj_Cestu(z.Adresar, z.Data1), streda.Data); !zapis.Ok())
        return zapis;
    radek(Radek_Streda, true);
    radek(Radek_Nedele, false);
    const Odpoved nedele = Stahni_Zdroj(Adresa_Souboru(z.Adresa, z.Data2), Nejmensi_Nedele, z, zrusit, prubeh);
    if (nedele.Stav.Ok()) {
        if (const Vysledek zapis = Uloz_Soubor(Spoj_Cestu(z.Adresar, z.Data2), nedele.Data); !zapis.Ok())
            return zapis;
        radek(Radek_Nedele, true);
    }
    if (const Vysledek v = Importuj(z, Den::Streda, z.Data1, z.Smazat_Dbf, radek, u"STŘEDA"_qs, prubeh); !v.Ok())
        return v;
    // A Sunday table that did not come skips its import only; Wednesday's stands.
    if (!nedele.Stav.Ok())
        return nedele.Stav;
    if (const Vysledek v = Importuj(z, Den::Nedele, z.Data2, z.Smazat_Dbf, radek, u"NEDĚLE"_qs, prubeh); !v.Ok())
        return v;
    radek(Radek_Konec, true);
    return Vysledek::Uspech();
}

} // namespace Stahovani_Tahu
