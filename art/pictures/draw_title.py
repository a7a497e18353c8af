"""The title: the company's sign over the field, the tower, a wave of grunts, and the controls."""

import math
import random

import cast
import enamel
import kit
from palette import (
    BOTTLE_GREEN, BRASS, BRASS_DARK, COPPER, COPPER_DARK, CREAM, CREAM_SHADE, FLOWER, GRASS, GRASS_DARK,
    GRASS_LIGHT, MEADOW, MEADOW_DARK, MEADOW_LIGHT, OUTLINE, STEEL, STEEL_LIGHT, WATER, WATER_FOAM, WATER_LIGHT,
)
from shapes import blob

WIDTH, HEIGHT = 1024, 768
HORIZON = 330


def sky():
    parts = [enamel.box(0, 0, WIDTH, HORIZON + 60, 0, "url(#sky)"),
             enamel.circle(90, 40, 420, "url(#sun)")]
    # thin ones far up, banks that lie flat, and heaps
    for x, y, k in ((760, 26, 1.0), (1010, 150, 0.7), (642, 262, 0.62)):
        parts.append(f'<g transform="translate({x} {y}) scale({k})" fill="#fffaf0" opacity="0.6">'
                     '<path d="M-120 8 Q-96 -6 -52 -3 Q-14 -16 30 -8 Q78 -14 126 2 Q92 4 76 9 Q96 12 104 17 Q40 22 2 16 '
                     'Q-40 22 -76 14 Q-96 14 -120 8Z"/></g>')
    for x, y, k in ((712, 132, 0.8), (930, 60, 0.8), (60, 270, 0.8)):
        parts.append(f'<g transform="translate({x} {y}) scale({k})" fill="#fffaf0" opacity="0.75">'
                     '<path d="M-90 20 Q-96 0 -70 -4 Q-64 -30 -34 -24 Q-16 -46 12 -30 Q40 -40 48 -14 Q80 -18 '
                     '86 8 Q92 20 78 20Z"/></g>')
    return "".join(parts)


def bird(x, y, k, lean):
    """A gull far away: two wings and hardly a body."""
    return enamel.path(f"M{x - 13 * k:.1f} {y - 3 * k:.1f} Q{x - 6 * k:.1f} {y - 9 * k:.1f} {x:.1f} {y:.1f} "
                       f"Q{x + 5 * k:.1f} {y - 10 * k + lean:.1f} {x + 14 * k:.1f} {y - 5 * k + lean:.1f} "
                       f"Q{x + 6 * k:.1f} {y - 5 * k + lean:.1f} {x + 1 * k:.1f} {y + 3 * k:.1f} "
                       f"Q{x - 6 * k:.1f} {y - 4 * k:.1f} {x - 13 * k:.1f} {y - 3 * k:.1f}Z",
                       enamel.mix(OUTLINE, CREAM, 0.3))


def trees(x, y, k, tone):
    """A few round and a few pointed trees, far enough to be mere shapes with a lit side."""
    dark, light = enamel.mix(MEADOW_DARK, CREAM, tone), enamel.mix(MEADOW_LIGHT, CREAM, tone)
    parts = []
    for dx, r in ((-30, 11), (-14, 15), (24, 12), (38, 9)):
        parts.append(enamel.circle(x + k * dx, y - k * r * 0.8, k * r, dark))
        parts.append(enamel.circle(x + k * (dx - r * 0.25), y - k * r * 1.05, k * r * 0.66, light))
    for dx, tall in ((4, 44), (13, 34)):
        parts.append(enamel.path(f"M{x + k * (dx - 6):.1f} {y:.1f} Q{x + k * (dx - 7):.1f} "
                                 f"{y - k * tall * 0.6:.1f} {x + k * dx:.1f} {y - k * tall:.1f} "
                                 f"Q{x + k * (dx + 7):.1f} {y - k * tall * 0.6:.1f} {x + k * (dx + 6):.1f} "
                                 f"{y:.1f}Z", dark))
        parts.append(enamel.path(f"M{x + k * (dx - 5):.1f} {y - 2:.1f} Q{x + k * (dx - 5.5):.1f} "
                                 f"{y - k * tall * 0.6:.1f} {x + k * dx:.1f} {y - k * tall * 0.94:.1f} "
                                 f"Q{x + k * (dx + 1):.1f} {y - k * tall * 0.5:.1f} {x + k * dx:.1f} "
                                 f"{y - 2:.1f}Z", light))
    return "".join(parts)


