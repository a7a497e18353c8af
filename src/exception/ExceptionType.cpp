#include "exception/ExceptionType.h"

#include <string>
#include <utility>

ExceptionType::ExceptionType(unsigned int exceptionNumberPara, std::string descriptionPara, std::string namePara)
    : exceptionNumber(exceptionNumberPara), description(std::move(descriptionPara)), name(std::move(namePara)) {}


unsigned int ExceptionType::getExceptionNumber() const { return exceptionNumber; }


std::string ExceptionType::getDescription() const { return description; }


std::string ExceptionType::getName() const { return name; }
