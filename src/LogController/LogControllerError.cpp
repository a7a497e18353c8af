#include "LogController/LogControllerError.h"

#include "LogController/LogController.h"

#include <ostream>

LogControllerError::LogControllerError(std::ostream& outStreamPara) : LogController(outStreamPara, "[Error]") {}
