// The main window, offscreen, driven through its menus by the controls' names: the start on a given
// weekday, the window's place, the day without an archive, the close, tip files and the recent list,
// the notice, the busy state, the import, and the windows inside the MDI area.
#include "Bajty.h"
#include "Dialogy_Testu.h"
#include "Hodiny_Testu.h"
#include "Prostredi_Okna.h"
#include "app/Relace.h"
#include "app/frmMDITombi.h"
#include "app/frmMDITombi_Sluzby.h"
#include "app/frmMDITombi_Stav.h"
#include "app/frmMDITombi_Tipy.h"
#include "app/frmTombi_uvod.h"
#include "app/frmNapoveda.h"
#include "app/frmNeniProcedura.h"
#include "app/frmOProgramu.h"
#include "data/Nastaveni.h"
#include "data/Soubory.h"
#include "net/Import_Tahu.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>
#include <memory>

namespace {

const QDate Streda(2026, 11, 25);
// Saturday takes the Sunday draw.
const QDate Sobota(2026, 11, 28);

// An old-format file: one ticket of three tips, shorter than the tip counter of the current format.
QByteArray Stary_Soubor_Tipu() {
    QByteArray bajty(Delka_Stareho_Zaznamu, '\0');
    for (int sloupec = 0; sloupec < 3; ++sloupec)
        for (int i = 0; i < 6; ++i)
            bajty[sloupec * 6 + i] = char(7 + sloupec + i * 7);
    bajty.replace(48, 4, Bajty(1, 4));
    bajty.replace(52000, 4, QByteArray(Bajty(1, 2) + Bajty(3, 2)));
    return bajty;
}

} // namespace

class Test_frmMDITombi final : public QObject {
    Q_OBJECT

private slots:
    void Start_Podle_Dne_V_Tydnu() {
        Prostredi streda(Streda);
        streda.Spust();
        QCOMPARE(streda.Okno->windowTitle(), u" TOMBI   "_qs + QStringLiteral(TOMBI_VERZE));
        QCOMPARE(streda.Prvek<QLineEdit>(u"txtSportka_Tah"_qs)->text(), u"STŘEDA"_qs);
        QVERIFY(streda.Prikaz(u"mnuSportka_streda"_qs)->isChecked());
        QCOMPARE(streda.Data->Archiv.Soubor_Tahu, u"SpS_tahy.sez"_qs);
        QVERIFY(streda.Data->Dalsi_Tah.isEmpty());
        QVERIFY(streda.Prvek<QLineEdit>(u"txtSportka_Tah"_qs)->toolTip().isEmpty());

        // Thursday and Friday take the Friday draw, whose next draw is that Friday.
        for (const QDate& den : {QDate(2026, 11, 26), QDate(2026, 11, 27)}) {
            Prostredi patek(den);
            patek.Spust();
            QCOMPARE(patek.Prvek<QLineEdit>(u"txtSportka_Tah"_qs)->text(), u"PÁTEK"_qs);
            QVERIFY(patek.Prikaz(u"mnuSportka_patek"_qs)->isChecked());
            QCOMPARE(patek.Prikaz(u"mnuSportka_patek"_qs)->text(), u"&Pátek"_qs);
            QCOMPARE(patek.Data->Dalsi_Tah, u"27.11.2026"_qs);
            QCOMPARE(int(patek.Data->Tikety.Den_Tahu), 2);
            QCOMPARE(patek.Data->Archiv.Soubor_Tahu, u"SpP_tahy.sez"_qs);
            QCOMPARE(patek.Data->Archiv.Rok_Zacatek_1, int16_t(2020));
            QCOMPARE(std::pair(patek.Data->Archiv.Pocet_Tahy_1, patek.Data->Archiv.Pocet_Tahy_2), std::pair(418, 418));
            // The help tells the same of a Friday start.
            patek.Prikaz(u"mnuHelp"_qs)->trigger();
            const QString napoveda = patek.Okno->Najdi_Okno<frmNapoveda>()->findChild<QTextBrowser*>()->toPlainText();
            QVERIFY(napoveda.contains(u"v pátek načte páteční archiv SpP_tahy.sez a ve stavovém pruhu svítí „PÁTEK“"_qs));
        }

        Prostredi sobota(Sobota);
        frmMDITombi& okno = sobota.Spust();
        QCOMPARE(sobota.Prvek<QLineEdit>(u"txtSportka_Tah"_qs)->text(), u"NEDĚLE"_qs);
        QVERIFY(sobota.Prikaz(u"mnuSportka_nedele"_qs)->isChecked());
        QVERIFY(!sobota.Prikaz(u"mnuSportka_streda"_qs)->isChecked());
        QCOMPARE(sobota.Data->Dalsi_Tah, u"29.11.2026"_qs);
        QCOMPARE(sobota.Prvek<QLineEdit>(u"txtSportka_Tah"_qs)->toolTip(),
                 u"Data tahů, následující tah dne 29.11.2026"_qs);
        QVERIFY(sobota.Data->Archiv.Pocet_Let > 0);
        QVERIFY(!okno.Bez_Tahu());
        // Friday stands between the other two days.
        const QList<QAction*> dny = okno.mnuVolbaTahu->actions();
        QCOMPARE(QStringList({dny[0]->objectName(), dny[1]->objectName(), dny[2]->objectName()}),
                 (QStringList{u"mnuSportka_streda"_qs, u"mnuSportka_patek"_qs, u"mnuSportka_nedele"_qs}));

        // Every command has its caption from the table, blanks and all.
        for (QAction* prikaz : okno.findChildren<QAction*>())
            if (prikaz->objectName().startsWith(u"mnu"_qs) && !prikaz->objectName().contains(u'('))
                QVERIFY2(!prikaz->text().isEmpty(), qPrintable(prikaz->objectName()));
        QCOMPARE(sobota.Prvek(u"lblAktivniPoradi"_qs)->toolTip(),
                 u" Pořadové číslo vybraného tahu nebo tipu celkem / v tiketu. "_qs);
        QVERIFY(sobota.Prikaz(u"mnuOtevriSouborTipu"_qs)->isEnabled());
    }

