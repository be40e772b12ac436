# SPDX-License-Identifier: Apache-2.0
"""The pages of the registers and of the control word. Every worked value is played by a test: see hints.play."""
from hints.page import MARGIN, Page
from kit.svg_kit import INK, NEVER, SCAN, SECOND, WHITE

ZERO = ('0', 'zero')


def bits(text, writer):
    """Names of bits with one writer."""
    return [(name, writer) for name in text.split()]


def scr():
    page = Page('SCR', 'スキャン制御レジスタ', [('起動直後', '0004H'), ('リセット後', '0000H')])
    page.bits([ZERO] * 2 + bits('S5 S4 S3 S2 S1 S0', 'you') + [ZERO] * 2 + bits('L5 L4 L3 L2 L1 L0', 'you'),
              '上位バイト 581H', '下位バイト 580H')
    page.example('0002H')
    page.writers([(15, 14, 'いつも0', 'zero'), (13, 8, 'あなた → 終わるとスキャンが消す', 'scan'),
                  (7, 6, 'いつも0', 'zero'), (5, 0, 'あなた(消すのもあなた)', 'you')])
    page.card(18, 139, 287, ['SA 1 から S まで、1周だけ回る。', '止まっているときに 0 以外を書くと始まる。',
                             '1周が終わると、スキャンが 00H に戻す。'], 'S', '1回スキャンの最終SA', height=84)
    page.card(315, 139, 287, ['SA 1 から L まで、くり返し回る。', '0 以外を書くと始まる。新しい値は次の周から。',
                              '止めるには 00H を書く(周の終わりで止まる)。'], 'L', '連続スキャンの最終SA', height=84)
    page.try_it(231, ['起動して連続スキャン中に、SCR の値をダブルクリックして 0002H を書く。',
                      'S = 0、L = 2 なので断られない。次の周からは SA 1 と 2 だけを回り、',
                      'SSR の下位は 81H と 82H だけになる。続けて 0000H を書くと周の終わりで止まり、00H になる。'])
    foot = page.refusals(302, '書き込みが断られるとき', 'SCR は前の値のまま。',
                         [('上位も下位も 00H でない(16ビット書き込み)', '0404H'),
                          ('連続スキャン中に、上位が 00H でない', '0400H'),
                          ('1回スキャン中に、上位か下位が 00H でない', '0002H'),
                          ('全2重(BCR のビット4 が 1)で、S か L が 1', '0001H')],
                         ['入力された値が不適切である', 'ため、書き込まれません。'])
    page.line(MARGIN, foot + 1, 602, foot + 1)
    page.text(MARGIN, foot + 17, 'BCR のビット4 とジャンパ JMP-F / JMP-H が合わないときは、どの値も(0000H も)書けず、警告が出る。', 12.5)
    page.legend(['you', 'scan', 'zero'], '1周：SA 1 から最終SA まで')
    return page


