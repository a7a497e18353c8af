"""The music in play: half-time at 140, sludge bass and the title's tune. 99 bars, 170 seconds.

  0 arrival   16 first drop   32 the tune   48 second drop   64 the well   76 third drop   92 leaving
"""

import sys

from score import Score, melody, note
from tune import CLIMB, CLIMB_CHORDS, FIRST, FIRST_CHORDS, SECOND, SECOND_CHORDS, SLOW, above, chords

BAR = 4
score = Score(99 * BAR)


# ---- the beat ------------------------------------------------------------------------------

def marks(pattern):
    """The places of a bar's sixteen steps that are not rests, with their strength 0..1."""
    strength = {"X": 1.0, "x": 0.7, "o": 0.45}
    return [(place / 4, strength[mark]) for place, mark in enumerate(pattern) if mark in strength]


BEATS = {
    "plain": ("X.....x.........", "........X.......", "..o...o...o...o."),
    "push":  ("X.....x....x....", "........X.......", "..o.o.o...o.o.oo"),
    "skip":  ("X..x......x.....", "........X......o", "o.o...x.o.o..oo."),
    "roll":  ("X.....x...x.....", "........X..o.o..", "..o.oox...o.ooxo"),
    "stop":  ("X...............", "................", "................"),
    "fill":  ("X.....x.........", "........X.x.xxXX", "..o...o........."),
    "light": ("x...............", "........x.......", "..o...o...o..o.."),
    "four":  ("X...X...X...X...", "........X.......", "..o...o...o...o."),
}


def beat(bar, name, level=1.0):
    kicks, snares, hats = BEATS[name]
    for at, strength in marks(kicks):
        score.play("Kick", bar * BAR + at, 0.9, 0.74 * level * strength)
    for at, strength in marks(snares):
        score.play("Snare", bar * BAR + at, 0.9, 0.50 * level * strength ** 1.5)
    for index, (at, strength) in enumerate(marks(hats)):
        swing = 0.03 if (at * 4) % 2 else 0
        score.play("Hat", bar * BAR + at + swing, 0.4, 0.34 * level * strength,
                   0.35 + 0.3 * (index % 2), 0.035 if index % 4 != 3 else 0.11)


def waterworks(bar, kind, level=1.0):
    """The small machinery round the beat: drops, pipes, a pump."""
    at = bar * BAR
    if kind == "drops":
        for offset, pitch, pan in ((0.75, 86, 0.2), (1.5, 79, 0.8), (2.75, 82, 0.3), (3.25, 91, 0.7), (3.5, 86, 0.75)):
            score.play("Drop", at + offset, 0.8, 0.13 * level, pitch, pan)
    elif kind == "pipes":
        for offset, pitch, pan in ((0.5, 67, 0.25), (1.25, 74, 0.75), (2.5, 67, 0.3), (3.75, 79, 0.7)):
            score.play("Clank", at + offset, 0.5, 0.17 * level, pitch, pan)
    elif kind == "pump":
        for offset in (0, 1, 2, 3):
            score.play("Hat", at + offset + 0.5, 0.4, 0.11 * level, 0.5, 0.16)
        score.play("Clank", at + 3, 0.5, 0.14 * level, 62, 0.6)
        score.play("Drop", at + 3.5, 0.8, 0.08 * level, 74, 0.35)


# ---- the sludge ----------------------------------------------------------------------------

# A bar of bass. Letters: w wobble, v falling wobble, u rising wobble, y "yoy", o "wow", e "eeoh",
# g bubble, r long reese, m iron, s sub alone, - rest. Then turns a beat, a shift in steps of the scale
# after an @, and the length in beats after the colon.
BASS = {
    "call":    "w1:2 w2:1 w4:1",
    "call2":   "w1:1.5 g:.5 w3:1 y2:1",
    "answer":  "y2:1 y1:.5 g:.5 -:.5 w4:.5 w3:1",
    "answer2": "o1:1 o2:1 -:.5 y4:.5 m@7:.25 m@7:.25 g@-3:.5",
    "turn":    "w2:1 w3:1 w4:1 w6:1",
    "talk":    "y1:1 o1:.5 y2:.5 e1:1 o2:.5 g:.5",
    "talk2":   "e2:.5 e2@2:.5 o1:1 -:.25 g:.25 g@2:.25 g@3:.25 y1:1",
    "stutter": "v4:.75 -:.25 v4:.5 -:.5 w1:1 v2:1",
    "gulp":    "g:.5 g:.25 -:.25 g@2:.5 -:.5 w2:1 g@-1:.5 g@-3:.5",
    "slide":   "u1:1 v2:1 u2:.5 u2:.5 v3:1",
    "long":    "r:4",
    "lazy":    "w.5:2 w1:2",
    "triplet": "w1.5:2 w3:2",
    "iron":    "m:.5 -:.25 m:.25 w2:1 m@7:.25 m@6:.25 w4:.5 y1:1",
    "empty":   "-:4",
    "hold":    "s:4",
    "half":    "w1:2 -:2",
    "spill":   "-:1 g:.25 g@2:.25 g@4:.5 -:.75 m:.25 m@7:.25 -:.75",
    "last":    "y1:.5 -:.5 y1:.5 -:.5 g:.25 g:.25 g@2:.25 g@3:.25 -:1",
}


