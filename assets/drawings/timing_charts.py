# SPDX-License-Identifier: Apache-2.0
"""The eight timing charts of the port strobes.

All charts show the same visit on the same grid: the center's frame, the DO update, the reaction of the outside circuit,
the board's answer. Only what the two setting switches change differs: SSA moves the capture of DI from before the DO
update to after it, SSB adds the handshake line. Without the handshake its place shows what a failed visit costs.
"""
from kit.svg_kit import (AXIS, BLUE_EDGE, GOTHIC, GREEN, GRID, INK, MONO, NEVER, PALE_GREEN, RED, SANS, SCAN, SECOND, STEEL,
                         STRAP, TRY, TRY_LINE, WHITE, YOURS, Canvas, circ, line, path, rect, strip, text, through)

CELL_WIDTH, CELL_HEIGHT = 640, 360

INPUT_PALE, INPUT_EDGE, INPUT = YOURS
HANDSHAKE = SCAN[2]

# Time, in pixels from the left edge of the cell; the grid has a line every 20.
BEGIN, END = 122, 626
FRAME, CAPTURE_EARLY, DO_UPDATE = 142, 202, 302
REACTION, CAPTURE_LATE, ANSWER, RECEIPT = 342, 382, 462, 582
ANSWER_DATA = 496
STROBE = 20

FIRST_ROW, ROW_PITCH, HALF = 84, 31, 8.5
LINE, DO_PINS, DO_STROBE, DI_PINS, DI_STROBE, LATCH, EXTRA = (FIRST_ROW + ROW_PITCH * n for n in range(7))
SLOPE = 4
GRID_TOP = 62
FOOT_TOP, FOOT_BOTTOM = 293, 353


class Drawing(Canvas):
    """One chart."""

    def text(self, x, y, words, size=12, fill=INK, family=GOTHIC, anchor='start', bold=False):
        self.add(text(x, y, words, size, fill, bold, anchor, family, strikes=(size * .03, size * .06)))

    def line(self, x1, y1, x2, y2, color, width=1, dash=None):
        self.add(line(x1, y1, x2, y2, color, width, dash))

    def box(self, x1, y1, x2, y2, fill, edge, width=1, radius=0):
        self.add(rect(x1, y1, x2 - x1, y2 - y1, radius, fill, edge, width))

    def path(self, points, color, width=1.6, fill='none', closed=False):
        self.add(path(through(points, closed), fill, color, width, join='round'))

    def numbered(self, x, y, number, filled):
        self.add(circ(x, y, 9, RED if filled else WHITE, RED if filled else SECOND, 1.2))
        self.text(x, y + 4.2, str(number), 11.5, WHITE if filled else SECOND, SANS, 'middle', bold=True)

    def arrow_down(self, x, y1, y2, color):
        self.line(x, y1, x, y2 - 4, color, 1.2)
        self.path([(x - 3, y2 - 6), (x, y2), (x + 3, y2 - 6)], color, 0.6, fill=color, closed=True)


def slider(drawing, x, y, up):
    """The setting switch as it stands on the cards: up is 1."""
    drawing.box(x, y, x + 13, y + 22, STRAP, BLUE_EDGE, 0.8, 1.5)
    drawing.box(x + 3, y + 3, x + 10, y + 19, BLUE_EDGE, 'none')
    top = y + 3.5 if up else y + 11
    drawing.box(x + 3.5, top, x + 9.5, top + 7.5, WHITE, STEEL, 0.6, 0.8)


def header(drawing, number, ssa, ssb, chips):
    drawing.add(rect(0, 0, CELL_WIDTH, 34, fill=GREEN))
    drawing.text(14, 23, f'図 {number}', 17, WHITE, bold=True)
    for x, name, up, meaning in (
            (78, 'SSA', ssa, 'DO更新の後に取り込む' if ssa else 'DO更新の前に取り込む'),
            (318, 'SSB', ssb, 'ハンドシェークあり' if ssb else 'ハンドシェークなし')):
        drawing.text(x, 21.5, name, 12, WHITE, SANS, bold=True)
        slider(drawing, x + 32, 6, up)
        drawing.text(x + 51, 21.5, str(up), 12.5, WHITE, MONO, bold=True)
        drawing.text(x + 69, 22, meaning, 13, PALE_GREEN)
    drawing.text(END, 22, chips, 12.5, PALE_GREEN, anchor='end')


def row_label(drawing, y, name, note, color, family=SANS):
    drawing.text(14, y + 0.5, name, 12.5, color, family, bold=True)
    drawing.text(14, y + 13, note, 12, SECOND)


