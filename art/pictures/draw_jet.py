"""The water jet in flight: under ten pixels on the screen, so a white head, its wake, and nothing else.

OpenGL shows it through a copy of eight by eight pixels, so what is less than two units wide is lost;
a dark line and a white middle are what stays bright on grass, on sludge and on a grey picture.
"""

import kit
import palette as p
import shapes as s



def drop(x, r, tail, fill):
    """A round head at x and straight sides that meet at `tail`: a hollow waist would be too thin to be seen."""
    sine = r / (x - tail)
    touch, wide = x - r * sine, r * (1 - sine * sine) ** .5
    return s.path(f"M{tail},8 L{touch:.2f},{8 - wide:.2f} A{r},{r} 0 1 1 {touch:.2f},{8 + wide:.2f} Z", fill)


# Flies towards +x. One of the sixteen units stays free all round, because the edges wrap.
body = drop(9.9, 5.1, .9, s.mix(p.WATER_DEEP, p.OUTLINE, .3)) + drop(10, 3.9, 1.6, "url(#wake)")
defs = s.gradient("wake", [(0, p.WATER_LIGHT), (.35, "#ffffff")], x2=1, y2=0)

kit.save("VorelDefence_projectile.PNG", kit.render(kit.svg(16, 16, body, defs), 64, 64))
