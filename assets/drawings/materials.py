# SPDX-License-Identifier: Apache-2.0
"""What the parts and cards of the bench are made of: materials, light and shadow, and the shapes that many of them share.

Light comes from the top left, so every part has a light line on its left and top edges and soft shadows, stacked translucent
rectangles, to the lower right. Nothing leaves its cell.
"""
import math

from kit import svg_kit
from kit.svg_kit import (AMBER, BLACK, CAP_RED, CAP_RED_EDGE, COAL, CORD, GOLD, GOLD_EDGE, GRAPHITE, GREEN, IRON, KNOB, LEVER,
                         LIME, SHADE, SOOT, STRAP, TIN, TIN_EDGE, WHITE, circ, g, lin, n, path, pt, rad, rect, through)


GRADIENTS = {
    'package': lin(['#3a3f43', '#26292c', '#1b1e20']),
    'well': lin(['#0c0d0e', '#1b1e20']),
    'can': lin([(0, '#fbfcfc'), (.5, '#cfd5d8'), (1, '#8f989d')]),
    'can_top': lin([(0, '#f4f6f7'), (1, '#b9c1c5')]),
    'tin': lin([TIN, '#cdd3d6', '#a9b1b5']),
    'gold': lin(['#f6d98a', GOLD, '#b98b2b']),
    'red_switch': lin(['#e2665a', LEVER, '#8c1f18']),
    'blue_switch': lin(['#4e86d8', STRAP, '#123a7a']),
    'red_slot': lin(['#2c0604', '#5a130e'], 0, 0, 0, 1),
    'blue_slot': lin(['#061430', '#0f2d66'], 0, 0, 0, 1),
    'slider': lin([WHITE, '#cfd5d8']),
    'led_dark': rad(['#a9b1aa', '#6d756f', '#464d48'], .5, .5, .55, .36, .32),
    'led_ring': lin(['#d4dad6', '#7f8882']),
    'led_green': rad([(0, WHITE), (.28, '#eaffe2'), (.6, '#5cf06a'), (1, '#12b425')], .5, .5, .52, .45, .43),
    'led_red': rad([(0, WHITE), (.28, '#ffe9e2'), (.6, '#ff6a58'), (1, '#d81d12')], .5, .5, .52, .45, .43),
    'halo_green': rad([(0, '#7dff8c', .95), (.55, LIME, .6), (1, LIME, 0)]),
    'halo_red': rad([(0, '#ff9a8c', .95), (.55, '#ff3a2c', .6), (1, '#ff3a2c', 0)]),
    'knob': rad([WHITE, KNOB, '#cfc6ab'], .5, .5, .62, .36, .32),
    'cap_red': rad(['#ff9a8c', CAP_RED, '#8f170e'], .5, .5, .6, .34, .3),
    'cap_yellow': rad(['#fff2b0', '#f2cf3b', '#b08a12'], .5, .5, .6, .34, .3),
    'cap_grey': rad([WHITE, '#e6e7e3', '#a2a69f'], .5, .5, .6, .34, .3),
    'cap_red_down': rad(['#a3251b', '#a3251b', CAP_RED_EDGE], .5, .5, .6),
    'cap_yellow_down': rad(['#b3921f', '#b3921f', '#7a610d'], .5, .5, .6),
    'cap_grey_down': rad(['#9a9d97', '#9a9d97', '#6b6e69'], .5, .5, .6),
    'plug': lin([WHITE, '#dfe7eb', '#aab5bb'], 0, 0, 0, 1),
    'boot': lin([CORD, '#3b444a', COAL], 0, 0, 0, 1),
    'coil': lin(['#5b5047', '#4a4039', '#362e29']),
    'resistor': lin([(0, '#b98f52'), (.35, '#f0d9a4'), (1, '#93703a')], 0, 0, 0, 1),
    'flat': lin(['#c6cbce', '#a1a8ad'], 0, 0, 0, 1),
    'idc': lin(['#6b747a', '#4a5257', '#33393d']),
    'fins': lin([(0, '#f1f4f5'), (.45, '#b9c1c5'), (1, '#7c858a')], 0, 0, 1, 0),
    'terminal': lin(['#5d9be0', '#2f76c4', '#1f5596']),
    'screw': lin(['#fbfcfc', '#9aa3a8']),
    'amber': lin(['#ffcf6b', AMBER, '#f29a10'], 0, 0, 0, 1),
    'panel_dark': lin(['#363c40', '#262b2e']),
    'panel_light': lin(['#fafbfb', '#e4e8ea']),
    'screen': lin(['#0c2117', '#14301f'], 0, 0, 0, 1),
    'pulley': lin(['#f2f4f5', '#c3cacd', '#939ca1']),
    'hub': rad(['#f4f6f7', '#9aa3a8', IRON], .5, .5, .55, .36, .32),
    'lid': lin([GRAPHITE, '#2d3134', '#222527']),
    'stripe_red': lin(['#de5449', '#b52d24'], 0, 0, 0, 1),
    'mask': lin(['#2b8657', GREEN, '#1a6540']),
    'mat': lin(['#dcdfe0', '#d3d7d9', '#c9ced1']),
    'hole': lin(['#f2f4f5', '#a9b1b5']),
}