    void Misto_Okna() {
        {
            Prostredi prostredi(Sobota);
            Nastaveni_Zaznam nastaveni = Vychozi_Nastaveni(prostredi.Slozka.path(), u"2.0"_qs);
            nastaveni.Okno_Sirka = 5000;
            nastaveni.Okno_Vyska = 9000;
            Zapis_Souboru(prostredi.Cesta(u"tombi.cfg"_qs), Zapis_Nastaveni(nastaveni));
            frmMDITombi& okno = prostredi.Spust();
            const QRect plocha = okno.screen()->availableGeometry();
            // Centred within the frame the system draws around the window.
            QVERIFY(std::abs(okno.frameGeometry().center().x() - plocha.center().x()) <= 3);
            QVERIFY(std::abs(okno.frameGeometry().center().y() - plocha.center().y()) <= 3);
            QVERIFY(Twipy(okno.height(), okno) >= 6000);
            QVERIFY(plocha.contains(okno.frameGeometry()));
        }
        // A stored place is taken, and the close stores it again.
        Prostredi prostredi(Sobota);
        Nastaveni_Zaznam nastaveni = Vychozi_Nastaveni(prostredi.Slozka.path(), u"2.0"_qs);
        nastaveni.Okno_Leva = 1500;
        nastaveni.Okno_Horni = 1200;
        nastaveni.Okno_Sirka = 9000;
        nastaveni.Okno_Vyska = 6900;
        nastaveni.Bez_Pozadi = 1;
        nastaveni.Vlastni_Pozadi = 1;
        nastaveni.Barva_Pozadi = 0x0000FF;
        Zapis_Souboru(prostredi.Cesta(u"tombi.cfg"_qs), Zapis_Nastaveni(nastaveni));
        frmMDITombi& okno = prostredi.Spust();
        QCOMPARE(okno.Plocha()->background().color(), QColor(255, 0, 0));
        QCOMPARE(okno.geometry(),
                 QRect(Pixely(1500, okno), Pixely(1200, okno), Pixely(9000, okno), Pixely(6900, okno)));
        okno.move(okno.x() + 30, okno.y());
        QVERIFY(okno.close());
        const Nastaveni_Zaznam ulozene = prostredi.Ulozene_Nastaveni();
        QCOMPARE(ulozene.Okno_Leva, Twipy(okno.geometry().x(), okno));
        QVERIFY(std::abs(ulozene.Okno_Sirka - 9000) <= 15);
        QVERIFY(std::abs(ulozene.Okno_Vyska - 6900) <= 15);
    }

