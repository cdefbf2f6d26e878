#!/usr/bin/env python3
"""Writes CounterTable.inc: counters worked out in whole milliseconds, with no fractions anywhere.

Each row: event and now in milliseconds since 1970, index of the unit, the number line.
Moments are multiples of 250 ms, which a double holds exactly.
"""
import pathlib

HOUR = 3_600_000
UNITS = [HOUR, 24 * HOUR, 7 * 24 * HOUR, 30 * 24 * HOUR, 365 * 24 * HOUR]
NOWS = [1_741_187_220_250, 0, -2_208_988_800_000]


def line(event, now, unit):
    if event < now:
        return f"Since {(now - event) // UNITS[unit]}"
    return f"In {(event - now) // UNITS[unit]}"


rows = []
for unit, length in enumerate(UNITS):
    for now in NOWS:
        distances = {0, 250, length - 250, length, length + 250, 2 * length - 250}
        if now == NOWS[0]:
            distances |= {47 * HOUR + 59 * 60_000, 90 * 60_000, 23 * HOUR + 59 * 60_000, 49 * length, 12_345_678_750}
        for distance in sorted(distances):
            for event in {now - distance, now + distance}:
                rows.append((event, now, unit, line(event, now, unit)))

text = "// Made by make_counter_table.py.\n// clang-format off\n"
text += "".join(f'{{{e}, {n}, {u}, "{t}"}},\n' for e, n, u, t in sorted(set(rows), key=lambda r: (r[2], r[1], r[0])))
text += "// clang-format on\n"
(pathlib.Path(__file__).parent / "CounterTable.inc").write_text(text)
