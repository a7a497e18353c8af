#include "LogController/LogControllerDef.h"
#include "exception/exception.h"
#include "exception/exceptionTypeDef.h"
#include "standin/standin.h"

TEST(Errors, areOneLineOfTextAndLoggedWithAStampOneHourAheadOfUtc) {
    std::ostringstream out;
    for (const int now : {0, 23 * 3600, 3661}) {
        standin::calendar = now;
        LogController(out, "").log("a", now == 0 ? "b" : "");
    }
    testing::internal::CaptureStderr();
    Exception(35, "F", "f", VECTEUR_READ_VALUE_INCORRECT).consolErr(12, "G");
    out << testing::internal::GetCapturedStderr();
    LogController(out, "[Test]").log(Exception(1, "F", "f", DIVISION_BY_ZERO, "abc").getPrintText());
    EXPECT_EQ(out.str(),
              "01:00:00 a b\n00:00:00 a\n02:01:01 a\n"
              "02:01:01 [Error] Exception catch @ line 12 in file G : Exception 2. in F at line 35 : "
              " la position du vecteur n'existe pas (segmentation fault) \n"
              "02:01:01 [Test] Exception 5. in F at line 1 : division par zero. With additional string : abc\n");
}