def hills():
    parts = [enamel.path("M0 322 Q120 262 260 300 Q380 250 520 298 Q660 256 800 300 Q920 268 1024 306 V400 "
                         "H0Z", "url(#far)")]
    # the sun lies on what faces the upper left
    for d in ("M186 292 Q260 266 322 306 Q250 292 186 292Z", "M424 282 Q520 244 566 316 Q500 282 424 282Z",
              "M700 280 Q790 262 836 312 Q780 288 700 280Z", "M0 306 Q60 276 132 274 Q70 296 0 318Z"):
        parts.append(enamel.path(d, "#fff6d8", 'opacity="0.4" filter="url(#haze)"'))
    # other towers of the company, far away
    for x, y, k in ((84, 314, 0.26), (598, 314, 0.28), (656, 306, 0.19)):
        colour = enamel.mix(BOTTLE_GREEN, CREAM, 0.45)
        parts.append(f'<g transform="translate({x} {y}) scale({k})" fill="{colour}" stroke="{colour}">'
                     '<path d="M-40 -100 L0 -124 L40 -100Z M-33 -100 H33 V-54 H-33Z"/>'
                     '<path d="M-27 -54 L-33 0 M27 -54 L33 0 M-28 -10 L27 -48 M28 -10 L-27 -48" '
                     'stroke-width="6" fill="none"/></g>')
    parts.append(trees(548, 316, 0.62, 0.42))
    parts.append(trees(20, 318, 0.6, 0.42))
    parts.append(enamel.path("M0 344 Q160 302 340 330 Q520 300 700 334 Q860 304 1024 336 V420 H0Z", "url(#near)"))
    for d in ("M60 330 Q160 306 262 322 Q160 318 60 336Z", "M380 328 Q520 298 640 326 Q520 312 380 334Z",
              "M760 324 Q860 306 960 326 Q860 316 760 330Z"):
        parts.append(enamel.path(d, "#fff6d8", 'opacity="0.45" filter="url(#haze)"'))
    parts.append(trees(690, 342, 0.85, 0.24))
    parts.append(trees(134, 330, 0.66, 0.26))
    parts.append(trees(1000, 344, 0.9, 0.24))
    return "".join(parts)


def field(rng):
    parts = [enamel.path(f"M0 {HORIZON + 22} Q250 {HORIZON - 6} 520 {HORIZON + 16} T1024 {HORIZON + 8} V768 "
                         f"H0Z", "url(#grass)")]
    for x, y, rx, ry in ((170, 392, 150, 17), (640, 408, 190, 20), (420, 520, 230, 34), (960, 500, 150, 26),
                         (40, 560, 160, 34)):
        points = []
        for i in range(16):
            a = 2 * math.pi * i / 16
            f = 1 + 0.14 * math.sin(3 * a + x) + 0.08 * math.sin(5 * a + y)
            points.append((x + rx * f * math.cos(a), y + ry * f * math.sin(a)))
        parts.append(enamel.path(blob(points, 0.45), MEADOW_LIGHT))
        inner = [(x + (px - x) * 0.93, y + (py - y) * 0.86 + 1) for px, py in points]
        parts.append(enamel.path(blob(inner, 0.45), "url(#meadow)"))
        for _ in range(int(rx * ry / 130)):
            a, f = rng.uniform(0, 2 * math.pi), math.sqrt(rng.random()) * 0.8
            px, py = x + rx * f * math.cos(a), y + ry * f * math.sin(a)
            s = 0.9 + (py - HORIZON) / 150
            parts.append(enamel.circle(px, py, 1.5 * s, FLOWER))
            parts.append(enamel.circle(px, py, 0.6 * s, BRASS))
    for _ in range(420):
        y = HORIZON + 24 + 410 * rng.random() ** 1.2
        x = rng.uniform(0, WIDTH)
        s = 3 + (y - HORIZON) / 22
        colour = rng.choice((GRASS_DARK, GRASS_DARK, MEADOW, GRASS_LIGHT))
        parts.append(enamel.path(f"M{x:.1f} {y:.1f} q{-s * 0.2:.1f} {-s * 0.7:.1f} {-s * 0.5:.1f} {-s:.1f} "
                                 f"M{x:.1f} {y:.1f} v{-s * 1.2:.1f} "
                                 f"M{x:.1f} {y:.1f} q{s * 0.2:.1f} {-s * 0.7:.1f} {s * 0.6:.1f} "
                                 f"{-s * 0.9:.1f}", "none",
                                 f'stroke="{colour}" stroke-width="{0.8 + s * 0.06:.2f}" '
                                 f'stroke-linecap="round" opacity="{min(0.85, 0.25 + (y - HORIZON) / 260):.2f}"'))
    return "".join(parts)


