#include "data/sql_dialect.h"

#include <algorithm>
#include <optional>

#include "data/provider_error.h"
#include "data/sql_tokens.h"
#include "data/syntax_words.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

struct Change {
    qsizetype begin;
    qsizetype end;
    QString text;
};

void refuseWhatIsNoStatement(const QString& statement, const std::vector<SqlToken>& tokens) {
    if (statement.contains(QChar(0)))
        throw providerError(ProviderError::Syntax,
                            u"Syntax error in string in query expression '%1'."_s.arg(statement));
    if (tokens.empty())
        throw providerError(ProviderError::Syntax, u"Command text was not set for the command object."_s);
    for (size_t i = 1; i < tokens.size(); ++i)
        if (tokens[i - 1].isSymbol(u';') && !tokens[i].isSymbol(u';'))
            throw providerError(ProviderError::Syntax, u"Characters found after end of SQL statement."_s);
}

/// SQLite would take these for parameters without a value, and quietly compare with Null.
void refuseParameters(const QString& statement, const std::vector<SqlToken>& tokens) {
    for (const auto& token : tokens) {
        if (token.kind == SqlTokenKind::Word && token.text.startsWith(u'$'))
            throw providerError(ProviderError::Syntax, syntaxWords(statement, {}, token.begin));
        if (token.isSymbol(u'?') || token.isSymbol(u'@') || token.isSymbol(u':'))
            throw providerError(ProviderError::MissingParameter);
    }
}

/// Where the select that begins before token `from` ends: at its closing parenthesis, its semicolon or its last token.
qsizetype endOfSelect(const std::vector<SqlToken>& tokens, size_t from) {
    int depth = 0;
    for (size_t i = from; i < tokens.size(); ++i) {
        if (tokens[i].isSymbol(u'(')) ++depth;
        if (tokens[i].isSymbol(u')')) --depth;
        if (depth < 0 || tokens[i].isSymbol(u';')) return tokens[i - 1].end;
    }
    return tokens.back().end;
}

bool isWholeNumber(const SqlToken& token) {
    bool ok = false;
    if (token.kind == SqlTokenKind::Number) static_cast<void>(token.text.toInt(&ok));
    return ok;
}

/// `Select [Distinct] Top n ..` becomes `Select [Distinct] .. LIMIT n`.
void turnTop(const std::vector<SqlToken>& tokens, size_t select, std::vector<Change>& changes) {
    size_t top = select + 1;
    if (top < tokens.size() && (tokens[top].isWord(u"distinct") || tokens[top].isWord(u"all"))) ++top;
    if (top + 2 >= tokens.size() || !tokens[top].isWord(u"top") || !isWholeNumber(tokens[top + 1])) return;
    changes.push_back({tokens[top].begin, tokens[top + 1].end, {}});
    const auto end = endOfSelect(tokens, top + 2);
    changes.push_back({end, end, u" LIMIT "_s + tokens[top + 1].text.toString()});
}

/// A yes/no column holds -1 for true, where SQLite's own word means 1.
void turnTruth(const std::vector<SqlToken>& tokens, size_t at, std::vector<Change>& changes) {
    const auto& token = tokens[at];
    const bool isTrue = token.isWord(u"true");
    if (!isTrue && !token.isWord(u"false")) return;
    const bool namesColumn =
        (at > 0 && tokens[at - 1].isSymbol(u'.')) || (at + 1 < tokens.size() && tokens[at + 1].isSymbol(u'.'));
    const bool asksTruth = at > 0 && (tokens[at - 1].isWord(u"is") || tokens[at - 1].isWord(u"not"));
    if (!namesColumn && !asksTruth) changes.push_back({token.begin, token.end, isTrue ? u"(-1)"_s : u"0"_s});
}

std::vector<Change> changesFor(const std::vector<SqlToken>& tokens) {
    std::vector<Change> changes;
    if (tokens.size() > 2 && tokens[0].isWord(u"delete") && tokens[1].isSymbol(u'*'))
        changes.push_back({tokens[1].begin, tokens[1].end, u" "_s});
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (tokens[i].isWord(u"select")) turnTop(tokens, i, changes);
        turnTruth(tokens, i, changes);
    }
    return changes;
}

/// Token behind the table, or behind the joins in parentheses, at `from`.
size_t behindOperand(const std::vector<SqlToken>& tokens, size_t from) {
    int depth = 0;
    for (size_t i = from; i < tokens.size(); ++i) {
        if (tokens[i].isSymbol(u'(')) ++depth;
        if (tokens[i].isSymbol(u')')) --depth;
        if (depth == 0) return i + 1;
    }
    return tokens.size();
}

/// The word RIGHT of the last join `A RIGHT JOIN B ON` whose A is the first table of its FROM or parenthesis.
std::optional<size_t> lastRightJoin(const std::vector<SqlToken>& tokens) {
    for (size_t i = tokens.size(); i-- > 2;) {
        if (!tokens[i].isWord(u"right") || i + 3 >= tokens.size() || !tokens[i + 1].isWord(u"join")) continue;
        const bool isFirst = tokens[i - 2].isWord(u"from") || tokens[i - 2].isSymbol(u'(');
        const size_t behind = behindOperand(tokens, i + 2);
        if (isFirst && tokens[i - 1].isIdentifier() && behind < tokens.size() && tokens[behind].isWord(u"on")) return i;
    }
    return {};
}

/// `A RIGHT JOIN B` becomes `B LEFT JOIN A`, the inner one before the outer. Of a right join SQLite works out all rows
/// before it gives the first, in an order of its own; of a left join it gives them as B holds them.
QString withLeftJoins(QString statement) {
    for (;;) {
        const auto tokens = sqlTokens(statement);
        const auto right = lastRightJoin(tokens);
        if (!right) return statement;
        const auto& first = tokens[*right - 1];
        const auto kept = tokens[*right + 2].begin;
        const auto end = tokens[behindOperand(tokens, *right + 2) - 1].end;
        const QString turned =
            statement.mid(kept, end - kept) + u" LEFT JOIN "_s + statement.mid(first.begin, first.end - first.begin);
        statement.replace(first.begin, end - first.begin, turned);
    }
}

}  // namespace

QString toSqlite(const QString& statement) {
    const auto tokens = sqlTokens(statement);
    refuseWhatIsNoStatement(statement, tokens);
    refuseParameters(statement, tokens);
    auto changes = changesFor(tokens);
    std::stable_sort(changes.begin(), changes.end(),
                     [](const Change& left, const Change& right) { return left.begin > right.begin; });
    QString turned = statement;
    for (const auto& change : changes)
        turned.replace(change.begin, change.end - change.begin, change.text);
    const bool mayJoin =
        tokens.size() > 1 && !tokens[1].isSymbol(u'*') && turned.contains(u"right"_s, Qt::CaseInsensitive);
    return mayJoin ? withLeftJoins(turned) : turned;
}

}  // namespace data
