#include "analysis/frmVypisAnalyz.h"

#include "analysis/Soubor_Analyzy.h"
#include "app/Otevri_Dialog.h"
#include "app/Relace.h"
#include "app/Sluzby_Oken.h"
#include "app/frmKresleni.h"
#include "app/frmMDITombi.h"
#include "app/frmMDITombi_Stav.h"
#include "app/frmOvladani.h"
#include "archive/frmVypisTahu.h"
#include "core/Dialogy.h"
#include "core/Tabulka_Textu.h"
#include "core/Vb.h"
#include "data/Nastaveni.h"
#include "data/Soubory.h"
#include "generator/frmGeneruj.h"
#include "tips/frmVypisTipu.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QStackedLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QVBoxLayout>
#include <algorithm>

namespace {

const modNastaveni_Ovladani::Texty_Okna Okno{u"frmVypisAnalyz"_qs};
constexpr int Nejvic_Radku = 1000;
// The window in twips when it keeps no place of its own: as wide as a report, as high as the area.
constexpr double Vychozi_Sirka = 5200;
// The room under the text for the row of counts.
constexpr double Mezera_Pod_Textem = 30;

// No file to show. While the reports are not written to it, which is the default, the user is told
// where to switch it on and where the reports are meanwhile.
QString Bez_Souboru(const Nastaveni_Zaznam& n) {
    QString text = u"Není soubor \"Analyza.txt\""_qs;
    if (n.Zapis_Analyzy == 0)
        text += u". Zápis analýz do něj je vypnutý; zapne ho Program - Nastavení, stránka Automatická analýza "
                u"(Exportovat do souboru). Výsledky analýz ukazuje i okno Tahy - Analýza (Výpis, Graf, Tisk)."_qs;
    return text;
}

// The headings of the ten reports, marked bold and underlined wherever they stand.
const std::array<QString, 10> Nadpisy{
    u"Četnost tažených čísel"_qs,
    u"Četnost tažených dodatkových čísel"_qs,
    u"Dvojice čísel ležící vedle sebe"_qs,
    u"Trojice čísel ležící vedle sebe"_qs,
    u"Dvojice čísel volné"_qs,
    u"Průměrně tažená čísla"_qs,
    u"Počet čísel ve směru - řádky, sloupce, kříže"_qs,
    u"Týdenní interval tažení čísla"_qs,
    u"Poměr čísel sudých k lichým"_qs,
    u"Suma tahu - součet čísel v tahu"_qs,
};

// A font of the settings as a format of the text. The Windows fonts of old settings and the "8"
// that a fresh tombi.cfg holds for a name are not on this system: the reports' own monospace
// stands for them, so that their columns line up.
QTextCharFormat Format_Pisma(const QString& jmeno, int velikost, int16_t tucne, int32_t barva) {
    QTextCharFormat format;
    format.setFontFamilies({QFontDatabase::hasFamily(jmeno) ? jmeno : u"DejaVu Sans Mono"_qs});
    format.setFontPointSize(velikost > 0 ? velikost : 8);
    format.setFontWeight(Vb::Je_Pravda(tucne) ? QFont::Bold : QFont::Normal);
    format.setForeground(frmKresleni::Barva_Z_Vb(barva));
    return format;
}

} // namespace

