"""What all pictures share: colours between colours, metals, enamel, rivets, drops, bubbles, soft blobs.

The light comes from the upper left everywhere, so every gradient is bright there and dark at the
lower right.
"""

import itertools
import math

import palette as p


def mix(first, second, share):
    """The colour a share of the way from the first to the second."""
    one, two = (tuple(int(c[i:i + 2], 16) for i in (1, 3, 5)) for c in (first, second))
    return "#%02x%02x%02x" % tuple(round(a + (b - a) * share) for a, b in zip(one, two))


def _stops(stops):
    text = ""
    for stop in stops:
        offset, colour, *opacity = stop
        shown = f' stop-opacity="{opacity[0]}"' if opacity else ""
        text += f'<stop offset="{offset}" stop-color="{colour}"{shown}/>'
    return text


def gradient(name, stops, x1=0, y1=0, x2=0, y2=1):
    """A linear gradient over the painted shape, by default downwards; a stop is (offset, colour[, opacity])."""
    return (f'<linearGradient id="{name}" x1="{x1}" y1="{y1}" x2="{x2}" y2="{y2}">'
            f"{_stops(stops)}</linearGradient>")


def radial(name, stops, cx=0.35, cy=0.3, r=0.8):
    """A round gradient over the painted shape, its bright spot towards the light by default."""
    return f'<radialGradient id="{name}" cx="{cx}" cy="{cy}" r="{r}">{_stops(stops)}</radialGradient>'


def _metal(name, light, middle, dark):
    """A flat plate (name), an upright tube (name-tube), a pipe lying down (name-pipe), a ball (name-ball)."""
    tube = [(0, mix(middle, dark, 0.5)), (0.12, middle), (0.3, light), (0.42, mix(light, middle, 0.6)),
            (0.68, middle), (0.9, dark), (1, mix(dark, p.OUTLINE, 0.25))]
    return (gradient(name, [(0, light), (0.28, middle), (0.5, mix(middle, dark, 0.35)),
                            (0.62, mix(light, middle, 0.45)), (0.8, middle), (1, dark)], x2=1)
            + gradient(name + "-tube", tube, x2=1, y2=0)
            + gradient(name + "-pipe", tube)
            + radial(name + "-ball", [(0, mix(light, "#ffffff", 0.7)), (0.45, middle), (1, dark)]))


MATERIALS = (
    _metal("brass", p.BRASS_LIGHT, p.BRASS, p.BRASS_DARK)
    + _metal("copper", p.COPPER_LIGHT, p.COPPER, p.COPPER_DARK)
    + _metal("steel", p.STEEL_LIGHT, p.STEEL, p.STEEL_DARK)
    + gradient("green", [(0, mix(p.BOTTLE_GREEN_LIGHT, p.CREAM, 0.10)), (0.35, p.BOTTLE_GREEN_LIGHT),
                         (1, mix(p.BOTTLE_GREEN, p.OUTLINE, 0.25))], x2=0.55)
    + gradient("cream", [(0, mix(p.CREAM, "#ffffff", 0.55)), (0.45, p.CREAM), (1, p.CREAM_SHADE)], x2=0.55)
    + radial("water-ball", [(0, p.WATER_FOAM), (0.3, p.WATER_LIGHT), (0.62, p.WATER), (1, p.WATER_DEEP)])
)


def _line(stroke, width):
    return (f' stroke="{stroke}" stroke-width="{width}" stroke-linejoin="round" stroke-linecap="round"'
            if width else "")


def circle(x, y, r, fill, more="", stroke=p.OUTLINE, width=0.0):
    return f'<circle cx="{x:.2f}" cy="{y:.2f}" r="{r:.2f}" fill="{fill}"{_line(stroke, width)} {more}/>'


def ellipse(x, y, rx, ry, fill, more="", stroke=p.OUTLINE, width=0.0):
    return (f'<ellipse cx="{x:.2f}" cy="{y:.2f}" rx="{rx:.2f}" ry="{ry:.2f}" fill="{fill}"'
            f"{_line(stroke, width)} {more}/>")


def path(data, fill="none", more="", stroke=p.OUTLINE, width=0.0):
    return f'<path d="{data}" fill="{fill}"{_line(stroke, width)} {more}/>'


def rect(x, y, w, h, fill, more="", stroke=p.OUTLINE, width=0.0, radius=0.0):
    return (f'<rect x="{x:.2f}" y="{y:.2f}" width="{w:.2f}" height="{h:.2f}" rx="{radius:.2f}" fill="{fill}"'
            f"{_line(stroke, width)} {more}/>")


def rivet(x, y, r=3.0, metal="brass"):
    """A round head, its shadow on the lower right; an outline would drown one of a pixel or two."""
    return (circle(x + r * 0.25, y + r * 0.35, r * 1.15, p.OUTLINE, 'opacity="0.45"')
            + circle(x, y, r, f"url(#{metal}-ball)", width=round(r * 0.32, 2) if r > 2 else 0)
            + circle(x - r * 0.32, y - r * 0.36, r * 0.24, "#ffffff", 'opacity="0.9"'))


# A shadow's edge is as soft under the small things as under the large ones, in screen pixels.
SHADOW_BLUR = ('<filter id="shadow-blur" x="-0.5" y="-0.5" width="2" height="2">'
               '<feGaussianBlur stdDeviation="1.1"/></filter>')


def shadow(x, y, rx, ry, reach, dark=0.34):
    """What a thing lays on the ground: thrown to the lower right by `reach`, darkest where it touches.

    (x, y), rx and ry are the ground that it stands on; a picture that uses it needs SHADOW_BLUR.
    """
    thrown = "".join(ellipse(x + reach * t, y + reach * t * .35, rx, ry, p.OUTLINE) for t in (0, .5, 1))
    return (f'<g filter="url(#shadow-blur)" opacity="{dark}">{thrown}</g>'
            f'<g filter="url(#shadow-blur)" opacity="{dark}">' + ellipse(x + .5, y + .3, rx * .92, ry * .8, p.OUTLINE)
            + "</g>")


