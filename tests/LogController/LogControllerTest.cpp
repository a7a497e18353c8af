#include "LogController/LogControllerDef.h"
#include "standin/standin.h"

struct LogControllerTest : StandinTest {};


TEST_F(LogControllerTest, theStampIsTheTimeOfDayOneHourAheadOfUTC) {
    for (const auto& [now, line] : {std::pair(0, "01:00:00 a"), {23 * 3600, "00:00:00 a"}, {3661, "02:01:01 a"}}) {
        clocks.calendar = now;
        EXPECT_EQ(logConsol.getLogMessage("a"), line);
    }
}


TEST_F(LogControllerTest, logWritesAPrefixAndOneOrTwoMessages) {
    testing::internal::CaptureStdout();
    logConsol.log("a");
    logWarningConsol.log("a", "");
    logConsolTest.log("a", 7);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "01:00:00 a\n01:00:00 [Warning] a\n01:00:00 [Test] a 7\n");
}
