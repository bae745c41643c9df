// Tombi: the desktop program. One instance a user: a second start hands over to the first, which
// comes to the front. The frame and its windows live in tombi_gui.
#include "app/Cestina.h"
#include "core/Hodiny.h"
#include "app/Relace.h"
#include "app/frmCDlg.h"
#include "app/frmKresleni.h"
#include "app/frmMDITombi.h"
#include "data/Nastaveni.h"
#include "data/Soubory.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <cstdio>
#include <memory>

namespace {

const QByteArray Prikaz_Ukaz = QByteArrayLiteral("ukaz");

QString Jmeno_Serveru() {
    QString uzivatel = qEnvironmentVariable("USER");
    if (uzivatel.isEmpty())
        uzivatel = qEnvironmentVariable("USERNAME");
    if (uzivatel.isEmpty())
        uzivatel = QDir::home().dirName();
    return u"Tombi-"_qs + uzivatel;
}

// Asks a running instance to come to the front; false when there is none.
bool Predej_Prvnimu(const QString& server) {
    QLocalSocket spojeni;
    spojeni.connectToServer(server);
    if (!spojeni.waitForConnected(1000))
        return false;
    spojeni.write(Prikaz_Ukaz);
    spojeni.waitForBytesWritten(1000);
    spojeni.disconnectFromServer();
    return true;
}

void Poslouchej(QLocalServer& server, const QString& jmeno, QMainWindow& okno) {
    server.setSocketOptions(QLocalServer::UserAccessOption);
    if (!server.listen(jmeno)) {
        // What a crashed run leaves behind; without a listener the program still runs, only alone.
        QLocalServer::removeServer(jmeno);
        server.listen(jmeno);
    }
    QObject::connect(&server, &QLocalServer::newConnection, &okno, [&server, &okno] {
        while (QLocalSocket* spojeni = server.nextPendingConnection()) {
            QObject::connect(spojeni, &QLocalSocket::disconnected, spojeni, &QObject::deleteLater);
            const auto precti = [spojeni, &okno] {
                if (!spojeni->readAll().contains(Prikaz_Ukaz))
                    return;
                okno.showNormal();
                okno.raise();
                okno.activateWindow();
            };
            QObject::connect(spojeni, &QLocalSocket::readyRead, &okno, precti);
            if (spojeni->bytesAvailable() > 0)
                precti();
        }
    });
}

// The program's directory holds tombi.cfg and, by default, all data. Beside the program when the
// user may write there; otherwise in the user's data folder, which gets the shipped archives on
// its first start.
QString Adresar_Programu() {
    const QString u_programu = QCoreApplication::applicationDirPath();
    if (QFileInfo(u_programu).isWritable())
        return u_programu;
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(data);
    // The shipped dates are true of any archive of their day, so they join an older folder too.
    for (const Den den : Dny_Losovani)
        for (const QString& soubor : {Soubor_Tahu_Dne(den), Soubor_Dnu(Soubor_Tahu_Dne(den))}) {
            const QString cil = Spoj_Cestu(data, soubor);
            if (!QFile::exists(cil))
                QFile::copy(Spoj_Cestu(u_programu, soubor), cil);
        }
    return data;
}

} // namespace

int main(int argc, char** argv) {
    QElapsedTimer od_spusteni;
    od_spusteni.start();
    Priprav_Zapis_Souboru();
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringView(Organizace_Registru).toString());
    QApplication::setApplicationName(QStringView(Aplikace_Registru).toString());
    QApplication::setWindowIcon(frmKresleni::Ikona_Programu());
    Nastav_Cestinu_Qt();

    const QString server = Jmeno_Serveru();
    if (Predej_Prvnimu(server))
        return 0;

    auto relace = std::make_unique<Relace>();
    relace->Cesta_Programu = Adresar_Programu();
    Systemove_Hodiny hodiny;
    QSettings registr(QStringView(Organizace_Registru).toString(), QStringView(Aplikace_Registru).toString());
    relace->Cas = &hodiny;
    relace->Registr = &registr;

    frmMDITombi okno(*relace);
    frmCDlg dialogy(&okno);
    relace->Dialog = &dialogy;
    QLocalServer posluchac;
    Poslouchej(posluchac, server, okno);

    okno.Start();

    // For the developer: how long the start takes, from here to a shown window and an idle loop.
    if (qEnvironmentVariableIsSet("TOMBI_MERENI_STARTU"))
        QTimer::singleShot(0, &okno, [&od_spusteni] {
            std::fprintf(stderr, "Start: %lld ms\n", static_cast<long long>(od_spusteni.elapsed()));
            QCoreApplication::exit(0);
        });
    return QApplication::exec();
}
