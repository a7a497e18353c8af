"""The two jingles: the tune's leap, carried home in G major, and the same leap sinking."""

import sys

from score import Score, note


def chord(score, instrument, beat, length, level, names, *tail):
    names = names.split()
    for place, name in enumerate(names):
        pan = 0.5 + 0.5 * (place / max(1, len(names) - 1) - 0.5)
        score.play(instrument, beat, length, level, note(name), pan, *tail)


def well_done():
    """E flat, F, G: the leap lands in the major. Eight beats."""
    score = Score(8)
    for beat, length, name in ((0, 0.5, "D4"), (0.5, 1, "G4"), (1.5, 0.5, "F4"), (2, 0.5, "D4"),
                               (2.5, 0.5, "C4"), (3, 0.5, "D4"), (3.5, 0.5, "G4"), (4, 2.6, "B4")):
        score.play("Horn", beat, length * 0.95, 0.30, note(name), 0.5, 1.0)
        score.play("Glass", beat, length, 0.16, note(name) + 12, 0.58)
    for beat, length, names in ((0, 1.4, "G3 Bb3 Eb4"), (1.5, 0.9, "F3 A3 C4"), (2.5, 0.45, "F3 A3 C4"),
                                (3, 0.9, "G3 B3 D4"), (4, 2.6, "G3 B3 D4 G4")):
        chord(score, "Horn", beat, length, 0.11, names, 0.8)
    for beat, length, name in ((0, 1.4, "Eb2"), (1.5, 1.4, "F2"), (3, 0.9, "G2"), (4, 2.6, "G2")):
        score.play("Deep", beat, length, 0.30, note(name))
    for beat in (0, 1.5, 3, 4):
        score.play("Kick", beat, 0.6, 0.32)
    for beat in (3.5, 3.75):
        score.play("Snare", beat, 0.5, 0.14)
    score.play("Snare", 4, 0.6, 0.26)
    score.play("Crash", 4, 3.6, 0.10)
    for index, name in enumerate(("G5", "B5", "D6", "G6", "B6", "D7")):
        score.play("Drop", 4.25 + index * 0.25, 0.8, 0.12 - index * 0.008, note(name), 0.25 + 0.1 * index)
    return score.document((1.0, 0.45, 0.35, 1.0, 0))


def game_over():
    """The leap once more, then the band goes under: out of tune, out of light. Eleven beats."""
    score = Score(11)
    for beat, length, name in ((0, 1, "D4"), (1, 1.5, "G4"), (2.5, 0.6, "F4"), (3.1, 0.7, "D4"),
                               (3.8, 0.9, "C4"), (4.7, 4.6, "Bb3")):
        score.play("Horn", beat, length * 0.97, 0.30, note(name), 0.5, 0.9)
        score.play("Glass", beat, length, 0.12, note(name) + 12, 0.42)
    for beat, length, names in ((0, 2.4, "G3 Bb3 D4"), (2.5, 2.1, "F3 A3 C4"), (4.7, 4.6, "Eb3 G3 Bb3")):
        chord(score, "Horn", beat, length, 0.10, names, 0.7)
    for beat, length, name in ((0, 2.4, "G2"), (2.5, 2.1, "F2"), (4.7, 4.6, "Eb2")):
        score.play("Deep", beat, length, 0.26, note(name))
    score.play("Kick", 0, 0.6, 0.22)
    score.play("Kick", 4.7, 0.6, 0.28)
    score.play("Plunge", 5.2, 4.5, 0.12)
    for index, beat in enumerate((5.0, 5.5, 5.8, 6.4, 6.6, 6.9, 7.5, 7.8, 8.4, 8.9, 9.5, 9.9)):
        score.play("Air", beat, 1.2, 0.16 - 0.007 * index, 62 + index * 5 % 17, 0.2 + 0.6 * (index * 0.37 % 1))
    score.play("Sink", 0, 2.5, 12000, 7000, 1, 1)
    score.play("Sink", 2.5, 2.2, 7000, 3000, 1, 0.995)
    score.play("Sink", 4.7, 5.3, 3000, 300, 0.995, 0.67)
    score.play("Sink", 10, 1, 300, 240, 0.67, 0.65)
    return score.document((1.0, 0.45, 0.3, 1.0, 1))


with open(sys.argv[2], "w", encoding="ascii") as out:
    out.write({"well_done": well_done, "game_over": game_over}[sys.argv[1]]())