def ssr():
    page = Page('SSR', 'スキャン状態レジスタ', [('停止中の下位', '00H'), ('リセット後', '0000H')])
    page.bits([ZERO] * 5 + bits('E S D R', 'scan') + [ZERO] + bits('A5 A4 A3 A2 A1 A0', 'scan'),
              '上位バイト 583H', '下位バイト 582H')
    page.example('0483H')
    page.writers([(15, 11, 'いつも0', 'zero'), (10, 8, 'スキャン', 'scan'), (7, 7, '〃', 'scan'),
                  (6, 6, '0', 'zero'), (5, 0, 'スキャン(訪問のたびに書き直す)', 'scan')])
    page.card(18, 139, 287, ['*D* ビット8：DRC で見張る DI が変わった', '*S* ビット9：シリアルの値が新しく現れた',
                             '*E* ビット10：返事のない局があった', '失敗が7回続いた局は、もう E を立てない。'],
              'E S D', '終わった周の知らせ', 'scan', height=102)
    page.card(315, 139, 287, ['*R* ビット7：スキャン中は 1', '*A* ビット0-5：次に訪ねる SA',
                              'ビット7 と合わせて、SA 3 なら 83H に見える。', '始まって最初の訪問のあいだは、まだ 00H。'],
              'R A', 'これから訪ねる局', 'scan', height=102)
    page.try_it(249, ['画面上の STOP で時間を止め、1-Time を続けてクリックする。',
                      'SSR の下位は 81H、82H、83H、84H と進み、また 81H に戻る。',
                      'RUN に戻し、SCR に 0000H を書くとスキャンが止まり、SSR は 0000H になる。'])
    page.refusals(322, '書き込みが断られるとき', 'SSR はスキャンだけが書く。',
                  [('値をダブルクリックしても、書き込みの窓は開かない', '')])
    page.popup(22, 366, 250, ['このレジスタはリードオンリーです。'])
    page.text(290, 383, '起こったことは、1周ごとに新しく報告される。', 12.5, SECOND)
    page.text(MARGIN, 414, '例 0483H：いま SA 3 へ進むところ。前の周に、返事のない局があった。', 12.5)
    page.legend(['scan', 'zero'], '割り込みで知るには INT0R、INT1R')
    return page


def hpr():
    page = Page('HPR', 'ハザード保護レジスタ', [('起動直後', '0000H'), ('リセット後', '0000H')])
    page.bits([ZERO] * 3 + bits('WP', 'you') + [ZERO] * 3 + bits('WB', 'scan') + [ZERO] * 3 + bits('RP', 'you') +
              [ZERO] * 3 + bits('RB', 'scan'), '上位バイト 585H', '下位バイト 584H')
    page.example('1010H')
    page.writers([(15, 13, '0', 'zero'), (12, 12, '人', 'you'), (11, 9, '0', 'zero'), (8, 8, '機', 'scan'),
                  (7, 5, '0', 'zero'), (4, 4, '人', 'you'), (3, 1, '0', 'zero'), (0, 0, '機', 'scan')])
    page.card(18, 139, 287, ['*WP* ビット12：1 で書き込みの保護を入れる', '1バイトめはバッファで待ち、',
                             '2バイトめといっしょにメモリへ書かれる。', '*WB* ビット8：バッファに1バイト待っている'],
              'WP WB', '書き込みの保護', height=102)
    page.card(315, 139, 287, ['*RP* ビット4：1 で読み取りの保護を入れる', '1バイトめを読むと、2バイトともバッファへ。',
                              '次の読み取りは、番地によらずバッファが答える。', '*RB* ビット0：バッファにワードが入っている'],
              'RP RB', '読み取りの保護', height=102)
    page.try_it(249, ['HPR に FFFFH を書く。', 'HPR は 1010H になる。WP と RP の2つだけが動き、ほかのビットは書いても変わらない。',
                      '0000H を書けば、両方とも切れて 0000H に戻る。'])
    page.note(340, '守るもの', '8ビットバスの、8ビットずつの読み書き。番地は 080H から、')
    page.text(MARGIN + 76, 358, '書き込みは 4FEH まで、読み取りは 4FFH まで。', 12.5)
    page.note(380, 'WB、RB', 'HPR に書いても消えない。2バイトめの読み書きか、リセットで消える。')
    page.note(402, 'スキャン', 'HPR はスキャンの動きを変えない。スキャン中にも書ける。断られる値はない。')
    page.text(MARGIN, 422, '動きの図は「ハザード保護」のページにある。', 12.5, SECOND)
    page.legend(['you', 'scan', 'zero'], '書く人の「人」はあなた、「機」はチップ', scan='メモリの読み書きで変わる')
    return page


