# SPDX-License-Identifier: Apache-2.0
"""The packages: the chips, the CPU, headers with their flat cables, and the shift register of the serial input."""
from drawings.materials import header, legs, light_line, package, shadow, strip
from kit.svg_kit import (BURNT, COPPER, DIM_MARKING, GOLD, GRAPHITE, GREEN, INK, MASK_EDGE, PITCH, SHADE, SILK, SOOT, STEEL,
                         TIN_EDGE, WHITE, circ, g, n, path, rect, text)


# ----------------------------------------------------------------- the chips
def chip(size, b, count, name, name_size, sub, sub_size):
    """A square package with legs on its four sides, at the size of the cell less the shadow."""
    e = size - 1.6
    o = (e - b) / 2
    pitch = (b - 3) / count
    s = ''
    first = o + 1.5 + pitch / 2
    s += legs(first, pitch, count, .7, e - 1.4, True, pitch * .5) + legs(first, pitch, count, .7, e - 1.4, False, pitch * .5)
    s += package(o, o, b, b, 2.2 if size > 50 else 1.8)
    s += rect(o + 1.8, o + 1.8, b - 3.6, b - 3.6, 1, 'none', GRAPHITE, .5, .7)
    s += circ(o + 4.6, o + 4.6, 1.3, PITCH, '#565c60', .4)
    m = e / 2
    return s + text(m, m + 1.4, name, name_size) + text(m, m + 2.6 + sub_size, sub, sub_size, '#b8bfc2', False)


def cpu():
    b = 82.2
    s = package(.8, .8, b, b, 2.2, 2)
    s += path('M.8 7L7 .8H3A2.2 2.2 0 0 0 .8 3Z', GOLD)
    m = .8 + b / 2
    count, pitch = 15, 5.2
    first = m - pitch * (count - 1) / 2
    for i in range(count):
        for j in range(count):
            if min(i, j, count - 1 - i, count - 1 - j) < 2 and (i, j) != (0, 0):
                x, y = first + i * pitch, first + j * pitch
                s += circ(x, y, 1.35, PITCH) + circ(x - .1, y - .1, 1.0, '#d9ae45')
    s += rect(m - 28.5, m - 28.5, 57, 57, 2, g('lid'), SOOT, .7) + light_line(m - 28.5, m - 28.5, 57, 57, 1.5, .4)
    s += rect(m - 24, m - 24, 48, 48, 2, 'none', STEEL, .6)
    return s + text(m, m - 4.4, 'HOST', 11, '#c9cfd2', False) + text(m, m + 13.6, 'CPU', 18, WHITE)


# ------------------------------------------------- header, flat cables, shift
def flat_cable(w, h, end, wires):
    top, low = h * .09 + .6, h - h * .09 - 2.0
    s = rect(end - 2, top + 2, w - 2 * end + 4, low - top, 0, SHADE, op=.22)
    s += rect(end - 2, top + 1, w - 2 * end + 4, low - top, 0, SHADE, op=.22)
    step = (low - top) / wires
    for i in range(wires):
        y = top + step * i
        s += rect(end - 2, y, w - 2 * end + 4, step, 0, g('stripe_red') if i == 0 else g('flat'))
        s += path('M%s %sH%s' % (n(end - 2.0), n(y + .35), n(w - end + 2.0)), 'none', WHITE, .6, .35)
        if i:
            s += path('M%s %sH%s' % (n(end - 2.0), n(y), n(w - end + 2.0)), 'none', '#7c858a', .6)
    s += rect(end - 2, top, w - 2 * end + 4, low - top, 0, 'none', '#646d72', .6)
    for x in (.6, w - end - .9):
        e = end - .9
        s += shadow(x, .6, e, h - 2.4, 1.5, 1.5) + rect(x, .6, e, h - 2.4, 1.5, g('idc'), '#1e2326', .7)
        s += light_line(x, .6, e, h - 2.4, 1.2, .45)
        s += rect(x + e / 2 - 3, 3, 6, h - 7.2, 1, '#2b3135', '#1e2326', .5)
        s += path('M%s 3.6V%s' % (n(x + e / 2 + 2.6), n(h - 4.8)), 'none', '#767f85', .5)
    return s


