"""The grunts, the tower and the turret drawn large, for the title and the defeat banner.

They are the same figures as the small sprites of the field, with the room for detail that a
figure of a hundred pixels and more has.
"""

import math

import enamel
from shapes import blob, circle, mix, path
from palette import (
    BOTTLE_GREEN, BOTTLE_GREEN_LIGHT, BRASS, BRASS_LIGHT, COPPER, COPPER_DARK, COPPER_LIGHT, CREAM,
    CREAM_SHADE, OUTLINE, SLUDGE, SLUDGE_DARK, SLUDGE_LIGHT, SLUDGE_MAGENTA, SLUDGE_VIOLET, STEEL,
    STEEL_LIGHT, WATER, WATER_DEEP, WATER_LIGHT,
)

HAT_DARK = mix(SLUDGE_VIOLET, OUTLINE, 0.5)
BOOT = mix(SLUDGE_VIOLET, OUTLINE, 0.45)

DEFS = "".join([
    enamel.radial("sludge", [(0, "#f0f89c"), (0.4, SLUDGE_LIGHT), (0.7, mix(SLUDGE_LIGHT, SLUDGE, 0.75)),
                             (0.88, mix(SLUDGE, SLUDGE_VIOLET, 0.5)),
                             (1, mix(SLUDGE_DARK, SLUDGE_VIOLET, 0.5))], 0.34, 0.3, 0.82),
    enamel.radial("hat", [(0, "#dcb0ea"), (0.35, SLUDGE_VIOLET), (1, HAT_DARK)]),
    enamel.radial("can", [(0, "#f7b0e2"), (0.4, SLUDGE_MAGENTA), (1, "#741a60")]),
    enamel.radial("boot", [(0, "#9a72b8"), (0.6, BOOT), (1, mix(BOOT, OUTLINE, 0.5))]),
    enamel.gradient("drip", [(0, SLUDGE_LIGHT), (0.35, SLUDGE), (1, mix(SLUDGE_DARK, SLUDGE_VIOLET, 0.35))]),
    enamel.gradient("wall", [(0, CREAM_SHADE), (0.2, mix(CREAM, "#ffffff", 0.6)), (0.5, CREAM), (0.82, CREAM_SHADE),
                             (1, mix(CREAM_SHADE, COPPER_DARK, 0.45))], 0, 0, 1, 0),
    enamel.gradient("roof", [(0, COPPER), (0.28, COPPER_LIGHT), (0.5, COPPER), (1, mix(COPPER_DARK, OUTLINE, 0.2))],
                    0, 0, 1, 0.1),
    enamel.gradient("hoop", [(0, BOTTLE_GREEN), (0.25, mix(BOTTLE_GREEN_LIGHT, CREAM, 0.2)),
                             (0.5, BOTTLE_GREEN_LIGHT),
                             (1, mix(BOTTLE_GREEN, OUTLINE, 0.45))], 0, 0, 1, 0),
    enamel.gradient("pool", [(0, "#dff7ff"), (0.3, WATER_LIGHT), (1, WATER)]),
    enamel.gradient("dark", [(0, "#0c211c"), (0.5, "#21473c"), (1, "#102a24")], 0, 0, 1, 0),
    enamel.radial("ball", [(0, "#ffffff"), (0.28, WATER_LIGHT), (0.62, WATER), (1, WATER_DEEP)]),
])

LINE = f'stroke="{OUTLINE}" stroke-linejoin="round" stroke-linecap="round"'


def _line(width):
    return f'{LINE} stroke-width="{width}"'


def _leg(hip, foot, toe, line):
    (x0, y0), (x1, y1) = hip, foot
    bone = f"M{x0} {y0} Q{(x0 + x1) / 2 + toe * 3} {(y0 + y1) / 2} {x1} {y1 - 7}"
    left, right = x1 - 10 + min(toe, 0) * 5, x1 + 10 + max(toe, 0) * 5
    sole = (f"M{left} {y1} Q{left - 1.5} {y1 - 11} {x1 - 3 + toe} {y1 - 12} Q{right + 1.5} {y1 - 11} {right} {y1}Z")
    return (path(bone, "none", f'{LINE} stroke-width="{10 + 2 * line}"')
            + path(bone, "none", f'stroke="{mix(SLUDGE, SLUDGE_DARK, 0.3)}" stroke-width="10" stroke-linecap="round"')
            + path(sole, "url(#boot)", _line(line))
            + path(f"M{left + 3} {y1 - 5} Q{left + 4} {y1 - 9} {x1 - 2} {y1 - 9.5}", "none",
                   'stroke="#cfa9e6" stroke-width="1.6" stroke-linecap="round"'))


