# SPDX-License-Identifier: Apache-2.0
"""The pages of what lies behind the registers. Every worked value is played by a test: see hints.play."""
from hints.page import MARGIN, Page
from kit.svg_kit import AREA, CARD, CARD_LINE, FAINT, GREEN, HATCH, INK, MONO, NET, SANS, SCAN, SECOND, WHITE, YOURS

# Address, size, name, who writes, strip colour, window.
AREAS = [
    ('000H', '07FH', 'コントロールワード', '下位 あなた、上位 スキャン', AREA, 'Control'),
    ('080H', '0FFH', 'DO　局へ送る出力', 'あなた', GREEN, 'DO'),
    ('100H', '17FH', 'DI　局から来た入力', 'スキャン(コマンド 0、8)', NET, 'DI'),
    ('180H', '47FH', 'C1 - C6　カウンタの値', 'スキャン(コマンド 1-6、9-14)', AREA, 'C1～C6'),
    ('480H', '4FFH', 'C7　シリアルの値', 'スキャン(コマンド 7、15)', AREA, 'C7'),
    ('500H', '57FH', 'DRC　変化検出のマスク', 'あなた', AREA, 'DRC'),
    ('580H', '58FH', 'レジスタ 8 個', 'あなたとスキャン', FAINT, ''),
    ('590H', '595H', 'チップ名 "QDA60 "', 'リセットだけ', FAINT, ''),
    ('596H', '7FFH', '使われない', 'だれも書かず、いつも 0', HATCH, ''),
]


def memory_map():
    page = Page('', 'メモリマップ　QDA60 の 2048 バイト')
    for x, words in ((30, '番地'), (122, '中身'), (388, '書く人')):
        page.text(x, 53, words, 12, SECOND)
    y = 58
    for first, last, name, writer, colour, strip in AREAS:
        page.rect(18, y, 360, 21, WHITE, CARD_LINE, 2)
        page.rect(18, y, 5, 22, colour)
        page.text(30, y + 15, first, 12, INK, 'start', MONO, True)
        page.text(68, y + 15, '-', 12, SECOND, 'middle')
        page.text(78, y + 15, last, 12, INK, 'start', MONO, True)
        page.text(122, y + 15, name, 12.5)
        page.text(388, y + 15, writer, 12.5, SECOND)
        y += 23
    page.card(18, 272, 287, ['SA n のワードは、先頭の番地 + 2 × n にある。', '偶数番地が下位バイト、奇数番地が上位バイト。',
                             'SA 2 なら、コントロール 004H、DO 084H、', 'DI 104H、C1 184H、DRC 504H。'], None, '局ごとに1ワード', height=102)
    page.card(315, 272, 287, ['Control、DO、DI：はじめから開く窓', 'C1～C7、DRC：Memory Window から開く',
                              'レジスタ：Register Window', 'チップ名：Memory Read (8ビットバスだけ)'], None, '見える窓', height=102)
    page.try_it(381, ['Board-2 (SA 2)の DI の 0 番をクリックする。', '100H + 2 × 2 = 104H が 0001H になる。'], 17)
    page.legend([], 'ビッグエンディアンのバスでは、偶数番地に上位バイトが見える')
    return page


