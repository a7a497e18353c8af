#include "LogController/LogControllerError.h"

LogControllerError::LogControllerError(std::ostream& outStreamPara) : LogController(outStreamPara, "[Error]") {}