def mixed(a, b, share):
    """The colour that lies between two, at a share of the second."""
    return '#' + ''.join('%02x' % round(int(a[i:i + 2], 16) * (1 - share) + int(b[i:i + 2], 16) * share) for i in (1, 3, 5))


for level in range(8):  # of the lamp: from cold glass to a white-hot core
    heat = level / 7
    GRADIENTS['glass%d' % level] = rad([(0, mixed('#8a979f', WHITE, heat)), (.5, mixed('#667179', '#fff3b8', heat)),
                                        (1, mixed('#49535a', '#ffd659', heat))], .5, .55, .6)
    GRADIENTS['glow%d' % level] = rad([(0, '#ffe9a0', .15 + .85 * heat), (.45, '#ffc840', .08 + .6 * heat), (1, AMBER, 0)])


def strip(width, height, cells):
    return svg_kit.strip(width, height, cells, GRADIENTS)


def shadow(x, y, w, h, rx, off):
    """Two layers to the lower right."""
    return (rect(x + off * .5, y + off * .5, w, h, rx, SHADE, op=.28)
            + rect(x + off, y + off, w, h, rx, SHADE, op=.26))


def shadow_disc(x, y, r, off):
    return circ(x + off * .5, y + off * .5, r, SHADE, op=.28) + circ(x + off, y + off, r, SHADE, op=.26)


def light_line(x, y, w, h, rx, op=.35, sw=.6):
    """Light on the left and top edges, just inside of the outline."""
    i = .8
    return path('M%s %sV%sA%s %s 0 0 1 %s %sH%s' % (
        n(x + i), n(y + h - rx - .4), n(y + i + rx), n(rx), n(rx), n(x + i + rx), n(y + i), n(x + w - rx - .4)),
        'none', WHITE, sw, op, 'round')


def polar(cx, cy, r, deg):
    """A point at an angle counted clockwise from the top."""
    a = math.radians(deg)
    return cx + r * math.sin(a), cy - r * math.cos(a)


def arc(cx, cy, r, start, end, *stroke):
    """Clockwise from one angle to another."""
    way = 'M%sA%s %s 0 0 1 %s' % (pt(polar(cx, cy, r, start)), n(r), n(r), pt(polar(cx, cy, r, end)))
    return path(way, 'none', *stroke)


def ray(cx, cy, near, far, angle, *stroke):
    return path(through((polar(cx, cy, near, angle), polar(cx, cy, far, angle))), 'none', *stroke)


def package(x, y, w, h, off=1.5, rx=1.5):
    return shadow(x, y, w, h, rx, off) + rect(x, y, w, h, rx, g('package'), SOOT, .7) + light_line(x, y, w, h, rx * .8)


def legs(x0, pitch, count, y, length, across=True, w=2.0):
    s = ''
    for i in range(count):
        p = x0 + pitch * i - w / 2
        s += rect(p, y, w, length, .3, g('tin'), TIN_EDGE, .35) if across else rect(y, p, length, w, .3, g('tin'), TIN_EDGE, .35)
    return s


def header(rows, w, h):
    s = package(.6, .6, w - 2.2, h - 2.2)
    s += rect(3, 3, w - 7, h - 7, .8, g('well'), '#070808', .5)
    s += rect(w - 4.2, h / 2 - 4.3, 2.7, 7.4, 0, '#0c0d0e')
    s += path('M%s %sv7.4' % (n(w - 4), n(h / 2 - 4.3)), 'none', '#17191b', .7)
    pitch = (h - 10.0) / rows
    m = (w - 1) / 2.0 - .1
    for i in range(rows):
        for x in (m - 3, m + 3):
            y = 4.4 + pitch * (i + .5) + .2
            s += rect(x - 1.5, y - 1.5, 3.2, 3.2, .3, BLACK, op=.6)
            s += rect(x - 1.3, y - 1.3, 2.6, 2.6, .3, g('gold'), GOLD_EDGE, .4)
    return s
