# SPDX-License-Identifier: Apache-2.0
"""The pages of what stands on the bench, and of the row CC. Every worked value is played by a test: see hints.play."""
from hints.page import MARGIN, WRITERS, Page
from kit.svg_kit import CARD, CARD_LINE, GREEN, INK, MONO, NET, RED, SCAN, SECOND, WHITE, YOURS

# Rate, BCR bits 1 and 0, Board-1's BPS, the clock of Board-2 and 3, Board-4's clock with BPSS-L and with BPSS-H.
RATES = [
    ('12Mbps', '3', '12Mbps', '48MHz', '48MHz', '－'),
    ('6Mbps', '2', '6Mbps', '24MHz', '24MHz', '48MHz'),
    ('3Mbps', '1', '3Mbps', '12MHz', '12MHz', '24MHz'),
    ('1.5Mbps', '0', '1.5Mbps', '－', '－', '12MHz'),
]


def duplex_sketch(page, x, title, pairs):
    """Center and board with the pairs of wires between them: (words, from left to right)."""
    page.rect(x, 181, 287, 84, CARD, CARD_LINE, 4)
    page.text(x + 12, 199, '*%s*' % title, 13)
    for left, words in ((x + 12, 'センター'), (x + 205, '局')):
        page.rect(left, 209, 70, 46, WHITE, CARD_LINE, 3)
        page.text(left + 35, 236, words, 12.5, INK, 'middle')
    for y, words, ends in pairs:
        for first, last in ends:
            page.arrow(x + 88 if first else x + 199, y, x + 199 if last else x + 88, GREEN if first else NET)
        page.text(x + 144, y - 6, words, 11.5, INK, 'middle')


def rates():
    page = Page('', '転送レートと、フル/ハーフ')
    foot = page.table(18, 46, [78, 106, 92, 106, 101, 101], RATES,
                      ['レート', 'BCR ビット1,0', 'Board-1 BPS', 'Board-2,3 クロック', 'Board-4 BPSS-L', 'Board-4 BPSS-H'], 17)
    page.text(MARGIN, foot + 18, 'レートはクロックの4分の1、BPSS-H ではさらにその半分。Board-1 だけは、クロックによらず BPS で決まる。', 12.5)
    page.text(MARGIN, foot + 36, 'センターのレートは、*スキャンを始めるとき*に BCR から決まる。局のレートは、変えると次の訪問から効く。', 12.5)
    duplex_sketch(page, 18, '全2重　JMP-F、BCR ビット4 = 1　線2組',
                  [(227, '呼びかけ', [(True, True)]), (249, '返事', [(False, False)])])
    duplex_sketch(page, 315, '半2重　JMP-H、BCR ビット4 = 0　線1組', [(239, '交代で使う', [(True, True), (False, False)])])
    page.try_it(274, ['Board-1 の BPS をダブルクリックして 6Mbps を選ぶ。センターは 12Mbps のまま。',
                      'Board-1 は呼びかけを聞けず、SA 1 のステータス 003H は 7CH になる。',
                      '12Mbps に戻すと、003H は 00H に戻る。'])
    page.refusals(348, '断られるとき', '',
                  [('フル/ハーフのジャンパは、スキャン中は動かない', ''),
                   ('ジャンパと BCR のビット4 が違うと、SCR に書けない', '')])
    page.popup(398, 365, 204, ['スキャン中の変更は禁止です。'])
    page.text(MARGIN, 420, 'ジャンパは、どれか1つを変えれば、すべてのボードが変わる。SA、クロック、BPS、BPSS はいつでも変えられる。', 12.5, SECOND)
    page.legend([], 'センターのクロックは、いつも 48MHz')
    return page


def waveform(page, x, y, word):
    """The three lines of a serial word, bit 15 first."""
    pitch, low = 20, 14
    levels = [word >> bit & 1 for bit in range(15, -1, -1)]
    data = 'M%d %d' % (x, y + low)
    for place, level in enumerate(levels):
        data += ' H%d V%d' % (x + 20 + pitch * place, y + (0 if level else low))
        page.text(x + 30 + pitch * place, y - 6, str(15 - place), 9.5, SECOND, 'middle', MONO)
    page.path(data + ' H%d V%d H%d' % (x + 20 + pitch * 16, y + low, x + 400), NET, 1.5)
    clock = 'M%d %d' % (x, y + 24 + low)
    for place in range(16):
        clock += ' H%d V%d H%d V%d' % (x + 30 + pitch * place, y + 24, x + 40 + pitch * place, y + 24 + low)
    page.path(clock + ' H%d' % (x + 400), INK, 1.5)
    end = x + 20 + pitch * 16 + 10
    page.path('M%d %d H%d V%d H%d V%d H%d' % (x, y + 48 + low, end, y + 48, end + 20, y + 48 + low, x + 400), GREEN, 1.5)
    for row, name in enumerate(('SDI', 'SCK', 'SLD')):
        page.text(x - 8, y + 12 + 24 * row, name, 12.5, INK, 'end', MONO, True)


