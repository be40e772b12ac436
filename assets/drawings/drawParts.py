#!/usr/bin/env python3
"""Draws the parts of the bench: one SVG strip per image list, one cell per image.

The shapes they are made of are in partsKit.py.
"""
import math

from partsKit import (circ, g, header, legs, lightLine, move, n, package, path, polar, pt, rect, shadow, shadowDisc,
                      strip, text, turn)


# --------------------------------------------------------------------- LEDs
def ledDark():
    return (shadowDisc(7, 7, 4.6, 1)
            + circ(7, 7, 4.9, g('ledRing'), '#3a403c', .5) + circ(7, 7, 3.9, g('ledDark'), '#353b37', .5)
            + path('M4.6 6.6A2.6 2.6 0 0 1 6.6 4.6', 'none', '#ffffff', .8, .7, 'round'))


def ledLit(lens, halo, ray, edge):
    s = circ(7, 7, 7, g(halo))
    for k in range(8):
        a = 22.5 + 45 * k
        s += path('M%sL%s' % (pt(polar(7, 7, 5.3, a)), pt(polar(7, 7, 6.5, a))), 'none', ray, .8, 1, 'round')
    return s + circ(7, 7, 4.3, g(lens), edge, .6)


strip('ilsLED_G', 14, 14, [ledDark(), ledLit('ledGreen', 'haloGreen', '#f4fff0', '#0b7a1b')])
strip('ilsLED_R', 14, 14, [ledDark(), ledLit('ledRed', 'haloRed', '#fff4f0', '#9c120a')])


# ----------------------------------------------------------------- switches
def slide(x, y, up, slot):
    """A slot, 6 by 18.4, and its slider."""
    s = rect(x, y, 6, 18.4, .8, g(slot), '#0a0a0a', .4)
    sy = y + .3 if up else y + 9.7
    s += rect(x + .6, sy + .8, 5.4, 8.4, .8, '#000000', op=.4)
    s += rect(x + .2, sy, 5.6, 8.4, .9, g('slider'), '#6b7479', .5)
    for k in (2.4, 4.2, 6):
        s += path('M%s %sh3.2' % (n(x + 1.4), n(sy + k)), 'none', '#8d969b', .6)
    return s


def dipBody(w, colour, edge):
    return (shadow(.6, .6, w, 24, 1.5, 1) + rect(.6, .6, w, 24, 1.5, g(colour), edge, .6)
            + lightLine(.6, .6, w, 24, 1.2, .5))


def dip1(colour, edge, slot, up):
    return dipBody(10.2, colour, edge) + slide(2.7, 3.4, up, slot)


RED = ('redSwitch', '#5e120d', 'redSlot')
BLUE = ('blueSwitch', '#0b2350', 'blueSlot')
strip('ilsDIP1', 12, 26, [dip1(*RED, False), dip1(*RED, True), dip1(*BLUE, False), dip1(*BLUE, True)])


def dip2(code):
    return (dipBody(19.4, 'blueSwitch', '#0b2350') + slide(3.2, 3.4, code & 2, 'blueSlot')
            + slide(11.4, 3.4, code & 1, 'blueSlot'))


def rotary(digits, chosen, figures):
    """A rotary switch: one figure at the rim for each of the digits in "figures", dots for the others."""
    c = 18.3
    s = shadow(.7, .7, 35.2, 35.2, 2.5, 1.5) + rect(.7, .7, 35.2, 35.2, 2.5, g('package'), '#0e1011', .7)
    s += lightLine(.7, .7, 35.2, 35.2, 2, .35)
    step = 360.0 / len(digits)
    for i, d in enumerate(digits):
        on = i == chosen
        if d in figures:
            x, y = polar(c, c, 13.7, i * step)
            size = 8.6 if on else 8
            s += text(x, y + size * .365, d, size, '#ffffff' if on else '#b4bcc0', on)
        else:
            x, y = polar(c, c, 13.7, i * step)
            s += circ(x, y, 1.75 if on else .75, '#ffffff' if on else '#b4bcc0')
    a = chosen * step
    s += shadowDisc(c, c, 9.9, 1) + circ(c, c, 10, g('knob'), '#0e1011', .6)
    s += path('M%sL%sL%sZ' % (pt(polar(c, c, 9.8, a)), pt(polar(c, c, 5.9, a + 27)), pt(polar(c, c, 5.9, a - 27))),
              '#c5261b', '#8c1f18', .4, 1, 'round', 'round')
    x, y = polar(c, c, -1.9, a)
    return s + text(x, y + 3.85, digits[chosen], 10.5, '#1b1e20')


strip('ilsRSW', 38, 38, [rotary('0123456789ABCDEF', i, '02468ACE') for i in range(16)])


