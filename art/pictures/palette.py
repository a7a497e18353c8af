"""The one palette of Vorel Defense. Every picture takes its colours from here.

Saturated blue and cyan belong to the player's water alone, red to pollution, sour violet-green
and magenta to the grunts, copper, brass and cream to the panels, calm greens to the ground.
"""

OUTLINE = "#16213a"  # dark navy, about 2 pixels wide on the screen

# the player's water
WATER_DEEP = "#0a6fd6"
WATER = "#1fa8f2"
WATER_LIGHT = "#8fe4ff"
WATER_FOAM = "#eafbff"

# Vorel Defense INC.: enamel, copper, brass
CREAM = "#f7ebcf"
CREAM_SHADE = "#dcc79a"
BOTTLE_GREEN = "#1d4a3c"
BOTTLE_GREEN_LIGHT = "#2f6b56"
COPPER = "#c4743c"
COPPER_LIGHT = "#eaa26a"
COPPER_DARK = "#7d4320"
BRASS = "#d9a941"
BRASS_LIGHT = "#f8dc8c"
BRASS_DARK = "#8d6620"
STEEL = "#8e9aa6"
STEEL_LIGHT = "#cfd8de"
STEEL_DARK = "#4b5765"

# the field
GRASS = "#86a86a"
GRASS_LIGHT = "#9dbb7d"
GRASS_DARK = "#708f59"
MEADOW = "#5d8560"
MEADOW_DARK = "#4a6e51"
MEADOW_LIGHT = "#74996c"
FLOWER = "#efe6c8"

# the grunts
SLUDGE = "#8fa81e"
SLUDGE_LIGHT = "#c9de4a"
SLUDGE_DARK = "#4d4a1c"
SLUDGE_VIOLET = "#7b3f96"
SLUDGE_MAGENTA = "#d13fa8"

# pollution
RED = "#d8322c"
RED_LIGHT = "#ff7a66"
RED_DARK = "#8c1519"
