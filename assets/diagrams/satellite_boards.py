# SPDX-License-Identifier: Apache-2.0
"""The sheets of the satellite boards."""
from diagrams import blocks
from diagrams.blocks import CHIP_FOOT, CHIP_LEFT, CHIP_RIGHT, CHIP_TOP, FULL, HALF
from diagrams.schematic import Sheet
from kit.svg_kit import CHIP, GREEN_LINE, INK, KNOB, NET, SANS, SECOND, SHEET_GREEN, SMALL_CHIP, STRAP, WHITE

HIGH_IS_OPEN = 'DI･SSA･SSB：スライダが 1 の側で接点は開、入力は H(1)。0 の側で閉、L(0)。'
AT_THE_ENDS = 'Rt は線の端のボードにだけ付ける。JP1 は必ず 1-2(フル)か 2-3(ハーフ)。'


def body(sheet, name, at=.4):
    sheet.chip(CHIP_LEFT, CHIP_TOP, CHIP_RIGHT - CHIP_LEFT, CHIP_FOOT - CHIP_TOP, name, 'U1', 19, CHIP, at)
    blocks.supply_pins(sheet)
    blocks.clock_pins(sheet)


def line_side(sheet, half, clock='48/24/12M'):
    blocks.line_section(sheet, half)
    blocks.line_pins(sheet)
    blocks.clock_and_reset(sheet, clock)
    blocks.supply(sheet)
    blocks.address_switches(sheet)


def counters(sheet):
    """Six push buttons that count when they come up."""
    sheet.right_pin(CHIP_RIGHT, 84, 'CI0-5', '49-54')
    sheet.bus((CHIP_RIGHT, 84), (602, 84), (602, 54), (872, 54))
    sheet.bus_width(602, 70, 6, upright=True)
    sheet.net(608, 49, 'CI[5:0]')
    xs = [652 + 43 * place for place in range(6)]
    sheet.vcc(634, 62)
    sheet.wire((634, 68), (xs[-1], 68))
    sheet.wire((638, 128), (xs[-1], 128))
    sheet.gnd(626, 128)
    sheet.wire((626, 128), (638, 128))
    for place, x in enumerate(xs):
        blocks.pulled_up_column(sheet, x, 54, 68, 96, sheet.push, 128)
        sheet.text(x, 141, str(5 - place), 9.5, INK, 'middle', SANS, True)
    sheet.note(612, 156, 'S8-S3　16bit Counter (0→C1…5→C6)　RN3')


def serial_input(sheet):
    blocks.led_output(sheet, 226, '#SE', 60, 'R36 680', 'SE')
    for y, name, number in ((244, 'SDI', 57), (258, 'SCK', 58), (272, 'SLD', 59)):
        sheet.right_pin(CHIP_RIGHT, y, name, number, 676, name)
    sheet.wire((622, 226), (676, 226))
    sheet.chip(676, 206, 88, 88, 'SHIFT', '16bit', 9.5, SMALL_CHIP, .5)
    sheet.text(680, 202, 'U3', 9, INK, 'start', None, True)
    for y, name, number in ((226, '#W', 4), (244, 'SO', 1), (258, 'CK', 2), (272, 'LD', 3)):
        sheet.text(680, y + 3.5, name, 9, INK, 'start', SANS)
        sheet.number(673, y - 3, number, 'end')
    sheet.vcc(717, 191)
    sheet.wire((717, 197), (717, 206))
    sheet.number(720, 203, 24)
    sheet.text(717, 217, 'VCC', 9, INK, 'middle', SANS)
    for y, name, number in ((232, 'D0-15', '7-22'), (264, 'GND', '6,23'), (284, '#ST', 5)):
        sheet.text(760, y + 3.5, name, 9, INK, 'end', SANS)
        sheet.number(767, y - 3, number)
    sheet.bus((764, 232), (812, 232))
    sheet.bus_width(788, 232, '')
    sheet.net(768, 220, 'SD[15:0]')
    sheet.bus((797, 232), (797, 250))
    sheet.text(780, 247, '16', 9, NET, bold=True)
    sheet.box(785, 250, 24, 10, WHITE, INK, 1.1, 0)
    sheet.gnd(797, 260)
    sheet.text(813, 258, 'RN4 10k×16', 9)
    sheet.wire((764, 264), (776, 264))
    sheet.gnd(776, 264)
    sheet.box(812, 212, 52, 30, WHITE, INK, 1.5, 3)
    for place in range(4):
        sheet.circle(821 + 11 * place, 227, 4.6, KNOB)
    sheet.vcc(838, 201)
    sheet.wire((838, 207), (838, 212))
    sheet.text(868, 224, 'SW4', 9)
    sheet.text(868, 236, '4桁', 10)
    sheet.wire((764, 284), (876, 284))
    sheet.net(783, 281, '#ST')
    sheet.vcc(876, 250)
    sheet.wire((876, 256), (876, 262))
    sheet.resistor(876, 262, 284, '', 14)
    sheet.text(870, 273, 'R37 10k', 9, INK, 'end')
    sheet.dot(846, 284)
    sheet.push(846, 284, 312)
    sheet.gnd(846, 312)
    sheet.text(858, 298, 'S9', 9)
    sheet.text(858, 309, 'START', 9, INK, 'start', None, True)
    sheet.note(790, 186, 'シリアル入力')


