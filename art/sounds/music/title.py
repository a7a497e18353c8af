"""The title's music: calm and wide, the tune on glasses, then climbing, then on a horn.

24 slow bars. It begins and ends with nothing but water, so the loop's seam falls into a breath.
"""

import sys

from score import Score, melody, note
from tune import CLIMB, CLIMB_CHORDS, FIRST, FIRST_CHORDS, SECOND, SECOND_CHORDS, SLOW, chords

BAR = 4 * SLOW
score = Score(24 * BAR)


def harmony(start, sequence, level, bright, bass=True, rise=1.6):
    for beat, length, low, voices in chords(sequence):
        for voice in voices:
            score.play("Pad", start + beat, length - 0.2, 0.075 * level, note(voice), bright, rise)
        if bass:
            score.play("Deep", start + beat, length - 0.3, 0.15 * level, note(low))
            if length == BAR:
                score.play("Deep", start + beat + 6, 1.6, 0.09 * level, note(low) + 7)


def sing(start, text, instrument, level, *tail, shift=0):
    for beat, length, pitch in melody(text, SLOW)[0]:
        pan = 0.5 + (pitch - 74) * 0.018
        score.play(instrument, start + beat, length * 0.96, level, pitch + shift, pan, *tail)


def ripples(start, sequence, level, pattern=(0, 2, 1, 3, 2, 1, 3, 2)):
    """Broken chords in quavers of the slow beat, far back, wandering from side to side."""
    for beat, length, _, voices in chords(sequence):
        for step in range(int(length)):
            pitch = note(voices[pattern[step % 8]]) + 12
            pan = 0.5 + 0.38 * (-1) ** step
            accent = 1.0 if step % 4 == 0 else 0.7
            score.play("Pluck", start + beat + step, 0.8, 0.055 * level * accent, pitch, pan, 0.35)


def drips(start, bars, level):
    """Drops keep the time: one answers on the third beat, a small one hurries after it."""
    for bar in range(bars):
        at = start + bar * BAR
        score.play("Drop", at + 4, 0.8, 0.24 * level, 79, 0.62)
        score.play("Drop", at + 7, 0.8, 0.13 * level, 86, 0.3)
        if bar % 2:
            score.play("Drop", at + 5.5, 0.8, 0.11 * level, 74, 0.2)
        if bar % 4 == 3:
            score.play("Drop", at + 7.5, 0.8, 0.11 * level, 91, 0.75)


# two bars of water and first light
score.play("Surf", 0, 11, 0.20, 520)
for start, level in ((8, 0.22), (26, 0.13), (42, 0.15), (58, 0.13), (74, 0.16), (90, 0.16), (106, 0.15), (122, 0.15),
                     (138, 0.16), (152, 0.16), (166, 0.20), (178, 0.20)):
    score.play("Surf", start, 15, level, 520)
harmony(0.5, [("Gm", 4), ("Eb", 3.75)], 1.1, 1000, bass=False, rise=1.8)
for beat, pitch, pan in ((1, 79, 0.6), (2, 86, 0.3), (4, 79, 0.7), (5.5, 82, 0.4), (8, 86, 0.65), (9.5, 91, 0.35),
                         (12, 79, 0.6), (13.5, 86, 0.4), (14.5, 74, 0.5), (15, 79, 0.3)):
    score.play("Drop", beat, 0.8, 0.17, pitch, pan)
sing(0, "r:2 D5:.5 G5:1.5 r:.5 | r:3 F5:.5", "Glass", 0.10)

# the tune on glasses
first = 2 * BAR
harmony(first, FIRST_CHORDS + SECOND_CHORDS, 1.0, 1100)
sing(first, FIRST + " " + SECOND, "Glass", 0.20)
drips(first, 8, 0.8)
ripples(first + 4 * BAR, SECOND_CHORDS, 0.8)

# it climbs
climb = first + 8 * BAR
harmony(climb, CLIMB_CHORDS, 1.1, 1500)
sing(climb, CLIMB, "Glass", 0.17)
sing(climb, CLIMB, "Horn", 0.075, 0.55, shift=-12)
ripples(climb, CLIMB_CHORDS, 1.0)
drips(climb, 4, 0.9)
score.play("Riser", climb + 2 * BAR, 2 * BAR, 0.035, 500, 4200)

# the horn has it, the glasses answer in the gaps
again = climb + 4 * BAR
harmony(again, FIRST_CHORDS + SECOND_CHORDS, 1.05, 1700)
sing(again, FIRST + " " + SECOND, "Horn", 0.20, 0.8, shift=-12)
sing(again + 4 * BAR, SECOND, "Glass", 0.11)
ripples(again, FIRST_CHORDS + SECOND_CHORDS, 1.0)
drips(again, 7, 1.0)
for beat, text in ((BAR + 2, "Bb5:.5 A5:.5 G5:.5 F5:.5 D5:1"), (3 * BAR + 1, "A5:.5 G5:.5 F5:.5 C5:1")):
    sing(again + beat, text, "Glass", 0.10)

# and the water closes over it
last = again + 8 * BAR
harmony(last, [("Gm", 3.5)], 1.0, 900, bass=False)
sing(last - BAR + 6, "D5:1 G5:2", "Glass", 0.09)
for beat, pitch, pan in ((1, 86, 0.4), (3.5, 82, 0.65), (6, 79, 0.3), (9, 74, 0.55)):
    score.play("Drop", last + beat, 0.8, 0.16 - beat * 0.008, pitch, pan)

with open(sys.argv[1], "w", encoding="ascii") as out:
    out.write(score.document((1.0, 0.68, 0.55, 0.9, 0)))
