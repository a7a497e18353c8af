; The band of Vorel Defense: glass, horns and strings for the tune, water and iron for the beat,
; and the sludge that wobbles under it. Every player takes level and place (0 left, 1 right) where
; it has one; pitches are MIDI note numbers. The score counts beats at 140 a minute.

sr     = 44100
ksmps  = 16
nchnls = 2
0dbfs  = 1
seed 140

giBeat = 60 / 140

gaLeft     init 0
gaRight    init 0
gaPumpL    init 0
gaPumpR    init 0
gaHallL    init 0
gaHallR    init 0
gaEchoL    init 0
gaEchoR    init 0
gkPump     init 1
gkSink     init 20000
gkBend     init 1
gaBubbles  init 0

; A mono sound into the mix, the hall and the echo. iPump 1: ducks under the kick.
opcode Place, 0, aiiii
  aSound, iPan, iHall, iEcho, iPump xin
  aL = aSound * cos(iPan * $M_PI_2)
  aR = aSound * sin(iPan * $M_PI_2)
  if iPump == 1 then
    gaPumpL += aL
    gaPumpR += aR
  else
    gaLeft  += aL
    gaRight += aR
  endif
  gaHallL += aL * iHall
  gaHallR += aR * iHall
  gaEchoL += aL * iEcho
  gaEchoR += aR * iEcho
endop

; The same for a sound that is wide already.
opcode PlaceWide, 0, aaiii
  aL, aR, iHall, iEcho, iPump xin
  if iPump == 1 then
    gaPumpL += aL
    gaPumpR += aR
  else
    gaLeft  += aL
    gaRight += aR
  endif
  gaHallL += aL * iHall
  gaHallR += aR * iHall
  gaEchoL += aL * iEcho
  gaEchoR += aR * iEcho
endop

; Lifts everything above a pitch: 1 adds 6 dB.
opcode Lift, a, aii
  aSound, iPitch, iMore xin
  aHigh butterhp aSound, iPitch
  xout aSound + aHigh * iMore
endop


; ---- the beat -----------------------------------------------------------------------------

; p4 level
instr Kick
  aPitch expseg 210, 0.025, 96, 0.07, 52, p3, 46
  aSine  poscil 1, aPitch
  aShape expseg 0.1, 0.001, 1, 0.11, 0.7, 0.2, 0.002, 1, 0.001
  aNoise rand 1, 0.17, 1
  aClick butterbp aNoise, 2300, 1800
  aTick  expseg 1, 0.012, 0.01, p3, 0.001
  aOut = tanh(aSine * 1.7) * aShape + aClick * aTick * 0.35
  Place aOut * p4, 0.5, 0, 0, 0
  gkPump expseg 0.22, 0.05, 0.35, 0.19, 1, 1, 1
endin

; The backbeat: skin, spray, and a sheet of iron. p4 level
instr Snare
  aPitch expseg 330, 0.02, 205, p3, 190
  aSkin  poscil 1, aPitch
  aSkinE expseg 1, 0.10, 0.05, p3, 0.001
  aNoise rand 1, 0.39, 1
  aBody  butterbp aNoise, 1700, 1700
  aAir   butterhp aNoise, 3600
  aAir   butterlp aAir, 10500
  aNoiseE expseg 0.2, 0.001, 1, 0.045, 0.5, 0.20, 0.02, p3, 0.001
  aIron  poscil 0.2, 784
  aIronE expseg 1, 0.06, 0.02, p3, 0.001
  aOut = tanh(aSkin * aSkinE * 1.5) * 0.55 + tanh(aBody * 2.6 * aNoiseE) * 0.62 + aAir * aNoiseE * 0.55 + aIron * aIronE
  Place aOut * p4, 0.5, 0.2, 0, 0
  gkPump expseg 0.5, 0.06, 0.6, 0.12, 1, 1, 1
endin

