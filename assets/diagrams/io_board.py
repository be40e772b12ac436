# SPDX-License-Identifier: Apache-2.0
"""The eight sheets of Board-4: what each mode makes of the sixteen pins of the QDA52."""
from diagrams import blocks
from diagrams.blocks import CHIP_FOOT, CHIP_RIGHT, FULL, HALF
from diagrams.satellite_boards import AT_THE_ENDS, HIGH_IS_OPEN, body, line_side
from diagrams.schematic import Sheet
from kit.svg_kit import (FAINT, GREEN, GREEN_LINE, INK, KNOB, LIT_FILL, NET, RED, SANS, SCAN, SECOND, SHEET_GREEN, STRAP, WHITE,
                         YOURS)

# Pins 15 to 0: I input, O output, * taken away from the port.
MODES = [
    ('DI 16', 'IIIIIIIIIIIIIIII'),
    ('DI 12  DO 4', 'OOOOIIIIIIIIIIII'),
    ('DI 8  DO 8', 'OOOOOOOOIIIIIIII'),
    ('DI 4  DO 12', 'OOOOOOOOOOOOIIII'),
    ('DI 2  DO 14', 'OOOOOOOOOOOOOOII'),
    ('DO 16', 'OOOOOOOOOOOOOOOO'),
    ('PWM ランプ', '****OOOOIIIIIIII'),
    ('PWM モータ', '****OOOO****IIII'),
]
# From pin 15 down.
PWM_SIGNALS = ['CWON', 'CCWON', 'CW-Pulse', 'CCW-Pulse']
COUNTER_PINS = (4, 5)  # count, clear

COLUMN, FIRST = 26, 40


def spans(pattern, kind):
    """The runs of one kind of pin, as (highest bit, lowest bit)."""
    runs, bit = [], 15
    for highest, sign in zip(range(15, -1, -1), pattern):
        if sign == kind and (highest == 15 or pattern[14 - highest] != kind):
            bit = highest
        if sign == kind and (highest == 0 or pattern[16 - highest] != kind):
            runs.append((bit, highest))
    return runs


def word(sheet, y, name, address, parts):
    """A word of sixteen bits: what each of them is, as (highest, lowest, text, fill)."""
    left, cell = 604, 17
    sheet.text(left, y - 5, name, 10, INK, 'start', SANS, True)
    sheet.text(left + 30, y - 5, address, 10, SECOND)
    sheet.box(left, y, 16 * cell, 18, WHITE, FAINT, 1, 0)
    if not parts:
        sheet.text(left + 8 * cell, y + 13, 'なし', 9.5, SECOND, 'middle')
    for highest, lowest, text, fill in parts:
        x, wide = left + (15 - highest) * cell, (highest - lowest + 1) * cell
        sheet.box(x, y, wide, 18, fill, INK, 1, 0)
        sheet.text(x + wide / 2, y + 13, text, 9.5 if wide > 40 else 8.5, INK, 'middle')
        sheet.text(x + 2, y + 27, str(highest), 8, SECOND)
        if lowest != highest:
            sheet.text(x + wide - 2, y + 27, str(lowest), 8, SECOND, 'end')


def words(sheet, mode, pattern):
    """What the bits of DI and DO mean in this mode."""
    di, do, gate = YOURS[0], LIT_FILL, SCAN[0]
    if mode == 7:
        di_parts = [(15, 12, 'IO3-0', di), (11, 0, 'カウンタの値', gate)]
    else:
        di_parts = [(high, low, 'IO%d-%d' % (high, low), di) for high, low in spans(pattern, 'I')]
    do_parts = [(high, low, 'IO%d-%d' % (high, low), do) for high, low in spans(pattern, 'O')]
    if mode >= 6:
        do_parts += [(7, 6, '向き', gate), (5, 0, '強さ', gate)]
    sheet.box(590, 448, 296, 118, SHEET_GREEN, GREEN_LINE, 1, 3)
    word(sheet, 472, 'DI', '100H + 2×SA のワード', di_parts)
    word(sheet, 526, 'DO', '080H + 2×SA のワード', do_parts)