def bass(bar, cell, root, level=1.0, bright=1.0):
    """Plays a cell on a root, with a clean sub two octaves under middle keeping it company."""
    at = bar * BAR
    for word in BASS[cell].split():
        kind, length = word.split(":")
        length = float(length)
        letter, rest = kind[0], kind[1:]
        rate, _, shift = rest.partition("@")
        rate = float(rate) if rate else 1.0
        pitch = above(note(root), int(shift) if shift else 0)
        if letter != "-":
            sub = pitch if pitch >= 28 else pitch + 12
            score.play("Sub", at, length * 0.97, 0.40 * level, sub)
        mid = pitch + 12
        if letter in "wvu":
            shape = "wvu".index(letter)
            score.play("Wobble", at, length, 0.27 * level, mid, rate, 170, 4200 * bright, shape, rate)
        elif letter in "yoe":
            score.play("Growl", at, length, 0.16 * level, mid, rate, "yoe".index(letter))
        elif letter == "g":
            score.play("Glug", at, length * 0.9, 0.34 * level, mid, 1.5)
        elif letter == "r":
            score.play("Reese", at, length, 0.22 * level, mid, 350, 1800 * bright)
        elif letter == "m":
            score.play("Metal", at, length * 0.9, 0.20 * level, mid + 12, 1.414)
        at += length


# ---- the tune ------------------------------------------------------------------------------

def harmony(bar, sequence, level, bright, stretch=SLOW, low=True, rise=0.5):
    for beat_, length, bass_, voices in chords(sequence, stretch):
        for voice in voices:
            score.play("Pad", bar * BAR + beat_, length - 0.1, 0.07 * level, note(voice), bright, rise)
        if low:
            score.play("Deep", bar * BAR + beat_, length - 0.2, 0.15 * level, note(bass_))


def sing(bar, text, instrument, level, *tail, stretch=SLOW, shift=0, pan=True, offset=0.0):
    for beat_, length, pitch in melody(text, stretch)[0]:
        place = (0.5 + (pitch - 74) * 0.018,) if pan else ()
        score.play(instrument, bar * BAR + beat_ + offset, length * 0.95, level, pitch + shift, *place, *tail)


def ripples(bar, sequence, level, bright, stretch=SLOW, rate=2, pattern=(0, 2, 1, 3, 2, 1, 3, 2)):
    for beat_, length, _, voices in chords(sequence, stretch):
        for step in range(int(length * rate)):
            pitch = note(voices[pattern[step % 8]]) + 12
            accent = 1.0 if step % 4 == 0 else 0.65
            score.play("Pluck", bar * BAR + beat_ + step / rate, 0.7, 0.09 * level * accent, pitch,
                       0.5 + 0.36 * (-1) ** step, bright)


def stabs(bar, names, places, level, length=0.4):
    for place in places:
        for index, name in enumerate(names.split()):
            score.play("Horn", bar * BAR + place, length, level, note(name), 0.25 + 0.17 * index, 1.0)


def build(bar, bars, level=1.0, snares=True):
    """Pressure before a drop: a riser, and a snare that doubles its pace."""
    score.play("Riser", bar * BAR, bars * BAR, 0.13 * level, 300, 7000)
    if snares:
        total = bars * BAR
        at = 0.0
        while at < total - 0.76:
            left = total - at
            score.play("Snare", bar * BAR + at, 0.5, (0.09 + 0.2 * at / total) * level)
            at += 1.0 if left > total / 2 else 0.5 if left > total / 4 else 0.25


def drop_in(bar, level=1.0):
    score.play("Crash", bar * BAR, 6, 0.28 * level)
    score.play("Plunge", bar * BAR, 3, 0.25 * level)