    void Den_Bez_Archivu() {
        Prostredi prostredi(Sobota);
        QFile::remove(prostredi.Cesta(u"SpS_tahy.sez"_qs));
        frmMDITombi& okno = prostredi.Spust();
        auto* den = prostredi.Prvek<QLineEdit>(u"txtSportka_Tah"_qs);

        prostredi.Prikaz(u"mnuSportka_streda"_qs)->trigger();
        QCOMPARE(prostredi.Oznameni(), QStringList{u"Chybí soubor tahů  \"SpS_tahy.sez\"  v aktuálním adresáři."_qs});
        QVERIFY(den->text().isEmpty());
        QVERIFY(okno.Bez_Tahu());
        QCOMPARE(prostredi.Data->Archiv.Pocet_Let, 0);
        QCOMPARE(prostredi.Data->Archiv.Pocet_Tahy_1, 0);
        QVERIFY(prostredi.Prikaz(u"mnuSportka_streda"_qs)->isChecked());

        prostredi.Prikaz(u"mnuSportka_nedele"_qs)->trigger();
        QCOMPARE(den->text(), u"NEDĚLE"_qs);
        QVERIFY(!okno.Bez_Tahu());

        Zapis_Souboru(prostredi.Cesta(u"SpS_tahy.sez"_qs), Archiv(Den::Streda));
        prostredi.Prikaz(u"mnuSportka_streda"_qs)->trigger();
        QCOMPARE(den->text(), u"STŘEDA"_qs);
        QVERIFY(!okno.Bez_Tahu());
    }

    void Zavreni() {
        Prostredi beze_zmeny(Sobota);
        QVERIFY(beze_zmeny.Spust().close());
        QVERIFY(beze_zmeny.Dialogy.Okna.isEmpty());
        QVERIFY(QFile::exists(beze_zmeny.Cesta(u"tombi.cfg"_qs)));

        Prostredi prostredi(Sobota);
        frmMDITombi& okno = prostredi.Spust();
        prostredi.Data->Tikety.Zmena_Dat = true;
        QVERIFY(!okno.close());
        QVERIFY(okno.isVisible());
        QVERIFY(!prostredi.Data->Tikety.Zrusit_Beh);
        QCOMPARE(prostredi.Dialogy.Okna,
                 QStringList{u"3|Ukončení programu|Došlo ke změně v datech.\r\nOpravdu ukončit program TOMBI ?"_qs});
        prostredi.Dialogy.Odpovedi.enqueue(Dialogy::Odpoved::OK);
        QVERIFY(okno.close());
        QVERIFY(prostredi.Data->Tikety.Zrusit_Beh);
    }

    void Nedavne_Soubory_Tipu() {
        Prostredi prostredi(Sobota);
        prostredi.Spust();
        for (int i = 1; i <= 9; ++i) {
            Zapis_Souboru(prostredi.Cesta(u"t%1.tip"_qs.arg(i)), Soubor_Tipu(i));
            prostredi.Otevri_Tipy(u"t%1.tip"_qs.arg(i));
        }
        QCOMPARE(prostredi.Nedavne(),
                 (QStringList{u"1.  t9.tip"_qs, u"2.  t8.tip"_qs, u"3.  t7.tip"_qs, u"4.  t6.tip"_qs, u"5.  t5.tip"_qs,
                              u"6.  t4.tip"_qs, u"7.  t3.tip"_qs, u"8.  t2.tip"_qs}));
        QVERIFY(prostredi.Prikaz(u"mnuRecentFile(0)"_qs)->isVisible());

        // From the recent list: the entry moves to the top, the numbers close up.
        prostredi.Prikaz(u"mnuRecentFile(5)"_qs)->trigger();
        QCOMPARE(prostredi.Data->Tipy.Jmeno_Souboru_Tipu, u"t5"_qs);
        QCOMPARE(prostredi.Nedavne().mid(0, 6), (QStringList{u"1.  t5.tip"_qs, u"2.  t9.tip"_qs, u"3.  t8.tip"_qs,
                                                             u"4.  t7.tip"_qs, u"5.  t6.tip"_qs, u"6.  t4.tip"_qs}));

        // A file gone from the folder: the notice says where it was looked for.
        QFile::remove(prostredi.Cesta(u"t9.tip"_qs));
        prostredi.Prikaz(u"mnuRecentFile(2)"_qs)->trigger();
        QCOMPARE(prostredi.Oznameni(), QStringList{u"Soubor \"t9.tip\" nebyl nalezen ve složce tipů \""_qs +
                                                   QDir::toNativeSeparators(prostredi.Slozka.path()) + u"/\"."_qs});

        Zapis_Souboru(prostredi.Cesta(u"aa.tip"_qs), Soubor_Tipu(2));
        Zapis_Souboru(prostredi.Cesta(u"a.tip"_qs), Soubor_Tipu(2));
        prostredi.Otevri_Tipy(u"aa.tip"_qs);
        prostredi.Otevri_Tipy(u"a.tip"_qs);
        const QStringList nedavne = prostredi.Nedavne();
        QCOMPARE(nedavne.mid(0, 2), (QStringList{u"1.  a.tip"_qs, u"2.  t5.tip"_qs}));
        QVERIFY(!nedavne.join(u'|').contains(u"aa.tip"_qs));
        QCOMPARE(prostredi.Ulozene_Nastaveni().Nedavne_Tipy, prostredi.Data->Nastaveni.Nedavne_Tipy);
    }

