# SPDX-License-Identifier: Apache-2.0
"""The four sheets of the center board: 16 or 8 bits of host bus, full or half duplex."""
from diagrams import blocks
from diagrams.blocks import CHIP_LEFT, CHIP_RIGHT, CHIP_TOP, FULL, HALF
from diagrams.schematic import Sheet
from kit.svg_kit import (CHIP, FAINT, GREEN, GREEN_LINE, INK, LIT_FILL, LIT_LINE, NET, PALE_RED, RED, SANS, SECOND, SHEET_GREEN,
                         SMALL_CHIP, STRAP, WHITE, YOURS)

CHIP_FOOT = 440
# Of the two ports: the top of the block, and what differs in names and numbers.
PORTS = ((52, 'CN1', 'RXD1', 'U2', ('T1', 'T2'), 1), (150, 'CN2', 'RXD2', 'U3', ('T3', 'T4'), 2))


def port(sheet, half, top, connector, signal, chip, transformers, pin):
    """One of the two places for the line's cable: connector, transformers, transceiver."""
    # Full duplex crosses here: the center sends on the pair on which the boards receive. Half duplex has the one pair, and its
    # transformer, that the center sends on.
    numbers = (1, 2, 3, 4, 5, 6) if half else (3, 4, 1, 2, 5, 6)
    receiving, sending = transformers
    pins = [(top + 16 + 13 * place, number) for place, number in enumerate(numbers)]
    sheet.connector(24, top + 6, 30, 86, connector, pins)
    names = ['D+', 'D−', '', '', 'FG', ''] if half else ['RX+', 'RX−', 'TX+', 'TX−', 'FG', '']
    for (y, _), name in zip(pins, names):
        if name:
            sheet.net(57, y - 2, name)
    receive, send = (top + 16, top + 40), (top + 58, top + 82)
    # Each turns left of the one above it, so that no two run side by side.
    wires = [(0, receive[0], 90), (1, receive[1], 96)]
    if not half:
        wires += [(2, send[0], 90), (3, send[1], 84)]
    for place, y, x in wires:
        sheet.wire((54, pins[place][0]), (x, pins[place][0]), (x, y), (222, y))
    sheet.wire((54, pins[4][0]), (74, pins[4][0]), (74, pins[5][0]))
    sheet.wire((54, pins[5][0]), (74, pins[5][0]), (74, pins[5][0] + 3))
    for x in (68, 74, 80):
        sheet.wire((x - 4, pins[5][0] + 8), (x, pins[5][0] + 3), weight=1.2)
    sheet.wire((68, pins[5][0] + 3), (80, pins[5][0] + 3), weight=1.2)
    pair(sheet, receive, sending if half else receiving, ('RA', 'RB'))
    if half:
        for y, driver, x in ((receive[0], send[0], 288), (receive[1], send[1], 280)):
            sheet.dot(x, y)
            sheet.wire((x, y), (x, driver))
            sheet.resistor_across(x, 312, driver)
            sheet.text((x + 312) / 2, driver + 13, '22', 9, INK, 'middle')
        sheet.box(206, send[0] - 2, 58, 26, 'none', FAINT, 1, 3, '3 3')
        sheet.text(235, send[0] + 15, receiving + ' 未実装', 8.5, FAINT, 'middle')
    else:
        pair(sheet, send, sending, ('TA', 'TB'))
    sheet.box(312, top + 6, 46, 88, WHITE)
    sheet.text(335, top + 73, chip + ' TRX', 9, INK, 'middle', None, True)
    for y, name in zip(receive + send, 'ABYZ'):
        sheet.text(316, y + 3.5, name, 9, INK, 'start', SANS)
    for y, name in ((top + 16, 'RO'), (top + 34, '#RE'), (top + 58, 'DE'), (top + 82, 'DI')):
        sheet.text(354, y + 3.5, name, 9, INK, 'end', SANS)
    pin_y = {1: 86, 2: top + 16}[pin]
    sheet.wire((358, top + 16), (412, top + 16), (412, pin_y), (CHIP_LEFT, pin_y))
    sheet.left_pin(CHIP_LEFT, pin_y, signal, pin)
    sheet.net(374, top + 13, signal)


def pair(sheet, rows, name, nets):
    top, foot = rows
    sheet.resistor(120, top, foot, '', 14)
    sheet.dot(120, top)
    sheet.dot(120, foot)
    sheet.text(127, (top + foot) / 2 + 3, 'Rt 100', 9)
    sheet.coil(222, top, foot, 1)
    sheet.coil(250, top, foot, -1)
    for core in (233.5, 238.5):
        sheet.wire((core, top), (core, foot), weight=1.2)
    sheet.text(212, (top + foot) / 2 + 3, name, 9, INK, 'end')
    middle = (top + foot) / 2
    sheet.wire((250, middle), (258, middle))
    sheet.net(260, middle + 3, 'VB')
    for y, net in zip(rows, nets):
        sheet.wire((250, y), (312, y))
        sheet.net(294, y - 2, net)


