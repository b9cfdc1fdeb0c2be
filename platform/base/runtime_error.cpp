#include "platform/base/runtime_error.h"

#include <map>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

QString standingWords(int number) {
    static const std::map<int, QString> words{
        {5, u"Invalid procedure call or argument"_s},
        {6, u"Overflow"_s},
        {7, u"Out of memory"_s},
        {9, u"Subscript out of range"_s},
        {13, u"Type mismatch"_s},
        {53, u"File not found"_s},
        {57, u"Device I/O error"_s},
        {58, u"File already exists"_s},
        {61, u"Disk full"_s},
        {62, u"Input past end of file"_s},
        {70, u"Permission denied"_s},
        {75, u"Path/File access error"_s},
        {76, u"Path not found"_s},
        {91, u"Object variable or With block variable not set"_s},
        {94, u"Invalid use of Null"_s},
        {380, u"Invalid property value"_s},
        {438, u"Object doesn't support this property or method"_s},
        {482, u"Printer error"_s},
        {3001, u"Arguments are of the wrong type, are out of acceptable range, or are in conflict with one another."_s},
        {3021,
         u"Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a current record."_s},
        {3219, u"Operation is not allowed in this context."_s},
        {3251,
         u"Current Recordset does not support updating. This may be a limitation of the provider, or of the selected locktype."_s},
        {3265, u"Item cannot be found in the collection corresponding to the requested name or ordinal."_s},
        {3704, u"Operation is not allowed when the object is closed."_s},
        {3705, u"Operation is not allowed when the object is open."_s},
        {3709,
         u"The connection cannot be used to perform this operation. It is either closed or invalid in this context."_s},
        {35601, u"Element not found"_s},
    };
    return words.at(number);
}

}  // namespace

RuntimeError::RuntimeError(int number) : RuntimeError(number, standingWords(number)) {}

QString RuntimeError::report() const {
    return QString::number(number_) + u" - "_s + description_;
}

}  // namespace platform