def stream(x0, y0, x1, y1, lift, wide, line=False):
    """A jet of water that widens along its arc, or only the line around it."""
    upper, lower, middle = [], [], []
    for i in range(25):
        t = i / 24
        x = x0 + (x1 - x0) * t
        y = y0 + (y1 - y0) * t - 4 * lift * t * (1 - t)
        dx, dy = x1 - x0, (y1 - y0) - 4 * lift * (1 - 2 * t)
        n = math.hypot(dx, dy)
        w = wide * (0.3 + 0.7 * t) * (1 + 0.12 * math.sin(i * 1.7))
        upper.append((x - dy / n * w, y + dx / n * w))
        lower.append((x + dy / n * w, y - dx / n * w))
        middle.append((x, y))
    ring = upper + lower[::-1]
    data = "M" + " L".join(f"{x:.1f} {y:.1f}" for x, y in ring) + "Z"
    core = "M" + " L".join(f"{x:.1f} {y - wide * 0.2:.1f}" for x, y in middle[1:-1])
    if line:
        return enamel.path(data, WATER, f'stroke="{OUTLINE}" stroke-width="4.6" stroke-linejoin="round"')
    return (enamel.path(data, WATER)
            + enamel.path(core, "none", f'stroke="{WATER_LIGHT}" stroke-width="{wide * 0.62:.1f}" '
                                        f'stroke-linecap="round"')
            + enamel.path(core, "none", f'stroke="#ffffff" stroke-width="{wide * 0.22:.1f}" stroke-linecap="round" '
                                        f'stroke-dasharray="{wide * 3:.0f} {wide * 1.6:.0f}"'))


