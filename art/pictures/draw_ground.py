"""The ground tiles: soft grass, and wet meadow in round patches with a soft shore.

Every tile is cut from the same two endless textures, grass and meadow, mixed by a mask that says
where the meadow begins. All masks meet a cell's border at its middle, at a right angle, so any
tile continues its neighbour. Nothing on the one plain tile stands out: it covers the field nearly
alone, and whatever the eye could hold on to would come back every 32 pixels.
"""

import random

import numpy
from PIL import Image

import kit
import palette as p
import shapes as s

CELL = 32            # a cell in screen pixels, the unit of everything below
SCALE = 8            # pixels a unit while drawing
TILE = 128           # pixels of a finished tile
AROUND = 8           # units drawn beyond the cell
# The game shows the middle of each tile only: it leaves away 0.01 of the sheet on every side.
CROP_X, CROP_Y = .01 * 3, .01 * 6
SHORE = .5           # where a shore meets the cell's border, as a share of it
SHORES = (0, 1, 2, 3, 5, 6, 7, 8, 9, 11, 15, 17)
SLANT = 1.55          # 2 would make the corners' shores quarter circles, 1 straight lines


def colour(text):
    return numpy.array([int(text[i:i + 2], 16) for i in (1, 3, 5)], float)


def endless(draw, seed, count, apart):
    """Draws things over a cell that repeats in both directions, evenly but without order."""
    rng = random.Random(seed)
    spots = []
    while len(spots) < count:
        # of many candidates the one that is farthest from all the others, across the borders too
        best = max(((rng.uniform(0, CELL), rng.uniform(0, CELL)) for _ in range(apart)),
                   key=lambda c: min([min(abs(c[0] - x), CELL - abs(c[0] - x)) ** 2
                                      + min(abs(c[1] - y), CELL - abs(c[1] - y)) ** 2
                                      for x, y in spots] or [0]))
        spots.append(best)
    spots.sort(key=lambda spot: spot[1])
    body = ""
    for x, y in spots:
        thing = draw(rng)
        for dx in (-CELL, 0, CELL):
            for dy in (-CELL, 0, CELL):
                body += f'<g transform="translate({x + dx:.2f} {y + dy:.2f})">{thing}</g>'
    return body


def blade(rng, colours, length, width, opacity):
    """One blade of grass, bent by the wind."""
    h, bend = length * rng.uniform(.7, 1.2), rng.uniform(-.9, .9) * length * .4
    return s.path(f"M{-width / 2:.2f},0 Q{bend * .2:.2f},{-h * .6:.2f} {bend:.2f},{-h:.2f} "
                  f"Q{bend * .3 + width * .5:.2f},{-h * .5:.2f} {width / 2:.2f},0 Z",
                  rng.choice(colours), more=f'opacity="{opacity}"')


def tuft(rng, colours, length, width, opacity, blades=3):
    return "".join(f'<g transform="rotate({(i - (blades - 1) / 2) * 24 + rng.uniform(-7, 7):.1f})">'
                   + blade(rng, colours, length, width, opacity) + "</g>" for i in range(blades))


def smudge(rng, colours, size, opacity):
    return s.ellipse(0, 0, size * rng.uniform(.8, 1.3), size * rng.uniform(.4, .6),
                     rng.choice(colours), more=f'opacity="{opacity}"')


def flower(rng, size):
    petals = "".join(s.circle(x, y, size * .55, p.FLOWER)
                     for x, y, _ in s.ring(0, 0, 5, size * .62, rng.uniform(0, 72)))
    return (s.circle(.25, .4, size * 1.15, "#2f4a38", more='opacity="0.5"') + petals
            + s.circle(0, 0, size * .42, "#d9b95a"))


def speck(rng):
    """A flower too far away to have petals: many faint ones of all sizes hide that they repeat."""
    colour = rng.choice((p.FLOWER, p.FLOWER, s.mix(p.FLOWER, p.BRASS_LIGHT, .5), GRASS_PALE))
    return s.circle(0, 0, rng.uniform(.3, .65), colour,
                    more=f'opacity="{rng.uniform(.2, .6):.2f}"')


def texture(body):
    """A cell of an endless texture as an array of floats."""
    picture = kit.render(kit.svg(CELL, CELL, body), CELL * SCALE, CELL * SCALE)
    return numpy.asarray(picture.convert("RGB")).astype(float)


