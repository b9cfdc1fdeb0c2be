#pragma once

#include <QString>
#include <QStringView>
#include <vector>

namespace data {

enum class SqlTokenKind { Word, Number, Text, Name, Symbol, Unclosed };

/// A piece of a statement: a bare word, a number, a quoted text or name, or a single sign.
///
/// An Unclosed token is a quoted text whose end is missing; it reaches to the end of the statement.
struct SqlToken {
    SqlTokenKind kind;
    qsizetype begin;
    qsizetype end;
    QStringView text;

    [[nodiscard]] bool isWord(QStringView word) const;
    [[nodiscard]] bool isSymbol(QChar sign) const { return kind == SqlTokenKind::Symbol && text == sign; }
    [[nodiscard]] bool isIdentifier() const { return kind == SqlTokenKind::Word || kind == SqlTokenKind::Name; }
    /// The identifier without its brackets or quotes.
    [[nodiscard]] QString identifier() const;
};

/// The pieces of a statement without blanks and comments. They point into the text, which must outlive them.
[[nodiscard]] std::vector<SqlToken> sqlTokens(QStringView statement);

/// A name as a generated statement spells it, whatever signs or reserved words it holds.
[[nodiscard]] QString quotedName(const QString& name);

}  // namespace data