frmVypisAnalyz::frmVypisAnalyz(frmMDITombi& ram, QWidget* parent)
    : QWidget(parent), Label1(Okno.Pojmenuj(new QLabel(this), u"Label1"_qs)), Menu(new QMenuBar(this)), Ram(ram),
      Sezeni(ram.Sezeni()), Kryt(new QStackedLayout) {
    setObjectName(Okno.Jmeno);
    setWindowTitle(Tabulka_Textu::Programu().Text(Okno.Jmeno));
    modNastaveni_Ovladani::Napoveda(this, u"AnalVypis"_qs);
    for (int i = 0; i < 2; ++i) {
        auto* text = Okno.Pojmenuj(new QTextEdit(this), modNastaveni_Ovladani::Indexem(u"rtbVypis_Analyz"_qs, i));
        text->setAcceptRichText(false);
        text->setLineWrapMode(QTextEdit::NoWrap);
        rtbVypis_Analyz[std::size_t(i)] = text;
        Kryt->addWidget(text);
    }
    // Marks are no edits: under undo they would come back one by one.
    rtbVypis_Analyz[0]->setUndoRedoEnabled(false);
    rtbVypis_Analyz[1]->setReadOnly(true);
    rtbVypis_Analyz[1]->setPlainText(u"\n"_qs + Label1->text());
    rtbVypis_Analyz[0]->viewport()->installEventFilter(this);
    rtbVypis_Analyz[0]->installEventFilter(this);
    for (int i = 0; i < 3; ++i)
        lblLista[std::size_t(i)] = Okno.Pojmenuj(new QLabel(this), modNastaveni_Ovladani::Indexem(u"lblLista"_qs, i));
    Label1->hide();
    Vytvor_Menu();

    auto* lista = new QHBoxLayout;
    for (QLabel* popis : lblLista)
        lista->addWidget(popis);
    lista->addStretch();
    lista->addWidget(Label1);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->setMenuBar(Menu);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    rozlozeni->setSpacing(Pixely(Mezera_Pod_Textem, *this));
    rozlozeni->addLayout(Kryt, 1);
    rozlozeni->addLayout(lista);
    lista->setContentsMargins(4, 0, 4, 2);

    connect(rtbVypis_Analyz[0], &QTextEdit::textChanged, this, &frmVypisAnalyz::Text_Zmenen);
    connect(ram.Plocha(), &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* aktivni) {
        const auto* moje = qobject_cast<QMdiSubWindow*>(parentWidget());
        if (moje == nullptr)
            return;
        if (aktivni == moje) {
            Aktivni = true;
        } else if (Aktivni) {
            Aktivni = false;
            Uloz_Misto();
        }
    });

    // The first opening: picks add up unless the draw list is open and its marks do not.
    Jednotlive = Sezeni.Formular_Otevren_Tahy && !Sezeni.Suma_Vyberu;
    (Jednotlive ? mnuJednotlive : mnuSpojovat)->setChecked(true);
    Otevri_Soubor_Anal();
    // Until it is saved, the text counts as changed: the first close asks.
    Zmeneno = true;
    Sezeni.Vypis_Cisel = true;
}

frmVypisAnalyz::~frmVypisAnalyz() {
    Sezeni.Vypis_Cisel = false;
    while (Prace > 0)
        RT_Box_Zap(1);
}

