# SPDX-License-Identifier: Apache-2.0
"""What the pages of the register hints are made of: header, row of bits, cards, tables, the box to try, refusals and legend.

A page is 620 x 460. Hexadecimal numbers in a text ("0004H") come out bold in the fixed font, and *stars* make a text bold.
"""
import re
from xml.sax.saxutils import escape

from kit.svg_kit import (CARD, CARD_LINE, DULL, FAINT, GOTHIC, GREEN, GREEN_LINE, HATCH, INK, KEPT, MONO, NEVER, ON_GREEN,
                         PALE_GREEN, POPUP, POPUP_LINE, RED, RED_LINE, SANS, SCAN, SECOND, TRY, TRY_INK, TRY_LINE, WHITE, YOURS,
                         ZEBRA, Canvas, circ, document, element, line, path, rect, spans, text)

WIDTH, HEIGHT = 620, 460
MARGIN = 18
INNER = WIDTH - 2 * MARGIN

# Who writes a bit: fill, line, ink.
WRITERS = {'you': YOURS, 'scan': SCAN, 'zero': NEVER, 'kept': KEPT}

BIT_WIDTH, BIT_HEIGHT = 31, 24
BIT_LEFT, BYTE_GAP = 84, 12
BITS_TOP = 67


def bit_x(bit):
    """The left edge of a bit's box."""
    return BIT_LEFT + (15 - bit) * BIT_WIDTH + (BYTE_GAP if bit < 8 else 0)


def runs(words, size):
    """A text with its numbers, and its bold names of bits, as runs of one line."""
    parts = []
    for bold, plain, number in re.findall(r'\*([^*]+)\*|((?:(?![0-9A-Fx]{2,4}H(?![A-Za-z0-9]))[^*])+)|([0-9A-Fx]{2,4}H)', words):
        if number or bold.isascii() and bold:
            parts.append(span(number or bold, MONO, size - .5, True))
        else:
            parts.append(span(bold or plain))
    return ''.join(parts)


def span(words, family=None, size=None, bold=False):
    return element('tspan', escape(words), font_family=family, font_weight='bold' if bold else None, font_size=size)