REQUESTS = [
    ('0', 'DRC で見張る DI が変わった', '訪問のとき', ''),
    ('1', '同じ', '周の終わり', ''),
    ('2', '同じ　スキャンを待たせる', '周の終わり', ''),
    ('3', '1周が終わった', '周の終わり', '○'),
    ('4', 'シリアルの値が現れた(前の周に DI の変化なし)', '周の終わり', '○'),
    ('5', 'CHK1：1回めの失敗があった', '周の終わり', '○'),
    ('6', 'CHK2：続けて3回めの失敗があった', '周の終わり', '○'),
    ('7', 'スキャンが止まった', '止まったとき', '○'),
]


def requests(name, title, row, bytes_, example, writers, rows, remarks, tries, *legend):
    """The page of an interrupt register with the rows of its requests."""
    heading = ['要求ビット', '立つとき', '時', 'INT1R にも'][:len(rows[0])]
    page = Page(name, title, [('起動直後', '0000H'), ('リセット後', '0000H')])
    page.bits(row, '上位バイト %s　許可' % bytes_[0], '下位バイト %s　要求' % bytes_[1])
    page.example(example)
    page.writers(writers)
    foot = page.table(18, 140, [70, 322, 116, 76], rows, heading, min(22, 132 / len(rows)))
    for line, remark in enumerate(remarks):
        page.text(MARGIN, foot + 17 * (line + 1), remark, 12.5)
    page.try_it(foot + 43, tries)
    page.text(MARGIN, 419, '16ビットで書くと、上位はその値になり、下位は 1 を書いたビットが消える。断られる値はない。', 12.5, SECOND)
    page.legend(*legend)
    return page


def int0r():
    return requests(
        'INT0R', '割り込み0 レジスタ',
        bits('E7 E6 E5 E4 E3 E2 E1 E0', 'you') + bits('R7 R6 R5 R4 R3 R2 R1 R0', 'scan'), ('587H', '586H'), '0808H',
        [(15, 8, 'あなた', 'you'), (7, 0, 'スキャンが立て、あなたが 1 を書いて消す', 'scan')], REQUESTS,
        ['許可 *En* が 1 のときだけ、要求 *Rn* が立つ。1つでも立つと、Center-Board に INT0 の表示が光る。',
         '*R2* が 1 のあいだ、スキャンは次の訪問をせずに待つ。消すと続きから動く。'],
        ['INT0R に 0800H を書く。「1周が終わった」の許可である。', 'すぐ次の周の終わりに 0808H になり、INT0 の表示が光る。',
         '0008H を書くと許可も要求も消えて、0000H になる。'],
        ['you', 'scan'], '0200H：変化のあった周の終わりに INT0')


def int1r():
    return requests(
        'INT1R', '割り込み1 レジスタ',
        bits('E7 E6 E5 E4 E3', 'you') + [ZERO] * 3 + bits('R7 R6 R5 R4 R3', 'scan') + [ZERO] * 3, ('589H', '588H'), 'F808H',
        [(15, 11, 'あなた', 'you'), (10, 8, 'いつも0', 'zero'), (7, 3, 'スキャン、消すのはあなた', 'scan'), (2, 0, 'いつも0', 'zero')],
        [request[:3] for request in REQUESTS[3:]],
        ['INT0R と同じ働きで、ビット3 から 7 だけを持つ。スキャンを待たせるビットはない。',
         '2つの割り込みに、別々の用事を割り当てられる。要求が立つと INT1 の表示が光る。'],
        ['正常なスキャン中に、INT1R に FFFFH を書く。',
         'F808H になる。許可は5ビットだけが残り、「1周が終わった」の要求がすぐ立つ。',
         '00FFH を書くと許可も要求も消えて、0000H になる。'],
        ['you', 'scan', 'zero'])