# ---------------------------------------------------------- jumper, buttons
def jumper(full):
    s = shadow(.6, 2.4, 33.6, 9, 1, 1) + rect(.6, 2.4, 33.6, 9, 1, g('package'), '#0e1011', .6)
    s += path('M11.8 2.6v8.6M23 2.6v8.6', 'none', '#0b0c0d', .6)
    for x in (6.2, 17.4, 28.6):
        s += rect(x - 2.6, 4.3, 5.2, 5.2, .4, '#0d0e0f') + rect(x - 1.5, 5.4, 3, 3, .3, g('gold'), '#9a7420', .4)
    x = .5 if full else 11.6
    s += shadow(x, .7, 22.8, 11.6, 1.8, 1) + rect(x, .7, 22.8, 11.6, 1.8, g('blueSwitch'), '#0b2350', .6)
    s += lightLine(x, .7, 22.8, 11.6, 1.4, .6, .7)
    s += rect(x + 7.2, 4, 8.4, 5, 1, '#123a7a', '#0b2350', .4)
    s += path('M%s 9h7' % n(x + 7.9), 'none', '#6f9fe6', .6, .8)
    return s


strip('ilsJumper', 36, 14, [jumper(True), jumper(False)])


def button(size, cap, down):
    """A tactile button: body, four legs, round cap."""
    b = size - 3.6
    m = 1.2 + b / 2
    k = size / 22.0
    s = ''
    for y in (.24, .76):
        s += rect(.6, 1 + b * y - 1.1 * k, b + 1.4, 2.2 * k, .3, g('tin'), '#8d969b', .4)
    s += shadow(1.2, 1, b, b, 1.5, 1.5) + rect(1.2, 1, b, b, 1.5, g('package'), '#0e1011', .7) + lightLine(1.2, 1, b, b, 1.2)
    for x in (.12, .88):
        for y in (.12, .88):
            s += circ(1.2 + b * x, 1 + b * y, .8 * k + .1, '#6b7479')
    c = (m, 1 + b / 2)
    if not down:
        r = b * .365
        s += circ(c[0], c[1], r + .9 * k, '#0b0c0d')
        s += circ(c[0] + 1.1 * k, c[1] + 1.2 * k, r + .3, '#000000', op=.35)
        s += circ(c[0], c[1], r, g(cap), {'capRed': '#6e120b', 'capYellow': '#7a610d', 'capGrey': '#6b6e69'}[cap], .5)
        s += path('M%sA%s %s 0 0 1 %s' % (pt(polar(c[0], c[1], r * .66, -75)), n(r * .66), n(r * .66), pt(polar(c[0], c[1], r * .66, -12))),
                  'none', '#ffffff', .9 * k + .15, .75, 'round')
    else:
        r = b * .365
        s += circ(c[0], c[1], r + .9 * k, '#050606')
        s += path('M%sA%s %s 0 0 1 %s' % (pt(polar(c[0], c[1], r + .3, 75)), n(r + .3), n(r + .3), pt(polar(c[0], c[1], r + .3, 195))),
                  'none', '#d5dadc', 1.1 * k + .1, .95, 'round')
        s += circ(c[0], c[1], r * .74, g(cap + 'Down'), '#050606', .5)
    return s


strip('ilsRESET', 22, 22, [button(22, 'capRed', False), button(22, 'capRed', True)])
strip('ilsCount', 18, 18, [button(18, c, d) for c in ('capGrey', 'capYellow') for d in (False, True)])


def bolt(cx, cy, k, fill, edge):
    pts = [(1.6, -7), (-4.6, .9), (-.8, .9), (-2, 7), (4.6, -1.7), (.9, -1.7), (3, -7)]
    return path('M' + 'L'.join(pt((cx + x * k, cy + y * k)) for x, y in pts) + 'Z', fill, edge, .6, 1, 'round', 'round')


def noise(down):
    c = 18.2
    s = shadowDisc(c, c, 17.3, 1.8) + circ(c, c, 17.5, '#17191b', '#3d3208', .6)
    for k in range(12):
        a = k * 30
        q = [polar(c, c, 12.4, a), polar(c, c, 17.2, a + 11), polar(c, c, 17.3, a + 18.5), polar(c, c, 17.2, a + 26), polar(c, c, 12.4, a + 15)]
        s += path('M' + 'L'.join(map(pt, q)) + 'Z', '#f2cf3b')
    s += path('M%sA17 17 0 0 1 %s' % (pt(polar(c, c, 17, -85)), pt(polar(c, c, 17, -5))), 'none', '#ffffff', .6, .6)
    s += circ(c, c, 13, g('package'), '#0b0c0d', .6)
    if not down:
        s += circ(c + .9, c + 1.1, 11.2, '#000000', op=.5) + circ(c, c, 11.2, g('capRed'), '#6e120b', .6)
        s += path('M%sA8.8 8.8 0 0 1 %s' % (pt(polar(c, c, 8.8, -80)), pt(polar(c, c, 8.8, -20))), 'none', '#ffffff', 1.3, .6, 'round')
        return s + bolt(c, c + .2, 1.0, '#ffffff', '#5e120d')
    s += circ(c, c, 11.6, '#050606')
    s += path('M%sA11.4 11.4 0 0 1 %s' % (pt(polar(c, c, 11.4, 85)), pt(polar(c, c, 11.4, 185))), 'none', '#d5dadc', 1.1, .9, 'round')
    s += circ(c, c, 8.8, g('capRedDown'), '#050606', .5)
    for k in range(8):
        a = 22.5 + 45 * k
        s += path('M%sL%s' % (pt(polar(c, c, 9.6, a)), pt(polar(c, c, 12.2, a))), 'none', '#ffd95a', 1, 1, 'round')
    return s + bolt(c, c + .1, .86, '#ffd95a', '#4a0f0b')


