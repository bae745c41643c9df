// An HTTP server on 127.0.0.1 inside the test process, for the download: each path answers with
// its body, or slowly (the head, then nothing), or cut (half the body, then the connection goes).
#pragma once

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QString>

class QTcpServer;

class Server_Http final : public QObject {
public:
    enum class Chovani { Cele, Pomalu, Preruseni };
    struct Odpoved {
        QByteArray Telo;
        Chovani Jak = Chovani::Cele;
        int Status = 200;
    };

    Server_Http();
    ~Server_Http() override;
    // "127.0.0.1:port", as the settings hold the address, without a scheme.
    QString Adresa() const;
    QMap<QString, Odpoved> Cesty; // "/sportka-streda.dbf" -> its answer; others get 404
    int Pocet_Dotazu = 0;

private:
    QTcpServer* Server;
};

// A dBase table of the archive of `den` imported from the real history, as the operator serves it;
// records of no year (which the import skips) fill it up to `nejmene` bytes.
QByteArray Tabulka_Dbf(int den, qsizetype nejmene = 0);