    void Otevreni_Souboru_Tipu() {
        Prostredi prostredi(Sobota);
        frmMDITombi& okno = prostredi.Spust();
        auto* pocet = prostredi.Prvek<QLabel>(u"lblSoubor_Tipu"_qs);
        for (const auto& [tipu, text] : {std::pair{1, u"1 tip"_qs}, {3, u"3 tipy"_qs}, {5, u"5 tipů"_qs}}) {
            Zapis_Souboru(prostredi.Cesta(u"dobry.tip"_qs), Soubor_Tipu(tipu));
            prostredi.Otevri_Tipy(u"dobry.tip"_qs);
            QCOMPARE(pocet->text(), text);
            QCOMPARE(prostredi.Data->Tikety.Vklad, Vb::Mena::Z_Korun(tipu * 12));
        }
        QCOMPARE(prostredi.Data->Tipy.Jmeno_Souboru_Tipu, u"dobry"_qs);
        QCOMPARE(int(prostredi.Data->Tipy.Pocet_Tipu_Aktivni), 5);

        Zapis_Souboru(prostredi.Cesta(u"prazdny.tip"_qs), {});
        prostredi.Otevri_Tipy(u"prazdny.tip"_qs);
        QCOMPARE(prostredi.Oznameni(), QStringList{u"Soubor \"prazdny.tip\" je prázdný."_qs});
        QCOMPARE(int(prostredi.Data->Tipy.Soubor_Tipu.Pocet_Tipu), 5);

        Zapis_Souboru(prostredi.Cesta(u"stary.tip"_qs), Stary_Soubor_Tipu());
        prostredi.Otevri_Tipy(u"stary.tip"_qs);
        QCOMPARE(prostredi.Oznameni(),
                 QStringList{u"Provedte konverzi souboru tipu \"stary.tip\", nelze načíst - starý formát."_qs});
        QCOMPARE(int(prostredi.Data->Tipy.Soubor_Tipu.Tikety[1].Cisla[1][1]), 7);
        QCOMPARE(int(prostredi.Data->Tipy.Soubor_Tipu.Pocet_Tipu), 0);
        QCOMPARE(prostredi.Data->Tipy.Jmeno_Souboru_Tipu, u"dobry"_qs);
        QCOMPARE(prostredi.Nedavne().first(), u"1.  dobry.tip"_qs);

        prostredi.Dialogy.Soubory.enqueue(prostredi.Cesta(u"stary.tip"_qs));
        prostredi.Prikaz(u"mnuKonverzeSouboruTipu"_qs)->trigger();
        QCOMPARE(prostredi.Oznameni(), QStringList{u"Starý soubor tipů byl převeden na nový formát."_qs});
        QCOMPARE(prostredi.Data->Tipy.Jmeno_Souboru_Tipu, u"stary"_qs);
        QCOMPARE(pocet->text(), u"3 tipy"_qs);
        QCOMPARE(prostredi.Nedavne().first(), u"1.  stary.tip"_qs);
        QVERIFY(prostredi.Prvek(u"Picture1"_qs)->isHidden());
        QVERIFY(!prostredi.Prvek(u"txtRozpisAktivni"_qs)->isHidden());
        QVERIFY(okno.menuBar()->isEnabled());

        // Forgetting the file: "0 tipů" stands as it is set, no stake.
        frmMDITombi_Tipy::Zapomen_Soubor_Tipu(*prostredi.Data);
        QCOMPARE(pocet->text(), u"0 tipů"_qs);
        QCOMPARE(prostredi.Data->Tikety.Vklad, Vb::Mena());
    }

