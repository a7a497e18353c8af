"""The board shown between the waves, and the discs of its pie chart.

The board's picture is square and only its middle three quarters are shown, so heights below are
given as on the window: upwards from its lower edge. The wave panel, the earnings and the pie are
drawn over the board by the game.
"""

import math

import enamel
import kit
from palette import BRASS, OUTLINE, RED, RED_DARK, RED_LIGHT, WATER, WATER_DEEP, WATER_FOAM, WATER_LIGHT

SIZE = 1024
PIE_X, PIE_Y, PIE_R = 745, 376, 50
LEFT, RIGHT, TOP, BOTTOM = 92, 868, 632, 148


def up(height):
    """From a height on the window to a row of the picture."""
    return 896 - height


def board():
    parts = [enamel.box(LEFT, up(TOP) + 8, RIGHT - LEFT, TOP - BOTTOM, 34, OUTLINE,
                        'opacity="0.55" filter="url(#softer)"')]
    # the board stands on two pipes
    for x in (190, 740):
        parts.append(enamel.pipe(x, up(BOTTOM) - 20, 26, 220))
        parts.append(enamel.collar(x - 6, up(BOTTOM) + 10, 38, 12))
        parts.append(enamel.collar(x - 6, up(44), 38, 12))
    parts.append(enamel.plate(LEFT, up(TOP), RIGHT - LEFT, TOP - BOTTOM, 34, rim_width=13, outline=3, rim="copper",
                              pin=False, heads=0, shadow=False))
    parts.append(enamel.plate(LEFT + 26, up(TOP) + 26, RIGHT - LEFT - 52, TOP - BOTTOM - 52, 18, "cream",
                              rim_width=5, outline=2, inset=8, heads=0, shadow=False))
    for x in (LEFT + 21, RIGHT - 21):
        for y in (up(TOP) + 21, up(BOTTOM) - 21):
            parts.append(enamel.screw(x, y, 8, 30 if x < 400 else 75))
    for x in range(LEFT + 120, RIGHT - 100, 68):
        parts.append(enamel.rivet(x, up(BOTTOM) - 9, 3.6, "copper"))
    for y in range(int(up(TOP)) + 90, int(up(BOTTOM)) - 70, 68):
        parts.append(enamel.rivet(LEFT + 9.5, y, 3.6, "copper"))
        parts.append(enamel.rivet(RIGHT - 9.5, y, 3.6, "copper"))

    parts.append(enamel.lettering("Well done!", "script", 104, 384, up(408), "url(#ink-green)", outline=2.4,
                                  depth=4, side=BRASS, shadow=0))

    # the earnings
    parts.append(enamel.lettering("EARNED", "caps", 52, 256, up(304), OUTLINE, tracking=3))
    parts.append(enamel.recess(394, up(356), 228, 67, 8, 3))

    # the pie's dial, fed from above through a valve
    parts.append(enamel.pipe(PIE_X - 9, up(TOP - 33), 18, TOP - 33 - PIE_Y - 60))
    parts.append(enamel.collar(PIE_X - 17, up(TOP - 33), 34, 12))
    parts.append(enamel.collar(PIE_X - 15, up(454), 30, 10))
    parts.append(enamel.valve(PIE_X, up(500), 27))
    parts.append(enamel.bezel(PIE_X, up(PIE_Y), PIE_R, 13, 2.5))
    for i in range(12):
        angle = math.pi * (i + 0.5) / 6
        parts.append(enamel.rivet(PIE_X + 57 * math.cos(angle), up(PIE_Y) + 57 * math.sin(angle), 2.4, "copper"))
    # its legend
    parts.append(enamel.drop(675, up(267), 11))
    parts.append(enamel.lettering("clean water", "text", 33, 697, up(256), OUTLINE, "start"))
    parts.append(enamel.circle(675, up(224), 12, "url(#foul)", f'stroke="{OUTLINE}" stroke-width="2"'))
    for x, y, r in ((679, 222, 4), (671, 219, 2.6), (674, 229, 2.2)):
        parts.append(enamel.circle(x, up(y), r, RED_DARK))
    parts.append(enamel.lettering("pollution", "text", 33, 697, up(214), OUTLINE, "start"))

    # how to continue
    parts.append(enamel.plate(150, up(264), 474, 62, 18, rim_width=5, outline=2, pin=False, heads=3.2))
    parts.append(enamel.lettering("click to continue", "text", 48, 387, up(219), "url(#ink-cream)", tracking=1,
                                  outline=1.6))
    defs = enamel.DEFS + enamel.radial("foul", [(0, RED_LIGHT), (0.5, RED), (1, RED_DARK)])
    return enamel.clear_border(kit.render(kit.svg(SIZE, SIZE, "".join(parts), defs), SIZE, SIZE))


def pie(light, middle, dark, pattern):
    """A glossy disc that fills its picture; the game cuts a sector out of it."""
    parts = [enamel.circle(256, 256, 256, OUTLINE), enamel.circle(256, 256, 244, "url(#dome)"), pattern,
             enamel.path("M40 256 A216 216 0 0 1 256 40 Q96 96 40 256Z", "#ffffff", 'opacity="0.35"')]
    defs = enamel.radial("dome", [(0, light), (0.5, middle), (1, dark)])
    return kit.render(kit.svg(512, 512, "".join(parts), defs), 512, 512)


def water_pie():
    waves = "".join(
        enamel.path(f"M30 {y} q28 -26 56 0 t56 0 t56 0 t56 0 t56 0 t56 0 t56 0 t56 0", "none",
                    f'stroke="{WATER_FOAM}" stroke-width="11" stroke-linecap="round" opacity="0.5"')
        for y in (170, 256, 342))
    clipped = (f'<clipPath id="round"><circle cx="256" cy="256" r="214"/></clipPath>'
               f'<g clip-path="url(#round)">{waves}</g>')
    return pie(WATER_LIGHT, WATER, WATER_DEEP, clipped)


def foul_pie():
    bubbles = "".join(enamel.circle(x, y, r, RED_DARK, 'opacity="0.7"')
                      + enamel.circle(x - r * 0.3, y - r * 0.3, r * 0.26, RED_LIGHT, 'opacity="0.9"')
                      for x, y, r in ((372, 196, 36), (300, 128, 20), (426, 276, 22), (180, 214, 34), (306, 308, 30),
                                      (236, 122, 14), (206, 366, 28), (340, 404, 34), (120, 310, 20), (256, 72, 16),
                                      (396, 350, 16), (290, 212, 16), (256, 440, 18), (136, 150, 16)))
    return pie(enamel.mix(RED_LIGHT, RED, 0.45), enamel.mix(RED, RED_DARK, 0.2), RED_DARK, bubbles)


def skin():
    """The chart's third disc shows as a sliver on the dial's rim: a glint of its glass, no more."""
    body = ('<g transform="translate(256 256) rotate(-4.5)">'
            '<ellipse cx="192" cy="0" rx="24" ry="9" fill="#fffbe6" opacity="0.7" filter="url(#soft)"/></g>')
    return kit.render(kit.svg(512, 512, body, enamel.DEFS), 512, 512)


def main():
    kit.save("EndRoundPanel_1024.png", board())
    kit.save("BlueCircle_512.png", water_pie())
    kit.save("RedCircle_512.png", foul_pie())
    kit.save("SkinCircle_512.png", skin())


if __name__ == "__main__":
    main()
