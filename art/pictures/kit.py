"""What every picture is made with: SVG text, rendering, and the edge bleed that keeps halos away."""

import io
import pathlib
import subprocess

import numpy
from PIL import Image

FAINT = 7  # the largest alpha that counts as transparent
OUTPUT = pathlib.Path(__file__).resolve().parents[2] / "Assets" / "img"


def svg(width, height, body, defs=""):
    """A whole SVG document whose user unit is one pixel of the picture's named size."""
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
        f'width="{width}" height="{height}" viewBox="0 0 {width} {height}">'
        f"<defs>{defs}</defs>{body}</svg>"
    )


def render(document, width, height):
    """Renders an SVG document to an RGBA picture of width x height pixels."""
    png = subprocess.run(
        ["rsvg-convert", "-w", str(width), "-h", str(height)],
        input=document.encode(), stdout=subprocess.PIPE, check=True,
    ).stdout
    return Image.open(io.BytesIO(png)).convert("RGBA")


def bleed(picture, rounds=24):
    """Spreads the colours of a shape into its transparent surroundings.

    The game filters straight alpha, so a transparent pixel beside a shape must carry the shape's
    colour: black there would show as a dark halo. Nearly transparent pixels are overwritten too, for
    eight bits leave too little of the colour that they were rendered with.
    """
    pixels = numpy.asarray(picture).astype(numpy.float64)
    colour, known = pixels[..., :3] * 1.0, pixels[..., 3] > FAINT
    for _ in range(rounds):
        if known.all():
            break
        total = numpy.zeros_like(colour)
        count = numpy.zeros(known.shape)
        for dy, dx in ((0, 1), (1, 0), (0, -1), (-1, 0), (1, 1), (1, -1), (-1, 1), (-1, -1)):
            neighbour = numpy.roll(known, (dy, dx), (0, 1))
            total += numpy.roll(colour, (dy, dx), (0, 1)) * neighbour[..., None]
            count += neighbour
        fresh = ~known & (count > 0)
        colour[fresh] = total[fresh] / count[fresh][:, None]
        known |= fresh
    if not known.all() and known.any():
        colour[~known] = colour[known].mean(axis=0)
    pixels[..., :3] = colour
    return Image.fromarray(pixels.round().astype(numpy.uint8), "RGBA")


def save(name, picture):
    """Writes a picture to Assets/img: PNG with bled edges, or JPEG without visible blocks."""
    OUTPUT.mkdir(parents=True, exist_ok=True)
    path = OUTPUT / name
    if path.suffix.lower() == ".jpg":
        picture.convert("RGB").save(path, "JPEG", quality=93, subsampling=0, optimize=True)
    else:
        bleed(picture).save(path, "PNG", optimize=True)