def bubble(x, y, r, width=1.0, opacity=1.0):
    """A clean soap-clear bubble: thin rim, tinted inside, a glint to the upper left."""
    return (f'<g opacity="{opacity:.2f}">'
            + circle(x, y, r, p.WATER_LIGHT, more='fill-opacity="0.72"')
            + circle(x + r * .12, y + r * .14, r * .72, p.WATER_FOAM, more='fill-opacity="0.55"')
            + circle(x, y, r, "none", stroke=p.WATER_DEEP, width=width)
            + ellipse(x - r * .36, y - r * .4, r * .28, r * .18, "#ffffff",
                      more=f'transform="rotate(-40 {x - r * .36:.2f} {y - r * .4:.2f})"')
            + "</g>")


def flying_drop(x, y, length, width, angle, fill, stroke=p.OUTLINE, line=0.0):
    """A drop whose round head lies at (x, y) and whose tail points back against the angle."""
    w, n = width / 2, length
    d = (f"M{w:.2f},0 C{w:.2f},{w * .62:.2f} {w * .5:.2f},{w:.2f} 0,{w:.2f} "
         f"C{-n * .35:.2f},{w:.2f} {-n * .6:.2f},{w * .3:.2f} {-n:.2f},0 "
         f"C{-n * .6:.2f},{-w * .3:.2f} {-n * .35:.2f},{-w:.2f} 0,{-w:.2f} "
         f"C{w * .5:.2f},{-w:.2f} {w:.2f},{-w * .62:.2f} {w:.2f},0 Z")
    return path(d, fill, f'transform="translate({x:.2f} {y:.2f}) rotate({angle:.2f})"', stroke, line)


def blob(points, tension=0.5):
    """A closed smooth curve through the points, as path data."""
    count, d = len(points), ""
    for i in range(count):
        (ax, ay), (bx, by), (cx, cy), (dx, dy) = (points[(i + k - 1) % count] for k in range(4))
        if not d:
            d = f"M{bx:.2f},{by:.2f} "
        f = tension / 3 * 2
        d += (f"C{bx + (cx - ax) * f / 2:.2f},{by + (cy - ay) * f / 2:.2f} "
              f"{cx - (dx - bx) * f / 2:.2f},{cy - (dy - by) * f / 2:.2f} {cx:.2f},{cy:.2f} ")
    return d + "Z"


def ring(x, y, count, radius, start=0.0):
    """Points spread evenly on a circle, with their angle in degrees."""
    for i in range(count):
        angle = start + 360 * i / count
        yield (x + radius * math.cos(math.radians(angle)),
               y + radius * math.sin(math.radians(angle)), angle)


clips = itertools.count()


def clipped(outline, body):
    """The part of a drawing that lies inside the outline."""
    name = f"clip{next(clips)}"
    return (f'<clipPath id="{name}"><path d="{outline}"/></clipPath>'
            f'<g clip-path="url(#{name})">{body}</g>')


# The grunts, alive and in pieces.

SKIN = p.SLUDGE_LIGHT
SKIN_LIGHT = mix(p.SLUDGE_LIGHT, "#ffffff", .6)
SKIN_SHADE = mix(p.SLUDGE, p.SLUDGE_VIOLET, .45)
MAGENTA_LIGHT = mix(p.SLUDGE_MAGENTA, "#ffffff", .65)
MAGENTA_SHADE = mix(p.SLUDGE_MAGENTA, p.OUTLINE, .4)
HAT = mix(p.SLUDGE_VIOLET, "#ffffff", .16)
HAT_SHADE = mix(p.SLUDGE_VIOLET, p.OUTLINE, .3)
HAT_LIGHT = mix(p.SLUDGE_VIOLET, "#ffffff", .55)


def hat(x, y, tilt, peak):
    """A hard hat; peak: -1 to the left, 1 to the right, 0 to the front, 2 unseen from behind."""
    left, right = {-1: (-10.2, 6.6), 1: (-6.6, 10.2), 0: (-8.6, 8.6), 2: (-7.8, 7.8)}[peak]
    sag = {0: 1.5, 2: .6}.get(peak, .5)
    dome = "M-6.4,.6 C-6.8,-6 -2.6,-5.6 -1.6,-5.7 Q0,-7 1.6,-5.7 C2.6,-5.6 6.8,-6 6.4,.6 Z"
    brim = (f"M{left},-.3 Q0,{sag - .3} {right},-.3 Q{right + .5},1.5 {right - .4},1.6 "
            f"Q0,{2.1 + sag} {left + .4},1.6 Q{left - .5},1.5 {left},-.3 Z")
    inside = (rect(-9, -9, 18, 18, HAT_SHADE) + ellipse(-1.4, -1.6, 5.6, 5.2, HAT)
              + path("M-4.5,-1 Q-4.4,-3 -3.2,-3.8", stroke=HAT_LIGHT, width=1.5)
              + path("M-.7,-6 V1", stroke=HAT_LIGHT, width=1.3))
    return (f'<g transform="translate({x:.2f} {y:.2f}) rotate({tilt:.1f}) scale(.86)">'
            + path(dome + brim, p.OUTLINE, width=2.7) + clipped(dome, inside)
            + path(brim, p.SLUDGE_MAGENTA)
            + path(f"M{left + .6},.5 Q0,{sag + .6} 0,{sag + .5}", stroke="#f3a6de", width=.8)
            + "</g>")
