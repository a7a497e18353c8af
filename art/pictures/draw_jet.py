"""The water jet in flight: under ten pixels on the screen, so one bright drop and nothing else."""

import kit
import palette as p
import shapes as s

# Flies towards +x. One of the sixteen units stays free all round, because the edges wrap.
body = s.drop(9.6, 8, 7.6, 8.6, 0, "url(#drop)", p.WATER_DEEP, 1.5)
body += s.ellipse(10, 6.6, 2, 1.4, "#ffffff")
defs = s.linear("drop", (0, p.WATER_LIGHT), (.55, p.WATER_FOAM), (1, p.WATER_LIGHT), x2=1, y2=0)

kit.save("VorelDefence_projectile.PNG", kit.render(kit.svg(16, 16, body, defs), 64, 64))