def shift_register():
    s = ''
    for y, name in ((4.9, 'SDI'), (14.2, 'SCK'), (23.5, 'SLD')):
        s += text(.6, y + 2.95, name, 8.2, SILK, True, 'start')
        s += path('M19.8 %sH34' % n(y), 'none', SILK, 1)
        s += path('M23 %sL19.6 %sL23 %s' % (n(y - 2.4), n(y), n(y + 2.4)), 'none', SILK, 1, 1, 'round', 'round')
    s += legs(38.2, 7.4, 7, .7, 27.2)
    s += package(33.2, 3.2, 55.4, 22)
    s += path('M33.6 11.6A2.6 2.6 0 0 1 33.6 16.8Z', '#07080a', GRAPHITE, .4)
    return s + text(61.2, 13.2, 'SHIFT', 9.5) + text(61.2, 22, '16bit', 8.5, '#c9cfd2', False)


def shifting():
    s = ''
    for k in range(3):
        y = .7 + 9.3 * k
        s += rect(.6, y, 20.8, 8.4, 1.5, g('amber'), '#8a5200', .6)
        for x in (3.6, 9, 14.4):
            s += path('M%s %sl-2.4 2.6l2.4 2.6' % (n(x + 2.9), n(y + 1.6)), 'none', BURNT, 1.5, 1, 'round', 'round')
    return s


# ------------------------------------------- the circuit around the serial waveform
LINES = (62, 92, 122)  # level of the low lines of SDI, SCK and SLD


def serial_board():
    """The edge of the QDA41's card; the three lines come in from the right, the window writes their names."""
    s = shadow(-6, .6, 33, 139, 4, 2) + rect(-6, .6, 33, 139, 4, GREEN, MASK_EDGE, 1)
    s += path('M0 1.6H23.6', 'none', '#7fcfa0', .8, .55)
    for y in LINES:
        s += path('M0 %sH20' % n(y + 8), 'none', COPPER, 1.5) + path('M20 %sL26 %s' % (n(y + 8), n(y)), 'none', COPPER, 1.5)
        s += rect(22.6, y - 2, 4.8, 4, .3, g('tin'), TIN_EDGE, .35)
        s += path('M29 %sH37' % n(y), 'none', INK, 1.6)
        s += path('M33 %sL28 %sL33 %s' % (n(y - 3.4), n(y), n(y + 3.4)), INK, INK, .6, 1, 'round', 'round')
    return s + text(13, 17, 'QDA', 9, SILK) + text(13, 27, '41', 9, SILK)


def serial_generator():
    """The shift register that drives the three lines to the left; its word is seen through the window in its lid."""
    s = ''.join(rect(.4, y - 1.4, 4, 2.8, .3, g('tin'), TIN_EDGE, .35) for y in LINES)
    s += shadow(3, .6, 473, 138, 3, 2) + rect(3, .6, 473, 138, 3, g('package'), SOOT, .7) + light_line(3, .6, 473, 138, 2.4)
    s += circ(12, 9, 2, PITCH, '#565c60', .4)
    return s + text(239.5, 12.4, 'SHIFT REGISTER', 10.5) + text(466, 12.2, '16bit', 8.5, DIM_MARKING, False, 'end')


def draw():
    return {
        'picQDA60.svg': strip(60, 60, [chip(60, 51, 13, 'QDA60', 12, 'VBN', 9)]),
        'picQDA.svg': strip(48, 48, [chip(48, 41, 11, v, 10, 'VBN', 8) for v in ('QDA73', 'QDA41', 'QDA52')]),
        'picCPU.svg': strip(86, 86, [cpu()]),
        'picFConn.svg': strip(20, 70, [header(10, 20, 70)]),
        'picBridge.svg': strip(80, 70, [flat_cable(80, 70, 19, 14)]),
        'picPWMBridge.svg': strip(80, 34, [flat_cable(80, 34, 18, 8)]),
        'picSDI.svg': strip(92, 30, [shift_register()]),
        'picSerialInt.svg': strip(22, 30, [shifting()]),
        'picSerialBoard.svg': strip(38, 142, [serial_board()]),
        'picSerialGenerator.svg': strip(479, 142, [serial_generator()]),
    }
