#include "LogController/LogControllerDef.h"

#include "LogController/LogController.h"
#include "LogController/LogControllerError.h"

#include <iostream>

const LogControllerError logErrorConsol(std::cerr);
const LogController logWarningConsol(std::cout, "[Warning]");
const LogController logConsol(std::cout, "");
const LogController logConsolTest(std::cout, "[Test]");
