#include "output/contents.h"

#include "output/document.h"
#include "platform/base/text_positions.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr qsizetype lineWidth = 80;
constexpr qsizetype indent = 6;
constexpr qsizetype indentOfLevel = 3;
/// Between the title and the number: a blank, some dots, a blank.
constexpr qsizetype leastLeader = 5;

QString contentsLine(const BookEntry& entry) {
    const QString number = QString::number(entry.page);
    const QString start((indent + indentOfLevel * entry.level), u' ');
    const qsizetype room = lineWidth - start.size() - number.size();
    const QStringView title = platform::fitting(entry.title, room - leastLeader);
    const qsizetype leader = room - platform::positionsOf(title);
    return start + title.toString() + u' ' + QString(leader - 2, u'.') + u' ' + number;
}

}  // namespace

QString contentsDocument(const QString& title, const std::vector<BookEntry>& entries, const QDate& today) {
    QString text = documentHead(title, today);
    for (const BookEntry& entry : entries)
        text += contentsLine(entry) + u"\r\n"_s;
    return text;
}

}  // namespace output
