<CsoundSynthesizer>
; A turret is placed: a ratchet winds it up, its iron foot clanks home, a valve lets off steam.
; The clank's lowest modes are G and D, so that it agrees with whatever the music plays.
<CsInstruments>
#include "kit.inc"

; One tooth of the ratchet: p4 level, p5 pitch, p6 place
instr Tooth
  aNoise rand 1, 0.29, 1
  aSnap  expseg 1, 0.006, 0.1, p3, 0.001
  aClick butterbp aNoise, p5 * 2.1, p5
  aRing  poscil 0.5, p5
  Send (aClick * 2 + aRing) * aSnap * p4, p6
endin

; The foot's thud under the clank. p4 level
instr Thud
  aPitch expseg 180, 0.04, 98, p3, 73
  aSine  poscil p4, aPitch
  aShape expseg 0.05, 0.002, 1, p3 - 0.002, 0.003
  Send aSine * aShape, 0.5
endin

; Steam from the valve. p4 level, p5 seed, p6 place
instr Steam
  aNoise rand 1, p5, 1
  kSweep expseg 2200, 0.06, 4600, p3 - 0.06, 5600
  aHiss  butterbp aNoise, kSweep, 3000
  aShape expseg 0.02, 0.035, 1, p3 - 0.035, 0.006
  Send aHiss * aShape * p4, p6
endin

; The valve's wheel squeaks as it is closed. p4 level
instr Squeak
  aPitch linseg 784, p3 * 0.6, 1174.7, p3 * 0.4, 1046
  kGrain lfo 0.4, 55, 1
  aTone  vco2 p4, k(aPitch), 12
  aShape linseg 0, 0.03, 1, p3 - 0.08, 0.8, 0.05, 0
  Send aTone * aShape * (0.6 + kGrain), 0.55
endin
</CsInstruments>
<CsScore>
i "Out" 0 0.95 2.2
i "Tooth" 0.000 0.05 0.50 880 0.40
i "Tooth" 0.078 0.05 0.45 932 0.42
i "Tooth" 0.149 0.05 0.50 988 0.44
i "Tooth" 0.213 0.05 0.55 1047 0.46
i "Tooth" 0.268 0.05 0.60 1109 0.48
i "Tooth" 0.321 0.05 0.65 1175 0.50
i "Thud" 0.375 0.22 0.6
i "Mode" 0.375 0.50 0.26  392.0 0.50 0.45
i "Mode" 0.375 0.45 0.22  587.3 0.40 0.55
i "Mode" 0.375 0.40 0.20 1046.0 0.34 0.35
i "Mode" 0.375 0.34 0.17 1612.0 0.28 0.65
i "Mode" 0.375 0.28 0.14 2391.0 0.22 0.40
i "Mode" 0.375 0.20 0.10 3650.0 0.16 0.60
i "Tooth" 0.375 0.05 0.8 1568 0.5
i "Squeak" 0.482 0.16 0.13
i "Steam" 0.589 0.36 0.62 0.23 0.25
i "Steam" 0.589 0.36 0.62 0.67 0.75
e 0.95
</CsScore>
</CsoundSynthesizer>
