# SPDX-License-Identifier: Apache-2.0
"""The parts that all circuit diagrams are drawn with: wires, buses, chips and what hangs on their pins.

A sheet is 900 x 620 with a frame, a title row and notes at the foot. Coordinates are pixels; a part is placed by the point
where its wire comes in. Only what SVG Tiny can do is used, so that the build's renderer draws it as it stands.
"""
from kit.svg_kit import (CHIP, GOTHIC, INK, KNOB, LEVER, LIT_FILL, LIT_LINE, NARROW, NET, RED, SANS, SECOND, WHITE, Canvas,
                         circ, document, n, path, rect, text, through)

WIDTH, HEIGHT = 900, 620
WIRE, CHIP_LINE, BUS = 1.1, 1.7, 3.2


def is_japanese(words):
    return any(ord(letter) > 0x2fff or letter in '①②③④→…' for letter in words)


class Sheet(Canvas):
    def __init__(self):
        super().__init__()
        self.box(0, 0, WIDTH, HEIGHT, WHITE, None)

    def svg(self, width=WIDTH, height=HEIGHT):
        """The whole sheet, or its top left part."""
        return document(width, height, self.body())

    # --- lines and text --------------------------------------------------------------------------------------------------
    def path(self, d, colour=INK, weight=WIRE, fill='none', dash=None):
        self.add(path(d, fill, colour, weight, join='round', dash=dash))

    def wire(self, *points, colour=INK, weight=WIRE):
        """Through points, each (x, y)."""
        self.path(through(points), colour, weight)

    def bus(self, *points):
        self.path(through(points), NET, BUS)

    def bus_width(self, x, y, width, upright=False):
        """The stroke through a bus, with the number of its wires."""
        self.wire((x - 4, y + 5), (x + 4, y - 5), colour=NET, weight=1.3)
        if upright:
            self.text(x + 8, y + 4, str(width), 9, NET, bold=True)
        else:
            self.text(x, y + 15, str(width), 9, NET, 'middle', bold=True)

    def circle(self, x, y, r, fill=WHITE, line=INK, weight=1):
        self.add(circ(x, y, r, fill, line, weight))

    def dot(self, x, y):
        self.circle(x, y, 2.1, INK, None)

    def contact(self, x, y):
        self.circle(x, y, 1.7)

    def box(self, x, y, w, h, fill=CHIP, line=INK, weight=CHIP_LINE, radius=2, dash=None):
        self.add(rect(x, y, w, h, radius, fill, line, weight, dash=dash))

    def text(self, x, y, words, size=9, colour=INK, anchor='start', font=None, bold=False, up=False):
        turned = 'rotate(-90 %s %s)' % (n(x), n(y)) if up else None
        self.add(text(x, y, words, size, colour, bold, anchor, font or (GOTHIC if is_japanese(words) else NARROW), turned,
                      strikes=(.4,)))

    def note(self, x, y, words, anchor='start', colour=INK):
        self.text(x, y, words, 11, colour, anchor, GOTHIC)

    def net(self, x, y, name, anchor='start'):
        self.text(x, y, name, 9, NET, anchor, bold=True)

    def number(self, x, y, pin, anchor='start'):
        self.text(x, y, str(pin), 8.5, SECOND, anchor)

    # --- frame -----------------------------------------------------------------------------------------------------------
    def frame(self, chip, cells, notes):
        """`cells`: captions and values of the title row behind the chip's name, from x = 126 on; four or three."""
        self.box(8, 8, 884, 604, 'none', INK, 1.6, 0)
        self.wire((8, 34), (892, 34), weight=1.6)
        self.wire((8, 572), (892, 572), weight=1.2)
        self.text(16, 27, chip, 15, INK, 'start', SANS, True)
        self.text(23 + 11 * len(chip), 26, '接続図', 13.5)
        for (caption, value), left in zip(cells, (126, 406, 560, 716)):
            self.wire((left, 8), (left, 34), weight=1.2)
            self.text(left + 9, 26, caption, 11, SECOND)
            wide = 11 * len(caption) if is_japanese(caption) else 7 * len(caption)
            self.text(left + 16 + wide, 26.5, value, 12, INK, 'start',
                      GOTHIC if is_japanese(value) else SANS, True)
        for place, text in enumerate(notes):
            self.note(16 + 454 * (place // 2), 587 + 16 * (place % 2), '①②③④'[place] + ' ' + text)

    # --- supply ----------------------------------------------------------------------------------------------------------
    def vcc(self, x, y, left=5, right=5):
        """A supply bar with its wire going down from y to y + 6."""
        self.wire((x - left, y), (x + right, y), weight=1.5)
        self.wire((x, y), (x, y + 6))

    def gnd(self, x, y):
        self.wire((x, y), (x, y + 5))
        for half, down in ((6, 5), (4, 8), (2, 11)):
            self.wire((x - half, y + down), (x + half, y + down), weight=1.3)

    # --- two-legged parts, upright from (x, y1) to (x, y2) ----------------------------------------------------------------
    def resistor(self, x, y1, y2, label='', body=16, side=1):
        middle = (y1 + y2) / 2
        self.wire((x, y1), (x, middle - body / 2))
        self.wire((x, middle + body / 2), (x, y2))
        self.box(x - 3, middle - body / 2, 6, body, WHITE, INK, 1.1, 0)
        if label:
            self.text(x + 6 * side, middle + 3, label, 9, INK, 'start' if side > 0 else 'end')

    def resistor_across(self, x1, x2, y, label='', above=True):
        middle = (x1 + x2) / 2
        self.wire((x1, y), (middle - 8, y))
        self.wire((middle + 8, y), (x2, y))
        self.box(middle - 8, y - 3, 16, 6, WHITE, INK, 1.1, 0)
        if label:
            self.text(middle, y - 6 if above else y + 13, label, 9, INK, 'middle')

    def capacitor(self, x, y1, y2, label='', side=1):
        middle = (y1 + y2) / 2
        self.wire((x, y1), (x, middle - 2))
        self.wire((x, middle + 2), (x, y2))
        for y in (middle - 2, middle + 2):
            self.wire((x - 6, y), (x + 6, y), weight=1.4)
        if label:
            self.text(x + 9 * side, middle + 3, label, 9, INK, 'start' if side > 0 else 'end')

    def led(self, x, y1, y2, colours=(LIT_LINE, LIT_FILL)):
        """Lit by a current that flows downwards."""
        line, fill = colours
        middle = (y1 + y2) / 2
        self.wire((x, y1), (x, y2))
        self.path('M%s %s H%s L%s %s Z' % (n(x - 5), n(middle - 5), n(x + 5), n(x), n(middle + 4)), line, 1.2, fill)
        self.wire((x - 5, middle + 4.5), (x + 5, middle + 4.5), colour=line, weight=1.4)
        for shift in (0, 4):
            self.wire((x + 6, middle - 2 + shift), (x + 11, middle - 6 + shift), colour=line, weight=1)
            self.path('M%s %s l-3 .6 l2.2 2.4 Z' % (n(x + 11.5), n(middle - 6.4 + shift)), line, .8, line)

    def switch(self, x, y1, y2, colour=LEVER):
        """A slider switch, drawn open."""
        middle = (y1 + y2) / 2
        self.wire((x, y1), (x, middle - 9))
        self.wire((x, middle + 9), (x, y2))
        self.wire((x, middle + 6), (x + 7, middle - 6), colour=colour, weight=1.7)
        self.contact(x, middle - 7)
        self.contact(x, middle + 7)

    def push(self, x, y1, y2):
        middle = (y1 + y2) / 2
        self.wire((x, y1), (x, middle - 8))
        self.wire((x, middle + 8), (x, y2))
        self.contact(x, middle - 6)
        self.contact(x, middle + 6)
        self.wire((x + 4.5, middle - 8), (x + 4.5, middle + 8), weight=1.4)
        self.wire((x + 4.5, middle), (x + 9, middle), weight=1.4)
        self.wire((x + 9, middle - 3), (x + 9, middle + 3), weight=1.4)

    # --- parts of their own ----------------------------------------------------------------------------------------------
    def chip(self, x, y, w, h, name, sub='', size=12, fill=CHIP, at=.5):
        self.box(x, y, w, h, fill)
        self.text(x + w / 2, y + h * at, name, size, INK, 'middle', SANS, True)
        if sub:
            self.text(x + w / 2, y + h * at + size * .75 + 3, sub, 9.5, SECOND, 'middle')

    def left_pin(self, x, y, name, number, wire_from=None, net=''):
        """A pin on the left side of a chip whose edge is at x, with its wire from further left."""
        if wire_from is not None:
            self.wire((wire_from, y), (x, y))
        self.text(x + 4, y + 3.5, name, 9.5, INK, 'start', SANS)
        self.number(x - 3, y - 3, number, 'end')
        if net:
            self.net(x - 17, y - 3, net, 'end')

    def right_pin(self, x, y, name, number, wire_to=None, net='', net_at=58):
        if wire_to is not None:
            self.wire((x, y), (wire_to, y))
        self.text(x - 4, y + 3.5, name, 9.5, INK, 'end', SANS)
        self.number(x + 3, y - 3, number)
        if net:
            self.net(x + net_at, y - 3, net)

    def bottom_pin(self, x, y, name, number):
        self.text(x + 3.5, y - 4, name, 9.5, INK, 'start', SANS, up=True)
        if '-' in str(number):  # of a bus: beside it, on the side of its port
            leftwards = not name.startswith('DO')
            self.text(x - 5 if leftwards else x + 5, y + 10, number, 8.5, SECOND, 'end' if leftwards else 'start')
        else:
            self.text(x - 4, y + 4, str(number), 8.5, SECOND, 'end', up=True)

    def connector(self, x, y, w, h, name, pins, side=1):
        """`pins`: (y, number) along the right edge, or the left one."""
        self.box(x, y, w, h, WHITE)
        self.text(x + (11 if side > 0 else w - 5), y + h / 2, name, 9, INK, 'middle', None, True, up=True)
        for pin_y, number in pins:
            self.number(x + w - 4 if side > 0 else x + 4, pin_y + 3, number, 'end' if side > 0 else 'start')

    def coil(self, x, y1, y2, bulge):
        quarter = (y2 - y1) / 4
        d = 'M%s %s' % (n(x), n(y1))
        for _ in range(4):
            d += ' c%s 0 %s %s 0 %s' % (n(7 * bulge), n(7 * bulge), n(quarter), n(quarter))
        self.path(d, INK, 1.3)

    def transformer(self, x, y1, y2, name, part='QPT770-Z'):
        """Windings at x and x + 28."""
        self.coil(x, y1, y2, 1)
        self.coil(x + 28, y1, y2, -1)
        for core in (11.5, 16.5):
            self.wire((x + core, y1), (x + core, y2), weight=1.2)
        for dot in (-4, 32):
            self.circle(x + dot, y1 + 6, 1.6, INK, None)
        self.text(x + 14, y1 - 5, name, 9, INK, 'middle')
        self.text(x + 14, y2 + 13, part, 9, INK, 'middle')

    def rotary(self, x, y, name, where, pins):
        """A rotary switch 48 x 56; `pins` the (y, weight) of its wires, from the right edge; C goes to the supply."""
        self.box(x, y, 48, 56, WHITE)
        self.circle(x + 19, y + 24, 10, KNOB)
        self.path('M%s %s v-12 m-3.5 4 l3.5 -4.5 l3.5 4.5' % (n(x + 19), n(y + 30)), RED, 1.4)
        self.text(x + 2, y + 51, name, 8.5, INK, 'start', None, True)
        self.text(x + 23, y + 51, where, 8, INK)
        for pin_y, weight in pins:
            self.number(x + 45, pin_y + 3, weight, 'end')
        self.wire((x - 16, y + 20), (x - 16, y + 24), (x, y + 24))
        self.wire((x - 21, y + 20), (x - 11, y + 20), weight=1.5)
        self.number(x - 4, y + 21, 'C', 'end')

    def test_point(self, x, y, name):
        self.circle(x + 3, y, 2.8, weight=1.4)
        self.text(x + 10, y + 3, name, 9)

    def pulse(self, x, y, falling=False):
        """The shape of a strobe: the polarity that is printed on the card."""
        high, low = (y - 4, y + 4) if not falling else (y + 4, y - 4)
        self.wire((x, low), (x + 5, low), (x + 5, high), (x + 14, high), (x + 14, low), (x + 19, low), colour=NET, weight=1.3)
