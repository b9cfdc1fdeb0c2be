#include "platform/base/runtime_error.h"

#include <map>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

QString standingWords(Error error) {
    static const std::map<Error, QString> words{
        {Error::InvalidCall, u"Invalid procedure call or argument"_s},
        {Error::Overflow, u"Overflow"_s},
        {Error::OutOfMemory, u"Out of memory"_s},
        {Error::TypeMismatch, u"Type mismatch"_s},
        {Error::FileNotFound, u"File not found"_s},
        {Error::DeviceFailure, u"Device I/O error"_s},
        {Error::DiskFull, u"Disk full"_s},
        {Error::PermissionDenied, u"Permission denied"_s},
        {Error::PathAccess, u"Path/File access error"_s},
        {Error::PathNotFound, u"Path not found"_s},
        {Error::ObjectNotSet, u"Object variable or With block variable not set"_s},
        {Error::NullUsed, u"Invalid use of Null"_s},
        {Error::InvalidValue, u"Invalid property value"_s},
        {Error::NotSupported, u"Object doesn't support this property or method"_s},
        {Error::NoPrinter, u"Printer error"_s},
        {Error::NoCurrentRecord,
         u"Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a current record."_s},
        {Error::NotInThisContext, u"Operation is not allowed in this context."_s},
        {Error::NotUpdatable,
         u"Current Recordset does not support updating. This may be a limitation of the provider, or of the selected locktype."_s},
        {Error::NoSuchItem,
         u"Item cannot be found in the collection corresponding to the requested name or ordinal."_s},
        {Error::Closed, u"Operation is not allowed when the object is closed."_s},
        {Error::Open, u"Operation is not allowed when the object is open."_s},
        {Error::NoConnection,
         u"The connection cannot be used to perform this operation. It is either closed or invalid in this context."_s},
        {Error::NoProgram, u"No application is associated with the specified file for this operation."_s},
        {Error::IndexOutOfBounds, u"Index out of bounds"_s},
        {Error::NoSuchElement, u"Element not found"_s},
        {Error::BookmarkInvalid, u"Bookmark is invalid."_s},
        {Error::MissingParameter, u"No value given for one or more required parameters."_s},
        {Error::DoesNotFit, u"Multiple-step operation generated errors. Check each status value."_s},
        {Error::RowDeleted, u"Row handle referred to a deleted row or a row marked for deletion."_s},
        {Error::NoFetchBackward, u"Rowset does not support fetching backward."_s},
        {Error::Duplicate,
         u"The changes you requested to the table were not successful because they would create duplicate "
         "values in the index, primary key, or relationship.  Change the data in the field or fields that "
         "contain duplicate data, remove the index, or redefine the index to permit duplicate entries and "
         "try again."_s},
        {Error::RowChanged,
         u"Row cannot be located for updating. Some values may have been changed since it was last read."_s},
    };
    return words.at(error);
}

}  // namespace

RuntimeError::RuntimeError(Error error) : RuntimeError(error, standingWords(error)) {}

QString RuntimeError::report() const {
    return QString::number(number()) + u" - "_s + description_;
}

}  // namespace platform