def di_do_drc():
    page = Page('', 'DI/DO と DRC　訪問1回で運ばれるもの')
    for x, wide, title, lines in ((18, 150, 'メモリ(QDA60)', ()), (452, 150, 'ボード', ())):
        page.rect(x, 46, wide, 112, CARD, CARD_LINE, 4)
        page.text(x + wide / 2, 63, '*%s*' % title, 13, INK, 'middle')
    for x, y, name, where, colours in ((28, 72, 'DO', '080H + 2n', YOURS), (28, 116, 'DI', '100H + 2n', SCAN)):
        page.rect(x, y, 130, 34, colours[0], colours[1], 3)
        page.text(x + 12, y + 22, name, 14, colours[2], 'start', SANS, True)
        page.text(x + 44, y + 22, where, 12.5, colours[2])
    for y, name in ((72, 'LED 16個'), (116, 'スイッチ 16個')):
        page.rect(462, y, 130, 34, WHITE, CARD_LINE, 3)
        page.text(527, y + 22, name, 12.5, INK, 'middle')
    page.arrow(159, 89, 461, GREEN)
    page.text(310, 83, '① 呼びかけに DO をのせて送る', 12.5, INK, 'middle')
    page.arrow(461, 133, 159, NET)
    page.text(310, 127, '② 返事に DI をのせて返す', 12.5, INK, 'middle')
    page.text(310, 150, '返事がなければ DI はそのまま、失敗が1つ数えられる', 12, SECOND, 'middle')
    page.card(18, 168, 287, ['呼びかけを聞いたボードが、すぐ LED に出す。', '返事が失敗しても、DO は届いている。',
                             'CLR を押しているあいだは出ない。'], 'DO', 'あなたが書く', height=84)
    page.card(315, 168, 287, ['訪問のたびに、いまのスイッチの値が届く。', '失敗のあと最初の値は捨てられ、次から入る。',
                              'SSB を 1 にすると、最初の値から入る。'], 'DI', 'スキャンが書く', 'scan', height=84)
    page.card(18, 259, 584, ['*DRC* の 1 のビットだけを見張る。DI のそのビットが変わった訪問で、ステータスのビット1 が立ち、',
                             '周の終わりに SSR のビット8 が立つ。INT0R で許可しておけば、割り込みで知らせてくる。',
                             '*0000H* なら見張らない。はじめは全局 0000H。'], 'DRC', '変化検出のマスク　500H + 2n', height=84)
    page.try_it(350, ['DRC の 502H に 0001H、INT0R に 0200H を書いて、Board-1 の DI 0 番をクリックする。',
                      'INT0R は 0202H になり、INT0 の表示が光る。DI の 1 番をクリックしても、何も起こらない。'], 17)
    page.text(MARGIN, 419, 'スキャン中は、DI の番地に書けない(「スキャン中はライトプロテクト」)。DO と DRC はいつでも書ける。', 12.5, SECOND)
    page.legend(['you', 'scan'], 'n：局の SA')
    return page


COMMANDS = [
    ('0', 'DI を読む', '100H', 'くり返す'),
    ('1 - 6', 'カウンタ C1 - C6 を読む', '180H - 400H', 'くり返す'),
    ('7', 'シリアルの値を取る', '480H', '消える'),
    ('8', 'DI を1回だけ読む', '100H', '消える'),
    ('9 - 14', 'カウンタ C1 - C6 を 0 にする', '180H - 400H', '消える'),
    ('15', 'シリアルの値を取る', '480H', '消える'),
]
STEPS = [
    ('0', '00H', 'そのまま。周ごとに同じコマンドをくり返す'),
    ('1', '10H', '1回運んだら、ビット0-5 が消える'),
    ('2', '20H', '0、1、2 … 6 と進み、また 0 から。終わらない'),
    ('3', '30H', '0、1、2 … 6 と進み、6 のあとビット0-5 が消える'),
]