; Steam in place of a cymbal. p4 level, p5 place, p6 seconds it rings
instr Hat
  aNoise rand 1, 0.1 + 0.8 * frac(p2 * 7.31), 1
  aHigh  butterhp aNoise, 6500
  aHigh  butterlp aHigh, 13000
  aShape expseg 0.2, 0.001, 1, p6, 0.02, 1, 0.001
  Place aHigh * aShape * p4, p5, 0.05, 0, 0
endin

; A drop that falls into a tuned pot. p4 level, p5 note, p6 place
instr Drop
  iPitch = cpsmidinn(p5)
  aPitch expseg iPitch * 0.8, 0.05, iPitch * 1.12, p3, iPitch * 1.3
  aSine  poscil 1, aPitch
  aShape expseg 0.05, 0.003, 1, 0.06, 0.2, 0.2, 0.001, 1, 0.0005
  Place aSine * aShape * p4, p6, 0.3, 0.35, 0
endin

; A pipe struck with a spanner. p4 level, p5 note, p6 place
instr Clank
  iPitch = cpsmidinn(p5)
  aE1 expseg 1, 0.16, 0.02, 1, 0.001
  aE2 expseg 1, 0.07, 0.02, 1, 0.001
  a1  poscil 0.5, iPitch
  a2  poscil 0.4, iPitch * 2.71
  a3  poscil 0.3, iPitch * 5.13
  aOn linseg 0, 0.001, 1, p3, 1
  Place (a1 * aE1 + (a2 + a3) * aE2) * aOn * p4, p6, 0.25, 0.15, 0
endin

; p4 level
instr Crash
  aN1 rand 1, 0.21, 1
  aN2 rand 1, 0.63, 1
  aL  butterhp aN1, 2800
  aR  butterhp aN2, 2800
  aL  butterlp aL, 10500
  aR  butterlp aR, 10500
  aShape expseg 0.2, 0.003, 1, 0.25, 0.4, p3 - 0.253, 0.003
  PlaceWide aL * aShape * p4, aR * aShape * p4, 0.2, 0, 0
endin

; The floor gives way: a sine that sinks. p4 level
instr Plunge
  aPitch expseg 190, p3 * 0.25, 80, p3 * 0.75, 30
  aSine  poscil 1, aPitch
  aShape expseg 0.1, 0.01, 1, p3 - 0.01, 0.01
  Place tanh(aSine * 1.5) * aShape * p4, 0.5, 0.1, 0, 0
endin

; Pressure builds up in the pipe. p4 level, p5 and p6 where the noise starts and ends in hertz
instr Riser
  aN1 rand 1, 0.27, 1
  aN2 rand 1, 0.81, 1
  kPitch expon p5, p3, p6
  aL  butterbp aN1, kPitch, kPitch * 0.35
  aR  butterbp aN2, kPitch, kPitch * 0.35
  aShape transeg 0.0, p3 * 0.97, 2.2, 1, p3 * 0.03, 0, 0
  PlaceWide aL * aShape * p4, aR * aShape * p4, 0.25, 0, 0
endin

; Waves on a far shore. p4 level, p5 middle in hertz
instr Surf
  aN1 rand 1, 0.33, 1
  aN2 rand 1, 0.77, 1
  kSweep linseg p5 * 0.6, p3 * 0.45, p5 * 1.5, p3 * 0.55, p5 * 0.5
  aL  butterbp aN1, kSweep, kSweep * 0.9
  aR  butterbp aN2, kSweep * 1.1, kSweep * 0.9
  aShape transeg 0, p3 * 0.45, 1.5, 1, p3 * 0.55, -1.5, 0
  PlaceWide aL * aShape * p4, aR * aShape * p4, 0.1, 0, 0
endin


; ---- the tune's players ---------------------------------------------------------------------

