#include "sound.h"

void playSound(Mix_Chunk* son, int channel) {
    constexpr int NO_TIME_LIMIT = -1;
    Mix_PlayChannelTimed(channel, son, 0, NO_TIME_LIMIT);
}


void playJingle(Mix_Chunk* son) {
    constexpr int JINGLE_CHANNEL = 8;
    constexpr int JINGLE_VOLUME = 50;
    Mix_Volume(JINGLE_CHANNEL, JINGLE_VOLUME);
    playSound(son, JINGLE_CHANNEL);
}
