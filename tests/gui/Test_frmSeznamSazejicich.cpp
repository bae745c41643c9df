// The bettors' window driven by its controls: a new list filled, repaired and thinned, each change
// written to its .szn at once, the money of the stakes, OK leading to the generator with the count
// of tips; a tip file brings its list, whose win is split in the tip list and printed as the
// payouts list, and whose pairing goes to the overview; the printouts to files and the leaflet
// through the print command.
#include "Bajty.h"
#include "Prostredi_Okna.h"
#include "bettors/frmSeznamSazejicich.h"
#include "bettors/frmSeznamSazejicich_Tisk.h"
#include "data/Soubor_Tipu.h"
#include "generator/frmGeneruj.h"
#include "tips/frmVypisTipu.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>

namespace {

std::vector<Sazejici> Seznam_Ze_Souboru(const QString& cesta) {
    std::vector<Sazejici> seznam;
    if (!Cti_Seznam(Obsah_Souboru(cesta), u"x"_qs, seznam).Ok())
        qFatal("seznam nelze přečíst");
    return seznam;
}

void Pridej(frmSeznamSazejicich& okno, const QString& jmeno, const QString& vklad) {
    okno.txtJmeno->setText(jmeno);
    okno.txtVklad->setText(vklad);
    okno.cmdDalsi_Sazejici->click();
}

} // namespace

class Test_frmSeznamSazejicich final : public QObject {
    Q_OBJECT

private slots:
    void Novy_Seznam() {
        Prostredi prostredi(QDate(2026, 11, 21));
        prostredi.Spust();
        prostredi.Data->Nastaveni.Cena_Jednoho_Tipu = 20;
        prostredi.Data->Nastaveni.Cena_Sance = 0;
        prostredi.Prikaz(u"mnuNovySeznam"_qs)->trigger();
        auto* okno = prostredi.Okno->Najdi_Okno<frmSeznamSazejicich>();
        QVERIFY(okno != nullptr);
        QCOMPARE(okno->Text3->text(), u"Novy"_qs);
        QCOMPARE(okno->txtSazkovy_Tyden->text(), u"46"_qs);
        okno->Text3->clear();
        QTest::keyClicks(okno->Text3, u"parta"_qs);
        Pridej(*okno, u"Jan"_qs, u"100"_qs);
        Pridej(*okno, u"Eva"_qs, u"300"_qs);
        Pridej(*okno, u"Jan"_qs, u"50"_qs);
        QVERIFY(prostredi.Oznameni().last().startsWith(u"Pozor, jméno již v seznamu"_qs));
        QCOMPARE(okno->List1->count(), 2);
        QCOMPARE(std::tuple(okno->lblVklad->text(), okno->lblPocet_Tipu->text(), okno->lblPocet_Tiketu->text()),
                 std::tuple(u"400"_qs, u"20"_qs, u"2"_qs));
        const QString soubor = prostredi.Data->Nastaveni.Adresare[2] + u"/parta.szn"_qs;
        std::vector<Sazejici> ulozeny = Seznam_Ze_Souboru(soubor);
        QCOMPARE(ulozeny.size(), std::size_t(2));
        QCOMPARE(std::pair(ulozeny[0].Podil.Korun(), ulozeny[1].Podil.Korun()), std::pair(25.0, 75.0));
        QCOMPARE(prostredi.Prikaz(u"mnuSeznamFile(1)"_qs)->text(), u"1.  parta.szn"_qs);

        // Commission 10 %: 40 Kč off, 18 tips. Šance without its price is refused.
        okno->txtProvize->clear();
        QTest::keyClicks(okno->txtProvize, u"10"_qs);
        QCOMPARE(std::pair(okno->lblProvize->text(), okno->lblPocet_Tipu->text()), std::pair(u"40 Kč"_qs, u"18"_qs));
        okno->Check2->click();
        QVERIFY(!okno->Check2->isChecked());
        QVERIFY(prostredi.Oznameni().last().startsWith(u"Nastavte cenu \"šance\""_qs));

        // A click on Jan gives his line to the boxes; Opravit puts 200 in its place.
        QTest::mouseClick(okno->List1->viewport(), Qt::LeftButton, {},
                          okno->List1->visualItemRect(okno->List1->item(0)).center());
        QCOMPARE(std::pair(okno->txtJmeno->text(), okno->txtVklad->text()), std::pair(u"Jan"_qs, u"100"_qs));
        okno->txtVklad->setText(u"200"_qs);
        okno->cmdOpravit->click();
        QCOMPARE(Seznam_Ze_Souboru(soubor)[0].Podil.Korun(), 40.0);

        // Deleting wants a check; Eva goes, and Jan holds the whole.
        okno->cmdSmazat->click();
        QCOMPARE(prostredi.Oznameni().last(), u"Označ něco v seznamu ... "_qs);
        okno->List1->item(1)->setCheckState(Qt::Checked);
        okno->cmdSmazat->click();
        ulozeny = Seznam_Ze_Souboru(soubor);
        QCOMPARE(ulozeny.size(), std::size_t(1));
        QCOMPARE(ulozeny[0].Podil.Korun(), 100.0);

        // OK with "generate": the head is written and the generator takes the count of tips.
        okno->Check1->setChecked(true);
        okno->cmdOK->click();
        QCOMPARE(Seznam_Ze_Souboru(soubor)[0].Provize, u"10"_qs);
        auto* generator = prostredi.Okno->Najdi_Okno<frmGeneruj>();
        QVERIFY(generator != nullptr);
        QCOMPARE(generator->txtPoc_Tipu->text(), u"9"_qs); // 200 Kč less 20 at 20 Kč a tip
        QVERIFY(generator->cmdUvolnit_Seznam_Sazejicich->isEnabled());
    }

