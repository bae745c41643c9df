// tombi-cli wheel: the rows of a built-in wheel with its guarantees, a .rzp wheel read and checked,
// and either expanded over the user's numbers into a tip file.
#include "cli/Cli.h"

int Rozpisy(const QStringList& /*args*/) {
    return Spatne_Pouziti(u"Rozpisy ještě nejsou hotové."_qs);
}
