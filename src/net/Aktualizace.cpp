#include "net/Aktualizace.h"

#include "data/Archiv_Tahu.h"
#include "data/Soubory.h"

#include <QDate>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <QUrl>

#include <curl/curl.h>

namespace Aktualizace {

namespace {

// A file of the update is a program or a history: far below this.
constexpr qsizetype Nejvic_Souboru = 256 * 1024 * 1024;

struct Prenos {
    QByteArray Data;
    const Spojeni* S = nullptr;
    bool Prilis_Velky = false;
    bool Zruseno = false;
};

size_t Zapis(char* data, size_t velikost, size_t pocet, void* uzivatel) {
    auto* p = static_cast<Prenos*>(uzivatel);
    const size_t bajtu = velikost * pocet;
    if (p->Data.size() + qsizetype(bajtu) > Nejvic_Souboru) {
        p->Prilis_Velky = true;
        return 0;
    }
    p->Data.append(data, qsizetype(bajtu));
    return bajtu;
}

int Prubeh_Curl(void* uzivatel, curl_off_t celkem, curl_off_t prijato, curl_off_t, curl_off_t) {
    auto* p = static_cast<Prenos*>(uzivatel);
    if (p->S->Zrusit && p->S->Zrusit()) {
        p->Zruseno = true;
        return 1;
    }
    if (p->S->Prubeh_Prenosu && celkem > 0)
        p->S->Prubeh_Prenosu(int(prijato * 100 / celkem));
    return 0;
}

struct Vysledek_Prenosu {
    QByteArray Data;
    CURLcode Kod = CURLE_OK;
    bool Zruseno = false;
};

// One file of the account, whole in memory.
Vysledek_Prenosu Stahni(const Spojeni& s, const QString& cesta) {
    static const bool pripraveno = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
    Vysledek_Prenosu v;
    CURL* curl = pripraveno ? curl_easy_init() : nullptr;
    if (curl == nullptr) {
        v.Kod = CURLE_FAILED_INIT;
        return v;
    }
    Prenos p;
    p.S = &s;
    const QByteArray url = "ftp://" + s.Server.trimmed().toUtf8() + '/' + QUrl::toPercentEncoding(cesta, "/");
    const QByteArray uzivatel = s.Uzivatel.toUtf8(), heslo = s.Heslo.toUtf8();
    curl_easy_setopt(curl, CURLOPT_URL, url.constData());
    curl_easy_setopt(curl, CURLOPT_USERNAME, uzivatel.constData());
    curl_easy_setopt(curl, CURLOPT_PASSWORD, heslo.constData());
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "ftp,ftps");
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, Zapis);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &p);
    curl_easy_setopt(curl, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(curl, CURLOPT_XFERINFOFUNCTION, Prubeh_Curl);
    curl_easy_setopt(curl, CURLOPT_XFERINFODATA, &p);
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT, long(s.Limit_S));
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_TIME, long(s.Limit_S));
    curl_easy_setopt(curl, CURLOPT_FTP_RESPONSE_TIMEOUT, long(s.Limit_S));
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    v.Kod = curl_easy_perform(curl);
    curl_easy_cleanup(curl);
    v.Zruseno = p.Zruseno;
    if (p.Prilis_Velky)
        v.Kod = CURLE_WRITE_ERROR;
    if (v.Kod == CURLE_OK)
        v.Data = std::move(p.Data);
    return v;
}

// The message of a failed transfer: a stop, a refused login, or the expected text.
Vysledek Chyba_Prenosu(const Vysledek_Prenosu& v, const QString& ocekavana) {
    if (v.Zruseno)
        return Vysledek::Chyba(Text_Zruseno);
    if (v.Kod == CURLE_LOGIN_DENIED)
        return Vysledek::Chyba(ocekavana + u"\nServer aktualizací odmítl přihlášení."_qs);
    if (v.Kod == CURLE_OPERATION_TIMEDOUT)
        return Vysledek::Chyba(ocekavana + u"\nServer aktualizací neodpověděl včas."_qs);
    return Vysledek::Chyba(ocekavana);
}

QDate Datum(const QString& text) {
    const QString t = text.trimmed().section(u' ', 0, 0);
    for (const QString& tvar : {u"d.M.yyyy"_qs, u"yyyy-MM-dd"_qs, u"d. M. yyyy"_qs})
        if (const QDate d = QDate::fromString(t, tvar); d.isValid())
            return d;
    return {};
}

// "2.0" and "2.0.1" as the server writes them: the digits of major, minor and revision joined.
qint64 Cislo_Verze(const QString& verze) {
    QStringList casti = verze.split(u'.');
    while (casti.size() < 3)
        casti << u"0"_qs;
    return casti.mid(0, 3).join(QString()).toLongLong();
}

} // namespace

