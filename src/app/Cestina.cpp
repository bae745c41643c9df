#include "app/Cestina.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

bool Nastav_Cestinu_Qt() {
    const QLocale cesky(QLocale::Czech, QLocale::Czechia);
    QLocale::setDefault(cesky);

    QCoreApplication* aplikace = QCoreApplication::instance();
    if (aplikace == nullptr)
        return false;
    // The main program and each test fixture call this; a second call must not stack a second copy.
    static QPointer<QTranslator> preklad;
    if (preklad && preklad->parent() == aplikace)
        return true;
    auto* novy = new QTranslator(aplikace);
    if (!novy->load(cesky, u"qtbase"_qs, u"_"_qs, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete novy;
        return false;
    }
    QCoreApplication::installTranslator(novy);
    preklad = novy;
    return true;
}
