# SPDX-License-Identifier: Apache-2.0
"""What several boards have in common: the line, clock and reset, the address switches, and the port.

All of them stand at the same place on every sheet. Whatever full and half duplex change lies inside the line section and its
cell of the title row, the part of the sheet up to (HALF_WIDTH, HALF_HEIGHT).
"""
from kit.svg_kit import CAN, FAINT, GREEN, GREEN_LINE, INK, NET, SANS, SECOND, SHEET_GREEN, STRAP, WHITE

HALF_WIDTH, HALF_HEIGHT = 408, 258
FULL = '全2重 FULL (JMP-F)'
HALF = '半2重 HALF (JMP-H)'
CHIP_LEFT, CHIP_RIGHT, CHIP_TOP, CHIP_FOOT = 444, 574, 62, 424
RXD, TXE, TXD = 84, 160, 206


def line_section(sheet, half):
    """The two connectors of the line, the transformers and the transceiver; RXD, TXE and TXD leave to the right."""
    sheet.box(14, 40, 392, 216, SHEET_GREEN, GREEN_LINE, 1, 4, '5 3')
    sheet.text(22, 54, '回線部　受信と送信に同じ1組' if half else '回線部　受信と送信に1組ずつ', 11, GREEN)
    first = [(72 + 12 * pin, pin + 1) for pin in range(6)]
    second = [(170 + 12 * pin, 6 - pin) for pin in range(6)]
    sheet.connector(24, 64, 30, 76, 'CN1', first)
    sheet.connector(24, 162, 30, 76, 'CN2', second)
    nets = ['D+', 'D−', '', '', 'FG'] if half else ['RX+', 'RX−', 'TX+', 'TX−', 'FG']
    for (y, _), name in zip(first, nets):
        sheet.net(56, y - 2, name)
    # Each pin of one connector goes to the same pin of the other; x of the wire that joins them.
    for pin, x in ((0, 116), (1, 107), (2, 98), (3, 89), (4, 80), (5, 71)):
        top, foot = first[pin][0], second[5 - pin][0]
        sheet.wire((54, top), (x, top), (x, foot), (54, foot))
    sheet.dot(71, 151)
    sheet.dot(80, 151)
    sheet.wire((80, 151), (62, 151), (62, 155))
    for x in (58, 64, 70):
        sheet.wire((x - 4, 160), (x, 155), weight=1.2)
    sheet.wire((58, 155), (70, 155), weight=1.2)
    pair(sheet, 72, 108, (116, 107), 'R1', 'C1', 'T1')
    if half:
        half_pair(sheet)
    else:
        pair(sheet, 158, 194, (98, 89), 'R2', 'C2', 'T2')
        for y, name in ((158, 'TA'), (194, 'TB')):
            sheet.wire((250, y), (270, y))
            sheet.resistor_across(270, 306, y, 'R3 22' if name == 'TA' else 'R4 22', above=False)
            sheet.net(263, y - 3, name)
            sheet.number(256, y - 3, 6 if name == 'TA' else 4)
        sheet.number(256, 173, 5)
        sheet.wire((250, 176), (259, 176))
        sheet.net(261, 179, 'VB')
        for y, name in ((72, 'RA'), (108, 'RB')):
            sheet.wire((250, y), (306, y))
            sheet.net(263, y - 3, name)
            sheet.number(256, y - 3, 6 if name == 'RA' else 4)
    sheet.number(256, 87, 5)
    sheet.wire((250, 90), (259, 90))
    sheet.net(261, 93, 'VB')
    transceiver(sheet, half)