def cascade_socket(sheet, fitted):
    """Where the cascade card is joined: the card takes clock and the chain signals from here."""
    sheet.right_pin(CHIP_RIGHT, 356, 'CSI', 15, 690)
    sheet.right_pin(CHIP_RIGHT, 372, 'CSO', 14, 690)
    sheet.net(666, 353, 'CSI')
    sheet.net(664, 369, 'CSO')
    sheet.connector(690, 336, 48, 86, '', [(343, '1, 2'), (356, 7), (372, 5), (388, 3), (408, '4,6,8-20')], -1)
    sheet.text(744, 349, 'CN3', 9.5, INK, 'start', None, True)
    sheet.vcc(676, 337)
    sheet.wire((676, 343), (690, 343))
    sheet.wire((672, 388), (690, 388))
    sheet.net(650, 391, 'CLK')
    sheet.wire((676, 408), (690, 408))
    sheet.gnd(676, 408)
    sheet.vcc(622, 333)
    sheet.dot(622, 356)
    sheet.resistor(622, 339, 356, 'R38 10k', 12)
    if fitted:
        sheet.bus((738, 379), (792, 379))
        sheet.bus_width(765, 379, 20)
        sheet.box(792, 356, 82, 46, SMALL_CHIP)
        sheet.text(833, 374, 'Board-3', 10, INK, 'middle', SANS, True)
        sheet.text(833, 391, 'カスケード・カード', 9.5, INK, 'middle')
        sheet.note(770, 349, 'フラットケーブル')
        sheet.note(752, 418, 'SA は Board-2 の SA + 1')
    else:
        sheet.note(744, 366, 'カスケード・カード用')
        sheet.note(744, 381, '(空き) CSI は R38 で H')


QDA41_PINS = ((474, 'DI0-15', '17-32'), (494, 'SSA', 61), (516, 'SSB', 62), (538, '#CLR', 16), (558, 'DO0-15', '33-48'))


def port(sheet):
    blocks.bottom_pins(sheet, QDA41_PINS)
    blocks.di_port(sheet)
    blocks.setting_switches(sheet)
    blocks.do_port(sheet)


def qda41(half, nest, number):
    sheet = Sheet()
    sheet.frame('QDA41', [('回線', HALF if half else FULL), ('カスケード', 'あり' if nest else 'なし'), ('ボード', 'Board-2'),
                          ('図番', number)],
                [HIGH_IS_OPEN, 'カウンタは、ボタンを離したときの立ち上がりで 1 つ進む。', AT_THE_ENDS,
                 '#SE が L のあいだ SE が点灯し、次の値は送れない。'])
    line_side(sheet, half)
    body(sheet, 'QDA41')
    counters(sheet)
    serial_input(sheet)
    blocks.strobes(sheet)
    cascade_socket(sheet, nest)
    port(sheet)
    return sheet


