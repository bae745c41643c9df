#pragma once
// What every window needs of the main window: the common notice, the wait with the event pump,
// the status band and the busy state with its progress. Windows reach it through the session
// (Relace::Sluzby), so they need not know the frame; tombi-cli and engine tests have none.

#include "core/Prubeh.h"

#include <QString>

class Sluzby_Oken {
public:
    virtual ~Sluzby_Oken() = default;

    // The common notice: it replaces the one on show and never holds the caller up.
    virtual void Zprava(const QString& text) = 0;
    // A pause with the event pump running, by the session's clock.
    virtual void Cekej(double sekundy) = 0;
    virtual void Nastav_Status(const QString& rozpis, const QString& pocet) = 0;
    virtual void Nastav_Aktivni_Poradi(const QString& text) = 0;
    // A new count of active tips: "1 tip", "3 tipy", "5 tipů"; a text with "tip" stands as it is.
    virtual void Nastav_Soubor_Tipu(const QString& text) = 0;

    // The busy state: the progress bar in place of the picked numbers, the hourglass, and the
    // commands off. It is one state, not a count: a second Zacni_Praci changes nothing, and one
    // Ukonci_Praci ends it whoever began it. Callers of a long job hold a Prace instead.
    virtual void Zacni_Praci() = 0;
    virtual void Ukonci_Praci() = 0;
    virtual bool Pracuje() const = 0;
    // The progress callback of the engines: moves the bar, lets events run, and answers false once
    // a stop is asked for (Zrusit_Beh).
    virtual Prubeh Prubeh_Prace() = 0;
};

// The busy state for the life of a scope. Only the outermost Prace begins and ends it, so a job
// inside a job, an early return or an exception cannot leave the commands off. Without services
// (tombi-cli, engine tests) it does nothing and its progress is empty.
class Prace final {
public:
    explicit Prace(Sluzby_Oken* sluzby);
    ~Prace();
    Prace(const Prace&) = delete;
    Prace& operator=(const Prace&) = delete;

    Prubeh Prubeh_Prace() const;

private:
    Sluzby_Oken* Sluzby;
    bool Zacala = false;
};
