#pragma once
// The common dialogs as every window opens them: open and save of a file, the printer, and the two
// fonts of the settings. They go through the session's Dialogy, so tests answer them.

#include <QString>

struct Relace;

// typ 0 open, 1 save (jmeno proposed), 2 printer, 3 and 4 the first and the second font of the
// settings (the second is saved at once). `jmeno` receives the chosen path. On cancel `vysledek`
// is false and the current directory returns to the data directory.
void Otevri_Dialog(Relace& relace, int typ, const QString& filtr, const QString& nazev, QString& jmeno,
                   const QString& sloz, bool& vysledek);