void frmVypisAnalyz::Vytvor_Menu() {
    Menu->setObjectName(u"Menu"_qs);
    const auto menu = [this](const QString& jmeno) { return Okno.Pojmenuj(Menu->addMenu(QString()), jmeno); };
    const auto prikaz = [](QMenu* nabidka, const QString& jmeno) {
        return Okno.Pojmenuj(nabidka->addAction(QString()), jmeno);
    };
    mnuSoubor = menu(u"mnuSoubor"_qs);
    mnuNacist = prikaz(mnuSoubor, u"mnuNacist"_qs);
    mnuSmazat = prikaz(mnuSoubor, u"mnuSmazat"_qs);
    mnuUlozit = prikaz(mnuSoubor, u"mnuUlozit"_qs);
    mnuSoubor->addSeparator();
    mnuZavrit = prikaz(mnuSoubor, u"mnuZavrit"_qs);
    mnuVlastni = menu(u"mnuVlastni"_qs);
    mnuGen = prikaz(mnuVlastni, u"mnuGen"_qs);
    mnuVyber_cisel = prikaz(mnuVlastni, u"mnuVyber_cisel"_qs);
    mnuZnacit = menu(u"mnuZnacit"_qs);
    mnuOdznacit = prikaz(mnuZnacit, u"mnuOdznacit"_qs);
    mnuZnacit->addSeparator();
    mnuJednotlive = prikaz(mnuZnacit, u"mnuJednotlive"_qs);
    mnuSpojovat = prikaz(mnuZnacit, u"mnuSpojovat"_qs);
    auto* zpusob = new QActionGroup(this);
    for (QAction* volba : {mnuJednotlive, mnuSpojovat}) {
        volba->setCheckable(true);
        zpusob->addAction(volba);
    }
    mnuNastav = menu(u"mnuNastav"_qs);
    mnuVychozi = prikaz(mnuNastav, u"mnuVychozi"_qs);
    mnuVyber = prikaz(mnuNastav, u"mnuVyber"_qs);
    mnuNastav->addSeparator();
    mnuPuvdni = prikaz(mnuNastav, u"mnuPuvdni"_qs);

    connect(mnuNacist, &QAction::triggered, this, &frmVypisAnalyz::Otevri_Soubor_Anal);
    connect(mnuSmazat, &QAction::triggered, this, &frmVypisAnalyz::mnuSmazat_Click);
    connect(mnuUlozit, &QAction::triggered, this, &frmVypisAnalyz::Uloz);
    connect(mnuZavrit, &QAction::triggered, this, &QWidget::close);
    connect(mnuGen, &QAction::triggered, this, &frmVypisAnalyz::mnuGen_Click);
    connect(mnuVyber_cisel, &QAction::triggered, this, &frmVypisAnalyz::mnuVyber_cisel_Click);
    connect(mnuOdznacit, &QAction::triggered, this, &frmVypisAnalyz::Odznacit);
    connect(mnuJednotlive, &QAction::triggered, this, [this] { Jednotlive = true; });
    connect(mnuSpojovat, &QAction::triggered, this, [this] { Jednotlive = false; });
    connect(mnuVychozi, &QAction::triggered, this, [this] { Zmen_Pismo(4); });
    connect(mnuVyber, &QAction::triggered, this, [this] { Zmen_Pismo(3); });
    connect(mnuPuvdni, &QAction::triggered, this, &frmVypisAnalyz::mnuPuvdni_Click);
}

// ---- Place in the area ----

void frmVypisAnalyz::Umisti() {
    auto* podokno = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (podokno == nullptr)
        return;
    const QRect plocha = Ram.Plocha()->viewport()->rect();
    const Nastaveni_Zaznam& n = Sezeni.Nastaveni;
    const QRect ulozene(Pixely(n.Okno_Analyz[1], *this), Pixely(n.Okno_Analyz[0], *this),
                        Pixely(n.Okno_Analyz[2], *this), Pixely(n.Okno_Analyz[3], *this));
    // The analysis window and the draw list stand at the left of the area, with the controls one
    // works with; the viewer takes the right edge, the full height. A place kept from a larger
    // area that would now lie outside it counts as none.
    if (n.Pamatovat_Okno != 0 && n.Okno_Analyz[2] > 0 && n.Okno_Analyz[3] > 0 && plocha.intersects(ulozene)) {
        podokno->setGeometry(ulozene);
    } else {
        const int sirka = std::min(Pixely(Vychozi_Sirka, *this), plocha.width());
        podokno->setGeometry(plocha.width() - sirka, 0, sirka, plocha.height());
    }
}

void frmVypisAnalyz::Uloz_Misto() {
    Nastaveni_Zaznam& n = Sezeni.Nastaveni;
    const auto* podokno = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (n.Pamatovat_Okno != 0 && podokno != nullptr && !podokno->isMinimized() && !podokno->isMaximized()) {
        const QRect misto = podokno->geometry();
        const auto twipy = [this](int pixely) { return int16_t(std::clamp(Twipy(pixely, *this), -32768, 32767)); };
        n.Okno_Analyz = {twipy(misto.y()), twipy(misto.x()), twipy(misto.width()), twipy(misto.height())};
    }
    if (Sezeni.Registr == nullptr)
        return;
    if (const Vysledek ulozeni = Uloz_Nastaveni(n, *Sezeni.Registr); !ulozeni.Ok())
        Sezeni.Sluzby->Zprava(ulozeni.Zprava);
}