def bus_ground(drawing, y, change, before, after):
    """The fill of a bus ahead of its change and behind it; it covers the dashed lines under the values."""
    top, bottom = y - HALF, y + HALF
    for edge, side, fill in ((BEGIN, -SLOPE, before), (END, SLOPE, after)):
        drawing.path([(edge, top), (change + side, top), (change, y), (change + side, bottom), (edge, bottom)],
                     'none', 0, fill=fill, closed=True)


def bus(drawing, y, change, color, *values):
    """Two levels that cross at the change; the values are (x, words)."""
    for start, end in ((y - HALF, y + HALF), (y + HALF, y - HALF)):
        drawing.path([(BEGIN, start), (change - SLOPE, start), (change + SLOPE, end), (END, end)], color)
    for x, words in values:
        drawing.text(x, y + 4.6, words, 12.5, color, anchor='middle')


def pulse(drawing, y, start, end, rest, color):
    """A line that rests at 0 or 1 and leaves that level from start to end."""
    low, high = y + HALF, y - HALF
    level, other = (high, low) if rest else (low, high)
    drawing.path([(BEGIN, level), (start, level), (start, other), (end, other), (end, level), (END, level)], color)


def frame(drawing, y, bounds, names, fill, edge, ink):
    for left, right, name in zip(bounds, bounds[1:], names):
        drawing.box(left, y - HALF, right, y + HALF, fill, edge)
        drawing.text((left + right) / 2, y + 4.4, name, 12, ink, anchor='middle')


def grid(drawing, bottom):
    for x in range(BEGIN, END + 1, 20):
        drawing.line(x, GRID_TOP, x, bottom, GRID)
    drawing.line(114, GRID_TOP, 114, bottom, AXIS)


def grounds(drawing, capture, word):
    bus_ground(drawing, DO_PINS, DO_UPDATE, WHITE, PALE_GREEN)
    bus_ground(drawing, DI_PINS, REACTION, *((INPUT_PALE, WHITE) if word == 'A' else (WHITE, INPUT_PALE)))
    bus_ground(drawing, LATCH, capture, WHITE, INPUT_PALE)


def instants(drawing, capture, word, bottom):
    """The dashed lines lie under the buses, the line of the capture runs over them."""
    drawing.text(14, 54, '時間 →', 12, SECOND)
    named = sorted([(capture, '取り込み'), (DO_UPDATE, 'DO更新'), (ANSWER, '返事の開始'), (RECEIPT, '受領')])
    for x, _ in named:
        if x != capture:
            drawing.line(x, 59, x, bottom, SECOND, 0.9, '5 3')
    grounds(drawing, capture, word)
    drawing.line(capture, 59, capture, bottom, RED, 1.6)
    for number, (x, name) in enumerate(named, start=1):
        chosen = x == capture
        drawing.numbered(x, 50, number, chosen)
        drawing.text(x + 13, 54.5, name, 12.5, RED if chosen else SECOND, bold=chosen)


def waveforms(drawing, capture, word, strobe_notes):
    row_label(drawing, LINE, '回線', '1回の訪問', INK, GOTHIC)
    drawing.line(BEGIN, LINE, END, LINE, SECOND, 1.2)
    frame(drawing, LINE, (FRAME, CAPTURE_EARLY, DO_UPDATE), ('SA', 'DO'), NEVER[0], SECOND, INK)
    frame(drawing, LINE, (ANSWER, ANSWER_DATA, RECEIPT), ('SA', f'DI = {word}'),
          INPUT_PALE, INPUT_EDGE, INPUT)
    drawing.text(DO_UPDATE - 4, LINE + 19.5, 'センター → ボード', 11, SECOND, anchor='end')
    drawing.text(ANSWER + 6, LINE + 19.5, 'ボード → センター', 11, INPUT)

    row_label(drawing, DO_PINS, 'DO15-0', '出力ピン', GREEN)
    bus(drawing, DO_PINS, DO_UPDATE, GREEN, (252, '前の値'), (522, '新しい DO'))

    row_label(drawing, DO_STROBE, 'DO STB', strobe_notes[0], GREEN)
    pulse(drawing, DO_STROBE, DO_UPDATE, DO_UPDATE + STROBE, 0, GREEN)
    drawing.text(DO_UPDATE - 7, DO_STROBE + 4, 'DO更新 ↑', 12, GREEN, anchor='end')

    row_label(drawing, DI_PINS, 'DI15-0', '入力ピン', INPUT)
    bus(drawing, DI_PINS, REACTION, INPUT,
        *([(162, 'A'), (522, 'B（次の訪問で取り込む）')] if word == 'A' else [(232, 'A')]))
    drawing.add(circ(capture, DI_PINS, 4.2, RED, WHITE, 1.2))
    drawing.text(capture + 9, DI_PINS + 4.6, f'この瞬間の値 {word}', 12.5, RED)
    drawing.arrow_down(REACTION, DO_PINS + HALF + 2, DI_PINS - HALF - 1, SECOND)
    drawing.text(REACTION + 6, DO_STROBE + 3, '反応', 12, SECOND)

    row_label(drawing, DI_STROBE, 'DI STB', strobe_notes[1], INPUT)
    pulse(drawing, DI_STROBE, capture, capture + STROBE, 1, INPUT)
    drawing.text(capture - 7, DI_STROBE + 5, '取り込み ↓', 12, RED, anchor='end')

    row_label(drawing, LATCH, 'DIラッチ', '返すワード', INPUT, GOTHIC)
    bus(drawing, LATCH, capture, INPUT, ((BEGIN + capture) / 2, '前のワード'), (522, word))


