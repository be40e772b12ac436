"""Draws all circuit diagrams.

    python3 drawDiagrams.py OUTPUT-FOLDER

writes one SVG for each picture of the folder Kairozu, under its name. The two "add half" pictures are laid over the top left
corner of a full-duplex diagram.
"""
import os
import sys

import centerBoard
import ioBoard
import satelliteBoards


def main(folder):
    for board in (centerBoard, satelliteBoards, ioBoard):
        for name, svg in board.draw().items():
            with open(os.path.join(folder, name + '.svg'), 'w', encoding='utf-8') as out:
                out.write(svg)


if __name__ == '__main__':
    main(sys.argv[1])
