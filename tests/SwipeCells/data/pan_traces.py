#!/usr/bin/env python3
"""Works out what every step of a scripted pan must show, by the formulas alone; shares no code with the engine.

Writes pan_traces.txt: a case line, then one line per step:
  case <side> <layout> <expansion> <cell width> <buttons> <button width>
  begin|change|end <translation> <velocity> <centre> <visible width> <state> <expanded> <x of each button's ground>
"""
import math

SIGN = {"left": -1.0, "right": 1.0}


def elastic(translation, original, middle, limit, ratio):
    moved = original + translation
    away = abs(moved - middle)
    if away <= limit:
        return moved
    correction = (1 - ratio) * (away - limit)
    return moved - correction if moved >= middle else moved + correction


def grounds(side, layout, visible, natural, elastic_row, count, button, expanded):
    sign = SIGN[side]
    width = visible
    if elastic_row and visible >= natural:
        width = natural + 0.25 * (visible - natural)
    bounds = {"border": 0.0, "drag": (width - visible) * sign,
              "reveal": (button * count - visible) * sign}[layout]
    if layout == "border":
        xs = [((visible - width) + width * i / count) * sign for i in range(count)]
    else:
        xs = [button * i * sign for i in range(count)]
    if expanded:
        xs[-1] = bounds
    return xs


# target offset by cell width, elastic row, touch threshold, overscroll
STYLES = {
    "none": None,
    "bounce": (lambda w: w * 0.5, True, None, None),
    "fill": (lambda w: w - 30, False, 0.8, None),
}


def trace(side, layout, style, width, count, button, moves, release):
    sign, middle, natural = SIGN[side], width / 2, count * button
    rows = [f"case {side} {layout} {style} {width} {count} {button}"]

    def row(kind, translation, velocity, centre, state, expanded):
        visible = abs(centre - middle)
        xs = grounds(side, layout, visible, natural, style == "bounce", count, button, expanded)
        rows.append(" ".join([kind, f"{translation:.2f}", f"{velocity:g}", f"{centre:.6f}", f"{visible:.6f}",
                              state, str(int(expanded))] + [f"{x:.6f}" for x in xs]))

    velocity = -sign * 100
    centre, original, expanded = middle, middle, False
    offset = 0.0  # by which a jump has changed what the finger's way counts as
    rows.append(f"begin 0 {velocity:g}")
    for raw in moves:
        t = raw + offset
        s = t + original - middle
        if s * sign > 0:
            centre = elastic(t, original, middle, 0, 0.2)
        elif STYLES[style]:
            target_of, _, threshold, _ = STYLES[style]
            target = max(target_of(width), natural + 20)
            # The finger starts in the middle of the cell.
            x = middle + raw
            share = x / width if side == "left" else (width - x) / width
            past = False
            if abs(t) > 8:
                distance = math.floor(abs(centre - middle))
                if distance > natural:
                    past = distance > target or (threshold is not None and share > threshold)
            if past and not expanded and target > abs(s):
                centre = middle - target * sign
                offset += centre - original - t
            else:
                centre = elastic(t, original, middle, target, 0.2)
            expanded = past
        else:
            centre = elastic(t, original, middle, natural, 0.4)
        row("change", raw, velocity, centre, "dragging", expanded)
    if expanded:
        return rows
    closing = release * sign > 0
    row("end", moves[-1], release, middle if closing else middle - natural * sign,
        "center" if closing else side, False)
    return rows


def main():
    lines = []
    for side in ("left", "right"):
        for layout in ("border", "drag", "reveal"):
            for style in STYLES:
                for width in (320, 744):
                    for count, button in ((1, 74), (2, 80), (3, 74)):
                        away = -SIGN[side]
                        natural = count * button
                        steps = [1, 8, natural / 3, natural, natural + 1, natural + 15, natural + 40,
                                 width * 0.31, width * 0.45, width * 0.49, width * 0.9, natural * 0.5, -30]
                        moves = [round(away * step, 2) for step in steps]
                        for release in (0, 250 * away, -250 * away):
                            lines += trace(side, layout, style, width, count, button, moves, release)
    with open("pan_traces.txt", "w", encoding="ascii") as out:
        out.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main()