def splash(x, y, k, line=False):
    """Water bursting on something to its left: uneven sheets and froth, or only the line around."""
    edge = [(17, -13), (25, -20), (35, -35), (33, -42), (25, -40), (15, -30), (7, -31), (6, -44), (0, -55),
            (-7, -51), (-7, -37), (-14, -28), (-25, -33), (-31, -28), (-25, -19), (-20, -9), (-22, 4), (-31, 13),
            (-33, 20), (-26, 22), (-16, 20), (-11, 29), (-16, 43), (-11, 48), (-4, 45), (2, 32), (10, 28), (20, 39),
            (28, 41), (30, 34), (23, 23), (19, 13)]

    def sheet(share, dx, dy, colour, more=""):
        points = [(x + k * (px * share + dx), y + k * (py * share + dy)) for px, py in edge]
        return enamel.path(blob(points), colour, more)

    if line:
        return sheet(1, 0, 0, WATER, f'stroke="{OUTLINE}" stroke-width="4.6" stroke-linejoin="round"')
    parts = [sheet(1, 0, 0, WATER), sheet(0.8, -1, -1.5, WATER_LIGHT)]
    for fx, fy, fr in ((-12, -12, 8), (0, -16, 10), (11, -8, 9), (-14, 3, 8), (12, 8, 8), (-4, 15, 9),
                       (5, 14, 8), (-1, 0, 14)):
        parts.append(enamel.circle(x + k * fx, y + k * fy, k * fr, WATER_FOAM))
    for fx, fy, fr in ((-6, -10, 5), (5, -4, 6), (-5, 6, 5), (8, 8, 3.5)):
        parts.append(enamel.path(f"M{x + k * (fx - fr):.1f} {y + k * fy:.1f} A{k * fr:.1f} {k * fr:.1f} 0 0 0 "
                                 f"{x + k * (fx + fr):.1f} {y + k * fy:.1f}",
                                 "none", f'stroke="{WATER}" stroke-width="1.4" stroke-linecap="round" opacity="0.7"'))
    for fx, fy, size in ((43, -50, 5), (14, -54, 3.4), (-18, -56, 4.4), (-38, -42, 3), (-42, 4, 3.2),
                         (-40, 34, 4), (8, 52, 3.4),
                         (40, 50, 4.6), (44, 26, 3), (50, -32, 3)):
        turn = math.degrees(math.atan2(fy, fx)) - 90
        parts.append(f'<g transform="translate({x + k * fx:.1f} {y + k * fy:.1f}) rotate({turn:.0f})">'
                     + enamel.path(enamel.drop_shape(0, 0, k * size), WATER, f'stroke="{OUTLINE}" '
                             f'stroke-width="2" stroke-linejoin="round"')
                     + enamel.circle(-k * size * 0.2, -k * size * 0.1, k * size * 0.45, WATER_FOAM) + "</g>")
    return "".join(parts)


def clump(x, y, s, rng):
    """Meadow flowers and blades in the foreground."""
    parts = []
    for i in range(9):
        lean = (i - 4) * 2.6 * s + rng.uniform(-2, 2)
        tall = s * rng.uniform(15, 26)
        colour = rng.choice((MEADOW_DARK, MEADOW, MEADOW_LIGHT, GRASS_DARK))
        parts.append(enamel.path(f"M{x + lean * 0.4 - 1.6 * s:.1f} {y} Q{x + lean * 0.7:.1f} "
                                 f"{y - tall * 0.6:.1f} {x + lean * 1.5:.1f} {y - tall:.1f} "
                                 f"Q{x + lean * 0.9 + 1.4 * s:.1f} {y - tall * 0.5:.1f} "
                                 f"{x + lean * 0.4 + 1.6 * s:.1f} {y}Z", colour,
                                 f'stroke="{enamel.mix(MEADOW_DARK, OUTLINE, 0.4)}" stroke-width="0.8"'))
    for i in range(4):
        fx, fy = x + rng.uniform(-15, 15) * s, y - rng.uniform(10, 28) * s
        for k in range(5):
            a = 2 * math.pi * k / 5 + i
            parts.append(enamel.circle(fx + 2.5 * s * math.cos(a), fy + 2.5 * s * math.sin(a), 2.1 * s, FLOWER,
                                     f'stroke="{enamel.mix(FLOWER, MEADOW_DARK, 0.6)}" stroke-width="0.6"'))
        parts.append(enamel.circle(fx, fy, 1.8 * s, BRASS))
    return "".join(parts)


