// tombi-cli download: the draw data download without a window; the rows of the download window
// are printed as they are done, one a line.
#include "cli/Cli.h"
#include "net/Stahovani_Tahu.h"

#include <QCoreApplication>
#include <QFileInfo>

int Stahovani(const QStringList& args) {
    const Argumenty a = Rozeber(args, {u"--adresa"_qs, u"--csv"_qs, u"--dir"_qs}, {});
    if (!a.Chyba.isEmpty() || !a.Pozicni.isEmpty() || !a.Volba(u"--adresa"_qs) || !a.Volba(u"--dir"_qs))
        return Spatne_Pouziti(a.Chyba);
    Stahovani_Tahu::Zadani z;
    z.Adresa = *a.Volba(u"--adresa"_qs);
    z.Csv = a.Volba(u"--csv"_qs).value_or(QString());
    z.Adresar = *a.Volba(u"--dir"_qs);
    z.Data1 = u"sportka-streda.dbf"_qs;
    z.Data2 = u"sportka-nedele.dbf"_qs;
    if (!QFileInfo(z.Adresar).isDir())
        return Chyba(u"Složka \""_qs + z.Adresar + u"\" neexistuje."_qs);
    // The network needs an application object for its events.
    int argc = 1;
    char nazev[] = "tombi-cli";
    char* argv[] = {nazev, nullptr};
    const QCoreApplication aplikace(argc, argv);
    const Vysledek v = Stahovani_Tahu::Stahni_Data_Tahu(
        z,
        [](const QString& text, bool hotovo) {
            if (hotovo)
                Vypis(text);
        },
        [] { return false; });
    return v.Ok() ? Uspech : Chyba(v.Zprava);
}
