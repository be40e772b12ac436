# SPDX-License-Identifier: Apache-2.0
"""Makes the fonts of a page from those of this machine: no more letters than its windows show, and the common ones of a teacher's
own tour.

    subset_fonts.py FOLDER --fonts FONT... --texts TEXT...

Kanji are in the proportional Japanese font alone, since they are as wide in the other one; it has those of the texts and the 2965
of the first level of JIS X 0208. The licence of the Japanese fonts wants another name for what is made of them."""
import argparse
import pathlib

from fontTools import subset
from fontTools.ttLib import TTFont

RENAMED = {"ipag": ("vrbg", "VRB Gothic"), "ipagp": ("vrbgp", "VRB PGothic")}
FIRST_KANJI_ROW, LAST_COMMON_ROW = 16, 47
LATIN = set(range(0x20, 0x7F)) | set(range(0xA0, 0x180)) | set(range(0x2010, 0x2027)) | {0x2032, 0x2033, 0x20AC, 0xFFFD}


def row_of_jis(row):
    for cell in range(1, 95):
        try:
            yield ord(bytes((0xA0 + row, 0xA0 + cell)).decode("euc_jp"))
        except UnicodeDecodeError:
            pass  # not every cell is taken


def is_kanji(code):
    return 0x4E00 <= code <= 0x9FFF or 0x3400 <= code <= 0x4DBF or 0xF900 <= code <= 0xFAFF


def letters_of(texts):
    return {ord(letter) for path in texts for letter in pathlib.Path(path).read_text(encoding="utf-8-sig")}


def wanted(stem, of_texts):
    if stem not in RENAMED:
        return LATIN | {code for code in of_texts if not is_kanji(code)}
    rows = range(1, LAST_COMMON_ROW + 1) if stem == "ipagp" else range(1, FIRST_KANJI_ROW)
    signs = {code for row in rows for code in row_of_jis(row)} | LATIN | set(range(0xFF01, 0xFFEF))
    return signs | {code for code in of_texts if stem == "ipagp" or not is_kanji(code)}


def rename(font, family):
    for record in font["name"].names:
        if record.nameID in (1, 3, 4, 16):
            record.string = family
        elif record.nameID == 6:
            record.string = family.replace(" ", "-")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--fonts", nargs="+", type=pathlib.Path, required=True)
    parser.add_argument("--texts", nargs="+", required=True)
    arguments = parser.parse_args()
    of_texts = letters_of(arguments.texts)
    options = subset.Options(layout_features=[], hinting=True, name_IDs=["*"], notdef_outline=True, recalc_timestamp=False)
    for path in arguments.fonts:
        font = TTFont(path, recalcTimestamp=False)
        maker = subset.Subsetter(options)
        maker.populate(unicodes=wanted(path.stem, of_texts))
        maker.subset(font)
        stem, family = RENAMED.get(path.stem, (path.stem, None))
        if family:
            rename(font, family)
        font.save(arguments.folder / f"{stem}.ttf")


if __name__ == "__main__":
    main()
