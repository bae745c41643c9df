#include "generator/modRozpisy.h"

namespace modRozpisy {

const QStringList& Katalog() {
    static const QStringList Radky = {
        u"žádný typ rozpisu - dle volby VYBRANÁ ČÍSLA"_qs,
        u"IMPORT  rozpisu ze souboru   *.rzp"_qs,
        u"1 tutovka a 15 čísel,                          14 sloupců"_qs,
        u"1 tutovka a 24 čísel,                          38 sloupců"_qs,
        u"1 tutovka a 31 čísel,                          27 sloupců"_qs,
        u"1 tutovka a 2 skupiny (18 čísel),         68 sloupců"_qs,
        u"2 tutovky a 12 čísel,                          27 sloupců"_qs,
        u"2 tutovky a 18 čísel                           15 sloupců"_qs,
        u"3 tutovky a 20 čísel                           31 sloupců"_qs,
        u"3 tutovky a 25 čísel                           31 sloupců"_qs,
        u"10 čísel,                                             5 sloupců"_qs,
        u"14 čísel,                                           19 sloupců"_qs,
        u"15 čísel,                                           46 sloupců"_qs,
        u"16 čísel,                                             6 sloupců"_qs,
        u"18 čísel,                                           41 sloupců"_qs,
        u"19 čísel,                                           15 sloupců"_qs,
        u"26 čísel,                                           24 sloupců"_qs,
        u"27 čísel,                                           30 sloupců"_qs,
        u"30 čísel,                                           35 sloupců"_qs,
        u"30 čísel, 12 oblíbených + 18               72 sloupců"_qs,
        u"36 čísel, 6 oblíbených + 30                 61 sloupců"_qs,
        u"36 čísel,                                           99 sloupců"_qs,
        u"30 čísel v 15 dvojicích,                      35 sloupců"_qs,
        u"15 čísel, 2 skupiny (1-7, 8-15)             77 sloupců"_qs,
        u"16 čísel, 4 trojice a 2 dvojice              36 sloupců"_qs,
    };
    return Radky;
}

} // namespace modRozpisy
