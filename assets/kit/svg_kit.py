# SPDX-License-Identifier: Apache-2.0
"""What all drawings are made of: one palette, and the shapes of SVG Tiny as texts.

A shape is a function that returns its element; a drawing joins them with +, or collects them on a Canvas. Only what SVG Tiny
can do is used (gradients yes, filters, masks and styles no), so that the build's renderer draws it as it stands.
Coordinates are pixels at 1x and are written with two decimals.
"""
import re
from xml.sax.saxutils import escape

# --- the palette: a hue has one meaning, and shape, weight or hatching repeats it ---------------------------------------------
WHITE, BLACK = '#ffffff', '#000000'
INK, SECOND, FAINT = '#1d2a30', '#55636a', '#8a969c'
# Green is the program itself, and the solder mask.
GREEN, PALE_GREEN, GREEN_LINE, SHEET_GREEN, ON_GREEN = '#1f7348', '#e4f1e9', '#9ccab2', '#f1f6f3', '#cfe6d9'
# Blue is the learner's, amber the scan's, hatched grey nobody's: fill, line, ink.
YOURS = ('#d8e8fb', '#5a8fd0', '#174a8c')
SCAN = ('#ffe6bd', '#d99a2b', '#7d4d00')
NEVER = ('#e9ecee', '#aab3b8', FAINT)
KEPT = (WHITE, FAINT, SECOND)
# Yellow is to be read or tried, red is refused, or the instant that counts.
TRY, TRY_LINE, TRY_INK = '#fff8dc', '#d9c36a', '#7d6200'
POPUP, POPUP_LINE = '#ffffcc', '#8a7a2a'
RED, PALE_RED, RED_LINE = '#c4251a', '#ffd9d3', '#e3a19b'
CARD, CARD_LINE, ZEBRA, HATCH, DULL, AREA = '#f3f4f5', '#d0d5d8', '#f5f8f6', '#d7dcdf', '#a6afb4', '#5b6b66'
GRID, AXIS = '#e6eaec', '#c3cbcf'
# Of circuits.
NET, LEVER, STRAP = '#1c5fb0', '#c93a30', '#2360bd'
LIT_LINE, LIT_FILL = '#12843a', '#c9f2d0'
CHIP, SMALL_CHIP, CAN = '#f3f5f1', '#f6f7f5', '#eef1f3'
# Of the bench: print, copper, metal from light to dark, plastic, light.
SILK, DIM_SILK, MARKING, DIM_MARKING = '#f3f7f1', '#bcd8c6', '#eef0ec', '#b4bcc0'
COPPER, MASK_EDGE = '#2f8f60', '#0f3f28'
TIN, TIN_EDGE, STEEL, IRON, GRAPHITE = '#eef1f2', '#8d969b', '#6b7479', '#5f686d', '#4a5055'
GUNMETAL, CHARCOAL, COAL, SOOT, PITCH, NIGHT = '#3f474c', '#2d3438', '#23292d', '#0e1011', '#0b0c0d', '#050606'
GOLD, GOLD_EDGE = '#e0b54a', '#9a7420'
SHADE = '#05140c'
KNOB, CAP_RED, CAP_RED_EDGE, BLUE_EDGE = '#f4eedd', '#d9382b', '#6e120b', '#0b2350'
CORD_LIGHT, CORD, CORD_DARK = '#98a3aa', '#59636b', '#2f363b'
LIME, AMBER, AMBER_EDGE, BURNT = '#35e545', '#ffb52e', '#fff0c8', '#2a1600'

GOTHIC, SANS, NARROW, MONO = 'IPAPGothic', 'DejaVu Sans', 'DejaVu Sans Condensed', 'DejaVu Sans Mono'


def n(value):
    """A number as it stands in a drawing."""
    return ('%.2f' % value).rstrip('0').rstrip('.')


# --- shapes -----------------------------------------------------------------------------------------------------------------
def element(name, content=None, **attributes):
    """Attributes that are None are left out; in their names _ stands for - and __ for a colon."""
    given = ''.join(' %s="%s"' % (key.replace('__', ':').replace('_', '-'), value if isinstance(value, str) else n(value))
                    for key, value in attributes.items() if value is not None)
    return '<%s%s/>' % (name, given) if content is None else '<%s%s>%s</%s>' % (name, given, content, name)


def paint(fill, stroke, sw, op, dash=None):
    return {'fill': fill, 'stroke': stroke, 'stroke_width': sw if stroke else None, 'stroke_dasharray': dash,
            'opacity': op if op != 1 else None}


