"""The grunts: sludge on two legs, in a hard hat and a gas mask. Four facings by four steps.

Rows from the top: right, up, left, down. In the side rows the feet pass each other: apart, one
lifted, apart with the other in front, the other lifted; from the front one foot after the other
comes forward. The light stays at the upper left, so the left row is drawn and not mirrored.
Thirty-two pixels hold few things: a light body, a dark hat, white eyes, the magenta filter, boots.
"""

import kit
import palette as p
import shapes as s

FRAME = 32
LINE = 1.4

BOOT = s.mix(p.SLUDGE_VIOLET, p.OUTLINE, .12)
BOOT_LIGHT = s.mix(p.SLUDGE_VIOLET, "#ffffff", .25)

# from step to step: apart, passing, apart, passing
BOB = (.6, -.7, .6, -.7)
SQUASH = (.05, -.05, .05, -.05)
SWAY = (.8, .3, -.8, -.3)


def boot(x, y, toe, size=1.0):
    """A rubber boot standing on y; toe: -1 points left, 1 right, 0 towards the viewer."""
    w, h = (2.5 if toe else 2.7) * size, 3.7 * size
    reach = 2.0 * size * toe
    left, right = x - w + min(reach, 0), x + w + max(reach, 0)
    top_left, top_right = x - w * .75, x + w * .75
    d = (f"M{left:.2f},{y:.2f} Q{left - .3:.2f},{y - h * .62:.2f} {top_left:.2f},{y - h * .7:.2f} "
         f"L{top_left:.2f},{y - h:.2f} L{top_right:.2f},{y - h:.2f} "
         f"L{top_right:.2f},{y - h * .7:.2f} "
         f"Q{right + .3:.2f},{y - h * .62:.2f} {right:.2f},{y:.2f} Z")
    return (s.path(d, BOOT, width=LINE)
            + s.path(f"M{left + 1.2:.2f},{y - 1.5:.2f} q.4,-.8 1.4,-.7", stroke=BOOT_LIGHT,
                     width=1.1))


def leg(x0, y0, x1, y1, toe, size=1.0, skin=s.SKIN_SHADE):
    line = (f"M{x0:.2f},{y0:.2f} Q{(x0 + x1) / 2 + toe * .8:.2f},{(y0 + y1) / 2:.2f} "
            f"{x1:.2f},{y1 - 3:.2f}")
    return (s.path(line, stroke=p.OUTLINE, width=2.6 * size + 2 * LINE)
            + s.path(line, stroke=skin, width=2.6 * size) + boot(x1, y1, toe, size))


def hand(x, y, skin=s.SKIN):
    return s.circle(x, y, 1.9, skin, width=LINE) + s.circle(x - .5, y - .6, .75, s.SKIN_LIGHT)


