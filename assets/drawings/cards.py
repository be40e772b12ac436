# SPDX-License-Identifier: Apache-2.0
"""Draws the cards of the bench with all their fixed print, the mat they lie on, and the print that comes and goes.

Parts that move, light up or can be missing are no part of a card: they are in the modules beside this one, and a card keeps
their pads and printed outlines. Places count from the card's top left corner. What the window writes itself (captions, clocks,
rates, jumper names) is left out here, its place stays free of copper.
"""
from drawings.materials import header, legs, light_line, package, shadow, shadow_disc, strip
from kit.svg_kit import (CAP_RED, COAL, COPPER, CORD_DARK, CORD_LIGHT, DIM_SILK, GOLD_EDGE, GRAPHITE, GREEN, MASK_EDGE, PITCH,
                         SHADE, SILK, SOOT, STEEL, TIN_EDGE, WHITE, circ, element, g, move, n, path, rect, text, through)

PIN_X = (70, 83, 96, 109, 125, 138, 151, 164, 183, 196, 209, 222, 238, 251, 264, 277)  # bit 15 to bit 0


# ------------------------------------------------------------------ the board
def board(w, h, holes):
    s = rect(.5, .5, w - 1, h - 1, 4, g('mask'), MASK_EDGE, 1)
    s += path('M1.6 %sV5A3.4 3.4 0 0 1 5 1.6H%s' % (n(h - 5.0), n(w - 5.0)), 'none', '#7fcfa0', .8, .55, 'round')
    s += path('M5 %sH%sA3.2 3.2 0 0 0 %s %sV5' % (n(h - 1.8), n(w - 5.0), n(w - 1.8), n(h - 5.0)), 'none',
              MASK_EDGE, .8, .6, 'round')
    s += path('M5 %sH%s' % (n(h - 3.2), n(w - 6.0)), 'none', '#3b9a6a', .6, .45, 'round')
    for x, y in holes:
        s += circ(x, y, 5.4, '#2a8054', op=.55) + circ(x + .5, y + .6, 4.2, '#0a2c1b', op=.5)
        s += circ(x, y, 3.9, g('hole'), STEEL, .5) + circ(x, y, 2.3, '#6d757a', GRAPHITE, .5)
        s += path('M%s %sA1.9 1.9 0 0 1 %s %s' % (n(x - 1.7), n(y + .3), n(x + .3), n(y - 1.7)), 'none', COAL, .7, .7, 'round')
    return s


def corners(w, h, which):
    place = {'tl': (8, 8), 'tr': (w - 8, 8), 'bl': (8, h - 8), 'br': (w - 8, h - 8)}
    return [place[k] for k in which.split()]


# --------------------------------------------------------------------- copper
def trace(*points):
    """Copper under the mask."""
    return path(through(points), 'none', COPPER, 1.5, .8, 'round', 'round')


def via(x, y):
    return circ(x, y, 1.8, '#3a9d6e') + circ(x, y, .8, MASK_EDGE)


def drop(x, y, column, end, c=2.0):
    """From x, y to the right, then down the column."""
    return trace((x, y), (column - c, y), (column, y + c), (column, end))


# ----------------------------------------------------------- pads, small parts
def pads(x, y, xs, ys, w, h):
    return ''.join(rect(x + a - w / 2.0, y + b - h / 2.0, w, h, .4, g('tin'), TIN_EDGE, .4) for a in xs for b in ys)


def transformer_pads(x, y):
    """Six pads and the outline that stay when the transformer is taken out."""
    return (rect(x + 4, y + .7, 15.2, 19, 1.5, 'none', DIM_SILK, .8, .55) + circ(x + 7.4, y + 3.4, .8, DIM_SILK, op=.6)
            + pads(x, y, (1.9, 21.3), (5, 10.4, 15.8), 3.2, 2.8))


def terminator_pads(x, y):
    s = path('M%s %sh19.4v5.4h-19.4Z' % (n(x + 7.3), n(y + 2.3)), 'none', DIM_SILK, .8, .75, dash='3 2')
    for a in (2.5, 31.5):
        s += circ(x + a, y + 5, 2.4, g('tin'), TIN_EDGE, .4) + circ(x + a, y + 5, 1, COAL)
    return s