strip('ilsNOISE', 38, 38, [noise(False), noise(True)])


# ------------------------------------------------- rates, selector, INT tags
strip('ilsDIP2', 44, 26, [
    dip2(3 - i) + text(22.4, 11, v, 9, '#f3f7f1', True, 'start') + text(22.2, 20.6, 'Mbps', 8, '#f3f7f1', False, 'start')
    for i, v in enumerate(('12', '6', '3', '1.5'))])
strip('ilsDIP3', 38, 38, [rotary('01234567', i, '01234567') for i in range(8)])


def tag(y, s, on):
    d = 'M2.2 %sH45.6L51.4 %sL45.6 %sH2.2A1.5 1.5 0 0 1 .7 %sV%sA1.5 1.5 0 0 1 2.2 %sZ' % tuple(
        n(v) for v in (y, y + 6.2, y + 12.4, y + 10.9, y + 1.5, y))
    if not on:
        return path(d, '#124a30', '#5f977a', .8, 1, 'round', 'round') + text(24, y + 9.5, s, 9, '#8fb8a2', False)
    r = path(d, g('amber'), '#fff0c8', .8, 1, 'round', 'round') + text(24, y + 9.5, s, 9.5, '#2a1600')
    for a in (-1, 0, 1):
        r += path('M%s %sL%s %s' % (n(54 - abs(a) * 1.2), n(y + 6.2 + a * 3), n(58.6 - abs(a) * 1.2), n(y + 6.2 + a * 5)),
                  'none', '#ffcf6b', 1.1, 1, 'round')
    return r


strip('ilsInt', 60, 28, [tag(.8, 'INT0', i & 1) + tag(14.6, 'INT1', i & 2) for i in range(4)])


# ------------------------------------------------------------------- cables
def cord(d, start, out, w=6.6):
    """A jacketed cord that leaves the cell at "start"; its light line and its shadow, moved aside, end there too."""
    def shifted(by):
        return 'M20 %sV%s' % (n(float(start - by)), n(float(start + out))) + d[d.index('V'):]
    return (move(1.6, .9, path(shifted(.9), 'none', '#05140c', w, .14)) + move(.8, .5, path(shifted(.5), 'none', '#05140c', w, .2))
            + path(d, 'none', '#2f363b', w) + path(d, 'none', '#59636b', w - 1.5)
            + move(-.7, -.5, path(shifted(-.5), 'none', '#98a3aa', w * .18, .85)))


def plug(x, y, a):
    """A modular plug with its nose at x, y, looking along the angle a; its cord enters 19 px behind."""
    s = rect(-13, -3.6, 12.9, 9.8, 1, '#05080a', op=.2)
    s += path('M-20 -3.3L-13.4 -4.3V4.3L-20 3.3Z', g('boot'), '#23292d', .5)
    s += path('M-18.3 -3.4v6.8M-16.6 -3.7v7.4M-14.9 -4v8', 'none', '#23292d', .7)
    s += rect(-13.6, -4.8, 13.3, 9.6, 1, g('plug'), '#8d969b', .6)
    s += path('M-12.6 -4H-1', 'none', '#ffffff', .6)
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


strip('ilsCable', 50, 83, [cable(lo, p) for lo in (False, True) for p in (False, True)])


def roll():
    s = rect(2.6, 2.4, 30.2, 43, 15, '#05140c', op=.16) + rect(1.8, 1.6, 30.2, 43, 15, '#05140c', op=.2)
    s += rect(1.2, .8, 30.8, 43.2, 15.4, '#2f363b')
    for i in range(2):
        x, y, w, h = 4 + 5.7 * i, 3.6 + 5.7 * i, 25.2 - 11.4 * i, 37.6 - 11.4 * i
        s += rect(x, y, w, h, w / 2, 'none', '#2f363b', 5.6) + rect(x, y, w, h, w / 2, 'none', '#59636b', 4.1)
        s += rect(x - .6, y - .5, w, h, w / 2, 'none', '#98a3aa', .9, .8)
    s += path('M16.6 15.4V29.4', 'none', '#59636b', 4.4, 1, 'round') + path('M15.9 15V29', 'none', '#98a3aa', 1, .8, 'round')
    s += rect(1, 18.6, 32, 9.4, 1.4, '#05140c', op=.3)
    s += rect(.5, 17.4, 32.4, 9.6, 1.5, g('blueSwitch'), '#0b2350', .6) + lightLine(.5, 17.4, 32.4, 9.6, 1.2, .55)
    for x in (12.6, 15.3, 18, 20.7):
        s += path('M%s 19.6v5.4' % n(x), 'none', '#cfe0f8', .7, .8)
    return s


strip('picCableRole', 34, 46, [roll()])


