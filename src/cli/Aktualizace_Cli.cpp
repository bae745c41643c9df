// tombi-cli update: the program update without a window. Each row of the offer is printed with
// "novy" or "aktualni"; with --vse the new ones are fetched, and each fetched file is printed as
// "stazeno <file>", then the closing word if a program came.
#include "cli/Cli.h"
#include "net/Aktualizace.h"

#include <QFileInfo>

int Aktualizace_Programu(const QStringList& args) {
    const Argumenty a = Rozeber(args, {u"--server"_qs, u"--dir"_qs}, {u"--vse"_qs});
    if (!a.Chyba.isEmpty() || !a.Pozicni.isEmpty() || !a.Volba(u"--server"_qs) || !a.Volba(u"--dir"_qs))
        return Spatne_Pouziti(a.Chyba);
    const QString adresar = *a.Volba(u"--dir"_qs);
    if (!QFileInfo(adresar).isDir())
        return Chyba(u"Složka \""_qs + adresar + u"\" neexistuje."_qs);
    Aktualizace::Spojeni spojeni;
    spojeni.Server = *a.Volba(u"--server"_qs);
    const Aktualizace::Nabidka nabidka = Aktualizace::Zjisti_Verze(spojeni, adresar, QStringLiteral(TOMBI_VERZE));
    if (!nabidka.Stav.Ok())
        return Chyba(nabidka.Stav.Zprava);
    for (int i = 0; i < Aktualizace::Pocet_Radku; ++i)
        Vypis(Aktualizace::Soubory()[std::size_t(i)].Text + (nabidka.Nove[std::size_t(i)] ? u" novy"_qs : u" aktualni"_qs));
    if (!a.Prepinace.contains(u"--vse"))
        return Uspech;
    const Aktualizace::Stazeni st = Aktualizace::Stahni_Soubory(spojeni, adresar, nabidka.Nove);
    for (const QString& soubor : st.Stazene)
        Vypis(u"stazeno "_qs + soubor);
    if (!st.Stav.Ok())
        return Chyba(st.Stav.Zprava);
    if (!st.Zprava.isEmpty())
        Vypis(st.Zprava);
    return Uspech;
}
