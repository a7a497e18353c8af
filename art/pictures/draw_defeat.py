"""The defeat banner: sludge runs over the company's sign, and R starts again.

The wave panel's lower 12 pixels lie over the banner's upper edge, between 150 and 662.
"""

import math

import cast
import enamel
import kit
from palette import COPPER_DARK, CREAM_SHADE, OUTLINE, RED, RED_DARK

WIDTH, HEIGHT = 1024, 256


def dry_dial(x, y, r):
    """A pressure dial whose needle points to zero."""
    parts = [enamel.bezel(x, y, r, 9, 2.5), enamel.circle(x, y, r, "url(#cream)")]
    for i in range(11):
        angle = math.radians(225 - 27 * i)
        c, s = math.cos(angle), -math.sin(angle)
        far = r * (0.66 if i % 5 == 0 else 0.76)
        parts.append(enamel.path(f"M{x + c * far:.2f} {y + s * far:.2f} L{x + c * r * 0.9:.2f} "
                                 f"{y + s * r * 0.9:.2f}", "none",
                                 f'stroke="{OUTLINE}" stroke-width="{3.4 if i % 5 == 0 else 1.8}"'))
    arc = [(x + r * 0.56 * math.cos(math.radians(a)), y - r * 0.56 * math.sin(math.radians(a))) for a in (225, 171)]
    parts.append(enamel.path(f"M{arc[0][0]:.2f} {arc[0][1]:.2f} A{r * 0.56:.2f} {r * 0.56:.2f} 0 0 1 "
                             f"{arc[1][0]:.2f} {arc[1][1]:.2f}",
                             "none", f'stroke="{RED}" stroke-width="7"'))
    parts.append(enamel.drop(x, y + r * 0.62, r * 0.15, 1.6))
    parts.append(f'<g transform="translate({x} {y}) rotate(-128)">'
                 + enamel.path(f"M-4 {r * 0.2:.1f} L-3 0 L0 {-r * 0.82:.1f} L3 0 L4 {r * 0.2:.1f}Z", RED_DARK,
                               f'stroke="{OUTLINE}" stroke-width="1.6" stroke-linejoin="round"') + "</g>")
    parts.append(enamel.rivet(x, y, 6))
    parts.append(enamel.path(f"M{x - r * 0.86:.1f} {y:.1f} A{r * 0.86:.1f} {r * 0.86:.1f} 0 0 1 {x:.1f} "
                             f"{y - r * 0.86:.1f} "
                             f"Q{x - r * 0.6:.1f} {y - r * 0.6:.1f} {x - r * 0.86:.1f} {y:.1f}Z", "#ffffff", 'opacity="0.5"'))
    # the glass is cracked
    parts.append(enamel.path(f"M{x + r * 0.9:.1f} {y - r * 0.3:.1f} l{-r * 0.3:.1f} {r * 0.12:.1f} "
                             f"l{-r * 0.06:.1f} {-r * 0.24:.1f} "
                             f"l{-r * 0.3:.1f} {r * 0.22:.1f} M{x + r * 0.6:.1f} {y - r * 0.18:.1f} "
                             f"l{-r * 0.02:.1f} {r * 0.34:.1f} "
                             f"l{-r * 0.18:.1f} {r * 0.12:.1f}", "none", f'stroke="{OUTLINE}" '
                                     f'stroke-width="1.5" stroke-linejoin="round"'))
    return "".join(parts)


def main():
    parts = [enamel.plate(92, 34, 862, 190, 30, rim_width=9, outline=2.5, inset=9, heads=0)]
    parts += [enamel.rivet(926, y, 5.5) for y in (63, 195)]
    parts.append(enamel.lettering("The water is lost!", "script", 90, 510, 136, "url(#ink-cream)", outline=3,
                                  depth=4, side=enamel.mix(CREAM_SHADE, COPPER_DARK, 0.35)))
    line = "PRESS", "TO RESTART"
    widths = [enamel.advance(word, "caps", 56, 3) for word in line]
    start = 512 - (widths[0] + 84 + widths[1]) / 2
    parts.append(enamel.lettering(line[0], "caps", 56, start, 198, "url(#ink-brass)", "start", outline=2.2, tracking=3))
    parts.append(enamel.keycap("R", start + widths[0] + 14, 148, 56, 56, 40))
    parts.append(enamel.lettering(line[1], "caps", 56, start + widths[0] + 84, 198, "url(#ink-brass)", "start",
                                  outline=2.2, tracking=3))
    parts.append(cast.drips(632, 38, 256, (30, 20, 40, 24, 28, 92, 46), 2.2))
    parts.append(dry_dial(140, 128, 54))
    parts.append(cast.proud_grunt(912, 232, 168))
    picture = kit.render(kit.svg(WIDTH, HEIGHT, "".join(parts), enamel.DEFS + cast.DEFS), WIDTH, HEIGHT)
    kit.save("PressRToRestart_1024x256.png", enamel.clear_border(picture))


if __name__ == "__main__":
    main()
