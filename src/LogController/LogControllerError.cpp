#include "LogController/LogControllerError.h"

LogControllerError::LogControllerError(std::ostream& outStream) : LogController(outStream, "[Error]") {}