def qda41_card():
    """The cascade card has neither line nor address switches: the chain of Board-2 brings both."""
    sheet = Sheet()
    sheet.frame('QDA41', [('回線', 'なし (Board-2 につながる)'), ('カスケード', 'カード'), ('ボード', 'Board-3'), ('図番', 'QDA41_NEST')],
                [HIGH_IS_OPEN, 'カウンタは、ボタンを離したときの立ち上がりで 1 つ進む。',
                 'SA は Board-2 の SA + 1。クロックと転送レートも Board-2 と同じになる。',
                 'リセットは自分だけに効く。#SE が L のあいだ SE が点灯し、次の値は送れない。'])
    blocks.clock_and_reset_of_card(sheet)
    body(sheet, 'QDA41')
    sheet.left_pin(CHIP_LEFT, 84, 'RXD', 1)
    for y, name, pin in ((84, 'RXD', 1), (334, 'SA5', 13), (346, 'SA4', 12), (370, 'SA3', 11), (383, 'SA2', 10), (396, 'SA1', 9),
                         (409, 'SA0', 8)):
        sheet.left_pin(CHIP_LEFT, y, name, pin, 400)
        sheet.dot(400, y)
    sheet.wire((400, 84), (400, 409))
    sheet.gnd(400, 409)
    sheet.note(300, 366, '使わない入力は L', 'start', SECOND)
    for y, name, pin in ((160, 'TXE', 3), (206, 'TXD', 2)):
        sheet.left_pin(CHIP_LEFT, y, name, pin, 424)
        sheet.wire((421, y - 3), (427, y + 3), weight=1.2)
        sheet.wire((421, y + 3), (427, y - 3), weight=1.2)
    sheet.right_pin(CHIP_RIGHT, 356, 'CSI', 15, 650, 'CSI', 30)
    sheet.right_pin(CHIP_RIGHT, 372, 'CSO', 14, 650, 'CSO', 30)
    sheet.note(656, 360, '← CN1 の 5 (Board-2 の CSO)')
    sheet.note(656, 376, '→ CN1 の 7 (Board-2 の CSI)')
    counters(sheet)
    serial_input(sheet)
    blocks.strobes(sheet)
    port(sheet)
    return sheet


def qda73(half):
    sheet = Sheet()
    sheet.frame('QDA73', [('回線', HALF if half else FULL), ('レート', 'BPS0、BPS1'), ('ボード', 'Board-1'),
                          ('図番', 'QDA73_HALF' if half else 'QDA73_FULL')],
                [HIGH_IS_OPEN, 'クロックは 48MHz のまま。転送レートは BPS0 と BPS1 で選ぶ。', AT_THE_ENDS,
                 'MON は、自分の SA が正しく訪ねられると点灯する。'])
    line_side(sheet, half, '48MHz')
    body(sheet, 'QDA73')
    rate_switches(sheet)
    blocks.led_output(sheet, 250, '#MON', 60, 'R36 680', 'MON', 56)
    sheet.note(684, 240, '自分の SA が訪ねられたしるし')
    blocks.strobes(sheet)
    port(sheet)
    return sheet


def rate_switches(sheet):
    """BPS0 and BPS1: both open are 12 Mbps."""
    xs = (640, 680)
    sheet.vcc(622, 72)
    sheet.wire((622, 78), (xs[-1], 78))
    sheet.wire((628, 150), (xs[-1], 150))
    sheet.gnd(628, 150)
    # As the sliders stand on the card: BPS1 on the left.
    for x, y, name, number in ((xs[1], 100, 'BPS0', 49), (xs[0], 112, 'BPS1', 50)):
        sheet.right_pin(CHIP_RIGHT, y, name, number, x, name, 20)
        sheet.resistor(x, 78, 95, '', 13)
        sheet.wire((x, 95), (x, y))
        sheet.dot(x, 78)
        sheet.dot(x, y)
        sheet.switch(x, y, 150, STRAP)
        sheet.dot(x, 150)
        sheet.text(x, 163, name[-1], 9.5, INK, 'middle', SANS, True)
    sheet.note(612, 178, 'SW6　BPS スイッチ　RN3 10k×2')
    left, top = 726, 70
    sheet.box(left, top, 146, 92, SHEET_GREEN, GREEN_LINE, 1, 3)
    sheet.text(left + 10, top + 16, 'BPS1  BPS0', 9, INK, 'start', None, True)
    sheet.text(left + 84, top + 16, '転送レート', 10)
    for row, (high, low, rate) in enumerate((('1', '1', '12 Mbps'), ('1', '0', '6 Mbps'), ('0', '1', '3 Mbps'),
                                             ('0', '0', '1.5 Mbps'))):
        y = top + 34 + 16 * row
        sheet.text(left + 20, y, high, 9.5, INK, 'middle', SANS)
        sheet.text(left + 52, y, low, 9.5, INK, 'middle', SANS)
        sheet.text(left + 84, y, rate, 9.5, INK, 'start', SANS)


def draw():
    """Name of each drawing and its SVG."""
    half41 = qda41(True, False, 'QDA41_FULL')
    return {
        'QDA41_FULL.svg': qda41(False, False, 'QDA41_FULL').svg(),
        'QDA41_FULL_NEST.svg': qda41(False, True, 'QDA41_FULL_NEST').svg(),
        'QDA41_ADD_HALF.svg': half41.svg(blocks.HALF_WIDTH, blocks.HALF_HEIGHT),
        'QDA41_NEST.svg': qda41_card().svg(),
        'QDA73_FULL.svg': qda73(False).svg(),
        'QDA73_HALF.svg': qda73(True).svg(),
    }

