// tombi-cli tips --append, --sort, --export and --import: the operations on a whole tip file.
#include "cli/Cli.h"

bool Je_Operace_Tipu(const QStringList& args) {
    for (const QString& volba : {u"--append"_qs, u"--sort"_qs, u"--export"_qs, u"--import"_qs})
        if (args.contains(volba))
            return true;
    return false;
}

int Operace_Tipu(const QStringList& /*args*/) {
    return Spatne_Pouziti(u"Operace se souborem tipů ještě nejsou hotové."_qs);
}
