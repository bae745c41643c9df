// tombi-cli run as a script runs it: the exit code, the lines of stdout and the text of stderr.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

struct Beh {
    int Kod = -1;
    QStringList Radky;
    QString Chyby;
};

// Runs tombi-cli, or `program`; `v_potomkovi` runs in the child before the program starts.
Beh Spust(const QStringList& argumenty, const QString& program = QStringLiteral(TOMBI_CLI),
          const std::function<void()>& v_potomkovi = {});
