"""What all drawings of the bench are made of: shapes, gradients, light and shadow, and the strip of cells.

Light comes from the top left, so every part has a light line on its left and top
edges and soft shadows, stacked translucent rectangles, to the lower right.
Only shapes and gradients of SVG Tiny are used. Nothing leaves its cell.
"""
import math
import os
import sys

OUT = sys.argv[1] if len(sys.argv) > 1 else os.path.dirname(os.path.abspath(__file__))


def n(v):
    return ('%.2f' % v).rstrip('0').rstrip('.') if isinstance(v, float) else str(v)


# ---------------------------------------------------------------- gradients
def lin(stops, x1=0, y1=0, x2=1, y2=1):
    body = ''.join('<stop offset="%s" stop-color="%s"%s/>' % (
        o, c, '' if a == 1 else ' stop-opacity="%s"' % a) for o, c, a in norm(stops))
    return '<linearGradient id="%%s" x1="%s" y1="%s" x2="%s" y2="%s">%s</linearGradient>' % (x1, y1, x2, y2, body)


def rad(stops, cx=.5, cy=.5, r=.5, fx=None, fy=None):
    body = ''.join('<stop offset="%s" stop-color="%s"%s/>' % (
        o, c, '' if a == 1 else ' stop-opacity="%s"' % a) for o, c, a in norm(stops))
    return '<radialGradient id="%%s" cx="%s" cy="%s" r="%s" fx="%s" fy="%s">%s</radialGradient>' % (
        cx, cy, r, cx if fx is None else fx, cy if fy is None else fy, body)


def norm(stops):
    out = []
    for i, s in enumerate(stops):
        if isinstance(s, str):
            s = (i / (len(stops) - 1.0), s)
        out.append((n(float(s[0])), s[1], s[2] if len(s) > 2 else 1))
    return out