def _arm(shoulder, elbow, hand, line):
    bone = f"M{shoulder[0]} {shoulder[1]} Q{elbow[0]} {elbow[1]} {hand[0]} {hand[1]}"
    return (path(bone, "none", f'{LINE} stroke-width="{8 + 2 * line}"')
            + circle(hand[0], hand[1], 7 + line, OUTLINE)
            + path(bone, "none", f'stroke="{SLUDGE}" stroke-width="8" stroke-linecap="round"')
            + circle(hand[0], hand[1], 7, "url(#sludge)"))


def _body(line, wobble=0, bald=False):
    hem = [(30 - 15 * i, -14 + (8 if (i + wobble) % 2 else 0)) for i in range(5)]
    top = [(-17, -79), (2, -85), (20, -78)] if bald else [(-17, -78), (17, -78)]
    points = [(-38, -36), (-35, -60)] + top + [(35, -60), (38, -36)] + hem
    shape = blob(points)
    spots = "".join(circle(x, y, r, SLUDGE_VIOLET, 'opacity="0.55"')
                    + circle(x - r * 0.25, y - r * 0.3, r * 0.45, "#c98fdd", 'opacity="0.8"')
                    for x, y, r in ((-24, -30, 4), (-14, -22, 2.6), (25, -26, 3.4), (10, -20, 2.4), (-29, -56, 2.2)))
    hairs = ""
    if bald:
        hairs = path("M-6 -84 Q-10 -92 -6 -98 M1 -85 Q0 -94 4 -101 M8 -84 Q11 -91 16 -95", "none", _line(line * 0.8))
    return (hairs + path(shape, "url(#sludge)", _line(line)) + spots
            + path("M-31 -40 Q-33 -58 -20 -69", "none", 'stroke="#f8fcc8" stroke-width="4.5" '
                                                        'stroke-linecap="round" opacity="0.9"')
            + circle(-29, -33, 2.2, "#f8fcc8", 'opacity="0.9"')
            + path("M34 -34 Q30 -20 8 -13", "none", f'stroke="{SLUDGE_LIGHT}" stroke-width="2" '
                                                    f'stroke-linecap="round" opacity="0.5"'))


def _eye(x, y, r, look, line):
    return (circle(x, y, r, "#fdfdf0", f'stroke="{OUTLINE}" stroke-width="{line}"')
            + circle(x + look[0], y + look[1], r * 0.45, OUTLINE)
            + circle(x + look[0] - r * 0.17, y + look[1] - r * 0.2, r * 0.16, "#ffffff"))


def _hat(x, y, turn, peak, line):
    """A hard hat; peak is how far its brim juts out to the right, or 0 for the view from the front."""
    brim = (f"M-32 0 Q0 {4 + (4 if not peak else 0)} {30 + peak} 1 Q{34 + peak} 5 {28 + peak} 7 Q0 "
            f"{12 + (3 if not peak else 0)} -31 7 Q-36 4 -32 0Z")
    return (f'<g transform="translate({x} {y}) rotate({turn})">'
            + path("M-27 3 Q-29 -29 0 -30 Q29 -29 27 3Z", "url(#hat)", _line(line))
            + path("M-6 -29.5 Q0 -34 6 -29.5 L7 3 H-7Z", mix(SLUDGE_VIOLET, "#ffffff", 0.28), _line(line * 0.6))
            + path("M-3.6 -26 L-4 -2", "none", 'stroke="#e9ccf4" stroke-width="2" stroke-linecap="round"')
            + path("M-20 -6 Q-19 -19 -11 -24", "none", 'stroke="#f3dcfb" stroke-width="3.6" stroke-linecap="round"')
            + path(brim, "url(#can)", _line(line))
            + path(f"M-28 2.5 Q-4 6.5 {18 + peak} 4", "none", 'stroke="#fbd0f0" stroke-width="1.8" '
                                                              'stroke-linecap="round" opacity="0.9"')
            + "</g>")


