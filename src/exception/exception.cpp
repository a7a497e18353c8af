#include "exception/exception.h"

#include "LogController/LogControllerDef.h"
#include "exception/ExceptionType.h"

#include <sstream>
#include <string>
#include <utility>

Exception::Exception(int linePara, std::string fileNamePara, std::string functionNamePara,
                     ExceptionType exceptionTypePara, std::string additionalString)
    : line(linePara), fileName(std::move(fileNamePara)), functionName(std::move(functionNamePara)),
      exceptionType(std::move(exceptionTypePara)), additionalString(std::move(additionalString)) {}


Exception::Exception(int linePara, std::string fileNamePara, std::string functionNamePara,
                     ExceptionType exceptionTypePara)
    : Exception(linePara, std::move(fileNamePara), std::move(functionNamePara), std::move(exceptionTypePara), "") {}


std::string Exception::getExceptionText() const {
    std::ostringstream text;
    text << "Exception " << exceptionType.getExceptionNumber() << ". in " << fileName << " at line " << line << " : "
         << exceptionType.getDescription();
    if (!additionalString.empty())
        text << ". With additional string : " << additionalString;
    return text.str();
}


std::string Exception::getPrintText() const { return getExceptionText(); }


ExceptionType Exception::getExceptionType() const { return exceptionType; }


void Exception::consolErr() const { logErrorConsol.log(getExceptionText()); }


void Exception::consolErr(const int& line, const std::string& file) const {
    std::ostringstream text;
    text << "Exception catch @ line " << line << " in file " << file << " : " << getExceptionText();
    logErrorConsol.log(text.str());
}
