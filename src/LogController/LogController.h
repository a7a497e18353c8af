#ifndef LOG_CONTROLLER_H
#define LOG_CONTROLLER_H

#include "utility/utility.h"

#include <ostream>
#include <sstream>
#include <string>

/// A logger of the toolkit: writes time-stamped lines with a fixed prefix to one stream.
class LogController {
public:
    /// Logs to `outStreamPara`, which must outlive the logger; an empty prefix is left out of the lines.
    LogController(std::ostream& outStreamPara, std::string additionalStringPara);
    virtual ~LogController() = default;

    /// The line "HH:MM:SS prefix message", without a line end.
    template <typename T>
    std::string getLogMessage(const T& message) const {
        std::ostringstream line;
        line << timeStamp() << " ";
        if (!additionalString.empty())
            line << additionalString << " ";
        line << message;
        return line.str();
    }

    /// Writes one line and flushes.
    template <typename T>
    void log(const T& message) const {
        log(message, std::string(""));
    }

    /// Writes one line of two messages and flushes; an empty second message leaves no trailing space.
    template <typename T1, typename T2>
    void log(const T1& messageFirst, const T2& messageSecond) const {
        auto& out = const_cast<std::ostream&>(outStream);
        out << getLogMessage(messageFirst);
        const std::string second = toString(messageSecond);
        if (!second.empty())
            out << " " << second;
        out << std::endl;
    }

private:
    /// The time of day as "HH:MM:SS". Quirk: it is always one hour ahead of UTC.
    static std::string timeStamp();

    std::string additionalString;
    // Quirk: the stream is held as constant, although log() writes to it.
    const std::ostream& outStream;
};

#endif