# --------------------------------------------------------- line, clock, pins
def clock():
    s = shadow(.6, .6, 45.2, 17.2, 3, 1.5) + rect(.6, .6, 45.2, 17.2, 3, g('can'), '#6b7479', .6)
    s += rect(2.4, 2.3, 41.6, 13.8, 2, g('canTop'), '#a3acb0', .5)
    s += path('M2.9 14.6V4.6A1.8 1.8 0 0 1 4.7 2.8H42.4', 'none', '#ffffff', .7, .95, 'round')
    return s + circ(5.2, 13.4, .9, '#8d969b')


strip('picClock', 48, 20, [clock()])
strip('picTRX', 26, 22, [
    legs(3.8, 4.4, 5, .7, 19.2) + package(.8, 3.6, 23.4, 13.4) + circ(3.2, 14.6, .8, '#6b7479') + text(12.7, 13.5, 'TRX', 8.6)])
strip('picPTR', 24, 22, [
    legs(5, 5.4, 3, .7, 21.8, False) + shadow(2.2, .7, 18.8, 19, 1.5, 1.5) + rect(2.2, .7, 18.8, 19, 1.5, g('coil'), '#241e1a', .7)
    + lightLine(2.2, .7, 18.8, 19, 1.2)
    + path('M5.6 7.2q1.5 -4.6 3 0q1.5 -4.6 3 0q1.5 -4.6 3 0q1.5 -4.6 3 0', 'none', '#d9cfc4', .9, 1, 'round', 'round')
    + path('M5.6 9h12', 'none', '#d9cfc4', .6, .7) + text(11.6, 17.3, 'PRT', 8, '#f6f1ea')])


def resistor():
    s = path('M2 6.6H33', 'none', '#05140c', 1.2, .3)
    s += circ(2.5, 5, 2, g('tin'), '#8d969b', .5) + circ(31.5, 5, 2, g('tin'), '#8d969b', .5)
    s += path('M2.2 5H31.8', 'none', '#8d969b', 1.5) + path('M2.2 4.7H31.8', 'none', '#eef1f2', .7)
    body = 'M8.4 1.4H11.6L13 2.2H21L22.4 1.4H25.6A1.6 1.6 0 0 1 27.2 3V7A1.6 1.6 0 0 1 25.6 8.6H22.4L21 7.8H13L11.6 8.6H8.4A1.6 1.6 0 0 1 6.8 7V3A1.6 1.6 0 0 1 8.4 1.4Z'
    s += move(1, 1, path(body, '#05140c', op=.28)) + path(body, g('resistor'), '#6e5326', .6)
    for x, c, y, h in ((8.9, '#6b3a16', 1.7, 6.6), (13.6, '#c5261b', 2.4, 5.2), (17, '#6b3a16', 2.4, 5.2), (23.4, '#e0b54a', 1.7, 6.6)):
        s += rect(x, y, 1.8, h, 0, c)
    return s + path('M8.4 2.6H25.6', 'none', '#ffffff', .7, .45, 'round')


strip('picTermR', 34, 10, [resistor()])


def connector():
    s = legs(5.4, 13.6, 2, 32, 7.2, False, 2.8) + package(.6, .6, 36, 23.4)
    s += rect(1.2, 2, 4, 20.6, .6, '#0a0b0c')
    for i in range(8):
        s += path('M1.7 %sh3' % n(4 + 2.37 * i), 'none', '#e0b54a', .9)
    s += path('M5.8 1.4V23.2', 'none', '#000000', .7) + path('M6.5 1.6V23', 'none', '#565c60', .5)
    s += rect(8.4, 3, 26, 18.6, 1, 'none', '#0d0e0f', .7) + path('M8.9 21.4V3.7H34', 'none', '#454b4f', .5)
    return s


strip('picConnector', 40, 26, [connector()])
strip('picMode', 22, 26, [dip2(0)])


def strobe(rising):
    d = 'M3.4 8.2H7V3H13.4V8.2H17' if rising else 'M3.4 3H7V8.2H13.4V3H17'
    return (shadow(.6, .6, 19.6, 10, 1.5, 1) + rect(.6, .6, 19.6, 10, 1.5, '#f7faf6', '#5b655f', .6)
            + path(d, 'none', '#15191b', 1.4))


strip('picSTB', 22, 12, [strobe(True), strobe(False)])


# ----------------------------------------------------------------- the chips
def chip(size, b, count, name, nameSize, sub, subSize):
    """A square package with legs on its four sides, at the size of the cell less the shadow."""
    e = size - 1.6
    o = (e - b) / 2
    pitch = (b - 3) / count
    s = ''
    first = o + 1.5 + pitch / 2
    s += legs(first, pitch, count, .7, e - 1.4, True, pitch * .5) + legs(first, pitch, count, .7, e - 1.4, False, pitch * .5)
    s += package(o, o, b, b, 2.2 if size > 50 else 1.8)
    s += rect(o + 1.8, o + 1.8, b - 3.6, b - 3.6, 1, 'none', '#4a5055', .5, .7)
    s += circ(o + 4.6, o + 4.6, 1.3, '#0b0c0d', '#565c60', .4)
    m = e / 2
    return s + text(m, m + 1.4, name, nameSize) + text(m, m + 2.6 + subSize, sub, subSize, '#b8bfc2', False)


