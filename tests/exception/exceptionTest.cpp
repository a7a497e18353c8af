#include "exception/exception.h"

#include "exception/ExceptionType.h"
#include "exception/exceptionTypeDef.h"
#include "standin/standin.h"

struct ExceptionTest : StandinTest {};


TEST_F(ExceptionTest, theKindsKeepTheirNumbersNamesAndDescriptions) {
    Lines kinds;
    for (const ExceptionType& kind :
         {VECTEUR_SIZE_INCORRECT, VECTEUR_READ_VALUE_INCORRECT, CAN_T_LOAD_SHADERS, ZERO_MASS, DIVISION_BY_ZERO,
          TRIANGLE_READ_VALUE_INCORRECT, TRIANGLE_MODEL_READ_VALUE_INCORRECT, MESH_INCORECT_SIZE_OF_TEXTURE_POINT,
          INTERACTION_TEMPLATE_SIZE_INCORRECT, GAME_PLAYER_SIZE_INCORRECT,
          DATA_POS_RADIUS_CIRCLE_TRIANGLE_SIZE_INCORRECT})
        kinds.push_back(joined(kind.getName(), kind.getExceptionNumber(), "[" + kind.getDescription() + "]"));
    expectAsRecorded("kinds", kinds);
}


TEST_F(ExceptionTest, consolErrWritesOneLineWithThePlacesAndTheAdditionalText) {
    testing::internal::CaptureStderr();
    Exception(35, "F", "f", VECTEUR_READ_VALUE_INCORRECT).consolErr(12, "G");
    Exception(1, "F", "f", DIVISION_BY_ZERO, "abc").consolErr();
    expectAsRecorded("exceptions", {testing::internal::GetCapturedStderr()});
}