; A glass struck under water: its pitch settles from a little below. p4 level, p5 note, p6 place
instr Glass
  iPitch = cpsmidinn(p5)
  iRing  = 1.1 + 60 / p5
  xtratim 0.6
  aSettle expseg 0.955, 0.035, 1, p3, 1
  kWave  lfo 0.0022, 4.6
  aPitch = iPitch * aSettle * (1 + kWave) * gkBend
  aIndex expseg 1.9, 0.22, 0.4, iRing, 0.05
  aMod   poscil aIndex * iPitch * 3.0, aPitch * 3.0
  aTone  poscil 1, aPitch + aMod
  aLow   poscil 0.5, aPitch
  aTop   poscil 0.26, aPitch * 4.02
  aTopE  expseg 1, 0.15, 0.02, 9, 0.001
  aRing  expseg 1, iRing, 0.06, iRing, 0.01
  aOn    linsegr 0, 0.006, 1, p3, 1, 0.5, 0
  Place (aTone * 0.62 + aLow + aTop * aTopE) * aRing * aOn * p4, p6, 0.34, 0.22, 0
endin

; Brass, and the more of it the harder it is blown. p4 level, p5 note, p6 place, p7 brightness
instr Horn
  iPitch = cpsmidinn(p5)
  xtratim 0.22
  kBend  expseg 0.985, 0.07, 1, p3, 1
  kVib   linseg 0, 0.35, 0, 0.5, 0.006, p3, 0.006
  kWave  lfo kVib, 5.1
  kPitch = iPitch * kBend * gkBend * (1 + kWave)
  a1     vco2 0.5, kPitch, 0, 0.5, 0
  a2     vco2 0.42, kPitch * 1.0035, 0, 0.5, 0.41
  a3     vco2 0.42, kPitch * 0.9965, 0, 0.5, 0.73
  kOpen  linsegr 0.15, 0.09, 1, 0.25, 0.72, p3, 0.6, 0.2, 0.1
  kLip   = iPitch * (1 + p7 * 8.5 * kOpen)
  aL     butterlp a1 + a2, kLip
  aR     butterlp a1 + a3, kLip
  aL     butterlp aL, 6500
  aR     butterlp aR, 6500
  aL     Lift aL, 1100, 0.7 * p7
  aR     Lift aR, 1100, 0.7 * p7
  aShape linsegr 0, 0.05, 1, 0.15, 0.82, p3, 0.75, 0.2, 0
  PlaceWide aL * aShape * p4 * cos(p6 * $M_PI_2), aR * aShape * p4 * sin(p6 * $M_PI_2), 0.3, 0.08, 0
endin

; Strings of light behind everything. p4 level, p5 note, p6 brightness in hertz, p7 rise in seconds
instr Pad
  iPitch = cpsmidinn(p5)
  xtratim 1.4
  kDrift1 rspline -0.0025, 0.0025, 0.2, 0.7
  kDrift2 rspline -0.0025, 0.0025, 0.2, 0.7
  a1 vco2 0.3, iPitch * (1.003 + kDrift1)
  a2 vco2 0.3, iPitch * (0.9965 + kDrift2)
  a3 vco2 0.3, iPitch * (0.9985 - kDrift1)
  a4 vco2 0.3, iPitch * (1.0045 - kDrift2)
  kOpen rspline p6 * 0.75, p6 * 1.3, 0.1, 0.4
  aL butterlp a1 + a2, kOpen
  aR butterlp a3 + a4, kOpen
  aL butterhp aL, 140
  aR butterhp aR, 140
  aShape linsegr 0, p7, 1, p3, 0.9, 1.3, 0
  PlaceWide aL * aShape * p4, aR * aShape * p4, 0.35, 0, 1
endin