strip('picQDA60', 60, 60, [chip(60, 51, 13, 'QDA60', 12, 'VBN', 9)])
strip('picQDA', 48, 48, [chip(48, 41, 11, v, 10, 'VBN', 8) for v in ('QDA73', 'QDA41', 'QDA52')])


def cpu():
    b = 82.2
    s = package(.8, .8, b, b, 2.2, 2)
    s += path('M.8 7L7 .8H3A2.2 2.2 0 0 0 .8 3Z', '#e0b54a')
    m = .8 + b / 2
    count, pitch = 15, 5.2
    first = m - pitch * (count - 1) / 2
    for i in range(count):
        for j in range(count):
            if min(i, j, count - 1 - i, count - 1 - j) < 2 and (i, j) != (0, 0):
                x, y = first + i * pitch, first + j * pitch
                s += circ(x, y, 1.35, '#0b0c0d') + circ(x - .1, y - .1, 1.0, '#d9ae45')
    s += rect(m - 28.5, m - 28.5, 57, 57, 2, g('lid'), '#0e1011', .7) + lightLine(m - 28.5, m - 28.5, 57, 57, 1.5, .4)
    s += rect(m - 24, m - 24, 48, 48, 2, 'none', '#6b7479', .6)
    return s + text(m, m - 4.4, 'HOST', 11, '#c9cfd2', False) + text(m, m + 13.6, 'CPU', 18, '#ffffff')


strip('picCPU', 86, 86, [cpu()])


# ------------------------------------------------- header, flat cables, shift
strip('picFConn', 20, 70, [header(10, 20, 70)])


def flatCable(w, h, end, wires):
    top, low = h * .09 + .6, h - h * .09 - 2.0
    s = rect(end - 2, top + 2, w - 2 * end + 4, low - top, 0, '#05140c', op=.22) + rect(end - 2, top + 1, w - 2 * end + 4, low - top, 0, '#05140c', op=.22)
    step = (low - top) / wires
    for i in range(wires):
        y = top + step * i
        s += rect(end - 2, y, w - 2 * end + 4, step, 0, g('stripeRed') if i == 0 else g('flat'))
        s += path('M%s %sH%s' % (n(end - 2.0), n(y + .35), n(w - end + 2.0)), 'none', '#ffffff', .6, .35)
        if i:
            s += path('M%s %sH%s' % (n(end - 2.0), n(y), n(w - end + 2.0)), 'none', '#7c858a', .6)
    s += rect(end - 2, top, w - 2 * end + 4, low - top, 0, 'none', '#646d72', .6)
    for x in (.6, w - end - .9):
        e = end - .9
        s += shadow(x, .6, e, h - 2.4, 1.5, 1.5) + rect(x, .6, e, h - 2.4, 1.5, g('idc'), '#1e2326', .7) + lightLine(x, .6, e, h - 2.4, 1.2, .45)
        s += rect(x + e / 2 - 3, 3, 6, h - 7.2, 1, '#2b3135', '#1e2326', .5) + path('M%s 3.6V%s' % (n(x + e / 2 + 2.6), n(h - 4.8)), 'none', '#767f85', .5)
    return s


strip('picBridge', 80, 70, [flatCable(80, 70, 19, 14)])
strip('picPWMBridge', 80, 34, [flatCable(80, 34, 18, 8)])


def shiftRegister():
    s = ''
    for y, name in ((4.9, 'SDI'), (14.2, 'SCK'), (23.5, 'SLD')):
        s += text(.6, y + 2.95, name, 8.2, '#f3f7f1', True, 'start')
        s += path('M19.8 %sH34' % n(y), 'none', '#f3f7f1', 1) + path('M23 %sL19.6 %sL23 %s' % (n(y - 2.4), n(y), n(y + 2.4)), 'none', '#f3f7f1', 1, 1, 'round', 'round')
    s += legs(38.2, 7.4, 7, .7, 27.2)
    s += package(33.2, 3.2, 55.4, 22)
    s += path('M33.6 11.6A2.6 2.6 0 0 1 33.6 16.8Z', '#07080a', '#4a5055', .4)
    return s + text(61.2, 13.2, 'SHIFT', 9.5) + text(61.2, 22, '16bit', 8.5, '#c9cfd2', False)


strip('picSDI', 92, 30, [shiftRegister()])


def shifting():
    s = ''
    for k in range(3):
        y = .7 + 9.3 * k
        s += rect(.6, y, 20.8, 8.4, 1.5, g('amber'), '#8a5200', .6)
        for x in (3.6, 9, 14.4):
            s += path('M%s %sl-2.4 2.6l2.4 2.6' % (n(x + 2.9), n(y + 1.6)), 'none', '#2a1600', 1.5, 1, 'round', 'round')
    return s


strip('picSerialInt', 22, 30, [shifting()])


