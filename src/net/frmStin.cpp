#include "net/frmStin.h"

#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmMDITombi.h"
#include "app/frmOProgramu.h"
#include "app/frmOvladani.h"
#include "core/Tabulka_Textu.h"
#include "net/Aktualizace.h"
#include "net/Stahovani_Tahu.h"
#include "settings/Nastaveni_Programu.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QThread>
#include <QUrl>
#include <QVBoxLayout>

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmStin"_qs};

} // namespace

frmStin::frmStin(frmMDITombi& ram, QWidget* parent)
    : QWidget(parent), lstPrubeh(Okno.Pojmenuj(new QListWidget(this), u"lstPrubeh"_qs)),
      lblOtazka(Okno.Pojmenuj(new QLabel(this), u"lblOtazka"_qs)),
      prgPrubeh(Okno.Pojmenuj(new QProgressBar(this), u"prgPrubeh"_qs)),
      cmdZrusit(Okno.Pojmenuj(new QPushButton(this), u"cmdZrusit"_qs)),
      cmdDownloadAno(Okno.Pojmenuj(new QPushButton(this), u"cmdDownloadAno"_qs)),
      cmdDownloadNe(Okno.Pojmenuj(new QPushButton(this), u"cmdDownloadNe"_qs)),
      cmdOK(Okno.Pojmenuj(new QPushButton(this), u"cmdOK"_qs)), Ram(ram), Sezeni(ram.Sezeni()) {
    setObjectName(Okno.Jmeno);
    setWindowTitle(Tabulka_Textu::Programu().Text(Okno.Jmeno));
    lstPrubeh->setMinimumSize(lstPrubeh->fontMetrics().horizontalAdvance(QString(52, u'x')), 150);
    lblOtazka->setWordWrap(true);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->addWidget(lstPrubeh, 1);
    for (std::size_t i = 0; i < chkDownload.size(); ++i) {
        chkDownload[i] = Okno.Pojmenuj(new QCheckBox(this), modNastaveni_Ovladani::Indexem(u"chkDownload"_qs, int(i)));
        chkDownload[i]->hide();
        rozlozeni->addWidget(chkDownload[i]);
    }
    rozlozeni->addWidget(lblOtazka);
    rozlozeni->addWidget(prgPrubeh);
    auto* tlacitka = new QHBoxLayout;
    tlacitka->addStretch();
    for (QPushButton* t : {cmdDownloadAno, cmdDownloadNe, cmdZrusit, cmdOK})
        tlacitka->addWidget(t);
    rozlozeni->addLayout(tlacitka);
    connect(cmdZrusit, &QPushButton::clicked, this, [this] {
        Zrusit = true;
        cmdZrusit->setEnabled(false);
    });
    connect(cmdOK, &QPushButton::clicked, this, &QWidget::close);
    connect(cmdDownloadNe, &QPushButton::clicked, this, &QWidget::close);
    connect(cmdDownloadAno, &QPushButton::clicked, this, [this] {
        std::array<bool, 7> znacky{};
        for (std::size_t i = 0; i < chkDownload.size(); ++i)
            znacky[i] = chkDownload[i]->isChecked();
        if (Stahnout)
            Stahnout(znacky);
    });
    Rezim_Prubehu();
    modNastaveni_Ovladani::Napoveda(this, u"Tahy"_qs);
}

void frmStin::Rezim_Prubehu() {
    lstPrubeh->show();
    for (QCheckBox* radek : chkDownload)
        radek->hide();
    lblOtazka->hide();
    cmdDownloadAno->hide();
    cmdDownloadNe->hide();
    cmdZrusit->show();
    cmdZrusit->setEnabled(true);
    cmdOK->setEnabled(false);
    prgPrubeh->show();
    prgPrubeh->setValue(0);
    Zrusit = false;
}