; A string plucked, for runs and answers. p4 level, p5 note, p6 place, p7 brightness
instr Pluck
  iPitch = cpsmidinn(p5)
  xtratim 0.25
  a1 vco2 0.4, iPitch
  a2 vco2 0.4, iPitch * 1.004, 2, 0.35
  kOpen expseg 1, 0.11, 0.25, 0.3, 0.08, 5, 0.05
  aOut butterlp a1 + a2, iPitch * (0.8 + 7 * p7 * kOpen)
  aRing expsegr 1, 0.3, 0.25, 0.8, 0.01, 0.2, 0.001
  aOn   linseg 0, 0.003, 1, p3, 1
  Place aOut * aRing * aOn * p4, p6, 0.22, 0.38, 1
endin

; The tune sung by a saw with a wide mouth, for the drops. p4 level, p5 note, p6 brightness in hertz
instr Lead
  iPitch = cpsmidinn(p5)
  xtratim 0.2
  kSlide expseg 0.97, 0.03, 1, p3, 1
  kVib   linseg 0, 0.25, 0, 0.3, 0.005, p3, 0.005
  kWave  lfo kVib, 5.6
  kPitch = iPitch * kSlide * (1 + kWave)
  a1 vco2 0.3, kPitch, 0, 0.5, 0
  a2 vco2 0.3, kPitch * 1.007, 0, 0.5, 0.37
  a3 vco2 0.3, kPitch * 0.993, 0, 0.5, 0.71
  a4 vco2 0.22, kPitch * 0.5, 10
  kOpen expsegr p6, 0.3, p6 * 0.6, p3, p6 * 0.45, 0.2, 300
  aL butterlp a1 + a2 + a4, kOpen
  aR butterlp a1 + a3 + a4, kOpen
  aShape linsegr 0, 0.012, 1, p3, 0.85, 0.18, 0
  PlaceWide aL * aShape * p4, aR * aShape * p4, 0.22, 0.25, 1
endin


; ---- the deep -------------------------------------------------------------------------------

; p4 level, p5 note
instr Sub
  iPitch = cpsmidinn(p5)
  xtratim 0.06
  aSine  poscil 1, iPitch
  aShape linsegr 0, 0.012, 1, p3, 1, 0.05, 0
  Place tanh(aSine * 1.3) * aShape * p4, 0.5, 0, 0, 1
endin

; The soft bass of the calm music. p4 level, p5 note
instr Deep
  iPitch = cpsmidinn(p5)
  xtratim 0.5
  a1 poscil 1, iPitch * gkBend
  a2 vco2 0.35, iPitch * gkBend, 12
  a2 butterlp a2, 320
  aShape linsegr 0, 0.05, 1, 0.6, 0.7, p3, 0.55, 0.4, 0
  Place (a1 + a2) * aShape * p4, 0.5, 0.04, 0, 0
endin

; Sludge through a valve that opens and shuts in time: the wobble.
; p4 level, p5 note, p6 turns a beat, p7 and p8 shut and open in hertz, p9 shape (0 round, 1 falling,
; 2 rising), p10 turns a beat at the end
instr Wobble
  iPitch = cpsmidinn(p5)
  kSlide expseg 0.94, 0.03, 1, p3, 1
  kRate  line p6, p3, p10
  kTurn  phasor kRate / giBeat
  if p9 == 0 then
    kOpen = 0.5 + 0.5 * cos(2 * $M_PI * (kTurn - 0.18))
  elseif p9 == 1 then
    kOpen = (1 - kTurn) ^ 1.6
  else
    kOpen = kTurn ^ 1.4
  endif
  kOpen portk kOpen, 0.006
  kValve = p7 * pow(p8 / p7, kOpen)
  a1 vco2 0.5, iPitch * kSlide, 0, 0.5, 0
  a2 vco2 0.5, iPitch * 1.008 * kSlide, 0, 0.5, 0.37
  a3 vco2 0.5, iPitch * 0.992 * kSlide, 0, 0.5, 0.71
  a4 vco2 0.5, iPitch * 0.5 * kSlide, 10, 0.5, 0.18
  aL zdf_ladder (a1 + a2 + a4) * 0.7, kValve, 2.6
  aR zdf_ladder (a1 + a3 + a4) * 0.7, kValve, 2.6
  aL = tanh(aL * 3.6)
  aR = tanh(aR * 3.6)
  aL butterhp aL, 95
  aR butterhp aR, 95
  aL Lift aL, 700, 0.9
  aR Lift aR, 700, 0.9
  aL butterlp aL, 8000
  aR butterlp aR, 8000
  aShape linseg 0, 0.006, 1, p3 - 0.026, 1, 0.02, 0
  PlaceWide aL * aShape * p4, aR * aShape * p4, 0.03, 0, 1
