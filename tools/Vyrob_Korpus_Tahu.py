#!/usr/bin/env python3
"""Writes the odd files that the draw-archive and import readers are run over under ctest
(tests/data/korpus/Sez, Dbf, Csv). Run once from the repository root; the files are kept."""
import os
import random
import struct

KOREN = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..')
HISTORIE = os.path.join(KOREN, 'resources', 'sportka.csv')
rnd = random.Random(1957)


def uloz(slozka, jmeno, data):
    cesta = os.path.join(KOREN, 'tests', 'data', 'korpus', slozka)
    os.makedirs(cesta, exist_ok=True)
    with open(os.path.join(cesta, jmeno), 'wb') as f:
        f.write(data)


def rok_sez(rok, tydny=(), priznak=-1):
    b = bytearray(956)
    struct.pack_into('<h', b, 0, rok)
    for w, tah1, tah2 in tydny:
        o = 2 + 18 * (w - 1)
        b[o:o + 7] = bytes(tah1)
        b[o + 7:o + 14] = bytes(tah2)
        struct.pack_into('<hh', b, o + 14, priznak, priznak if any(tah2) else 0)
    return bytes(b)


def radky_historie():
    with open(HISTORIE, 'rb') as f:
        return f.read().split(b'\r\n')


# ---- .sez ----
tydny = [(1, range(1, 8), range(8, 15)), (53, range(43, 50), [0] * 7)]
uloz('Sez', 'prazdny.sez', b'')
uloz('Sez', 'jeden_bajt.sez', b'\x07')
uloz('Sez', 'jeden_rok.sez', rok_sez(1999, tydny))
uloz('Sez', 'rok_bez_bajtu.sez', rok_sez(1999, tydny)[:955])
uloz('Sez', 'zkraceny_druhy_rok.sez', rok_sez(1999, tydny) + rok_sez(2000, tydny)[:500])
uloz('Sez', 'nulovy_rok_uprostred.sez', rok_sez(1999, tydny) + bytes(956) + rok_sez(2001, tydny))
uloz('Sez', 'same_nuly.sez', bytes(3 * 956))
uloz('Sez', 'same_ff.sez', b'\xff' * (3 * 956))
uloz('Sez', 'priznak_jedna.sez', rok_sez(1999, tydny, priznak=1))
uloz('Sez', 'zaporny_rok.sez', rok_sez(-32768, tydny) + rok_sez(-1, tydny))
uloz('Sez', 'nahodne.sez', bytes(rnd.randrange(256) for _ in range(4000)))
# A slice of the real Sunday history, two years.
roky = {}
for r in radky_historie()[1:]:
    p = r.split(b';')
    if len(p) >= 18 and p[3] == b'7' and p[1] in (b'2024', b'2025'):
        roky.setdefault(int(p[1]), []).append((int(p[2]), [int(x) for x in p[4:11]], [int(x) for x in p[11:18]]))
uloz('Sez', 'vyrez_nedele.sez', b''.join(rok_sez(r, roky[r]) for r in sorted(roky)))

# ---- dBase ----
HLAVICKA = b'\x03' + bytes(543) + b'\x0d'


def zaznam(rok, tyden, cisla):
    z = b' ' + rok + tyden + cisla
    assert len(z) == 35, z
    return z


