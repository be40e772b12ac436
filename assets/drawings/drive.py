# SPDX-License-Identifier: Apache-2.0
"""The lamp, the motor with its belt, the pulse pictures, and the card that drives them."""
import math

from drawings.materials import arc, legs, light_line, package, polar, ray, shadow, strip
from kit.svg_kit import (AMBER_EDGE, BLACK, BLUE_EDGE, CAP_RED, CAP_RED_EDGE, CHARCOAL, COAL, DIM_SILK, GRAPHITE, GUNMETAL,
                         IRON, LIME, SILK, SOOT, STEEL, TIN_EDGE, WHITE, circ, g, move, n, path, pt, rect, text, through)


# ------------------------------------------------------ the motor, the lamp
# Both pulleys turn by a third of their spoke pitch per phase and the belt runs on by a third of
# the pitch of its marks: the radii stand as the angles do, and the belt holds a whole number of pitches.
BIG, SMALL = 28.0, 16.8
BIG_X, SMALL_X, AXIS_Y = 102.6, 102.6 - 69.47, 34.6
BIG_STEP, SMALL_STEP = 24.0, 40.0
MARKS = 8


def belt_point(s):
    """The point s along the belt, counter-clockwise from the top of the big pulley, and the belt's length."""
    d = BIG_X - SMALL_X
    a = math.asin((BIG - SMALL) / d)
    straight = math.sqrt(d * d - (BIG - SMALL) ** 2)
    round_small, round_big = SMALL * (math.pi - 2 * a), BIG * (math.pi + 2 * a)
    total = 2 * straight + round_small + round_big
    s %= total
    dx, dy = math.sin(a), math.cos(a)
    top_big = (BIG_X - BIG * dx, AXIS_Y - BIG * dy)
    top_small = (SMALL_X - SMALL * dx, AXIS_Y - SMALL * dy)
    if s < straight:
        t = s / straight
        return (top_big[0] + (top_small[0] - top_big[0]) * t, top_big[1] + (top_small[1] - top_big[1]) * t), total
    s -= straight
    if s < round_small:
        return polar(SMALL_X, AXIS_Y, SMALL, math.degrees(-a - s / SMALL)), total
    s -= round_small
    if s < straight:
        t = s / straight
        x = top_small[0] + (top_big[0] - top_small[0]) * t
        y = top_small[1] + (top_big[1] - top_small[1]) * t
        return (x, 2 * AXIS_Y - y), total
    s -= straight
    return polar(BIG_X, AXIS_Y, BIG, math.degrees(math.pi + a - s / BIG)), total


def pulley(cx, cy, r, spokes, turn_by, hub, knob_r):
    s = circ(cx, cy, r, g('pulley'), IRON, .6) + circ(cx, cy, r * .77, '#dfe4e6', '#79838a', .6)
    for k in range(spokes):
        a = 360.0 / spokes * k - turn_by
        s += ray(cx, cy, hub * .7, r * .79, a, IRON, 3.2 * knob_r / 2.4)
        s += ray(cx, cy, hub * .7, r * .79, a, '#b4bdc2', 1.9 * knob_r / 2.4)
        x, y = polar(cx, cy, r * .6, a)
        s += circ(x, y, knob_r, CAP_RED, CAP_RED_EDGE, .5) + circ(x - knob_r * .3, y - knob_r * .3, knob_r * .3, WHITE, op=.7)
    return s + circ(cx, cy, hub, g('hub'), GUNMETAL, .6) + circ(cx, cy, hub * .4, CHARCOAL)


