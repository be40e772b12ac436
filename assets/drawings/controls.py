# SPDX-License-Identifier: Apache-2.0
"""What is set, pressed and lit: LEDs, switches, jumpers, buttons, rates and interrupt tags."""
from drawings.materials import arc, light_line, polar, ray, shadow, shadow_disc, strip
from kit.svg_kit import (AMBER_EDGE, BLACK, BLUE_EDGE, BURNT, CAP_RED_EDGE, DIM_MARKING, GOLD_EDGE, NIGHT, PITCH, SILK, SOOT,
                         STEEL, TIN_EDGE, WHITE, circ, g, n, path, pt, rect, text, through)


# --------------------------------------------------------------------- LEDs
def led_dark():
    return (shadow_disc(7, 7, 4.6, 1)
            + circ(7, 7, 4.9, g('led_ring'), '#3a403c', .5) + circ(7, 7, 3.9, g('led_dark'), '#353b37', .5)
            + path('M4.6 6.6A2.6 2.6 0 0 1 6.6 4.6', 'none', WHITE, .8, .7, 'round'))


def led_lit(lens, halo, glint, edge):
    s = circ(7, 7, 7, g(halo))
    for k in range(8):
        a = 22.5 + 45 * k
        s += ray(7, 7, 5.3, 6.5, a, glint, .8, 1, 'round')
    return s + circ(7, 7, 4.3, g(lens), edge, .6)


# ----------------------------------------------------------------- switches
def slide(x, y, up, slot):
    """A slot, 6 by 18.4, and its slider."""
    s = rect(x, y, 6, 18.4, .8, g(slot), '#0a0a0a', .4)
    sy = y + .3 if up else y + 9.7
    s += rect(x + .6, sy + .8, 5.4, 8.4, .8, BLACK, op=.4)
    s += rect(x + .2, sy, 5.6, 8.4, .9, g('slider'), STEEL, .5)
    for k in (2.4, 4.2, 6):
        s += path('M%s %sh3.2' % (n(x + 1.4), n(sy + k)), 'none', TIN_EDGE, .6)
    return s


def dip_body(w, colour, edge):
    return (shadow(.6, .6, w, 24, 1.5, 1) + rect(.6, .6, w, 24, 1.5, g(colour), edge, .6)
            + light_line(.6, .6, w, 24, 1.2, .5))


def dip1(colour, edge, slot, up):
    return dip_body(10.2, colour, edge) + slide(2.7, 3.4, up, slot)


RED_SWITCH = ('red_switch', '#5e120d', 'red_slot')
BLUE_SWITCH = ('blue_switch', BLUE_EDGE, 'blue_slot')


def dip2(code):
    return (dip_body(19.4, 'blue_switch', BLUE_EDGE) + slide(3.2, 3.4, code & 2, 'blue_slot')
            + slide(11.4, 3.4, code & 1, 'blue_slot'))


def rotary(digits, chosen, figures):
    """A rotary switch: one figure at the rim for each of the digits in "figures", dots for the others."""
    c = 18.3
    s = shadow(.7, .7, 35.2, 35.2, 2.5, 1.5) + rect(.7, .7, 35.2, 35.2, 2.5, g('package'), SOOT, .7)
    s += light_line(.7, .7, 35.2, 35.2, 2, .35)
    step = 360.0 / len(digits)
    for i, d in enumerate(digits):
        on = i == chosen
        if d in figures:
            x, y = polar(c, c, 13.7, i * step)
            size = 8.6 if on else 8
            s += text(x, y + size * .365, d, size, WHITE if on else DIM_MARKING, on)
        else:
            x, y = polar(c, c, 13.7, i * step)
            s += circ(x, y, 1.75 if on else .75, WHITE if on else DIM_MARKING)
    a = chosen * step
    s += shadow_disc(c, c, 9.9, 1) + circ(c, c, 10, g('knob'), SOOT, .6)
    s += path('M%sL%sL%sZ' % (pt(polar(c, c, 9.8, a)), pt(polar(c, c, 5.9, a + 27)), pt(polar(c, c, 5.9, a - 27))),
              '#c5261b', '#8c1f18', .4, 1, 'round', 'round')
    x, y = polar(c, c, -1.9, a)
    return s + text(x, y + 3.85, digits[chosen], 10.5, '#1b1e20')


