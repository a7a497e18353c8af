#include "LogController/LogControllerDef.h"
#include "exception/exception.h"
#include "exception/exceptionTypeDef.h"
#include "standin/standin.h"

struct Errors : StandinTest {};


TEST_F(Errors, logLinesAndExceptionsAreWrittenAsRecorded) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    for (const int now : {0, 23 * 3600, 3661}) {
        clocks.calendar = now;
        logConsol.log("a");
        logConsolTest.log("a", 7);
    }
    Exception(35, "F", "f", VECTEUR_READ_VALUE_INCORRECT).consolErr(12, "G");
    Exception(1, "F", "f", DIVISION_BY_ZERO, "abc").consolErr();
    expectAsRecorded("log", {testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()});
}
