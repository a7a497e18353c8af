"""The ground tiles: short grass, and wet meadow in round patches.

Every tile is cut from the same two endless textures, grass and meadow, along a line that says where
the meadow begins. The line meets a cell's border at its middle and at a right angle, and the blades
that stand there are the same in every tile, so any tile continues its neighbour. A straight shore
has a nearly straight line: whatever it did would come back every 32 pixels, as a saw. What makes
it alive are the blades on it. For the same reason nothing on the two plain tiles stands out.
"""

import random

import numpy
from PIL import Image, ImageFilter

import kit
import palette as p
import shapes as s

CELL = 32            # a cell in screen pixels, the unit of everything below
SCALE = 16           # pixels a unit while drawing
AROUND = 8           # units drawn beyond the cell
SHEET = (512, 1024)  # a power of two, so that OpenGL takes the sheet as it is
# The game shows only the middle of each tile: it cuts off 0.01 of the sheet on every side.
CROP_X, CROP_Y = .01 * 3, .01 * 6
MIDDLE = CELL / 2    # where a shore meets the cell's border
ROUND = .4           # the corners' bend: 0 would be a slant, .55 a quarter of a circle
LIGHT = 1.7          # how far the light that comes from the upper left reaches over a bank


def colour(text):
    return numpy.array([int(text[i:i + 2], 16) for i in (1, 3, 5)], float)


# The meadow's middle is close to the grass, its rim dark like the edge of a wash of colour: where
# now and then a cell of grass lies straight against the middle, the step between them is slight.
WET, WET_LIGHT, WET_DARK = (s.mix(c, p.GRASS, share) for c, share in
                            ((p.MEADOW, .57), (p.MEADOW_LIGHT, .52), (p.MEADOW_DARK, .48)))
RIM = colour(p.MEADOW) / colour(WET) * .97


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


def blade(length, width, bend, fill, opacity=1.0):
    """One blade of grass that stands on the origin; its tip leans over by `bend`."""
    return s.path(f"M{-width / 2:.2f},0 Q{bend * .1 - width * .4:.2f},{-length * .6:.2f} {bend:.2f},{-length:.2f} "
                  f"Q{bend * .3 + width * .5:.2f},{-length * .5:.2f} {width / 2:.2f},0 Z",
                  fill, more=f'opacity="{opacity}"')


def tuft(rng, colours, length, width, opacity, blades=3):
    drawn = ""
    for i in range(blades):
        lean = (i - (blades - 1) / 2) * .42 + rng.uniform(-.14, .14)
        tall = length * rng.uniform(.7, 1.15)
        drawn += blade(tall, width, lean * tall, rng.choice(colours), opacity)
    return drawn


def smudge(rng, colours, size, opacity):
    return s.ellipse(0, 0, size * rng.uniform(.8, 1.3), size * rng.uniform(.4, .6),
                     rng.choice(colours), more=f'opacity="{opacity}"')


def fine(values, low, high):
    """A cell of an endless texture without its broad differences, which would repeat as spots.

    What repeats less than `low` times in the cell is left out, what does so `high` times is kept.
    """
    fy = numpy.abs(numpy.fft.fftfreq(CELL * SCALE) * CELL * SCALE)[:, None]
    fx = numpy.abs(numpy.fft.fftfreq(CELL * SCALE) * CELL * SCALE)[None]
    keep = numpy.clip((numpy.hypot(fx, fy) - low) / (high - low), .03, 1)
    keep[0, 0] = 1
    return numpy.fft.ifft2(numpy.fft.fft2(values) * keep).real


def rendered(body):
    picture = kit.render(kit.svg(CELL, CELL, body), CELL * SCALE, CELL * SCALE)
    return numpy.asarray(picture.convert("RGB")).astype(float)


def texture(body, contrast):
    """A cell of an endless texture; what is brighter or darker than the rest would repeat as dots, so it is held back."""
    pixels = rendered(body)
    pixels = numpy.stack([fine(pixels[..., channel], 3, 7) for channel in range(3)], -1)
    mean = pixels.mean((0, 1))
    return mean + contrast * numpy.tanh((pixels - mean) / contrast)


