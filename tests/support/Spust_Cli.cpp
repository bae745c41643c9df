#include "Spust_Cli.h"

#include <QProcess>

Beh Spust(const QStringList& argumenty, const QString& program, const std::function<void()>& v_potomkovi) {
    QProcess p;
    if (v_potomkovi)
        p.setChildProcessModifier(v_potomkovi);
    p.start(program, argumenty);
    p.waitForFinished(60000);
    return {p.exitCode(), QString::fromUtf8(p.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts),
            QString::fromUtf8(p.readAllStandardError())};
}
