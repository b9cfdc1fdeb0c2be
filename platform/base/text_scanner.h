#pragma once

#include <QStringView>

namespace platform {

[[nodiscard]] constexpr bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}
[[nodiscard]] constexpr bool isBlank(QChar c) {
    return c == u' ' || c == u'\t';
}

/// Walks through a text from its front; what it gives are views into that text.
class TextScanner {
public:
    explicit TextScanner(QStringView text) : text_(text) {}

    [[nodiscard]] bool atEnd() const { return at_ == text_.size(); }
    /// The next character; NUL at the end.
    [[nodiscard]] QChar peek() const { return atEnd() ? QChar() : text_[at_]; }
    [[nodiscard]] qsizetype position() const { return at_; }
    void goTo(qsizetype position) { at_ = position; }

    /// Steps over the next character if it is one of these.
    bool accept(QStringView characters) {
        const bool fits = !atEnd() && characters.contains(text_[at_]);
        if (fits) ++at_;
        return fits;
    }

    /// Steps over the whole word if it comes next; never over an empty one.
    bool acceptWord(QStringView word) {
        const bool fits = !word.isEmpty() && text_.sliced(at_).startsWith(word);
        if (fits) at_ += word.size();
        return fits;
    }

    /// Steps over as many characters as pass the test.
    template <typename Test>
    QStringView takeWhile(Test test) {
        const qsizetype from = at_;
        while (!atEnd() && test(text_[at_]))
            ++at_;
        return text_.sliced(from, at_ - from);
    }

private:
    QStringView text_;
    qsizetype at_ = 0;
};

}  // namespace platform
