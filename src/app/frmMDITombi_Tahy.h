#pragma once
// The commands of the menu Tahy that open no window of their own: the import of the draw data
// from the file on disk, the return to the backup of the archive, and the operator's web site.

class frmMDITombi;

namespace frmMDITombi_Tahy {

void Pripoj_Prikazy(frmMDITombi& ram);

} // namespace frmMDITombi_Tahy
