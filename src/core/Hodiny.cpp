#include "core/Hodiny.h"

QDate Systemove_Hodiny::Dnes() const {
    return QDate::currentDate();
}

QDateTime Systemove_Hodiny::Ted() const {
    return QDateTime::currentDateTime();
}

double Systemove_Hodiny::Timer() const {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}