CISLA = b' 1 2 3 4 5 6 7 8 91011121314'
dobre = [zaznam(b'1999', b'01', CISLA), zaznam(b'1999', b'53', CISLA), zaznam(b'2000', b' 2', CISLA)]
uloz('Dbf', 'prazdny.dbf', b'')
uloz('Dbf', 'jeden_bajt.dbf', b'\x03')
uloz('Dbf', 'jen_hlavicka.dbf', HLAVICKA)
uloz('Dbf', 'hlavicka_a_konec.dbf', HLAVICKA + b'\x1a')
uloz('Dbf', 'dobry.dbf', HLAVICKA + b''.join(dobre) + b'\x1a')
uloz('Dbf', 'bez_konce.dbf', HLAVICKA + b''.join(dobre))
uloz('Dbf', 'zkraceny_zaznam.dbf', HLAVICKA + b''.join(dobre) + dobre[0][:17])
uloz('Dbf', 'dva_bajty_navic.dbf', HLAVICKA + b''.join(dobre) + b'\x1a\x1a')
uloz('Dbf', 'tyden_99.dbf', HLAVICKA + zaznam(b'1999', b'99', CISLA) + b'\x1a')
uloz('Dbf', 'tyden_zaporny.dbf', HLAVICKA + zaznam(b'1999', b'-1', CISLA) + b'\x1a')
uloz('Dbf', 'obri_rok.dbf', HLAVICKA + zaznam(b'9E99', b'01', CISLA) + zaznam(b'-9E9', b'01', CISLA) + b'\x1a')
uloz('Dbf', 'rok_zlomek.dbf', HLAVICKA + zaznam(b'0.4 ', b'01', CISLA) + zaznam(b' .5 ', b'1.', CISLA) + b'\x1a')
uloz('Dbf', 'zaporne_cislo.dbf', HLAVICKA + zaznam(b'1999', b'02', b'-1-2-3-4-5-6-7-8-9-1-2-3-4-5') + b'\x1a')
uloz('Dbf', 'rok_1968.dbf', HLAVICKA + b''.join(zaznam(b'1968', b'%02d' % w, CISLA) for w in (35, 36, 37)) + b'\x1a')
uloz('Dbf', 'rok_pokazde_jiny.dbf', HLAVICKA + b''.join(zaznam(b'%4d' % (1000 + i), b'01', CISLA) for i in range(60)))
uloz('Dbf', 'nahodne.dbf', bytes(rnd.randrange(256) for _ in range(3000)))
uloz('Dbf', 'nahodne_za_hlavickou.dbf', HLAVICKA + bytes(rnd.randrange(256) for _ in range(35 * 20)))
uloz('Dbf', 'cislice_za_hlavickou.dbf', HLAVICKA + bytes(rnd.choice(b'0123456789 ') for _ in range(35 * 30)))

# ---- CSV ----
historie = radky_historie()
uloz('Csv', 'prazdny.csv', b'')
uloz('Csv', 'jeden_bajt.csv', b';')
uloz('Csv', 'jen_hlavicka.csv', historie[0] + b'\r\n')
uloz('Csv', 'vyrez_historie.csv', b'\r\n'.join(historie[:40]) + b'\r\n')
uloz('Csv', 'vyrez_lf_bez_hlavicky.csv', b'\n'.join(historie[1:30]))
uloz('Csv', 'prazdne_radky.csv', b'\r\n\r\n\n   \n\r')
uloz('Csv', 'jen_stredniky.csv', historie[0] + b'\r\n' + b';' * 40 + b'\r\n')
uloz('Csv', 'malo_sloupcu.csv', historie[0] + b'\r\n' + b'1. 1. 2000;2000;01;7;1;2;3\r\n')
uloz('Csv', 'obri_tyden.csv', historie[0] + b'\r\n' + b'x;2000;99999999999999999999;7;1;2;3;4;5;6;7;1;2;3;4;5;6;7\r\n')
uloz('Csv', 'tyden_54.csv', historie[0] + b'\r\n' + b'x;2000;54;3;1;2;3;4;5;6;7;1;2;3;4;5;6;7\r\n')
uloz('Csv', 'zaporny_tyden.csv', historie[0] + b'\r\n' + b'x;2000;-1;7;1;2;3;4;5;6;7;1;2;3;4;5;6;7\r\n')
uloz('Csv', 'cislo_50.csv', historie[0] + b'\r\n' + b'x;2000;01;7;1;2;3;4;5;6;7;1;2;3;4;50;6;7\r\n')
uloz('Csv', 'rok_text.csv', historie[0] + b'\r\n' + b'x;rok;01;7;1;2;3;4;5;6;7;1;2;3;4;5;6;7\r\n')
uloz('Csv', 'dlouhy_radek.csv', historie[0] + b'\r\n' + b'7' * 20000 + b'\r\n')
uloz('Csv', 'nahodne.csv', bytes(rnd.randrange(256) for _ in range(3000)))
uloz('Csv', 'nahodne_cislice.csv', bytes(rnd.choice(b'0123456789;;;\n') for _ in range(3000)))