    void Seznam_Tipu_Vyhra_A_Vypisy() {
        Prostredi prostredi(QDate(2026, 11, 21));
        prostredi.Spust();
        prostredi.Data->Nastaveni.Cena_Jednoho_Tipu = 20;
        Stav_Seznamu stav;
        QVERIFY(Pridej_Sazejiciho(stav.Seznam, u"Jan"_qs, 100, 0).Ok());
        QVERIFY(Pridej_Sazejiciho(stav.Seznam, u"Eva"_qs, 300, 0).Ok());
        stav.Seznam[0].Tah_Dne = u"22.11.2026"_qs;
        const QString slozka = prostredi.Data->Nastaveni.Adresare[2];
        QVERIFY(Uloz_Seznam(stav, slozka + u"/parta.szn"_qs).Ok());
        auto tipy = std::make_unique<Zaznam_Tipu>(Cti_Zaznam_Tipu(Soubor_Tipu(12)));
        tipy->Seznam_Soubor = u"parta.szn"_qs;
        Zapis_Souboru(prostredi.Cesta(u"a.tip"_qs), Zapis_Zaznam_Tipu(*tipy));
        prostredi.Otevri_Tipy(u"a.tip"_qs);
        QCOMPARE(prostredi.Data->Seznam.Pocet_Sazejicich(), 2);

        // A win of 1000 is split 250 and 750 in the tip list.
        auto* vyhra = prostredi.Prvek<QLineEdit>(u"txtCelkemVyhra"_qs);
        vyhra->setText(u"1 000"_qs);
        const auto* podily = prostredi.Prvek<QListWidget>(u"lstSazejiciVypis"_qs);
        QCOMPARE(podily->count(), 4);
        QVERIFY(podily->item(1)->text().startsWith(u"Eva "_qs) && podily->item(1)->text().endsWith(u"750,00"_qs));
        // The payouts list names them with their shares.
        prostredi.Dialogy.Tiskarny.enqueue(true);
        prostredi.Dialogy.Pdf = prostredi.Cesta(u"listina.pdf"_qs);
        prostredi.Prvek<QPushButton>(u"Command1"_qs)->click();
        QProcess pdf;
        pdf.start(u"pdftotext"_qs, {u"-layout"_qs, prostredi.Dialogy.Pdf, u"-"_qs});
        QVERIFY(pdf.waitForFinished(30000));
        const QString listina = QString::fromUtf8(pdf.readAllStandardOutput());
        QVERIFY2(listina.contains(u"Výherní listina ze dne 21.11.26"_qs) && listina.contains(u"750,-"_qs), qPrintable(listina));

        // Saving the tips with the list adds the pair to the overview.
        auto* vypis = prostredi.Okno->Najdi_Okno<frmVypisTipu>();
        vypis->txtSoubor_Tipu->setText(u"b"_qs);
        vypis->cmdUlozTipy->click();
        QVERIFY(Obsah_Souboru(slozka + u"/_Prehled.txt"_qs).contains("parta.szn\t\tb.tip\t\t\t21.11.2026"));

        // The list window, modal from "Výpis & Tisk", writes its files and sends the leaflet.
        QStringList spusteno;
        prostredi.Okno->Spust_Program = [&spusteno](const QString& program, const QStringList& argumenty) {
            spusteno = QStringList{program} + argumenty;
            return true;
        };
        bool hotovo = false;
        QTimer::singleShot(0, this, [&] {
            auto* okno = prostredi.Okno->findChild<frmSeznamSazejicich*>();
            // A failed check must not leave the modal window waiting.
            const auto zavri = qScopeGuard([okno] {
                if (okno != nullptr)
                    okno->close();
            });
            QVERIFY(okno != nullptr && okno->isModal());
            okno->Tisk->cmdDoSouboru->click();
            QVERIFY(Obsah_Souboru(slozka + u"/_!_seznam.txt"_qs).startsWith(Vb::Do_1250(u"Seznam sázejících pro tah dne   22.11.2026\r\n"_qs)));
            okno->Tisk->Option1[1]->setChecked(true);
            okno->List1->item(1)->setCheckState(Qt::Checked);
            okno->Tisk->cmdDoSouboru->click();
            QVERIFY(Obsah_Souboru(slozka + u"/Eva_b.txt"_qs).contains("1   2   3   4   5   6   \t"));
            okno->Tisk->optTiskarna[5]->setChecked(true);
            okno->Tisk->cmdTskLetaku->click();
            QCOMPARE(prostredi.Oznameni().last(), u"Tiskový soubor L_HP4.PRN chybí nebo zrušen tisk !"_qs);
            QVERIFY(spusteno.isEmpty());
            Zapis_Souboru(prostredi.Cesta(u"L_HP4.PRN"_qs), "\x1b" "E leták");
            prostredi.Dialogy.Tiskarny.enqueue(true);
            okno->Tisk->cmdTskLetaku->click();
            QCOMPARE(spusteno.mid(0, 1), QStringList{u"lp"_qs});
            QVERIFY(spusteno.mid(spusteno.size() - 4, 3) == (QStringList{u"-o"_qs, u"raw"_qs, u"--"_qs}));
            QCOMPARE(Obsah_Souboru(spusteno.last()), QByteArray("\x1b" "E leták"));
            hotovo = true;
        });
        prostredi.Prikaz(u"mnuVypisSeznamu"_qs)->trigger();
        QVERIFY(hotovo);

        prostredi.Prikaz(u"mnuUvolnit"_qs)->trigger();
        QCOMPARE(prostredi.Data->Seznam.Pocet_Sazejicich(), 0);
        prostredi.Prikaz(u"mnuVypisSeznamu"_qs)->trigger();
        QCOMPARE(prostredi.Oznameni().last(), u"Není otevřen žádný seznam sázejících !"_qs);
    }
};

QTEST_MAIN(Test_frmSeznamSazejicich)
#include "Test_frmSeznamSazejicich.moc"
