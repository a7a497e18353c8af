<CsoundSynthesizer>
; The tower is poured out: four glugs in triplets of the music's beat, each a little higher as the
; vessel empties, over a trickle.
<CsInstruments>
#include "kit.inc"

; One glug: air forces its way in and the neck rings. p4 level, p5 pitch, p6 place
instr Glug
  aPitch expseg p5 * 0.72, 0.035, p5, p3 - 0.035, p5 * 1.45
  aSine  poscil 1, aPitch
  aOver  poscil 0.28, aPitch * 2.02
  aShape expseg 0.02, 0.014, 1, 0.05, 0.55, p3 - 0.064, 0.004
  Send (aSine + aOver) * aShape * p4, p6
endin

; p4 level, p5 seed, p6 place
instr Trickle
  aNoise rand 1, p5, 1
  kWander randi 350, 24, p5
  aThin  butterbp aNoise, 1500 + kWander, 900
  kFlow  lfo 0.4, 7, 0
  aShape linseg 0, 0.03, 1, p3 - 0.16, 0.7, 0.13, 0
  Send aThin * aShape * (0.6 + kFlow) * p4, p6
endin
</CsInstruments>
<CsScore>
i "Out" 0 0.60 1.4
i "Glug" 0.00 0.19 0.75 247 0.42
i "Glug" 0.143 0.18 0.70 294 0.58
i "Glug" 0.286 0.17 0.60 349 0.46
i "Glug" 0.429 0.15 0.45 392 0.54
i "Trickle" 0 0.58 0.5 0.27 0.2
i "Trickle" 0 0.58 0.5 0.59 0.8
i "Bubbles" 0.03 0.42 14 0.20 600 1700 1.0
e 0.60
</CsScore>
</CsoundSynthesizer>
