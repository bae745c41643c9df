#include "Prostredi_Okna.h"

#include "Bajty.h"
#include "app/Cestina.h"
#include "app/frmNeniProcedura.h"
#include "data/Soubory.h"
#include "net/Import_Tahu.h"

#include <QCoreApplication>

QByteArray Archiv(Den den) {
    const Import_Vysledek import = Importuj_Csv(Obsah_Souboru(QStringLiteral(TOMBI_HISTORIE)), den);
    return Zapis_Roky(import.Roky, import.Pocet_Let());
}

QByteArray Dny_Archivu(Den den) {
    return Zapis_Dny(Importuj_Csv(Obsah_Souboru(QStringLiteral(TOMBI_HISTORIE)), den).Dny);
}

QByteArray Soubor_Tipu(int pocet) {
    Zaznam_Tipu zaznam;
    for (int i = 0; i < pocet; ++i) {
        Tiket& tiket = zaznam.Tikety[i / 10 + 1];
        tiket.Cislo_Tiketu = i / 10 + 1;
        tiket.Cisla[i % 10 + 1] = Cisla<Tip>({1, 2, 3, 4, 5, 6 + i % 40});
    }
    zaznam.Pocet_Tiketu = int16_t((pocet + 9) / 10);
    zaznam.Pocet_Tipu = int16_t(pocet);
    return Zapis_Zaznam_Tipu(zaznam);
}

Prostredi::Prostredi(const QDate& dnes) : Hodiny(QDateTime(dnes, QTime(18, 0))) {
    // Qt's own texts in Czech, as the program has them.
    Nastav_Cestinu_Qt();
    Registr = std::make_unique<QSettings>(Cesta(u"registr.ini"_qs), QSettings::IniFormat);
    Data->Cas = &Hodiny;
    Data->Dialog = &Dialogy;
    Data->Registr = Registr.get();
    Data->Cesta_Programu = Slozka.path();
    for (const Den den : Dny_Losovani) {
        Zapis_Souboru(Cesta(Soubor_Tahu_Dne(den)), Archiv(den));
        Zapis_Souboru(Cesta(Soubor_Dnu(Soubor_Tahu_Dne(den))), Dny_Archivu(den));
    }
}

QString Prostredi::Cesta(const QString& jmeno) const {
    return Slozka.filePath(jmeno);
}

frmMDITombi& Prostredi::Spust() {
    Okno = std::make_unique<frmMDITombi>(*Data);
    Okno->Start();
    Okno->show();
    return *Okno;
}

QAction* Prostredi::Prikaz(const QString& jmeno) const {
    return Prvek<QAction>(jmeno);
}

void Prostredi::Otevri_Tipy(const QString& jmeno) {
    Dialogy.Soubory.enqueue(Cesta(jmeno));
    Prikaz(u"mnuOtevriSouborTipu"_qs)->trigger();
}

QStringList Prostredi::Nedavne() const {
    QStringList polozky;
    for (int i = 1; i <= 9; ++i)
        if (QAction* prvek = Prikaz(u"mnuRecentFile(%1)"_qs.arg(i)); prvek->isVisible())
            polozky << prvek->text();
    return polozky;
}

QStringList Prostredi::Oznameni() const {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QStringList texty;
    for (const frmNeniProcedura* okno : Okno->findChildren<frmNeniProcedura*>())
        if (okno->isVisible())
            texty << okno->Text();
    return texty;
}

Nastaveni_Zaznam Prostredi::Ulozene_Nastaveni() const {
    return Cti_Nastaveni(Obsah_Souboru(Cesta(u"tombi.cfg"_qs)));
}