def commands():
    page = Page('', 'コマンドとステップモード')
    page.text(MARGIN, 56, '*コマンド*', 13.5)
    page.text(96, 56, 'コントロールワードのビット0-3。局ごとに、次の訪問で何を運ぶかを決める。', 12.5)
    foot = page.table(18, 64, [74, 258, 126, 126], COMMANDS, ['コマンド', '運ぶもの', '届く番地(+2n)', 'モード 0 で'], 17)
    page.text(MARGIN, foot + 16, 'カウンタとシリアルは Board-2 と Board-3 だけが持つ。Board-1 と Board-4 は、DI のほかは 0 を返す。', 12.5, SECOND)
    page.text(MARGIN, foot + 42, '*ステップモード*', 13.5)
    page.text(126, foot + 42, 'ビット4-5。運んだあと、コマンドをどう変えるかを決める。', 12.5)
    foot = page.table(18, foot + 50, [74, 74, 436], STEPS, ['モード', '足す値', '運んだあと'], 17)
    page.text(MARGIN, foot + 16, '失敗した訪問では進まない。コマンド 7 から 15 は、モードによらず1回で消える。', 12.5, SECOND)
    page.try_it(foot + 25, ['Board-2 の白いボタン 2 番を2回クリックし、004H に 0030H を書く。',
                            'DI から C6 までを1周ずつ読んで、004H は 0000H に戻る。C3 の 284H は 0002H になる。'], 17)
    page.text(MARGIN, 419, '0020H を書けば、DI も C1 - C6 も、いつも新しい値がメモリにそろう。', 12.5, SECOND)
    page.legend([], 'n：局の SA　SA 2 の C3 = 280H + 2 × 2 = 284H')
    return page


def hazard():
    page = Page('', 'ハザード保護　2つのバイトを、ばらばらにしない')
    for y, title, colours, steps in (
            (46, '書き込み', YOURS, (('CPU', '1バイトめを書く'), ('バッファ', '待つ　HPR 1100H'), ('CPU', '2バイトめを書く'),
                                 ('メモリ', '2つを一度に書く'))),
            (142, '読み取り', SCAN, (('CPU', '1バイトめを読む'), ('バッファ', '2つとも取る'), ('CPU', '2バイトめを読む'),
                                 ('バッファ', '取っておいた方を返す')))):
        page.text(MARGIN, y + 14, '*%s*' % title, 13.5)
        page.text(84, y + 14, 'HPR の上位に 10H' if title == '書き込み' else 'HPR の下位に 10H', 12.5, SECOND)
        for number, (who, what) in enumerate(steps):
            x = 18 + 149 * number
            fill, line, ink = colours if who == 'バッファ' else (WHITE, CARD_LINE, INK)
            page.rect(x, y + 22, 136, 44, fill, line, 4)
            page.text(x + 68, y + 39, '*%s*' % who, 12.5, ink, 'middle')
            page.text(x + 68, y + 57, what, 12, ink, 'middle')
            if number:
                page.arrow(x - 12, y + 44, x - 1)
        page.text(MARGIN, y + 84, '待っていたバイトは、2バイトめと同じワードに入る。偶数側か奇数側かは、1バイトめの番地で決まる。'
                  if title == '書き込み' else 'バッファは番地を見ない。偶数か奇数かだけで、取っておいたバイトを返し、HPR のビット0 が消える。',
                  12.5, SECOND)
    page.card(18, 234, 287, ['DO の下位を書いた直後にスキャンが来ると、', '新しい下位と古い上位が、局に届いてしまう。',
                             'DI も、読む合間に変わると食い違う。'], None, '保護がないと', height=84)
    page.card(315, 234, 287, ['8ビットバスの 080H - 4FEH (読み取りは 4FFH)', 'コントロールワードと DRC は、そのまま届く。',
                              '16ビットで書くと、待っていたバイトは捨てられる。'], None, '効くところ', height=84)
    page.try_it(325, ['HOST CPU を 8bit-Bus Little にし、HPR の上位に 10H を書く。',
                      '083H に AAH を書くと、083H はまだ 00H で、HPR は 1100H になる。',
                      '082H に 0FH を書くと、ワードは AA0FH になり、Board-1 の LED が一度に変わる。'], 17)
    page.popup(18, 396, 440, ['ハザードプロテクト中。ライトテンポラリバッファへ書き込みました。'])
    page.text(468, 413, '← 待つときの知らせ', 12, SECOND)
    page.legend([], 'CPU は HOST CPU をダブルクリックして選ぶ')
    return page


PAGES = [('MEMORY', 'メモリマップ', memory_map), ('DIDO', 'DI/DO と DRC', di_do_drc), ('COMMAND', 'コマンドとステップ', commands),
         ('HAZARD', 'ハザード保護', hazard)]
