#pragma once
// The clock as the program reads it: today, now, and the Basic timer of seconds since midnight.
// Tests put in a clock of their own, so that a start can fall on any weekday and a wait takes
// no real second.

#include <QDate>
#include <QDateTime>

class Hodiny {
public:
    virtual ~Hodiny() = default;
    virtual QDate Dnes() const = 0;
    virtual QDateTime Ted() const = 0;
    // Seconds since midnight with their fraction; falls back to 0 at midnight.
    virtual double Timer() const = 0;
};

class Systemove_Hodiny final : public Hodiny {
public:
    QDate Dnes() const override;
    QDateTime Ted() const override;
    double Timer() const override;
};
