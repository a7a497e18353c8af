"""The water tower in three sheets that are laid over one another: back, water, front.

The game squeezes the water towards row 62 of the 128 (from the bottom), so the tank's floor, the
window's sill and the water's lower edge all lie on that row and nothing of the water is below it.
"""

import kit
import palette as p
import shapes as s

SIZE = 128
FLOOR = SIZE - 62          # y of the tank's floor, counted from the top
LEFT, RIGHT = 31, 97       # the tank's walls
WINDOW = (39.5, 27, 88.5)  # left, top, right; its sill is the floor

DEFS = s.MATERIALS + s.SHADOW_BLUR + (
    s.gradient("roof", [(0, p.COPPER_DARK), (.3, p.COPPER_LIGHT), (.5, p.COPPER), (1, p.COPPER_DARK)],
               x2=1, y2=0)
    + s.gradient("wall", [(0, p.CREAM_SHADE), (.22, s.mix(p.CREAM, "#ffffff", .55)), (.5, p.CREAM),
                         (.85, p.CREAM_SHADE), (1, s.mix(p.CREAM_SHADE, p.COPPER_DARK, .35))], x2=1, y2=0)
    + s.gradient("inside", [(0, "#0e2620"), (.5, "#21473c"), (1, "#122d27")], x2=1, y2=0)
    + s.gradient("depth", [(0, "#000000", .45), (.4, "#000000", 0)])
    + s.gradient("water", [(0, "#c6eeff"), (.3, "#a6dcfd"), (1, "#98cdfa")])
    + s.gradient("waterside", [(0, "#5e93cc", .55), (.25, "#ffffff", .25), (.5, "#ffffff", 0),
                              (1, "#4e83c4", .6)], x2=1, y2=0)
    + s.gradient("enamel", [(0, p.BOTTLE_GREEN), (.28, p.BOTTLE_GREEN_LIGHT), (.55, p.BOTTLE_GREEN),
                           (1, "#10312a")], x2=1, y2=0)
    + s.gradient("glass", [(0, "#ffffff", .55), (1, "#ffffff", .05)])
)


def leg(x0, x1, y0, y1, w):
    """A leaning leg with its dark outline, light on the left side."""
    shape = f"M{x0 - w},{y0} L{x0 + w},{y0} L{x1 + w},{y1} L{x1 - w},{y1} Z"
    light = f"M{x0 - w * .35},{y0} L{x1 - w * .35},{y1}"
    return (s.path(shape, p.BOTTLE_GREEN, width=2) + s.path(shape, p.BOTTLE_GREEN)
            + s.path(light, stroke=p.BOTTLE_GREEN_LIGHT, width=w * .7))


def back():
    body = s.shadow(62, 112.5, 35, 6, 21, .26)
    for x in (32, 64, 96):
        body += s.shadow(x, 120.4, 6.5 if x != 64 else 9.5, 1.6, 4)
    # the legs at the back stand closer together and higher
    body += leg(50, 47, FLOOR, 109, 1.6) + leg(78, 81, FLOOR, 109, 1.6)
    body += s.path("M48.5,103 L79.5,80 M79.5,103 L48.5,80", stroke=p.OUTLINE, width=1.6)
    # the tank's inner wall
    body += s.rect(LEFT + 3, 20, RIGHT - LEFT - 6, FLOOR - 18, "url(#inside)")
    for y in (31, 42, 53):
        body += s.path(f"M{LEFT + 4},{y} Q64,{y - 5} {RIGHT - 4},{y}", stroke="#0c201b", width=1.2)
    body += s.path(f"M64,20 L64,{FLOOR}", stroke="#2f5d4f", width=3)
    body += s.rect(LEFT + 3, 20, RIGHT - LEFT - 6, FLOOR - 18, "url(#depth)")
    return body


def water():
    left, right, top = WINDOW[0] - 3, WINDOW[2] + 3, WINDOW[1] + 5
    middle = (left + right) / 2
    body = (s.path(f"M{left},{top} L{left},{FLOOR} L{right},{FLOOR} L{right},{top} Z",
                   "url(#water)"))
    body += s.path(f"M{left},{top} L{left},{FLOOR} L{right},{FLOOR} L{right},{top} Z",
                   "url(#waterside)")
    body += s.ellipse(middle, top, (right - left) / 2, 4.2, "#e9faff", stroke="#a6cdee", width=1)
    body += s.path(f"M{left + 8},{top + .4} Q{middle - 10},{top - 2.6} {middle + 4},{top - 1.8}",
                   stroke="#ffffff", width=1.3)
    for x, y, r in ((50, 56, 1.7), (54, 45, 1.2), (76, 52, 2.1), (80, 42, 1.3), (66, 60, 1.4)):
        body += s.circle(x, y, r, "none", stroke="#f4fdff", width=.9)
    return body


