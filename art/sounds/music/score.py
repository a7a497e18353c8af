"""Scores for the band of instruments.orc, counted in beats at 140 a minute."""

import re

NAMES = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}


def note(name):
    """The MIDI number of a note such as Bb4 or F#5; C4 is 60."""
    letter, sign, octave = re.fullmatch(r"([A-G])([b#]?)(-?\d)", name).groups()
    return NAMES[letter] + {"": 0, "b": -1, "#": 1}[sign] + 12 * (int(octave) + 1)


def melody(text, stretch=1.0):
    """Reads "D5:1 r:.5 G5:1.5" into (beat, beats long, note) triples and the whole length."""
    beat, notes = 0.0, []
    for word in text.replace("|", " ").split():
        name, length = word.split(":")
        length = float(length) * stretch
        if name != "r":
            notes.append((beat, length, note(name)))
        beat += length
    return notes, beat


class Score:
    """Collects the events of one piece and writes them out as a Csound document."""

    def __init__(self, length):
        self.length = length
        self.events = []

    def play(self, instrument, beat, length, *values):
        """Adds one event. The values are the instrument's own, from p4 on."""
        numbers = " ".join(f"{value:.5g}" for value in values)
        self.events.append((beat, f'i "{instrument}" {beat:.5f} {length:.5f} {numbers}'))

    def document(self, room):
        """The whole piece as a Csound document; room holds the Room instrument's values."""
        self.play("Room", 0, self.length, *room)
        lines = [line for _, line in sorted(self.events, key=lambda event: event[0])]
        return "\n".join([
            "<CsoundSynthesizer>", "<CsInstruments>", '#include "instruments.orc"',
            "</CsInstruments>", "<CsScore>", "t 0 140", *lines, f"e {self.length:.5f}",
            "</CsScore>", "</CsoundSynthesizer>", "",
        ])