# ---------------------------------------------------------- jumper, buttons
def jumper(full):
    s = shadow(.6, 2.4, 33.6, 9, 1, 1) + rect(.6, 2.4, 33.6, 9, 1, g('package'), SOOT, .6)
    s += path('M11.8 2.6v8.6M23 2.6v8.6', 'none', PITCH, .6)
    for x in (6.2, 17.4, 28.6):
        s += rect(x - 2.6, 4.3, 5.2, 5.2, .4, '#0d0e0f') + rect(x - 1.5, 5.4, 3, 3, .3, g('gold'), GOLD_EDGE, .4)
    x = .5 if full else 11.6
    s += shadow(x, .7, 22.8, 11.6, 1.8, 1) + rect(x, .7, 22.8, 11.6, 1.8, g('blue_switch'), BLUE_EDGE, .6)
    s += light_line(x, .7, 22.8, 11.6, 1.4, .6, .7)
    s += rect(x + 7.2, 4, 8.4, 5, 1, '#123a7a', BLUE_EDGE, .4)
    s += path('M%s 9h7' % n(x + 7.9), 'none', '#6f9fe6', .6, .8)
    return s


def button(size, cap, down):
    """A tactile button: body, four legs, round cap."""
    b = size - 3.6
    m = 1.2 + b / 2
    k = size / 22.0
    s = ''
    for y in (.24, .76):
        s += rect(.6, 1 + b * y - 1.1 * k, b + 1.4, 2.2 * k, .3, g('tin'), TIN_EDGE, .4)
    s += shadow(1.2, 1, b, b, 1.5, 1.5) + rect(1.2, 1, b, b, 1.5, g('package'), SOOT, .7) + light_line(1.2, 1, b, b, 1.2)
    for x in (.12, .88):
        for y in (.12, .88):
            s += circ(1.2 + b * x, 1 + b * y, .8 * k + .1, STEEL)
    c = (m, 1 + b / 2)
    if not down:
        r = b * .365
        s += circ(c[0], c[1], r + .9 * k, PITCH)
        s += circ(c[0] + 1.1 * k, c[1] + 1.2 * k, r + .3, BLACK, op=.35)
        s += circ(c[0], c[1], r, g(cap), {'cap_red': CAP_RED_EDGE, 'cap_yellow': '#7a610d', 'cap_grey': '#6b6e69'}[cap], .5)
        s += arc(c[0], c[1], r * .66, -75, -12, WHITE, .9 * k + .15, .75, 'round')
    else:
        r = b * .365
        s += circ(c[0], c[1], r + .9 * k, NIGHT)
        s += arc(c[0], c[1], r + .3, 75, 195, '#d5dadc', 1.1 * k + .1, .95, 'round')
        s += circ(c[0], c[1], r * .74, g(cap + '_down'), NIGHT, .5)
    return s


def bolt(cx, cy, k, fill, edge):
    pts = [(1.6, -7), (-4.6, .9), (-.8, .9), (-2, 7), (4.6, -1.7), (.9, -1.7), (3, -7)]
    return path('M' + 'L'.join(pt((cx + x * k, cy + y * k)) for x, y in pts) + 'Z', fill, edge, .6, 1, 'round', 'round')