// ---- The file ----

void frmVypisAnalyz::Otevri_Soubor_Anal() {
    const Nacteny_Soubor soubor = Nacti_Soubor(Cesta_Analyzy(Sezeni.Nastaveni), Nejvic_Textu);
    if (!soubor.Ok()) {
        Sezeni.Sluzby->Zprava(soubor.Nelze_Otevrit ? Bez_Souboru(Sezeni.Nastaveni) : soubor.Zprava(Soubor_Analyzy));
        return;
    }
    RT_Box_Zap(0);
    QString text = Vb::Z_1250(soubor.Data);
    text.replace(u"\r\n"_qs, u"\n"_qs);
    // A file over the limit is not worth laying out: it is emptied at once anyway.
    if (text.count(u'\n') > Nejvic_Radku) {
        rtbVypis_Analyz[0]->clear();
        Zobraz_Radky(Nejvic_Radku + 1);
    } else {
        rtbVypis_Analyz[0]->setPlainText(text);
        Spocitej_Radky();
    }
    if (Pocet_Radku_Prekrocen) {
        mnuSmazat_Click();
        Pocet_Radku_Prekrocen = false;
    }
    Zmeneno = false;
    Odznacit();
    RT_Box_Zap(1);
    Spocitej_Cisla();
}

bool frmVypisAnalyz::Uloz() {
    // The raw text keeps a non-breaking space as it came; only the paragraph ends become CR LF.
    QString text = rtbVypis_Analyz[0]->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u"\r\n"_qs).replace(QChar::LineSeparator, u"\r\n"_qs);
    if (const Vysledek ulozeni = Uloz_Soubor(Cesta_Analyzy(Sezeni.Nastaveni), Vb::Do_1250(text)); !ulozeni.Ok()) {
        Sezeni.Sluzby->Zprava(ulozeni.Zprava);
        return false;
    }
    Zmeneno = false;
    return true;
}

void frmVypisAnalyz::mnuSmazat_Click() {
    Zmeneno = true;
    ++Prace;
    rtbVypis_Analyz[0]->clear();
    --Prace;
    Vybrano = 0;
    Oznacena.fill(false);
    lblLista[1]->setText(u" vybráno -"_qs + Vb::Str(int64_t(0)));
    lblLista[0]->setText(u" celkem -"_qs + Vb::Str(int64_t(0)));
    if (Sezeni.Dialog->Otazka(Dialogy::Ikona::Otaznik, u"Uložení souboru"_qs, u"Uložit soubor \"Analyza.txt\" ?"_qs,
                              Dialogy::Tlacitka::Ano_Ne, Dialogy::Odpoved::Ano) == Dialogy::Odpoved::Ano)
        Uloz();
    // The next section of the file starts with the date again.
    Sezeni.Analyza.Analyza_Zahlavi = false;
}

void frmVypisAnalyz::Vymaz_Text() {
    ++Prace;
    rtbVypis_Analyz[0]->clear();
    --Prace;
    Spocitej_Cisla();
}

void frmVypisAnalyz::closeEvent(QCloseEvent* udalost) {
    if (Zmeneno) {
        const Dialogy::Odpoved odpoved = Sezeni.Dialog->Otazka(
            Dialogy::Ikona::Otaznik, u"Výpis souboru Analyza.txt"_qs, u"Obsah souboru byl změněn. Uložit ?"_qs,
            Dialogy::Tlacitka::Ano_Ne_Zrusit, Dialogy::Odpoved::Zrusit);
        // A save that fails keeps the window, and so the text, open.
        if (odpoved == Dialogy::Odpoved::Zrusit || (odpoved == Dialogy::Odpoved::Ano && !Uloz())) {
            udalost->ignore();
            return;
        }
    }
    Uloz_Misto();
    Sezeni.Vypis_Cisel = false;
    QWidget::closeEvent(udalost);
}

