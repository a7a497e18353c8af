#include "standin/standin.h"

#include <fstream>
#include <iterator>

Lines linesStarting(const std::string& start, const Lines& lines) {
    Lines found;
    for (const std::string& line : lines)
        if (line.compare(0, start.size(), start) == 0)
            found.push_back(line);
    return found;
}


void expectAsRecorded(const std::string& name, const Lines& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    std::ifstream recording("tests/recorded/" + name + ".lines");
    const std::string recorded(std::istreambuf_iterator<char>(recording), {});
    std::ofstream("build/" + name + ".lines") << text;
    EXPECT_EQ(recorded, text) << "If that is what you meant, accept it:\n  cp build/" << name
                              << ".lines tests/recorded/";
}


StandinTest::StandinTest() {
    calls.clear();
    screen = {};
    mixer = {};
    window = {};
    clocks = {};
    dice = {};
    files = {};
}
