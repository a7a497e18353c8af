<CsoundSynthesizer>
; A grunt bursts: a wet pop, a smack of sludge, then its last air comes up. The voice sounds over
; it, so the middle between 500 and 1500 Hz is left thin after the first tenth of a second.
<CsInstruments>
#include "kit.inc"

; The pop of the skin: a sine that falls from G4 to G1. p4 level
instr Pop
  aPitch expseg 520, 0.03, 150, 0.06, 62, p3, 49
  aSine  poscil p4, aPitch
  aShape transeg 0, 0.002, 0, 1, p3 - 0.022, -5, 0.002, 0.02, 0, 0
  Send tanh(aSine * 1.6) * aShape, 0.5
endin

; Sludge hitting the ground: noise through a mouth that closes. p4 level, p5 seed, p6 place
instr Smack
  aNoise rand 1, p5, 1
  kSweep expseg 2600, 0.04, 700, p3 - 0.04, 180
  aWet   moogladder aNoise, kSweep, 0.55
  kFlap  randh 0.45, 46, p5
  kFlap  port 0.55 + kFlap, 0.004
  aShape expseg 0.05, 0.003, 1, 0.05, 0.5, p3 - 0.053, 0.003
  Send aWet * aShape * kFlap * p4, p6
endin
</CsInstruments>
<CsScore>
i "Out" 0 0.85 2.0
i "Pop"   0 0.32 0.75
i "Smack" 0 0.36 2.6 0.37 0.2
i "Smack" 0 0.36 2.6 0.71 0.8
i "Smack" 0.11 0.3 1.2 0.53 0.5
i "Bubbles" 0.07 0.42 13 0.40 210 520 0.9
i "Bubbles" 0.12 0.42 12 0.26 600 1400 0.9
e 0.85
</CsScore>
</CsoundSynthesizer>
