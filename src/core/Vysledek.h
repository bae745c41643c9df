#pragma once
// The outcome of an operation that the user can mend: either it went through, or it carries the
// Czech message that the caller shows with Zprava. Nothing is thrown.

#include <QString>

struct Vysledek {
    QString Zprava; // empty when the operation went through

    bool Ok() const { return Zprava.isEmpty(); }
    static Vysledek Uspech() { return {}; }
    static Vysledek Chyba(QString zprava) { return {std::move(zprava)}; }
};