def pair(sheet, top, foot, joins, resistor, capacitor, transformer):
    """One pair of the line: terminator, common-mode capacitor, transformer."""
    for y, x in zip((top, foot), joins):
        sheet.wire((x, y), (222, y))
        sheet.dot(x, y)
    sheet.resistor(134, top, foot)
    sheet.dot(134, top)
    sheet.dot(134, foot)
    sheet.text(140, top + 18, resistor + ' 100', 9)
    sheet.text(140, top + 28, 'Rt', 9, bold=True)
    middle = (top + foot) / 2
    sheet.net(176, middle + 3, 'FG')
    sheet.wire((190, middle), (198, middle))
    sheet.wire((202, middle), (222, middle))
    for x in (198, 202):
        sheet.wire((x, middle - 5), (x, middle + 5), weight=1.4)
    sheet.text(203, middle - 8, capacitor + ' 1n', 9, INK, 'end')
    sheet.transformer(222, top, foot, transformer)
    for y, number in ((top, 1), (middle, 2), (foot, 3)):
        sheet.number(213, y - 3, number, 'end')


def half_pair(sheet):
    """Half duplex: the driver sends through the receiver's transformer, and the second one is not fitted."""
    for y, driver, x, name, resistor in ((72, 158, 284, 'RA', 'R3 22'), (108, 194, 276, 'RB', 'R4 22')):
        sheet.wire((250, y), (306, y))
        sheet.net(263, y - 3, name)
        sheet.number(256, y - 3, 6 if name == 'RA' else 4)
        sheet.dot(x, y)
        sheet.wire((x, y), (x, driver))
        sheet.resistor_across(x, 306, driver)
        sheet.text(303, driver + 13, resistor, 9, INK, 'end')
    sheet.box(220, 152, 42, 40, 'none', FAINT, 1, 3, '3 3')
    sheet.text(241, 169, 'T2', 9, FAINT, 'middle')
    sheet.text(241, 182, '未実装', 9, FAINT, 'middle')
    sheet.text(121, 168, 'TX の線は', 9.5, SECOND)
    sheet.text(121, 180, '次のボードへ通すだけ', 9.5, SECOND)


def transceiver(sheet, half):
    sheet.chip(306, 60, 50, 172, 'U2', '', 9.5, WHITE, .41)
    sheet.text(331, 143, 'TRX', 9.5, INK, 'middle', SANS, True)
    sheet.text(331, 73, 'VCC', 9, INK, 'middle', SANS)
    sheet.text(331, 227, 'GND', 9, INK, 'middle', SANS)
    sheet.vcc(331, 45)
    sheet.wire((331, 51), (331, 60))
    sheet.number(334, 56, 10)
    sheet.gnd(331, 232)
    sheet.number(341, 243, 5)
    sheet.path('M321 84 L338 94 L321 104 Z', SECOND, 1)
    sheet.path('M338 167 L321 177 L338 187 Z', SECOND, 1)
    for y, name, number in ((72, 'A', 7), (108, 'B', 6), (158, 'Y', 8), (194, 'Z', 9)):
        sheet.text(310, y + 3.5, name, 9, INK, 'start', SANS)
        sheet.number(304, y - (5 if half else 3), number, 'end')
    for y, name, number in ((RXD, 'RO', 1), (112, '#RE', 2), (TXE, 'DE', 3), (TXD, 'DI', 4)):
        sheet.text(352, y + 3.5, name, 9, INK, 'end', SANS)
        sheet.number(359, y - 3, number)
    for y, name in ((RXD, 'RXD'), (TXE, 'TXE'), (TXD, 'TXD')):
        sheet.wire((356, y), (CHIP_LEFT, y))
        sheet.net(409, y - 3, name)
    # The jumper: 1-2 keeps the receiver on, 2-3 turns it off while the driver sends.
    sheet.wire((356, 112), (384, 112))
    sheet.text(384, 92.5, 'JP1', 9, INK, 'middle')
    for pin, y in enumerate((100, 112, 124), 1):
        sheet.box(381, y - 3, 6, 6, WHITE, INK, 1, 0)
        sheet.number(376, y + (-2 if pin == 2 else 3), pin, 'end')
    sheet.box(378.5, 106.5 if half else 94.5, 11, 23, 'none', STRAP, 1.8, 2.5)
    sheet.wire((387, 100), (399, 100))
    sheet.gnd(399, 100)
    sheet.wire((387, 124), (399, 124), (399, TXE))
    sheet.dot(399, TXE)
    sheet.text(384, 140, 'JMP-H' if half else 'JMP-F', 9, NET, 'middle', bold=True)
    sheet.dot(366, TXE)
    sheet.resistor(366, TXE, 186, 'R5 10k', 15)
    sheet.gnd(366, 186)


