"""The explosions: above, a grunt bursts into clean bubbles; below, a jet's splash.

Frame 0 stands for a third of a second, frames 1 to 7 pass in one quick motion. The splash comes
out of the frame's lower left corner, where the jet struck, and opens to the right and upwards.
"""

import math
import random

import kit
import palette as p
import shapes as s

FRAME = 96
IMPACT = (12.5, 83.5)  # the point that the game turns the splash around


def splat(x, y, inner, outer, lobes, rng):
    """A splat with round lobes of uneven length, as path data."""
    points = []
    for i in range(lobes):
        reach = outer * rng.uniform(.84, 1.1)
        for turn, radius in ((-.5, inner), (-.2, reach * .9), (0, reach), (.2, reach * .9)):
            a = math.radians(360 * (i + turn + .3) / lobes)
            points.append((x + radius * math.cos(a), y + radius * math.sin(a)))
    return s.blob(points, .5)


def glob(x, y, r, angle, stretch):
    """A flying bit of sludge with its tail behind it."""
    return (s.flying_drop(x, y, r * stretch, r * 2, angle, s.SKIN_SHADE, p.OUTLINE, 2)
            + s.flying_drop(x - r * .12, y - r * .14, r * stretch * .8, r * 1.6, angle, s.SKIN)
            + s.circle(x - r * .35, y - r * .4, r * .28, s.SKIN_LIGHT))


def hat(x, y, size, angle):
    return (f'<g transform="translate({x:.2f} {y:.2f}) scale({size:.3f})">'
            + s.hat(0, 0, angle, 0) + "</g>")


def boot(x, y, size, angle):
    return (f'<g transform="translate({x:.2f} {y:.2f}) rotate({angle:.1f}) scale({size:.3f})">'
            + s.path("M-3,-4 L2.4,-4 L2.4,-1.4 Q6,-1.2 5.8,3 L-3,3 Z", BOOT, width=1.8)
            + s.path("M-1.2,-2.4 v2.4 q2,.2 3.4,1.2", stroke="#b48cc8", width=1.3) + "</g>")


def popped(x, y, r, turn):
    """Where a bubble was: a broken ring of short strokes."""
    drawn = ""
    for px, py, angle in s.ring(x, y, 6, r, turn):
        a = math.radians(angle)
        drawn += s.path(f"M{px:.2f},{py:.2f} l{3.4 * math.cos(a):.2f},{3.4 * math.sin(a):.2f}",
                        stroke=p.WATER_DEEP, width=3.4)
        drawn += s.path(f"M{px:.2f},{py:.2f} l{3.4 * math.cos(a):.2f},{3.4 * math.sin(a):.2f}",
                        stroke=p.WATER_FOAM, width=1.6)
    return drawn


# where each bubble starts from the middle, how large it grows, the frame it bursts in
BUBBLES = ((-9, -3, 9.5, 7), (8, 2, 8, 8), (-1, 9, 7, 6), (3, -10, 6.4, 5), (-13, 9, 4.6, 4),
           (14, -7, 4.2, 5), (12, 12, 4, 4))


def grunt_frame(frame):
    rng = random.Random(11)
    t, c = frame / 7, FRAME / 2
    body = ""
    if frame < 3:
        shape = splat(c, c + 2, (19, 14, 8)[frame], (30, 27, 18)[frame], 9, random.Random(4))
        body += s.path(shape, s.SKIN_SHADE, width=2.4)
        lit = (s.path(shape, s.SKIN, more='transform="translate(-2.6 -2.6)"')
               + s.ellipse(c - 5, c - 6, 14 - 4 * frame, 11 - 3 * frame, s.SKIN_LIGHT))
        body += s.clipped(shape, lit)
    for _, _, angle in s.ring(0, 0, 9, 1, 12):
        angle += rng.uniform(-9, 9)
        speed, size = rng.uniform(.86, 1.08), rng.uniform(3.2, 5.4)
        a = math.radians(angle)
        reach = (33 if frame == 0 else 22 + 20 * t ** .6) * speed
        r = size * (.62 if frame == 0 else 1.15 * (1 - t) ** .7)
        if r > .8 and (frame or rng.random() < .6):
            body += glob(c + reach * math.cos(a), c + 1 + reach * math.sin(a), r, angle,
                         2.6 - 1.4 * t)
    for i, (dx, dy, size, end) in enumerate(BUBBLES):
        spread = 1 + 1.05 * t ** .8
        x, y = c + dx * spread, c + dy * spread - 7 * t
        r = size * (.82 + .42 * t)
        if frame < end:
            body += s.bubble(x, y, r, 1.7)
        elif frame == end:
            body += popped(x, y, r * .8, 25 * i)
    if frame < 7:
        shrink = 1.12 - .09 * frame
        body += hat(c + 1 + 3.2 * frame, c - 17 - 5.2 * frame + .42 * frame ** 2, shrink,
                    -14 + 38 * frame)
        body += boot(c - 16 - 3.2 * frame, c + 21 + 1.5 * frame, shrink * 1.3, 30 - 35 * frame)
        body += boot(c + 18 + 2.8 * frame, c + 21 + 1.7 * frame, shrink * 1.3, -25 + 40 * frame)
    return body