def _can(x, y, r, line):
    return (circle(x, y, r, "url(#can)", f'stroke="{OUTLINE}" stroke-width="{line}"')
            + "".join(path(f"M{x - r * w} {y + r * d} h{2 * r * w}", "none",
                           'stroke="#5d164e" stroke-width="1.7" stroke-linecap="round"')
                      for d, w in ((-0.3, 0.5), (0.08, 0.58), (0.46, 0.42)))
            + circle(x - r * 0.4, y - r * 0.45, r * 0.16, "#ffffff", 'opacity="0.85"'))


def grunt(x, y, size, step=0, mood="cross", outline=2.2):
    """A grunt of the given height that walks to the right; (x, y) is the ground under it."""
    k = size / 110
    line = outline / k
    near, far = (((17, 0), (-15, -2)), ((3, 0), (-4, -9)), ((-15, -2), (17, 0)), ((-3, -9), (4, 0)))[step]
    swing = (-14, 0, 14, 0)[step]
    bob = (0, -4, 0, -4)[step]
    shock = mood == "shock"
    parts = [f'<ellipse cx="7" cy="1" rx="40" ry="7.5" fill="{OUTLINE}" opacity="0.3"/>',
             _leg((7, -22), (far[0] + 5, far[1] - 3), 1, line)]
    upper = [_body(line, step, shock)]
    upper.append(path("M-37 -46 Q0 -36 37 -47", "none", f'{LINE} stroke-width="{6 + 2 * line * 0.7}"'))
    upper.append(path("M-37 -46 Q0 -36 37 -47", "none", f'stroke="{SLUDGE_VIOLET}" stroke-width="6"'))
    look = (1.5, -2) if shock else (3.4, 1)
    grow = 2 if shock else 0
    upper.append(_eye(8, -57, 11 + grow, look, line))
    upper.append(_eye(29, -58, 9.5 + grow, look, line))
    if not shock:
        upper.append(path("M-4 -67 L17 -62 M22 -63 L39 -68", "none", f'{LINE} stroke-width="{line * 1.6}"'))
    upper.append(_can(33, -40, 11, line))
    if shock:
        upper.append(_arm((-14, -44), (-34, -52), (-36, -76), line))
        upper.append(_hat(4, -115, -24, 12, line))
    else:
        upper.append(_hat(3, -75, 4 if step % 2 else -2, 12, line))
        upper.append(_arm((-13, -42), (-17 + swing * 0.3, -28), (-14 + swing, -21), line))
    parts.append(_leg((-5, -20), (near[0] - 3, near[1]), 1, line))
    parts.append(f'<g transform="translate(0 {bob})">' + "".join(upper) + "</g>")
    return f'<g transform="translate({x} {y}) scale({k:.4f})">' + "".join(parts) + "</g>"


def proud_grunt(x, y, size, outline=2.2):
    """A grunt that faces the player with both arms up."""
    k = size / 110
    line = outline / k
    parts = [_leg((-12, -20), (-16, 0), -1, line), _leg((12, -20), (16, 0), 1, line),
             _arm((-30, -44), (-52, -50), (-46, -76), line), _arm((30, -44), (52, -50), (46, -76), line),
             _body(line),
             path("M-37 -46 Q0 -34 37 -46", "none", f'{LINE} stroke-width="{6 + 2 * line * 0.7}"'),
             path("M-37 -46 Q0 -34 37 -46", "none", f'stroke="{SLUDGE_VIOLET}" stroke-width="6"'),
             _eye(-13, -57, 11, (2, 2), line), _eye(13, -57, 11, (-2, 2), line),
             path("M-27 -70 L-5 -64 M27 -70 L5 -64", "none", f'{LINE} stroke-width="{line * 1.6}"'),
             _can(0, -35, 12, line), _hat(0, -76, 0, 0, line)]
    return f'<g transform="translate({x} {y}) scale({k:.4f})">' + "".join(parts) + "</g>"


