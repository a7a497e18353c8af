#!/usr/bin/python3 -B
"""Prints a Markdown table of measurements of every sound: measure.py [file...]"""

import pathlib
import re
import subprocess
import sys

import numpy

RATE = 44100
ASSETS = pathlib.Path(__file__).resolve().parents[2] / "Assets"


def decode(path):
    """The file's samples as floats, one row a sample, two columns."""
    raw = subprocess.run(["ffmpeg", "-v", "error", "-i", path, "-f", "f32le", "-ac", "2", "-ar", str(RATE), "-"],
                         stdout=subprocess.PIPE, check=True).stdout
    return numpy.frombuffer(raw, numpy.float32).reshape(-1, 2).astype(float)


def decibels(value):
    return 20 * numpy.log10(max(value, 1e-9))


def k_weighted(samples):
    """The samples as the ear weighs them (ITU-R BS.1770), filtered in the frequency domain."""
    length = len(samples) + RATE
    z = numpy.exp(-2j * numpy.pi * numpy.fft.rfftfreq(length, 1))

    def biquad(b0, b1, b2, a1, a2):
        return (b0 + b1 * z + b2 * z * z) / (1 + a1 * z + a2 * z * z)

    # the standard's coefficients, for 48 kHz; close enough at 44.1 to compare sounds with
    shelf = biquad(1.53512485958697, -2.69169618940638, 1.19839281085285, -1.69065929318241, 0.73248077421585)
    high = biquad(1.0, -2.0, 1.0, -1.99004745483398, 0.99007225036621)
    spectrum = numpy.fft.rfft(samples, length, axis=0) * (shelf * high)[:, None]
    return numpy.fft.irfft(spectrum, length, axis=0)


def loudest(samples, seconds):
    """The loudest stretch of the given length, in LUFS."""
    power = (k_weighted(samples) ** 2).sum(axis=1)
    window = int(seconds * RATE)
    total = numpy.cumsum(numpy.concatenate([numpy.zeros(window), power]))
    return -0.691 + 10 * numpy.log10(max((total[window:] - total[:-window]).max() / window, 1e-12))


def standard(path):
    """Integrated loudness and true peak by FFmpeg's meter."""
    text = subprocess.run(["ffmpeg", "-hide_banner", "-nostats", "-i", path,
                           "-af", "apad=pad_dur=0.5,ebur128=peak=true", "-f", "null", "-"],
                          stderr=subprocess.PIPE, text=True, check=True).stderr
    summary = text[text.rindex("Summary"):]
    return (float(re.search(r"I:\s+(\S+)", summary)[1]), float(re.search(r"Peak:\s+(\S+)", summary)[1]))


def envelope(samples):
    """The sound's power over 3 ms."""
    power = (samples ** 2).sum(axis=1)
    return numpy.sqrt(numpy.convolve(power, numpy.ones(132) / 132, "same"))


def edges(samples, threshold):
    """Seconds under the threshold at the start and at the end."""
    loud = numpy.flatnonzero(numpy.abs(samples).max(axis=1) > 10 ** (threshold / 20))
    return loud[0] / RATE, (len(samples) - 1 - loud[-1]) / RATE


def spectrum(samples):
    """The centre of the spectrum in hertz, and the share of power in 2.5 to 4 kHz in per cent."""
    power = (numpy.abs(numpy.fft.rfft(samples, axis=0)) ** 2).sum(axis=1)
    pitch = numpy.fft.rfftfreq(len(samples), 1 / RATE)
    harsh = power[(pitch > 2500) & (pitch < 4000)].sum() / power.sum()
    return (power * pitch).sum() / power.sum(), 100 * harsh


def row(path):
    samples = decode(path)
    integrated, true_peak = standard(path)
    shape = envelope(samples)
    top = shape.argmax()
    early = numpy.flatnonzero(shape[:top + 1] > 0.1 * shape[top])[0]
    late = numpy.flatnonzero(shape > 0.1 * shape[top])[-1]
    before, after = edges(samples, -60)
    centre, harsh = spectrum(samples)
    cells = [path.name, f"{len(samples) / RATE:.3f}", f"{decibels(numpy.abs(samples).max()):.1f}", f"{true_peak:.1f}",
             f"{integrated:.1f}", f"{loudest(samples, 0.4):.1f}", f"{loudest(samples, 0.1):.1f}"]
    if len(samples) < 10 * RATE:
        cells += [f"{(top - early) / RATE * 1000:.0f}", f"{(late - top) / RATE * 1000:.0f}"]
    else:
        cells += ["", ""]
    cells += [f"{centre:.0f}", f"{harsh:.1f}", f"{before * 1000:.0f}", f"{after * 1000:.0f}",
              f"{decibels(numpy.abs(samples.mean(axis=0)).max()):.0f}"]
    if path.suffix == ".mp3":
        jump = numpy.abs(samples[0] - samples[-1]).max()
        tail, head = (decibels(numpy.sqrt((part ** 2).mean())) for part in (samples[-RATE // 2:], samples[:RATE // 2]))
        cells += [f"{decibels(jump):.0f} ({tail:.0f} / {head:.0f})"]
    else:
        cells += [""]
    return "| " + " | ".join(cells) + " |"


HEADS = ["file", "seconds", "peak dBFS", "true peak dBTP", "LUFS", "loudest 0.4 s", "loudest 0.1 s", "attack ms",
         "to -20 dB ms", "centre Hz", "2.5-4 kHz %", "silent before ms", "silent after ms", "DC dBFS",
         "seam jump dB (before / after)"]
print("| " + " | ".join(HEADS) + " |")
print("|" + "---|" * len(HEADS))
files = [pathlib.Path(name) for name in sys.argv[1:]]
for path in files or sorted((ASSETS / "sfx").glob("*.wav")) + sorted((ASSETS / "music").glob("*")):
    print(row(path))