// ---- The text and its counts ----

void frmVypisAnalyz::RT_Box_Zap(int typ) {
    if (typ == 0) {
        if (Prace++ == 0) {
            Mel_Fokus = rtbVypis_Analyz[0]->hasFocus();
            Kryt->setCurrentIndex(1);
            Label1->show();
            QApplication::setOverrideCursor(Qt::WaitCursor);
            // The work runs without the event loop: the cover is painted now or never.
            if (rtbVypis_Analyz[1]->isVisible())
                rtbVypis_Analyz[1]->repaint();
        }
    } else if (Prace > 0 && --Prace == 0) {
        Kryt->setCurrentIndex(0);
        Label1->hide();
        QApplication::restoreOverrideCursor();
        // The cover took the focus away from the text; the user goes on typing or selecting there.
        if (Mel_Fokus)
            rtbVypis_Analyz[0]->setFocus();
    }
}

void frmVypisAnalyz::Text_Zmenen() {
    // The user's own changes make the text differ from the file; marks and loads are the program's.
    if (Prace == 0)
        Zmeneno = true;
    Spocitej_Radky();
}

void frmVypisAnalyz::Spocitej_Radky() {
    const int delka = rtbVypis_Analyz[0]->document()->characterCount();
    if (delka == Delka_Textu)
        return;
    Delka_Textu = delka;
    Zobraz_Radky(rtbVypis_Analyz[0]->document()->blockCount() - 1);
}

void frmVypisAnalyz::Zobraz_Radky(int radku) {
    if (radku > Nejvic_Radku) {
        Sezeni.Sluzby->Zprava(u"Maximální počet řádků ve výpisu je 1000 !"_qs);
        Pocet_Radku_Prekrocen = true;
        radku = 0;
    }
    lblLista[2]->setText(u" řádků - "_qs + Vb::Str(int64_t(radku)));
}

void frmVypisAnalyz::Spocitej_Cisla() {
    const QString text = rtbVypis_Analyz[0]->toPlainText();
    int64_t pocet = 0;
    for (int n = 1; n <= 49; ++n)
        if (text.contains(QString(Vb::Str(int64_t(n)) + u',')))
            ++pocet;
    lblLista[0]->setText(u" celkem -"_qs + Vb::Str(pocet));
}

QTextCharFormat frmVypisAnalyz::Pismo_Textu() const {
    const Nastaveni_Zaznam& n = Sezeni.Nastaveni;
    return Format_Pisma(n.Pismo_Jmeno_2, n.Pismo_Velikost_2, n.Pismo_Tucne_2, n.Pismo_Barva_2);
}

QTextCharFormat frmVypisAnalyz::Pismo_Vyberu() const {
    const Nastaveni_Zaznam& n = Sezeni.Nastaveni;
    return Format_Pisma(n.Pismo_Jmeno_1, n.Pismo_Velikost_1, n.Pismo_Tucne_1, n.Pismo_Barva_1);
}

void frmVypisAnalyz::Odznacit() {
    RT_Box_Zap(0);
    QTextDocument* dokument = rtbVypis_Analyz[0]->document();
    const QTextCharFormat text = Pismo_Textu();
    // The text is searched as a string, its places are those of the document; the fonts are one
    // edit, laid out once.
    const QString obsah = dokument->toPlainText();
    QTextCursor vse(dokument);
    vse.beginEditBlock();
    vse.select(QTextCursor::Document);
    vse.setCharFormat(text);
    Sezeni.Vybrana_Cisla.fill(0);
    Vybrano = 0;
    Oznacena.fill(false);
    lblLista[1]->setText(u" vybráno -"_qs + Vb::Str(int64_t(0)));
    QTextCharFormat nadpis;
    nadpis.setFontWeight(QFont::Bold);
    nadpis.setFontUnderline(true);
    for (const QString& hledany : Nadpisy)
        for (qsizetype i = obsah.indexOf(hledany, 0, Qt::CaseInsensitive); i >= 0;
             i = obsah.indexOf(hledany, i + hledany.size(), Qt::CaseInsensitive)) {
            vse.setPosition(int(i));
            vse.setPosition(int(i + hledany.size()), QTextCursor::KeepAnchor);
            vse.mergeCharFormat(nadpis);
        }
    vse.endEditBlock();
    // What the user types takes the plain font too.
    rtbVypis_Analyz[0]->setCurrentCharFormat(text);
    RT_Box_Zap(1);
}