    void Zpravy_A_Kliknuti() {
        Prostredi prostredi(Sobota);
        frmMDITombi& okno = prostredi.Spust();
        frmMDITombi_Sluzby& sluzby = okno.Sluzby();
        sluzby.Zprava(u"první"_qs);
        sluzby.Zprava(u"druhá"_qs);
        QCOMPARE(prostredi.Oznameni(), QStringList{u"druhá"_qs});
        QCOMPARE(sluzby.Text_Zpravy, u"druhá"_qs);

        // A late notice lets events run while it waits.
        bool probehlo = false;
        QTimer::singleShot(0, &okno, [&probehlo] { probehlo = true; });
        sluzby.Pauza_Pred_Zpravou = true;
        sluzby.Zprava(u"pozdě"_qs);
        QVERIFY(probehlo);
        QCOMPARE(prostredi.Oznameni(), QStringList{u"pozdě"_qs});

        QTest::mouseClick(okno.Plocha()->viewport(), Qt::LeftButton);
        QVERIFY(prostredi.Oznameni().isEmpty());
        const auto okna = QApplication::topLevelWidgets();
        QVERIFY(std::none_of(okna.begin(), okna.end(), [](const QWidget* w) {
            return w->objectName() == u"frmTombi_uvod"_qs && w->isVisible();
        }));
    }

    void Prace_A_Pas_Stavu() {
        Prostredi prostredi(Sobota);
        frmMDITombi& okno = prostredi.Spust();
        auto* rozpis = prostredi.Prvek<QLineEdit>(u"txtRozpisAktivni"_qs);
        auto* pocet = prostredi.Prvek<QLineEdit>(u"txtPocet_Vybranych"_qs);
        auto* obrazek = prostredi.Prvek<QFrame>(u"Picture1"_qs);
        auto* prubeh = prostredi.Prvek<QProgressBar>(u"PercentBar1"_qs);

        Sluzby_Oken& sluzby = *prostredi.Data->Sluzby;
        sluzby.Nastav_Status(u"5 12 17 33"_qs, u"4"_qs);
        QCOMPARE(prostredi.Data->Pocet_Sudych, 1);
        QCOMPARE(prostredi.Data->Pocet_Lichych, 2);
        QCOMPARE(rozpis->geometry().right() + 1 + Pixely(30, okno), rozpis->parentWidget()->width());
        QTest::mouseClick(rozpis, Qt::LeftButton);
        QVERIFY(rozpis->text().isEmpty());
        QVERIFY(pocet->text().isEmpty());
        QCOMPARE(prostredi.Data->Pocet_Lichych, 0);

        sluzby.Zacni_Praci();
        QVERIFY(!obrazek->isHidden());
        QVERIFY(rozpis->isHidden());
        QVERIFY(!okno.menuBar()->isEnabled());
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        const Prubeh hlaseni = sluzby.Prubeh_Prace();
        QVERIFY(hlaseni(40));
        QCOMPARE(prubeh->value(), 40);
        QTest::mouseClick(prubeh, Qt::LeftButton);
        QCOMPARE(obrazek->frameShape(), QFrame::Box);
        QCOMPARE(int(prostredi.Data->Nastaveni.Styl_Prubehu), 1);
        prostredi.Data->Tikety.Zrusit_Beh = true;
        QVERIFY(!hlaseni(41));
        // A caller that enters once more than it leaves: one end is the end.
        sluzby.Zacni_Praci();
        sluzby.Ukonci_Praci();
        const auto volno = [&] {
            return obrazek->isHidden() && !rozpis->isHidden() && okno.menuBar()->isEnabled() &&
                   QApplication::overrideCursor() == nullptr && !sluzby.Pracuje();
        };
        QVERIFY(volno());
        // A job inside a job keeps the state until the outer one ends, also on an early return.
        {
            const Prace vnejsi(&sluzby);
            { const Prace vnitrni(&sluzby); }
            QVERIFY(sluzby.Pracuje());
            QVERIFY(!okno.menuBar()->isEnabled());
        }
        QVERIFY(volno());
    }

