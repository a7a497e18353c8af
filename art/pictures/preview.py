#!/usr/bin/python3
"""Composes a field of play out of the finished pictures, the way the game draws it.

preview.py [file] [seed]: writes 1024 x 768 pixels, by default to the temporary directory. The
pictures go through the same steps as on the screen: sizes raised to powers of two, mipmaps,
linear filtering, tints and insets. It is for looking at them while they are drawn.
"""

import math
import pathlib
import random
import sys
import tempfile

import numpy
from PIL import Image

IMAGES = pathlib.Path(__file__).resolve().parents[2] / "Assets" / "img"
WIDTH, HEIGHT = 1024, 768


class Texture:
    def __init__(self, name):
        picture = Image.open(IMAGES / name).convert("RGBA")
        size = tuple(self.power(n) for n in picture.size)
        if size != picture.size:
            bands = [band.resize(size, Image.BILINEAR) for band in picture.split()]
            picture = Image.merge("RGBA", bands)
        level = numpy.asarray(picture).astype(float)[::-1] / 255
        self.levels = [level]
        while min(level.shape[:2]) > 1:
            h, w = level.shape[:2]
            level = level.reshape(h // 2, 2, w // 2, 2, 4).mean((1, 3))
            self.levels.append(level)

    @staticmethod
    def power(n):
        low = 1 << (n.bit_length() - 1)
        return low * 2 if n >= low * 1.5 else low

    def nearest(self, level, s, t):
        picture = self.levels[level]
        h, w = picture.shape[:2]
        x, y = s * w - .5, t * h - .5
        x0, y0 = numpy.floor(x).astype(int), numpy.floor(y).astype(int)
        fx, fy = (x - x0)[..., None], (y - y0)[..., None]
        a, b = picture[y0 % h, x0 % w], picture[y0 % h, (x0 + 1) % w]
        c, d = picture[(y0 + 1) % h, x0 % w], picture[(y0 + 1) % h, (x0 + 1) % w]
        return (a * (1 - fx) + b * fx) * (1 - fy) + (c * (1 - fx) + d * fx) * fy

    def sample(self, s, t, detail):
        detail = min(max(detail, 0), len(self.levels) - 1)
        low = int(detail)
        high = min(low + 1, len(self.levels) - 1)
        share = detail - low
        return self.nearest(low, s, t) * (1 - share) + self.nearest(high, s, t) * share


class Screen:
    def __init__(self):
        self.pixels = numpy.zeros((HEIGHT, WIDTH, 3))

    def blend(self, rows, columns, colour, alpha):
        under = self.pixels[rows, columns]
        self.pixels[rows, columns] = under + (colour - under) * alpha

    def quad(self, texture, x, y, w, h, s0=0.0, t0=0.0, s1=1.0, t1=1.0, tint=(1, 1, 1, 1),
             turn=0.0, about=(0.0, 0.0)):
        """A rectangle with its lower left corner at (x, y), turned about a point by degrees."""
        if h <= 0 or w <= 0:
            return
        a = math.radians(turn)
        corners = [self.turned(px, py, about, a) for px, py in
                   ((x, y), (x + w, y), (x + w, y + h), (x, y + h))]
        left = max(0, math.floor(min(c[0] for c in corners)))
        right = min(WIDTH, math.ceil(max(c[0] for c in corners)))
        low = max(0, math.floor(min(c[1] for c in corners)))
        high = min(HEIGHT, math.ceil(max(c[1] for c in corners)))
        if left >= right or low >= high:
            return
        px, py = numpy.meshgrid(numpy.arange(left, right) + .5, numpy.arange(low, high) + .5)
        px, py = self.turned(px, py, about, -a)
        u, v = (px - x) / w, (py - y) / h
        inside = (u >= 0) & (u < 1) & (v >= 0) & (v < 1)
        th, tw = texture.levels[0].shape[:2]
        detail = math.log2(max(abs(s1 - s0) * tw / w, abs(t1 - t0) * th / h, 1e-6))
        colour = texture.sample(s0 + u * (s1 - s0), t0 + v * (t1 - t0), detail) * numpy.array(tint)
        alpha = colour[..., 3] * inside
        self.blend(slice(low, high), slice(left, right), colour[..., :3], alpha[..., None])

    @staticmethod
    def turned(x, y, about, a):
        dx, dy = x - about[0], y - about[1]
        return (about[0] + dx * math.cos(a) - dy * math.sin(a),
                about[1] + dx * math.sin(a) + dy * math.cos(a))

    def disc(self, x, y, r):
        py, px = numpy.mgrid[0:HEIGHT, 0:WIDTH] + .5
        inside = numpy.hypot(px - x, py - y) < r
        self.blend(slice(0, HEIGHT), slice(0, WIDTH), numpy.array([1.0, 0, 0]),
                   inside[..., None] * .1)

    def save(self, path):
        picture = numpy.clip(self.pixels[::-1] * 255, 0, 255).round().astype(numpy.uint8)
        Image.fromarray(picture, "RGB").save(path)


def patches(rng):
    """A field of 32 x 24 cells with its round patches: 1 where there is meadow."""
    grid = [[0] * 24 for _ in range(32)]
    centres = ((rng.randrange(10), rng.randrange(8)), (32 - rng.randrange(8), rng.randrange(6)),
               (rng.randrange(10), 24 - rng.randrange(8)),
               (32 - rng.randrange(8), 24 - rng.randrange(6)), (16, 12))
    for px, py in centres:
        if rng.randrange(100) >= 75:
            continue
        for _ in range(2):
            r = 2 + rng.randrange(10) / 9
            y, x = py + rng.randrange(3) - 1, px + rng.randrange(3) - 1
            for i in range(32):
                for j in range(24):
                    if (i - x) ** 2 + (j - y) ** 2 <= r * r:
                        grid[i][j] = 1
    return grid


def tile_of(grid, x, y):
    def at(dx, dy):
        inside = 0 <= x + dx < 32 and 0 <= y + dy < 24
        return grid[x + dx][y + dy] if inside else 0

    if grid[x][y]:
        return 4
    code = (at(1, 0), at(0, 1), at(-1, 0), at(0, -1))
    ur, ul, ll, lr = at(1, 1), at(-1, 1), at(-1, -1), at(1, -1)
    none = (0, 0, 0, 0)
    rules = ((lr and code == none, 0), (code == (0, 0, 0, 1), 1), (ll and code == none, 2),
             (code == (1, 0, 0, 0), 3), (code == (1, 1, 1, 1), 4), (code == (0, 0, 1, 0), 5),
             (ur and code == none, 6), (code == (0, 1, 0, 0), 7), (ul and code == none, 8),
             (ul and code == (0, 1, 1, 0), 9), (ur and code == (1, 1, 0, 0), 11),
             (code == none, 13), (ll and code == (0, 0, 1, 1), 15),
             (lr and code == (1, 0, 0, 1), 17))
    return next((tile for holds, tile in rules if holds), 13)


def ground(screen, grid):
    sheet, d = Texture("tileSet_v2_32x32.png"), .01
    for x in range(32):
        for y in range(24):
            tile = tile_of(grid, x, y)
            s, t = tile % 3 / 3, 1 - tile // 3 / 6 - 1 / 6
            screen.quad(sheet, 32 * x, 32 * y, 32, 32, s + d, t + d, s + 1 / 3 - d, t + 1 / 6 - d)


def tower(screen, x=512, y=352, level=1.0, polluted=0.0):
    back, water, front = (Texture(f"VorelTower_{n}_128.PNG") for n in ("back", "water", "front"))
    screen.quad(back, x - 64, y - 64, 128, 128)
    screen.quad(water, x - 64, y - 64 + (1 - level) * 62, 128, 128 * level,
                tint=(1, 1 - polluted, 1 - polluted, 1))
    screen.quad(front, x - 64, y - 64, 128, 128)


def grunt(screen, sheet, x, y, row, frame):
    s, t = frame / 4, 1 - row / 4
    screen.quad(sheet, x - 16, y - 16, 32, 32, s + .001, t - .25 + .01, s + .25 - .001, t - .003)


def explosion(screen, sheet, x, y, frame, size=96):
    s = frame / 8
    screen.quad(sheet, x - size / 2, y - size / 2, size, size, s, .5, s + .125, 1)


def jet(screen, sheet, x, y, angle):
    screen.quad(sheet, x, y, 9.6, 9.6, turn=angle, about=(x + 5, y + 5))


def splash(screen, sheet, x, y, angle, frame):
    s = frame / 8
    screen.quad(sheet, x, y, 38.4, 38.4, s, 0, s + .125, .5, turn=angle, about=(x + 5, y + 5))


def scene(screen, seed):
    rng = random.Random(seed)
    ground(screen, patches(rng))
    level, polluted = (1, .5, .1, 1, 1)[seed % 5], (0, 0, .2, .4, .9)[seed % 5]
    tower(screen, level=level, polluted=polluted)
    grunts, blasts = Texture("VorelDefense_grunts.PNG"), Texture("VorelDefense_explosions_64.png")
    drop, weapon = Texture("VorelDefence_projectile.PNG"), Texture("WaterTurret_64x64.PNG")
    for i in range(26):
        a, r = rng.uniform(0, 2 * math.pi), rng.uniform(130, 400)
        x, y = 512 + r * math.cos(a), 352 + r * .8 * math.sin(a)
        angle = math.degrees(math.atan2(352 - y, 512 - x))
        row = 0 if -45 < angle < 45 else 1 if 45 < angle < 135 else 2 if abs(angle) > 135 else 3
        if i < 20:
            grunt(screen, grunts, x, y, row, i % 4)
        elif i == 25:
            explosion(screen, grunts, x, y, 0, 32)
        else:
            explosion(screen, blasts, x, y, (0, 0, 2, 4, 6)[i - 20])
    screen.quad(Texture("TurretIcon_64.png"), 704 - 32, 608 - 32, 64, 64, tint=(1, 1, 1, .4))
    screen.disc(704, 608, 300)
    for x, y in ((384, 288), (416, 448), (608, 448), (640, 320), (512, 224), (320, 544), (832, 192),
                 (224, 192), (736, 480), (512, 512)):
        screen.quad(weapon, x - 32, y - 32, 64, 64)
        for k in range(2):
            a, r = rng.uniform(0, 360), rng.uniform(40, 150)
            jx, jy = x + r * math.cos(math.radians(a)), y + r * math.sin(math.radians(a))
            if k:
                splash(screen, blasts, jx, jy, a, rng.choice((0, 0, 1, 2, 3, 5)))
            else:
                jet(screen, drop, jx, jy, a)
    hud(screen, level, polluted)


def hud(screen, level=1.0, polluted=0.0, money=2000):
    screen.quad(Texture("WeaponPanel_128x256.png"), 896, 412, 128, 256)
    screen.quad(Texture("TurretIcon_64.png"), 960, 563, 64, 64)
    content, full = Texture("BottleContent_128x1024.png"), 144 + 659 * level
    for top, tint in ((full, (0, 0, 1, 1)), (144 + (full - 144) * polluted, (1, 0, 0, 1))):
        screen.quad(content, 0, 0, 64, top / 2, t1=top / 1024, tint=tint)
    screen.quad(Texture("BottleGauge_128x1024.png"), 0, 0, 64, 512)
    screen.quad(Texture("MoneyPanel_512x256.png"), 844, 668, 170, 85)
    digits, w, h = Texture("Numbers_320x64.png"), 32 / 2.4, 64 / 2.4
    for i in range(6):
        d = money // 10 ** i % 10
        screen.quad(digits, 964 - i * w, 698, w, h, d / 10, 0, d / 10 + .1, 1)
    screen.quad(Texture("DollarSign_64.png"), 964 - 7 * w, 698, 2 * w, h)


def strips(screen):
    """Every frame by itself: walks, both explosions, the splash turned, levels of the tower."""
    ground(screen, [[0] * 24 for _ in range(32)])
    grunts, blasts = Texture("VorelDefense_grunts.PNG"), Texture("VorelDefense_explosions_64.png")
    drop = Texture("VorelDefence_projectile.PNG")
    for row in range(4):
        for frame in range(4):
            grunt(screen, grunts, 40 + 44 * frame, 720 - 44 * row, row, frame)
    for frame in range(8):
        explosion(screen, grunts, 240 + 40 * frame, 720, frame, 32)
        explosion(screen, blasts, 60 + 100 * frame, 500, frame)
        for k, angle in enumerate((0, 90, 200)):
            splash(screen, blasts, 60 + 60 * frame, 400 - 60 * k, angle, frame)
            grunt(screen, grunts, 60 + 60 * frame + 30 * math.cos(math.radians(angle)),
                  400 - 60 * k + 30 * math.sin(math.radians(angle)), 3, 0) if frame == 7 else None
        jet(screen, drop, 600 + 30 * frame, 400, 45 * frame)
    for i, (level, polluted) in enumerate(((1, 0), (.5, 0), (.1, 0), (1, .4), (.6, .9), (0, 0))):
        tower(screen, 80 + 140 * i, 80, level, polluted)
    weapon = Texture("WaterTurret_64x64.PNG")
    screen.quad(weapon, 600, 650, 64, 64)
    screen.quad(weapon, 700, 650, 64, 64, tint=(1, 1, 1, .4))


if __name__ == "__main__":
    target = sys.argv[1] if len(sys.argv) > 1 else f"{tempfile.gettempdir()}/preview.png"
    seed = int(sys.argv[2]) if len(sys.argv) > 2 else 0
    screen = Screen()
    if seed < 0:
        strips(screen)
    else:
        scene(screen, seed)
    screen.save(target)