def port(sheet, mode, pattern):
    """The sixteen pins, each with what the mode puts on it."""
    pwm = mode >= 6
    sheet.bus((474, CHIP_FOOT), (474, 446), (26, 446))
    sheet.bus_width(448, 446, 12 if pwm else 16)
    sheet.net(30, 441, 'IO[11:0]' if pwm else 'IO[15:0]')
    place_of = {15 - place: FIRST + COLUMN * place for place in range(16)}
    inputs = [place_of[bit] for bit in range(16) if pattern[15 - bit] == 'I' or (mode == 7 and bit in COUNTER_PINS)]
    if inputs:
        first = min(inputs)
        sheet.vcc(first - 20, 454, left=2)  # clear of the pin beside it
        sheet.wire((first - 20, 460), (max(inputs), 460))
    sheet.wire((20, 536), (place_of[0], 536))
    sheet.gnd(20, 536)
    for bit, x in place_of.items():
        kind = pattern[15 - bit]
        if kind == 'I':
            blocks.pulled_up_column(sheet, x, 446, 460, 490, sheet.switch, 536)
        elif kind == 'O':
            sheet.wire((x - 5, 446), (x, 451), (x, 455))
            sheet.resistor(x, 455, 490, '', 16)
            sheet.led(x, 490, 536)
            sheet.dot(x, 536)
        elif mode == 7 and bit in COUNTER_PINS:
            blocks.pulled_up_column(sheet, x, 446, 460, 490, sheet.push, 536)
        else:
            sheet.text(x + 3, 500, 'PWM' if bit > 11 else '未使用', 8.5, FAINT, 'middle', None, False, True)
        sheet.text(x, 549, str(bit), 9, INK if kind != '*' else FAINT, 'middle')
    names = {'I': '入力', 'O': '出力'}
    uses = [(span, names[kind]) for kind in names for span in spans(pattern, kind)]
    if pwm:
        uses.append(((15, 12), 'PWM'))
    if mode == 7:
        uses += [((bit, bit), use) for bit, use in zip(COUNTER_PINS, ('カウント', 'クリア'))]
    sheet.note(40, 564, 'SW5、LD　モード %d：' % mode + '、'.join(
        'IO%s %s' % ('%d-%d' % span if span[0] > span[1] else span[0], use) for span, use in sorted(uses, reverse=True)))


def settings_at_foot(sheet, pwm):
    """SSA, SSB and CLR; the PWM modes take no DI timing."""
    if not pwm:
        blocks.setting_switches(sheet)
        return
    sheet.wire((538, CHIP_FOOT), (538, 490), (547, 490))
    sheet.vcc(558, 454)
    sheet.wire((558, 460), (547, 460))
    sheet.resistor(547, 460, 490, '', 15)
    sheet.dot(547, 490)
    sheet.push(547, 490, 536)
    sheet.gnd(547, 536)
    sheet.text(560, 520, 'CLR', 8.5, INK, 'start', None, True)
    sheet.wire((494, CHIP_FOOT), (494, 470), (516, 470))
    sheet.wire((516, CHIP_FOOT), (516, 474))
    sheet.dot(516, 470)
    sheet.gnd(516, 474)
    sheet.text(488, 500, 'SSA、SSB', 9.5, SECOND)
    sheet.text(488, 512, 'は使わない', 9.5, SECOND)


def mode_selector(sheet, mode):
    """The rotary switch of the mode, to three pins."""
    pins = ((92, 'IOS0', 33, 1), (106, 'IOS1', 34, 2), (120, 'IOS2', 35, 4))
    sheet.box(700, 78, 56, 62, WHITE)
    sheet.circle(735, 104, 11, KNOB)
    sheet.text(735, 109, str(mode), 13, INK, 'middle', SANS, True)
    sheet.text(735, 134, 'SW6', 8.5, INK, 'middle', None, True)
    for bit, (y, name, number, weight) in enumerate(pins):
        sheet.right_pin(CHIP_RIGHT, y, name, number, 700, name, 20)
        sheet.number(704, y + 3, weight)
        high = mode >> bit & 1
        sheet.text(690, y - 3, 'H' if high else 'L', 9, RED if high else SECOND, 'end', SANS, True)
    for x, (y, _, _, _) in zip((640, 652, 664), pins):
        sheet.dot(x, y)
        sheet.wire((x, y), (x, 128))
    sheet.box(634, 128, 36, 8, WHITE, INK, 1.1, 0)
    sheet.wire((634, 132), (626, 132))
    sheet.gnd(626, 132)
    sheet.wire((756, 104), (768, 104), (768, 100))
    sheet.wire((763, 100), (773, 100), weight=1.5)
    sheet.note(780, 96, 'IOS モード設定')
    sheet.text(780, 116, '%d' % mode, 15, NET, 'start', SANS, True)
    sheet.text(794, 115, MODES[mode][0], 11.5, INK, 'start', None, True)


