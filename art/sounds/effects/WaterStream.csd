<CsoundSynthesizer>
; A turret fires. Ten of these start in one step and again twice a second, so: no hard start,
; body around 400 to 1000 Hz, and nothing to speak of where the ear is sorest, near 3 kHz.
<CsInstruments>
#include "kit.inc"

; p4 level, p5 seed, p6 place
instr Jet
  aNoise rand 1, p5, 1
  kSweep expseg 1250, 0.05, 900, p3 - 0.05, 420
  aBody  butterbp aNoise, kSweep, kSweep * 0.8
  aLow   reson aNoise, 392, 60, 1
  aHigh  reson aNoise, 587.3, 90, 1
  aMix = aBody * 1.6 + aLow * 0.10 + aHigh * 0.08
  aMix   butterlp aMix, 2000
  aMix   butterlp aMix, 2600
  aRise  linseg 0, 0.022, 1, p3 - 0.022, 1
  aFall  expseg 1, 0.06, 0.75, p3 - 0.06, 0.012
  Send aMix * aRise * aRise * aFall * p4, p6
endin
</CsInstruments>
<CsScore>
i "Out" 0 0.24 1.2
i "Jet" 0 0.22 0.8 0.31 0.15
i "Jet" 0 0.22 0.8 0.57 0.85
i "Jet" 0 0.22 0.7 0.83 0.5
i "Bubbles" 0.04 0.09 5 0.14 420 900 1.0
e 0.24
</CsScore>
</CsoundSynthesizer>