def levelled(pixels, keep):
    """Takes the broad differences of brightness out of a texture: they would repeat as spots."""
    for channel in range(3):
        waves = numpy.fft.fft2(pixels[..., channel])
        fy = numpy.abs(numpy.fft.fftfreq(pixels.shape[0]) * pixels.shape[0])[:, None]
        fx = numpy.abs(numpy.fft.fftfreq(pixels.shape[1]) * pixels.shape[1])[None]
        broad = (numpy.hypot(fx, fy) < 3.3) & (fx + fy > 0)
        waves[broad] *= keep
        pixels[..., channel] = numpy.fft.ifft2(waves).real
    return pixels


# The meadow's middle is close to the grass, its rim dark like the edge of a wash of colour: where
# now and then a cell of grass lies straight against the middle, the step between them is slight.
GRASS_PALE = s.mix(p.GRASS_LIGHT, p.FLOWER, .35)
WET, WET_LIGHT, WET_DARK = (s.mix(c, p.GRASS, share) for c, share in
                            ((p.MEADOW, .68), (p.MEADOW_LIGHT, .45), (p.MEADOW_DARK, .5)))


def between():
    """Tufts halfway from grass to meadow, the same in both: they break up any straight step."""
    def clump(rng):
        return (s.ellipse(0, -1, rng.uniform(1.6, 2.4), rng.uniform(1, 1.5), BETWEEN)
                + tuft(rng, (BETWEEN,), 3.6, 1.3, 1, 4))
    return endless(clump, 41, 26, 20)


def grass():
    body = s.rect(0, 0, CELL, CELL, p.GRASS)
    body += endless(lambda r: smudge(r, (p.GRASS_LIGHT, p.GRASS_DARK), 3, .3), 3, 40, 12)
    body += between()
    body += endless(lambda r: tuft(r, (p.GRASS_DARK,), 3.1, .9, .5), 5, 12, 30)
    body += endless(lambda r: tuft(r, (p.GRASS_LIGHT,), 3.3, .9, .75), 8, 12, 30)
    return levelled(texture(body), .1)


BETWEEN = s.mix(p.GRASS, WET, .5)
RIM = colour(p.MEADOW) / colour(WET) * .97


def meadow():
    body = s.rect(0, 0, CELL, CELL, WET)
    body += endless(lambda r: smudge(r, (WET_LIGHT, WET_DARK), 3.4, .3), 13, 36, 12)
    body += between()
    body += endless(lambda r: tuft(r, (WET_DARK,), 4.2, 1, .6), 15, 11, 30)
    body += endless(lambda r: tuft(r, (WET_LIGHT,), 4, .9, .8), 17, 11, 30)
    pixels = levelled(texture(body), .15)
    flowers = kit.svg(CELL, CELL, endless(speck, 33, 44, 2))
    over = numpy.asarray(kit.render(flowers, CELL * SCALE, CELL * SCALE)).astype(float)
    cover = over[..., 3:] / 255
    return pixels * (1 - cover) + over[..., :3] * cover


def wave(t, seed):
    """A gentle line over 0..1 that starts and ends flat at nought and stays within -1..1."""
    rng = random.Random(seed)
    parts = [(k, rng.uniform(.5, 1) * rng.choice((-1, 1)) / k, rng.random()) for k in (1, 2)]

    def line(t):
        t = numpy.clip(t, 0, 1)
        total = sum(a * numpy.sin(2 * numpy.pi * (k * t + shift)) for k, a, shift in parts)
        return total * numpy.sin(numpy.pi * t) ** 2

    return line(t) / numpy.abs(line(numpy.linspace(0, 1, 101))).max()


def depth(tile, x, y):
    """How far inside the meadow a point of the tile lies, in units; below nought is grass.

    x and y run over the cell from its upper left corner and reach beyond it.
    """
    seed = 100 + tile
    straight = {1: (x, CELL - y), 7: (x, y), 3: (y, CELL - x), 5: (y, x)}
    corner = {0: (CELL, CELL), 2: (0, CELL), 6: (CELL, 0), 8: (0, 0)}
    hollow = {9: (CELL, CELL), 11: (0, CELL), 15: (CELL, 0), 17: (0, 0)}
    if tile in straight:
        along, inward = straight[tile]
        return CELL * SHORE + 2.8 * wave(along / CELL, seed) - inward
    if tile in corner or tile in hollow:
        cx, cy = (corner if tile in corner else hollow)[tile]
        dx, dy = abs(x - cx), abs(y - cy)
        # beyond the cell's border the shore runs straight on
        dx, dy = (numpy.where((x - cx) * (CELL / 2 - cx) < 0, 0, dx),
                  numpy.where((y - cy) * (CELL / 2 - cy) < 0, 0, dy))
        turn = numpy.arctan2(dy, dx) / (numpy.pi / 2)
        # rather a slant than a quarter circle, so that stairs of cells look less like stairs
        away = (dx ** SLANT + dy ** SLANT) ** (1 / SLANT)
        edge = CELL * SHORE + 1.6 * wave(turn, seed) - away
        return edge if tile in corner else -edge
    return numpy.full(x.shape, 99.0 if tile == 4 else -99.0)


