#include "Hodiny_Testu.h"

Hodiny_Testu::Hodiny_Testu(QDateTime ted) : Cas(std::move(ted)), Cas_Timeru(Cas.time().msecsSinceStartOfDay() / 1000.0) {}

QDate Hodiny_Testu::Dnes() const {
    return Cas.date();
}

QDateTime Hodiny_Testu::Ted() const {
    return Cas;
}

double Hodiny_Testu::Timer() const {
    const double t = Cas_Timeru;
    Cas_Timeru += Krok;
    return t;
}