def drips(x, y, width, lengths, outline=2.0):
    """Sludge heaped on a straight edge and running down from it.

    lengths are those of the tongues, left to right.
    """
    step = width / len(lengths)
    data, shine = f"M{x:.1f} {y + 4:.1f}", ""
    for i, length in enumerate(lengths):
        left, mid, right = x + i * step, x + (i + 0.5) * step, x + (i + 1) * step
        wide = step * (0.24 + 0.05 * math.sin(i * 2.3))
        data += (f" C{left + step * 0.2:.1f} {y + 12:.1f} {mid - wide:.1f} {y + 12:.1f} {mid - wide:.1f} "
                 f"{y + length * 0.55:.1f}"
                 f" V{y + length - wide:.1f} A{wide:.1f} {wide * 1.15:.1f} 0 0 0 {mid + wide:.1f} "
                 f"{y + length - wide:.1f}"
                 f" V{y + length * 0.55:.1f} C{mid + wide:.1f} {y + 12:.1f} {right - step * 0.2:.1f} "
                 f"{y + 12:.1f} {right:.1f} {y + 4:.1f}")
        shine += path(f"M{mid - wide * 0.4:.1f} {y + 6:.1f} V{y + length - wide * 1.1:.1f}", "none",
                      'stroke="#f3fab4" stroke-width="2.6" stroke-linecap="round" opacity="0.85"')
    # the heap on top, with lumps of different height
    lumps = len(lengths) - 1
    for i in range(lumps):
        right = x + width - i * width / lumps
        left = right - width / lumps
        rise = (12, 26, 17, 31, 14, 22, 10, 19)[i % 8]
        foot = y - 3 if i < lumps - 1 else y + 4
        data += f" C{right:.1f} {y - rise:.1f} {left + 4:.1f} {y - rise:.1f} {left:.1f} {foot:.1f}"
        shine += path(f"M{left + 9:.1f} {y - rise * 0.42:.1f} Q{left + 14:.1f} {y - rise * 0.66:.1f} "
                      f"{left + 24:.1f} {y - rise * 0.62:.1f}",
                      "none", 'stroke="#f3fab4" stroke-width="2.4" stroke-linecap="round" opacity="0.85"')
    return path(data + "Z", "url(#drip)", _line(outline)) + shine


