"""The digits 0 to 9 as the drums of a mechanical counter, in ten equal cells.

The same strip serves cells of 13 x 27 and of 64 x 128 pixels. All cells share one frame, so that
what the filter carries over from a neighbour looks the same everywhere.
"""

import enamel
import kit
from palette import BRASS, BRASS_DARK, OUTLINE, STEEL_DARK

CELL, HEIGHT = 64, 128


def drum(digit, x):
    left, top, width, height = x + 2.5, 3, CELL - 5, HEIGHT - 6
    mark = enamel.outlines(digit, "caps", 130, x + CELL / 2, HEIGHT / 2 + 45.5, "middle", stretch=0.9)
    return (enamel.box(left, top, width, height, 9, OUTLINE)
            + enamel.box(left + 3, top + 3, width - 6, height - 6, 6.5, "url(#rim)")
            + enamel.box(left + 5.4, top + 5.4, width - 10.8, height - 10.8, 4.5, OUTLINE)
            + enamel.box(left + 6.4, top + 6.4, width - 12.8, height - 12.8, 4, "url(#drum)")
            + enamel.path(mark, "#000000", 'opacity="0.5" transform="translate(2 2.6)"')
            + enamel.path(mark, "url(#ink-cream)"))


def main():
    defs = enamel.DEFS + enamel.gradient("drum", [
        (0, enamel.mix(OUTLINE, "#000000", 0.5)), (0.3, enamel.mix(OUTLINE, STEEL_DARK, 0.5)), (0.55, OUTLINE),
        (1, enamel.mix(OUTLINE, "#000000", 0.6))])
    # dim, so that on the counter the rims don't blur into the figures between them
    defs += enamel.gradient("rim", [(0, BRASS), (1, enamel.mix(BRASS_DARK, OUTLINE, 0.3))], 0, 0, 1, 1)
    body = "".join(drum(str(digit), digit * CELL) for digit in range(10))
    kit.save("Numbers_320x64.png", kit.render(kit.svg(CELL * 10, HEIGHT, body, defs), CELL * 10, HEIGHT))


if __name__ == "__main__":
    main()
