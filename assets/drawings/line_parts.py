# SPDX-License-Identifier: Apache-2.0
"""The line and what stands beside it: cables, connectors, transceivers, transformers, terminators, clocks and strobes."""
import math

from drawings.materials import legs, light_line, package, shadow, strip
from kit.svg_kit import (BLACK, BLUE_EDGE, COAL, CORD, CORD_DARK, CORD_LIGHT, GOLD, SHADE, STEEL, TIN, TIN_EDGE, WHITE, circ, g,
                         move, n, path, rect, text, turn)


# ------------------------------------------------------------------- cables
def cord(d, start, out, w=6.6):
    """A jacketed cord that leaves the cell at "start"; its light line and its shadow, moved aside, end there too."""
    def shifted(by):
        return 'M20 %sV%s' % (n(float(start - by)), n(float(start + out))) + d[d.index('V'):]
    return (move(1.6, .9, path(shifted(.9), 'none', SHADE, w, .14)) + move(.8, .5, path(shifted(.5), 'none', SHADE, w, .2))
            + path(d, 'none', CORD_DARK, w) + path(d, 'none', CORD, w - 1.5)
            + move(-.7, -.5, path(shifted(-.5), 'none', CORD_LIGHT, w * .18, .85)))


def plug(x, y, a):
    """A modular plug with its nose at x, y, looking along the angle a; its cord enters 19 px behind."""
    s = rect(-13, -3.6, 12.9, 9.8, 1, '#05080a', op=.2)
    s += path('M-20 -3.3L-13.4 -4.3V4.3L-20 3.3Z', g('boot'), COAL, .5)
    s += path('M-18.3 -3.4v6.8M-16.6 -3.7v7.4M-14.9 -4v8', 'none', COAL, .7)
    s += rect(-13.6, -4.8, 13.3, 9.6, 1, g('plug'), TIN_EDGE, .6)
    s += path('M-12.6 -4H-1', 'none', WHITE, .6)
    s += rect(-12, -1.7, 6.6, 3.4, .6, '#f7fafb', '#a9b4ba', .5)
    for k in range(4):
        s += path('M-4.2 %sh3.4' % n(-2.85 + 1.9 * k), 'none', '#c9982e', .9)
    return turn(a, x, y, s)


def cable(lower, plugged):
    def y(v):
        return v if not lower else 83 - v
    start, out = (0, 1) if lower else (83, -1)
    if plugged:
        d = 'M20 %sV%sC20 %s 21 %s 31.5 %s' % tuple(n(float(y(v))) for v in (83, 32, 14, 10, 10))
        return cord(d, start, out) + plug(49.7, y(10), 0)
    a = math.radians(24)
    nx, ny = 38.5, 18
    ex, ey = nx - 18.5 * math.cos(a), ny - 18.5 * math.sin(a)
    cx, cy = ex - 8 * math.cos(a), ey - 8 * math.sin(a)
    d = 'M20 %sV%sC20 %s 6.5 %s 6.5 %sC6.5 %s %s %s %s %s' % (
        n(float(y(83))), n(float(y(66))), n(float(y(48))), n(float(y(40))), n(float(y(22))), n(float(y(12))),
        n(cx), n(float(y(cy))), n(ex), n(float(y(ey))))
    return cord(d, start, out) + plug(nx, y(ny), -24 if lower else 24)


def roll():
    s = rect(2.6, 2.4, 30.2, 43, 15, SHADE, op=.16) + rect(1.8, 1.6, 30.2, 43, 15, SHADE, op=.2)
    s += rect(1.2, .8, 30.8, 43.2, 15.4, CORD_DARK)
    for i in range(2):
        x, y, w, h = 4 + 5.7 * i, 3.6 + 5.7 * i, 25.2 - 11.4 * i, 37.6 - 11.4 * i
        s += rect(x, y, w, h, w / 2, 'none', CORD_DARK, 5.6) + rect(x, y, w, h, w / 2, 'none', CORD, 4.1)
        s += rect(x - .6, y - .5, w, h, w / 2, 'none', CORD_LIGHT, .9, .8)
    s += path('M16.6 15.4V29.4', 'none', CORD, 4.4, 1, 'round') + path('M15.9 15V29', 'none', CORD_LIGHT, 1, .8, 'round')
    s += rect(1, 18.6, 32, 9.4, 1.4, SHADE, op=.3)
    s += rect(.5, 17.4, 32.4, 9.6, 1.5, g('blue_switch'), BLUE_EDGE, .6) + light_line(.5, 17.4, 32.4, 9.6, 1.2, .55)
    for x in (12.6, 15.3, 18, 20.7):
        s += path('M%s 19.6v5.4' % n(x), 'none', '#cfe0f8', .7, .8)
    return s