# ------------------------------------------------------ the motor, the lamp
# Both pulleys turn by a third of their spoke pitch per phase and the belt runs on by a third of
# the pitch of its marks: the radii stand as the angles do, and the belt holds a whole number of pitches.
BIG, SMALL = 28.0, 16.8
BIG_X, SMALL_X, AXIS_Y = 102.6, 102.6 - 69.47, 34.6
BIG_STEP, SMALL_STEP = 24.0, 40.0
MARKS = 8


def beltPoint(s):
    """The point s along the belt, counter-clockwise from the top of the big pulley, and the belt's length."""
    d = BIG_X - SMALL_X
    a = math.asin((BIG - SMALL) / d)
    straight = math.sqrt(d * d - (BIG - SMALL) ** 2)
    roundSmall, roundBig = SMALL * (math.pi - 2 * a), BIG * (math.pi + 2 * a)
    total = 2 * straight + roundSmall + roundBig
    s %= total
    dx, dy = math.sin(a), math.cos(a)
    topBig = (BIG_X - BIG * dx, AXIS_Y - BIG * dy)
    topSmall = (SMALL_X - SMALL * dx, AXIS_Y - SMALL * dy)
    if s < straight:
        t = s / straight
        return (topBig[0] + (topSmall[0] - topBig[0]) * t, topBig[1] + (topSmall[1] - topBig[1]) * t), total
    s -= straight
    if s < roundSmall:
        return polar(SMALL_X, AXIS_Y, SMALL, math.degrees(-a - s / SMALL)), total
    s -= roundSmall
    if s < straight:
        t = s / straight
        x = topSmall[0] + (topBig[0] - topSmall[0]) * t
        y = topSmall[1] + (topBig[1] - topSmall[1]) * t
        return (x, 2 * AXIS_Y - y), total
    s -= straight
    return polar(BIG_X, AXIS_Y, BIG, math.degrees(math.pi + a - s / BIG)), total


def pulley(cx, cy, r, spokes, turnBy, hub, knobR):
    s = circ(cx, cy, r, g('pulley'), '#5f686d', .6) + circ(cx, cy, r * .77, '#dfe4e6', '#79838a', .6)
    for k in range(spokes):
        a = 360.0 / spokes * k - turnBy
        s += path('M%sL%s' % (pt(polar(cx, cy, hub * .7, a)), pt(polar(cx, cy, r * .79, a))), 'none', '#5f686d', 3.2 * knobR / 2.4)
        s += path('M%sL%s' % (pt(polar(cx, cy, hub * .7, a)), pt(polar(cx, cy, r * .79, a))), 'none', '#b4bdc2', 1.9 * knobR / 2.4)
        x, y = polar(cx, cy, r * .6, a)
        s += circ(x, y, knobR, '#d9382b', '#6e120b', .5) + circ(x - knobR * .3, y - knobR * .3, knobR * .3, '#ffffff', op=.7)
    return s + circ(cx, cy, hub, g('hub'), '#3f474c', .6) + circ(cx, cy, hub * .4, '#2d3438')


def belt(phase):
    s = shadow(.5, .5, 137.4, 75.4, 4, 1.5) + rect(.5, .5, 137.4, 75.4, 4, g('panelLight'), '#8d969b', .8)
    length = beltPoint(0)[1]
    outline = 'M' + 'L'.join(pt(beltPoint(length * i / 160)[0]) for i in range(160)) + 'Z'
    # the motor behind the small pulley
    s += shadow(11.6, 12.6, 43, 44, 3, 1.5) + rect(11.6, 12.6, 43, 44, 3, '#c9d0d4', '#79838a', .7) + lightLine(11.6, 12.6, 43, 44, 2.4, .8)
    for x in (15.4, 50.8):
        for y in (16.4, 52.8):
            s += circ(x, y, 1.9, g('screw'), '#5f686d', .5) + path('M%s %sl2 -2' % (n(x - 1), n(y + 1)), 'none', '#5f686d', .5)
    s += move(1.6, 1.8, path(outline, 'none', '#000000', 5.4, .16))
    s += pulley(BIG_X, AXIS_Y, BIG - 2, 5, phase * BIG_STEP, 5, 2.4)
    s += pulley(SMALL_X, AXIS_Y, SMALL - 2, 3, phase * SMALL_STEP, 3.6, 1.8)
    s += path(outline, 'none', '#17191b', 5.2, 1, 'round', 'round') + path(outline, 'none', '#33393d', 3.4, 1, 'round', 'round')
    for k in range(MARKS):
        s += circ(*beltPoint(length * (k + phase / 3.0) / MARKS + 6)[0], 1.25, '#ffffff')
    return s + text(33, 70.4, 'MOTOR', 9, '#2d3438')


