"""The bottle gauge and its content.

The liquid stands between the rows 144 and 803, counted from the bottom; the game cuts the content
at the level and multiplies it with pure blue for water and pure red for pollution. So the content
is white to grey, and the bottle's glass, drawn over it, softens both colours with a pale tint.
"""

import enamel
import kit
from palette import CREAM, OUTLINE

WIDTH, HEIGHT = 128, 1024
FULL, EMPTY = HEIGHT - 803, HEIGHT - 144

LEFT, RIGHT = 19, 109  # the inside of the glass


def inside(top):
    """The hollow of the bottle's body from the given height down to its rounded floor."""
    return (f"M{LEFT} {top} V{EMPTY - 30} Q{LEFT} {EMPTY} {LEFT + 30} {EMPTY} H{RIGHT - 30} "
            f"Q{RIGHT} {EMPTY} {RIGHT} {EMPTY - 30} V{top}Z")


def whole():
    """The whole hollow with shoulders and neck."""
    return (f"M{LEFT} 236 C{LEFT} 168 48 172 48 118 V66 H80 V118 C80 172 {RIGHT} 168 {RIGHT} 236 "
            f"V{EMPTY - 30} Q{RIGHT} {EMPTY} {RIGHT - 30} {EMPTY} H{LEFT + 30} Q{LEFT} {EMPTY} {LEFT} {EMPTY - 30}Z")


def content():
    parts = [enamel.path(inside(FULL - 24), "url(#liquid)")]
    bubbles = [(38, 846, 7), (60, 812, 4), (84, 838, 5), (47, 760, 5), (90, 742, 7), (70, 700, 4), (36, 664, 6),
               (82, 618, 4), (56, 590, 7), (96, 548, 4), (40, 520, 4), (74, 486, 6), (50, 436, 5), (92, 404, 5),
               (66, 360, 4), (36, 330, 6), (84, 300, 6), (56, 262, 4), (96, 244, 4)]
    for x, y, r in bubbles:
        parts.append(enamel.circle(x, y, r * 1.25, "#ffffff", 'opacity="0.75"'))
        parts.append(enamel.circle(x + 1, y + 1.4, r * 0.75, "#8a8a8a", 'opacity="0.45"'))
    defs = enamel.gradient("liquid", [(0, "#8c8c8c"), (0.14, "#c8c8c8"), (0.34, "#f4f4f4"), (0.6, "#dadada"),
                                      (0.86, "#a0a0a0"), (1, "#808080")], 0, 0, 1, 0)
    picture = kit.render(kit.svg(WIDTH, HEIGHT, "".join(parts), defs), WIDTH, HEIGHT)
    picture.paste((255, 255, 255, 0), (0, EMPTY, WIDTH, HEIGHT))
    return picture


def bottle():
    hollow = whole()
    parts = [enamel.path(hollow, "none", f'stroke="{OUTLINE}" stroke-width="20" opacity="0.3" filter="url(#soft)" '
                                         'transform="translate(3 5)"')]
    # the wall of the glass, cut open over the hollow
    parts.append('<g mask="url(#wall)">'
                 + enamel.path(hollow, "none", f'stroke="{OUTLINE}" stroke-width="22" stroke-linejoin="round"')
                 + enamel.path(hollow, "none", 'stroke="url(#glass)" stroke-width="14" stroke-linejoin="round"')
                 + "</g>")
    parts.append(enamel.path(hollow, "url(#tint)"))
    parts.append(enamel.path(hollow, "none", f'stroke="{OUTLINE}" stroke-width="2.4" opacity="0.75"'))
    # reflections
    parts.append(enamel.path("M33 254 C33 216 52 204 56 168 L64 168 C61 206 44 220 44 254 V800 Q38 812 33 800Z",
                             "#ffffff", 'opacity="0.5"'))
    parts.append(enamel.box(33, 818, 11, 26, 5.5, "#ffffff", 'opacity="0.5"'))
    parts.append(enamel.box(52, 80, 6, 60, 3, "#ffffff", 'opacity="0.6"'))
    parts.append(enamel.box(99, 260, 4, 560, 2, "#ffffff", 'opacity="0.22"'))
    # the scale
    for step in range(21):
        y = EMPTY - (EMPTY - FULL) * step / 20
        if step % 5 == 0:
            parts.append(enamel.box(RIGHT - 28, y - 3.6, 28, 7.2, 1, OUTLINE, 'opacity="0.8"'))
            parts.append(enamel.box(RIGHT - 26, y - 1.8, 25, 3.6, 0.6, CREAM))
        else:
            parts.append(enamel.box(RIGHT - 15, y - 1.8, 14, 3.6, 0.6, CREAM, 'opacity="0.8"'))
    for share in (25, 50, 75):
        y = EMPTY - (EMPTY - FULL) * share / 100
        parts.append(enamel.lettering(str(share), "caps", 42, 78, y + 15, CREAM, "end", outline=3.4))
    # the stopper
    parts.append(enamel.collar(44, 48, 40, 22, "brass", 5))
    parts.append(enamel.collar(50, 22, 28, 22, "copper", 5))
    parts.append(enamel.collar(38, 10, 52, 12, "brass", 6))
    # the foot
    parts.append(enamel.plate(5, 898, 118, 112, 16, rim_width=8, outline=4, pin=False, heads=0, shadow=False))
    parts.append(enamel.collar(14, 884, 100, 14, "brass", 5))
    parts.append(enamel.lettering("WATER", "caps", 40, 64, 970, "url(#ink-cream)", tracking=1, outline=2.6))
    defs = enamel.DEFS + "".join([
        enamel.gradient("glass", [(0, "#f4fbf6", 0.95), (0.4, "#cfe3dc", 0.9), (1, "#8fb0a8", 0.92)], 0, 0, 1, 0.1),
        enamel.gradient("tint", [(0, "#c9f3fc", 0.5), (0.3, "#9be8fd", 0.32), (0.65, "#9be8fd", 0.27),
                                 (0.86, "#3f8fb0", 0.26), (1, OUTLINE, 0.34)], 0, 0, 1, 0),
        f'<mask id="wall" maskUnits="userSpaceOnUse" x="0" y="0" width="{WIDTH}" height="{HEIGHT}">'
        f'<rect width="{WIDTH}" height="{HEIGHT}" fill="#fff"/><path d="{hollow}" fill="#000"/></mask>'])
    return enamel.clear_border(kit.render(kit.svg(WIDTH, HEIGHT, "".join(parts), defs), WIDTH, HEIGHT))


def main():
    kit.save("BottleContent_128x1024.png", content())
    kit.save("BottleGauge_128x1024.png", bottle())


if __name__ == "__main__":
    main()
