#include "standin/standin.h"

#include <algorithm>
#include <fstream>
#include <iterator>

Lines linesStarting(const std::string& start, const Lines& lines) {
    Lines found;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(found),
                 [&start](const std::string& line) { return line.compare(0, start.size(), start) == 0; });
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
