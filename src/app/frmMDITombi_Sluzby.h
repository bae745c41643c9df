#pragma once
// The services of the main window for every other window: the common notice frmNeniProcedura, the
// wait with the event pump, the fields of the status band and the busy state with the progress
// bar. The frame makes one and puts it into the session.

#include "app/Sluzby_Oken.h"

#include <QPointer>

class frmMDITombi;
class frmNeniProcedura;
struct Relace;

class frmMDITombi_Sluzby final : public Sluzby_Oken {
public:
    frmMDITombi_Sluzby(Relace& relace, frmMDITombi& ram);

    void Zprava(const QString& text) override;
    void Cekej(double sekundy) override;
    void Nastav_Status(const QString& rozpis, const QString& pocet) override;
    void Nastav_Aktivni_Poradi(const QString& text) override;
    void Nastav_Soubor_Tipu(const QString& text) override;
    void Zacni_Praci() override;
    void Ukonci_Praci() override;
    bool Pracuje() const override { return Prace_Bezi; }
    Prubeh Prubeh_Prace() override;

    // The notice on show, if any, and its closing (a click on the main window closes it).
    frmNeniProcedura* Oznameni() const { return Okno_Oznameni; }
    void Zavri_Oznameni();

    bool Pauza_Pred_Zpravou = false; // the notice comes 3 seconds late
    QString Text_Zpravy;             // the text of the notice on show

private:
    Relace& Data_Relace;
    frmMDITombi& Ram;
    QPointer<frmNeniProcedura> Okno_Oznameni;
    bool Prace_Bezi = false;
};