void frmStin::Radek(const QString& text, bool hotovo) {
    QListWidgetItem* polozka = nullptr;
    for (int i = 0; i < lstPrubeh->count() && polozka == nullptr; ++i)
        if (lstPrubeh->item(i)->text() == text)
            polozka = lstPrubeh->item(i);
    if (polozka == nullptr) {
        polozka = new QListWidgetItem(text, lstPrubeh);
        polozka->setFlags(Qt::ItemIsEnabled);
    }
    // The row at work stands out; a row done gets its mark.
    QFont pismo = polozka->font();
    pismo.setBold(!hotovo);
    polozka->setFont(pismo);
    polozka->setCheckState(hotovo ? Qt::Checked : Qt::Unchecked);
    lstPrubeh->scrollToItem(polozka);
}

void frmStin::Prubeh(int procenta) {
    prgPrubeh->setValue(std::clamp(procenta, 0, 100));
}

void frmStin::Konec() {
    Bezi = false;
    cmdZrusit->setEnabled(false);
    cmdOK->setEnabled(true);
}

bool frmStin::Stahni_Data_Tahu() {
    if (Bezi)
        return false;
    Bezi = true;
    lstPrubeh->clear();
    Rezim_Prubehu();
    const Nastaveni_Zaznam& n = Sezeni.Nastaveni;
    Stahovani_Tahu::Zadani z;
    z.Adresa = n.FTP_Adresa;
    z.Data1 = n.FTP_Data1;
    z.Data2 = n.FTP_Data2;
    z.Adresar = Sezeni.Adresar_Dat();
    z.Zaloha_Tahu = n.Zaloha_Tahu;
    z.Smazat_Dbf = n.Smazat_Dbf;
    if (Sezeni.Registr != nullptr)
        z.Csv = Sezeni.Registr->value(QString::fromUtf16(Nastaveni_Programu::Klic_Csv_Adresa)).toString();
    const Vysledek v = Stahovani_Tahu::Stahni_Data_Tahu(
        z, [this](const QString& text, bool hotovo) { Radek(text, hotovo); }, [this] { return Zrusit.load(); },
        [this](int procenta) {
            Prubeh(procenta);
            return !Zrusit;
        });
    Konec();
    // The session's day is read anew from disk: the new archive, or the old one as it stands.
    Ram.Prepni_Den(Den(Sezeni.Tikety.Den_Tahu));
    if (!v.Ok())
        Sezeni.Sluzby->Zprava(v.Zprava);
    return v.Ok();
}

void frmStin::V_Pozadi(const std::function<void()>& prace) {
    QEventLoop smycka;
    QThread* vlakno = QThread::create(prace);
    connect(vlakno, &QThread::finished, &smycka, &QEventLoop::quit);
    vlakno->start();
    smycka.exec();
    vlakno->wait();
    delete vlakno;
}

Aktualizace::Spojeni frmStin::Spojeni() {
    Aktualizace::Spojeni s;
    if (Sezeni.Registr != nullptr)
        s.Server = Sezeni.Registr->value(QString::fromUtf16(Nastaveni_Programu::Klic_Serveru_Aktualizace)).toString();
    s.Zrusit = [this] { return Zrusit.load(); };
    // The bar is moved from the thread of the transfer through this window's events.
    s.Prubeh_Prenosu = [this](int procenta) {
        QMetaObject::invokeMethod(this, [this, procenta] { Prubeh(procenta); }, Qt::QueuedConnection);
        return true;
    };
    return s;
}