def rect(x, y, w, h, rx=0, fill='none', stroke=None, sw=.6, op=1, dash=None):
    return element('rect', x=x, y=y, width=w, height=h, rx=rx or None, **paint(fill, stroke, sw, op, dash))


def circ(x, y, r, fill='none', stroke=None, sw=.6, op=1):
    return element('circle', cx=x, cy=y, r=r, **paint(fill, stroke, sw, op))


def line(x1, y1, x2, y2, stroke=INK, sw=1, dash=None):
    return element('line', x1=x1, y1=y1, x2=x2, y2=y2, stroke=stroke, stroke_width=sw, stroke_dasharray=dash)


def path(d, fill='none', stroke=None, sw=.6, op=1, cap='butt', join='miter', dash=None):
    ends = {'stroke_linecap': cap, 'stroke_linejoin': join} if stroke else {}
    return element('path', d=d, **paint(fill, stroke, sw, op, dash), **ends)


def spans(x, y, content, size=8, fill=MARKING, bold=True, anchor='middle', family=NARROW, turned=None, strikes=(.45,)):
    """A text whose content is already SVG. The gothic has no bold face: bold, it is struck again, that many pixels to the
    right."""
    def struck(shift):
        return element('text', content, xml__space='preserve', x=x + shift, y=y, font_family=family, font_size=size,
                       font_weight='bold' if bold and family != GOTHIC else None, fill=fill, text_anchor=anchor,
                       transform=turned)
    return ''.join(struck(shift) for shift in (0, *(strikes if bold and family == GOTHIC else ())))


def text(x, y, words, *look, **more):
    """One line of words; the parameters are those of spans."""
    return spans(x, y, escape(words), *look, **more)


def move(x, y, *what):
    return element('g', ''.join(what), transform='translate(%s %s)' % (n(x), n(y)))


def turn(angle, x, y, *what):
    return element('g', ''.join(what), transform='translate(%s %s) rotate(%s)' % (n(x), n(y), n(angle)))


def pt(point):
    return '%s %s' % (n(point[0]), n(point[1]))


def through(points, closed=False):
    """The way of a path through points, each (x, y)."""
    return 'M' + 'L'.join(map(pt, points)) + ('Z' if closed else '')


# --- gradients --------------------------------------------------------------------------------------------------------------
def stops(given):
    """Colours at equal distances, or (offset, colour) and (offset, colour, opacity)."""
    out = ''
    for place, stop in enumerate(given):
        offset, colour, *opacity = (place / (len(given) - 1), stop) if isinstance(stop, str) else stop
        out += element('stop', offset=offset, stop_color=colour, stop_opacity=opacity[0] if opacity and opacity[0] != 1 else None)
    return out


def lin(given, x1=0, y1=0, x2=1, y2=1):
    return lambda name: element('linearGradient', stops(given), id=name, x1=x1, y1=y1, x2=x2, y2=y2)


def rad(given, cx=.5, cy=.5, r=.5, fx=None, fy=None):
    return lambda name: element('radialGradient', stops(given), id=name, cx=cx, cy=cy, r=r, fx=cx if fx is None else fx,
                                fy=cy if fy is None else fy)


def g(name):
    """The paint that a gradient gives."""
    return 'url(#%s)' % name


# --- whole drawings -----------------------------------------------------------------------------------------------------------
def document(width, height, body, gradients=None):
    """An SVG file; a gradient that the body uses but nobody has given is a KeyError."""
    used = ''.join(gradients[name](name) for name in sorted(set(re.findall(r'url\(#(\w+)\)', body))))
    content = '\n%s%s\n' % (element('defs', used) + '\n' if used else '', body)
    return element('svg', content, xmlns='http://www.w3.org/2000/svg', version='1.2', baseProfile='tiny', width=width,
                   height=height, viewBox='0 0 %s %s' % (n(width), n(height))) + '\n'


def strip(width, height, cells, gradients=None):
    """An image list: equally wide cells, each holding one element image-1, image-2, ..."""
    body = '\n'.join(element('g', move(place * width, 0, rect(0, 0, width, height, 0, BLACK, op=0), cell),
                             id='image-%d' % (place + 1)) for place, cell in enumerate(cells))
    return document(width * len(cells), height, body, gradients)


class Canvas:
    """Collects the shapes of a drawing that has a vocabulary of its own."""

    def __init__(self):
        self.out = []

    def add(self, *shapes):
        self.out.extend(shapes)

    def body(self):
        return ''.join(self.out)
