# SPDX-License-Identifier: Apache-2.0
"""The book of the register hints: its pages in the order of their tabs, and the list that names them."""
from hints import bench_pages, memory_pages, register_pages

LIST = 'RegsterHint.TXT'


def draw():
    files, lines = {}, ["; The pages of the register hints: picture, caption. The seventh is the control word's."]
    for name, caption, page in register_pages.PAGES + memory_pages.PAGES + bench_pages.PAGES:
        files[name + '.svg'] = page().svg()
        lines.append('%s.BMP\t%s' % (name, caption))
    return {**files, LIST: ''.join(line + '\r\n' for line in lines)}