bool frmStin::Aktualizace_Programu() {
    if (Bezi)
        return false;
    const Aktualizace::Spojeni spojeni = Spojeni();
    if (spojeni.Server.trimmed().isEmpty()) {
        Sezeni.Sluzby->Zprava(u"Není nastaven server aktualizací (Program - Nastavení, stránka Download)."_qs);
        close();
        return false;
    }
    Bezi = true;
    lstPrubeh->clear();
    Rezim_Prubehu();
    Radek(Stahovani_Tahu::Radek_Spojeni, false);
    Aktualizace::Nabidka nabidka;
    const QString adresar = Sezeni.Cesta_Programu, verze = Sezeni.Verze;
    V_Pozadi([&] { nabidka = Aktualizace::Zjisti_Verze(spojeni, adresar, verze); });
    Konec();
    if (!nabidka.Stav.Ok()) {
        Sezeni.Sluzby->Zprava(nabidka.Stav.Zprava);
        return false;
    }
    std::array<QString, 7> texty;
    for (std::size_t i = 0; i < texty.size(); ++i)
        texty[i] = Aktualizace::Soubory()[i].Text;
    Zobraz_Nabidku(texty, nabidka.Nove, [this](const std::array<bool, 7>& znacky) { Stahni_Soubory(znacky); });
    return true;
}

void frmStin::Stahni_Soubory(const std::array<bool, 7>& znacky) {
    if (Bezi)
        return;
    Bezi = true;
    lstPrubeh->clear();
    Rezim_Prubehu();
    const Aktualizace::Spojeni spojeni = Spojeni();
    const QString adresar = Sezeni.Cesta_Programu;
    Aktualizace::Stazeni st;
    V_Pozadi([&] {
        st = Aktualizace::Stahni_Soubory(spojeni, adresar, znacky, [this](const QString& text, bool hotovo) {
            QMetaObject::invokeMethod(this, [this, text, hotovo] { Radek(text, hotovo); }, Qt::QueuedConnection);
        });
    });
    QCoreApplication::sendPostedEvents(this);
    Konec();
    // A new archive of the day in use is read at once.
    Ram.Prepni_Den(Den(Sezeni.Tikety.Den_Tahu));
    if (!st.Stav.Ok()) {
        Sezeni.Sluzby->Zprava(st.Stav.Zprava);
        return;
    }
    if (!st.Zmeny.isEmpty())
        Ram.Otevri_Adresu(QUrl::fromLocalFile(st.Zmeny));
    if (!st.Zprava.isEmpty())
        Sezeni.Sluzby->Zprava(st.Zprava);
}

void frmStin::Zobraz_Nabidku(const std::array<QString, 7>& texty, const std::array<bool, 7>& znacky,
                             const std::function<void(const std::array<bool, 7>&)>& stahnout) {
    Stahnout = stahnout;
    lstPrubeh->hide();
    bool nove = false;
    for (std::size_t i = 0; i < chkDownload.size(); ++i) {
        chkDownload[i]->setText(texty[i]);
        chkDownload[i]->setChecked(znacky[i]);
        chkDownload[i]->show();
        nove = nove || znacky[i];
    }
    lblOtazka->setText(nove ? u"Provést stažení vybraných souborů ?"_qs
                            : u"Všechny soubory jsou aktuální, netřeba downloadu."_qs);
    lblOtazka->show();
    prgPrubeh->hide();
    cmdDownloadAno->show();
    cmdDownloadAno->setEnabled(nove);
    cmdDownloadNe->show();
    cmdZrusit->hide();
    cmdOK->setEnabled(true);
}

void frmStin::closeEvent(QCloseEvent* udalost) {
    // A running fetch is stopped first; the window goes once it has ended cleanly.
    if (Bezi) {
        Zrusit = true;
        udalost->ignore();
        return;
    }
    udalost->accept();
}

void frmStin::Pripoj_Prikazy(frmMDITombi& ram) {
    ram.Obsluz(ram.mnuDownload, [&ram] {
        ram.Zavri_Okno<frmOProgramu>();
        ram.Otevri_Okno<frmStin>(ram)->Stahni_Data_Tahu();
    });
    ram.Obsluz(ram.mnuWebTombiNovaVer, [&ram] { ram.Otevri_Okno<frmStin>(ram)->Aktualizace_Programu(); });
}