def belt(phase):
    s = shadow(.5, .5, 137.4, 75.4, 4, 1.5) + rect(.5, .5, 137.4, 75.4, 4, g('panel_light'), TIN_EDGE, .8)
    length = belt_point(0)[1]
    outline = 'M' + 'L'.join(pt(belt_point(length * i / 160)[0]) for i in range(160)) + 'Z'
    # the motor behind the small pulley
    s += shadow(11.6, 12.6, 43, 44, 3, 1.5) + rect(11.6, 12.6, 43, 44, 3, '#c9d0d4', '#79838a', .7)
    s += light_line(11.6, 12.6, 43, 44, 2.4, .8)
    for x in (15.4, 50.8):
        for y in (16.4, 52.8):
            s += circ(x, y, 1.9, g('screw'), IRON, .5) + path('M%s %sl2 -2' % (n(x - 1), n(y + 1)), 'none', IRON, .5)
    s += move(1.6, 1.8, path(outline, 'none', BLACK, 5.4, .16))
    s += pulley(BIG_X, AXIS_Y, BIG - 2, 5, phase * BIG_STEP, 5, 2.4)
    s += pulley(SMALL_X, AXIS_Y, SMALL - 2, 3, phase * SMALL_STEP, 3.6, 1.8)
    s += path(outline, 'none', '#17191b', 5.2, 1, 'round', 'round') + path(outline, 'none', '#33393d', 3.4, 1, 'round', 'round')
    for k in range(MARKS):
        s += circ(*belt_point(length * (k + phase / 3.0) / MARKS + 6)[0], 1.25, WHITE)
    return s + text(33, 70.4, 'MOTOR', 9, CHARCOAL)


def lamp(level):
    s = shadow(.5, .5, 137.4, 75.4, 4, 1.5) + rect(.5, .5, 137.4, 75.4, 4, g('panel_dark'), STEEL, .8)
    s += text(8, 14.4, 'LAMP', 9, '#dfe4e6', True, 'start')
    cx, cy = 70, 33
    if level:
        s += circ(cx, cy, 20 + 1.75 * level, g('glow%d' % level))
        for k in range(9):
            a = -120 + 30 * k
            far = 20.6 + 1.72 * level - (1.6 if k % 2 else 0)
            if cy - far * math.cos(math.radians(a)) < 3.6:
                far = (cy - 3.6) / math.cos(math.radians(a))
            s += ray(cx, cy, 18.8, far, a, '#ffe9a8',
                      1 + .11 * level, .55 + .064 * level, 'round')
    # socket, screw base, glass
    s += rect(cx - 12.5, 66.4, 25, 7, 1.5, SOOT, GRAPHITE, .6) + path('M%s 67.4h22' % n(cx - 11.0), 'none', STEEL, .6)
    s += rect(cx - 7.4, 53, 14.8, 14, 1.2, g('fins'), GRAPHITE, .6)
    for y in (56, 59.4, 62.8):
        s += path('M%s %sL%s %s' % (n(cx - 7.8), n(y + .9), n(cx + 7.8), n(y - .7)), 'none', IRON, 1.1, 1, 'round')
    glass = 'M%s 53C%s 46.5 %s 43 %s 33A15.6 15.6 0 0 1 %s 33C%s 43 %s 46.5 %s 53Z' % tuple(
        n(v) for v in (cx - 7, cx - 7, cx - 15.6, cx - 15.6, cx + 15.6, cx + 15.6, cx + 7, cx + 7))
    s += path(glass, g('glass%d' % level), '#b9c4ca' if level < 3 else '#fff6d0', .8)
    wire = ['#22282c', '#8a3c10', '#b04c0c', '#d05c08', '#e86a00', '#f57a00', '#ff8a00', '#ff9a00'][level]
    s += path('M%s 52.6L%s 37.4L%s 32L%s 36.6L%s 32L%s 37.4L%s 52.6' % tuple(
        n(v) for v in (cx - 3, cx - 6.6, cx - 3.4, cx, cx + 3.4, cx + 6.6, cx + 3)),
              'none', wire, 1.3 + .1 * level, 1, 'round', 'round')
    s += arc(cx, cy, 11.6, -80, -25, WHITE, 1.5, .75, 'round')
    # level meter
    for k in range(7):
        y = 55.2 - 7.6 * k
        on = k < level
        s += rect(117, y, 12, 5.6, 1, g('amber') if on else '#3c4347', AMBER_EDGE if on else IRON, .6)
    return s + text(123, 72.4, str(level), 10, WHITE)


