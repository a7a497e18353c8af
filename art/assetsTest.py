#!/usr/bin/env -S SDL_AUDIODRIVER=dummy /usr/bin/python3
# Examines the pictures and sounds that the game loads, without starting it. Run in the folder that holds Assets/.
import ctypes
import pathlib
import re
import subprocess
import unittest
import wave

SOURCES = "".join(file.read_text() for file in pathlib.Path("src").rglob("*.[ch]*"))
PICTURES, SOUNDS = (sorted({pathlib.Path(name) for name in re.findall(f'"(Assets/(?:{folder})/[^"]+)"', SOURCES)})
                    for folder in ("img", "sfx|music"))
# What the names of pictures don't say: the title fills the window, and sheets have this many columns and rows of cells.
PROPORTIONS = {"TitleScreen": 4 / 3, "VorelDefense_explosions_64": 8 / 2, "tileSet_v2_32x32": 3 / 6}
MARGINS = {"VorelDefense_grunts": (4, 4, 4), "VorelDefense_explosions_64": (8, 2, 4), "Numbers_320x64": (10, 1, 2)}  # pixels
SECONDS = {"WaterStream": (0.2, 0.3), "WaterSplash": (0.25, 0.4), "EnnemyExplosion": (0.6, 1), "EnnemyGrunt": (0.3, 0.6),
           "TurretConstruction": (0.6, 1), "CashRegister": (0.8, 1.2), "CoinSound": (0.2, 0.4), "PourWater": (0.4, 0.8),
           "VorelDefense_TitleScreen": (45, 90), "Tundrix_Dubstep_RMX_v1": (90, 180), "VorelDefense_WellDone": (2, 4),
           "VorelDefense_GameOver": (3, 5)}


class Assets(unittest.TestCase):
    def testPicturesHaveTheirProportionsAndSheetsKeepMargins(self):
        for file in PICTURES or self.fail("The sources name no pictures."):
            # The size comes first, then the alpha of every pixel. A warning from the decoder is an error.
            picture = subprocess.check_output(["convert", "-regard-warnings", file, "-alpha", "extract", "-depth", "8", "pgm:-"])
            width, height = map(int, picture.split(maxsplit=3)[1:3])
            size = re.search(r"_(\d+)x(\d+)$", file.stem)
            self.assertEqual(width / height, PROPORTIONS.get(file.stem, int(size[1]) / int(size[2]) if size else 1), file)
            columns, rows, margin = MARGINS.get(file.stem, (1, 1, 0))
            w, h = width // columns, height // rows
            opaque = {(place % width // w, place // width // h) for place, alpha in enumerate(picture[-width * height:]) if alpha > 7
                      and not (margin <= place % w < w - margin and margin <= place // width % h < h - margin)}
            self.assertEqual(opaque, set(), f"{file}: cells that reach into their neighbours")

    def testSoundsAreWhatTheMixerPlaysUnchanged(self):
        sdl, mixer = ctypes.CDLL("libSDL-1.2.so.0"), ctypes.CDLL("libSDL_mixer-1.2.so.0")
        sdl.SDL_RWFromFile.restype = ctypes.c_void_p
        self.assertEqual(mixer.Mix_OpenAudio(44100, 0x8010, 2, 1024), 0)  # as the game opens it: 16 bits, stereo
        for file in SOUNDS or self.fail("The sources name no sounds."):
            if file.suffix == ".mp3":
                seconds = file.stat().st_size * 8 / {10: 160e3, 11: 192e3}[file.read_bytes()[2] >> 4]  # of a constant bit rate
                self.assertTrue(mixer.Mix_LoadMUS(bytes(file)), file)
            else:
                with wave.open(str(file)) as sound:
                    self.assertEqual(sound.getparams()[:3], (2, 2, 44100), file)
                    seconds = sound.getnframes() / 44100
                    self.assertLess(max(map(abs, memoryview(sound.readframes(-1)).cast("h"))), 32767, file)
                self.assertTrue(mixer.Mix_LoadWAV_RW(ctypes.c_void_p(sdl.SDL_RWFromFile(bytes(file), b"rb")), 1), file)
            if file.stem not in SECONDS:
                self.fail(f"{file} is new: say in SECONDS of art/assetsTest.py how long it may last; now it is {seconds} seconds.")
            self.assertTrue(SECONDS[file.stem][0] <= seconds <= SECONDS[file.stem][1], f"{file} lasts {seconds} seconds")


if __name__ == "__main__":
    unittest.main()