def reeds(x, y, s, rng):
    """Cat's-tails in the wet meadow."""
    parts = []
    for i in range(7):
        foot, tall = x + (i - 3) * 4.2 * s + rng.uniform(-1, 1) * s, s * rng.uniform(26, 44)
        lean = (i - 3) * 1.6 * s + rng.uniform(-2, 3) * s
        if i % 2:
            tip = foot + lean * 0.7
            parts.append(enamel.path(f"M{foot:.1f} {y} Q{foot:.1f} {y - tall * 0.6:.1f} {tip:.1f} {y - tall:.1f}", "none",
                                     f'stroke="{MEADOW_DARK}" stroke-width="{1.5 * s:.1f}"'))
            for wide, colour in ((6.4, OUTLINE), (4.2, COPPER_DARK)):
                parts.append(enamel.path(f"M{tip:.1f} {y - tall:.1f} l{-lean * 0.05:.1f} {11 * s:.1f}", "none",
                                         f'stroke="{colour}" stroke-width="{wide * s:.1f}" stroke-linecap="round"'))
        else:
            colour = rng.choice((MEADOW, MEADOW_DARK, MEADOW_LIGHT))
            parts.append(enamel.path(f"M{foot - 2 * s:.1f} {y} Q{foot - s:.1f} {y - tall * 0.5:.1f} {foot + lean * 1.5:.1f} "
                                     f"{y - tall * 0.9:.1f} Q{foot + 1.6 * s:.1f} {y - tall * 0.4:.1f} {foot + 2 * s:.1f} "
                                     f"{y}Z", colour,
                                     f'stroke="{enamel.mix(MEADOW_DARK, OUTLINE, 0.4)}" stroke-width="0.8"'))
    return "".join(parts)


def heron(x, y, k):
    """It stands on one leg and looks at the war with disapproval; (x, y) is its foot."""
    line = f'stroke="{OUTLINE}" stroke-width="1.8" stroke-linejoin="round" stroke-linecap="round"'
    grey, dark = enamel.mix(STEEL_LIGHT, CREAM, 0.25), enamel.mix(STEEL, OUTLINE, 0.35)
    neck = "M-9 -40 C-20 -46 -4 -56 -12 -66"
    return (f'<ellipse cx="{x + 6 * k}" cy="{y + 1}" rx="{17 * k}" ry="{3 * k}" fill="{OUTLINE}" opacity="0.25"/>'
            f'<g transform="translate({x} {y}) scale({k})">'
            + enamel.path("M2 0 L1 -24 M-5 0 H7 M5 -26 L12 -15 L5 -11", "none",
                          f'stroke="{BRASS_DARK}" stroke-width="2.2" stroke-linejoin="round" stroke-linecap="round"')
            + enamel.path(neck, "none", f'stroke="{OUTLINE}" stroke-width="8.4" stroke-linecap="round"')
            + enamel.path("M-14 -40 Q-8 -50 8 -43 Q22 -36 29 -24 Q14 -21 2 -23 Q-12 -26 -14 -40Z", grey, line)
            + enamel.path("M-4 -40 Q10 -42 29 -24 Q12 -25 -4 -40Z", dark)
            + enamel.path(neck, "none", f'stroke="{grey}" stroke-width="5" stroke-linecap="round"')
            + enamel.path("M-17 -69 L-34 -64 L-16 -63Z", BRASS, line)
            + enamel.circle(-13, -67, 5.2, grey, line)
            + enamel.path("M-14 -70 Q-6 -73 3 -68", "none", f'stroke="{OUTLINE}" stroke-width="2.4" stroke-linecap="round"')
            + enamel.circle(-14.6, -67.6, 1.2, OUTLINE) + "</g>")


def stone(x, y, s):
    return (f'<ellipse cx="{x + 3 * s}" cy="{y}" rx="{17 * s}" ry="{4 * s}" fill="{OUTLINE}" opacity="0.22"/>'
            + enamel.path(f"M{x - 15 * s} {y} Q{x - 17 * s} {y - 11 * s} {x - 5 * s} {y - 13 * s} Q{x + 9 * s} "
                          f"{y - 14 * s} {x + 14 * s} {y - 5 * s} "
                          f"Q{x + 17 * s} {y} {x + 12 * s} {y}Z", enamel.mix(STEEL, CREAM_SHADE, 0.45),
                          f'stroke="{OUTLINE}" stroke-width="1.8"')
            + enamel.path(f"M{x - 11 * s} {y - 6 * s} Q{x - 9 * s} {y - 10 * s} {x - 2 * s} {y - 10.5 * s}", "none",
                          f'stroke="{CREAM}" stroke-width="{2 * s}" stroke-linecap="round"'))