def reset_circuit(sheet):
    """Low at power-on, and while the button is held."""
    sheet.vcc(123, 261)
    sheet.wire((110, 266), (136, 266))
    sheet.wire((110, 266), (110, 304))
    sheet.path('M104.5 288 H115.5 L110 279 Z', INK, 1.2, WHITE)
    sheet.wire((104.5, 279), (115.5, 279), weight=1.4)
    sheet.text(102, 287, 'D1', 9, INK, 'end')
    sheet.resistor(136, 266, 304, 'R8 10k')
    sheet.wire((110, 304), (CHIP_LEFT, 304))
    for x in (136, 154, 178):
        sheet.dot(x, 304)
    sheet.capacitor(154, 304, 335, 'C4 1u', -1)
    sheet.gnd(154, 335)
    sheet.push(178, 304, 328)
    sheet.text(190, 319, 'S1', 9)
    sheet.resistor(178, 328, 351, 'R9 100')
    sheet.gnd(178, 351)
    sheet.text(186, 299, 'RESET', 9, bold=True)


def clock_and_reset(sheet, clock):
    """Middle voltage of the line, reset, oscillator and supply."""
    sheet.vcc(34, 263)
    sheet.resistor(34, 269, 296, 'R6 1k')
    sheet.resistor(34, 296, 319)
    sheet.text(28, 306, 'R7', 9, INK, 'end')
    sheet.text(28, 317, '1k', 9, INK, 'end')
    sheet.gnd(34, 319)
    sheet.dot(34, 296)
    sheet.wire((34, 296), (70, 296))
    sheet.net(72, 299, 'VB')
    sheet.dot(56, 296)
    sheet.capacitor(56, 296, 319)
    sheet.text(64, 306, 'C3', 9)
    sheet.text(64, 318, '0.1u', 9)
    sheet.gnd(56, 319)

    reset_circuit(sheet)

    sheet.box(296, 262, 56, 30, CAN, INK, CHIP_LINE_OF_CAN, 4)
    sheet.text(324, 275, 'X1', 9.5, INK, 'middle', SANS, True)
    sheet.text(324, 286, clock, 9, INK, 'middle', SANS)
    sheet.wire((296, 270), (282, 270), (282, 284), (296, 284))
    sheet.vcc(282, 264, right=2)
    sheet.dot(282, 270)
    sheet.number(292, 268, 4, 'end')
    sheet.number(292, 282, 1, 'end')
    sheet.gnd(304, 292)
    sheet.number(313, 301, 2)
    sheet.number(355, 274, 3)
    sheet.resistor_across(352, 404, 277, 'R10 33')
    sheet.wire((404, 277), (CHIP_LEFT, 277))
    sheet.note(360, 293, '発振器')


CHIP_LINE_OF_CAN = 1.5


def supply(sheet):
    sheet.connector(24, 372, 18, 40, '', [(384, 1), (402, 2)])
    sheet.text(24, 368, 'CN4', 9)
    sheet.wire((42, 384), (136, 384))
    sheet.wire((42, 402), (50, 402), (50, 414), (136, 414))
    sheet.vcc(62, 379)
    sheet.wire((62, 384), (62, 385))
    sheet.dot(62, 384)
    sheet.text(70, 380, 'VCC +5V', 9, INK, bold=True)
    sheet.gnd(62, 414)
    sheet.dot(62, 414)
    sheet.capacitor(80, 384, 414, 'C5 47u')
    sheet.dot(80, 384)
    sheet.dot(80, 414)
    sheet.capacitor(136, 384, 414)
    sheet.text(145, 395, 'C6-C10', 9)
    sheet.text(145, 406, '0.1u×5', 9)