def smooth(low, high, value):
    t = numpy.clip((value - low) / (high - low), 0, 1)
    return (t * t * (3 - 2 * t))[..., None]


def shore_growth(tile, rng):
    """What grows along a shore: tufts that hang over it, reeds in the damp, clumps of flowers."""
    # straight shores stand next to their like, where flowers would look sown in a row
    things, spots, clumps = [], [], 3 if tile in (1, 3, 5, 7) else 0
    for _ in range(3000):
        x, y = rng.uniform(2.5, CELL - 2.5), rng.uniform(5, CELL - 2.5)
        d = float(depth(tile, numpy.array([[x]]), numpy.array([[y]]))[0, 0])
        if not -2 < d < 8 or any(numpy.hypot(x - a, y - b) < 3.6 for a, b in spots):
            continue
        spots.append((x, y))
        if d < 1.6:
            colours = (p.GRASS_LIGHT,) if rng.random() < .5 else (p.GRASS_DARK,)
            things.append((y, x, tuft(rng, colours, 3.6, 1.1, .9)))
        elif d < 4 and rng.random() < .5:
            things.append((y, x, tuft(rng, (p.MEADOW_DARK,), 4.6, 1.1, .8)))
        elif clumps < 3 and rng.random() < .5:
            clumps += 1
            clump = ((0, 0, 1.25), (2.1, .9, .95), (-.9, 1.9, .8))[:rng.choice((1, 2, 3))]
            for dx, dy, size in clump:
                if 2 < x + dx < CELL - 2 and y + dy < CELL - 2:
                    things.append((y + dy, x + dx, flower(rng, size)))
    return "".join(f'<g transform="translate({x:.2f} {y:.2f})">{thing}</g>'
                   for y, x, thing in sorted(things))


def draw_tile(tile, grass_cell, meadow_cell):
    pad = AROUND * SCALE
    size = (CELL + 2 * AROUND) * SCALE
    axis = (numpy.arange(size) + .5) / SCALE - AROUND
    x, y = numpy.meshgrid(axis, axis)
    around = ((pad, pad), (pad, pad), (0, 0))
    ground = numpy.pad(grass_cell, around, "wrap")
    wet = numpy.pad(meadow_cell, around, "wrap")
    d = depth(tile, x, y)
    # damp grass first, then the meadow itself
    mixed = ground + (wet - ground) * (.4 * smooth(-7, 1, d) + .6 * smooth(-1.6, 1.6, d))
    if tile in SHORES:
        rim = smooth(-1, 1.5, d) * (1 - smooth(1, 13.5, d))
        mixed = mixed + (mixed * RIM - mixed) * rim
        # The meadow lies a little lower than the grass: light from the upper left leaves a shadow
        # under the bank there and catches the grass's lip on the other side.
        nearer = depth(tile, x - 2.2, y - 2.2)
        shadow = smooth(-.6, 1.2, d) * (1 - smooth(-1.5, 2.2, nearer))
        mixed = mixed + (colour(p.MEADOW_DARK) * .86 - mixed) * shadow * .6
        lit = (1 - smooth(-1.6, .4, d)) * smooth(-1.2, 1.6, nearer)
        mixed = mixed + (colour(p.GRASS_LIGHT) * 1.06 - mixed) * lit * .75
    picture = Image.fromarray(numpy.clip(mixed, 0, 255).round().astype(numpy.uint8), "RGB")
    if tile in SHORES:
        body = shore_growth(tile, random.Random(200 + tile))
        wide = CELL + 2 * AROUND
        body = f'<g transform="translate({AROUND} {AROUND})">{body}</g>'
        over = kit.render(kit.svg(wide, wide, body), size, size)
        picture.paste(over, (0, 0), over)
    left = pad - CELL * SCALE * CROP_X / (1 - 2 * CROP_X)
    top = pad - CELL * SCALE * CROP_Y / (1 - 2 * CROP_Y)
    return picture.resize((TILE, TILE), Image.LANCZOS, (left, top, size - left, size - top))


grass_cell, meadow_cell = grass(), meadow()
sheet = Image.new("RGB", (3 * TILE, 6 * TILE))
for tile in range(18):
    sheet.paste(draw_tile(tile, grass_cell, meadow_cell), (tile % 3 * TILE, tile // 3 * TILE))
kit.save("tileSet_v2_32x32.png", sheet.convert("RGBA"))