# --------------------------------------------------------- line, clock, pins
def clock():
    s = shadow(.6, .6, 45.2, 17.2, 3, 1.5) + rect(.6, .6, 45.2, 17.2, 3, g('can'), STEEL, .6)
    s += rect(2.4, 2.3, 41.6, 13.8, 2, g('can_top'), '#a3acb0', .5)
    s += path('M2.9 14.6V4.6A1.8 1.8 0 0 1 4.7 2.8H42.4', 'none', WHITE, .7, .95, 'round')
    return s + circ(5.2, 13.4, .9, TIN_EDGE)


def transceiver():
    return (legs(3.8, 4.4, 5, .7, 19.2) + package(.8, 3.6, 23.4, 13.4) + circ(3.2, 14.6, .8, STEEL)
            + text(12.7, 13.5, 'TRX', 8.6))


def transformer():
    copper = '#d9cfc4'
    s = legs(5, 5.4, 3, .7, 21.8, False) + shadow(2.2, .7, 18.8, 19, 1.5, 1.5)
    s += rect(2.2, .7, 18.8, 19, 1.5, g('coil'), '#241e1a', .7) + light_line(2.2, .7, 18.8, 19, 1.2)
    s += path('M5.6 7.2q1.5 -4.6 3 0q1.5 -4.6 3 0q1.5 -4.6 3 0q1.5 -4.6 3 0', 'none', copper, .9, 1, 'round', 'round')
    return s + path('M5.6 9h12', 'none', copper, .6, .7) + text(11.6, 17.3, 'PRT', 8, '#f6f1ea')


def resistor():
    s = path('M2 6.6H33', 'none', SHADE, 1.2, .3)
    s += circ(2.5, 5, 2, g('tin'), TIN_EDGE, .5) + circ(31.5, 5, 2, g('tin'), TIN_EDGE, .5)
    s += path('M2.2 5H31.8', 'none', TIN_EDGE, 1.5) + path('M2.2 4.7H31.8', 'none', TIN, .7)
    body = ('M8.4 1.4H11.6L13 2.2H21L22.4 1.4H25.6A1.6 1.6 0 0 1 27.2 3V7A1.6 1.6 0 0 1 25.6 8.6'
            'H22.4L21 7.8H13L11.6 8.6H8.4A1.6 1.6 0 0 1 6.8 7V3A1.6 1.6 0 0 1 8.4 1.4Z')
    s += move(1, 1, path(body, SHADE, op=.28)) + path(body, g('resistor'), '#6e5326', .6)
    for x, c, y, h in ((8.9, '#6b3a16', 1.7, 6.6), (13.6, '#c5261b', 2.4, 5.2), (17, '#6b3a16', 2.4, 5.2),
                       (23.4, GOLD, 1.7, 6.6)):
        s += rect(x, y, 1.8, h, 0, c)
    return s + path('M8.4 2.6H25.6', 'none', WHITE, .7, .45, 'round')


def connector():
    s = legs(5.4, 13.6, 2, 32, 7.2, False, 2.8) + package(.6, .6, 36, 23.4)
    s += rect(1.2, 2, 4, 20.6, .6, '#0a0b0c')
    for i in range(8):
        s += path('M1.7 %sh3' % n(4 + 2.37 * i), 'none', GOLD, .9)
    s += path('M5.8 1.4V23.2', 'none', BLACK, .7) + path('M6.5 1.6V23', 'none', '#565c60', .5)
    s += rect(8.4, 3, 26, 18.6, 1, 'none', '#0d0e0f', .7) + path('M8.9 21.4V3.7H34', 'none', '#454b4f', .5)
    return s


def strobe(rising):
    d = 'M3.4 8.2H7V3H13.4V8.2H17' if rising else 'M3.4 3H7V8.2H13.4V3H17'
    return (shadow(.6, .6, 19.6, 10, 1.5, 1) + rect(.6, .6, 19.6, 10, 1.5, '#f7faf6', '#5b655f', .6)
            + path(d, 'none', '#15191b', 1.4))


def draw():
    return {
        'ilsCable.svg': strip(50, 83, [cable(lo, p) for lo in (False, True) for p in (False, True)]),
        'picCableRole.svg': strip(34, 46, [roll()]),
        'picClock.svg': strip(48, 20, [clock()]),
        'picTRX.svg': strip(26, 22, [transceiver()]),
        'picPTR.svg': strip(24, 22, [transformer()]),
        'picTermR.svg': strip(34, 10, [resistor()]),
        'picConnector.svg': strip(40, 26, [connector()]),
        'picSTB.svg': strip(22, 12, [strobe(True), strobe(False)]),
    }
