#include "platform/forms/box_text.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// True for a text that a box gives back as it got it.
bool staysAsItIs(const QString& text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool endsLine = c == u'\r' && i + 1 < text.size() && text.at(i + 1) == u'\n';
        if (endsLine) ++i;
        const bool isTurned =
            c == u'\r' || c == u'\n' || c == QChar::Nbsp || c == QChar::ParagraphSeparator || c == QChar::LineSeparator;
        if (isTurned && !endsLine) return false;
    }
    return true;
}

}  // namespace

QString cutToBox(const QString& text, int maxLength) {
    if (maxLength <= 0 || text.size() <= maxLength) return text;
    const bool cutsPair = text[maxLength - 1].isHighSurrogate() && text[maxLength].isLowSurrogate();
    return text.left(cutsPair ? maxLength - 1 : maxLength);
}

QString asInMemo(QString text) {
    if (staysAsItIs(text)) return text;
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(QChar::Nbsp, u' ');
    text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    return text.replace(u'\n', u"\r\n"_s);
}

}  // namespace platform