def address_switches(sheet):
    """Two rotary switches: the upper one has two of its four wires joined to the chip, since an address has six bits."""
    sheet.rotary(222, 306, 'SW1', '上位', [(316, 8), (325, 4), (334, 2), (346, 1)])
    sheet.rotary(222, 364, 'SW2', '下位', [(370, 8), (383, 4), (396, 2), (409, 1)])
    for y in (316, 325):
        sheet.wire((270, y), (280, y))
        sheet.wire((277, y - 3), (283, y + 3), weight=1.2)
        sheet.wire((277, y + 3), (283, y - 3), weight=1.2)
    for bit, (y, x, pin) in enumerate(((409, 360, 8), (396, 348, 9), (383, 336, 10), (370, 324, 11), (346, 312, 12),
                                       (334, 300, 13))):
        sheet.left_pin(CHIP_LEFT, y, 'SA%d' % bit, pin, 270, 'SA%d' % bit)
        sheet.dot(x, y)
        sheet.wire((x, y), (x, 424))
    sheet.box(292, 424, 76, 10, WHITE, INK, 1.2, 0)
    sheet.wire((368, 429), (378, 429))
    sheet.gnd(378, 429)
    sheet.text(388, 433, 'RN1 10k×6', 9)
    sheet.note(222, 434, 'SA の設定')


def line_pins(sheet):
    for y, name, number in ((RXD, 'RXD', 1), (TXE, 'TXE', 3), (TXD, 'TXD', 2)):
        sheet.left_pin(CHIP_LEFT, y, name, number)


def supply_pins(sheet, names=(('VCC', 4), ('VCC', 55), ('GND', 6), ('GND', 56))):
    for x, (name, number) in zip((466, 493, 527, 554), names):
        sheet.wire((x, 52), (x, CHIP_TOP))
        sheet.text(x, 74, name, 9.5, INK, 'middle', SANS)
        sheet.number(x + 2, 59, number)
    sheet.wire((466, 52), (493, 52))
    sheet.vcc(479.5, 46)
    sheet.wire((527, 52), (586, 52))
    sheet.dot(554, 52)
    sheet.gnd(586, 52)


def clock_pins(sheet):
    sheet.left_pin(CHIP_LEFT, 277, 'CLK', 5, None, 'CLK')
    sheet.left_pin(CHIP_LEFT, 304, '#RST', 7, None, '#RST')


def pulled_up_column(sheet, x, bus_y, rail, node, part, foot):
    """A wire from the bus to a node with a pull-up, and a part from the node to ground."""
    sheet.wire((x - 15, bus_y), (x - 10, bus_y + 5), (x - 10, node), (x, node))
    sheet.resistor(x, rail, node, '', 15)
    sheet.dot(x, node)
    sheet.dot(x, rail)
    part(x, node, foot)
    sheet.dot(x, foot)


def di_port(sheet):
    """Sixteen switches on DI: open is 1."""
    sheet.bus((474, CHIP_FOOT), (474, 446), (26, 446))
    sheet.bus_width(442, 446, 16)
    sheet.net(30, 441, 'DI[15:0]')
    xs = [42 + 24 * place for place in range(16)]
    sheet.vcc(20, 454)
    sheet.wire((20, 460), (xs[-1], 460))
    sheet.wire((22, 536), (xs[-1], 536))
    sheet.gnd(22, 536)
    for place, x in enumerate(xs):
        pulled_up_column(sheet, x, 446, 460, 490, sheet.switch, 536)
        sheet.text(x, 549, str(15 - place), 9, INK, 'middle')
    sheet.note(42, 564, 'SW5　DI スイッチ(16)　RN2 10k×16')


