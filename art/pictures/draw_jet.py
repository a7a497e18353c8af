"""The water jet in flight: under ten pixels on the screen, so one bright drop and nothing else."""

import kit
import palette as p
import shapes as s

# Flies towards +x. One of the sixteen units stays free all round, because the edges wrap.
body = s.flying_drop(9.9, 8, 9, 10.2, 0, "url(#drop)", s.mix(p.WATER_DEEP, p.OUTLINE, .3), 1.7)
body += s.ellipse(10.3, 6.9, 2.6, 1.9, "#ffffff")
defs = s.gradient("drop", [(0, p.WATER_LIGHT), (.55, p.WATER_FOAM), (1, p.WATER_LIGHT)], x2=1, y2=0)

kit.save("VorelDefence_projectile.PNG", kit.render(kit.svg(16, 16, body, defs), 64, 64))
