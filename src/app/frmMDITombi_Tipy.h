#pragma once
// The commands of the menu Tipy that open no window of their own: opening a tip file (also from
// the recent files), converting one of the old format, appending another file, sorting the tips,
// and the text form out and in.

#include "data/Soubor_Tipu.h"

class frmMDITombi;
class QString;
struct Relace;

namespace frmMDITombi_Tipy {

void Pripoj_Prikazy(frmMDITombi& ram);
// Opens a tip file into the store and takes it as the open file. A refusal is told by Zprava.
void Otevri_Soubor_Tipu(frmMDITombi& ram, const QString& cesta, Otevreni otevreni);
// Forgets the open tip file: no active tips, no name, "0 tipů".
void Zapomen_Soubor_Tipu(Relace& relace);
// The tips just read bring their bettors' list: the open list is emptied and its window closed, and
// the list the file names is read from the lists' folder.
void Nacti_Navazany_Seznam(frmMDITombi& ram);

} // namespace frmMDITombi_Tipy
