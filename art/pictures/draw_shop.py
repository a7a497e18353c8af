"""The shop panel: a porthole in which the game draws the turret, its price and how to use it."""

import enamel
import kit
from palette import COPPER, CREAM, GRASS_DARK, GRASS_LIGHT, OUTLINE

WIDTH, HEIGHT = 128, 256
SLOT_X, SLOT_Y = 96, 73  # the middle of the turret's icon


def main():
    parts = []
    parts.append(enamel.plate(4, 6, 113, 244, 15, rim_width=5, outline=2, inset=4, heads=0))
    parts.append(enamel.lettering("SHOP", "caps", 28, 42, 39, "url(#ink-brass)", tracking=1.2, outline=1.6))
    # the porthole juts out over the plate's rim
    parts.append(enamel.circle(SLOT_X - 0.5, SLOT_Y + 2.5, 30.5, OUTLINE, 'opacity="0.3" filter="url(#haze)"'))
    parts.append(enamel.circle(SLOT_X, SLOT_Y, 31, OUTLINE))
    parts.append(enamel.circle(SLOT_X, SLOT_Y, 29.2, "url(#well)"))
    # an arrow from the word to the thing
    parts.append(enamel.lettering("BUY", "caps", 22, 34, 76, "url(#ink-cream)", outline=1.4))
    parts.append(enamel.path("M20 84 H44 V78.5 L57 88 L44 97.5 V92 H20Z", "url(#ink-cream)",
                             f'stroke="{OUTLINE}" stroke-width="1.8" stroke-linejoin="round"'))
    # the price tag
    parts.append(enamel.box(15, 118, 93, 46, 8, OUTLINE, 'opacity="0.4" transform="translate(1.5 2.5)"'))
    parts.append(enamel.box(14, 117, 93, 44, 8, OUTLINE))
    parts.append(enamel.box(16, 119, 89, 40, 6.5, "url(#cream)"))
    parts.append(enamel.box(18.5, 121.5, 84, 35, 4.5, "none", f'stroke="{COPPER}" stroke-width="1.2"'))
    parts.append(enamel.coin(32.5, 139, 11.5, 1.6))
    parts.append(enamel.lettering("1000", "caps", 34, 73, 151, OUTLINE, tracking=0.6))
    # what to do with it
    for row, line in enumerate(("CLICK IT,", "THEN CLICK", "THE FIELD")):
        parts.append(enamel.lettering(line, "caps", 19, 60.5, 186 + row * 21, "url(#ink-cream)", tracking=0.6,
                                      outline=1.2))
    for x in (18, 103):
        parts.append(enamel.rivet(x, 237, 2.6))
    parts.append(enamel.rivet(103, 19, 2.6))
    defs = enamel.DEFS + enamel.radial("well", [
        (0, enamel.mix(GRASS_LIGHT, CREAM, 0.35)), (0.7, GRASS_LIGHT), (1, GRASS_DARK)], 0.56, 0.6, 0.62)
    picture = kit.render(kit.svg(WIDTH, HEIGHT, "".join(parts), defs), WIDTH, HEIGHT)
    kit.save("WeaponPanel_128x256.png", enamel.clear_border(picture))


if __name__ == "__main__":
    main()
