#include "audio.h"
#include "standin/standin.h"

#include <fstream>
#include <ios>
#include <string>
#include <utility>

struct Sound : StandinTest {};


TEST_F(Sound, loadMusicRefusesWhatCannotBeginATrack) {
    const std::pair<const char*, bool> starts[] = {
        {"ID3 tag", true}, {"\xFF\xFB of MPEG-1", true}, {"\xFF\xF2 of MPEG-2", true}, {"\xFF\xFD of layer II", false},
        {"IX tag", false}, {"\x90\xFB, no frame", false}};
    const std::string file = testing::TempDir() + "track.mp3";
    for (const auto& [start, loaded] : starts) {
        std::ofstream(file, std::ios::binary) << start;
        EXPECT_EQ(loadMusic(file.c_str()) != nullptr, loaded) << start;
    }
}