// ---- Picking numbers ----

bool frmVypisAnalyz::eventFilter(QObject* objekt, QEvent* udalost) {
    if (objekt == rtbVypis_Analyz[0]->viewport() && udalost->type() == QEvent::MouseButtonRelease) {
        // After the text box has ended its own selecting.
        QMetaObject::invokeMethod(this, &frmVypisAnalyz::Po_Vyberu_Mysi, Qt::QueuedConnection);
    } else if (objekt == rtbVypis_Analyz[0] && udalost->type() == QEvent::KeyRelease) {
        Spocitej_Cisla();
    }
    return QWidget::eventFilter(objekt, udalost);
}

void frmVypisAnalyz::Po_Vyberu_Mysi() {
    const QString vyber = rtbVypis_Analyz[0]->textCursor().selectedText();
    if (!vyber.contains(u','))
        return;
    Vyber_Cisla(0, vyber);
}

void frmVypisAnalyz::Vyber_Cisla(int typ, const QString& text) {
    QTextCursor kurzor = rtbVypis_Analyz[0]->textCursor();
    const int pozice = kurzor.selectionStart();
    RT_Box_Zap(0);
    // The draw list's "SUMA výběru" lets the marks of draws clicked one after another add up.
    const bool suma = Sezeni.Formular_Otevren_Tahy && Sezeni.Suma_Vyberu;
    if ((typ == 1 && !suma) || (typ == 0 && Jednotlive))
        Odznacit();
    // Digits and commas make a token; anything else ends it. Only a token with a comma is a
    // number of a report: "12x" of a count line has none.
    const QString obsah = rtbVypis_Analyz[0]->document()->toPlainText();
    QTextCursor uprava(rtbVypis_Analyz[0]->document());
    uprava.beginEditBlock();
    QString token;
    for (const QChar znak : QString(text + u' ')) {
        if ((znak >= u'0' && znak <= u'9') || znak == u',') {
            token += znak;
            continue;
        }
        if (token.contains(u','))
            Oznac(token, obsah, uprava);
        token.clear();
    }
    uprava.endEditBlock();
    kurzor.setPosition(pozice);
    rtbVypis_Analyz[0]->setTextCursor(kurzor);
    QString vybrana;
    int pocet = 0;
    for (int n = 1; n <= 49; ++n)
        if (Sezeni.Vybrana_Cisla[std::size_t(n)] != 0) {
            vybrana += Vb::Str(int64_t(n));
            ++pocet;
        }
    lblLista[1]->setText(u" vybráno -"_qs + Vb::Str(int64_t(Vybrano)));
    if (typ == 0) {
        // A draw chosen in the draw list no longer stands for the picked numbers.
        if (frmVypisTahu* tahy = Ram.Najdi_Okno<frmVypisTahu>(); tahy != nullptr && Sezeni.Formular_Otevren_Tahy)
            tahy->Zrus_Vyber_Seznamu();
        Sezeni.Sluzby->Nastav_Status(vybrana, pocet > 0 ? QString::number(pocet) : QString());
    }
    RT_Box_Zap(1);
}

