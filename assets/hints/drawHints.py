"""Draws the pages of the register hints and writes their list.

    python3 drawHints.py OUTPUT-FOLDER
"""
import os
import sys

import memoryPages
import registerPages

LIST = 'RegsterHint.TXT'
FILES = ['SCR', 'SSR', 'HPR', 'INT0R', 'INT1R', 'CXCR', 'CONTROL', 'BCR', 'MEMORY', 'DIDO', 'COMMAND', 'HAZARD']


def main(folder):
    lines = ['; The pages of the register hints: picture, caption. The seventh is the control word\'s.']
    for name, (caption, draw) in zip(FILES, registerPages.PAGES + memoryPages.PAGES, strict=True):
        with open(os.path.join(folder, name + '.svg'), 'w', encoding='utf-8') as out:
            out.write(draw().svg())
        lines.append('%s.BMP\t%s' % (name, caption))
    with open(os.path.join(folder, LIST), 'w', encoding='utf-8', newline='\r\n') as out:
        out.write('\n'.join(lines) + '\n')


if __name__ == '__main__':
    main(sys.argv[1])
