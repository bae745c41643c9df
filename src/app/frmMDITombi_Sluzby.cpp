#include "app/frmMDITombi_Sluzby.h"

#include "app/Relace.h"
#include "app/frmMDITombi.h"
#include "app/frmMDITombi_Stav.h"
#include "app/frmNeniProcedura.h"
#include "app/modTombi.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTimer>

frmMDITombi_Sluzby::frmMDITombi_Sluzby(Relace& relace, frmMDITombi& ram) : Data_Relace(relace), Ram(ram) {}

void frmMDITombi_Sluzby::Zprava(const QString& text) {
    if (Pauza_Pred_Zpravou)
        Cekej(3);
    Text_Zpravy = text;
    Zavri_Oznameni();
    Okno_Oznameni = new frmNeniProcedura(text, &Ram);
}

void frmMDITombi_Sluzby::Zavri_Oznameni() {
    if (Okno_Oznameni)
        Okno_Oznameni->close();
}

void frmMDITombi_Sluzby::Cekej(double sekundy) {
    // The pump sleeps until the next event, and this timer is sure to bring one, so the wait does
    // not spin the processor.
    QTimer buzik;
    buzik.start(10);
    modTombi::Cekej(*Data_Relace.Cas, sekundy, [] { QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); });
}

void frmMDITombi_Sluzby::Nastav_Status(const QString& rozpis, const QString& pocet) {
    Ram.Stav()->txtPocet_Vybranych->setText(pocet);
    Ram.Stav()->txtRozpisAktivni->setText(rozpis);
}

void frmMDITombi_Sluzby::Nastav_Aktivni_Poradi(const QString& text) {
    Ram.Stav()->lblAktivniPoradi->setText(text);
}

void frmMDITombi_Sluzby::Nastav_Soubor_Tipu(const QString& text) {
    Ram.Stav()->Nastav_Soubor_Tipu(text);
}

void frmMDITombi_Sluzby::Zacni_Praci() {
    Ram.Stav()->Ukaz_Prubeh(true);
    if (Prace_Bezi)
        return;
    Prace_Bezi = true;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    Ram.Obnov_Povoleni();
}

void frmMDITombi_Sluzby::Ukonci_Praci() {
    if (!Prace_Bezi)
        return;
    Prace_Bezi = false;
    QApplication::restoreOverrideCursor();
    Ram.Stav()->Ukaz_Prubeh(false);
    Ram.Obnov_Povoleni();
}

Prubeh frmMDITombi_Sluzby::Prubeh_Prace() {
    return [this](int procenta) {
        Ram.Stav()->PercentBar1->setValue(procenta);
        QCoreApplication::processEvents();
        return !Data_Relace.Tikety.Zrusit_Beh;
    };
}
