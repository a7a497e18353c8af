<CsoundSynthesizer>
; A grunt's last word, something like "bloourgh": a voice through three moving formants, with
; water in its throat.
<CsInstruments>
#include "kit.inc"

; p4 level
instr Voice
  kFall  expseg 98, 0.06, 210, 0.11, 158, p3 - 0.17, 58
  kPace  expseg 34, p3 * 0.4, 26, p3 * 0.6, 13 ; the water wins: the gurgle slows down
  kGurgle lfo 1, kPace
  kShake randi 0.04, 38, 0.3
  kPitch = kFall * (1 + 0.06 * kGurgle + kShake)
  aCord  vco2 0.5, kPitch
  aCord2 vco2 0.3, kPitch * 0.5, 2, 0.3
  aBreath rand 0.05, 0.61, 1
  aSource = aCord + aCord2 + aBreath

  kFirst  expseg 260, 0.05, 330, 0.09, 640, p3 - 0.14, 300
  kSecond expseg 620, 0.05, 760, 0.10, 1280, p3 - 0.15, 560
  kThird  expseg 2100, 0.12, 2450, p3 - 0.12, 1900
  aOne   butterbp aSource, kFirst, kFirst * 0.28
  aTwo   butterbp aSource, kSecond, kSecond * 0.16
  aThree butterbp aSource, kThird, kThird * 0.10
  aVoice = aOne * 1.7 + aTwo * 1.9 + aThree * 1.1

  kThroat = 0.62 + 0.38 * kGurgle
  aShape linseg 0, 0.012, 1, p3 * 0.45, 0.9, p3 * 0.4, 0.35, p3 * 0.15 - 0.012, 0
  Send aVoice * aShape * a(port(kThroat, 0.003)) * p4, 0.5
endin
</CsInstruments>
<CsScore>
i "Out" 0 0.47 1.4
i "Voice" 0 0.41 2.6
i "Bubbles" 0.06 0.29 9 0.22 300 760 1.0
e 0.47
</CsScore>
</CsoundSynthesizer>
