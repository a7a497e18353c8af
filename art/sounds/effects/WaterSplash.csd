<CsoundSynthesizer>
; A jet bursts on a grunt: a slap, a bright crown of spray, and drops falling back.
<CsInstruments>
#include "kit.inc"

; p4 level, p5 seed, p6 place
instr Spray
  aNoise rand 1, p5, 1
  aSlap  expseg 1, 0.03, 0.12, p3 - 0.03, 0.001
  aRise  linseg 0, 0.003, 1, p3 - 0.003, 1
  kSweep expseg 5200, 0.05, 3600, p3 - 0.05, 6800
  aCrown butterbp aNoise, kSweep, 3800
  aBody  butterbp aNoise, 950, 700
  aThin  expseg 1, 0.09, 0.3, p3 - 0.09, 0.004
  Send (aCrown * aThin * 0.8 + aBody * aSlap * 1.3) * aRise * p4, p6
endin
</CsInstruments>
<CsScore>
i "Out" 0 0.34 1.9
i "Spray" 0 0.28 0.8 0.21 0.1
i "Spray" 0 0.28 0.8 0.43 0.9
i "Bubble" 0.002 0.07 0.5 330 0.8 0.018 0.5
i "Bubbles" 0.03 0.19 16 0.26 1600 5200 1.3
i "Bubbles" 0.02 0.14 5 0.28 600 1300 1.0
e 0.34
</CsScore>
</CsoundSynthesizer>
