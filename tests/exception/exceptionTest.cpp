#include "exception/exception.h"
#include "LogController/LogControllerDef.h"
#include "exception/exceptionTypeDef.h"
#include "standin/world.h"

#include <gtest/gtest.h>

TEST(ExceptionText, namesKindFileLineAndAdditionalText) {
    const Exception plain(35, "F", "f", VECTEUR_READ_VALUE_INCORRECT);
    EXPECT_EQ(plain.getPrintText(),
              "Exception 2. in F at line 35 :  la position du vecteur n'existe pas (segmentation fault) ");
    const Exception more(1, "F", "f", DIVISION_BY_ZERO, "abc");
    EXPECT_EQ(more.getExceptionText(),
              "Exception 5. in F at line 1 : division par zero. With additional string : abc");
}


TEST(ExceptionText, kindsAreNumberedInOrderAndKeepTheirSpaces) {
    const ExceptionType kinds[] = {VECTEUR_SIZE_INCORRECT,
                                   VECTEUR_READ_VALUE_INCORRECT,
                                   CAN_T_LOAD_SHADERS,
                                   ZERO_MASS,
                                   DIVISION_BY_ZERO,
                                   TRIANGLE_READ_VALUE_INCORRECT,
                                   TRIANGLE_MODEL_READ_VALUE_INCORRECT,
                                   MESH_INCORECT_SIZE_OF_TEXTURE_POINT,
                                   INTERACTION_TEMPLATE_SIZE_INCORRECT,
                                   GAME_PLAYER_SIZE_INCORRECT,
                                   DATA_POS_RADIUS_CIRCLE_TRIANGLE_SIZE_INCORRECT};
    unsigned int number = 0;
    for (const ExceptionType& kind : kinds) {
        EXPECT_EQ(kind.getExceptionNumber(), ++number);
        EXPECT_EQ(kind.getDescription().front() == ' ', number <= 2 || (number >= 6 && number <= 10))
            << number;
        EXPECT_EQ(kind.getDescription().back() == ' ', number <= 2 || number >= 6) << number;
    }
    EXPECT_EQ(VECTEUR_SIZE_INCORRECT.getName(), "vecteurSizeIncorect");
}


TEST(Log, stampsEveryLineOneHourAheadOfUtc) {
    std::ostringstream out;
    const LogController plain(out, "");
    const LogControllerError error(out);
    for (const auto& [now, stamp] :
         {std::pair(0, "01:00:00"), std::pair(23 * 3600, "00:00:00"), std::pair(3661, "02:01:01")}) {
        standin::calendar = now;
        EXPECT_EQ(plain.getLogMessage("a"), std::string(stamp) + " a");
    }
    plain.log("a", "b");
    error.log(7);
    EXPECT_EQ(out.str(), "02:01:01 a b\n02:01:01 [Error] 7\n");
}


TEST(Log, reportsACaughtExceptionOnStandardError) {
    standin::calendar = 0;
    testing::internal::CaptureStderr();
    Exception(35, "F", "f", DIVISION_BY_ZERO).consolErr(12, "G");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "01:00:00 [Error] Exception catch @ line 12 in file G : "
              "Exception 5. in F at line 35 : division par zero\n");
}
