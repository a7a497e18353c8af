"""What the panels and the title are made of: lettering, enamel plates, pipes, coins and dials.

Everything is lit from the upper left and outlined in the same dark navy, so that the panels look
as if they came out of one workshop.
"""

import functools
import math

from fontTools.pens.svgPathPen import SVGPathPen
from fontTools.pens.transformPen import TransformPen
from fontTools.ttLib import TTFont
from PIL import ImageFilter

import shapes
from palette import (
    BOTTLE_GREEN, BOTTLE_GREEN_LIGHT, BRASS, BRASS_DARK, BRASS_LIGHT, COPPER_DARK, COPPER_LIGHT, CREAM,
    CREAM_SHADE, OUTLINE, STEEL_DARK, STEEL_LIGHT, WATER, WATER_DEEP, WATER_FOAM, WATER_LIGHT,
)
from shapes import circle, gradient, mix, path, radial, rivet

FONTS = {
    "caps": "/usr/share/fonts/opentype/bebas-neue/BebasNeue-Bold.otf",
    "script": "/usr/share/fonts/opentype/lobster/lobster.otf",
    "text": "/usr/share/fonts/opentype/yanone-kaffeesatz/YanoneKaffeesatz-Bold.otf",
}


DEFS = "".join([
    shapes.MATERIALS,
    gradient("recess", [(0, mix(OUTLINE, "#000000", 0.45)), (0.4, OUTLINE),
                        (1, mix(OUTLINE, BOTTLE_GREEN, 0.6))]),
    gradient("gloss", [(0, "#ffffff", 0.34), (1, "#ffffff", 0.02)], 0, 0, 0.3, 1),
    gradient("ink-cream", [(0, "#fffdf4"), (0.55, CREAM), (1, CREAM_SHADE)]),
    gradient("ink-brass", [(0, "#fff3c4"), (0.45, BRASS_LIGHT), (1, BRASS)]),
    gradient("ink-green", [(0, BOTTLE_GREEN_LIGHT), (1, mix(BOTTLE_GREEN, OUTLINE, 0.3))]),
    radial("coin", [(0, "#fff2bd"), (0.4, BRASS_LIGHT), (0.8, BRASS), (1, mix(BRASS, BRASS_DARK, 0.5))]),
    radial("drop", [(0, WATER_FOAM), (0.3, WATER_LIGHT), (0.65, WATER), (1, WATER_DEEP)], 0.38, 0.5, 0.65),
    '<filter id="soft" x="-30%" y="-30%" width="160%" height="160%"><feGaussianBlur stdDeviation="4"/></filter>',
    '<filter id="softer" x="-50%" y="-50%" width="200%" height="200%"><feGaussianBlur stdDeviation="12"/></filter>',
    '<filter id="haze" x="-30%" y="-30%" width="160%" height="160%"><feGaussianBlur stdDeviation="1.4"/></filter>',
])


@functools.lru_cache(maxsize=None)
def _font(face):
    font = TTFont(FONTS[face])
    return font, font.getGlyphSet(), font.getBestCmap()


# Pairs that the letters' own widths leave too far apart, in thousandths of the size.
_PAIRS = {
    "caps": {"AV": -38, "VA": -38, "WA": -30, "AW": -30, "LT": -40, "LY": -40, "TO": -12, "RT": -10,
             "TA": -40, "AT": -40, "PA": -30, "AY": -40, "YA": -40},
    "script": {"Vo": -70, "Wa": -40, "Wi": -30, "We": -40, "To": -40},
    "text": {"Wa": -20, "To": -40, "AV": -50, "VE": 0},
}


def advance(text, face, size, tracking=0):
    """How wide a line of text is."""
    font, _, cmap = _font(face)
    em = font["head"].unitsPerEm
    width = sum(font["hmtx"][cmap[ord(letter)]][0] for letter in text) * size / em
    pairs = sum(_PAIRS[face].get(text[i:i + 2], 0) for i in range(len(text) - 1)) * size / 1000
    return width + pairs + tracking * (len(text) - 1)