def sign():
    """The company's name, hung from two pipes."""
    parts = []
    for x in (130, 560):
        parts.append(enamel.pipe(x, -6, 20, 60))
        parts.append(enamel.collar(x - 6, 20, 32, 12))
    parts.append(enamel.plate(34, 36, 634, 236, 46, rim_width=12, outline=3, inset=10, heads=7))
    parts.append(enamel.lettering("Vorel", "script", 164, 296, 172, "url(#ink-cream)", outline=4, depth=7, side=BRASS))
    parts.append(enamel.lettering("DEFENSE INC.", "caps", 60, 351, 237, "url(#ink-brass)", outline=2.4, tracking=13))
    parts.append(enamel.bezel(548, 126, 44, 9, 2.5))
    parts.append(enamel.circle(548, 126, 44, "url(#cream)"))
    parts.append(enamel.drop(548, 138, 23, 2.6))
    # a ribbon underneath
    parts.append(enamel.pipe(230, 268, 8, 24, "brass"))
    parts.append(enamel.pipe(464, 268, 8, 24, "brass"))
    parts.append(enamel.plate(186, 284, 330, 46, 12, "cream", rim_width=4, outline=2, pin=False, heads=0))
    parts.append(enamel.lettering("CLEAN WATER SINCE 1897", "caps", 29, 351, 317, "url(#ink-green)", tracking=2))
    return "".join(parts)


def mouse(x, y):
    """A mouse with its left button lit."""
    return (f'<g transform="translate({x} {y})">'
            + enamel.box(-14, -20, 28, 40, 13, "url(#cream)", f'stroke="{OUTLINE}" stroke-width="2.4"')
            + enamel.path("M-14 -3 V-7 A13 13 0 0 1 0 -20 V-3Z", COPPER, f'stroke="{OUTLINE}" stroke-width="2"')
            + enamel.path("M-14 -3 H14 M0 -20 V-3", "none", f'stroke="{OUTLINE}" stroke-width="2"') + "</g>")


def small_turret(x, y, r):
    """The turret from above, as the shop shows it."""
    parts = []
    for i in range(8):
        parts.append(f'<g transform="translate({x} {y}) rotate({45 * i + 22.5})">'
                     + enamel.box(r * 0.7, -r * 0.16, r * 0.36, r * 0.32, 1, COPPER, f'stroke="{OUTLINE}" '
                                                                                     f'stroke-width="1.6"') + "</g>")
    parts += [enamel.circle(x, y, r * 0.84, OUTLINE), enamel.circle(x, y, r * 0.76, "url(#brass)"),
              enamel.circle(x, y, r * 0.62, "url(#cream)"), enamel.circle(x, y, r * 0.44, OUTLINE),
              enamel.circle(x, y, r * 0.36, "url(#ball)")]
    return "".join(parts)


def controls():
    parts = [enamel.plate(26, 566, 972, 186, 26, "cream", rim_width=8, outline=2.5, inset=7, heads=4.5, rim="copper")]
    rows = (636, 680, 723)
    ink = enamel.mix(BOTTLE_GREEN, OUTLINE, 0.55)
    for row, line in zip(rows, ("Hold the left button to fire at the pointer",
                                "Click the turret to buy it, then the field to place it",
                                "Keep the grunts away from the tower")):
        parts.append(enamel.lettering(line, "text", 36, 120, row + 1, ink, "start"))
    parts.append(mouse(82, 625))
    parts.append(small_turret(82, 669, 21))
    parts.append(cast.grunt(80, 731, 38, 0, outline=1.4))
    parts.append(enamel.path("M722 598 V738", "none", f'stroke="{COPPER}" stroke-width="2.4" opacity="0.8"'))
    for row, key, wide, line in zip(rows, ("Space", "R", "Esc"), (92, 92, 92), ("pauses", "restarts", "quits")):
        parts.append(enamel.keycap(key, 752, row - 31, wide, 40, 27))
        parts.append(enamel.lettering(line, "text", 36, 864, row + 1, ink, "start"))
    parts.append(enamel.plate(56, 544, 606, 56, 18, rim_width=5, outline=2.5, pin=False, heads=3.4))
    parts.append(enamel.lettering("PRESS ANY KEY OR MOUSE BUTTON TO START", "caps", 34, 359, 585,
                                  "url(#ink-cream)", outline=1.6, tracking=1.5))
    return "".join(parts)