def blob(x, y, frame, lean=0.0):
    """The body: round above, with a dripping hem that wobbles from step to step."""
    w, h = 9.3 * (1 + SQUASH[frame]), 8.7 * (1 - SQUASH[frame])
    half = [(.62, -.93), (.97, -.5), (1.05, .02), (1.04, .5)]
    drips = [(.96, .86), (.66, .74), (.36, .96), (.08, .78), (-.3, .98), (-.6, .76), (-.94, .9)]
    drips = [(dx, dy + (.08 if (i // 2 + frame) % 2 else 0)) for i, (dx, dy) in enumerate(drips)]
    points = [(0, -1.03)] + half + drips + [(-dx, dy) for dx, dy in reversed(half)]
    outline = s.blob([(x + dx * w + lean * -dy, y + dy * h) for dx, dy in points], .55)
    inside = s.rect(0, 0, FRAME, FRAME, s.SKIN_SHADE)
    inside += s.ellipse(x - 1.1, y - .9, w * 1.06, h * 1.1, s.SKIN)
    inside += s.path(f"M{x - w * .76:.2f},{y + h * .3:.2f} Q{x - w * .88:.2f},{y - h * .4:.2f} "
                     f"{x - w * .35:.2f},{y - h * .78:.2f}", stroke=s.SKIN_LIGHT, width=2.2)
    inside += s.circle(x + w * .5, y + h * .55, 1.1, p.SLUDGE_DARK, more='opacity="0.6"')
    inside += s.circle(x + w * .2, y + h * .78, .7, p.SLUDGE_DARK, more='opacity="0.6"')
    return s.clipped(outline, inside) + s.path(outline, width=LINE)


def eye(x, y, r, look):
    return (s.circle(x, y, r, "#ffffff", width=1.1)
            + s.circle(x + look[0], y + look[1], r * .47, p.OUTLINE))


def mask(x, y, way=0):
    """The mask's filter: a slotted drum, seen from the front or sticking out to one side."""
    if not way:
        return (s.rect(x - 3.3, y - 2.3, 6.6, 4.7, s.MAGENTA_SHADE, width=LINE * .9, radius=1.7)
                + s.rect(x - 3, y - 2, 5.4, 3.7, p.SLUDGE_MAGENTA, radius=1.4)
                + s.path(f"M{x - 1.5:.2f},{y - .9:.2f} v2 M{x + .2:.2f},{y - .9:.2f} v2 "
                         f"M{x + 1.9:.2f},{y - .9:.2f} v2", stroke=s.MAGENTA_SHADE, width=.8)
                + s.path(f"M{x - 2.2:.2f},{y - 1.3:.2f} h2", stroke=s.MAGENTA_LIGHT, width=.9))
    return (f'<g transform="translate({x:.2f} {y:.2f}) rotate({8 * way})">'
            + s.rect(-2.3 if way > 0 else -2.7, -2.1, 5, 4.2, s.MAGENTA_SHADE, width=LINE * .9,
                     radius=1.2)
            + s.rect(-2.1 if way > 0 else -2.5, -1.9, 4.6, 2.9, p.SLUDGE_MAGENTA, radius=1)
            + s.path(f"M{way * .7:.2f},-2 v4", stroke=s.MAGENTA_SHADE, width=1)
            + s.path(f"M-1.6,-1.1 h{1.4 if way > 0 else .9}", stroke=s.MAGENTA_LIGHT, width=.9)
            + "</g>")


def side(frame, way):
    """Seen from the side, walking right (way 1) or left (-1)."""
    x, y = 16 - way * .9, 15.4 + BOB[frame]
    near, near_lift = ((4.6, 0), (.2, 0), (-4.8, .3), (-.4, 2.6))[frame]
    far, far_lift = ((-4.8, .3), (-.4, 2.6), (4.6, 0), (.2, 0))[frame]
    swing = (-3.4, 0, 3.4, 0)[frame]
    drawn = leg(x + .8 * way, 21, 16 + way * (far + .4), 27.8 - far_lift, way, .9)
    drawn += leg(x - .8 * way, 21, 16 + way * (near - 1.2), 28.7 - near_lift, way, 1,
                 s.mix(s.SKIN, s.SKIN_SHADE, .3))
    drawn += blob(x, y, frame, 1.2 * way)
    face = x + 3.2 * way
    drawn += mask(face + 4.4 * way, y + 3.4, way)
    drawn += eye(face + 3.3 * way, y - 1, 2.8, (.8 * way, .2))
    drawn += eye(face - 2.1 * way, y - .6, 3.5, (1 * way, .2))
    drawn += hand(x - 3.4 * way + way * swing, y + 4.8 - abs(swing) * .15)
    drawn += s.hat(x + way * 1.2, y - 5.9, way * (4 if frame % 2 else 0), way)
    return drawn


FEET = ((28.9, 26.8), (28.4, 25.6), (26.8, 28.9), (25.6, 28.4))


def feet_and_hands(x, y, frame, away):
    """Both legs, the farther one first, and both hands swinging against them."""
    left, right = FEET[frame] if not away else reversed(FEET[frame])
    drawn = ""
    for level, way in sorted(((left, -1), (right, 1))):
        near = level > 27
        drawn += leg(x + way * 3.2, 21, 16 + way * 4.1, level, 0, 1.04 if near else .9,
                     s.mix(s.SKIN, s.SKIN_SHADE, .3 if near else 1))
    hands = "".join(hand(x + way * 9.4, y + 4 + (27.5 - level) * .75)
                    for level, way in ((left, -1), (right, 1)))
    return drawn, hands


def front(frame):
    """Coming towards the viewer."""
    x, y = 16 + SWAY[frame], 15.2 + BOB[frame]
    legs, hands = feet_and_hands(x, y, frame, False)
    return (legs + blob(x, y, frame) + hands + eye(x - 3.4, y - 1, 3.3, (.5, .7))
            + eye(x + 3.4, y - 1, 3.3, (-.5, .7)) + mask(x, y + 4.3)
            + s.hat(x, y - 6.3, SWAY[frame] * 3, 0))


def behind(frame):
    """Walking away: the canister on its back, the strap of the mask, no face."""
    x, y = 16 + SWAY[frame], 15.2 + BOB[frame]
    legs, hands = feet_and_hands(x, y, frame, True)
    canister = (s.rect(x - 3.3, y - 1.6, 6.6, 7.6, s.MAGENTA_SHADE, width=LINE * .9, radius=2.4)
                + s.rect(x - 2.9, y - 1.2, 4.6, 6.6, p.SLUDGE_MAGENTA, radius=1.9)
                + s.path(f"M{x - 1.7:.2f},{y + 2:.2f} v-1.6", stroke=s.MAGENTA_LIGHT, width=1.2)
                + s.path(f"M{x - 3.2:.2f},{y + 3.4:.2f} h6.4", stroke=s.MAGENTA_SHADE, width=.9))
    strap = (f"M{x - 8.2:.2f},{y - 1.4:.2f} Q{x:.2f},{y + .4:.2f} {x + 8.2:.2f},{y - 1.4:.2f}")
    return (hands + legs + blob(x, y, frame) + s.path(strap, stroke=p.SLUDGE_VIOLET, width=1.6)
            + canister + s.hat(x, y - 6, SWAY[frame] * 3, 2))


sheet = ""
for row, draw in enumerate((lambda f: side(f, 1), behind, lambda f: side(f, -1), front)):
    for column in range(4):
        sheet += (f'<svg x="{column * FRAME}" y="{row * FRAME}" width="{FRAME}" height="{FRAME}" '
                  f'viewBox="0 0 {FRAME} {FRAME}"><g transform="translate(-.35 -.27) scale(1.03)">'
                  f"{s.shadow(15.6, 25.8, 6.9, 1, 5, .42)}{draw(column)}</g></svg>")
kit.save("VorelDefense_grunts.PNG", kit.render(kit.svg(4 * FRAME, 4 * FRAME, sheet, s.SHADOW_BLUR), 512, 512))
