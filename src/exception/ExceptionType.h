#ifndef EXCEPTION_TYPE_H
#define EXCEPTION_TYPE_H

#include <string>

/// One kind of error of the toolkit: a number that identifies it, a short name, and a French description for whoever
/// reads the log. Every source file has its own copies of the kinds, so compare numbers, never addresses.
class ExceptionType {
public:
    ExceptionType(unsigned int exceptionNumberPara, std::string descriptionPara, std::string namePara);

    unsigned int getExceptionNumber() const;
    std::string getDescription() const;
    std::string getName() const;

private:
    unsigned int exceptionNumber;
    std::string description;
    std::string name;
};

#endif