def lamp(level):
    s = shadow(.5, .5, 137.4, 75.4, 4, 1.5) + rect(.5, .5, 137.4, 75.4, 4, g('panelDark'), '#6b7479', .8)
    s += text(8, 14.4, 'LAMP', 9, '#dfe4e6', True, 'start')
    cx, cy = 70, 33
    if level:
        s += circ(cx, cy, 20 + 1.75 * level, g('glow%d' % level))
        for k in range(9):
            a = -120 + 30 * k
            far = 20.6 + 1.72 * level - (1.6 if k % 2 else 0)
            if cy - far * math.cos(math.radians(a)) < 3.6:
                far = (cy - 3.6) / math.cos(math.radians(a))
            s += path('M%sL%s' % (pt(polar(cx, cy, 18.8, a)), pt(polar(cx, cy, far, a))), 'none', '#ffe9a8',
                      1 + .11 * level, .55 + .064 * level, 'round')
    # socket, screw base, glass
    s += rect(cx - 12.5, 66.4, 25, 7, 1.5, '#0e1011', '#4a5055', .6) + path('M%s 67.4h22' % n(cx - 11.0), 'none', '#6b7479', .6)
    s += rect(cx - 7.4, 53, 14.8, 14, 1.2, g('fins'), '#4a5055', .6)
    for y in (56, 59.4, 62.8):
        s += path('M%s %sL%s %s' % (n(cx - 7.8), n(y + .9), n(cx + 7.8), n(y - .7)), 'none', '#5f686d', 1.1, 1, 'round')
    glass = 'M%s 53C%s 46.5 %s 43 %s 33A15.6 15.6 0 0 1 %s 33C%s 43 %s 46.5 %s 53Z' % tuple(
        n(float(v)) for v in (cx - 7, cx - 7, cx - 15.6, cx - 15.6, cx + 15.6, cx + 15.6, cx + 7, cx + 7))
    s += path(glass, g('glass%d' % level), '#b9c4ca' if level < 3 else '#fff6d0', .8)
    wire = ['#22282c', '#8a3c10', '#b04c0c', '#d05c08', '#e86a00', '#f57a00', '#ff8a00', '#ff9a00'][level]
    s += path('M%s 52.6L%s 37.4L%s 32L%s 36.6L%s 32L%s 37.4L%s 52.6' % tuple(
        n(float(v)) for v in (cx - 3, cx - 6.6, cx - 3.4, cx, cx + 3.4, cx + 6.6, cx + 3)), 'none', wire, 1.3 + .1 * level, 1, 'round', 'round')
    s += path('M%sA11.6 11.6 0 0 1 %s' % (pt(polar(cx, cy, 11.6, -80)), pt(polar(cx, cy, 11.6, -25))), 'none', '#ffffff', 1.5, .75, 'round')
    # level meter
    for k in range(7):
        y = 55.2 - 7.6 * k
        on = k < level
        s += rect(117, y, 12, 5.6, 1, g('amber') if on else '#3c4347', '#fff0c8' if on else '#5f686d', .6)
    return s + text(123, 72.4, str(level), 10, '#ffffff')


strip('ilsMotor', 140, 78, [belt(p) for p in range(3)] + [lamp(v) for v in range(8)])


def sawtooth(phase, mirrored):
    """Rising teeth that move left by a quarter of their period per phase; mirrored they fall."""
    s = shadow(.5, .5, 137.4, 45.4, 4, 1.5) + rect(.5, .5, 137.4, 45.4, 4, g('panelDark'), '#6b7479', .8) + lightLine(.5, .5, 137.4, 45.4, 3, .25)
    s += rect(4, 4, 130.4, 38.4, 2, g('screen'), '#050a07', .8)
    for k in range(1, 8):
        s += path('M%s 4.6V41.8' % n(4 + 16.3 * k), 'none', '#2c6b48', .6, .9 if k == 4 else .6)
    for k in range(1, 4):
        s += path('M4.6 %sH133.8' % n(4 + 9.6 * k), 'none', '#2c6b48', .6, .9 if k == 2 else .6)
    left, right, top, low = 6.6, 131.8, 9.0, 37.4
    period = (right - left) / 4
    pts = []
    begin = -phase / 4.0 * period
    first = (left - (left + begin)) / period
    pts.append((left, low - (low - top) * (first % 1)))
    for k in range(1, 7):
        x = left + begin + k * period
        if x > right + .01:
            part = (right - (x - period)) / period
            pts.append((right, low - (low - top) * part))
            break
        pts += [(x, top), (x, low)]
        if abs(x - right) < .01:
            pts.pop()
            break
    if mirrored:
        pts = [(left + right - x, y) for x, y in pts]
    d = 'M' + 'L'.join(map(pt, pts))
    return (s + path(d, 'none', '#35e545', 4.6, .16, 'round', 'round') + path(d, 'none', '#35e545', 2.8, .35, 'round', 'round')
            + path(d, 'none', '#c9ffb9', 1.4, 1, 'round', 'round'))


# The mirrored four are shown backwards: they move right then.
strip('ilsTriangle', 140, 48, [sawtooth(p, False) for p in range(4)] + [sawtooth(-p % 4, True) for p in range(4)])


