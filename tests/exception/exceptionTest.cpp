#include "exception/exception.h"

#include "exception/exceptionTypeDef.h"
#include "standin/standin.h"

struct ExceptionTest : StandinTest {};


TEST_F(ExceptionTest, consolErrWritesOneLineWithThePlacesAndTheAdditionalText) {
    testing::internal::CaptureStderr();
    Exception(35, "F", "f", VECTEUR_READ_VALUE_INCORRECT).consolErr(12, "G");
    Exception(1, "F", "f", DIVISION_BY_ZERO, "abc").consolErr();
    expectAsRecorded("exceptions", {testing::internal::GetCapturedStderr()});
}
