"""The program's icon: the water tower on an enamel sign of the company, and for small sizes its drop alone.

Desktops scale and show it, not the game, so it goes to packaging/icons and its edges need no bleed.
"""

import pathlib

import kit
import palette as p
import shapes as s

ICONS = pathlib.Path(__file__).resolve().parents[2] / "packaging" / "icons"
UNITS = 64
DETAILED_FROM = 48  # pixels; below, only the drop can be read

DEFS = s.MATERIALS + (
    s.gradient("sign", [(0, s.mix(p.BOTTLE_GREEN_LIGHT, "#ffffff", .2)), (.4, p.BOTTLE_GREEN_LIGHT),
                       (1, p.BOTTLE_GREEN)], x2=1)
    + s.gradient("roof", [(0, p.COPPER_DARK), (.3, p.COPPER_LIGHT), (.55, p.COPPER), (1, p.COPPER_DARK)], x2=1, y2=0)
    + s.gradient("wall", [(0, p.CREAM_SHADE), (.25, s.mix(p.CREAM, "#ffffff", .6)), (.6, p.CREAM), (1, p.CREAM_SHADE)],
               x2=1, y2=0)
    + s.radial("water", [(0, p.WATER_FOAM), (.25, p.WATER_LIGHT), (.6, p.WATER), (1, p.WATER_DEEP)], cy=.6)
)


def sign(border):
    """The enamel plate with its brass rim."""
    inner = 2.4 + border
    return (s.rect(2, 2, 60, 60, "url(#brass)", width=2.4, radius=14)
            + s.rect(inner, inner, UNITS - 2 * inner, UNITS - 2 * inner, "url(#sign)", width=1.6, radius=15 - border))


def drop(x, y, size, line):
    """A drop standing on its round end, lit from the upper left."""
    shape = ("M0,-1.25 C.28,-.62 .82,-.2 .82,.38 A.82,.82 0 0 1 -.82,.38 C-.82,-.2 -.28,-.62 0,-1.25 Z")
    glint = "M-.48,.42 A.5,.5 0 0 1 -.22,-.12"
    return (f'<g transform="translate({x} {y}) scale({size})">'
            + s.path(shape, "url(#water)", width=line / size)
            + s.path(glint, stroke="#ffffff", width=.17) + "</g>")


def tower():
    """The tower of the game, stouter: on stilts, with a copper roof and the drop on its tank."""
    body = s.ellipse(33, 55, 19, 2.6, p.OUTLINE, more='opacity="0.4"')
    for width, colour in ((4.6, p.OUTLINE), (2, p.STEEL_LIGHT)):
        body += s.path("M20,54 L44,42 M44,54 L20,42", stroke=colour, width=width)
    body += s.rect(29.2, 40, 5.6, 14.6, "url(#copper-tube)", width=2)
    for x, foot in ((20, 17.4), (44, 46.6)):
        body += s.path(f"M{x},40 L{foot},54.4", stroke=p.OUTLINE, width=6.4)
        body += s.path(f"M{x},40 L{foot},54.2", stroke="#4c927a", width=2.8)
    body += s.path("M17,19 H47 V42.4 Q32,47.4 17,42.4 Z", "url(#wall)", width=2.2)
    body += s.path("M18,23 Q32,28.6 46,23 V19 H18 Z", p.COPPER_DARK, more='opacity="0.35"')
    body += s.path("M16,38.2 Q32,43.4 48,38.2 V42 Q32,47.2 16,42 Z", "url(#brass-tube)", width=1.8)
    body += s.path("M12.6,20.4 Q32,28 51.4,20.4 L34.6,8.8 Q32,7.6 29.4,8.8 Z", "url(#roof)", width=2.2)
    body += s.circle(32, 8.4, 2.7, "url(#brass-ball)", width=1.7)
    return body + drop(32, 33.4, 7.2, 1.8)


def document(drawing):
    return kit.svg(UNITS, UNITS, drawing, DEFS)


detailed = document(sign(2.6) + tower())
simple = document(sign(3.4) + drop(32, 34.6, 18.5, 3.4))

ICONS.mkdir(exist_ok=True)
(ICONS / "scalable.svg").write_text(detailed + "\n")
for size in (16, 32, 48, 64, 128, 256):
    picture = kit.render(detailed if size >= DETAILED_FROM else simple, size, size)
    picture.save(ICONS / f"{size}.png", optimize=True)