# The splash's tongues: direction in degrees, reach, width at the root.
TONGUES = ((3, 60, 10), (17, 76, 12), (32, 62, 12), (47, 70, 12), (63, 52, 11), (79, 46, 9))
SPRAY = ((9, 64, 4.2), (26, 80, 5), (40, 74, 4.2), (55, 78, 4.6), (71, 58, 4), (84, 52, 3.2))


def splash_frame(frame):
    t = frame / 7
    x0, y0 = IMPACT
    tongues, drops = [], []
    for angle, reach, width in TONGUES:
        tip = reach * (.8, .92, 1, 1, 1, 1, 1, 1)[frame]
        root = reach * (0, .06, .22, .42, .6, .74, .9, 1)[frame]
        w = width * (1, .95, .85, .7, .52, .34, 0, 0)[frame] / 2
        if w > .5 and tip > root:
            middle = root + (tip - root) * .72
            # while it hangs on the burst it is broad there, torn off it ends in a tail
            tail, waist = w * (.5 if frame < 2 else .1), (root + middle) / 2
            d = (f"M{root:.2f},{-tail:.2f} Q{waist:.2f},{-w * .6:.2f} {middle:.2f},{-w:.2f} "
                 f"A{w:.2f},{w:.2f} 0 0 1 {middle:.2f},{w:.2f} "
                 f"Q{waist:.2f},{w * .6:.2f} {root:.2f},{tail:.2f} Z")
            tongues.append((d, angle))
    for angle, reach, size in SPRAY:
        a = math.radians(angle)
        far = min(reach * (.84 + .3 * t), 70 / max(math.cos(a), .01), 70 / max(math.sin(a), .01))
        r = size * (1.05 - .62 * t)
        drops.append((x0 + far * math.cos(a), y0 - far * math.sin(a) - r * .1, r, angle))
    body = ""
    core = (11.5, 11, 8.5, 5, 0, 0, 0, 0)[frame]
    # the outlines first, then everything inside them, so that it runs together like water
    for line, fill in ((5.6, p.WATER_DEEP), (0, None)):
        for d, angle in tongues:
            body += s.path(d, fill or "url(#tongue)", stroke=fill, width=line,
                           more=f'transform="translate({x0} {y0}) rotate({-angle})"')
        for x, y, r, angle in drops:
            body += s.flying_drop(x, y, r * 1.8, r * 2, -angle, fill or p.WATER_FOAM, fill, line)
        if core:
            body += s.circle(x0 + 7.5, y0 - 7.5, core, fill or "url(#splash)", stroke=fill, width=line)
    return body


BOOT = s.mix(p.SLUDGE_VIOLET, p.OUTLINE, .12)

defs = (s.radial("splash", [(0, "#ffffff"), (.6, p.WATER_FOAM), (1, p.WATER_LIGHT)])
        + s.gradient("tongue", [(0, p.WATER_FOAM), (.45, p.WATER_LIGHT), (1, p.WATER_FOAM)], x2=1, y2=0))
sheet = ""
for row, draw in enumerate((grunt_frame, splash_frame)):
    for column in range(8):
        sheet += (f'<svg x="{column * FRAME}" y="{row * FRAME}" width="{FRAME}" height="{FRAME}" '
                  f'viewBox="0 0 {FRAME} {FRAME}">{draw(column)}</svg>')
document = kit.svg(8 * FRAME, 2 * FRAME, sheet, defs)
kit.save("VorelDefense_explosions_64.png", kit.render(document, 1024, 256))