def capacitor(x, y, upright=False, body='#8f6b50'):
    w, h = (4.2, 7.6) if upright else (7.6, 4.2)
    s = shadow(x, y, w, h, .6, .9) + rect(x, y, w, h, .6, g('tin'), TIN_EDGE, .4)
    if upright:
        return s + rect(x, y + 2.1, w, 3.4, 0, body) + path('M%s %sv3' % (n(x + .7), n(y + 2.3)), 'none', WHITE, .6, .35)
    return s + rect(x + 2.1, y, 3.4, h, 0, body) + path('M%s %sh3' % (n(x + 2.3), n(y + .7)), 'none', WHITE, .6, .35)


def resistor(x, y, upright=False):
    return capacitor(x, y, upright, '#22262a')


def chip_mark(x, y):
    """The dot at a chip's first pin."""
    return circ(x + .2, y + .2, 1.2, SILK, op=.9)


# ----------------------------------------------------------------------- print
def label(x, y, s, size=9, fill=SILK, bold=True, anchor='middle'):
    return text(x, y, s, size, fill, bold, anchor)


def frame(x, y, w, h, caption='', at=0, width=0):
    """A printed frame; its caption stands in the gap of the upper line, "at" counted from the frame's left."""
    r = 3.0
    d = 'M%s %sH%sA3 3 0 0 1 %s %sV%sA3 3 0 0 1 %s %sH%sA3 3 0 0 1 %s %sV%sA3 3 0 0 1 %s %s' % tuple(n(v) for v in (
        x + at + width + 3, y, x + w - r, x + w, y + r, y + h - r, x + w - r, y + h, x + r, x, y + h - r, y + r, x + r, y))
    if not caption:
        return rect(x, y, w, h, 3, 'none', DIM_SILK, .8)
    return (path(d + 'H%s' % n(float(x + at - 3)), 'none', DIM_SILK, .8, 1, 'round')
            + label(x + at, y + 3.2, caption, 9, SILK, True, 'start'))


def counter_print(x, y):
    """The frame of six counter buttons, the first of them at 6, 7."""
    s = frame(x, y, 124, 42, '16bit Counter', 10, 63)
    for k in range(6):
        s += label(x + 14.4 + 19 * k, y + 36, str(5 - k))
    return s


def pin_outline(x, y):
    """Outline and socket holes of a pin that can be an input or an output."""
    return (rect(x, y, 11, 25, 1.5, 'none', DIM_SILK, .8, .75)
            + ''.join(circ(x + 5.5, y + v, 1.2, g('tin'), STEEL, .3) for v in (3.6, 21.4)))


def port_print(x, y, four=False):
    s = frame(x, y + 4, 324, 66, 'PIO-Pin Signal', 72, 65)
    s += path('M%s %sV%s' % (n(x + 52.0), n(y + 11.0), n(y + 57.5)), 'none', DIM_SILK, .8, .6, 'round')
    if four:
        s += label(x + 14, y + 67, 'STB1')
    else:
        s += label(x + 14, y + 14, 'SSA') + label(x + 40, y + 14, 'SSB')
        s += label(x + 10.6, y + 67, 'DO') + label(x + 26.9, y + 67, 'STB', 8, DIM_SILK, False) + label(x + 42.6, y + 67, 'DI')
        s += label(x + 61, y + 32, 'DI') + label(x + 60.4, y + 63.3, 'DO')
    for k, p in enumerate(PIN_X):
        if four and k < 4:
            continue
        if four:
            s += pin_outline(x + p + .5, y + 16.5)
        s += label(x + p + 6, y + 50, str(15 - k), 8, SILK, False)
    s += label(x + 293, y + 25, '1', 8) + label(x + 293, y + 40, '0', 8)
    return s + label(x + 308.6, y + 45, 'CLR')


def led_resistor(x, y):
    """The series resistor left of a lamp and its copper."""
    return trace((x - 10, y), (x + 4, y)) + resistor(x - 10, y - 2.1) + via(x - 14, y) + trace((x - 14, y), (x - 9, y))


# ---------------------------------------------------------------- center card
def leg_of(first, pitch, at):
    return lambda i: at + first + pitch * i


