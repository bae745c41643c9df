#include "app/frmNapoveda.h"

#include "core/Tabulka_Textu.h"
#include "app/frmMDITombi.h"
#include "app/modTombi.h"

#include <QFile>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStyle>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace {

const QString Uvodni_Stranka = u"index.html"_qs;

QString Cesta_Stranky(const QString& stranka) {
    return u":/napoveda/"_qs + stranka.section(u'#', 0, 0);
}

} // namespace

// The help pages live in the GUI library, which is static: without this the linker would drop them.
// The macro must stand outside any namespace.
static void Nacti_Zdroje_Napovedy() {
    static const bool nacteno = [] {
        Q_INIT_RESOURCE(napoveda);
        return true;
    }();
    Q_UNUSED(nacteno);
}

frmNapoveda::frmNapoveda(const QString& stranka, QWidget* parent)
    : QWidget(parent), cmdZpet(new QPushButton(this)), cmdVpred(new QPushButton(this)), cmdObsah(new QPushButton(this)),
      txtNapoveda(new QTextBrowser(this)) {
    Nacti_Zdroje_Napovedy();
    const Tabulka_Textu& texty = Tabulka_Textu::Programu();
    setObjectName(u"frmNapoveda"_qs);
    setWindowTitle(texty.Text(u"frmNapoveda"_qs));

    const auto nastav = [&](QPushButton* tlacitko, const QString& jmeno, QStyle::StandardPixmap ikona) {
        tlacitko->setObjectName(jmeno);
        tlacitko->setText(texty.Text(u"frmNapoveda."_qs + jmeno));
        tlacitko->setToolTip(texty.Text(u"frmNapoveda."_qs + jmeno + u".ToolTipText"_qs));
        tlacitko->setIcon(style()->standardIcon(ikona));
        tlacitko->setFocusPolicy(Qt::TabFocus);
    };
    nastav(cmdZpet, u"cmdZpet"_qs, QStyle::SP_ArrowBack);
    nastav(cmdVpred, u"cmdVpred"_qs, QStyle::SP_ArrowForward);
    nastav(cmdObsah, u"cmdObsah"_qs, QStyle::SP_FileDialogContentsView);
    cmdZpet->setEnabled(false);
    cmdVpred->setEnabled(false);

    txtNapoveda->setObjectName(u"txtNapoveda"_qs);
    txtNapoveda->setOpenExternalLinks(true);
    txtNapoveda->setFrameShape(QFrame::NoFrame);
    txtNapoveda->document()->setDocumentMargin(14);

    auto* tlacitka = new QHBoxLayout;
    tlacitka->setContentsMargins(8, 6, 8, 6);
    tlacitka->addWidget(cmdZpet);
    tlacitka->addWidget(cmdVpred);
    tlacitka->addSpacing(12);
    tlacitka->addWidget(cmdObsah);
    tlacitka->addStretch();
    auto* oddelovac = new QFrame(this);
    oddelovac->setFrameShape(QFrame::HLine);
    oddelovac->setFrameShadow(QFrame::Sunken);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    rozlozeni->setSpacing(0);
    rozlozeni->addLayout(tlacitka);
    rozlozeni->addWidget(oddelovac);
    rozlozeni->addWidget(txtNapoveda, 1);

    connect(cmdZpet, &QPushButton::clicked, txtNapoveda, &QTextBrowser::backward);
    connect(cmdVpred, &QPushButton::clicked, txtNapoveda, &QTextBrowser::forward);
    connect(cmdObsah, &QPushButton::clicked, this, [this] { Ukaz_Stranku(Uvodni_Stranka); });
    connect(txtNapoveda, &QTextBrowser::backwardAvailable, cmdZpet, &QPushButton::setEnabled);
    connect(txtNapoveda, &QTextBrowser::forwardAvailable, cmdVpred, &QPushButton::setEnabled);
    connect(txtNapoveda, &QTextBrowser::sourceChanged, this, &frmNapoveda::Po_Zmene_Stranky);

    Ukaz_Stranku(stranka);
    resize(sizeHint());
}

QString frmNapoveda::Stranka_Podle_Klice(const QString& klic) {
    // In the order of the help keys: Anal, Gener, NastavPrg, OProg, Tahy, Sezn, TiskTik, AnalVypis,
    // TahyVypis, TipyVypis, TipyVypisVlastni, Heslo.
    static const QString Stranky[] = {u"analyza.html"_qs,
                                      u"generovani.html"_qs,
                                      u"nastaveni.html"_qs,
                                      u"index.html"_qs,
                                      u"tahy.html"_qs,
                                      u"seznamy.html"_qs,
                                      u"tisk.html"_qs,
                                      u"analyza.html#prohlizec"_qs,
                                      u"tahy.html#vypis"_qs,
                                      u"vyhodnoceni.html"_qs,
                                      u"vyhodnoceni.html#vlastni"_qs,
                                      u"nastaveni.html#heslo"_qs};
    const int kontext = modTombi::Napoveda(klic);
    return kontext == 0 ? Uvodni_Stranka : Stranky[kontext - 1];
}

void frmNapoveda::Ukaz_Stranku(const QString& stranka) {
    const QString jmeno = QFile::exists(Cesta_Stranky(stranka)) ? stranka : Uvodni_Stranka;
    txtNapoveda->setSource(QUrl(u"qrc:/napoveda/"_qs + jmeno));
}

QSize frmNapoveda::sizeHint() const {
    return {760, 560};
}

void frmNapoveda::Po_Zmene_Stranky(const QUrl&) {
    // "Nápověda – Tisk tiketů"; the contents page says it is the help by itself.
    const QString titulek = txtNapoveda->documentTitle();
    const QString okno = Tabulka_Textu::Programu().Text(u"frmNapoveda"_qs);
    if (titulek.isEmpty() || titulek.contains(okno, Qt::CaseInsensitive))
        setWindowTitle(titulek.isEmpty() ? okno : titulek);
    else
        setWindowTitle(okno + u" – "_qs + titulek);
}

void frmNapoveda::Pripoj_Prikazy(frmMDITombi& ram) {
    ram.Obsluz(ram.mnuHelp, [&ram] { ram.Otevri_Okno<frmNapoveda>(Uvodni_Stranka); });
}