def front():
    middle = (LEFT + RIGHT) / 2
    left, top, right = WINDOW
    # legs, braces, pipe
    body = s.path("M37,112 L91,76 M91,112 L37,76", stroke=p.OUTLINE, width=3.4)
    body += s.path("M37,112 L91,76 M91,112 L37,76", stroke=p.STEEL, width=1.4)
    body += s.rect(59.5, FLOOR + 6, 9, 48, "url(#copper-tube)", width=2)
    for y in (80, 103):
        body += s.rect(57.7, y, 12.6, 4, "url(#brass-tube)", width=1.6, radius=1)
    # the valve wheel on the pipe
    body += s.circle(64.8, 93.2, 5.6, p.OUTLINE, more='opacity="0.3"')
    body += s.circle(64, 92, 5, "none", width=4)
    body += s.circle(64, 92, 5, "none", stroke="url(#brass)", width=1.9)
    body += s.path("M64,87.4 V96.6 M59.4,92 H68.6", stroke=p.OUTLINE, width=2.6)
    body += s.path("M64,87.4 V96.6 M59.4,92 H68.6", stroke=p.BRASS, width=1.1)
    body += s.circle(64, 92, 1.5, "url(#brass-ball)", width=.9)
    body += s.rect(55, 114, 18, 6, "url(#copper-tube)", width=2, radius=1.5)
    body += leg(38, 32, FLOOR + 4, 118, 3) + leg(90, 96, FLOOR + 4, 118, 3)
    for x in (32, 96):
        body += s.rect(x - 6, 115.5, 12, 5, "url(#steel-tube)", width=2, radius=1.2)
    # the wall, with the window cut out of it
    arch = (f"M{left},{FLOOR} L{right},{FLOOR} L{right},{top + 9} Q{right},{top} {right - 9},{top} "
            f"L{left + 9},{top} Q{left},{top} {left},{top + 9} Z")
    wall = (f"M{LEFT},19 L{RIGHT},19 L{RIGHT},{FLOOR + 5} Q{middle},{FLOOR + 13} "
            f"{LEFT},{FLOOR + 5} Z")
    body += s.path(wall + " " + arch, "url(#wall)", width=2, more='fill-rule="evenodd"')
    for y in (33, 45, 57):
        body += s.rivet(LEFT + 3.6, y, 1) + s.rivet(RIGHT - 3.6, y, 1)
    # the roof's shadow falls on the wall and not on the glass
    body += (f'<clipPath id="wall-only"><path d="{wall} {arch}" clip-rule="evenodd"/></clipPath>'
             + s.path(f"M{LEFT + 1},28 Q{middle},37 {RIGHT - 1},28 L{RIGHT - 1},20 L{LEFT + 1},20 Z",
                      p.COPPER_DARK, more='opacity="0.32" clip-path="url(#wall-only)"'))
    # glass
    body += s.path(f"M{left + 5},{FLOOR - 4} L{left + 5},{top + 10} Q{left + 5},{top + 5} "
                   f"{left + 10},{top + 5} L{left + 15},{top + 5} L{left + 10},{FLOOR - 4} Z",
                   "url(#glass)")
    body += s.path(f"M{left + 18},{top + 5} L{left + 21},{top + 5} L{left + 15},{FLOOR - 4} "
                   f"L{left + 12.6},{FLOOR - 4} Z", "url(#glass)", more='opacity="0.7"')
    # brass frame and scale
    body += s.path(arch, stroke=p.OUTLINE, width=4.6) + s.path(arch, stroke="url(#brass)", width=2.6)
    for i in range(1, 4):
        y = FLOOR - i * 8.6
        body += s.path(f"M{right - 6},{y} L{right - 1.5},{y}", stroke=p.OUTLINE, width=2.6)
        body += s.path(f"M{right - 6},{y} L{right - 1.5},{y}", stroke=p.BRASS_LIGHT, width=1)
    # hoop below, with the company's sign
    body += s.path(f"M{LEFT - 1.5},{FLOOR + 1} L{RIGHT + 1.5},{FLOOR + 1} L{RIGHT + 1.5},{FLOOR + 7} "
                   f"Q{middle},{FLOOR + 15} {LEFT - 1.5},{FLOOR + 7} Z", "url(#enamel)", width=2)
    for x in (36, 45, 83, 92):
        body += s.rivet(x, FLOOR + 5 + (1.8 if 40 < x < 88 else 0), 1.2)
    body += s.ellipse(middle, FLOOR + 6.4, 10.5, 6, "url(#cream)", width=1.8)
    body += s.flying_drop(middle, FLOOR + 7.6, 6.4, 6, 90, p.WATER, p.WATER_DEEP, .8)
    # roof
    body += s.path(f"M{LEFT - 6},21 Q{middle},30 {RIGHT + 6},21 L{middle + 7},7.5 "
                   f"Q{middle},5.5 {middle - 7},7.5 Z", "url(#roof)", width=2)
    for x in (46, 58, 70, 82):
        body += s.path(f"M{middle + (x - middle) * .3},7.6 L{middle + (x - middle) * 1.45},24.4",
                       stroke=p.COPPER_DARK, width=1)
    body += s.path(f"M{LEFT - 5},21 Q{middle},30 {RIGHT + 5},21", stroke="url(#brass-tube)",
                   width=2.6)
    body += s.path(f"M{LEFT - 6},22.4 Q{middle},31.4 {RIGHT + 6},22.4", stroke=p.OUTLINE, width=1.2)
    body += s.circle(middle, 6, 3, "url(#brass-ball)", width=1.6)
    return body


for name, body in (("back", back()), ("water", water()), ("front", front())):
    document = kit.svg(SIZE, SIZE, body, DEFS)
    kit.save(f"VorelTower_{name}_128.PNG", kit.render(document, 2 * SIZE, 2 * SIZE))