ROOTS = {"G": "G1", "Eb": "Eb1", "F": "F1", "Bb": "Bb1", "C": "C2", "D": "D1", "A": "A1"}


def drop(bar, cells, roots, beats, level=1.0, bright=1.0, works=()):
    for index, cell in enumerate(cells):
        bass(bar + index, cell, ROOTS[roots[index % len(roots)]], level, bright)
        beat(bar + index, beats[index % len(beats)])
        if works:
            waterworks(bar + index, works[index % len(works)])


# ---- 0 arrival: under water, the tune comes up in fragments ----------------------------------

score.play("Surf", 0, 16, 0.16, 520)
score.play("Surf", 14, 18, 0.16, 620)
harmony(0, FIRST_CHORDS, 1.0, 1250, low=False, rise=2)
for at, pitch, pan in ((0.5, 86, 0.3), (1.75, 79, 0.7), (3, 82, 0.4), (4.5, 91, 0.6), (6, 74, 0.3), (7, 79, 0.7)):
    score.play("Drop", at, 0.8, 0.14, pitch, pan)
sing(2, "D5:1 G5:1.5 F5:.5 D5:.5 C5:.5 | D5:3 r:1", "Glass", 0.20)
sing(6, "C5:1 F5:1.5 D5:.5 C5:.5 A4:.5", "Glass", 0.20)
ripples(0, FIRST_CHORDS, 0.5, 0.3)
for bar in range(4, 8):
    beat(bar, "light", 0.8)
    waterworks(bar, "drops", 0.8)
for bar in range(8, 12):
    beat(bar, "plain", 0.8)
    waterworks(bar, "drops")
for bar in range(12, 15):
    waterworks(bar, "drops", 0.8)
harmony(8, [("Gm", 4), ("Eb", 4), ("Cm", 4), ("Dsus", 3), ("D", 1)], 1.0, 1800)
ripples(8, [("Gm", 4), ("Eb", 4), ("Cm", 4), ("Dsus", 2)], 1.0, 0.6, rate=4)
for bar, root in ((8, "G1"), (10, "Eb1")):
    bass(bar, "long", root, 0.55, 0.5)
    bass(bar + 1, "long", root, 0.55, 0.7)
sing(8, SECOND, "Glass", 0.14)
build(12, 4)
bass(15, "last", "D2", 0.7)

# ---- 16 first drop ---------------------------------------------------------------------------

drop_in(16)
drop(16, ["call", "answer", "call", "turn", "call2", "answer", "talk", "gulp",
          "call", "answer2", "call", "triplet", "talk", "stutter", "slide", "last"],
     ["G", "G", "Eb", "F"], ["plain", "push", "plain", "roll", "plain", "push", "skip", "fill"],
     works=["pipes", "", "drops", ""])
for bar, names in ((16, "G3 Bb3 D4 G4"), (18, "G3 Bb3 Eb4 G4"), (20, "G3 Bb3 D4 G4"), (22, "G3 Bb3 Eb4 G4"),
                   (24, "G3 Bb3 D4 G4"), (26, "G3 Bb3 Eb4 G4"), (28, "G3 Bb3 D4 G4"), (30, "G3 Bb3 Eb4 G4")):
    stabs(bar, names, (0,), 0.075)
drop_in(24, 0.6)
for bar in (19, 23, 27):
    sing(bar, "G5:.5 F5:.5 D5:.5 C5:.5", "Pluck", 0.16, 0.8)

# ---- 32 the tune, whole ------------------------------------------------------------------------

score.play("Crash", 32 * BAR, 6, 0.12)
score.play("Surf", 32 * BAR, 16, 0.12, 520)
harmony(32, FIRST_CHORDS + SECOND_CHORDS[:-1] + [("Dsus", 3), ("D", 1)], 1.05, 1950)
sing(32, FIRST + " " + SECOND, "Horn", 0.23, 0.85, shift=-12)
sing(40, SECOND, "Glass", 0.13)
ripples(36, FIRST_CHORDS[2:] + SECOND_CHORDS[:2], 0.9, 0.5)
for bar in range(34, 40):
    waterworks(bar, "drops")
for bar in range(36, 44):
    beat(bar, "light", 0.9)
ripples(44, [("Cm", 2), ("D", 2), ("Dsus", 2)], 1.0, 0.8, rate=4)
build(44, 4)
bass(47, "spill", "D2", 0.7)

