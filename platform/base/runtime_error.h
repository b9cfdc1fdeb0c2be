#pragma once

#include <QString>
#include <exception>

namespace platform {

/// A failed operation: the number and the words that the user is shown.
///
/// Positive numbers are those of the forms run-time and of its recordsets, negative ones those of the database
/// provider.
class RuntimeError : public std::exception {
public:
    RuntimeError(int number, QString description) : number_(number), description_(std::move(description)) {}

    /// One of the fixed run-time errors, with its standing words. Throws std::out_of_range for a number without words.
    explicit RuntimeError(int number);

    [[nodiscard]] int number() const { return number_; }
    [[nodiscard]] const QString& description() const { return description_; }
    /// "number - description", as every error box shows it.
    [[nodiscard]] QString report() const;
    [[nodiscard]] const char* what() const noexcept override { return "RuntimeError"; }

private:
    int number_;
    QString description_;
};

}  // namespace platform