    void Povoleni_A_Zamky() {
        Prostredi prostredi(Sobota);
        frmMDITombi& okno = prostredi.Spust();
        // Every command is connected, and on while no lock holds it.
        for (QAction* prikaz : okno.findChildren<QAction*>()) {
            const QString jmeno = prikaz->objectName();
            if (!jmeno.startsWith(u"mnu"_qs) || prikaz->isSeparator() || prikaz->menu() != nullptr)
                continue;
            QVERIFY2(okno.Ma_Obsluhu(prikaz), qPrintable(jmeno));
            QVERIFY2(!prikaz->isVisible() || prikaz->isEnabled(), qPrintable(jmeno));
        }
        // A lock holds over a switch of day, which enables the commands of the archive anew.
        okno.Nastav_Zamek(u"test"_qs, [&okno](const QAction* prikaz) { return prikaz == okno.mnuObnovaDatTahu; });
        okno.Prepni_Den(Den::Streda);
        QVERIFY(!okno.mnuObnovaDatTahu->isEnabled());
        QVERIFY(okno.mnuAktualizaceTahu->isEnabled());
        okno.Nastav_Zamek(u"test"_qs, {});
        QVERIFY(okno.mnuObnovaDatTahu->isEnabled());
    }

    void Start_Bez_Archivu() {
        Prostredi prostredi(Sobota);
        QFile::remove(prostredi.Cesta(u"SpN_tahy.sez"_qs));
        frmMDITombi& okno = prostredi.Spust();
        auto* uvod = okno.findChild<frmTombi_uvod*>();
        QVERIFY(uvod != nullptr && uvod->isVisible());
        QVERIFY(!(uvod->windowFlags() & Qt::WindowStaysOnTopHint));
        const frmNeniProcedura* oznameni = okno.Sluzby().Oznameni();
        QVERIFY(oznameni != nullptr && oznameni->isVisible());
        // The notice stands over the splash where the two meet.
        QCOMPARE(QApplication::topLevelAt(oznameni->geometry().center()), oznameni);
        QTest::keyClick(&okno, Qt::Key_Escape);
        QVERIFY(!uvod->isVisible());
    }

    void Maximalizovane_Okno() {
        Prostredi prostredi(Sobota);
        frmMDITombi* okno = &prostredi.Spust();
        const QRect normalni = okno->geometry();
        okno->showMaximized();
        QVERIFY(okno->close());
        QCOMPARE(prostredi.Ulozene_Nastaveni().Okno_Sirka, Twipy(normalni.width(), *okno));
        // The next start comes maximised over the same normal place.
        prostredi.Okno.reset();
        okno = &prostredi.Spust();
        QVERIFY(okno->isMaximized());
        okno->showNormal();
        QCOMPARE(okno->size(), normalni.size());
    }

    void Aktualizace_Tahu() {
        Prostredi prostredi(Sobota);
        frmMDITombi& okno = prostredi.Spust();
        const int let = prostredi.Data->Archiv.Pocet_Let;
        prostredi.Prikaz(u"mnuAktualizaceTahu"_qs)->trigger();
        QCOMPARE(prostredi.Oznameni(),
                 QStringList{u"Není soubor s tahy \"sportka-nedele.dbf (.xls)\" nebo je v něm chyba."_qs});
        QCOMPARE(prostredi.Data->Archiv.Pocet_Let, let);
        QVERIFY(okno.menuBar()->isEnabled());

        // Two weeks of one year from the operator's table replace the archive.
        const QByteArray dbf = QByteArray(545, ' ') + " 2025" + "01" + "01020304050607" + "08091011121314" + " 2025" +
                               "02" + "21222324252627" + "28293031323334";
        Zapis_Souboru(prostredi.Cesta(u"sportka-nedele.dbf"_qs), dbf);
        okno.Sluzby().Zavri_Oznameni();
        prostredi.Prikaz(u"mnuAktualizaceTahu"_qs)->trigger();
        QVERIFY(prostredi.Oznameni().isEmpty());
        QCOMPARE(prostredi.Data->Archiv.Pocet_Let, 1);
        QCOMPARE(prostredi.Data->Archiv.Pocet_Tahy_1, 2);
        QCOMPARE(int(prostredi.Data->Tikety.Pocet_Tahu_2), 2);
        QCOMPARE(int(prostredi.Data->Archiv.Tahy_1[2][1]), 21);
        QCOMPARE(prostredi.Prvek<QLineEdit>(u"txtSportka_Tah"_qs)->text(), u"NEDĚLE"_qs);
    }