void frmVypisAnalyz::Oznac(const QString& token, const QString& obsah, QTextCursor& uprava) {
    const double cislo = Vb::Val(token);
    // A number of a sum or a date is no number of the ticket: it is passed over.
    if (cislo < 1 || cislo > 49)
        return;
    const int delka = int(token.size());
    const QTextCharFormat znacka = Pismo_Vyberu();
    // The whole number only: "6," inside "16," or "36," is another number, which the user did not
    // pick. Whatever follows the comma, a blank, a tab or the line end, the number is the same.
    for (qsizetype i = obsah.indexOf(token); i >= 0; i = obsah.indexOf(token, i + delka)) {
        const bool cele =
            (i == 0 || !obsah[i - 1].isDigit()) && (i + delka >= obsah.size() || !obsah[i + delka].isDigit());
        if (!cele)
            continue;
        // Counted by what is marked here: with "SUMA výběru" the draw list has picked the number
        // before it reaches the viewer.
        if (!Oznacena[std::size_t(cislo)]) {
            Oznacena[std::size_t(cislo)] = true;
            ++Vybrano;
        }
        uprava.setPosition(int(i));
        uprava.setPosition(int(i) + delka, QTextCursor::KeepAnchor);
        uprava.mergeCharFormat(znacka);
    }
    Sezeni.Vybrana_Cisla[std::size_t(cislo)] = 1;
}

// ---- Menu ----

void frmVypisAnalyz::mnuGen_Click() {
    frmGeneruj::Nacti_Cisla_Do_Generatoru(Ram);
}

void frmVypisAnalyz::mnuVyber_cisel_Click() {
    if (Sezeni.Formular_Otevren_Tipy)
        return;
    Ram.Zavri_Okno<frmVypisTahu>();
    Ram.Otevri_Okno<frmVypisTipu>(Ram, true);
}

void frmVypisAnalyz::Zmen_Pismo(int typ) {
    QString jmeno;
    bool vybrano = false;
    Otevri_Dialog(Sezeni, typ, QString(), QString(), jmeno, QString(), vybrano);
    if (!vybrano)
        return;
    Odznacit();
    RT_Box_Zap(1);
}

void frmVypisAnalyz::mnuPuvdni_Click() {
    Nastaveni_Zaznam& n = Sezeni.Nastaveni;
    n.Pismo_Barva_1 = 255;
    n.Pismo_Jmeno_1 = u"MS Sans Serif"_qs;
    n.Pismo_Velikost_1 = 8;
    n.Pismo_Tucne_1 = Vb::Pravda;
    n.Pismo_Barva_2 = 0;
    n.Pismo_Jmeno_2 = u"MS Sans Serif"_qs;
    n.Pismo_Velikost_2 = 8;
    n.Pismo_Tucne_2 = Vb::Nepravda;
    Odznacit();
    if (Sezeni.Registr != nullptr)
        if (const Vysledek ulozeni = Uloz_Nastaveni(n, *Sezeni.Registr); !ulozeni.Ok())
            Sezeni.Sluzby->Zprava(ulozeni.Zprava);
    RT_Box_Zap(1);
}

// ---- Commands ----

frmVypisAnalyz* frmVypisAnalyz::Otevri(frmMDITombi& ram) {
    if (ram.Najdi_Okno<frmVypisAnalyz>() != nullptr)
        return ram.Otevri_Okno<frmVypisAnalyz>(ram);
    if (!QFileInfo(Cesta_Analyzy(ram.Sezeni().Nastaveni)).isFile()) {
        ram.Sezeni().Sluzby->Zprava(Bez_Souboru(ram.Sezeni().Nastaveni));
        return nullptr;
    }
    auto* okno = ram.Otevri_Okno<frmVypisAnalyz>(ram);
    okno->Umisti();
    return okno;
}

void frmVypisAnalyz::Po_Zapisu_Analyzy(frmMDITombi& ram) {
    if (auto* okno = ram.Najdi_Okno<frmVypisAnalyz>())
        okno->Otevri_Soubor_Anal();
    else
        Otevri(ram);
}

void frmVypisAnalyz::Pripoj_Prikazy(frmMDITombi& ram) {
    ram.Obsluz(ram.mnuVypisAnalyz, [&ram] { Otevri(ram); });
}