def grass():
    body = s.rect(0, 0, CELL, CELL, p.GRASS)
    body += endless(lambda r: smudge(r, (p.GRASS_LIGHT, p.GRASS_DARK), r.uniform(1.5, 3.5), .3), 3, 50, 6)
    body += endless(lambda r: tuft(r, (p.GRASS_DARK, p.GRASS_LIGHT), r.choice((1.8, 2.4, 3.4)), .9, .75,
                                   r.choice((1, 2, 3))), 5, 70, 6)
    return texture(body, 6)


def meadow():
    body = s.rect(0, 0, CELL, CELL, WET)
    body += endless(lambda r: smudge(r, (WET_LIGHT, WET_DARK), r.uniform(2, 4), .35), 13, 44, 6)
    body += endless(lambda r: tuft(r, (WET_DARK, WET_LIGHT), r.choice((2.4, 3.6, 5)), .9, .8,
                                   r.choice((2, 3, 4))), 15, 56, 5)
    return texture(body, 7)


def mingled(grass_cell, meadow_cell):
    """Both with the same tufts, halfway from one to the other, on nearly half of them.

    Now and then a cell of grass lies straight against the meadow, without a shore: there is nothing
    to be seen of the step between them wherever it runs through such a tuft.
    """
    body = s.rect(0, 0, CELL, CELL, "#000000")
    body += endless(lambda r: tuft(r, ("#ffffff",), r.choice((3, 5, 7)), 2, 1, 4), 51, 34, 4)
    share = fine(rendered(body)[..., 0] / 255, 2.6, 4.2)[..., None]
    common = (grass_cell + meadow_cell) / 2
    return tuple(without_lines(cell + (common - cell) * share) for cell in (grass_cell, meadow_cell))


def without_lines(cell):
    """A row or column that is brighter than the others would go across the whole field."""
    mean = cell.mean((0, 1))
    return cell - (cell.mean(0, keepdims=True) - mean) - (cell.mean(1, keepdims=True) - mean)


# Which way the meadow lies from a straight shore, and which corner of its cell a bent one goes
# around: a corner of meadow, or a hollow, where the corner is all that is left of the grass.
STRAIGHT = {1: (0, 1), 7: (0, -1), 3: (1, 0), 5: (-1, 0)}
CORNER = {0: (1, 1), 2: (0, 1), 6: (1, 0), 8: (0, 0)}
HOLLOW = {9: (1, 1), 11: (0, 1), 15: (1, 0), 17: (0, 0)}
BENT = {**CORNER, **HOLLOW}
REEDS = (2, 6, 9, 17)   # the bent shores where reeds grow, and on the others short grass
SHORES = sorted({**STRAIGHT, **BENT})


def shoreline(tile):
    """Points of the line, the meadow on their right hand as one walks along; beyond the cell it runs straight on."""
    t = numpy.linspace(0, 1, 65)[:, None]
    if tile in STRAIGHT:
        rng = random.Random(100 + tile)
        inward = numpy.array(STRAIGHT[tile], float)
        along = numpy.array((inward[1], -inward[0]))
        # a bend of less than a pixel, level where the neighbours take over
        wave = numpy.sin(2 * numpy.pi * (t + rng.random())) * numpy.sin(numpy.pi * t) ** 2
        points = MIDDLE + along * (t - .5) * CELL + inward * wave * .8
    else:
        cx, cy = (CELL * c for c in BENT[tile])
        a, d = numpy.array((cx, MIDDLE)), numpy.array((MIDDLE, cy))
        b, c = a + ((MIDDLE - cx) * ROUND, 0), d + (0, (MIDDLE - cy) * ROUND)
        points = a * (1 - t) ** 3 + 3 * b * t * (1 - t) ** 2 + 3 * c * t * t * (1 - t) + d * t ** 3
        leftward = (cx > 0) != (cy > 0)
        if leftward == (tile in HOLLOW):
            points = points[::-1]
    first, last = points[0] - points[1], points[-1] - points[-2]
    reach = 2 * CELL
    return numpy.vstack([points[0] + first / numpy.hypot(*first) * reach, points,
                         points[-1] + last / numpy.hypot(*last) * reach])


def depth(line, x, y):
    """How far inside the meadow points lie, in units; below zero is grass."""
    nearest, inside = numpy.full(x.shape, 1e9), numpy.zeros(x.shape)
    for (ax, ay), (bx, by) in zip(line, line[1:]):
        ux, uy = bx - ax, by - ay
        t = numpy.clip(((x - ax) * ux + (y - ay) * uy) / (ux * ux + uy * uy), 0, 1)
        away = numpy.hypot(x - ax - t * ux, y - ay - t * uy)
        side = (x - ax) * -uy + (y - ay) * ux
        closer = away < nearest
        inside = numpy.where(closer, side, inside)
        nearest = numpy.where(closer, away, nearest)
    return numpy.where(inside > 0, nearest, -nearest)


