#ifndef LOG_CONTROLLER_DEF_H
#define LOG_CONTROLLER_DEF_H

#include "LogController/LogController.h"
#include "LogController/LogControllerError.h"

// The console's loggers, one of each for the whole program. Fixed: the game uses only the first, in
// Exception::consolErr; other code may use them all.

/// Errors, on standard error.
extern const LogControllerError logErrorConsol;
/// Warnings, on standard output.
extern const LogController logWarningConsol;
/// Plain messages, on standard output, without a prefix.
extern const LogController logConsol;
/// Messages of trial runs, on standard output.
extern const LogController logConsolTest;

#endif