def power_input():
    """Right of the host: jack, regulator and capacitors, where the register window may lie over them."""
    s = frame(374, 26, 52, 78, 'POWER', 8, 33)
    s += trace((364, 65), (384, 65)) + trace((396, 65), (412, 65)) + trace((388, 58), (388, 44)) + trace((404, 44), (404, 65))
    for x in (388, 408):
        s += shadow_disc(x, 40, 7, 1.5) + circ(x, 40, 7, g('can'), STEEL, .6) + circ(x, 40, 5.2, g('can_top'), '#a3acb0', .5)
        s += path('M%s 36.2A5.2 5.2 0 0 0 %s 43.8Z' % (n(x - 3.6), n(x - 3.6)), '#3b444a')
    s += legs(381, 5.2, 3, 68, 5, True, 2.2) + package(377.6, 57, 17, 12) + rect(378.6, 53.4, 15, 4, .5, g('tin'), TIN_EDGE, .4)
    s += shadow(404, 74, 34, 20, 1.5, 1.5) + rect(404, 74, 34, 20, 1.5, g('package'), SOOT, .7) + light_line(404, 74, 34, 20, 1.2)
    s += rect(424, 75.6, 14, 16.8, 1, g('well'), '#070808', .5) + path('M425 84H437', 'none', '#a9b1b5', 2.4, 1, 'round')
    s += trace((409, 65), (409, 74)) + capacitor(381, 82, True) + capacitor(391, 82, True)
    s += trace((383.1, 73), (383.1, 82)) + trace((393.1, 76), (393.1, 82))
    return s + label(413.6, 87, '5V', 8, SILK, False)


def card_center():
    s = board(440, 130, corners(440, 130, 'tr bl br'))
    row, column = leg_of(7.046, 48 / 13.0, 17), leg_of(7.046, 48 / 13.0, 134)
    for y in (18.4, 56.4):  # connector, two transformers, transceiver
        for a, b in ((y, y + 1.6), (y + 13.6, y + 12.4)):
            s += trace((33, a), (37, a), (37 + abs(b - a), b), (47, b)) + trace((68, b), (72, b)) + trace((94, b), (101, b))
    for y in (row(1), row(2), row(3), row(9), row(10)):  # transceivers to the chip
        s += trace((120, y), (136, y))
    for y, top in ((45, 38), (83, 76)):  # terminators to their connectors
        s += trace((6.5, y), (6.5, top)) + trace((35.5, y), (35.5, y - 4), (32, y - 7.5), (32, top - 2))
    # jumper and reset
    s += trace((23.4, 98), (23.4, 91.4), (26.2, 88.6), (134.7 - (88.6 - row(11)), 88.6), (134.7, row(11)), (136, row(11)))
    s += trace((105, 95.4), (134.7 - (95.4 - row(12)), 95.4), (134.7, row(12)), (136, row(12)))
    for i in (6, 7):  # oscillator
        s += trace((column(i), 73), (column(i), 97))
    # lamps, interrupt lines
    for i, y, x in ((12, 88.4, 263), (11, 91.0, 234), (10, 93.6, 205)):
        s += trace((column(i), 73), (column(i), 79), (column(i) + y - 79, y), (x - 3, y), (x, y + 3), (x, 104))
    s += trace((190, row(10)), (204, row(10))) + trace((266, row(10)), (284, row(10)))
    s += trace((190, row(12)), (193, row(12)), (199.7, row(12) + 6.7), (204, row(12) + 6.7))
    s += trace((266, row(12) + 6.7), (284, row(12) + 6.7))
    for y in (15, 53):
        s += transformer_pads(46, y) + transformer_pads(71, y)
    s += terminator_pads(4, 40) + terminator_pads(4, 78)
    s += trace((127, 86), (127, 96)) + via(127, 98) + capacitor(124.9, 84.4, True)
    s += chip_mark(134, 17) + power_input()
    # the host bus
    s += path('M197 36.5L206 26.4V31H267V26.4L276 36.5L267 46.6V42H206V46.6Z', GREEN, SILK, 1.1, 1, 'round', 'round')
    s += label(236.5, 39.8, 'HOST BUS')
    s += frame(204, 55, 62, 30) + label(229, 66.3, 'INT0', 9, DIM_SILK, False) + label(229, 80.1, 'INT1', 9, DIM_SILK, False)
    s += label(111, 47, 'LINE', 8, DIM_SILK, False) + label(96.6, 122, 'RESET')
    for x, name in ((205, 'SCAN'), (234, 'Chk1'), (263, 'Chk2')):
        s += label(x, 122, name)
    return s


# ------------------------------------------------- what three cards have alike
ROW, COLUMN = leg_of(5.927, 38 / 11.0, 20), leg_of(5.927, 38 / 11.0, 116)