def handshake(drawing, capture, word):
    row_label(drawing, EXTRA, 'HS', 'ハンドシェーク', HANDSHAKE)
    pulse(drawing, EXTRA, capture, RECEIPT, 0, HANDSHAKE)
    drawing.text(capture - 7, EXTRA + 4, '保持 ↑', 12, HANDSHAKE, anchor='end')
    drawing.text((ANSWER + RECEIPT) / 2, EXTRA + 5.5, f'ワード {word} を保つ', 12, HANDSHAKE, anchor='middle')
    drawing.text(END, EXTRA + 4, '↓ 受領', 12, HANDSHAKE, anchor='end')


def lost_word(drawing):
    """Three visits to one station in the place of the handshake line, on a time of their own."""
    y = EXTRA + 0.5
    drawing.text(14, y + 0.5, '失敗のあと', 12.5, INK, bold=True)
    drawing.text(14, y + 13, '訪問3回の流れ', 12, SECOND)
    for left, right, words, fill, edge, ink in (
            (122, 262, '訪問が失敗', WHITE, RED, RED),
            (289, 444, '成功：DI は捨てられる', NEVER[0], SECOND, SECOND),
            (471, 626, '続けて成功：DI が届く', INPUT_PALE, INPUT_EDGE, INPUT)):
        drawing.box(left, y - 9.5, right, y + 9.5, fill, edge, 1, 3)
        drawing.text((left + right) / 2, y + 4.5, words, 12.5, ink, anchor='middle')
        if right < END:
            drawing.line(right + 5, y, right + 18, y, SECOND, 1.2)
            drawing.path([(right + 16, y - 3), (right + 22, y), (right + 16, y + 3)], SECOND, 0.6,
                         fill=SECOND, closed=True)


def foot(drawing, ssa, ssb, word):
    drawing.box(14, FOOT_TOP, END, FOOT_BOTTOM, TRY, TRY_LINE, 1, 4)
    timing = ('DO を更新した後に取り込む。新しい DO に応じた値 B が、同じ訪問のうちに届く。' if ssa else
              'DO が変わる前の値 A を取り込む。新しい DO に応じた値 B が届くのは、次の訪問になる。')
    shake = (f'センターが受け取るまでワード {word} を保つ。失敗のあとでも、最初に成功した訪問の DI が届く。' if ssb else
             '失敗のあと最初に成功した訪問の DI は捨てられ、続けて成功した次の訪問で届く。')
    drawing.text(26, FOOT_TOP + 18, timing, 13)
    drawing.text(26, FOOT_TOP + 35.5, shake, 13)
    drawing.text(26, FOOT_TOP + 52.5, 'SSA の違いが出るのは実物だけ。シミュレータは1回の訪問を一瞬で済ませるので、'
                 'SSA を変えても結果は同じ。', 12, SECOND)


def chart(number):
    ssa, ssb, is73 = (number - 1) & 1, (number - 1) >> 1 & 1, number > 4
    capture, word = (CAPTURE_LATE, 'B') if ssa else (CAPTURE_EARLY, 'A')
    drawing = Drawing()
    drawing.add(rect(0, 0, CELL_WIDTH, CELL_HEIGHT, fill=WHITE))
    header(drawing, number, ssa, ssb, 'QDA73' if is73 else 'QDA41・QDA52')
    bottom = (EXTRA if ssb else LATCH) + HALF
    grid(drawing, bottom)
    instants(drawing, capture, word, bottom)
    waveforms(drawing, capture, word, ('DOの更新', 'DIの取り込み') if is73 else ('QDA52: STB1', 'QDA52: STB2'))
    if ssb:
        handshake(drawing, capture, word)
    else:
        lost_word(drawing)
    foot(drawing, ssa, ssb, word)
    return drawing.body()


def draw():
    return {'ilsOsiro.svg': strip(CELL_WIDTH, CELL_HEIGHT, [chart(number) for number in range(1, 9)])}
