# SPDX-License-Identifier: Apache-2.0
"""Draws a set of pictures as SVG, with the lists that belong to them.

    python3 draw.py drawings|hints|diagrams FOLDER

The folder then holds the set and nothing else; a file that comes out as it was is not touched, so that only what has changed is
rendered again. Modules of a set have draw(), which gives texts by file name; nothing is drawn when they are imported.
"""
import importlib
import pathlib
import sys

SETS = {
    'drawings': ['controls', 'line_parts', 'chips', 'drive', 'cards', 'timing_charts'],
    'hints': ['book'],
    'diagrams': ['center_board', 'satellite_boards', 'io_board'],
}


def main(name, folder):
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    files = {}
    for module in SETS[name]:
        files.update(importlib.import_module('%s.%s' % (name, module)).draw())
    for old in folder.iterdir():
        if old.name not in files:
            old.unlink()
    for file, content in files.items():
        target, content = folder / file, content.encode()
        if not target.exists() or target.read_bytes() != content:
            target.write_bytes(content)


if __name__ == '__main__':
    if len(sys.argv) != 3 or sys.argv[1] not in SETS:
        sys.exit(__doc__)
    main(*sys.argv[1:])
