<CsoundSynthesizer>
; The pay-out: the key goes down, the bell strikes G and D, the drawer runs out and stops.
<CsInstruments>
#include "kit.inc"

; A wooden knock: p4 level, p5 pitch, p6 place
instr Knock
  aNoise rand 1, 0.41, 1
  aSnap  expseg 1, 0.012, 0.12, p3, 0.001
  aWood  reson aNoise, p5, p5 * 0.15, 1
  aSine  poscil 0.6, p5 * 0.5
  Send (aWood * 0.35 + aSine) * aSnap * p4, p6
endin

; The drawer on its rollers. p4 level, p5 seed, p6 place
instr Roll
  aNoise rand 1, p5, 1
  aWood  butterbp aNoise, 620, 500
  aBalls butterbp aNoise, 3400, 1500
  kTurn  randi 0.5, 95, p5
  aShape expseg 0.05, p3 * 0.75, 1, p3 * 0.25, 0.4
  Send (aWood + aBalls * 0.35) * aShape * (0.6 + kTurn) * p4, p6
endin
</CsInstruments>
<CsScore>
i "Out" 0 1.05 1.4
i "Knock" 0 0.06 0.7 760 0.45
; the bell, two domes struck at once
i "Mode" 0.054 0.98 0.30 1568.0 1.5 0.40
i "Mode" 0.054 0.98 0.22 1573.5 1.4 0.60
i "Mode" 0.054 0.98 0.24 2349.3 1.2 0.62
i "Mode" 0.054 0.90 0.12 2356.8 1.1 0.38
i "Mode" 0.054 0.60 0.14 4310.0 0.45 0.50
i "Mode" 0.054 0.45 0.09 6460.0 0.30 0.30
i "Mode" 0.054 0.35 0.06 8350.0 0.22 0.70
i "Mode" 0.054 0.70 0.10  784.0 0.60 0.50
; the drawer
i "Roll" 0.15 0.22 0.75 0.33 0.3
i "Roll" 0.15 0.22 0.75 0.77 0.7
i "Knock" 0.375 0.10 1.3 390 0.50
i "Bubble" 0.375 0.12 0.55 98 0.1 0.03 0.5
; small change jumps in it
i "Mode" 0.402 0.22 0.07 4698.6 0.16 0.35
i "Mode" 0.429 0.22 0.06 5274.0 0.16 0.65
i "Mode" 0.455 0.22 0.05 6271.9 0.14 0.45
e 1.05
</CsScore>
</CsoundSynthesizer>