GRAD = {
    'package': lin(['#3a3f43', '#26292c', '#1b1e20']),
    'well': lin(['#0c0d0e', '#1b1e20']),
    'can': lin([(0, '#fbfcfc'), (.5, '#cfd5d8'), (1, '#8f989d')]),
    'canTop': lin([(0, '#f4f6f7'), (1, '#b9c1c5')]),
    'tin': lin(['#eef1f2', '#cdd3d6', '#a9b1b5']),
    'gold': lin(['#f6d98a', '#e0b54a', '#b98b2b']),
    'redSwitch': lin(['#e2665a', '#c93a30', '#8c1f18']),
    'blueSwitch': lin(['#4e86d8', '#2360bd', '#123a7a']),
    'redSlot': lin(['#2c0604', '#5a130e'], 0, 0, 0, 1),
    'blueSlot': lin(['#061430', '#0f2d66'], 0, 0, 0, 1),
    'slider': lin(['#ffffff', '#cfd5d8']),
    'ledDark': rad(['#a9b1aa', '#6d756f', '#464d48'], .5, .5, .55, .36, .32),
    'ledRing': lin(['#d4dad6', '#7f8882']),
    'ledGreen': rad([(0, '#ffffff'), (.28, '#eaffe2'), (.6, '#5cf06a'), (1, '#12b425')], .5, .5, .52, .45, .43),
    'ledRed': rad([(0, '#ffffff'), (.28, '#ffe9e2'), (.6, '#ff6a58'), (1, '#d81d12')], .5, .5, .52, .45, .43),
    'haloGreen': rad([(0, '#7dff8c', .95), (.55, '#35e545', .6), (1, '#35e545', 0)]),
    'haloRed': rad([(0, '#ff9a8c', .95), (.55, '#ff3a2c', .6), (1, '#ff3a2c', 0)]),
    'knob': rad(['#ffffff', '#f4eedd', '#cfc6ab'], .5, .5, .62, .36, .32),
    'capRed': rad(['#ff9a8c', '#d9382b', '#8f170e'], .5, .5, .6, .34, .3),
    'capYellow': rad(['#fff2b0', '#f2cf3b', '#b08a12'], .5, .5, .6, .34, .3),
    'capGrey': rad(['#ffffff', '#e6e7e3', '#a2a69f'], .5, .5, .6, .34, .3),
    'capRedDown': rad(['#a3251b', '#a3251b', '#6e120b'], .5, .5, .6),
    'capYellowDown': rad(['#b3921f', '#b3921f', '#7a610d'], .5, .5, .6),
    'capGreyDown': rad(['#9a9d97', '#9a9d97', '#6b6e69'], .5, .5, .6),
    'plug': lin(['#ffffff', '#dfe7eb', '#aab5bb'], 0, 0, 0, 1),
    'boot': lin(['#59636b', '#3b444a', '#23292d'], 0, 0, 0, 1),
    'coil': lin(['#5b5047', '#4a4039', '#362e29']),
    'resistor': lin([(0, '#b98f52'), (.35, '#f0d9a4'), (1, '#93703a')], 0, 0, 0, 1),
    'flat': lin(['#c6cbce', '#a1a8ad'], 0, 0, 0, 1),
    'idc': lin(['#6b747a', '#4a5257', '#33393d']),
    'fins': lin([(0, '#f1f4f5'), (.45, '#b9c1c5'), (1, '#7c858a')], 0, 0, 1, 0),
    'terminal': lin(['#5d9be0', '#2f76c4', '#1f5596']),
    'screw': lin(['#fbfcfc', '#9aa3a8']),
    'amber': lin(['#ffcf6b', '#ffb52e', '#f29a10'], 0, 0, 0, 1),
    'panelDark': lin(['#363c40', '#262b2e']),
    'panelLight': lin(['#fafbfb', '#e4e8ea']),
    'screen': lin(['#0c2117', '#14301f'], 0, 0, 0, 1),
    'pulley': lin(['#f2f4f5', '#c3cacd', '#939ca1']),
    'hub': rad(['#f4f6f7', '#9aa3a8', '#5f686d'], .5, .5, .55, .36, .32),
    'lid': lin(['#4a5055', '#2d3134', '#222527']),
    'stripeRed': lin(['#de5449', '#b52d24'], 0, 0, 0, 1),
    'mask': lin(['#2b8657', '#1f7348', '#1a6540']),
    'mat': lin(['#dcdfe0', '#d3d7d9', '#c9ced1']),
    'hole': lin(['#f2f4f5', '#a9b1b5']),
}
for lv in range(8):
    # glow of the lamp: from cold glass to a white-hot core
    t = lv / 7.0

    def mix(a, b, t=t):
        return '#' + ''.join('%02x' % round(int(a[i:i + 2], 16) * (1 - t) + int(b[i:i + 2], 16) * t) for i in (1, 3, 5))
    GRAD['glass%d' % lv] = rad([(0, mix('#8a979f', '#ffffff')), (.5, mix('#667179', '#fff3b8')), (1, mix('#49535a', '#ffd659'))], .5, .55, .6)
    GRAD['glow%d' % lv] = rad([(0, '#ffe9a0', n(.15 + .85 * t)), (.45, '#ffc840', n(.08 + .6 * t)), (1, '#ffb52e', 0)])


def g(name):
    return 'url(#%s)' % name


# ------------------------------------------------------------------- shapes
def attrs(fill, stroke, sw, op, more=''):
    s = ' fill="%s"' % fill
    if stroke:
        s += ' stroke="%s" stroke-width="%s"' % (stroke, n(sw))
    if op != 1:
        s += ' opacity="%s"' % n(op)
    return s + more


def rect(x, y, w, h, rx=0, fill='none', stroke=None, sw=.6, op=1):
    r = ' rx="%s"' % n(rx) if rx else ''
    return '<rect x="%s" y="%s" width="%s" height="%s"%s%s/>' % (n(x), n(y), n(w), n(h), r, attrs(fill, stroke, sw, op))


def circ(x, y, r, fill='none', stroke=None, sw=.6, op=1):
    return '<circle cx="%s" cy="%s" r="%s"%s/>' % (n(float(x)), n(float(y)), n(float(r)), attrs(fill, stroke, sw, op))


def path(d, fill='none', stroke=None, sw=.6, op=1, cap='butt', join='miter'):
    m = ''
    if stroke:
        m = ' stroke-linecap="%s" stroke-linejoin="%s"' % (cap, join)
    return '<path d="%s"%s/>' % (d, attrs(fill, stroke, sw, op, m))