def satellite(serial=False):
    """Line side, chip, oscillator and address switches."""
    s = board(440, 172, corners(440, 172, 'tr bl br'))
    for x in (17, 22, 27):  # the two connectors are one line
        s += trace((x, 36), (x, 54))
    for y in (18.4, 56.4):
        s += trace((33, y), (37, y), (38.6, y + 1.6), (47, y + 1.6))
        s += trace((33, y + 13.6), (37, y + 13.6), (38.2, y + 12.4), (47, y + 12.4))
    # transformers to the transceiver, transceiver to the chip
    s += trace((68, 20), (71.2, 20), (86.2, 35), (86.2, 37)) + trace((68, 30.8), (77.6, 30.8), (81.8, 35), (81.8, 37))
    s += trace((68, 68.8), (71, 68.8), (86.2, 53.6), (86.2, 51)) + trace((68, 58), (77.4, 58), (81.8, 53.6), (81.8, 51))
    for i, x in ((0, 90.6), (1, 95), (2, 99.4)):
        s += trace((x, 37), (x, 35), (x + 35 - ROW(i), ROW(i)), (118, ROW(i)))
    s += trace((99.4, 51), (99.4, 52), (101, ROW(8)), (118, ROW(8)))
    s += trace((95, 51), (95, 53.6), (95 + ROW(9) - 53.6, ROW(9)), (118, ROW(9)))
    s += trace((6.5, 86), (6.5, 76)) + trace((35.5, 86), (35.5, 81), (31, 76.5))
    # jumper and reset
    s += trace((23.4, 100), (23.4, 96.2), (26.2, 93.4), (100.4, 93.4), (106.4, 87.4), (106.4, 63),
               (106.4 + 63 - ROW(10), ROW(10)), (118, ROW(10)))
    s += trace((31, 129.4), (36, 124.4), (84, 124.4), (94, 114.4), (94, 103.4), (110, 87.4), (110, 73), (113, 70),
               (COLUMN(0) - 3, 70), (COLUMN(0), 67), (COLUMN(0), 64))
    for i in (5, 6):
        s += trace((COLUMN(i), 64), (COLUMN(i), 76))
    for i in range(4):  # address switches
        s += trace((160, ROW(i)), (190, ROW(i)))
    for k, i in enumerate((10, 9, 8, 7)):  # port
        x = 166 + 2.7 * k
        s += drop(160, ROW(i), x, 92 + (0 if k % 2 else 3.6)) + via(x, 92 + (0 if k % 2 else 3.6))
    if serial:
        for k, (i, y) in enumerate(((6, 89.5), (5, 80.2), (4, 70.9))):
            x = 176.8 + 2.7 * k
            s += trace((160, ROW(i)), (x - 2, ROW(i)), (x, ROW(i) + 2), (x, y - 2), (x + 2, y), (200.4, y))
    s += transformer_pads(46, 15) + transformer_pads(46, 53) + terminator_pads(4, 81)
    s += trace((97, 73.9), (90, 73.9)) + trace((97, 81.9), (90, 81.9)) + via(89.4, 73.9) + via(89.4, 81.9)
    s += capacitor(93, 71.8) + capacitor(93, 79.8) + chip_mark(116, 20)
    s += label(91, 66, 'LINE', 8, DIM_SILK, False) + label(36, 138, 'RESET', 9, SILK, True, 'start')
    return s + label(224, 62, 'SA.')


def link(x1, x2, rows):
    return ''.join(trace((x1, ROW(i)), (x2, ROW(i))) for i in rows)


def card_board1():
    s = satellite() + link(258, 286, (1, 2, 3)) + led_resistor(342, 35) + trace((344, 35), (356, 35))
    s += label(292.2, 62, 'BPS') + label(357, 62, 'MON')
    for x, words in ((426, 'Varel Bus Network'), (350, 'Ver.2.00'), (312, 'VRB-TS')):
        s += label(x, 88, words, 8, DIM_SILK, False, 'end')
    return s + port_print(98, 98)


def cascade_socket(x, y):
    s = rect(x, y, 18.8, 69, 1.5, 'none', DIM_SILK, .8, .8)
    s += path('M%s %sv8' % (n(x + 17.0), n(y + 30.0)), 'none', DIM_SILK, .8, .8)
    for k in range(10):
        for a in (6.4, 12.4):
            s += circ(x + a, y + 7.6 + 6 * k, 1.7, g('gold'), GOLD_EDGE, .3) + circ(x + a, y + 7.6 + 6 * k, .8, COAL)
    return s


def card_board2():
    s = satellite(True) + link(258, 292, (1, 2, 3)) + trace((288, 74), (296, 74))
    for k, y in enumerate((66, 70.2, 74.4)):  # to the cascade socket
        s += trace((400, y), (416, y)) + via(398.6, y)
    s += cascade_socket(412, 17.6) + label(414, 97, 'Cascade', 8, DIM_SILK, False)
    s += counter_print(280, 17) + label(300, 92, 'SE')
    return s + port_print(98, 98)


