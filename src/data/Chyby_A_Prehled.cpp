#include "data/Chyby_A_Prehled.h"

#include "core/Dialogy.h"
#include "core/Vb.h"
#include "data/Soubory.h"

#include <QFile>

namespace {

const QString Konec_Radku = QStringLiteral("\r\n");

} // namespace

Vysledek Zapis_Chybu(const QString& adresar_dat, const QString& proces, const QString& hodnota, const QString& popis,
                     Dialogy* dialogy) {
    // Plain lines without quotes around them: the report is read by a person, not by a program.
    const QString druhy =
        proces.contains(u"Vyh_"_qs) ? u"Pocet vyhrávajících tiketů: "_qs + hodnota : u"Cesta: "_qs + hodnota;
    const QString text =
        u"Chyba  v  procesu: "_qs + proces + Konec_Radku + druhy + Konec_Radku + u"Chyba: "_qs + popis + Konec_Radku;
    const Vysledek v = Uloz_Soubor(Spoj_Cestu(adresar_dat, Soubor_Chyby), Vb::Do_1250(text));
    if (dialogy)
        dialogy->Okno_Zpravy(Dialogy::Ikona::Stop, u"Vnitřní chyba programu ..."_qs,
                             u"Zašlete prosím soubor ErrorFile.txt na adresu"_qs + Konec_Radku + Konec_Radku +
                                 Adresa_Podpory);
    return v;
}

Vysledek Pridej_Do_Prehledu(const QString& adresar_seznamu, const QString& soubor_tipu, const QString& seznam,
                            const QDateTime& kdy) {
    const QString cesta = Spoj_Cestu(adresar_seznamu, Soubor_Prehledu);
    QByteArray obsah;
    if (QFile::exists(cesta)) {
        // An overview that is there but cannot be read is left alone rather than started afresh.
        const Nacteny_Soubor stary = Nacti_Soubor(cesta, Nejvic_Textu);
        if (!stary.Ok())
            return Vysledek::Chyba(stary.Zprava(Soubor_Prehledu));
        obsah = stary.Data;
    } else {
        const QString hlava = Konec_Radku + u"     Vazba souboru SEZNAM na soubor TIPU"_qs + Konec_Radku +
                              u"Seznam\t\t\tTipy\t\t\tUloženo dne"_qs + Konec_Radku + QString(108, u'-') + Konec_Radku;
        obsah = Vb::Do_1250(hlava);
    }
    // With tab stops of 8 the head puts the date at column 48. A tip file name of 8 to 15 characters
    // reaches it with two tabs; a shorter one needs a third.
    const QString tabulatory = soubor_tipu.size() < 8 ? u"\t\t\t"_qs : u"\t\t"_qs;
    const QString radek = seznam + u"\t\t"_qs + soubor_tipu + tabulatory + kdy.toString(u"dd.MM.yyyy"_qs) + u" - "_qs +
                          kdy.toString(u"hh:mm:ss"_qs) + Konec_Radku;
    obsah += Vb::Do_1250(radek);
    return Uloz_Soubor(cesta, obsah);
}