class Page(Canvas):
    def __init__(self, name, title, right=()):
        """`name` large, `title` behind it, `right` the pairs of words and value at the right edge of the header."""
        super().__init__()
        self.rect(0, 0, WIDTH, HEIGHT, WHITE)
        self.rect(0, 0, WIDTH, 36, GREEN)
        if name:
            self.add(spans(MARGIN, 26, span(name, bold=True) + span('　' + title, GOTHIC, 17), 21, WHITE, False, 'start', SANS))
        else:
            self.text(MARGIN, 26, title, 20, WHITE)
        for place, (words, value) in enumerate(reversed(right)):
            self.add(spans(WIDTH - MARGIN - 116 * place, 24, escape(words) + ' ' + element(
                'tspan', escape(value), font_family=MONO, font_weight='bold', fill=WHITE), 13, ON_GREEN, False, 'end', GOTHIC))

    # --- shapes ------------------------------------------------------------------------------------------------------
    def rect(self, x, y, w, h, fill, line=None, radius=0, weight=1):
        if line:
            x, y = x + .5, y + .5
        self.add(rect(x, y, w, h, radius, fill, line, weight))

    def line(self, x1, y1, x2, y2, colour=CARD_LINE, weight=1):
        self.add(line(x1 + .5, y1 + .5, x2 + .5, y2 + .5, colour, weight))

    def path(self, d, colour=INK, weight=1.2, fill='none'):
        self.add(path(d, fill, colour, weight))

    def arrow(self, x1, y, x2, colour=SECOND):
        """From left to right, or the other way round."""
        back = -5 if x2 > x1 else 5
        self.path('M%s %s H%s' % (x1, y, x2), colour, 1.4)
        self.path('M%s %s L%s %s L%s %s Z' % (x2, y, x2 + back, y - 3.5, x2 + back, y + 3.5), colour, 1, colour)

    def text(self, x, y, words, size=13, colour=INK, anchor='start', font=GOTHIC, bold=False):
        """A line of Japanese that is in stars as a whole is bold."""
        if font == GOTHIC:
            starred = bool(re.fullmatch(r'\*[^*]+\*', words))
            self.add(spans(x, y, runs(words, size), size, colour, starred, anchor, GOTHIC))
        else:
            self.add(text(x, y, words, size, colour, bold, anchor, font))

    def note(self, y, head, text, width=76):
        """A remark with a bold word before it."""
        self.text(MARGIN, y, '*%s*' % head, 12.5)
        self.text(MARGIN + width, y, text, 12.5)

    def hatch(self, x, y, w, h):
        """Grey must read without colour too."""
        for start in range(-int(h), int(w), 6):
            x1, x2 = max(x, x + start), min(x + w, x + start + h)
            self.add(line(x1, y + h - (x1 - x - start), x2, y + h - (x2 - x - start), HATCH, 2))

    # --- the row of bits ----------------------------------------------------------------------------------------------
    def bits(self, names, high, low):
        """`names` from bit 15 to bit 0, each a pair of name and writer; `high` and `low` the captions of the bytes."""
        for caption, bit in ((high, 15), (low, 7)):
            left, right = bit_x(bit), bit_x(bit) + 8 * BIT_WIDTH
            middle = (left + right) / 2
            half = 4 + 3.6 * len(caption.encode('shift_jis'))
            for x1, x2, edge in ((left, middle - half, left), (middle + half, right, right)):
                self.line(x1, 48, x2, 48, FAINT)
                self.line(edge, 48, edge, 52, FAINT)
            self.text(middle, 52, caption, 12.5, SECOND, 'middle')
        self.text(24, BITS_TOP + 17, 'ビット', 12.5, SECOND)
        for bit, (name, writer) in zip(range(15, -1, -1), names):
            x = bit_x(bit)
            fill, line, ink = WRITERS[writer]
            self.text(x + BIT_WIDTH / 2, BITS_TOP - 4, str(bit), 11, SECOND, 'middle', MONO)
            self.rect(x, BITS_TOP, BIT_WIDTH, BIT_HEIGHT, fill)
            if writer == 'zero':
                self.hatch(x, BITS_TOP, BIT_WIDTH, BIT_HEIGHT)
            self.rect(x, BITS_TOP, BIT_WIDTH, BIT_HEIGHT, 'none', line)
            self.text(x + BIT_WIDTH / 2 + .5, BITS_TOP + 17, name, 13 if len(name) < 3 else 11, ink, 'middle', MONO,
                      writer != 'zero')

    def example(self, value):
        """A value as bits, under the boxes."""
        top = BITS_TOP + BIT_HEIGHT + 4
        self.rect(MARGIN, top, INNER, 18, TRY, TRY_LINE, 3)
        self.text(24, top + 14, '例', 12.5, TRY_INK)
        self.text(40, top + 14, value, 12, INK, 'start', MONO, True)
        for bit in range(16):
            one = int(value[:4], 16) >> bit & 1
            self.text(bit_x(bit) + BIT_WIDTH / 2, top + 14, str(one), 13, INK if one else DULL, 'middle', MONO, bool(one))

    def writers(self, spans):
        """Who writes which bits: (first bit, last bit, text, writer)."""
        top = BITS_TOP + BIT_HEIGHT + 26
        self.text(24, top + 13, '書く人', 12.5, SECOND)
        for first, last, text, writer in spans:
            left, right = bit_x(first), bit_x(last) + BIT_WIDTH
            fill, line, ink = WRITERS[writer]
            if writer != 'zero':
                self.rect(left, top, right - left, 17, fill, line, 3)
            self.text((left + right) / 2, top + 13, text, 12, ink if writer != 'zero' else SECOND, 'middle')

    # --- blocks --------------------------------------------------------------------------------------------------------
    def card(self, x, y, w, lines, badge=None, title='', writer='you', height=None, pitch=17):
        """A card with a badge and title, and lines below. Returns the y below it."""
        h = height or 14 + (24 if title else 0) + pitch * len(lines)
        self.rect(x, y, w, h, CARD, CARD_LINE, 4)
        below = y + 20
        if title:
            left = x + 12
            if badge:
                fill, line, ink = WRITERS[writer]
                wide = 14 + 8 * len(badge)
                self.rect(x + 10, y + 8, wide, 18, fill, line, 3)
                self.text(x + 10.5 + wide / 2, y + 22, badge, 12.5, ink, 'middle', MONO, True)
                left = x + 18 + wide
            self.text(left, y + 22, '*%s*' % title, 13.5)
            below = y + 42
        for number, text in enumerate(lines):
            self.text(x + 12, below + pitch * number, text, 12.5)
        return y + h

    def try_it(self, y, lines, pitch=18):
        h = 10 + pitch * len(lines)
        self.rect(MARGIN, y, INNER, h, TRY, TRY_LINE, 4)
        self.text(MARGIN + 12, y + 18, '*やってみよう*', 12.5, TRY_INK)
        for number, text in enumerate(lines):
            self.text(MARGIN + 12 + (0 if number else 90), y + 18 + pitch * number, text, 12.5)
        return y + h

    def refusals(self, y, heading, remark, rows, message=None, pitch=18):
        """Numbered reasons with an example each, and the words that the program answers."""
        self.text(MARGIN, y + 12, '*%s*' % heading, 13.5, RED)
        if remark:
            self.text(MARGIN + 164, y + 12, remark, 12, SECOND)
        for number, (text, sample) in enumerate(rows, 1):
            base = y + 13 + pitch * number
            self.add(circ(MARGIN + 8, base - 4.5, 7.5, WHITE, RED, 1.2))
            self.text(MARGIN + 8, base - .5, str(number), 10.5, RED, 'middle', SANS, True)
            self.text(MARGIN + 24, base, text, 12.5)
            if sample:
                self.text(392, base, sample, 12, INK, 'end', MONO)
        foot = y + 13 + pitch * len(rows) + 6
        if message:
            top = y + 18
            self.path('M400 %s q5 0 5 5 V%s q0 5 5 5 q-5 0 -5 5 V%s q0 5 -5 5' % (
                top, (top + foot) / 2 - 5, foot - 5), RED_LINE, 1.4)
            self.popup(418, (top + foot) / 2 - (11 + 9 * (len(message) - 1)), 184, message)
        return foot

    def popup(self, x, y, w, lines):
        self.rect(x, y, w, 8 + 17 * len(lines), POPUP, POPUP_LINE, 3)
        for number, text in enumerate(lines):
            self.text(x + 10, y + 17 + 17 * number, text, 12)

    def table(self, x, y, widths, rows, heading=None, pitch=17, size=12):
        """Rows of texts in columns, zebra; the heading in the program's green."""
        total = sum(widths)
        if heading:
            self.rect(x, y, total, pitch + 1, PALE_GREEN, GREEN_LINE)
            self.cells(x, y + pitch - 4, widths, heading, size - .5, GREEN)
            y += pitch + 1
        for number, row in enumerate(rows):
            if number % 2:
                self.rect(x, y, total, pitch, ZEBRA)
            self.cells(x, y + pitch - 4.5, widths, row, size, INK)
            y += pitch
        self.line(x, y, x + total, y)
        return y

    def cells(self, x, y, widths, row, size, colour):
        for text, width in zip(row, widths):
            self.text(x + 6, y, text, size, colour)
            x += width

    def legend(self, items, remark='', **others):
        """The foot of the page: what the colours say, in `others` where a page needs other words. The tour window covers it on a
        small screen."""
        self.rect(0, 430, WIDTH, 30, CARD)
        self.line(0, 429, WIDTH, 429)
        words = {'you': 'あなたが書く', 'scan': 'スキャンが書く', 'zero': 'いつも0', 'kept': 'そのまま残る', **others}
        x = MARGIN
        for writer in items:
            fill, line, _ = WRITERS[writer]
            self.rect(x, 438, 14, 13, fill)
            if writer == 'zero':
                self.hatch(x, 438, 14, 13)
            self.rect(x, 438, 14, 13, 'none', line, 2)
            self.text(x + 20, 450, words[writer], 12.5, SECOND)
            x += 32 + 13 * len(words[writer])
        if remark:
            self.text(WIDTH - MARGIN, 450, remark, 12.5, SECOND, 'end')

    def svg(self):
        return document(WIDTH, HEIGHT, self.body())
