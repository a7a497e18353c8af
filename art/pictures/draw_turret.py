"""The water turret seen from above: it is never turned, so it looks alike in every direction."""

import kit
import palette as p
import shapes as s


def nozzle():
    """A spout pointing to +x, its root under the plate: copper cone, brass lip, water in it."""
    return (s.path("M-6,-5 L3.2,-3 L3.2,3 L-6,5 Z", "url(#copper-pipe)", width=2)
            + s.rect(2.6, -4, 3.6, 8, "url(#brass-pipe)", width=1.7, radius=1.3)
            + s.ellipse(6.3, 0, .9, 2.2, p.WATER_LIGHT, stroke=p.WATER_DEEP, width=.8))


def turret():
    """The turret on 64 x 64: a riveted enamel plate, eight nozzles, a glass dome full of water."""
    body = s.shadow(32.6, 33.8, 24.6, 24, 4.4)
    for x, y, angle in s.ring(32, 32, 8, 22.2, 22.5):
        body += f'<g transform="translate({x:.2f} {y:.2f}) rotate({angle:.1f})">{nozzle()}</g>'
    # plate: bottle green below, a brass hoop, cream enamel on top
    body += s.circle(32, 32, 21.4, "url(#green)", width=2)
    body += s.circle(32, 32, 18.2, "url(#cream)", width=3.4)
    body += s.circle(32, 32, 18.2, "none", stroke="url(#brass)", width=1.7)
    for x, y, angle in s.ring(32, 32, 8, 14.1, 0):
        body += s.rivet(x, y, 1.15)
    # the dome
    body += s.circle(33, 33.2, 11.2, p.OUTLINE, more='opacity="0.3"')
    body += s.circle(32, 32, 10.6, "url(#brass)", width=1.7)
    body += s.circle(32, 32, 7.9, "url(#water-ball)", width=1.5)
    body += s.path("M27.3,31.2 A5,5 0 0 1 31,27.2", stroke="#ffffff", width=1.9)
    body += s.circle(35.6, 35.2, 1.2, p.WATER_LIGHT)
    return body


picture = kit.render(kit.svg(64, 64, turret(), s.MATERIALS + s.SHADOW_BLUR), 128, 128)
kit.save("WaterTurret_64x64.PNG", picture)
kit.save("TurretIcon_64.png", picture)
