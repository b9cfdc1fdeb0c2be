#include "output/listing.h"

#include <algorithm>

#include "output/segments.h"
#include "platform/base/date_text.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr int pageCharacters = 80;
constexpr int fullPage = 50;
const QString margin(10, u' ');
const QString lineEnd = u"\r\n"_s;

/// Cuts all cells of a row. Gives the lines that the highest of them takes.
int cut(Segments& segments, const std::vector<GridColumn>& columns, const QStringList& cells) {
    int highest = 0;
    for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
        const int width = columns[static_cast<std::size_t>(column)].width;
        int line = 1;
        const Segment* last = &segments.add(column, cells[column], 1, width, line);
        while (!last->isLast())
            last = &segments.add(column, cells[column], last->startPos + last->textLength, width, ++line);
        highest = std::max(highest, line);
    }
    return highest;
}

/// Texts hold an ampersand between blanks doubled; on paper it is single, and keeps its place with one blank more.
QString withSingleAmpersands(QString line) {
    return line.replace(u" && "_s, u" &  "_s);
}

QString withoutControls(QString text) {
    std::ranges::replace_if(
        text, [](QChar character) { return character < u' '; }, QChar(u' '));
    return text;
}

}  // namespace

int listingWidth(double column, int grid) {
    return grid > 0 ? std::max(1, static_cast<int>(column / grid * pageCharacters)) : 1;
}

QString listingTitle(const PrintableGrid& grid, const QDate& today) {
    return u"The "_s + grid.caption + u" Listing As Of "_s + platform::mediumDate(today);
}

QString listingHeading(const std::vector<GridColumn>& columns) {
    QString heading = margin;
    for (const auto& [caption, width] : columns) {
        if (caption.size() < width) {
            heading += caption.leftJustified(width + 1);
        } else {
            heading += caption.first(width - 1) + u"  "_s;
        }
    }
    return heading;
}

QStringList listingLines(const std::vector<GridColumn>& columns, const QStringList& cells) {
    Segments segments;
    const int lineCount = cut(segments, columns, cells);
    QStringList lines;
    for (int line = 1; line <= lineCount; ++line) {
        QString text = margin;
        for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
            const int width = columns[static_cast<std::size_t>(column)].width;
            text += withoutControls(segments.item(line, column).segmentText).leftJustified(width) + u' ';
        }
        lines << withSingleAmpersands(text);
    }
    return lines;
}

QString gridDocument(const PrintableGrid& grid, const QDate& today) {
    QString text = margin + listingTitle(grid, today) + lineEnd + lineEnd;
    text += listingHeading(grid.columns) + lineEnd + lineEnd;
    grid.walk([&](const QStringList& cells) {
        const QStringList lines = listingLines(grid.columns, cells);
        for (const QString& line : lines)
            text += line + lineEnd;
        text += lineEnd;
    });
    return text;
}

// Pages ------------------------------------------------------------------------------------------------------------

void ListingPages::addRow(const QStringList& lines) {
    for (const QString& line : lines)
        addLine(line);
    if (!text_.isEmpty()) addLine({});
}

void ListingPages::addLine(const QString& line) {
    text_ += line + lineEnd;
    if (++lines_ > fullPage) finish();
}

void ListingPages::finish() {
    if (!text_.isEmpty()) print_(text_);
    text_.clear();
    lines_ = 0;
}

}  // namespace output