def serial():
    page = Page('', 'シリアル入力　Board-2 と Board-3 の SHIFT')
    steps = (('SHIFT', '値を送る', YOURS), ('局', '受けて待つ　SE 点灯', SCAN), ('コマンド 7、15', '書いて取りに行く', YOURS),
             ('C7', '480H + 2n に届く', SCAN))
    for number, (who, what, colours) in enumerate(steps):
        x = 18 + 149 * number
        page.rect(x, 46, 136, 44, colours[0], colours[1], 4)
        page.text(x + 68, 63, '*%s*' % who, 12.5, colours[2], 'middle')
        page.text(x + 68, 81, what, 12, colours[2], 'middle')
        if number:
            page.arrow(x - 12, 68, x - 1)
    page.text(MARGIN, 111, '*1234H を送る波形*', 13)
    page.text(150, 111, 'ビット15 が先。SCK 1つで1ビット、終わると SLD が1つ出る。', 12.5, SECOND)
    waveform(page, 110, 134, 0x1234)
    page.card(18, 208, 287, ['SE が点灯し、ステータスのビット0 が 1 になる。', '現れた周だけ、SSR のビット9 が立つ。',
                             '許可しておけば、INT のビット4 で知らせる。'], None, '待っているあいだ', height=82)
    page.card(315, 208, 287, ['SE は消え、コマンドもステータスも 0 に戻る。', 'コマンド 7 と 15 は、どちらも1回だけ取る。',
                              '待っていなくても、前の値がもう一度届く。'], None, '取ったあと', height=82)
    page.try_it(298, ['Board-2 の SHIFT をダブルクリックし、1234 と打って Set、Start を押す。',
                      'SE が点灯し、SA 2 のステータス 005H が 01H になる。',
                      '004H に、8 bit で 07H を書く。484H が 1234H になり、SE が消える。'], 17)
    page.refusals(367, '断られるとき', '', [('SE が点灯しているあいだは、次の値を送れない', '')])
    page.popup(336, 378, 266, ['SEがローレベル(LED点灯)中は入力', 'できません。'])
    page.text(MARGIN, 420, '局の RESET を押しても、待っている値は消えない。', 12.5, SECOND)
    page.legend(['you', 'scan'], 'n：局の SA', you='あなたの仕事', scan='ひとりでに進む')
    return page


IOS = [
    ('0', '0-15', '－', ''),
    ('1', '0-11', '12-15', ''),
    ('2', '0-7', '8-15', ''),
    ('3', '0-3', '4-15', ''),
    ('4', '0、1', '2-15', ''),
    ('5', '－', '0-15', 'はじめの値'),
    ('6', '0-7', '8-11', 'ピン12-15 で PWM のランプ'),
    ('7', '0-3', '8-11', 'PWM のモータと、12ビットのカウンタ'),
]


