#ifndef LOG_CONTROLLER_DEF_H
#define LOG_CONTROLLER_DEF_H

#include "LogController/LogController.h"
#include "LogController/LogControllerError.h"

// The toolkit's loggers for the console, one of each for the whole program. Exception::consolErr uses the first.

/// Errors, on standard error.
extern const LogControllerError logErrorConsol;
/// Warnings, on standard output.
extern const LogController logWarningConsol;
/// Plain messages, on standard output, without a prefix.
extern const LogController logConsol;
/// Messages of trial runs, on standard output.
extern const LogController logConsolTest;

#endif