def mode_switches(sheet):
    """Counter mode and rate. The nearest column has the lowest pin, so that no wire runs through a switch."""
    xs = (664, 700, 736)
    sheet.vcc(646, 150)
    sheet.wire((646, 156), (xs[-1], 156))
    sheet.wire((644, 232), (xs[-1], 232))
    sheet.gnd(644, 232)
    for x, y, name, number in zip(xs, (204, 192, 180), ('BPSS', 'CM1', 'CM0'), (38, 37, 36)):
        sheet.right_pin(CHIP_RIGHT, y, name, number, x, name, 18)
        sheet.resistor(x, 156, 174, '', 13)
        sheet.wire((x, 174), (x, y))
        sheet.dot(x, 156)
        sheet.dot(x, y)
        sheet.switch(x, y, 232, STRAP)
        sheet.dot(x, 232)
        sheet.text(x, 245, name, 8.5, INK, 'middle', None, True)
    sheet.note(758, 170, 'BPSS-L：CLK の 1/4')
    sheet.note(758, 186, 'BPSS-H：その半分')
    sheet.note(758, 208, 'CM0、CM1(Mode)：')
    sheet.note(758, 224, 'カウンタのモード 0')


def drive(sheet, mode):
    """The PWM board: the driver, and the lamp or the motor behind it."""
    sheet.box(664, 332, 218, 104, SHEET_GREEN, GREEN_LINE, 1, 4, '5 3')
    sheet.text(672, 345, 'PWM Drive　' + ('ランプ' if mode == 6 else 'モータとベルト'), 10.5, GREEN)
    sheet.chip(690, 352, 70, 76, 'DRV', 'U4', 10, WHITE, .5)
    for place, signal in enumerate(PWM_SIGNALS):
        y = 362 + 18 * place
        sheet.right_pin(CHIP_RIGHT, y, 'IO%d' % (15 - place), 32 - place, 690, signal, 20)
        sheet.number(694, y + 3, place + 1)
    sheet.wire((760, 372), (806, 372), (806, 380))
    sheet.wire((760, 408), (806, 408), (806, 402))
    sheet.circle(806, 391, 11, weight=1.5)
    if mode == 6:
        sheet.wire((798.5, 383.5), (813.5, 398.5), weight=1.2)
        sheet.wire((798.5, 398.5), (813.5, 383.5), weight=1.2)
        sheet.note(822, 388, 'ランプ')
        sheet.note(822, 402, 'ビット6 だけ')
    else:
        sheet.text(806, 395, 'M', 11, INK, 'middle', SANS, True)
        sheet.note(822, 380, 'モータ')
        sheet.text(822, 394, 'ビット6 CW', 9.5)
        sheet.text(822, 407, 'ビット7 CCW', 9.5)
    sheet.text(764, 369, 'OUT1', 8.5, SECOND)
    sheet.text(764, 405, 'OUT2', 8.5, SECOND)


def qda52(mode, half):
    pattern = MODES[mode][1]
    pwm = mode >= 6
    remark = ('強さは DO のビット0-5、向きはビット6、7。両方 1 か両方 0 なら止まる。' if pwm
              else 'LED は DO のビットが 1 のとき点灯する。' if 'O' in pattern else 'DO を書いても、出るピンはない。')
    sheet = Sheet()
    sheet.frame('QDA52', [('回線', HALF if half else FULL), ('IOS', '%d %s' % (mode, MODES[mode][0])), ('ボード', 'Board-4'),
                          ('図番', 'QDA52_IOS_%d' % mode)],
                [HIGH_IS_OPEN if not pwm else 'スライダが 1 の側で接点は開、入力は H(1)。0 の側で閉、L(0)。', remark, AT_THE_ENDS,
                 'MON は、自分の SA が正しく訪ねられると点灯する。'])
    line_side(sheet, half)
    body(sheet, 'QDA52', .56)
    mode_selector(sheet, mode)
    mode_switches(sheet)
    blocks.led_output(sheet, 288, '#MON', 60, 'R36 680', 'MON', 56, -1)
    if pwm:
        blocks.strobes(sheet, 306, ((63, 'STB1'),), ('DO 更新',))
        drive(sheet, mode)
    else:
        blocks.strobes(sheet, 306, ((63, 'STB1'), (64, 'STB2')), ('DO 更新', 'DI 取り込み'))
    blocks.bottom_pins(sheet, [(474, 'IO0-11', '17-28') if pwm else (474, 'IO0-15', '17-32'), (494, 'SSA', 61), (516, 'SSB', 62),
                               (538, '#CLR', 16)])
    port(sheet, mode, pattern)
    settings_at_foot(sheet, pwm)
    words(sheet, mode, pattern)
    return sheet


def draw():
    drawings = {'QDA52_IOS_%d.svg' % mode: qda52(mode, False).svg() for mode in range(8)}
    drawings['Qda52_add_half.svg'] = qda52(0, True).svg(blocks.HALF_WIDTH, blocks.HALF_HEIGHT)
    return drawings