def drive():
    page = Page('', 'カウンタ、IOS のモード、ランプとモータ')
    page.text(MARGIN, 54, '*IOS　Board-4 のピンの役目*', 13.5)
    foot = page.table(18, 60, [44, 56, 56, 229], IOS, ['IOS', 'DI', 'DO', 'ほかに'], 15, 11.5)
    page.card(411, 46, 191, ['*Board-2* *Board-3*　16ビット', 'ボード1つに C1 から C6。', 'コマンド 1-6 で読む。', '*Board-4*　12ビット', 'IOS 7 のときだけ。',
                             'DI のビット0-11 に入る。', '数えるのは、離した瞬間。'], None, 'カウンタ', height=150, pitch=16)
    page.text(MARGIN, foot + 19, 'IOS 7 では、スイッチ 0-3 が DI のビット12-15 に入る。', 12.5)
    page.text(MARGIN, foot + 36, 'IOS を替えると、Board-4 の入力はみな 0 に戻る。DO の値は残る。', 12.5)
    top = foot + 56
    page.text(MARGIN, top, '*PWM*', 13.5)
    page.text(70, top, 'DO の下位バイトが、ランプとモータへの指図になる(IOS 6 と 7)。', 12.5)
    for bit in range(7, -1, -1):
        fill, line, ink = WRITERS['scan' if bit > 5 else 'you']
        x = 70 + 44 * (7 - bit)
        page.text(x + 22, top + 17, str(bit), 11, SECOND, 'middle', MONO)
        page.rect(x, top + 22, 44, 20, fill, line)
        page.text(x + 22, top + 36, {7: 'CCW', 6: 'CW'}.get(bit, 'P%d' % bit), 12, ink, 'middle', MONO, True)
    page.text(436, top + 30, '*P*　強さ 0-63', 12.5)
    page.text(436, top + 47, '*CW*、*CCW*　回る向き', 12.5)
    page.note(top + 64, 'IOS 6', 'ランプは *CW* だけに答え、強さ8ごとに明るくなる。*CCW* では光らない。', 58)
    page.note(top + 82, 'IOS 7', '*CW* で時計回り、*CCW* で反時計回り。両方 0 でも両方 1 でも止まる。', 58)
    page.note(top + 100, '止める', 'CLR か RESET を押しているあいだと、強さ 0 で止まる。RESET はカウンタも消す。', 58)
    page.try_it(358, ['IOS を 7 にし、SA 4 の DO、088H に 00A0H を書く。ベルトが反時計回りに回る。',
                      '左のカウンタのボタンを3回クリックすると、108H は 0003H になる。',
                      '088H に 00E0H を書くと、向きが両方になって止まる。'], 17)
    page.legend(['scan', 'you'], 'Mode で動くのは「0 フリーカウント」だけ', scan='向き', you='強さ')
    return page


ROWS = [
    ('SCR', '580H', 'どこまで回るか', 'あなた、上位を消すのはスキャン'),
    ('SSR', '582H', '次に訪ねる SA、前の周の報告', 'スキャン'),
    ('HPR', '584H', 'ハザード保護', 'あなた(2つのビットだけ)'),
    ('INT0R', '586H', '割り込み0 の許可と要求', '両方'),
    ('INT1R', '588H', '割り込み1 の許可と要求', '両方'),
    ('C1CR', '58AH', 'CHK1、1回めの失敗の数', 'スキャン、消すのはあなた'),
    ('C2CR', '58CH', 'CHK2、続けて3回めの失敗の数', 'スキャン、消すのはあなた'),
    ('BCR', '58EH', 'レートと、フル/ハーフ', 'あなた(停止中)'),
    ('CC', 'なし', '空きの行', 'だれも書けない'),
]


def cc():
    page = Page('CC', 'レジスタのない行　Register Window の見かた')
    foot = page.table(18, 46, [70, 70, 236, 208], ROWS, ['行', '番地', '何を見せるか', '書く人'], 17)
    page.card(18, foot + 10, 287, ['QDA60 のレジスタは8個で、窓の行は9つ。', 'CC の行には番地もレジスタもなく、',
                                   '値はいつも 0000H に見える。'], 'CC', '空きの行', 'zero', height=84)
    page.card(315, foot + 10, 287, ['変わった側は、3秒あまり赤い字になる。', '休まず動く SSR の下位だけは、赤くならない。',
                                    '左の2けたが上位バイト、右が下位バイト。'], None, '窓の見かた', height=84)
    page.try_it(foot + 104, ['CC の値をダブルクリックする。書き込みの窓は開くが、番地は 000H になっている。',
                             'FFFFH と打って Write を押す。メモリの 000H も、ほかのレジスタも変わらない。'])
    page.note(foot + 169, '16ビット', '16ビットのバスでは上位と下位を一度に書ける。8 bit を選べば片側だけ。', 76)
    page.note(foot + 186, '8ビット', '8ビットのバスでは片側ずつ。クリックした側の窓が開く。', 76)
    page.text(MARGIN, foot + 204, 'この窓が開いていれば、書き込みの窓といっしょに、そのレジスタのページが出る。', 12.5, SECOND)
    page.legend([], 'チップ名 "QDA60 " は 590H から。8ビットバスの Memory Read で読める')
    return page


PAGES = [('RATE', 'レートとフル/ハーフ', rates), ('SERIAL', 'シリアル入力', serial),
         ('DRIVE', 'カウンタ、IOS、モータ', drive), ('CC', 'CC', cc)]