def card_board3():
    s = board(346, 172, corners(346, 172, 'tl tr'))
    column = leg_of(5.927, 38 / 11.0, 36)
    for i in (2, 3, 4, 5, 6, 7, 8):
        s += trace((22, ROW(i)), (38, ROW(i)))
    s += trace((80, ROW(0)), (108, ROW(0)))
    for i in (7, 8, 9, 10):  # port
        end = 109 if i % 2 else 113
        s += trace((column(i), 64), (column(i), end)) + via(column(i), end)
    for x, i, y in ((85.4, 9, 89.5), (88.1, 8, 80.2), (90.8, 7, 70.9)):
        s += trace((80, ROW(i)), (x - 2, ROW(i)), (x, ROW(i) + 2), (x, y - 2), (x + 2, y), (112.4, y))
    for i, y in ((6, 57.0), (5, 54.3)):  # counters
        start = 88 + (0 if i == 6 else 1.1)
        d = y - ROW(i)
        s += trace((80, ROW(i)), (start, ROW(i)), (start + d, y), (198, y), (198 + y - ROW(i), ROW(i)), (224, ROW(i)))
    s += trace((200, 74), (208, 74))
    s += cascade_socket(10.6, 17.6) + chip_mark(36, 20) + capacitor(42, 76) + capacitor(42, 84)
    s += label(116.6, 52, 'RESET') + counter_print(212, 17) + label(212, 92, 'SE')
    return s + port_print(11, 98)


def card_board4():
    s = satellite() + link(258, 280, (1, 2, 3)) + link(306, 330, (2, 3)) + link(344, 370, (2, 3))
    s += led_resistor(398, 35) + trace((400, 35), (412, 35))
    for k in range(2):  # socket of the drive's cable
        y, x = 86 + 2.7 * k, 396 + 2.7 * k
        s += trace((416, y), (x + 4 + 1.1 * k, y), (x, y + 4 + 1.1 * k), (x, 108 + 4 * k)) + via(x, 108 + 4 * k)
    s += move(414, 64, header(5, 18, 34))
    s += label(409, 80, 'PWM', 8, DIM_SILK, False, 'end')
    s += label(292.4, 62, 'IOS') + label(335.6, 62, 'Mode') + label(413, 62, 'MON')
    return s + port_print(98, 98, True)


# ------------------------------------------------------------------ PWM panel
def wire(d, dark, mid, light):
    return (move(.9, 1.3, path(d, 'none', SHADE, 3, .35)) + path(d, 'none', dark, 3.2) + path(d, 'none', mid, 2.2)
            + move(-.4, -.4, path(d, 'none', light, .7, .8)))


def card_pwm():
    s = board(346, 172, corners(346, 172, 'tl tr bl br'))
    for k in range(4):  # socket to the drive
        s += trace((24, 79 + 2.7 * k), (38, 79 + 2.7 * k))
    s += trace((18, 68), (18, 44), (24, 38), (66, 38)) + trace((22, 68), (22, 53), (26, 49), (34, 49))
    for k in range(6):
        s += trace((73 + 20 * k, 38), (73 + 20 * k, 46))
    s += trace((34, 49), (48, 49), (51, 46), (173, 46))
    s += move(12.8, 64, header(5, 18, 34))
    s += capacitor(14, 112, True) + capacitor(22, 112, True)
    s += trace((16.1, 118), (16.1, 128)) + trace((24.1, 118), (24.1, 128)) + via(16.1, 128) + via(24.1, 128)
    s += label(18, 12, 'PWM Drive', 11, SILK, True, 'start')
    s += frame(34, 24, 150, 38, 'Internal Power Value', 10, 96)
    s += label(65, 58, 'Do bit', 8, SILK, True, 'end')
    for k in range(6):
        s += label(73 + 20 * k, 58, str(5 - k))
    s += wire('M178 107.4C192 107.4 183 72 200 72', '#7a150d', CAP_RED, '#ff9a8c')
    s += wire('M178 124.4C195 124.4 184 86 200 86', PITCH, CORD_DARK, CORD_LIGHT)
    return s


# ------------------------------------------------------------------- the mat
ADVANCE = {'V': .697, 'R': .693, 'B': .686, '-': .374, 'T': .614, 'S': .648, 'A': .697, 'E': .615, 'L': .573, 'U': .731,
           'N': .753, 'W': .993, 'O': .765, 'K': .697, 'I': .335, 'G': .739, ' ': .313}