def noise(down):
    c = 18.2
    s = shadow_disc(c, c, 17.3, 1.8) + circ(c, c, 17.5, '#17191b', '#3d3208', .6)
    for k in range(12):
        a = k * 30
        q = [polar(c, c, r, a + by) for r, by in ((12.4, 0), (17.2, 11), (17.3, 18.5), (17.2, 26), (12.4, 15))]
        s += path(through(q, True), '#f2cf3b')
    s += arc(c, c, 17, -85, -5, WHITE, .6, .6)
    s += circ(c, c, 13, g('package'), PITCH, .6)
    if not down:
        s += circ(c + .9, c + 1.1, 11.2, BLACK, op=.5) + circ(c, c, 11.2, g('cap_red'), CAP_RED_EDGE, .6)
        s += arc(c, c, 8.8, -80, -20, WHITE, 1.3, .6, 'round')
        return s + bolt(c, c + .2, 1.0, WHITE, '#5e120d')
    s += circ(c, c, 11.6, NIGHT)
    s += arc(c, c, 11.4, 85, 185, '#d5dadc', 1.1, .9, 'round')
    s += circ(c, c, 8.8, g('cap_red_down'), NIGHT, .5)
    for k in range(8):
        a = 22.5 + 45 * k
        s += ray(c, c, 9.6, 12.2, a, '#ffd95a', 1, 1, 'round')
    return s + bolt(c, c + .1, .86, '#ffd95a', '#4a0f0b')


# ---------------------------------------------------------- rates, INT tags
def rate(code, value):
    return (dip2(code) + text(22.4, 11, value, 9, SILK, True, 'start')
            + text(22.2, 20.6, 'Mbps', 8, SILK, False, 'start'))


def tag(y, s, on):
    d = 'M2.2 %sH45.6L51.4 %sL45.6 %sH2.2A1.5 1.5 0 0 1 .7 %sV%sA1.5 1.5 0 0 1 2.2 %sZ' % tuple(
        n(v) for v in (y, y + 6.2, y + 12.4, y + 10.9, y + 1.5, y))
    if not on:
        return path(d, '#124a30', '#5f977a', .8, 1, 'round', 'round') + text(24, y + 9.5, s, 9, '#8fb8a2', False)
    r = path(d, g('amber'), AMBER_EDGE, .8, 1, 'round', 'round') + text(24, y + 9.5, s, 9.5, BURNT)
    for a in (-1, 0, 1):
        r += path('M%s %sL%s %s' % (n(54 - abs(a) * 1.2), n(y + 6.2 + a * 3), n(58.6 - abs(a) * 1.2), n(y + 6.2 + a * 5)),
                  'none', '#ffcf6b', 1.1, 1, 'round')
    return r


def draw():
    return {
        'ilsLED_G.svg': strip(14, 14, [led_dark(), led_lit('led_green', 'halo_green', '#f4fff0', '#0b7a1b')]),
        'ilsLED_R.svg': strip(14, 14, [led_dark(), led_lit('led_red', 'halo_red', '#fff4f0', '#9c120a')]),
        'ilsDIP1.svg': strip(12, 26, [dip1(*colour, up) for colour in (RED_SWITCH, BLUE_SWITCH) for up in (False, True)]),
        'ilsRSW.svg': strip(38, 38, [rotary('0123456789ABCDEF', i, '02468ACE') for i in range(16)]),
        'ilsJumper.svg': strip(36, 14, [jumper(True), jumper(False)]),
        'ilsRESET.svg': strip(22, 22, [button(22, 'cap_red', False), button(22, 'cap_red', True)]),
        'ilsCount.svg': strip(18, 18, [button(18, c, d) for c in ('cap_grey', 'cap_yellow') for d in (False, True)]),
        'ilsNOISE.svg': strip(38, 38, [noise(False), noise(True)]),
        'ilsDIP2.svg': strip(44, 26, [rate(3 - i, v) for i, v in enumerate(('12', '6', '3', '1.5'))]),
        'picMode.svg': strip(22, 26, [dip2(0)]),
        'ilsDIP3.svg': strip(38, 38, [rotary('01234567', i, '01234567') for i in range(8)]),
        'ilsInt.svg': strip(60, 28, [tag(.8, 'INT0', i & 1) + tag(14.6, 'INT1', i & 2) for i in range(4)]),
    }