def outlines(text, face, size, x, y, anchor="start", tracking=0, stretch=1.0, arch=0):
    """The letters of a line as SVG path data, their baseline at y.

    stretch widens the letters; arch lifts the line's middle by as many units above its ends.
    """
    font, glyphs, cmap = _font(face)
    scale = size / font["head"].unitsPerEm
    width = advance(text, face, size, tracking) * stretch
    start = x - width * {"start": 0, "middle": 0.5, "end": 1}[anchor]
    radius = (width * width / 4 + arch * arch) / (2 * arch) if arch else 0
    pen_x, parts = 0.0, []
    for index, letter in enumerate(text):
        pen = SVGPathPen(glyphs)
        step = font["hmtx"][cmap[ord(letter)]][0] * scale
        left, drop, turn = start + pen_x * stretch, y, 0.0
        if arch:
            middle = left + step * stretch / 2
            turn = math.asin(max(-1, min(1, (middle - start - width / 2) / radius)))
            drop = y - arch + radius * (1 - math.cos(turn))
            left = middle - math.cos(turn) * step * stretch / 2
            drop -= math.sin(turn) * step * stretch / 2
        cos, sin = math.cos(turn), math.sin(turn)
        matrix = (cos * scale * stretch, sin * scale * stretch, sin * scale, -cos * scale, left, drop)
        glyphs[cmap[ord(letter)]].draw(TransformPen(pen, matrix))
        parts.append(pen.getCommands())
        pen_x += step + tracking + _PAIRS[face].get(text[index:index + 2], 0) * size / 1000
    return " ".join(parts)


def lettering(text, face, size, x, y, fill, anchor="middle", outline=0.0, shadow=0.0, depth=0.0,
              side=None, tracking=0, stretch=1.0, arch=0, ink=OUTLINE):
    """A line of letters: soft shadow, raised side, outline, face.

    outline is the width of the line around the letters; depth raises them towards the light, with
    side as the colour of the raised edge.
    """
    data = outlines(text, face, size, x, y, anchor, tracking, stretch, arch)
    layers = []
    if shadow:
        layers.append(f'<path d="{data}" fill="{OUTLINE}" stroke="{OUTLINE}" stroke-width="{2 * outline}" '
                      f'stroke-linejoin="round" opacity="0.4" '
                      f'transform="translate({shadow} {shadow * 1.3})"/>')
    line = f'stroke="{ink}" stroke-width="{2 * outline}" stroke-linejoin="round"'
    if depth:
        steps = max(1, math.ceil(depth))
        offsets = [depth * (i + 1) / steps for i in range(steps)]
        for offset in reversed(offsets):
            layers.append(f'<path d="{data}" fill="{ink}" {line} transform="translate({offset * 0.6:.2f} '
                          f'{offset:.2f})"/>')
        for offset in reversed(offsets):
            layers.append(f'<path d="{data}" fill="{side or ink}" transform="translate({offset * 0.6:.2f} '
                          f'{offset:.2f})" '
                          f'stroke="{side or ink}" stroke-width="0.6"/>')
    if outline and not depth:
        layers.append(f'<path d="{data}" fill="{ink}" {line}/>')
    elif outline:
        layers.append(f'<path d="{data}" fill="none" stroke="{ink}" stroke-width="{outline}" '
                      f'stroke-linejoin="round"/>')
    layers.append(f'<path d="{data}" fill="{fill}"/>')
    return "<g>" + "".join(layers) + "</g>"


def box(x, y, w, h, r, fill, more=""):
    """A rectangle whose corners are rounded with the radius r."""
    return shapes.rect(x, y, w, h, fill, more, radius=r)


