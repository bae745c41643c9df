#pragma once
// A clock for tests: a fixed day and time, and a timer that moves on by `Krok` seconds each time
// it is read, so that a wait ends after a few reads without a real second passing.

#include "core/Hodiny.h"

class Hodiny_Testu final : public Hodiny {
public:
    explicit Hodiny_Testu(QDateTime ted = QDateTime(QDate(2026, 11, 20), QTime(20, 0)));

    QDateTime Cas;
    double Krok = 0.5;
    mutable double Cas_Timeru;

    QDate Dnes() const override;
    QDateTime Ted() const override;
    double Timer() const override;
};