def tower(x, y, height, outline=2.6, level=0.92):
    """The water tower; (x, y) is the ground between its feet."""
    k = height / 124
    o = outline / k
    parts = ['<ellipse cx="10" cy="0" rx="52" ry="7.5" fill="%s" opacity="0.3"/>' % OUTLINE]

    def leg(x0, x1, y0, y1, w):
        shape = f"M{x0 - w} {y0} L{x0 + w} {y0} L{x1 + w} {y1} L{x1 - w} {y1}Z"
        return (path(shape, BOTTLE_GREEN, _line(o))
                + path(f"M{x0 - w * 0.4} {y0} L{x1 - w * 0.4} {y1}", "none",
                       f'stroke="{mix(BOTTLE_GREEN_LIGHT, CREAM, 0.15)}" stroke-width="{w * 0.7}"'))

    parts += [leg(-14, -17, -58, -8, 1.6), leg(14, 17, -58, -8, 1.6)]
    cross = "M-16 -14 L15 -38 M16 -14 L-15 -38 M-28 -7 L27 -46 M28 -7 L-27 -46"
    parts.append(path(cross, "none", f'{LINE} stroke-width="{1.3 + 2 * o}"'))
    parts.append(path(cross, "none", f'stroke="{STEEL}" stroke-width="1.3"'))
    parts.append(path(cross, "none", f'stroke="{STEEL_LIGHT}" stroke-width="0.5" transform="translate(-0.2 -0.25)"'))
    parts.append(enamel.box(-4.8, -56, 9.6, 54, 0, "url(#copper-tube)", _line(o)))
    for ring in (-46, -22, -9):
        parts.append(enamel.box(-6.6, ring, 13.2, 4.2, 1.2, "url(#brass-tube)", _line(o)))
    parts.append(f'<g transform="translate(0 -32) scale({1 / k:.4f})">' + enamel.valve(0, 0, 7.6 * k) + "</g>")
    parts += [leg(-27, -33, -58, -3, 3.1), leg(27, 33, -58, -3, 3.1)]
    for foot in (-33, 33):
        parts.append(enamel.box(foot - 6.5, -5, 13, 5.4, 1.4, "url(#steel)", _line(o)))
    # the ladder
    parts.append(path("M22.4 -54 L26 -4 M28.8 -54 L32.4 -4", "none", f'{LINE} stroke-width="{1.0 + 1.4 * o}"'))
    parts.append(path("M22.4 -54 L26 -4 M28.8 -54 L32.4 -4", "none", f'stroke="{BRASS}" stroke-width="1"'))
    for i in range(9):
        ly = -51 + i * 5.4
        lx = 22.4 + (ly + 54) * 0.072
        parts.append(path(f"M{lx:.2f} {ly:.2f} h6.4", "none", f'stroke="{OUTLINE}" stroke-width="{0.6 + o}"'))
        parts.append(path(f"M{lx:.2f} {ly:.2f} h6.4", "none", f'stroke="{BRASS_LIGHT}" stroke-width="0.7"'))
    # the tank
    wall = "M-33 -106 H33 V-56 Q0 -48 -33 -56Z"
    parts.append(path(wall, "url(#wall)", _line(o)))
    for plank in (-25.5, -18, -9, 0, 9, 18, 25.5):
        parts.append(path(f"M{plank} -105 V-54", "none", f'stroke="{COPPER_DARK}" stroke-width="0.5" opacity="0.35"'))
    arch = "M-23 -61 H23 V-90 Q23 -99 14 -99 H-14 Q-23 -99 -23 -90Z"
    top = -61 - 35 * level
    parts.append('<clipPath id="pane"><path d="%s"/></clipPath>' % arch)
    parts.append(path(arch, "url(#dark)"))
    parts.append('<g clip-path="url(#pane)">'
                 + path(f"M-24 {top} q6 -2.2 12 0 t12 0 t12 0 t12 0 V-60 H-24Z", "url(#pool)")
                 + path(f"M-24 {top} q6 -2.2 12 0 t12 0 t12 0 t12 0", "none", 'stroke="#ffffff" stroke-width="1"')
                 + "".join(circle(bx, by, br, "#ffffff", 'opacity="0.35"')
                           + circle(bx, by, br, "none", 'stroke="#ffffff" stroke-width="0.5"')
                           for bx, by, br in ((-13, -70, 1.8), (-9, -80, 1.2), (9, -74, 2.2), (14, -85, 1.4), (2, -66, 1.3)))
                 + path("M-19 -60 L-19 -92 Q-19 -96 -15 -96 H-8 L-13 -60Z", "#ffffff", 'opacity="0.45"')
                 + path("M-4 -97 H-1 L-6 -60 H-9Z", "#ffffff", 'opacity="0.35"') + "</g>")
    parts.append(path(arch, "none", f'stroke="{OUTLINE}" stroke-width="{2.6 + 2 * o}"'))
    parts.append(path(arch, "none", 'stroke="url(#brass)" stroke-width="2.6"'))
    for i in range(1, 5):
        parts.append(path(f"M21.8 {-61 - i * 7} h-6", "none", f'stroke="{OUTLINE}" '
                f'stroke-width="{1 + 2 * o:.2f}" stroke-linecap="round"'))
        parts.append(path(f"M21.8 {-61 - i * 7} h-6", "none", f'stroke="{BRASS_LIGHT}" stroke-width="1" '
                                                              f'stroke-linecap="round"'))
    for rx in (-28.8, 28.8):
        for ry in (-96, -83.5, -71):
            parts.append(enamel.rivet(rx, ry, 1.1))
    # the hoop with the company's sign
    parts.append(path("M-35 -61.5 H35 V-54 Q0 -44.5 -35 -54Z", "url(#hoop)", _line(o)))
    for rx, ry in ((-30, -57), (-23, -55.6), (23, -55.6), (30, -57)):
        parts.append(enamel.rivet(rx, ry, 1.1))
    parts.append(f'<ellipse cx="0" cy="-54.5" rx="13" ry="6.6" fill="url(#cream)" stroke="{OUTLINE}" '
                 f'stroke-width="{o}"/>')
    parts.append(f'<ellipse cx="0" cy="-54.5" rx="11.4" ry="5.2" fill="none" stroke="{BRASS}" stroke-width="0.7"/>')
    parts.append(enamel.drop(0, -53.1, 2.9, o * 0.7))
    # the roof
    roof = "M-40 -104 Q0 -95 40 -104 L8 -119 Q0 -121.5 -8 -119Z"
    parts.append(path(roof, "url(#roof)", _line(o)))
    for seam in (-0.8, -0.45, -0.15, 0.15, 0.45, 0.8):
        parts.append(path(f"M{seam * 8:.2f} -119.4 L{seam * 39:.2f} {-101.2 - abs(seam) * 2.2:.2f}", "none",
                          f'stroke="{COPPER_DARK}" stroke-width="0.7" opacity="0.8"'))
    parts.append(path("M-27 -108.5 L-7 -118", "none", 'stroke="#ffdcc0" stroke-width="1.2" '
                                                      'stroke-linecap="round" opacity="0.8"'))
    parts.append(path("M-40 -104 Q0 -95 40 -104", "none", f'stroke="{OUTLINE}" stroke-width="{2.4 + 2 * o}" '
                                                          f'stroke-linecap="round"'))
    parts.append(path("M-40 -104 Q0 -95 40 -104", "none", 'stroke="url(#brass-tube)" stroke-width="2.4" '
                                                          'stroke-linecap="round"'))
    parts.append(circle(0, -121.5, 2.9, "url(#brass-ball)", _line(o)))
    return f'<g transform="translate({x} {y}) scale({k:.4f})">' + "".join(parts) + "</g>"


