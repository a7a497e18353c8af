#include "exception/exception.h"

#include "exception/exceptionTypeDef.h"
#include "standin/standin.h"

struct ExceptionTest : StandinTest {};


TEST_F(ExceptionTest, consolErrWritesTheTimeThePlacesAndTheAdditionalTextInOneLine) {
    clocks.calendar = 23 * 3600 + 4 * 60 + 5; // an hour later it is past midnight
    testing::internal::CaptureStderr();
    Exception(35, "F", "f", VECTEUR_READ_VALUE_INCORRECT).consolErr(12, "G");
    Exception(1, "F", "f", DIVISION_BY_ZERO, "abc").consolErr();
    expectAsRecorded("exceptions", {testing::internal::GetCapturedStderr()});
}
