#include "output/contents.h"

#include "output/document.h"
#include "platform/base/text_positions.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr qsizetype lineWidth = 80;
constexpr qsizetype firstIndent = 6;
constexpr qsizetype indentOfLevel = 3;
/// Between the title and the number: a blank, some dots, a blank.
constexpr qsizetype leastLeader = 5;

/// A title from right to left would take the dots and the number along, were they one text with it.
ListingLine contentsLine(const BookEntry& entry) {
    const QString number = QString::number(entry.page);
    const qsizetype start = firstIndent + indentOfLevel * entry.level;
    const qsizetype room = lineWidth - start - number.size();
    const QString title = platform::fitting(entry.title, room - leastLeader).toString();
    const qsizetype width = platform::positionsOf(title);
    const QString leader = QString(room - width - 2, u'.') + u' ' + number;
    ListingLine line{.text = QString(start, u' ') + title + u' ' + leader};
    if (!platform::isEven(title)) line.cells = {{start, title}, {start + width + 1, leader}};
    return line;
}

}  // namespace

std::vector<PageLine> contentsLines(const QString& title, const std::vector<BookEntry>& entries, const QDate& today) {
    std::vector<PageLine> lines;
    const QStringList head = platform::printedLines(documentHead(title, today));
    for (const QString& line : head.first(head.size() - 1))
        lines.push_back({.line = {.text = line}});
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const bool leads = i + 1 < entries.size() && entries[i + 1].level > entries[i].level;
        lines.push_back({contentsLine(entries[i]), leads});
    }
    return lines;
}

}  // namespace output
