#pragma once

#include <QString>
#include <exception>

namespace platform {

/// The numbers that a user is shown, with their meaning: positive ones of the program's own operations and of
/// recordsets, negative ones of the database.
enum class Error : int {
    InvalidCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    TypeMismatch = 13,
    Internal = 51,
    FileNotFound = 53,
    DeviceFailure = 57,
    DiskFull = 61,
    PermissionDenied = 70,
    PathAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    NullUsed = 94,
    InvalidValue = 380,
    NotSupported = 438,
    NoPrinter = 482,
    NoProgram = 1155,
    NoCurrentRecord = 3021,
    NotInThisContext = 3219,
    NotUpdatable = 3251,
    NoSuchItem = 3265,
    Closed = 3704,
    Open = 3705,
    NoConnection = 3709,
    IndexOutOfBounds = 35600,
    NoSuchElement = 35601,

    Failed = -2147467259,
    BookmarkInvalid = -2147217906,
    MissingParameter = -2147217904,
    Syntax = -2147217900,
    DoesNotFit = -2147217887,
    RowDeleted = -2147217885,
    NoFetchBackward = -2147217884,
    Duplicate = -2147217873,
    MissingTable = -2147217865,
    RowChanged = -2147217864,
};

/// A failed operation: the number and the words that the user is shown.
class RuntimeError : public std::exception {
public:
    /// With its standing words. Throws std::out_of_range for an error that takes its words from the place: Internal,
    /// Failed, Syntax and MissingTable.
    explicit RuntimeError(Error error);
    RuntimeError(Error error, QString description) : error_(error), description_(std::move(description)) {}

    [[nodiscard]] Error error() const { return error_; }
    [[nodiscard]] int number() const { return static_cast<int>(error_); }
    [[nodiscard]] const QString& description() const { return description_; }
    /// "number - description", as every error box shows it.
    [[nodiscard]] QString report() const;
    [[nodiscard]] const char* what() const noexcept override { return "RuntimeError"; }

private:
    Error error_;
    QString description_;
};

}  // namespace platform
