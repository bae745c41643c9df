#include "Server_Http.h"

#include "Prostredi_Okna.h"

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>

Server_Http::Server_Http() : Server(new QTcpServer(this)) {
    Server->listen(QHostAddress::LocalHost, 0);
    connect(Server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* spojeni = Server->nextPendingConnection()) {
            connect(spojeni, &QTcpSocket::disconnected, spojeni, &QObject::deleteLater);
            connect(spojeni, &QTcpSocket::readyRead, spojeni, [this, spojeni] {
                const QByteArray dotaz = spojeni->peek(65536);
                if (!dotaz.contains("\r\n\r\n"))
                    return;
                spojeni->readAll();
                ++Pocet_Dotazu;
                const QByteArray cesta = dotaz.split(' ').value(1);
                const Odpoved odpoved = Cesty.value(QString::fromLatin1(cesta), {"nenalezeno", Chovani::Cele, 404});
                spojeni->write("HTTP/1.1 " + QByteArray::number(odpoved.Status) + " X\r\nContent-Length: " +
                               QByteArray::number(odpoved.Telo.size()) + "\r\nConnection: close\r\n\r\n");
                switch (odpoved.Jak) {
                case Chovani::Cele:
                    spojeni->write(odpoved.Telo);
                    spojeni->disconnectFromHost();
                    break;
                case Chovani::Pomalu:
                    break;
                case Chovani::Preruseni:
                    spojeni->write(odpoved.Telo.left(odpoved.Telo.size() / 2));
                    spojeni->flush();
                    spojeni->abort();
                    break;
                }
            });
        }
    });
}

Server_Http::~Server_Http() = default;

QString Server_Http::Adresa() const {
    return u"127.0.0.1:"_qs + QString::number(Server->serverPort());
}

QByteArray Tabulka_Dbf(int den, qsizetype nejmene) {
    QByteArray b = '\x03' + QByteArray(543, '\0') + '\x0D';
    const auto dvoumistne = [](int n) { return QByteArray::number(n).rightJustified(2, ' '); };
    for (const Rok_Zaznam& rok : Cti_Roky(Archiv(Den(den)))) {
        if (rok.Rok == 0)
            continue;
        for (int t = 1; t <= 53; ++t) {
            const Tyden_Zaznam& tyden = rok.Tyden[t];
            if (!Vb::Je_Pravda(tyden.Je_Tah1))
                continue;
            QByteArray zaznam = ' ' + QByteArray::number(rok.Rok) + dvoumistne(t);
            for (const Tah* tah : {&tyden.Tah1, &tyden.Tah2})
                for (int i = 1; i <= 7; ++i)
                    zaznam += Vb::Je_Pravda(tyden.Je_Tah2) || tah == &tyden.Tah1 ? dvoumistne((*tah)[i]) : "  ";
            b += zaznam;
        }
    }
    while (b.size() + 1 < nejmene)
        b += ' ' + QByteArray(34, '0');
    return b + '\x1A';
}