const std::array<Soubor_Aktualizace, Pocet_Radku>& Soubory() {
    static const std::array<Soubor_Aktualizace, Pocet_Radku> soubory = {{
        {u"program TOMBI_.EXE"_qs, u"program"_qs, u"tombi_"_qs},
        {u"popis programu TOMBI.HLP"_qs, u"help"_qs, u"tombi.chm"_qs},
        {u"datový soubor SpS_tahy.szn "_qs, u"data_str"_qs, u"SpS_tahy.sez"_qs},
        {u"datový soubor SpN_tahy.szn"_qs, u"data_ned"_qs, u"SpN_tahy.sez"_qs},
        {u"rozpisy pro import KOLOVKA.EXE"_qs, u"rozpisy"_qs, u"Kolovka.exe"_qs},
        {u"pro společníky prg. TOMBI_VYHODNOCENI.EXE"_qs, u"uzivatele"_qs, u"Tombi_Vyhodnoceni.exe"_qs},
        {u"popis změn programu"_qs, u"popis"_qs, u"_zmeny.txt"_qs},
    }};
    return soubory;
}

Nabidka Zjisti_Verze(const Spojeni& spojeni, const QString& adresar, const QString& verze) {
    Nabidka n;
    const Vysledek_Prenosu ini = Stahni(spojeni, u"tombi/_data.ini"_qs);
    if (ini.Kod == CURLE_REMOTE_FILE_NOT_FOUND) {
        n.Stav = Vysledek::Chyba(Text_Neni_Ini);
        return n;
    }
    if (ini.Kod != CURLE_OK) {
        n.Stav = Chyba_Prenosu(ini, Text_Chyba_Prenosu);
        return n;
    }
    QTemporaryDir docasna;
    const QString cesta = docasna.filePath(u"_data.ini"_qs);
    if (!docasna.isValid() || !Uloz_Soubor(cesta, ini.Data).Ok()) {
        n.Stav = Vysledek::Chyba(Text_Chyba_Ini);
        return n;
    }
    QSettings data(cesta, QSettings::IniFormat);
    data.beginGroup(u"new"_qs);
    const QString program = data.value(u"program"_qs).toString().trimmed().left(50);
    bool cislo = false;
    const qint64 na_serveru = program.toLongLong(&cislo);
    if (data.status() != QSettings::NoError || !cislo) {
        n.Stav = Vysledek::Chyba(Text_Chyba_Ini);
        return n;
    }
    n.Nove[0] = Cislo_Verze(verze) < na_serveru;
    for (int i = 1; i < Pocet_Radku; ++i) {
        const Soubor_Aktualizace& s = Soubory()[std::size_t(i)];
        const QDate na_serveru_dne = Datum(data.value(s.Klic).toString().left(50));
        if (!na_serveru_dne.isValid()) {
            n.Stav = Vysledek::Chyba(Text_Chyba_Ini);
            return n;
        }
        // The companion program is offered, never chosen for the user.
        if (s.Klic == u"uzivatele")
            continue;
        const QFileInfo mistni(Spoj_Cestu(adresar, s.Soubor));
        // A file that is not here yet is new: the user is better served by getting it.
        n.Nove[std::size_t(i)] = !mistni.exists() || na_serveru_dne > mistni.lastModified().date();
    }
    n.Stav = Vysledek::Uspech();
    return n;
}

Stazeni Stahni_Soubory(const Spojeni& spojeni, const QString& adresar, const std::array<bool, Pocet_Radku>& znacky,
                       const std::function<void(const QString& text, bool hotovo)>& radek) {
    Stazeni st;
    for (int i = 0; i < Pocet_Radku; ++i) {
        if (!znacky[std::size_t(i)])
            continue;
        const Soubor_Aktualizace& s = Soubory()[std::size_t(i)];
        if (radek)
            radek(s.Text, false);
        const Vysledek_Prenosu v = Stahni(spojeni, u"tombi/data/"_qs + s.Soubor);
        if (v.Kod != CURLE_OK) {
            st.Stav = Chyba_Prenosu(v, Text_Chyba_Souboru);
            return st;
        }
        // Only a whole file goes in; an archive keeps the one it replaces as its backup, under its
        // lock, so the window or tombi-cli never write over each other.
        const QString cil = Spoj_Cestu(adresar, s.Soubor);
        Vysledek zapis;
        if (s.Soubor.endsWith(u".sez"_qs)) {
            const Zamek_Archivu zamek(adresar, s.Soubor);
            zapis = zamek.Chyba().isEmpty()
                        ? Uloz_Se_Zalohou(cil, v.Data, Spoj_Cestu(adresar, Jmeno_Zalohy(s.Soubor)))
                        : Vysledek::Chyba(zamek.Chyba());
        } else {
            zapis = Uloz_Soubor(cil, v.Data);
            // The new program must be startable as it stands.
            if (zapis.Ok() && i == 0)
                QFile::setPermissions(cil, QFile::permissions(cil) | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
        }
        if (!zapis.Ok()) {
            st.Stav = zapis;
            return st;
        }
        st.Stazene << s.Soubor;
        if (radek)
            radek(s.Text, true);
    }
    QString programy;
    if (znacky[0])
        programy += u" tombi_"_qs;
    if (znacky[4])
        programy += programy.isEmpty() ? u" kolovka.exe"_qs : u", kolovka.exe"_qs;
    if (!programy.isEmpty())
        st.Zprava = u"Ukončete program a spusttě "_qs + programy;
    if (znacky[6])
        st.Zmeny = Spoj_Cestu(adresar, Soubory()[6].Soubor);
    st.Stav = Vysledek::Uspech();
    return st;
}

} // namespace Aktualizace
