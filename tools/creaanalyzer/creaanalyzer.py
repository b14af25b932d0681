#!/usr/bin/env python3
"""Makes the signal of data/Analyzer.mp3, which players with an analyser play on request.

A sine whose pitch rises evenly over the octaves from 20 Hz to 20 kHz within 10 s, at -6 dB, with
20 ms of fade at both ends: each band of an analyser lights up in turn, for the same time.

    creaanalyzer.py | lame -r -s 44.1 --bitwidth 16 -m m -b 64 --noreplaygain -t - Analyzer.mp3
"""
import math
import struct
import sys

RATE = 44100  # samples a second
SECONDS = 10
LOW, HIGH = 20.0, 20000.0  # Hz
FADE = RATE // 50

samples = RATE * SECONDS
octaves = math.log(HIGH / LOW)
out = bytearray()
for n in range(samples):
    t = n / samples
    phase = 2 * math.pi * LOW * SECONDS / octaves * (math.exp(t * octaves) - 1)
    level = 0.5 * min(1.0, n / FADE, (samples - 1 - n) / FADE)
    out += struct.pack("<h", round(32767 * level * math.sin(phase)))
sys.stdout.buffer.write(out)