def smooth(low, high, value):
    t = numpy.clip((value - low) / (high - low), 0, 1)
    return (t * t * (3 - 2 * t))[..., None]


DAMP = s.mix(p.GRASS_DARK, p.MEADOW_DARK, .35)


def growth(rng, places):
    """Blades of several sizes on a shore: (x, y, inward) are its points and where the meadow lies.

    They all grow upwards, so on an upper shore the meadow's stand before the bank, and on a lower
    one the bank's before the meadow.
    """
    things = []
    for x, y, (nx, ny) in places:
        def stand(offset, length, width, fill, opacity=1.0):
            bend = (rng.uniform(-.4, .4) + nx * rng.choice((-.6, .6))) * length
            along = rng.uniform(-.5, .5)
            px, py = x + nx * offset - ny * along, y + ny * offset + nx * along
            things.append((py, f'<g transform="translate({px:.2f} {py:.2f})">'
                           + blade(length, width, bend, fill, opacity) + "</g>"))

        size = rng.choice((.5, .7, .7, 1, 1, 1.5))
        if rng.random() < .75:
            stand(rng.uniform(.6, 2.4) + max(ny, 0) * 1.2, 3.6 * size, .95,
                  rng.choice((p.MEADOW_DARK, DAMP, WET_DARK)), .9)
        if rng.random() < .8:
            stand(rng.uniform(-1.4, -.1), 3 * size, .95,
                  rng.choice((p.GRASS, p.GRASS_LIGHT, p.GRASS_LIGHT) if nx + ny < 0 else
                             (p.GRASS, p.GRASS, p.GRASS_LIGHT, p.GRASS_DARK)), .95)
        if rng.random() < .35:
            stand(rng.uniform(2, 5), 3.4 * size, .9, rng.choice((p.MEADOW, WET_DARK)), .7)
        if rng.random() < .35:
            stand(rng.uniform(-4.5, -1.5), 2.6 * size, .9, p.GRASS_DARK, .6)
    return things


def clumps(rng, tile):
    """What grows in the bays: reeds or short grass. Straight shores stand next to their like and have none."""
    things = []
    if tile in BENT:
        line = shoreline(tile)
        spots = []
        for _ in range(45):
            x, y = rng.uniform(4, CELL - 4), rng.uniform(8, CELL - 4)
            d = float(depth(line, numpy.array(x), numpy.array(y)))
            if 2 < d < 8 and all(numpy.hypot(x - a, y - b) > 2.1 for a, b in spots):
                spots.append((x, y))
        for x, y in spots:
            thing = reeds(rng) if tile in REEDS else short_grass(rng)
            things.append((y, f'<g transform="translate({x:.2f} {y:.2f})">{thing}</g>'))
    return things


def reeds(rng):
    return tuft(rng, (p.MEADOW_DARK, DAMP, WET_DARK), rng.uniform(3.5, 6.5), 1, .85, 2)


def short_grass(rng):
    """Hardly more than the meadow's own. A slanting shore has the same tile on each of its steps: the eye would count dots."""
    return tuft(rng, (WET_DARK, WET_DARK, WET_LIGHT), rng.uniform(2.2, 4), .9, .6, 2)


STEP = 1.15          # units from one place where something grows to the next
ACROSS = 2.5         # units from a border within which the blades belong to the border
UPWARDS = 6.0        # the same below a border that blades reach across


def borders(tile):
    """The points of a cell's border through which its shore goes, and where the meadow lies there."""
    found = []
    line = shoreline(tile)
    for at, before, after in ((line[1], line[0], line[1]), (line[-2], line[-2], line[-1])):
        ux, uy = (after - before) / numpy.hypot(*(after - before))
        found.append((at[0], at[1], (round(-uy), round(ux))))
    return found


