#ifndef EXCEPTION_H
#define EXCEPTION_H

#include "exception/ExceptionType.h"

#include <string>

/// What the toolkit throws, by value: where it was raised, which kind of error it is, and an additional text if there
/// is one.
class Exception {
public:
    /// Raised at line `linePara` of the file `fileNamePara`, in the function `functionNamePara`.
    Exception(int linePara, std::string fileNamePara, std::string functionNamePara, ExceptionType exceptionTypePara,
              std::string additionalString);
    Exception(int linePara, std::string fileNamePara, std::string functionNamePara, ExceptionType exceptionTypePara);

    /// One line without a line end: number, file, line and description of the error, then the additional text if there
    /// is one.
    std::string getExceptionText() const;
    virtual std::string getPrintText() const;
    ExceptionType getExceptionType() const;

    /// Logs the text on standard error.
    void consolErr() const;
    /// Logs the text on standard error together with the place where the exception was caught.
    void consolErr(const int& line, const std::string& file) const;

private:
    const int line;
    const std::string fileName;
    const std::string functionName; // for the debugger, not part of the text
    const ExceptionType exceptionType;
    const std::string additionalString;
};

#endif