def embossed(x, y, s, size, gap, depth, face):
    """Letters pressed into the mat: dark at the upper left, light at the lower right."""
    width = sum(ADVANCE[c] * size + gap for c in s) - gap
    out = ''
    for by, fill in ((depth, '#f4f6f6'), (-depth, '#9aa2a6'), (0, face)):
        left = x - width / 2.0
        for c in s:
            if c != ' ':
                out += text(left + by + ADVANCE[c] * size / 2, y + by, c, size, fill)
            left += ADVANCE[c] * size + gap
    return out


def mat():
    s = rect(0, 0, 880, 700, 0, g('mat'))
    fine = ''.join('M%d 0V700' % x for x in range(10, 880, 20)) + ''.join('M0 %dH880' % y for y in range(10, 700, 20))
    main = ''.join('M%d 0V700' % x for x in range(30, 880, 80)) + ''.join('M0 %dH880' % y for y in range(30, 700, 80))
    s += path(fine, 'none', '#bfc5c8', .6, .35) + path(main, 'none', '#bfc5c8', .9, .7)
    s += move(.8, .8, path(main, 'none', '#eef0f1', .6, .6))
    # the bus: a line and its stations
    for by, c in ((.7, '#f4f6f6'), (-.7, '#9aa2a6'), (0, '#bdc4c8')):
        s += move(by, by, path('M580 178H820', 'none', c, 2.4, 1, 'round')
                  + ''.join(rect(574 + 60 * k, 172, 12, 12, 3, c) for k in range(5)))
    s += ''.join(rect(577.5 + 60 * k, 175.5, 5, 5, 1, '#d7dbdd') for k in range(5))
    s += embossed(700, 150, 'VRB-TS', 42, 5, .8, '#c0c6ca')
    s += embossed(700, 210, 'VAREL BUS NETWORK TRAINING KIT', 11, 2.4, .35, '#a4acb0')
    return s + label(31, 611, 'NOISE', 10, COAL) + label(31, 622, 'Simulate', 9, '#3b444a', False)


# ------------------------------------------------- print that comes and goes
def turn_sign(mirrored):
    arc = 'M3.5 7.6A3.9 3.9 0 1 1 9.9 6.6'
    tip = 'M7.2 5.7L12.4 5.3L9.7 9.6Z'
    s = path(arc, 'none', SILK, 1.5, 1, 'round') + path(tip, SILK)
    return s if not mirrored else element('g', s, transform='translate(14 0) scale(-1 1)')


def pulse_sign(mirrored):
    s = path('M.2 8.5H1.5V1.5H4.5V8.5H7.5V4.5H10', 'none', SILK, 1.1) + path('M9.2 1.3L13.8 4.6L9.2 7.9Z', SILK)
    return s if not mirrored else element('g', s, transform='translate(14 0) scale(-1 1)')


def panel_of_signs():
    return rect(.5, .5, 66, 42, 3, '#1c6c43') + rect(.5, .5, 66, 42, 3, 'none', DIM_SILK, .8)


def bit_numbers():
    return ''.join(label(6 + 13 * k, 8, str(15 - k), 8, SILK, False) for k in range(4))


def pin_frames():
    return ''.join(pin_outline(.5 + 13 * k, .5) for k in range(4))


def counter_frame():
    return (frame(.5, 3.6, 105, 23.8, 'Counter', 9, 36.5) + label(14.6, 20.6, '0') + label(64.6, 20.6, '1'))


def draw():
    cards = {'cardCenter': (440, 130, card_center), 'cardBoard1': (440, 172, card_board1), 'cardBoard2': (440, 172, card_board2),
             'cardBoard3': (346, 172, card_board3), 'cardBoard4': (440, 172, card_board4), 'cardPWM': (346, 172, card_pwm),
             'benchMat': (880, 700, mat), 'picCWPanel': (67, 43, panel_of_signs), 'picBits': (52, 10, bit_numbers),
             'picPinFrames': (52, 26, pin_frames), 'picCounterFrame': (106, 28, counter_frame)}
    drawings = {name + '.svg': strip(wide, high, [made()]) for name, (wide, high, made) in cards.items()}
    drawings['picCW.svg'] = strip(14, 10, [sign(mirrored) for sign in (turn_sign, pulse_sign) for mirrored in (False, True)])
    return drawings