def shore_growth(tile):
    things = []
    for x, y, inward in borders(tile):
        rng = random.Random(f"{inward}")
        along = (inward[1], -inward[0])
        low, high = (-ACROSS, ACROSS) if inward[1] else (-ACROSS, UPWARDS)
        # the step downwards or to the right, whichever way the line is walked
        ahead = (abs(along[0]), abs(along[1]))
        places = []
        step = low
        while step < high:
            places.append((x + ahead[0] * step, y + ahead[1] * step, inward))
            step += STEP * rng.uniform(.7, 1.3)
        things += growth(rng, places)
    rng = random.Random(200 + tile)
    line = shoreline(tile)[1:-1]
    places, walked, due = [], 0.0, 0.0
    for (ax, ay), (bx, by) in zip(line, line[1:]):
        walked += numpy.hypot(bx - ax, by - ay)
        if walked >= due:
            due += STEP * rng.uniform(.7, 1.3)
            long = numpy.hypot(bx - ax, by - ay)
            inward = (-(by - ay) / long, (bx - ax) / long)
            if ACROSS < ax < CELL - ACROSS and UPWARDS < ay < CELL - ACROSS:
                places.append((ax, ay, inward))
    things += growth(rng, places) + clumps(rng, tile)
    return "".join(thing for _, thing in sorted(things))


def draw_tile(tile, grass_cell, meadow_cell):
    """A tile with as much of its surroundings as the game cuts off."""
    pad = AROUND * SCALE
    size = (CELL + 2 * AROUND) * SCALE
    around = ((pad, pad), (pad, pad), (0, 0))
    ground, wet = numpy.pad(grass_cell, around, "wrap"), numpy.pad(meadow_cell, around, "wrap")
    mixed = wet if tile == 4 else ground
    if tile in SHORES:
        axis = (numpy.arange(0, size, 4) + 2) / SCALE - AROUND
        x, y = numpy.meshgrid(axis, axis)
        line = shoreline(tile)

        def enlarged(values):
            picture = Image.fromarray(values.astype(numpy.float32), "F")
            return numpy.asarray(picture.resize((size, size), Image.BILINEAR)).astype(float)

        d, nearer = enlarged(depth(line, x, y)), enlarged(depth(line, x - LIGHT, y - LIGHT))
        # damp grass first, then the meadow itself
        mixed = ground + (wet - ground) * (.3 * smooth(-6, 0, d) + .7 * smooth(-.7, .7, d))
        rim = smooth(-.5, 1, d) * (1 - smooth(-1, 15.5, d))
        mixed = mixed + (mixed * RIM - mixed) * rim
        # The meadow lies a little lower than the grass: light from the upper left leaves a shadow
        # under the bank there and catches the grass's lip on the other side.
        shadow = smooth(-.4, .8, d) * (1 - smooth(-1.6, 1.8, nearer))
        mixed = mixed + (colour(p.MEADOW_DARK) * .9 - mixed) * shadow * .62
        lit = (1 - smooth(-.9, .3, d)) * smooth(-1, 1.4, nearer)
        mixed = mixed + (colour(p.GRASS_LIGHT) * 1.04 - mixed) * lit * .5
    picture = Image.fromarray(numpy.clip(mixed, 0, 255).round().astype(numpy.uint8), "RGB")
    if tile in SHORES:
        wide = CELL + 2 * AROUND
        body = f'<g transform="translate({AROUND} {AROUND})">{shore_growth(tile)}</g>'
        over = kit.render(kit.svg(wide, wide, body), size, size)
        picture.paste(over, (0, 0), over)
    left = pad - CELL * SCALE * CROP_X / (1 - 2 * CROP_X)
    top = pad - CELL * SCALE * CROP_Y / (1 - 2 * CROP_Y)
    return picture.resize((SHEET[0], SHEET[0]), Image.LANCZOS, (left, top, size - left, size - top))


grass_cell, meadow_cell = mingled(grass(), meadow())
sheet = Image.new("RGB", (3 * SHEET[0], 6 * SHEET[0]))
for tile in range(18):
    sheet.paste(draw_tile(tile, grass_cell, meadow_cell), (tile % 3 * SHEET[0], tile // 3 * SHEET[0]))
sheet = sheet.resize(SHEET, Image.BOX)
# The game shows a fifth of this size, through textures of a quarter and of an eighth of it: the
# smaller one blurs, and a little more of what it takes away puts that right.
sheet = sheet.filter(ImageFilter.UnsharpMask(5, 70, 0))
kit.save("tileSet_v2_32x32.png", sheet.convert("RGBA"))
