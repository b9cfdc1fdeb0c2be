#include "data/sql_dialect.h"

#include "data/sql_tokens.h"
#include "data/syntax_words.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

void refuseWhatIsNoStatement(const QString& statement, const std::vector<SqlToken>& tokens) {
    if (statement.contains(QChar(0)))
        throw platform::RuntimeError(platform::Error::Syntax,
                                     u"Syntax error in string in query expression '%1'."_s.arg(statement));
    if (tokens.empty())
        throw platform::RuntimeError(platform::Error::Syntax, u"Command text was not set for the command object."_s);
    for (size_t i = 1; i < tokens.size(); ++i)
        if (tokens[i - 1].isSymbol(u';') && !tokens[i].isSymbol(u';'))
            throw platform::RuntimeError(platform::Error::Syntax, u"Characters found after end of SQL statement."_s);
}

/// SQLite would take these for parameters without a value, and quietly compare with Null.
void refuseParameters(const QString& statement, const std::vector<SqlToken>& tokens) {
    for (const auto& token : tokens) {
        if (token.kind == SqlTokenKind::Word && token.text.startsWith(u'$'))
            throw platform::RuntimeError(platform::Error::Syntax, syntaxWords(statement, {}, token.begin));
        if (token.isSymbol(u'?') || token.isSymbol(u'@') || token.isSymbol(u':'))
            throw platform::RuntimeError(platform::Error::MissingParameter);
    }
}

/// A yes/no column holds -1 for true, where SQLite's own word means 1.
void turnTruth(const std::vector<SqlToken>& tokens, size_t at, QString& statement) {
    const auto& token = tokens[at];
    const bool isTrue = token.isWord(u"true");
    if (!isTrue && !token.isWord(u"false")) return;
    const bool namesColumn =
        (at > 0 && tokens[at - 1].isSymbol(u'.')) || (at + 1 < tokens.size() && tokens[at + 1].isSymbol(u'.'));
    const bool asksTruth = at > 0 && (tokens[at - 1].isWord(u"is") || tokens[at - 1].isWord(u"not"));
    if (!namesColumn && !asksTruth)
        statement.replace(token.begin, token.end - token.begin, isTrue ? u"(-1)"_s : u"0"_s);
}

}  // namespace

QString toSqlite(const QString& statement) {
    const auto tokens = sqlTokens(statement);
    refuseWhatIsNoStatement(statement, tokens);
    refuseParameters(statement, tokens);
    QString turned = statement;
    // From the end, so that the places before stay where they are.
    for (size_t i = tokens.size(); i-- > 0;)
        turnTruth(tokens, i, turned);
    return turned;
}

}  // namespace data
