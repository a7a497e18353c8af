#!/usr/bin/python3
"""Lays all finished pictures side by side, each as large as the screen shows it, on the ground's green.

contact.py [file]: by default to the temporary directory. Sheets are shown whole; the digits appear
twice, for the counter and for the number of the wave.
"""

import pathlib
import sys
import tempfile

from PIL import Image

import palette

IMAGES = pathlib.Path(__file__).resolve().parents[2] / "Assets" / "img"
WIDTH, GAP = 2100, 12
SHOWN = {  # pixels of the window
    "TitleScreen.jpg": [(1024, 768)],
    "EndRoundPanel_1024.png": [(1024, 1024)],
    "BottleGauge_128x1024.png": [(64, 512)],
    "BottleContent_128x1024.png": [(64, 512)],
    "PressRToRestart_1024x256.png": [(1024, 256)],
    "WavePanel_512x256.png": [(512, 256)],
    "WeaponPanel_128x256.png": [(128, 256)],
    "VorelDefense_explosions_64.png": [(768, 192)],
    "tileSet_v2_32x32.png": [(96, 192)],
    "Numbers_320x64.png": [(640, 128), (133, 27)],
    "VorelDefense_grunts.PNG": [(128, 128)],
    "VorelTower_back_128.PNG": [(128, 128)],
    "VorelTower_water_128.PNG": [(128, 128)],
    "VorelTower_front_128.PNG": [(128, 128)],
    "BlueCircle_512.png": [(100, 100)],
    "RedCircle_512.png": [(100, 100)],
    "SkinCircle_512.png": [(100, 100)],
    "MoneyPanel_512x256.png": [(170, 85)],
    "WaterTurret_64x64.PNG": [(64, 64)],
    "TurretIcon_64.png": [(64, 64)],
    "PauseButton_64.png": [(64, 64)],
    "DollarSign_64.png": [(27, 27)],
    "VorelDefence_projectile.PNG": [(10, 10)],
}


def main(target):
    missing = {path.name for path in IMAGES.iterdir()} - set(SHOWN)
    if missing:
        sys.exit(f"No size is known for {', '.join(sorted(missing))}")
    sheet, x, y, row = Image.new("RGB", (WIDTH, 3000), palette.GRASS), GAP, GAP, 0
    for name, sizes in SHOWN.items():
        picture = Image.open(IMAGES / name).convert("RGBA")
        for size in sizes:
            if x + size[0] + GAP > WIDTH:
                x, y, row = GAP, y + row + GAP, 0
            shown = picture.resize(size, Image.BOX if size[0] < picture.width else Image.BILINEAR)
            sheet.paste(shown, (x, y), shown)
            x, row = x + size[0] + GAP, max(row, size[1])
    sheet.crop((0, 0, WIDTH, y + row + GAP)).save(target)
    print(target)


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else f"{tempfile.gettempdir()}/contact.png")
