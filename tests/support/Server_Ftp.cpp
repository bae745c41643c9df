#include "Server_Ftp.h"

#include "Bajty.h"

#include <QDir>

Server_Ftp::Server_Ftp(const QByteArray& ini, bool pomalu, const QString& heslo) {
    QDir(Domov.path()).mkpath(u"tombi/data"_qs);
    if (!ini.isEmpty())
        Zapis_Souboru(Domov.filePath(u"tombi/_data.ini"_qs), ini);
    Zapis_Souboru(Domov.filePath(u"tombi/data/tombi_"_qs), "novy program");
    Zapis_Souboru(Domov.filePath(u"tombi/data/SpS_tahy.sez"_qs), QByteArray(pomalu ? 400000 : 956, 'S'));
    Zapis_Souboru(Domov.filePath(u"tombi/data/_zmeny.txt"_qs), "zmeny");
    Proces.setWorkingDirectory(Domov.path());
    QStringList argumenty{QStringLiteral(TOMBI_SERVER_FTP), Domov.path(), QString::fromLatin1(Aktualizace::Uzivatel),
                          heslo};
    if (pomalu)
        argumenty << u"--pomalu"_qs;
    Proces.start(u"/usr/bin/python3"_qs, argumenty);
    if (Proces.waitForReadyRead(10000))
        Adresa = u"127.0.0.1:"_qs + QString::fromLatin1(Proces.readLine().trimmed());
}

Server_Ftp::~Server_Ftp() {
    Proces.kill();
    Proces.waitForFinished();
}

Aktualizace::Spojeni Server_Ftp::Pripojeni() const {
    Aktualizace::Spojeni s;
    s.Server = Adresa;
    s.Limit_S = 5;
    return s;
}