def setting_switches(sheet, names=('SSA', 'SSB', 'CLR')):
    xs = (503, 525, 547)
    for x, pin in zip(xs, (494, 516, 538)):
        sheet.wire((pin, CHIP_FOOT), (pin, 490), (x, 490))
    sheet.wire((480, 460), (xs[-1], 460))
    sheet.vcc(480, 454)
    sheet.wire((484, 536), (xs[-1], 536))
    sheet.gnd(484, 536)
    for x, name in zip(xs, names):
        sheet.resistor(x, 460, 490, '', 15)
        sheet.dot(x, 460)
        sheet.dot(x, 490)
        if name == 'CLR':
            sheet.push(x, 490, 536)
        else:
            sheet.switch(x, 490, 536, STRAP)
        sheet.dot(x, 536)
        sheet.text(x, 549, name, 8.5, INK, 'middle', bold=True)
    sheet.note(484, 564, 'SW3、S2　RN5')


def do_port(sheet):
    """Sixteen LEDs on DO: 1 lights."""
    sheet.bus((558, CHIP_FOOT), (558, 446), (872, 446))
    sheet.bus_width(566, 446, 16)
    sheet.net(594, 441, 'DO[15:0]')
    xs = [584 + 19 * place for place in range(16)]
    sheet.wire((567, 536), (xs[-1], 536))
    sheet.gnd(567, 536)
    for place, x in enumerate(xs):
        sheet.wire((x - 5, 446), (x, 451), (x, 455))
        sheet.resistor(x, 455, 490, '', 16)
        sheet.led(x, 490, 536)
        sheet.dot(x, 536)
        sheet.text(x, 549, str(15 - place), 9, INK, 'middle')
    sheet.note(584, 564, 'LD15-LD0　DO LED(緑)　R20-R35 680')


def bottom_pins(sheet, pins):
    for x, name, number in pins:
        sheet.bottom_pin(x, CHIP_FOOT, name, number)


def strobes(sheet, y=306, pins=((63, 'DOSTB'), (64, 'DISTB')), texts=('DO 更新', 'DI 取り込み')):
    for place, ((number, name), text) in enumerate(zip(pins, texts)):
        at = y + 16 * place
        sheet.right_pin(CHIP_RIGHT, at, name, number, 640, name, 30)
        sheet.test_point(640, at, 'TP%d' % (place + 1))
        sheet.pulse(672, at, falling=place == 1)
        sheet.note(696, at + 4, text)


def led_output(sheet, y, name, number, part, caption, at=48, side=1):
    """A low-active LED at a pin on the right side."""
    x = CHIP_RIGHT + at
    sheet.right_pin(CHIP_RIGHT, y, name, number, x)
    sheet.net(CHIP_RIGHT + 17, y - 3, name)
    sheet.dot(x, y)
    sheet.vcc(x, y - 60)
    sheet.resistor(x, y - 54, y - 26, part, 16, side)
    sheet.led(x, y - 26, y)
    sheet.text(x + 14, y - 14, caption, 9.5, INK, 'start', SANS, True)


def clock_and_reset_of_card(sheet):
    """The cascade card's own reset, and the flat cable that brings supply, clock and the chain."""
    sheet.box(14, 40, 392, 216, SHEET_GREEN, GREEN_LINE, 1, 4, '5 3')
    sheet.text(22, 54, 'フラットケーブルで Board-2 から', 11, GREEN)
    sheet.connector(60, 70, 60, 150, 'CN1', [(84, '1, 2'), (112, 3), (140, 5), (168, 7), (200, '4,6,8-20')])
    for y, name, meaning in ((84, 'VCC', '電源'), (112, 'CLK', 'クロック、Board-2 の X1'), (140, 'CSI', 'Board-2 の CSO から'),
                             (168, 'CSO', 'Board-2 の CSI へ'), (200, 'GND', '')):
        sheet.wire((120, y), (170, y))
        if name == 'VCC':
            sheet.vcc(170, y - 6)
        elif name == 'GND':
            sheet.gnd(170, y)
        else:
            sheet.net(174, y + 3, name)
        sheet.note(206, y + 4, meaning)
    sheet.note(60, 244, '回線も SA のスイッチもない。Board-2 の呼びかけの続きを受け取る。', 'start', SECOND)
    reset_circuit(sheet)
    sheet.wire((330, 277), (CHIP_LEFT, 277))
    sheet.note(250, 281, 'CN1 の 3 から')