endin

; Sludge with a mouth: it says "yoy" at each turn.
; p4 level, p5 note, p6 turns a beat, p7 vowel (0 "yoy", 1 "wow", 2 "eeoh")
instr Growl
  iPitch = cpsmidinn(p5)
  kSlide expseg 1.06, 0.04, 1, p3, 1
  kTurn  phasor p6 / giBeat
  kMouth = 0.5 - 0.5 * cos(2 * $M_PI * kTurn)
  if p7 == 0 then
    kOne = 290 + 330 * kMouth
    kTwo = 1750 - 850 * kMouth
  elseif p7 == 1 then
    kOne = 280 + 480 * kMouth
    kTwo = 640 + 620 * kMouth
  else
    kOne = 270 + 180 * kMouth
    kTwo = 2100 - 1350 * kMouth
  endif
  aMod  poscil iPitch * (1.2 + 3.5 * kMouth), iPitch * 2.003 * kSlide
  aCar  poscil 0.6, iPitch * kSlide + aMod
  aSaw  vco2 0.7, iPitch * kSlide
  aRaw = tanh((aCar + aSaw) * 1.8)
  aOne  butterbp aRaw, kOne, 160
  aTwo  butterbp aRaw, kTwo, 260
  aThree butterbp aRaw, 2650, 500
  aDull butterlp aRaw, 240
  aOut = tanh((aOne * 2.4 + aTwo * 3.0 + aThree * 1.3 + aDull * 0.5) * 1.5)
  aOut  butterhp aOut, 95
  aOut  Lift aOut, 900, 0.8
  aL    vdelay aOut, 7 + 2 * oscili:a(1, 0.9), 20
  aShape linseg 0, 0.006, 1, p3 - 0.026, 1, 0.02, 0
  PlaceWide (aOut * 0.8 + aL * 0.35) * aShape * p4, (aOut * 0.8 - aL * 0.35) * aShape * p4, 0.05, 0, 1
endin

; One huge bubble with teeth: short, climbs, shuts. p4 level, p5 note, p6 climb
instr Glug
  iPitch = cpsmidinn(p5)
  aPitch expseg iPitch * 0.8, p3 * 0.3, iPitch, p3 * 0.7, iPitch * p6
  kPitch downsamp aPitch
  aSaw   vco2 0.8, kPitch
  aSine  poscil 0.8, aPitch
  kOpen  expseg 300, p3 * 0.25, 2600, p3 * 0.75, 260
  aOut   zdf_ladder aSaw + aSine * 0.5, kOpen, 6
  aOut = tanh(aOut * 3)
  aOut   butterhp aOut, 95
  aOut   Lift aOut, 700, 0.8
  aShape linseg 0, 0.008, 1, p3 * 0.5, 0.8, p3 * 0.5 - 0.008, 0
  Place aOut * aShape * p4, 0.5, 0.12, 0.1, 1
endin

; A long low note whose saws beat against each other. p4 level, p5 note, p6 and p7 opening in hertz
instr Reese
  iPitch = cpsmidinn(p5)
  a1 vco2 0.5, iPitch * 1.012, 0, 0.5, 0.3
  a2 vco2 0.5, iPitch * 0.988, 0, 0.5, 0.7
  a3 vco2 0.5, iPitch * 1.005
  kOpen expseg p6, p3, p7
  aL zdf_ladder a1 + a3, kOpen, 1.5
  aR zdf_ladder a2 + a3, kOpen, 1.5
  aL butterhp tanh(aL * 1.5), 85
  aR butterhp tanh(aR * 1.5), 85
  aShape linseg 0, 0.02, 1, p3 - 0.06, 1, 0.04, 0
  PlaceWide aL * aShape * p4, aR * aShape * p4, 0.04, 0, 1
