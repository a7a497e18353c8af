#include "audio.h"
#include "standin/standin.h"

#include <fstream>
#include <ios>

struct Audio : StandinTest {};


TEST_F(Audio, loadMusicRefusesWhatCannotBeginATrack) {
    // The tag's size, in the last four bytes of its header, is 128 * 128 * 128 + 2 * 128 + 3.
    const std::string size("\1\0\2\3", 4);
    const std::string body(2097411, 'x');
    const std::string tag = std::string("ID3\3\0\0", 6) + size + body;
    const std::string tagWithFooter = std::string("ID3\4\0\x10", 6) + size + body + "ten bytes.";
    const std::string zeros(3, '\0');
    const std::string frame = "\xFF\xFB\x90 of MPEG-1";
    const std::string lowRate = "\xFF\xE3\x10 of MPEG-2.5";
    const std::tuple<const char*, std::string, bool> tracks[] = {
        {"nothing", "", true},
        {"MPEG-1", frame, true},
        {"MPEG-2", "\xFF\xF2\x90", true},
        {"MPEG-2.5", lowRate, false},
        {"layer II", "\xFF\xFD\x90", false},
        {"no frame", "\x90\xFB\x90", false},
        {"a frame after what is no tag", "IX" + frame, false},
        {"a tag", tag + frame, true},
        {"a tag without a track", tag, false},
        {"a tag longer than the file", tag.substr(0, tag.size() / 2) + frame, false},
        {"two tags", tag + tag + frame, true},
        {"a footer", tagWithFooter + frame, true},
        {"zeros", zeros + frame, true},
        {"tags and zeros", zeros + tagWithFooter + zeros + tag + zeros + frame, true},
        {"MPEG-2.5 after tags and zeros", tag + tagWithFooter + zeros + lowRate, false},
        {"zeros without a track", zeros, false}};
    const std::string file = testing::TempDir() + "track.mp3";
    for (const auto& [name, content, loaded] : tracks) {
        std::ofstream(file, std::ios::binary) << content;
        EXPECT_EQ(loadMusic(file.c_str()) != nullptr, loaded) << name;
    }
}