def main():
    rng = random.Random(20)
    parts = [sky(), hills(), field(rng)]
    # those who come late are small and far off
    for x, y, size, step in ((30, 384, 41, 1), (84, 378, 37, 2), (150, 389, 44, 3)):
        parts.append(cast.grunt(x, y, size, step, outline=1.6))
    for line in (True, False):
        parts.append(stream(394, 382, 177, 373, 12, 6.5, line))
        parts.append(splash(171, 373, 0.4, line))
    parts.append(cast.turret(428, 390, 64, 1.6))
    parts += [bird(1004, 196, 0.8, -2), bird(980, 214, 0.6, 1), bird(690, 34, 0.9, 0)]
    for x, y, size in ((556, 420, 0.72), (672, 424, 0.9)):
        parts.append(reeds(x, y, size, rng))
    parts.append(heron(606, 426, 0.78))
    # the pipe from the tower to the turret
    parts.append(f'<ellipse cx="690" cy="500" rx="110" ry="7" fill="{OUTLINE}" opacity="0.25"/>')
    parts.append(enamel.pipe(596, 480, 190, 15))
    for x in (640, 720):
        parts.append(enamel.collar(x, 474, 11, 27))
    parts.append(cast.tower(840, 552, 486))
    parts.append(cast.grunt(68, 532, 122, 0))
    parts.append(cast.grunt(170, 480, 86, 3))
    parts.append('<g transform="rotate(-9 286 528)">' + cast.grunt(286, 528, 116, 2, "shock") + "</g>")
    # the line goes around jet and splash as one body of water
    for line in (True, False):
        parts.append(stream(486, 489, 348, 500, 16, 14, line))
        parts.append(splash(338, 498, 0.86, line))
    parts.append(cast.turret(562, 506, 142))
    for x, y, s in ((12, 548, 1.0), (604, 556, 0.9), (648, 546, 1.15), (768, 558, 1.0), (900, 556, 0.9), (1008, 552, 1.1),
                    (430, 540, 0.7)):
        parts.append(clump(x, y, s, rng))
    parts.append(stone(670, 556, 0.8))
    parts.append(stone(470, 452, 0.55))
    parts.append(sign())
    parts.append(controls())
    defs = enamel.DEFS + cast.DEFS + "".join([
        enamel.gradient("sky", [(0, "#cfe0cf"), (0.5, "#e6ead2"), (1, "#f8f0d6")]),
        '<radialGradient id="sun"><stop offset="0" stop-color="#fff9e2" stop-opacity="0.95"/>'
        '<stop offset="1" stop-color="#fff9e2" stop-opacity="0"/></radialGradient>',
        enamel.gradient("grass", [(0, enamel.mix(GRASS_LIGHT, CREAM, 0.2)), (0.3, GRASS), (1, GRASS_DARK)]),
        enamel.gradient("far", [
            (0, enamel.mix(MEADOW_LIGHT, CREAM, 0.62)), (0.5, enamel.mix(MEADOW_LIGHT, CREAM, 0.42))]),
        enamel.gradient("near", [(0, enamel.mix(GRASS_LIGHT, CREAM, 0.42)), (0.5, enamel.mix(GRASS, CREAM, 0.14))]),
        enamel.gradient("meadow", [(0, MEADOW), (1, MEADOW_DARK)]),
    ])
    picture = kit.render(kit.svg(WIDTH, HEIGHT, "".join(parts), defs), WIDTH, HEIGHT)
    kit.save("TitleScreen.jpg", enamel.crisp(picture, 1.0, 60))


if __name__ == "__main__":
    main()
