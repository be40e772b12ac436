# SPDX-License-Identifier: Apache-2.0
"""Makes the beep: a short bell of two tones, as a wave file of 16-bit samples.

    python3 make_beep.py OUTPUT.WAV
"""
import math
import struct
import sys
import wave

RATE = 44100  # samples a second
LENGTH = 0.16  # seconds
ATTACK = 0.004  # seconds until the tone is full: no click
DECAY = 0.045  # seconds in which it falls to a third
LOUDNESS = 0.35  # of full scale
TONES = (880.0, 1318.5)  # hertz, a fifth apart


def sample(number):
    time = number / RATE
    tone = sum(math.sin(2 * math.pi * pitch * time) for pitch in TONES) / len(TONES)
    return round(32767 * LOUDNESS * min(1, time / ATTACK) * math.exp(-time / DECAY) * tone)


def main(file):
    with wave.open(file, 'wb') as out:
        out.setparams((1, 2, RATE, 0, 'NONE', None))
        out.writeframes(b''.join(struct.pack('<h', sample(number)) for number in range(int(LENGTH * RATE))))


if __name__ == '__main__':
    main(sys.argv[1])
