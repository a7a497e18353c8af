"""The water jet in flight: a white head and a long tail, as long as its picture, for it is under ten pixels on the screen.

OpenGL shows it through copies of sixteen by sixteen and of eight by eight pixels, so what is less
than two units wide is lost. Nothing on the field is as bright, in grey too; the dark line is there
to part the white from light ground, so it goes round the head and fades out along the tail.
"""

import kit
import palette as p
import shapes as s

HEAD = 11.6        # where the head is widest


def streak(end, tip, thin, wide, fill):
    """A tail that widens from its end to the head, and the round head, with a slight neck before it."""
    neck, shoulder = HEAD - 2.6, HEAD - 1.2
    upper, lower = 8 - wide * .74, 8 + wide * .74
    return s.path(f"M{end},{8 - thin:.2f} L{neck:.2f},{upper:.2f} Q{shoulder:.2f},{8 - wide:.2f} {HEAD},{8 - wide:.2f} "
                  f"Q{tip},{8 - wide:.2f} {tip},8 Q{tip},{8 + wide:.2f} {HEAD},{8 + wide:.2f} "
                  f"Q{shoulder:.2f},{8 + wide:.2f} {neck:.2f},{lower:.2f} L{end},{8 + thin:.2f} Z", fill)


# Flies towards +x. The edges wrap: what shows of the tail beyond the tip is no more than its faint end.
body = streak(.3, 15.6, 1.8, 4.9, "url(#line)") + streak(.2, 15, 1.3, 3.9, "url(#water)")
defs = (s.gradient("line", [(0, p.WATER_DEEP, 0), (.4, p.WATER_DEEP, .36),
                            (.75, s.mix(p.WATER_DEEP, p.OUTLINE, .4), .9)], x2=1, y2=0)
        + s.gradient("water", [(0, p.WATER_LIGHT, .95), (.25, s.mix(p.WATER_LIGHT, "#ffffff", .45)), (.6, "#ffffff")],
                     x2=1, y2=0))

kit.save("VorelDefence_projectile.PNG", kit.render(kit.svg(16, 16, body, defs), 64, 64))
