#include "output/listing.h"

#include <algorithm>

#include "output/line_end.h"
#include "output/segments.h"
#include "platform/base/date_text.h"
#include "platform/base/text_positions.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr int pageCharacters = 80;
constexpr std::size_t fullPage = 50;
const QString margin(10, u' ');

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

/// A line of the pieces that stand in its columns, each filled up to its column's width.
ListingLine lineOf(const std::vector<GridColumn>& columns, const std::vector<QString>& pieces) {
    ListingLine line{.text = margin};
    for (const QString& piece : pieces)
        line.text += piece + u' ';
    line.text = withSingleAmpersands(line.text);
    if (platform::isEven(line.text)) return line;
    qsizetype start = margin.size();
    qsizetype position = margin.size();
    for (std::size_t column = 0; column < pieces.size(); ++column) {
        const QString text = line.text.sliced(start, pieces[column].size()).trimmed();
        if (!text.isEmpty()) line.cells.push_back({position, text});
        start += pieces[column].size() + 1;
        position += columns[column].width + 1;
    }
    return line;
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

std::vector<ListingLine> listingLines(const std::vector<GridColumn>& columns, const QStringList& cells) {
    Segments segments;
    const int lineCount = cut(segments, columns, cells);
    std::vector<ListingLine> lines;
    for (int line = 1; line <= lineCount; ++line) {
        std::vector<QString> texts;
        for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
            const int width = columns[static_cast<std::size_t>(column)].width;
            texts.push_back(withoutControls(platform::paddedTo(segments.item(line, column).segmentText, width)));
        }
        lines.push_back(lineOf(columns, texts));
    }
    return lines;
}

QString gridDocument(const PrintableGrid& grid, const QDate& today) {
    QString text = margin + listingTitle(grid, today) + lineEnd + lineEnd;
    text += listingHeading(grid.columns) + lineEnd + lineEnd;
    grid.walk([&](const QStringList& cells) {
        for (const ListingLine& line : listingLines(grid.columns, cells))
            text += line.text + lineEnd;
        text += lineEnd;
    });
    return text;
}

// Pages ------------------------------------------------------------------------------------------------------------

void ListingPages::addRow(const std::vector<ListingLine>& lines) {
    for (const ListingLine& line : lines)
        addLine(line);
    if (!page_.empty()) addLine({});
}

void ListingPages::addLine(const ListingLine& line) {
    page_.push_back(line);
    if (page_.size() > fullPage) finish();
}

void ListingPages::finish() {
    if (!page_.empty()) print_(page_);
    page_.clear();
}

}  // namespace output
