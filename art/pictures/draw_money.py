"""The money panel with the counter's window, and the currency sign that stands in it.

The game shows the panel at a third of this size; the window lies exactly under the sign and the
six digits.
"""

import enamel
import kit

WIDTH, HEIGHT = 512, 256
# the sign and the digits, in this picture's units
LEFT, TOP, RIGHT, BOTTOM = 80.3, 85.3, 401.6, 165.7


def main():
    parts = []
    parts.append(enamel.plate(10, 6, 490, 236, 36, rim_width=13, outline=6, pin=False, heads=0))
    parts.append(enamel.lettering("FUNDS", "caps", 50, 241, 62, "url(#ink-cream)", tracking=12, outline=2))
    parts.append(enamel.recess(LEFT - 8, TOP - 8, RIGHT - LEFT + 16, BOTTOM - TOP + 16, 10, 6))
    parts.append(enamel.lettering("VOREL DEFENSE INC.", "caps", 40, 250, 214, "url(#ink-brass)", tracking=3))
    # the company's mark beside the window
    parts.append(enamel.bezel(450, 125, 22, 7, 4))
    parts.append(enamel.circle(450, 125, 22, "url(#cream)"))
    parts.append(enamel.drop(450, 132, 12, 3))
    for x in (46, 464):
        for y in (42, 206):
            parts.append(enamel.rivet(x, y, 11))
    picture = kit.render(kit.svg(WIDTH, HEIGHT, "".join(parts), enamel.DEFS), WIDTH, HEIGHT)
    kit.save("MoneyPanel_512x256.png", enamel.clear_border(enamel.crisp(picture, 2.2, 60)))

    sign = enamel.coin(64, 64, 60, 7)
    kit.save("DollarSign_64.png", kit.render(kit.svg(128, 128, sign, enamel.DEFS), 128, 128))


if __name__ == "__main__":
    main()
