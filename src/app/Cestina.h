#pragma once
// Qt's own texts in Czech: the buttons and labels of the file, font and colour dialogs, the context
// menus of text fields and the system menus of the inner windows, and Czech dates and names of
// days and months wherever Qt shows them.

// Installs Qt's Czech translation on the running application (once; it lives as long as the
// application) and makes Czech the default locale. Returns whether the translation was found;
// without it Qt stays English but the locale is Czech all the same.
bool Nastav_Cestinu_Qt();
