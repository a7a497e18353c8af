#include "exception/exception.h"
#include "LogController/LogControllerDef.h"
#include "exception/exceptionTypeDef.h"
#include "standin/world.h"

#include <gtest/gtest.h>

TEST(Errors, areOneLineOfText) {
    EXPECT_EQ(Exception(35, "F", "f", VECTEUR_READ_VALUE_INCORRECT).getPrintText(),
              "Exception 2. in F at line 35 :  la position du vecteur n'existe pas (segmentation fault) ");
    EXPECT_EQ(Exception(1, "F", "f", DIVISION_BY_ZERO, "abc").getExceptionText(),
              "Exception 5. in F at line 1 : division par zero. With additional string : abc");
}


TEST(Errors, areLoggedWithAStampOneHourAheadOfUtc) {
    std::ostringstream out;
    for (const auto& [now, stamp] : {std::pair(0, "01:00:00"), {23 * 3600, "00:00:00"}, {3661, "02:01:01"}}) {
        standin::calendar = now;
        EXPECT_EQ(LogController(out, "").getLogMessage("a"), std::string(stamp) + " a");
    }
    LogController(out, "").log("a", "b");
    LogControllerError(out).log(7);
    EXPECT_EQ(out.str(), "02:01:01 a b\n02:01:01 [Error] 7\n");
    testing::internal::CaptureStderr();
    Exception(35, "F", "f", DIVISION_BY_ZERO).consolErr(12, "G");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "02:01:01 [Error] Exception catch @ line 12 in file G : Exception "
              "5. in F at line 35 : division par zero\n");
}