def line_section(sheet, half):
    sheet.box(14, 40, 392, 216, SHEET_GREEN, GREEN_LINE, 1, 4, '5 3')
    for row in PORTS:
        port(sheet, half, *row)
    # Both transceivers send together; one jumper decides for both whether they hear while sending.
    sheet.wire((358, 110), (CHIP_LEFT, 110))
    sheet.wire((358, 134), (CHIP_LEFT, 134))
    sheet.wire((358, 208), (432, 208), (432, 110))
    sheet.wire((358, 232), (424, 232), (424, 134))
    sheet.dot(432, 110)
    sheet.dot(424, 134)
    sheet.left_pin(CHIP_LEFT, 110, 'TXE', 3)
    sheet.left_pin(CHIP_LEFT, 134, 'TXD', 4)
    sheet.net(382, 107, 'TXE')
    sheet.net(382, 131, 'TXD')
    sheet.wire((358, 86), (366, 86), (366, 188))
    sheet.wire((358, 184), (366, 184))
    sheet.dot(366, 184)
    sheet.wire((366, 188), (382, 188))
    for number, y in enumerate((176, 188, 200), 1):
        sheet.box(379, y - 3, 6, 6, WHITE, INK, 1, 0)
        sheet.number(374, y - 2 if number == 2 else y + 3, number, 'end')
    sheet.box(376.5, 182.5 if half else 170.5, 11, 23, 'none', STRAP, 1.8, 2.5)
    sheet.wire((385, 176), (397, 176))
    sheet.gnd(397, 176)
    sheet.wire((385, 200), (432, 200))
    sheet.dot(432, 200)
    sheet.text(361, 221, 'JP1', 9, INK)
    sheet.text(378, 221, 'JMP-H' if half else 'JMP-F', 9, NET, bold=True)
    sheet.text(20, 252, '回線部　ケーブルはどちらか一方に差す。' + (
        '受信と送信に同じ1組' if half else '送信は 1･2 番、受信は 3･4 番(ボードでは逆)'), 10, GREEN)


def host_bus(sheet, wide):
    """The simulated CPU: sixteen data lines with a strobe for each byte lane, or eight with one more address line."""
    sheet.chip(752, 62, 124, 318, 'HOST CPU', '16bit-Bus' if wide else '8bit-Bus', 12, SMALL_CHIP, .585)
    data, address = (16, 10) if wide else (8, 11)
    first = 11 - address
    for y, name, number, width in ((92, 'D0-%d' % (data - 1), '17-32' if wide else '17-24', data),
                                   (124, 'A%d-10' % first, '33-42' if wide else '43, 33-42', address)):
        sheet.right_pin(CHIP_RIGHT, y, name, number)
        sheet.bus((CHIP_RIGHT, y), (752, y))
        sheet.bus_width(690, y, width)
        sheet.net(628, y - 4, '%s[%d:%d]' % (name[0], data - 1 if name[0] == 'D' else 10, 0 if name[0] == 'D' else first))
        sheet.text(757, y + 3.5, name, 9.5, INK, 'start', SANS)
    strobes = ['#CS', '#RD', '#WRL', '#WRH'] if wide else ['#CS', '#RD', '#WR']
    for place, name in enumerate(strobes):
        y = 164 + 20 * place
        sheet.right_pin(CHIP_RIGHT, y, name, 44 + place, 752, name, 40)
        sheet.text(757, y + 3.5, name, 9.5, INK, 'start', SANS)
    if wide:
        for y, lane in ((204, '下位 D7-0'), (224, '上位 D15-8')):
            sheet.text(662, y - 3, lane, 10, SECOND)
    for y, name, number in ((266, 'INT0', 49), (286, 'INT1', 50)):
        sheet.right_pin(CHIP_RIGHT, y, name, number, 752, name, 40)
        sheet.text(757, y + 3.5, name, 9.5, INK, 'start', SANS)
        sheet.path('M752 %s l-7 -3.5 v7 Z' % y, INK, 1, INK)
    sheet.text(662, 263, 'INT0R の要求', 10, SECOND)
    sheet.text(662, 283, 'INT1R の要求', 10, SECOND)
    for y, name, number, remark in ((326, 'BUS8', 51, '8ビットで H、いま %s' % ('L' if wide else 'H')),
                                    (350, 'BIG', 52, 'ビッグで H')):
        sheet.right_pin(CHIP_RIGHT, y, name, number, 752, name, 40)
        sheet.text(757, y + 3.5, name, 9.5, INK, 'start', SANS)
        sheet.text(647, y - 3, remark, 10, SECOND)
    sheet.note(746, 398, 'ダブルクリックして')
    sheet.note(746, 414, 'バスの種類を選ぶ')


