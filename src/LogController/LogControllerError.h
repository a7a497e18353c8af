#ifndef LOG_CONTROLLER_ERROR_H
#define LOG_CONTROLLER_ERROR_H

#include "LogController/LogController.h"

#include <ostream>

/// The logger of errors: its lines carry the prefix "[Error]".
class LogControllerError : public LogController {
public:
    /// Logs to `outStreamPara`, which must outlive the logger.
    LogControllerError(std::ostream& outStreamPara);
};

#endif