def transistor(x, y, name):
    s = legs(x + 4.5, 5, 3, y + 18.4, 4.6, True, 1.8)
    s += shadow(x, y, 19, 19.4, 1.2, 1.5) + rect(x, y, 19, 7, 1, g('can'), '#6b7479', .6) + circ(x + 9.5, y + 3.4, 1.7, '#4a5055', '#23292d', .4)
    s += rect(x, y + 6, 19, 13.4, 1.2, g('package'), '#0e1011', .7) + path('M%s %sH%s' % (n(x + 1.0), n(y + 7), n(x + 18.0)), 'none', '#6b7479', .6)
    return s + text(x + 9.5, y + 16.4, name, 9)


def drive():
    """Driver with heat sink, two half bridges between the supply and ground, the motor between their middles."""
    silk = '#f3f7f1'
    s = rect(.8, .8, 147.4, 83.4, 3, '#1a6540', '#bcd8c6', .8)
    # copper from the driver to the gates
    s += path('M50 19H62M50 25H97M50 61H62M50 67H97', 'none', '#35986a', 1.5)
    # silk: supply, middles of the half bridges, ground
    s += path('M68.5 10V4.8H104.5V10M68.5 76V81H104.5V76', 'none', silk, 1, 1, 'butt', 'round')
    s += path('M68.5 32V50M104.5 32V50', 'none', silk, 1)
    s += path('M68.5 38.6H100.9A3.6 3.6 0 0 1 108.1 38.6H120', 'none', silk, 1) + path('M104.5 45.6H120', 'none', silk, 1)
    s += circ(68.5, 38.6, 1.5, silk) + circ(104.5, 45.6, 1.5, silk)
    s += text(86.5, 13.4, 'V+', 8, silk) + text(86.5, 78.4, 'GND', 8, silk, False)
    # driver under its heat sink
    s += shadow(6, 13, 45, 57.6, 1.5, 1.5) + rect(6, 13, 45, 57.6, 1.5, '#6b7479', '#3f474c', .7)
    for k in range(8):
        s += rect(7 + 5.5 * k, 13.8, 4.2, 56, .6, g('fins'), '#5f686d', .4)
    s += package(9.8, 32.6, 37.4, 18) + text(28.5, 45, 'DRIVE', 9.5)
    s += transistor(59, 9, 'Q1') + transistor(95, 9, 'Q2') + transistor(59, 51, 'Q3') + transistor(95, 51, 'Q4')
    # terminal block
    s += shadow(121, 25, 22, 34, 1.5, 1.5) + rect(121, 25, 22, 34, 1.5, g('terminal'), '#12406e', .7) + lightLine(121, 25, 22, 34, 1.2, .6)
    s += path('M121.4 42H142.6', 'none', '#12406e', .7)
    for y in (33.4, 50.4):
        s += rect(138.6, y - 4, 4.2, 8, .6, '#0b2350') + circ(130, y, 5.2, '#12406e') + circ(129.8, y - .2, 4.7, g('screw'), '#4a5055', .5)
        s += path('M%s %sl5 5' % (n(127.3), n(y - 2.7)), 'none', '#3f474c', 1.3)
    return s + text(131, 20.6, 'MOTOR', 8, silk, False)


strip('picPWM', 150, 86, [drive()])


# ------------------------------------------- the circuit around the serial waveform
LINES = (62, 92, 122)  # level of the low lines of SDI, SCK and SLD


def serialBoard():
    """The edge of the QDA41's card; the three lines come in from the right, the window writes their names."""
    s = shadow(-6, .6, 33, 139, 4, 2) + rect(-6, .6, 33, 139, 4, '#1f7348', '#0f3f28', 1)
    s += path('M0 1.6H23.6', 'none', '#7fcfa0', .8, .55)
    for y in LINES:
        s += path('M0 %sH20' % n(y + 8), 'none', '#2f8f60', 1.5) + path('M20 %sL26 %s' % (n(y + 8), n(y)), 'none', '#2f8f60', 1.5)
        s += rect(22.6, y - 2, 4.8, 4, .3, g('tin'), '#8d969b', .35)
        s += path('M29 %sH37' % n(y), 'none', '#1d2a30', 1.6)
        s += path('M33 %sL28 %sL33 %s' % (n(y - 3.4), n(y), n(y + 3.4)), '#1d2a30', '#1d2a30', .6, 1, 'round', 'round')
    return s + text(13, 17, 'QDA', 9, '#f3f7f1') + text(13, 27, '41', 9, '#f3f7f1')


def serialGenerator():
    """The shift register that drives the three lines to the left; its word is seen through the window in its lid."""
    s = ''.join(rect(.4, y - 1.4, 4, 2.8, .3, g('tin'), '#8d969b', .35) for y in LINES)
    s += shadow(3, .6, 473, 138, 3, 2) + rect(3, .6, 473, 138, 3, g('package'), '#0e1011', .7) + lightLine(3, .6, 473, 138, 2.4)
    s += circ(12, 9, 2, '#0b0c0d', '#565c60', .4)
    return s + text(239.5, 12.4, 'SHIFT REGISTER', 10.5) + text(466, 12.2, '16bit', 8.5, '#b4bcc0', False, 'end')


strip('picSerialBoard', 38, 142, [serialBoard()])
strip('picSerialGenerator', 479, 142, [serialGenerator()])