def screw(x, y, r=4.0, turn=35, metal="brass"):
    """A rivet with a slot."""
    slot = (f'<g transform="translate({x} {y}) rotate({turn})">'
            + box(-r * 0.72, -r * 0.14, r * 1.44, r * 0.3, r * 0.1, OUTLINE, 'opacity="0.85"') + "</g>")
    return (circle(x + r * 0.25, y + r * 0.35, r * 1.15, OUTLINE, 'opacity="0.45"')
            + circle(x, y, r, f"url(#{metal}-ball)", f'stroke="{OUTLINE}" stroke-width="{r * 0.28:.2f}"') + slot)


def plate(x, y, w, h, r=14, enamel="green", rim="brass", rim_width=5.0, outline=2.0, pin=True,
          heads=3.2, shadow=True, inset=None):
    """An enamel sign: outline, metal rim, glossy enamel, a painted pinstripe and four rivets.

    The rectangle is the sign with its outline; the shadow falls outside it.
    """
    parts = []
    if shadow:
        parts.append(box(x + 3, y + 5, w, h, r, OUTLINE, 'opacity="0.38" filter="url(#soft)"'))
    parts.append(box(x, y, w, h, r, OUTLINE))
    x, y, w, h, r = x + outline, y + outline, w - 2 * outline, h - 2 * outline, r - outline
    parts.append(box(x, y, w, h, r, f"url(#{rim})"))
    light, dark = {"brass": (BRASS_LIGHT, BRASS_DARK), "copper": (COPPER_LIGHT, COPPER_DARK),
                   "steel": (STEEL_LIGHT, STEEL_DARK)}[rim]
    parts.append(box(x + 0.6, y + 0.6, w - 1.2, h - 1.2, r - 0.6, "none",
                     f'stroke="{light}" stroke-width="1.1" opacity="0.75"'))
    x, y, w, h = x + rim_width, y + rim_width, w - 2 * rim_width, h - 2 * rim_width
    r = max(r - rim_width, 3)
    parts.append(box(x - 1, y - 1, w + 2, h + 2, r + 1, mix(dark, OUTLINE, 0.55)))
    parts.append(box(x, y, w, h, r, f"url(#{enamel})"))
    # the enamel swells a little, so its rim is lit at the upper left and dark at the lower right
    glow = mix(BOTTLE_GREEN_LIGHT, CREAM, 0.4) if enamel == "green" else "#ffffff"
    parts.append(path(f"M{x + 1:.1f} {y + h - r:.1f} V{y + r:.1f} Q{x + 1:.1f} {y + 1:.1f} {x + r:.1f} {y + 1:.1f} "
                      f"H{x + w - r:.1f}", "none",
                      f'stroke="{glow}" stroke-width="1.6" stroke-linecap="round" opacity="0.8"'))
    if pin:
        gap = inset if inset is not None else max(4.0, rim_width)
        colour = CREAM if enamel == "green" else BOTTLE_GREEN
        parts.append(box(x + gap, y + gap, w - 2 * gap, h - 2 * gap, max(r - gap * 0.6, 2), "none",
                         f'stroke="{colour}" stroke-width="1.6" opacity="0.85"'))
    bend = min(w * 0.5, h * 1.4)
    parts.append(path(f"M{x + 2:.1f} {y + h * 0.62:.1f} V{y + r:.1f} Q{x + 2:.1f} {y + 2:.1f} {x + r:.1f} "
                      f"{y + 2:.1f} "
                      f"H{x + w * 0.5 + bend * 0.7:.1f} Q{x + w * 0.3 + bend * 0.2:.1f} {y + h * 0.22:.1f} "
                      f"{x + 2:.1f} {y + h * 0.62:.1f}Z", "url(#gloss)"))
    if heads:
        gap = heads * 1.6 + (max(4.0, rim_width) if pin else 1)
        for cx in (x + gap, x + w - gap):
            for cy in (y + gap, y + h - gap):
                parts.append(rivet(cx, cy, heads, rim if rim != "steel" else "steel"))
    return "<g>" + "".join(parts) + "</g>"


