#pragma once
// The whole Sunday archive of the shipped history, read once for the benchmarks.
#include "data/Archiv_Tahu.h"
#include "net/Import_Tahu.h"

#include <QFile>
#include <cstdlib>

inline const Archiv_Tahu& Archiv_Nedele() {
    static const Archiv_Tahu archiv = [] {
        QFile f(QStringLiteral(TOMBI_HISTORIE));
        if (!f.open(QIODevice::ReadOnly))
            std::abort();
        Archiv_Tahu a;
        Nastav_Den_Archivu(a, Den::Nedele);
        const Import_Vysledek v = Importuj_Csv(f.readAll(), Den::Nedele);
        if (!v.Stav.Ok())
            std::abort();
        a.Pole_Tahu = v.Roky;
        a.Pocet_Let = v.Pocet_Let();
        Priprav_Seznamy_Tahu(a);
        return a;
    }();
    return archiv;
}