def turret(x, y, width, outline=2.4):
    """A turret seen obliquely: nozzles all around, a riveted drum, a dome full of water."""
    k = width / 120
    o = outline / k
    parts = [f'<ellipse cx="8" cy="4" rx="64" ry="22" fill="{OUTLINE}" opacity="0.3"/>']

    def nozzle(angle):
        a = math.radians(angle)
        c, s = math.cos(a), math.sin(a)
        line = f"M{40 * c:.2f} {15 * s - 13:.2f} L{61 * c:.2f} {23 * s - 13:.2f}"
        mouth = f'cx="{63 * c:.2f}" cy="{23.5 * s - 13:.2f}"'
        lip = 3.2 + 6 * abs(s)
        drawn = (path(line, "none", f'stroke="{OUTLINE}" stroke-width="{12 + 2 * o:.2f}"')
                 + path(line, "none", f'stroke="{mix(COPPER, COPPER_DARK, 0.25)}" stroke-width="12"')
                 + path(line, "none", f'stroke="{COPPER_LIGHT}" stroke-width="4" transform="translate(0 -3)"')
                 + f'<ellipse {mouth} rx="{lip:.2f}" ry="8.6" fill="url(#brass)" stroke="{OUTLINE}" '
                   f'stroke-width="{o}"/>')
        if s > 0.1:
            drawn += (f'<ellipse {mouth} rx="{lip * 0.62:.2f}" ry="5.2" fill="{WATER_LIGHT}" '
                      f'stroke="{OUTLINE}" stroke-width="{o * 0.8:.2f}"/>')
        return drawn

    for angle in (270, 225, 315, 180, 0):
        parts.append(nozzle(angle))
    parts.append(path("M-46 -24 V-6 A46 17 0 0 0 46 -6 V-24Z", "url(#hoop)", _line(o)))
    parts.append(path("M-46 -9 A46 17 0 0 0 46 -9", "none", f'stroke="{CREAM}" stroke-width="1.6" opacity="0.75"'))
    for angle in (45, 135, 90):
        parts.append(nozzle(angle))
    parts.append(f'<ellipse cx="0" cy="-24" rx="46" ry="17" fill="url(#brass)" stroke="{OUTLINE}" '
                 f'stroke-width="{o}"/>')
    parts.append(f'<ellipse cx="0" cy="-25" rx="40" ry="14" fill="url(#cream)" stroke="{OUTLINE}" '
                 f'stroke-width="{o * 0.6}"/>')
    for i in range(10):
        a = math.radians(36 * i + 18)
        parts.append(enamel.rivet(35 * math.cos(a), -25 + 11.4 * math.sin(a), 1.8))
    parts.append(f'<ellipse cx="0" cy="-27" rx="28" ry="10" fill="url(#brass)" stroke="{OUTLINE}" '
                 f'stroke-width="{o}"/>')
    parts.append(path("M-23 -28 C-23 -66 23 -66 23 -28 A23 8 0 0 1 -23 -28Z", "url(#ball)", _line(o)))
    parts.append(path("M-15 -34 Q-14 -48 -3 -51", "none", 'stroke="#ffffff" stroke-width="4" stroke-linecap="round"'))
    parts.append(circle(11, -33, 2.6, WATER_LIGHT))
    return f'<g transform="translate({x} {y}) scale({k:.4f})">' + "".join(parts) + "</g>"