    void Patek_Aktualizace_A_Obnova() {
        // The Friday draw comes from the operator's CSV export, with its dates, and goes back to
        // the backup that the import left.
        Prostredi prostredi(QDate(2026, 11, 27));
        frmMDITombi& okno = prostredi.Spust();
        prostredi.Data->Nastaveni.Zaloha_Tahu = u"1"_qs;
        Zapis_Souboru(prostredi.Cesta(u"sportka.csv"_qs),
                      "datum;rok;tyden;den;\n"
                      "9. 1. 2026;2026;02;5;48;20;14;41;45;27;10;20;16;27;13;30;18;44\n"
                      "7. 1. 2026;2026;02;3;47;10;14;45;31;33;40;48;19;11;20;15;10;38\n"
                      "3. 1. 2026;2026;01;5;1;2;3;4;5;6;7;;;;;;;\n");
        prostredi.Prikaz(u"mnuAktualizaceTahu"_qs)->trigger();
        QVERIFY(prostredi.Oznameni().isEmpty());
        const Archiv_Tahu& archiv = prostredi.Data->Archiv;
        QCOMPARE(std::pair(archiv.Pocet_Tahy_1, archiv.Pocet_Tahy_2), std::pair(2, 1));
        // 3 January is the operator's date; ISO week 1 of 2026 has its Friday on the 2nd.
        QCOMPARE(Den_Tahu_Text(archiv, 1, 2026, 1), u" 03.01.2026 "_qs);
        QCOMPARE(Obsah_Souboru(prostredi.Cesta(u"SpP_tahy.dny"_qs)),
                 QByteArray("2026 1 1 03.01.2026\r\n2026 2 1 09.01.2026\r\n2026 2 2 09.01.2026\r\n"));

        prostredi.Dialogy.Odpovedi.enqueue(Dialogy::Odpoved::Ano);
        prostredi.Prikaz(u"mnuObnovaDatTahu"_qs)->trigger();
        QVERIFY(prostredi.Dialogy.Okna.last().endsWith(u"Opravdu provést návrat dat tahů PÁTEK"_qs));
        QCOMPARE(archiv.Pocet_Tahy_1, 418);
        QCOMPARE(prostredi.Prvek<QLineEdit>(u"txtSportka_Tah"_qs)->text(), u"PÁTEK"_qs);
        QVERIFY(!okno.Bez_Tahu());
    }

    void Prehled_A_Web() {
        Prostredi prostredi(Sobota);
        frmMDITombi& okno = prostredi.Spust();
        QStringList spusteno;
        okno.Otevri_Adresu = [&spusteno](const QUrl& adresa) {
            spusteno << adresa.toString();
            return true;
        };
        okno.Spust_Program = [&spusteno](const QString& program, const QStringList& argumenty) {
            spusteno << program + u' ' + argumenty.join(u' ');
            return false; // no such browser
        };
        prostredi.Prikaz(u"mnuPrehled"_qs)->trigger();
        QVERIFY(prostredi.Oznameni().first().contains(u"zatím neexistuje"_qs));
        // The overview opens in a window of the program, decoded from code page 1250.
        Zapis_Souboru(prostredi.Cesta(u"_Prehled.txt"_qs), "Tipy: a.tip  Seznam: \x8E" "an.szn\r\n");
        prostredi.Prikaz(u"mnuPrehled"_qs)->trigger();
        QCOMPARE(prostredi.Prvek<QPlainTextEdit>(u"txtPrehled"_qs)->toPlainText().trimmed(),
                 u"Tipy: a.tip  Seznam: Žan.szn"_qs);
        prostredi.Prikaz(u"mnuWeb_Sazka"_qs)->trigger();
        prostredi.Data->Nastaveni.Adresare[5] = u"/nikde/prohlizec"_qs;
        prostredi.Prikaz(u"mnuWebTombi"_qs)->trigger();
        QCOMPARE(spusteno, (QStringList{u"https://www.sazka.cz"_qs, u"/nikde/prohlizec https://www.tombi.cz"_qs}));
        QCOMPARE(prostredi.Oznameni(),
                 QStringList{u"Chyba nastavení WEB prohlížeče nebo cesty \"/nikde/prohlizec\"."_qs});
    }