def c1cr():
    page = Page('C1CR C2CR', '失敗の回数', [('起動直後', '0000H'), ('リセット後', '0000H')])
    page.bits([ZERO] * 8 + bits('N7 N6 N5 N4 N3 N2 N1 N0', 'scan'), '上位バイト 58BH / 58DH', '下位バイト 58AH / 58CH')
    page.example('0003H')
    page.writers([(15, 8, 'いつも0', 'zero'), (7, 0, 'スキャンが数え、あなたが消す', 'scan')])
    page.card(18, 139, 287, ['局が、正常のあとはじめて失敗するたびに', '1 増える。Chk1 のランプが光る。',
                             '1回だけのノイズも数える。'], 'C1CR', 'CHK1 の回数', 'scan', height=84)
    page.card(315, 139, 287, ['同じ局が続けて3回めに失敗するたびに', '1 増える。Chk2 のランプが光る。',
                              '断線や電源断など、続く故障を数える。'], 'C2CR', 'CHK2 の回数', 'scan', height=84)
    page.text(MARGIN, 243, '*1局の失敗が続くと*', 13)
    x = 150
    for count, status, note in ((1, '14H', 'CHK1'), (2, '24H', ''), (3, '3CH', 'CHK2'), (4, '4CH', ''), (5, '5CH', ''),
                                (6, '6CH', ''), (7, '7CH', 'ここまで')):
        page.rect(x, 231, 58, 34, WHITE if not note else SCAN[0], SCAN[1] if note else NEVER[1], 3)
        page.text(x + 29, 245, '%d回 ' % count + status, 11.5, INK, 'middle')
        page.text(x + 29, 260, note, 11.5, SCAN[2], 'middle')
        x += 64
    page.text(MARGIN, 260, '(回数とステータス)', 11.5, SECOND)
    page.try_it(275, ['Board-1 と Board-2 のあいだのケーブルを抜く。C1CR も C2CR も 0003H になる。',
                      'C1CR に FFFEH を書いても 0003H のまま。0001H を書くと 0000H になる。',
                      'つなぎ直すとステータスは 00H に戻るが、C2CR の 0003H は消すまで残る。'])
    page.note(357, '消し方', '下位のビット0 に 1 を書くと 00H になる。ほかのビットと上位は、書いても何も起こらない。', 58)
    page.note(379, '上限', 'FFH で止まり、0 に戻らない。ランプはそのあとも光る。', 58)
    page.note(401, 'ランプ', 'Chk1 と Chk2 は、数えてから RUN で 1.5 秒ほど(5000 訪問ぶん)光る。', 58)
    page.text(MARGIN, 421, '断られる値はない。スキャン中にも書ける。', 12.5, SECOND)
    page.legend(['scan', 'zero'], 'CHK：チェック(通信の失敗)')
    return page


def control_word():
    page = Page('', 'コントロールワード　局 SA ごとに1ワード　000H + 2 × SA', [])
    page.bits([ZERO] + bits('F2 F1 F0 M E D S', 'scan') + bits('K K', 'kept') + bits('T1 T0 N3 N2 N1 N0', 'you'),
              '上位バイト　ステータス', '下位バイト　コマンド')
    page.example('3C00H')
    page.writers([(15, 15, '0', 'zero'), (14, 8, 'スキャン(訪問のたびに書き直す)', 'scan'), (7, 6, '残る', 'kept'),
                  (5, 0, 'あなた、1回ものはスキャンが消す', 'you')])
    page.card(18, 139, 287, ['*S* シリアルの値が待っている(SE が点灯)', '*D* この訪問で、見張る DI が変わった',
                             '*E* 失敗中　*M* 続けて3回以上の失敗', '*F* 続けて失敗した回数、7 で止まる',
                             '正常な返事があると、F M E は 0 に戻る。'], 'F M E D S', 'ステータス', 'scan', height=118)
    page.card(315, 139, 287, ['*N* コマンド 0-15：何を運ぶか', '　0 DI　1-6 C1-C6　7-15 は1回だけ',
                              '*T* ステップモード：運んだあとコマンドをどうするか', '　0 そのまま　1 消す　2 +1 で循環　3 +1 で1巡',
                              '*K* 何を書いても、スキャンは変えない'], 'T N', 'コマンド', height=118)
    page.try_it(265, ['メモリの 004H (SA 2)に 0011H を書く。C1 を1回だけ読むコマンドである。',
                      '次の訪問で C1 が 184H に届き、004H は 0000H に戻る。',
                      'ケーブルをみな抜くと、002H から 008H までの上位は、訪問のたびに増えて 7CH になる。'])
    page.refusals(338, '書き込みが断られるとき', 'スキャン中だけ。',
                  [('16ビット書き込みで、上位が変わる(下位は書かれる)', 'FF00H'),
                   ('8ビットバスで、上位をダブルクリックする', '')])
    page.popup(408, 352, 194, ['スキャン中、コントロール', 'ワードの上位バイトは', 'ライトプロテクト。'])
    page.text(MARGIN, 416, '例 3C00H：続けて3回失敗した局(F が 3、M と E が 1)。', 12.5, SECOND)
    page.legend(['you', 'scan', 'kept', 'zero'], '表 →「コマンドとステップ」')
    return page


