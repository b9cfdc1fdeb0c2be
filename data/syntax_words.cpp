#include "data/syntax_words.h"

#include "data/sql_tokens.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

enum class Clause { Head, List, From, Expression, OrderBy, Set };

/// The part of a statement in which the parser stopped.
struct Place {
    Clause clause = Clause::Head;
    qsizetype begin = 0;
};

Place placeOf(const std::vector<SqlToken>& tokens, qsizetype offset) {
    Place place;
    for (const auto& token : tokens) {
        if (token.begin >= offset) break;
        if (token.isWord(u"where") || token.isWord(u"on") || token.isWord(u"having"))
            place = {Clause::Expression, token.end};
        else if (token.isWord(u"from") || token.isWord(u"join"))
            place = {Clause::From, token.end};
        else if (token.isWord(u"order"))
            place = {Clause::OrderBy, token.end};
        else if (token.isWord(u"set"))
            place = {Clause::Set, token.end};
        else if (token.isWord(u"select"))
            place = {Clause::List, token.end};
    }
    return place;
}

/// From behind the clause's word to the next clause or the end of the statement.
QString expressionAt(const QString& statement, const std::vector<SqlToken>& tokens, qsizetype begin) {
    qsizetype end = statement.size();
    for (const auto& token : tokens) {
        const bool closes = token.isWord(u"where") || token.isWord(u"from") || token.isWord(u"order") ||
                            token.isWord(u"group") || token.isWord(u"limit") || token.isSymbol(u';');
        if (token.begin >= begin && closes) {
            end = token.begin;
            break;
        }
    }
    return statement.mid(begin, end - begin).trimmed();
}

/// A comma inside a number, as in `1,234`.
bool splitsNumber(const std::vector<SqlToken>& tokens, qsizetype offset) {
    for (size_t i = 1; i + 1 < tokens.size(); ++i) {
        const bool between = tokens[i].isSymbol(u',') && tokens[i - 1].kind == SqlTokenKind::Number &&
                             tokens[i + 1].kind == SqlTokenKind::Number;
        if (between && (offset == tokens[i].begin || offset == tokens[i + 1].begin)) return true;
    }
    return false;
}

QString headWords(const std::vector<SqlToken>& tokens) {
    const auto& first = tokens.front();
    if (first.isWord(u"insert")) return u"Syntax error in INSERT INTO statement."_s;
    if (first.isWord(u"update") || first.isWord(u"delete"))
        return u"Syntax error in %1 statement."_s.arg(first.text.toString().toUpper());
    return u"Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', 'SELECT', or 'UPDATE'."_s;
}

}  // namespace

QString syntaxWords(const QString& statement, const QString& message, qsizetype offset) {
    const auto tokens = sqlTokens(statement);
    const auto stop = offset < 0 ? statement.size() : offset;
    const Place place = placeOf(tokens, stop);
    const QString expression = expressionAt(statement, tokens, place.begin);
    const bool isOpen = tokens.back().kind == SqlTokenKind::Unclosed && stop >= tokens.back().begin;
    if (isOpen && message.startsWith(u"unrecognized token"_s))
        return u"Syntax error in string in query expression '%1'."_s.arg(expression);
    if (splitsNumber(tokens, stop) || message.startsWith(u"row value misused"_s))
        return u"Syntax error (comma) in query expression '%1'."_s.arg(expression);
    switch (place.clause) {
        case Clause::From:
            return u"Syntax error in FROM clause."_s;
        case Clause::OrderBy:
            return u"Syntax error in ORDER BY clause."_s;
        case Clause::Set:
            return u"Syntax error in UPDATE statement."_s;
        case Clause::Head:
            return headWords(tokens);
        default:
            return u"Syntax error (missing operator) in query expression '%1'."_s.arg(expression);
    }
}

}  // namespace data
