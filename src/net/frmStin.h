#pragma once
// The window of the internet steps: the rows of the draw data download as they start and end,
// with a bar, a stop and a close; and the offer of the program update, a row a file with its mark.

#include "net/Aktualizace.h"

#include <QWidget>
#include <array>
#include <atomic>
#include <functional>

class QCheckBox;
class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;
class frmMDITombi;
struct Relace;

class frmStin final : public QWidget {
    Q_OBJECT

public:
    explicit frmStin(frmMDITombi& ram, QWidget* parent = nullptr);

    // mnuDownload and mnuWebTombiNovaVer.
    static void Pripoj_Prikazy(frmMDITombi& ram);

    // Stahni_Data_Tahu with the settings of the session; the session's draw day is loaded anew
    // afterwards, whatever came. False when the download failed or was stopped.
    bool Stahni_Data_Tahu();

    // mnuWebTombiNovaVer: asks the update server what is new and offers it; yes fetches the marked
    // files. False when the server could not be asked.
    bool Aktualizace_Programu();

    // The offer mode: a row a file with its mark, and the question or the word that all is current.
    // `stahnout` runs with the marks when the user says yes.
    void Zobraz_Nabidku(const std::array<QString, 7>& texty, const std::array<bool, 7>& znacky,
                        const std::function<void(const std::array<bool, 7>&)>& stahnout);
    // A step of a long job in the rows, and its progress; for the update's fetch.
    void Radek(const QString& text, bool hotovo);
    void Prubeh(int procenta);
    void Konec();

    QListWidget* lstPrubeh;
    std::array<QCheckBox*, 7> chkDownload{};
    QLabel* lblOtazka;
    QProgressBar* prgPrubeh;
    QPushButton* cmdZrusit;
    QPushButton* cmdDownloadAno;
    QPushButton* cmdDownloadNe;
    QPushButton* cmdOK;

protected:
    void closeEvent(QCloseEvent* udalost) override;

private:
    void Rezim_Prubehu();
    void Stahni_Soubory(const std::array<bool, 7>& znacky);
    Aktualizace::Spojeni Spojeni();
    // Runs a call that waits for a server on a thread of its own, with this window's events running.
    void V_Pozadi(const std::function<void()>& prace);

    frmMDITombi& Ram;
    Relace& Sezeni;
    bool Bezi = false;
    std::atomic<bool> Zrusit = false;
    std::function<void(const std::array<bool, 7>&)> Stahnout;
};