    void Okna_V_Plose() {
        Prostredi prostredi(Sobota);
        frmMDITombi& okno = prostredi.Spust();
        const auto otevrena = [&okno] {
            int pocet = 0;
            for (const QMdiSubWindow* podokno : okno.Plocha()->subWindowList())
                pocet += podokno->isVisible() ? 1 : 0;
            return pocet;
        };
        prostredi.Prikaz(u"mnuOProgramu"_qs)->trigger();
        prostredi.Prikaz(u"mnuHelp"_qs)->trigger();
        prostredi.Prikaz(u"mnuOProgramu"_qs)->trigger();
        QCOMPARE(otevrena(), 2);
        QVERIFY(okno.Najdi_Okno<frmOProgramu>() != nullptr);
        QCOMPARE(okno.Plocha()->activeSubWindow()->widget(), okno.Najdi_Okno<frmOProgramu>());

        okno.Sluzby().Nastav_Status(u"1 2 3"_qs, u"3"_qs);
        okno.Zavri_Pro_Analyzu();
        QCOMPARE(otevrena(), 1);
        QVERIFY(okno.Najdi_Okno<frmNapoveda>() != nullptr);
        QVERIFY(prostredi.Prvek<QLineEdit>(u"txtRozpisAktivni"_qs)->text().isEmpty());

        prostredi.Prikaz(u"mnuOProgramu"_qs)->trigger();
        okno.Zavri_Formulare(2);
        QVERIFY(okno.Najdi_Okno<frmOProgramu>() == nullptr);
        QVERIFY(okno.Najdi_Okno<frmNapoveda>() != nullptr);
        okno.Zavri_Formulare(1);
        QCOMPARE(otevrena(), 0);

        // A window that closes itself takes its frame in the area with it; a minimised one stays,
        // and so does one that hides itself for a moment, with its state.
        prostredi.Prikaz(u"mnuHelp"_qs)->trigger();
        okno.Plocha()->activeSubWindow()->showMinimized();
        QCoreApplication::processEvents();
        QCOMPARE(otevrena(), 1);
        auto* napoveda = okno.Najdi_Okno<frmNapoveda>();
        napoveda->parentWidget()->showNormal();
        napoveda->Ukaz_Stranku(u"tahy.html"_qs);
        napoveda->hide();
        QCoreApplication::processEvents();
        QCOMPARE(otevrena(), 0);
        QCOMPARE(okno.Najdi_Okno<frmNapoveda>(), napoveda);
        napoveda->show();
        QCOMPARE(otevrena(), 1);
        QVERIFY(napoveda->findChild<QTextBrowser*>()->source().toString().endsWith(u"tahy.html"_qs));
        // Opened again, the open window takes the new arguments.
        okno.Otevri_Okno<frmNapoveda>(u"tipy.html"_qs);
        QVERIFY(napoveda->findChild<QTextBrowser*>()->source().toString().endsWith(u"tipy.html"_qs));
        napoveda->close();
        QCoreApplication::processEvents();
        QCOMPARE(otevrena(), 0);
        QVERIFY(okno.Najdi_Okno<frmNapoveda>() == nullptr);

        // At the right edge of the area; of a fixed size, without a maximise button.
        auto* vpravo = okno.Otevri_Okno_Vpravo<frmOProgramu>(u"2.0"_qs);
        const QMdiSubWindow* ram = okno.Plocha()->activeSubWindow();
        QCOMPARE(ram->geometry().right() + 1, okno.Plocha()->viewport()->width());
        QVERIFY(!(ram->windowFlags() & Qt::WindowMaximizeButtonHint));
        QCOMPARE(ram->minimumSize(), ram->maximumSize());
        QVERIFY(okno.Zavri_Okno<frmOProgramu>());
        Q_UNUSED(vpravo);

        // Modal: the call returns once the window is closed, and the window is found meanwhile.
        bool nalezeno = false;
        QTimer::singleShot(0, &okno, [&] {
            auto* modalni = okno.Najdi_Okno<frmOProgramu>();
            nalezeno = modalni != nullptr && modalni->isModal() && modalni->isWindow();
            okno.Zavri_Formulare(1);
        });
        okno.Ukaz_Modalne<frmOProgramu>(u"2.0"_qs);
        QVERIFY(nalezeno);
        QVERIFY(okno.Najdi_Okno<frmOProgramu>() == nullptr);
    }
};

QTEST_MAIN(Test_frmMDITombi)
#include "Test_frmMDITombi.moc"