endin

; Iron that speaks: a struck bar driven hard. p4 level, p5 note, p6 ratio of its teeth
instr Metal
  iPitch = cpsmidinn(p5)
  aIndex expseg 5, 0.12, 1.5, p3, 0.4
  aMod  poscil aIndex * iPitch * p6, iPitch * p6
  aCar  poscil 1, iPitch + aMod
  aOut  butterlp tanh(aCar * 1.6), 3800
  aOut  butterhp aOut, 85
  aShape expseg 0.1, 0.004, 1, p3 - 0.03, 0.35, 0.026, 0.003
  Place aOut * aShape * p4, 0.5, 0.14, 0.16, 1
endin


; ---- the room -------------------------------------------------------------------------------

; A bubble that rises past the sinking band, so it stays clear of Sink. p4 level, p5 note, p6 place
instr Air
  iPitch = cpsmidinn(p5)
  aPitch expseg iPitch * 0.85, 0.09, iPitch * 1.2, p3, iPitch * 1.6
  aSine  poscil p4, aPitch
  aShape expseg 0.05, 0.004, 1, 0.07, 0.25, 0.22, 0.001, 1, 0.0005
  gaBubbles += aSine * aShape
  gaHallL += aSine * aShape * cos(p6 * $M_PI_2) * 0.5
  gaHallR += aSine * aShape * sin(p6 * $M_PI_2) * 0.5
endin

; How deep the band lies under water: a low pass that closes from p4 to p5 hertz, while the pitch
; of everything that sustains sags from p6 to p7 (1 is in tune).
instr Sink
  gkSink expon p4, p3, p5
  gkBend linseg p6, p3, p7
endin

; p4 level of all, p5 hall, p6 echo, p7 drive into the soft limit, p8 1: through Sink
instr Room
  aEchoInL butterhp gaEchoL, 350
  aEchoInR butterhp gaEchoR, 350
  aBackL init 0
  aBackR init 0
  aDelL delay aEchoInL + aBackR * 0.46, 0.75 * giBeat
  aDelR delay aEchoInR * 0.5 + aBackL * 0.46, 0.75 * giBeat
  aBackL butterlp aDelL, 3200
  aBackR butterlp aDelR, 3200
  aHallInL butterhp gaHallL + aBackL * 0.25, 180
  aHallInR butterhp gaHallR + aBackR * 0.25, 180
  aHallL, aHallR reverbsc aHallInL, aHallInR, 0.84, 7000
  kPump portk gkPump, 0.004
  aL = gaLeft + gaPumpL * kPump + aBackL * p6 + aHallL * p5
  aR = gaRight + gaPumpR * kPump + aBackR * p6 + aHallR * p5
  if p8 == 1 then
    aL zdf_ladder aL, gkSink, 0.7
    aR zdf_ladder aR, gkSink, 0.7
  endif
  aL += gaBubbles
  aR += gaBubbles
  aMid  = (aL + aR) * 0.5
  aSide butterhp (aL - aR) * 0.5, 180 ; the deep stands in the middle
  aL dcblock2 (aMid + aSide) * p4
  aR dcblock2 (aMid - aSide) * p4
  outs tanh(aL * p7) / p7, tanh(aR * p7) / p7
  gaLeft  = 0
  gaRight = 0
  gaPumpL = 0
  gaPumpR = 0
  gaHallL = 0
  gaHallR = 0
  gaEchoL = 0
  gaEchoR = 0
  gaBubbles = 0
endin
