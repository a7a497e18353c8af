"""The wave panel: the sign WAVE, with two pipes on which the game hangs the number's two plates.

The plates reach beyond the picture's right edge; the pipes end behind the second one.
"""

import enamel
import kit
from palette import CREAM_SHADE, OUTLINE

WIDTH, HEIGHT = 512, 256
# where the digits hang
TENS, UNITS, TOP, BOTTOM = 436, 500, 83, 211


def crest(x, y):
    """The company's mark: a drop on an enamel roundel, between two wings of pipe."""
    return (enamel.bezel(x, y, 29, 6)
            + enamel.circle(x, y, 29, "url(#cream)")
            + enamel.drop(x, y + 8, 14))


def main():
    parts = []
    for y in (104, 176):
        parts.append(enamel.box(404, y + 4, 88, 18, 6, OUTLINE, 'opacity="0.35" filter="url(#soft)"'))
        parts.append(enamel.pipe(404, y, 103, 15))
        parts.append(enamel.collar(423, y - 4, 8, 23))
    parts.append(enamel.plate(14, 62, 406, 170, 26, rim_width=7, outline=2.5, inset=7, heads=4.2))
    parts.append(enamel.lettering("WAVE", "caps", 146, 217, 200, "url(#ink-cream)", tracking=8, outline=3,
                                  depth=5, side=CREAM_SHADE, stretch=1.08))
    parts.append(crest(217, 48))
    picture = kit.render(kit.svg(WIDTH, HEIGHT, "".join(parts), enamel.DEFS), WIDTH, HEIGHT)
    kit.save("WavePanel_512x256.png", enamel.clear_border(picture))


if __name__ == "__main__":
    main()
