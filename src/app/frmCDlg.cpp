#include "app/frmCDlg.h"

#include "app/frmKresleni.h"
#include "app/frmPismo.h"

#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>

namespace {

QMessageBox::Icon Qt_Ikona(Dialogy::Ikona ikona) {
    switch (ikona) {
    case Dialogy::Ikona::Informace:
        return QMessageBox::Information;
    case Dialogy::Ikona::Otaznik:
        return QMessageBox::Question;
    case Dialogy::Ikona::Vykricnik:
        return QMessageBox::Warning;
    case Dialogy::Ikona::Stop:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton Qt_Tlacitko(Dialogy::Odpoved odpoved) {
    switch (odpoved) {
    case Dialogy::Odpoved::OK:
        return QMessageBox::Ok;
    case Dialogy::Odpoved::Zrusit:
        return QMessageBox::Cancel;
    case Dialogy::Odpoved::Ano:
        return QMessageBox::Yes;
    case Dialogy::Odpoved::Ne:
        return QMessageBox::No;
    }
    return QMessageBox::NoButton;
}

// The extension that a name typed without one gets: "tip" of "*.tip", none of "*.*" or "*".
QString Vychozi_Pripona(const QString& filtr) {
    const QStringList casti = filtr.split(u'|');
    if (casti.size() < 2)
        return {};
    const QString vzor = casti[1].split(u';').first().trimmed();
    const QString pripona = vzor.mid(2);
    if (!vzor.startsWith(u"*."_qs) || pripona.contains(u'*') || pripona.contains(u'?'))
        return {};
    return pripona;
}

} // namespace

frmCDlg::frmCDlg(QWidget* vlastnik) : Vlastnik(vlastnik) {}

void frmCDlg::Okno_Zpravy(Ikona ikona, const QString& titulek, const QString& text) {
    QMessageBox okno(Qt_Ikona(ikona), titulek, text, QMessageBox::Ok, Vlastnik);
    okno.exec();
}

Dialogy::Odpoved frmCDlg::Otazka(Ikona ikona, const QString& titulek, const QString& text, Tlacitka tlacitka,
                                 Odpoved vychozi) {
    QMessageBox okno(Qt_Ikona(ikona), titulek, text, QMessageBox::NoButton, Vlastnik);
    Odpoved zruseni = Odpoved::Zrusit;
    switch (tlacitka) {
    case Tlacitka::OK:
        okno.setStandardButtons(QMessageBox::Ok);
        zruseni = Odpoved::OK;
        break;
    case Tlacitka::OK_Zrusit:
        okno.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
        break;
    case Tlacitka::Ano_Ne:
        okno.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        zruseni = Odpoved::Ne;
        break;
    case Tlacitka::Ano_Ne_Zrusit:
        okno.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    }
    // Czech captions, as Qt's Czech translation gives them, also where it is not installed.
    for (const auto& [tlacitko, text] :
         {std::pair{QMessageBox::Cancel, u"Zrušit"_qs}, std::pair{QMessageBox::Yes, u"&Ano"_qs},
          std::pair{QMessageBox::No, u"&Ne"_qs}})
        if (QAbstractButton* nalezene = okno.button(tlacitko))
            nalezene->setText(text);
    if (QAbstractButton* tlacitko = okno.button(Qt_Tlacitko(vychozi)))
        okno.setDefaultButton(qobject_cast<QPushButton*>(tlacitko));
    // Closing the box or Esc is the cancelling answer.
    okno.setEscapeButton(okno.button(Qt_Tlacitko(zruseni)));

    switch (okno.exec()) {
    case QMessageBox::Ok:
        return Odpoved::OK;
    case QMessageBox::Yes:
        return Odpoved::Ano;
    case QMessageBox::No:
        return Odpoved::Ne;
    case QMessageBox::Cancel:
        return Odpoved::Zrusit;
    default:
        return zruseni;
    }
}

std::optional<QString> frmCDlg::Otevrit_Soubor(const QString& filtr, const QString& nazev, const QString& slozka) {
    const QString cesta = QFileDialog::getOpenFileName(Vlastnik, nazev, slozka, Qt_Filtr(filtr));
    if (cesta.isEmpty())
        return std::nullopt;
    // Opening never changes a file's permissions: one the user made read-only is told so when
    // Tombi must write it.
    return cesta;
}

std::optional<QString> frmCDlg::Ulozit_Soubor(const QString& filtr, const QString& nazev, const QString& jmeno,
                                              const QString& slozka) {
    QFileDialog okno(Vlastnik, nazev, slozka, Qt_Filtr(filtr));
    okno.setAcceptMode(QFileDialog::AcceptSave);
    okno.setDefaultSuffix(Vychozi_Pripona(filtr));
    if (!jmeno.isEmpty())
        okno.selectFile(QDir(slozka).filePath(jmeno));
    if (okno.exec() != QDialog::Accepted || okno.selectedFiles().isEmpty())
        return std::nullopt;
    return okno.selectedFiles().first();
}

bool frmCDlg::Vybrat_Pismo(Pismo& pismo) {
    QFont puvodni(pismo.Jmeno);
    if (pismo.Velikost > 0)
        puvodni.setPointSize(pismo.Velikost);
    puvodni.setBold(pismo.Tucne);
    frmPismo okno(puvodni, frmKresleni::Barva_Z_Vb(pismo.Barva), Vlastnik);
    if (okno.exec() != QDialog::Accepted)
        return false;
    const QFont nove = okno.Pismo();
    pismo.Jmeno = nove.family();
    pismo.Velikost = nove.pointSize() > 0 ? nove.pointSize() : pismo.Velikost;
    pismo.Tucne = nove.bold();
    pismo.Barva = frmKresleni::Barva_Do_Vb(okno.Barva());
    return true;
}

bool frmCDlg::Vybrat_Tiskarnu() {
    QPrintDialog okno(&Vybrana_Tiskarna, Vlastnik);
    return okno.exec() == QDialog::Accepted;
}

QString frmCDlg::Qt_Filtr(const QString& filtr) {
    const QStringList casti = filtr.split(u'|');
    QStringList filtry;
    for (qsizetype i = 0; i < casti.size(); i += 2) {
        QString popis = casti[i].trimmed();
        if (i + 1 >= casti.size()) {
            // A lone pattern with no description.
            if (!popis.isEmpty())
                filtry << popis;
            break;
        }
        const QString vzory = casti[i + 1].split(u';', Qt::SkipEmptyParts).join(u' ').trimmed();
        // Qt reads the patterns from the parentheses at the end of the description: put the real
        // patterns there, in place of any that the description shows.
        if (popis.endsWith(u')') && popis.contains(u'('))
            popis = popis.left(popis.lastIndexOf(u'(')).trimmed();
        filtry << (popis.isEmpty() ? vzory : popis + u" ("_qs + vzory + u')');
    }
    return filtry.join(u";;"_qs);
}
