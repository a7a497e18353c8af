"""The pause sign: an enamel roundel that stands out from the tower under it."""

import enamel
import kit
from palette import BRASS_LIGHT, OUTLINE


def main():
    parts = [enamel.circle(33, 34, 28, OUTLINE, 'opacity="0.35" filter="url(#haze)"'),
             enamel.circle(32, 32, 29, OUTLINE),
             enamel.circle(32, 32, 27, "url(#brass)"),
             enamel.circle(32, 32, 26.2, "none", f'stroke="{BRASS_LIGHT}" stroke-width="1"'),
             enamel.circle(32, 32, 23, OUTLINE),
             enamel.circle(32, 32, 21.6, "url(#cream)")]
    for x in (21, 35):
        parts.append(enamel.box(x, 19, 8.5, 26, 2.5, "url(#ink-green)", f'stroke="{OUTLINE}" stroke-width="1.6"'))
        parts.append(enamel.box(x + 1.4, 20.6, 1.8, 22, 0.9, "#ffffff", 'opacity="0.35"'))
    parts.append(enamel.path("M13 30 A19.5 19.5 0 0 1 30 12.8 Q18 18 13 30Z", "#ffffff", 'opacity="0.75"'))
    picture = kit.render(kit.svg(64, 64, "".join(parts), enamel.DEFS), 64, 64)
    kit.save("PauseButton_64.png", enamel.clear_border(picture))


if __name__ == "__main__":
    main()
