"""The tune of Vorel Defense, in G minor: a leap of a fourth that falls back in steps.

Its beats are slow ones, two of the score's each, so that title, play and jingles share one pulse.
"""

SLOW = 2.0

FIRST = "D5:1 G5:1.5 F5:.5 D5:.5 C5:.5 | D5:3 r:1 | C5:1 F5:1.5 D5:.5 C5:.5 Bb4:.5 | C5:2.5 r:.5 A4:.5 C5:.5"
SECOND = "D5:1 G5:1.5 A5:.5 Bb5:.5 A5:.5 | G5:2 F5:1 D5:1 | Eb5:1.5 D5:.5 C5:1 A4:1 | G4:3 r:1"
CLIMB = "Bb4:1 Eb5:1.5 D5:.5 Bb4:1 | C5:1 F5:1.5 Eb5:.5 C5:1 | D5:1 G5:1.5 F5:.5 D5:1 | A5:2 G5:1 F#5:1"

# chord: bass note, then the voices above it from low to high
CHORDS = {
    "Gm": ("G2", "G3 Bb3 D4 F4"), "Eb": ("Eb2", "G3 Bb3 D4 Eb4"), "Bb": ("Bb2", "F3 Bb3 C4 D4"),
    "F": ("F2", "F3 A3 C4 G4"), "Cm": ("C2", "G3 Bb3 C4 Eb4"), "D": ("D2", "F#3 A3 C4 D4"),
    "Dsus": ("D2", "G3 A3 C4 D4"), "G": ("G2", "G3 B3 D4 G4"),
}

SCALE = (0, 2, 3, 5, 7, 8, 10)


def above(pitch, steps):
    """The note that many steps of the G minor scale above a note of that scale, or below it."""
    octave, degree = divmod(pitch - 7, 12)
    octave, degree = divmod(octave * 7 + SCALE.index(degree) + steps, 7)
    return 7 + octave * 12 + SCALE[degree]


# (chord, slow beats)
FIRST_CHORDS = [("Gm", 4), ("Eb", 4), ("Bb", 4), ("F", 4)]
SECOND_CHORDS = [("Gm", 4), ("Eb", 4), ("Cm", 2), ("D", 2), ("Gm", 4)]
CLIMB_CHORDS = [("Eb", 4), ("F", 4), ("Gm", 4), ("Dsus", 2), ("D", 2)]


def chords(sequence, stretch=SLOW):
    """Turns (chord, slow beats) pairs into (beat, beats long, bass name, voice names)."""
    beat, result = 0.0, []
    for name, length in sequence:
        bass, voices = CHORDS[name]
        result.append((beat, length * stretch, bass, voices.split()))
        beat += length * stretch
    return result
