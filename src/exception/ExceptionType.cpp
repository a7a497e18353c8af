#include "exception/ExceptionType.h"

#include <utility>

ExceptionType::ExceptionType(unsigned int exceptionNumber, std::string description, std::string name)
    : exceptionNumber(exceptionNumber), description(std::move(description)), name(std::move(name)) {}


unsigned int ExceptionType::getExceptionNumber() const { return exceptionNumber; }


std::string ExceptionType::getDescription() const { return description; }


std::string ExceptionType::getName() const { return name; }
