<CsoundSynthesizer>
; Water turns into money: one coin falls on another and rolls over once. It comes up to four times
; a second, so its strike is rounded and its ring sits on D and G above the tune.
<CsInstruments>
#include "kit.inc"
</CsInstruments>
<CsScore>
i "Out" 0 0.32 1.2
i "Mode" 0.000 0.30 0.34 1568.0 0.36 0.46
i "Mode" 0.000 0.28 0.14 1576.0 0.32 0.58
i "Mode" 0.000 0.26 0.24 2349.3 0.32 0.40
i "Mode" 0.000 0.20 0.12 4810.0 0.20 0.35
i "Mode" 0.000 0.14 0.07 7230.0 0.13 0.65
i "Mode" 0.054 0.24 0.24 2349.3 0.36 0.60
i "Mode" 0.054 0.24 0.10 2361.0 0.32 0.44
i "Mode" 0.054 0.20 0.07 3136.0 0.24 0.55
i "Mode" 0.054 0.16 0.09 6690.0 0.16 0.62
i "Mode" 0.107 0.18 0.06 4698.6 0.20 0.45
e 0.32
</CsScore>
</CsoundSynthesizer>
