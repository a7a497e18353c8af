#include "audio.h"
#include "standin/standin.h"

#include <fstream>
#include <ios>

struct Audio : StandinTest {};


TEST_F(Audio, loadMusicRefusesWhatCannotBeginATrack) {
    // The tag's header of ten bytes gives its length: another 129 bytes.
    const std::string tag = std::string("ID3\3\0\0\0\0\1\1", 10) + std::string(129, 'x');
    // clang-format off
    const std::pair<std::string, bool> starts[] = {
        {"\xFF\xFB", true}, {"\xFF\xF2 of MPEG-2", true}, {"\xFF\xE3 of MPEG-2.5", false}, {"", true},
        {"\xFF\xFD of layer II", false}, {"\x90\xFB, no frame", false}, {"IX tag", false},
        {tag + "\xFF\xFB", true}, {tag + "\xFF\xE3 of MPEG-2.5", false}, {tag, false}};
    // clang-format on
    const std::string file = testing::TempDir() + "track.mp3";
    for (const auto& [start, loaded] : starts) {
        std::ofstream(file, std::ios::binary) << start;
        EXPECT_EQ(loadMusic(file.c_str()) != nullptr, loaded) << start;
    }
}