def recess(x, y, w, h, r=6, outline=2.0, rim="brass"):
    """A window let into a plate: a bevelled metal frame around a dark hollow."""
    return (box(x - outline - 3, y - outline - 3, w + 2 * outline + 6, h + 2 * outline + 6, r + 4, OUTLINE)
            + box(x - 3.4, y - 3.4, w + 6.8, h + 6.8, r + 3, f"url(#{rim})")
            + box(x - 0.6, y - 0.6, w + 1.2, h + 1.2, r + 0.6, OUTLINE)
            + box(x, y, w, h, r, "url(#recess)"))


def pipe(x, y, w, h, metal="copper"):
    """A straight pipe, lying or standing as its longer side says."""
    kind = "pipe" if w >= h else "tube"
    edge = 2.0
    if kind == "pipe":
        return box(x, y - edge, w, h + 2 * edge, 0, OUTLINE) + box(x, y, w, h, 0, f"url(#{metal}-pipe)")
    return box(x - edge, y, w + 2 * edge, h, 0, OUTLINE) + box(x, y, w, h, 0, f"url(#{metal}-tube)")


def collar(x, y, w, h, metal="brass", r=2.5):
    """A ring around a pipe; its longer side lies across the pipe."""
    kind = "pipe" if h >= w else "tube"
    return box(x - 2, y - 2, w + 4, h + 4, r + 1.5, OUTLINE) + box(x, y, w, h, r, f"url(#{metal}-{kind})")


def drop_shape(x, y, r):
    """Path data of a falling drop whose round part is centred at (x, y)."""
    return (f"M{x:.2f} {y - 1.9 * r:.2f} C{x + 0.25 * r:.2f} {y - 1.25 * r:.2f} {x + r:.2f} {y - 0.75 * r:.2f} "
            f"{x + r:.2f} {y:.2f} A{r:.2f} {r:.2f} 0 0 1 {x - r:.2f} {y:.2f} "
            f"C{x - r:.2f} {y - 0.75 * r:.2f} {x - 0.25 * r:.2f} {y - 1.25 * r:.2f} {x:.2f} {y - 1.9 * r:.2f}Z")


def drop(x, y, r, outline=2.0):
    """A drop of the company's clear water."""
    return (path(drop_shape(x, y, r), "url(#drop)", f'stroke="{OUTLINE}" stroke-width="{outline}" '
                                                    f'stroke-linejoin="round"')
            + path(f"M{x - 0.58 * r:.2f} {y - 0.1 * r:.2f} Q{x - 0.5 * r:.2f} {y - 0.6 * r:.2f} "
                   f"{x - 0.12 * r:.2f} {y - 1.05 * r:.2f}",
                   "none", f'stroke="#ffffff" stroke-width="{0.2 * r:.2f}" stroke-linecap="round" opacity="0.9"')
            + path(f"M{x + 0.1 * r:.2f} {y + 0.68 * r:.2f} Q{x + 0.62 * r:.2f} {y + 0.5 * r:.2f} "
                   f"{x + 0.68 * r:.2f} {y - 0.05 * r:.2f}",
                   "none", f'stroke="{WATER_LIGHT}" stroke-width="{0.13 * r:.2f}" stroke-linecap="round" '
                           f'opacity="0.8"'))