# ---- 48 second drop: the mouth ---------------------------------------------------------------

drop_in(48)
drop(48, ["talk", "answer", "talk2", "iron", "talk", "answer2", "gulp", "turn",
          "slide", "talk2", "stutter", "iron", "triplet", "talk", "turn", "last"],
     ["G", "G", "Bb", "C", "G", "G", "Eb", "F"],
     ["skip", "push", "skip", "roll", "plain", "push", "skip", "fill"],
     works=["pump", "pipes", "pump", "drops"])
drop_in(56, 0.6)
for bar in (50, 54, 58, 62):
    stabs(bar, "F3 Bb3 D4 F4", (0, 1.5), 0.075)
sing(56, "D5:1 G5:1.5 F5:.5 D5:.5 C5:.5 | D5:3 r:1", "Lead", 0.115, 3800, pan=False)
sing(60, "D5:1 G5:1.5 A5:.5 Bb5:.5 A5:.5 | G5:2", "Lead", 0.115, 3800, pan=False)

# ---- 64 the well: deep, slow, dripping -----------------------------------------------------------

score.play("Plunge", 64 * BAR, 6, 0.3)
for bar in (64, 68, 72):
    score.play("Surf", bar * BAR, 16, 0.14, 430)
harmony(64, CLIMB_CHORDS, 1.0, 1100, low=False, rise=1.5)
for bar, root in ((64, "Eb1"), (66, "F1"), (68, "G1"), (70, "D1")):
    bass(bar, "lazy", root, 0.62, 0.4)
    bass(bar + 1, "hold", root, 0.7)
for bar in range(64, 72):
    beat(bar, "light" if bar % 2 == 0 else "stop", 0.9)
    waterworks(bar, "drops" if bar % 2 else "pipes", 0.9)
sing(64, CLIMB, "Glass", 0.18)
sing(68, CLIMB.split("|")[2], "Horn", 0.10, 0.5, shift=-12)
harmony(72, [("Cm", 2), ("D", 2), ("Dsus", 2), ("D", 2)], 1.1, 2200)
ripples(72, [("Cm", 2), ("D", 2), ("Dsus", 2)], 1.0, 0.9, rate=4)
build(72, 4)
bass(75, "last", "D2", 0.7)

# ---- 76 third drop: the tune rides on the sludge ---------------------------------------------------

drop_in(76)
drop(76, ["call", "call2", "talk", "answer", "slide", "talk", "call", "turn",
          "stutter", "answer", "talk2", "gulp", "iron", "triplet", "turn", "last"],
     ["G", "G", "Eb", "Eb", "Bb", "Bb", "F", "F", "G", "G", "Eb", "Eb", "C", "D", "G", "G"],
     ["push", "plain", "roll", "push", "skip", "plain", "push", "fill"],
     level=0.9, works=["drops", "pipes", "pump", "drops"])
drop_in(84, 0.7)
sing(76, FIRST, "Lead", 0.125, 3600, pan=False)
sing(84, SECOND, "Lead", 0.125, 4000, pan=False)
sing(84, SECOND, "Horn", 0.12, 1.0, shift=-12)

# ---- 92 leaving: what is left drips away, so that the beginning can come round again -------------------

score.play("Crash", 92 * BAR, 6, 0.12)
score.play("Surf", 92 * BAR, 18, 0.14, 480)
score.play("Surf", 95.5 * BAR, 15, 0.17, 520)
harmony(92, [("Gm", 4), ("Eb", 4), ("Bb", 2), ("F", 2)], 1.0, 1400, low=False)
for bar in range(92, 96):
    beat(bar, "light", 0.8)
    waterworks(bar, "drops", 0.9)
bass(92, "lazy", "G1", 0.6, 0.4)
bass(94, "lazy", "Eb1", 0.5, 0.3)
sing(92, "D5:1 G5:1.5 F5:.5 D5:.5 C5:.5 | D5:3 r:1", "Glass", 0.18)
sing(96, "C5:1 F5:1.5", "Glass", 0.13)
for at, pitch, pan in ((16.75, 86, 0.3), (18, 79, 0.7), (19.5, 82, 0.4), (21, 91, 0.6), (23, 74, 0.35), (26, 79, 0.65)):
    score.play("Drop", 92 * BAR + at, 0.8, 0.12, pitch, pan)

with open(sys.argv[1], "w", encoding="ascii") as out:
    out.write(score.document((0.8, 0.5, 0.45, 1.1, 0)))