def leds(sheet):
    """Three LEDs at the foot, lit by a low pin."""
    sheet.vcc(464, 476)
    columns = ((520, 53, '#SCAN', 'SCAN', (LIT_LINE, LIT_FILL)), (580, 54, '#CHK1', 'Chk1', (RED, PALE_RED)),
               (640, 55, '#CHK2', 'Chk2', (RED, PALE_RED)))
    for place, (x, number, name, caption, colours) in enumerate(columns):
        pin = 484 + 34 * place
        sheet.bottom_pin(pin, CHIP_FOOT, name, number)
        lane = 470 - 7 * place
        sheet.wire((pin, CHIP_FOOT), (pin, lane), (x + 30, lane), (x + 30, 548), (x, 548))
        sheet.led(x, 510, 540, colours)
        sheet.wire((x, 540), (x, 548))
        sheet.resistor(x, 482, 510, '680')
        sheet.text(x, 561, caption, 9.5, INK, 'middle', SANS, True)

    sheet.wire((464, 482), (640, 482))
    for x in (520, 580, 640):
        sheet.dot(x, 482)


def lanes(sheet, wide):
    """How the two bytes of a word lie on the bus."""
    left, top = 674, 430
    sheet.box(left, top, 208, 134, SHEET_GREEN, GREEN_LINE, 1, 3)
    sheet.text(left + 10, top + 17, '1ワードの2バイト', 11, INK, 'start', None, True)
    if wide:
        rows = [('D15-8', '上位バイト(#WRH)'), ('D7-0', '下位バイト(#WRL)')]
        remarks = ['16ビットで一度に読み書きする。', '偶数番地は、リトルエンディアンで', '下位、ビッグエンディアンで上位。']
    else:
        rows = [('A0=0', 'リトル：下位　ビッグ：上位'), ('A0=1', 'リトル：上位　ビッグ：下位')]
        remarks = ['1ワードを2回に分けて読み書きする。', 'その合間のスキャンから守るのが', 'ハザード保護(HPR)。']
    for place, (lane, meaning) in enumerate(rows):
        y = top + 26 + 22 * place
        sheet.box(left + 10, y, 46, 19, YOURS[0], NET, 1, 2)
        sheet.text(left + 33, y + 13.5, lane, 9.5, INK, 'middle', SANS, True)
        sheet.text(left + 64, y + 14, meaning, 10.5)
    for place, remark in enumerate(remarks):
        sheet.text(left + 10, top + 88 + 16 * place, remark, 10.5, SECOND)


def registers(sheet):
    """What of the registers is seen on this board."""
    left, top = 20, 448
    sheet.box(left, top, 420, 116, SHEET_GREEN, GREEN_LINE, 1, 3)
    sheet.text(left + 10, top + 18, 'レジスタとボード', 11, INK, 'start', None, True)
    for place, (name, text) in enumerate((
            ('SCR', 'スキャンを始める。止まるまで SCAN が点灯する。'),
            ('BCR', 'ビット1、0 が転送レート、ビット4 がフル(1)とハーフ(0)。'),
            ('C1CR  C2CR', '失敗の1回め、3回めを数え、Chk1、Chk2 を光らせる。'),
            ('INT0R  INT1R', '許可した要求で INT0、INT1 を出す。'))):
        y = top + 38 + 19 * place
        sheet.text(left + 10, y, name, 9.5, INK, 'start', SANS, True)
        sheet.text(left + 96, y, text, 10.5)


def qda60(wide, half):
    name = 'QDA60_%s_%s' % ('HALF' if half else 'FULL', '16BIT' if wide else '8BIT')
    sheet = Sheet()
    sheet.frame('QDA60', [('回線', HALF if half else FULL), ('バス', '16ビット' if wide else '8ビット'), ('ボード', 'Center'),
                          ('図番', name)],
                ['ケーブルは RXD1、RXD2 のどちらに差しても同じに働く。Rt は差した側にだけ付ける。',
                 'RESET を押すと、スキャンは止まり、レジスタは 0 に、BCR は 0013H になる。',
                 'JP1 は必ず 1-2(フル)か 2-3(ハーフ)。BCR のビット4 と合わせる。',
                 '転送レートは BCR で選ぶ。クロックは 48MHz のまま。'])
    sheet.chip(CHIP_LEFT, CHIP_TOP, CHIP_RIGHT - CHIP_LEFT, CHIP_FOOT - CHIP_TOP, '', '', 19, CHIP)
    sheet.text(498, 240, 'QDA60', 18, INK, 'middle', SANS, True)
    sheet.text(498, 257, 'U1', 9.5, SECOND, 'middle')
    line_section(sheet, half)
    blocks.clock_and_reset(sheet, '48MHz')
    blocks.supply(sheet)
    blocks.supply_pins(sheet, (('VCC', 6), ('VCC', 57), ('GND', 8), ('GND', 58)))
    blocks.clock_pins(sheet)
    host_bus(sheet, wide)
    leds(sheet)
    lanes(sheet, wide)
    registers(sheet)
    return name + '.svg', sheet.svg()


def draw():
    return dict(qda60(wide, half) for wide in (True, False) for half in (False, True))
