#include "LogController/LogController.h"

#include "utility/utility.h"

#include <cstdint>
#include <ctime>
#include <ostream>
#include <string>
#include <utility>

namespace {

std::string twoDigits(int number) {
    const std::string text = toString(number);
    return text.size() == 1 ? "0" + text : text;
}

} // namespace


LogController::LogController(std::ostream& outStreamPara, std::string additionalStringPara)
    : additionalString(std::move(additionalStringPara)), outStream(outStreamPara) {}


std::string LogController::timeStamp() {
    const auto now = static_cast<std::int32_t>(std::time(nullptr));
    const int sec = now % 60;
    const int minute = now / 60 % 60;
    const int heure = (now / 3600 + 1) % 24;
    return twoDigits(heure) + ":" + twoDigits(minute) + ":" + twoDigits(sec);
}
