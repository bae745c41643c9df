#pragma once
// The main window over a program directory of its own, for tests and pictures: the archives of
// the three draw days from the real history with their dates, the session with a test clock,
// preset dialogs and an INI store for Pws.

#include "Dialogy_Testu.h"
#include "Hodiny_Testu.h"
#include "app/Relace.h"
#include "app/frmMDITombi.h"
#include "data/Nastaveni.h"

#include <QAction>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>

// The image of the archive of a draw day, imported from the operator's history.
QByteArray Archiv(Den den);
// The image of the .dny file of that archive, from the same import.
QByteArray Dny_Archivu(Den den);
// A current-format tip file of `pocet` tips.
QByteArray Soubor_Tipu(int pocet);

struct Prostredi {
    QTemporaryDir Slozka;
    Hodiny_Testu Hodiny;
    Dialogy_Testu Dialogy;
    std::unique_ptr<QSettings> Registr;
    std::unique_ptr<Relace> Data = std::make_unique<Relace>();
    std::unique_ptr<frmMDITombi> Okno;

    explicit Prostredi(const QDate& dnes);

    QString Cesta(const QString& jmeno) const;
    // Makes the frame, runs its start and shows it.
    frmMDITombi& Spust();
    // A control of the frame by its name; a missing one ends the run.
    template <class T = QWidget> T* Prvek(const QString& jmeno) const {
        T* prvek = Okno->findChild<T*>(jmeno);
        if (prvek == nullptr)
            qFatal("chybí prvek %s", qPrintable(jmeno));
        return prvek;
    }
    QAction* Prikaz(const QString& jmeno) const;
    // Opens the tip file of the program directory through the menu and the open dialog.
    void Otevri_Tipy(const QString& jmeno);
    // Captions of the visible recent tip files.
    QStringList Nedavne() const;
    // The notices on show; closed ones are gone after the events have run.
    QStringList Oznameni() const;
    Nastaveni_Zaznam Ulozene_Nastaveni() const;
};