def bcr():
    page = Page('BCR', 'ボード設定レジスタ', [('起動直後', '0013H'), ('リセット後', '0013H')])
    page.bits([ZERO] * 5 + bits('X2 X1 X0', 'kept') + [ZERO] * 3 + bits('FD', 'you') + [ZERO] * 2 + bits('B1 B0', 'you'),
              '上位バイト 58FH', '下位バイト 58EH')
    page.example('0013H')
    page.writers([(15, 11, 'いつも0', 'zero'), (10, 8, '使われない', 'kept'), (7, 5, 'いつも0', 'zero'), (4, 4, '人', 'you'),
                  (3, 2, '0', 'zero'), (1, 0, 'あなた', 'you')])
    page.card(18, 139, 287, ['1 全2重(ジャンパ JMP-F)', '0 半2重(ジャンパ JMP-H)', 'ジャンパと合わないと、スキャンを始められない。',
                             '全2重では、SCR の最終SA に 1 は書けない。'], 'FD', 'フルとハーフ', height=102)
    page.card(315, 139, 287, ['', '', '', ''], 'B', '転送レート(スキャン開始のとき決まる)', height=102)
    page.table(327, 171, [60, 70, 133], [('3', '12Mbps', '局のクロック 48MHz'), ('2', '6Mbps', '局のクロック 24MHz'),
                                         ('1', '3Mbps', '局のクロック 12MHz'), ('0', '1.5Mbps', 'Board-1 と Board-4 だけ')],
               None, 16.5)
    page.try_it(249, ['SCR に 0000H を書いて止めてから、BCR に FFFFH を書く。BCR は 0713H になる。',
                      '0012H を書いて SCR に 0004H を書くと、センターだけが 6Mbps になり、全局が失敗する。',
                      'C1CR は 0004H。止めて 0013H に戻せば、また通信できる。'])
    foot = page.refusals(322, '書き込みが断られるとき', '',
                         [('スキャン中は、ダブルクリックしても窓が開かない', '')])
    page.popup(392, 338, 210, ['スキャン中はライトプロテクト。'])
    page.text(MARGIN, foot + 16, 'FD がジャンパと合わない値は、書かれたうえで警告が出る(例：JMP-F のとき 0003H)。', 12.5)
    page.text(MARGIN, foot + 34, '合うまでは SCR に何も書けない。BCR を書き直すか、ジャンパを替える。', 12.5)
    page.text(MARGIN, foot + 56, 'センターの RESET は、設定によらず 0013H にする。半2重の設定で立ち上げたときは 0003H。', 12.5, SECOND)
    page.legend(['you', 'zero'], '人：あなた　X は覚えるだけで、何も変えない')
    return page


PAGES = [('SCR', 'SCR', scr), ('SSR', 'SSR', ssr), ('HPR', 'HPR', hpr), ('INT0R', 'INT0R', int0r), ('INT1R', 'INT1R', int1r),
         ('CXCR', 'C1CR C2CR', c1cr), ('CONTROL', 'コントロールワード', control_word), ('BCR', 'BCR', bcr)]