def coin(x, y, r, outline=2.0):
    """A brass coin with the currency sign struck into it."""
    size = r * 1.62
    sign = outlines("$", "caps", size, x, y + size * 0.35, "middle")
    return (circle(x, y, r, OUTLINE)
            + circle(x, y, r - outline, "url(#coin)")
            + circle(x, y, (r - outline) * 0.82, "none", f'stroke="{BRASS_DARK}" stroke-width="{r * 0.07:.2f}"')
            + circle(x + r * 0.03, y + r * 0.03, (r - outline) * 0.86, "none",
                   f'stroke="{BRASS_LIGHT}" stroke-width="{r * 0.05:.2f}"')
            + path(sign, "#fff3c4", f'transform="translate({r * 0.05:.2f} {r * 0.06:.2f})"')
            + path(sign, mix(BRASS_DARK, OUTLINE, 0.75))
            + path(f"M{x - r * 0.7:.2f} {y - r * 0.16:.2f} A{r * 0.72:.2f} {r * 0.72:.2f} 0 0 1 "
                   f"{x - r * 0.1:.2f} {y - r * 0.71:.2f}",
                   "none", f'stroke="#ffffff" stroke-width="{r * 0.1:.2f}" stroke-linecap="round" opacity="0.85"'))


def valve(x, y, r):
    """A hand wheel seen from the front."""
    spokes = "".join(f"M{x} {y} L{x + r * 0.8 * math.cos(a):.2f} {y + r * 0.8 * math.sin(a):.2f} "
                     for a in (math.radians(d) for d in (20, 92, 164, 236, 308)))
    ring = f'<circle cx="{x}" cy="{y}" r="{r * 0.84:.2f}" fill="none" '
    return (circle(x + 2, y + 3, r, OUTLINE, 'opacity="0.25" filter="url(#haze)"')
            + ring + f'stroke="{OUTLINE}" stroke-width="{r * 0.34 + 1:.2f}"/>'
            + path(spokes, "none", f'stroke="{OUTLINE}" stroke-width="8"')
            + path(spokes, "none", f'stroke="{BRASS}" stroke-width="4.4"')
            + ring + f'stroke="url(#brass)" stroke-width="{r * 0.34 - 3:.2f}"/>'
            + circle(x, y, r * 0.26, "url(#brass-ball)", f'stroke="{OUTLINE}" stroke-width="2"'))


def bezel(x, y, r, width, outline=2.0, metal="brass"):
    """The metal ring around a round dial whose visible disc has the radius r."""
    light = {"brass": BRASS_LIGHT, "copper": COPPER_LIGHT, "steel": STEEL_LIGHT}[metal]
    return (circle(x + 3, y + 4, r + width + outline, OUTLINE, 'opacity="0.35" filter="url(#soft)"')
            + circle(x, y, r + width + outline, OUTLINE)
            + circle(x, y, r + width, f"url(#{metal})")
            + circle(x, y, r + width - 1, "none", f'stroke="{light}" stroke-width="1.2" opacity="0.8"')
            + circle(x, y, r + outline, OUTLINE))


def keycap(label, x, y, w=40, h=40, size=26):
    """A key of the keyboard, seen from above; its rectangle is (x, y, w, h)."""
    return (box(x, y, w, h, 8, OUTLINE)
            + box(x + 2, y + 2, w - 4, h - 4, 6.5, CREAM_SHADE)
            + box(x + 2, y + h - 9, w - 4, 7, 4, mix(CREAM_SHADE, COPPER_DARK, 0.45))
            + box(x + 4, y + 2.5, w - 8, h - 10, 5, "url(#cream)")
            + path(outlines(label, "text", size, x + w / 2, y + (h - 7) / 2 + 1 + size * 0.32, "middle"), OUTLINE))


def crisp(picture, radius=1.2, percent=70):
    """Sharpens a picture that the game shows between two of its reduced sizes, where it softens."""
    bands = picture.split()
    sharp = picture.convert("RGB").filter(ImageFilter.UnsharpMask(radius=radius, percent=percent, threshold=0))
    if len(bands) == 4:
        sharp.putalpha(bands[3])
    return sharp


def clear_border(picture):
    """Takes the last faint shadow off the outermost pixels: textures wrap around there."""
    alpha = picture.getchannel("A")
    inner = alpha.crop((1, 1, picture.width - 1, picture.height - 1))
    alpha.paste(0, (0, 0, picture.width, picture.height))
    alpha.paste(inner, (1, 1))
    picture.putalpha(alpha)
    return picture