def sawtooth(phase, mirrored):
    """Rising teeth that move left by a quarter of their period per phase; mirrored they fall."""
    s = shadow(.5, .5, 137.4, 45.4, 4, 1.5) + rect(.5, .5, 137.4, 45.4, 4, g('panel_dark'), STEEL, .8)
    s += light_line(.5, .5, 137.4, 45.4, 3, .25)
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
    d = through(pts)
    return (s + path(d, 'none', LIME, 4.6, .16, 'round', 'round') + path(d, 'none', LIME, 2.8, .35, 'round', 'round')
            + path(d, 'none', '#c9ffb9', 1.4, 1, 'round', 'round'))


# The mirrored four are shown backwards: they move right then.


def transistor(x, y, name):
    s = legs(x + 4.5, 5, 3, y + 18.4, 4.6, True, 1.8)
    s += shadow(x, y, 19, 19.4, 1.2, 1.5) + rect(x, y, 19, 7, 1, g('can'), STEEL, .6)
    s += circ(x + 9.5, y + 3.4, 1.7, GRAPHITE, COAL, .4)
    s += rect(x, y + 6, 19, 13.4, 1.2, g('package'), SOOT, .7)
    s += path('M%s %sH%s' % (n(x + 1.0), n(y + 7), n(x + 18.0)), 'none', STEEL, .6)
    return s + text(x + 9.5, y + 16.4, name, 9)


def drive():
    """Driver with heat sink, two half bridges between the supply and ground, the motor between their middles."""
    silk = SILK
    s = rect(.8, .8, 147.4, 83.4, 3, '#1a6540', DIM_SILK, .8)
    # copper from the driver to the gates
    s += path('M50 19H62M50 25H97M50 61H62M50 67H97', 'none', '#35986a', 1.5)
    # silk: supply, middles of the half bridges, ground
    s += path('M68.5 10V4.8H104.5V10M68.5 76V81H104.5V76', 'none', silk, 1, 1, 'butt', 'round')
    s += path('M68.5 32V50M104.5 32V50', 'none', silk, 1)
    s += path('M68.5 38.6H100.9A3.6 3.6 0 0 1 108.1 38.6H120', 'none', silk, 1) + path('M104.5 45.6H120', 'none', silk, 1)
    s += circ(68.5, 38.6, 1.5, silk) + circ(104.5, 45.6, 1.5, silk)
    s += text(86.5, 13.4, 'V+', 8, silk) + text(86.5, 78.4, 'GND', 8, silk, False)
    # driver under its heat sink
    s += shadow(6, 13, 45, 57.6, 1.5, 1.5) + rect(6, 13, 45, 57.6, 1.5, STEEL, GUNMETAL, .7)
    for k in range(8):
        s += rect(7 + 5.5 * k, 13.8, 4.2, 56, .6, g('fins'), IRON, .4)
    s += package(9.8, 32.6, 37.4, 18) + text(28.5, 45, 'DRIVE', 9.5)
    s += transistor(59, 9, 'Q1') + transistor(95, 9, 'Q2') + transistor(59, 51, 'Q3') + transistor(95, 51, 'Q4')
    # terminal block
    s += shadow(121, 25, 22, 34, 1.5, 1.5) + rect(121, 25, 22, 34, 1.5, g('terminal'), '#12406e', .7)
    s += light_line(121, 25, 22, 34, 1.2, .6)
    s += path('M121.4 42H142.6', 'none', '#12406e', .7)
    for y in (33.4, 50.4):
        s += rect(138.6, y - 4, 4.2, 8, .6, BLUE_EDGE) + circ(130, y, 5.2, '#12406e')
        s += circ(129.8, y - .2, 4.7, g('screw'), GRAPHITE, .5)
        s += path('M%s %sl5 5' % (n(127.3), n(y - 2.7)), 'none', GUNMETAL, 1.3)
    return s + text(131, 20.6, 'MOTOR', 8, silk, False)


def draw():
    return {
        'ilsMotor.svg': strip(140, 78, [belt(p) for p in range(3)] + [lamp(v) for v in range(8)]),
        'ilsTriangle.svg': strip(140, 48, [sawtooth(p, False) for p in range(4)] + [sawtooth(-p % 4, True) for p in range(4)]),
        'picPWM.svg': strip(150, 86, [drive()]),
    }