def text(x, y, s, size=8, fill='#eef0ec', bold=True, anchor='middle'):
    return '<text x="%s" y="%s" font-family="DejaVu Sans Condensed" font-size="%s"%s fill="%s" text-anchor="%s">%s</text>' % (
        n(float(x)), n(float(y)), n(size), ' font-weight="bold"' if bold else '', fill, anchor, s)


def move(x, y, *what):
    return '<g transform="translate(%s %s)">%s</g>' % (n(float(x)), n(float(y)), ''.join(what))


def turn(a, x, y, *what):
    return '<g transform="translate(%s %s) rotate(%s)">%s</g>' % (n(float(x)), n(float(y)), n(float(a)), ''.join(what))


def shadow(x, y, w, h, rx, off):
    """Two layers to the lower right."""
    return (rect(x + off * .5, y + off * .5, w, h, rx, '#05140c', op=.28)
            + rect(x + off, y + off, w, h, rx, '#05140c', op=.26))


def shadowDisc(x, y, r, off):
    return circ(x + off * .5, y + off * .5, r, '#05140c', op=.28) + circ(x + off, y + off, r, '#05140c', op=.26)


def lightLine(x, y, w, h, rx, op=.35, sw=.6):
    """Light on the left and top edges, just inside of the outline."""
    i = .8
    return path('M%s %sV%sA%s %s 0 0 1 %s %sH%s' % (
        n(x + i), n(y + h - rx - .4), n(y + i + rx), n(rx), n(rx), n(x + i + rx), n(y + i), n(x + w - rx - .4)),
        'none', '#ffffff', sw, op, 'round')


def polar(cx, cy, r, deg):
    """A point at an angle counted clockwise from the top."""
    a = math.radians(deg)
    return cx + r * math.sin(a), cy - r * math.cos(a)


def pt(p):
    return '%s %s' % (n(float(p[0])), n(float(p[1])))


def strip(name, w, h, cells):
    body = ''
    for i, c in enumerate(cells):
        body += '<g id="image-%d"><g transform="translate(%d 0)">%s%s</g></g>\n' % (
            i + 1, i * w, rect(0, 0, w, h, 0, '#000000', op=0), c)
    defs = ''.join(GRAD[k] % k for k in GRAD if 'url(#%s)' % k in body)
    with open(os.path.join(OUT, name + '.svg'), 'w') as f:
        f.write('<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" '
                'width="%d" height="%d" viewBox="0 0 %d %d">\n<defs>%s</defs>\n%s</svg>\n' % (
                    w * len(cells), h, w * len(cells), h, defs, body))


def package(x, y, w, h, off=1.5, rx=1.5):
    return shadow(x, y, w, h, rx, off) + rect(x, y, w, h, rx, g('package'), '#0e1011', .7) + lightLine(x, y, w, h, rx * .8)


def legs(x0, pitch, count, y, length, across=True, w=2.0):
    s = ''
    for i in range(count):
        p = x0 + pitch * i - w / 2
        s += rect(p, y, w, length, .3, g('tin'), '#8d969b', .35) if across else rect(y, p, length, w, .3, g('tin'), '#8d969b', .35)
    return s


def header(rows, w, h):
    s = package(.6, .6, w - 2.2, h - 2.2)
    s += rect(3, 3, w - 7, h - 7, .8, g('well'), '#070808', .5)
    s += rect(w - 4.2, h / 2 - 4.3, 2.7, 7.4, 0, '#0c0d0e') + path('M%s %sv7.4' % (n(w - 4), n(h / 2 - 4.3)), 'none', '#17191b', .7)
    pitch = (h - 10.0) / rows
    m = (w - 1) / 2.0 - .1
    for i in range(rows):
        for x in (m - 3, m + 3):
            y = 4.4 + pitch * (i + .5) + .2
            s += rect(x - 1.5, y - 1.5, 3.2, 3.2, .3, '#000000', op=.6) + rect(x - 1.3, y - 1.3, 2.6, 2.6, .3, g('gold'), '#9a7420', .4)
    return s
