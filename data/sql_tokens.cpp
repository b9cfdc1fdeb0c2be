#include "data/sql_tokens.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

/// Walks once over a statement and cuts it into tokens.
class Scanner {
public:
    explicit Scanner(QStringView text) : text_(text) {}

    std::vector<SqlToken> run() {
        while (skipBlanksAndComments())
            scanOne();
        return std::move(tokens_);
    }

private:
    [[nodiscard]] QChar at(qsizetype offset) const { return offset < text_.size() ? text_[offset] : QChar(); }
    [[nodiscard]] bool startsComment(QStringView sign) const { return text_.mid(at_).startsWith(sign); }

    void skipThrough(QStringView sign) {
        const auto found = text_.indexOf(sign, at_ + 2);
        at_ = found < 0 ? text_.size() : found + sign.size();
    }

    bool skipBlanksAndComments() {
        while (at_ < text_.size()) {
            if (text_[at_].isSpace())
                ++at_;
            else if (startsComment(u"--"))
                skipThrough(u"\n");
            else if (startsComment(u"/*"))
                skipThrough(u"*/");
            else
                return true;
        }
        return false;
    }

    void add(SqlTokenKind kind, qsizetype end) {
        tokens_.push_back({kind, at_, end, text_.sliced(at_, end - at_)});
        at_ = end;
    }

    static bool isWordSign(QChar sign) { return sign.isLetterOrNumber() || sign == u'_' || sign == u'$'; }

    void scanOne() {
        const QChar sign = text_[at_];
        if (sign == u'\'')
            scanQuoted(sign, SqlTokenKind::Text);
        else if (sign == u'"' || sign == u'`')
            scanQuoted(sign, SqlTokenKind::Name);
        else if (sign == u'[')
            scanQuoted(u']', SqlTokenKind::Name);
        else if (sign.isDigit() || (sign == u'.' && at(at_ + 1).isDigit()))
            scanNumber();
        else if (isWordSign(sign))
            scanWord();
        else
            add(SqlTokenKind::Symbol, at_ + 1);
    }

    /// Inside a text its closing sign stands for itself when doubled; a bracket can't be doubled.
    void scanQuoted(QChar closing, SqlTokenKind kind) {
        auto end = at_ + 1;
        while (end < text_.size()) {
            if (text_[end] != closing)
                ++end;
            else if (closing != u']' && at(end + 1) == closing)
                end += 2;
            else
                return add(kind, end + 1);
        }
        add(SqlTokenKind::Unclosed, text_.size());
    }

    void scanNumber() {
        auto end = at_;
        while (isWordSign(at(end)) || at(end) == u'.' ||
               ((at(end) == u'+' || at(end) == u'-') && at(end - 1).toLower() == u'e'))
            ++end;
        add(SqlTokenKind::Number, end);
    }

    void scanWord() {
        auto end = at_;
        while (isWordSign(at(end)))
            ++end;
        add(SqlTokenKind::Word, end);
    }

    QStringView text_;
    qsizetype at_ = 0;
    std::vector<SqlToken> tokens_;
};

}  // namespace

bool SqlToken::isWord(QStringView word) const {
    return kind == SqlTokenKind::Word && text.compare(word, Qt::CaseInsensitive) == 0;
}

QString SqlToken::identifier() const {
    if (kind != SqlTokenKind::Name) return text.toString();
    const QString inside = text.sliced(1, text.size() - 2).toString();
    const QString closing = text.last(1).toString();
    return closing == u"]"_s ? inside : QString(inside).replace(closing + closing, closing);
}

std::vector<SqlToken> sqlTokens(QStringView statement) {
    return Scanner(statement).run();
}

QString quotedName(const QString& name) {
    return u'"' + QString(name).replace(u"\""_s, u"\"\""_s) + u'"';
}

}  // namespace data
