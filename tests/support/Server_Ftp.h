// An FTP server on 127.0.0.1 with the update account, over a folder of its own that holds
// tombi/_data.ini (when given) and tombi/data with a program, an archive and a change list; a
// slow one gives the archive at 20 KB/s. Stopped with the object.
#pragma once

#include "net/Aktualizace.h"

#include <QProcess>
#include <QTemporaryDir>

struct Server_Ftp {
    QTemporaryDir Domov;
    QProcess Proces;
    QString Adresa; // host:port, empty when the server did not start

    explicit Server_Ftp(const QByteArray& ini, bool pomalu = false,
                        const QString& heslo = QString::fromLatin1(Aktualizace::Heslo_Uctu));
    ~Server_Ftp();
    Aktualizace::Spojeni Pripojeni() const;
};
