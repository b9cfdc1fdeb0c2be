#include "output/field_entry.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "output/line_end.h"
#include "output/printable_screen.h"
#include "platform/base/text_positions.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr qsizetype pageWidth = 80;
/// The first line may run five characters beyond the page's width.
constexpr qsizetype firstLineWidth = 85;
/// How far back from the end of a line a blank is looked for.
constexpr qsizetype blankReach = 20;

/// A value by the positions that it takes on a line, which count from 1.
class Value {
public:
    explicit Value(const QString& text);

    [[nodiscard]] qsizetype length() const { return units_.empty() ? text_.size() : std::ssize(units_) - 1; }
    /// Position of the first line end from a position on; 0 for none.
    [[nodiscard]] qsizetype lineEndFrom(qsizetype start) const {
        const qsizetype unit = text_.indexOf(lineEnd, unitAt(start));
        if (unit < 0 || units_.empty()) return unit + 1;
        return std::ranges::lower_bound(units_, unit) - units_.begin() + 1;
    }
    [[nodiscard]] bool hasBlankAt(qsizetype position) const {
        return position >= 1 && position <= length() && text_.at(unitAt(position)) == u' ';
    }
    /// The characters from one position through another; empty when they are the wrong way round.
    [[nodiscard]] QStringView through(qsizetype start, qsizetype end) const {
        return end < start ? QStringView() : QStringView(text_).mid(unitAt(start), unitAt(end + 1) - unitAt(start));
    }
    /// The position, or the one before where a cut behind it would go through a wide character.
    [[nodiscard]] qsizetype wholeCharacter(qsizetype position) const {
        const bool cuts = position >= 1 && position < length() && unitAt(position + 1) == unitAt(position);
        return cuts ? position - 1 : position;
    }

private:
    /// Where the character at a position begins in the text; the end of the text for positions behind it.
    [[nodiscard]] qsizetype unitAt(qsizetype position) const {
        const qsizetype at = std::clamp<qsizetype>(position - 1, 0, length());
        return units_.empty() ? at : units_[static_cast<std::size_t>(at)];
    }

    const QString& text_;
    /// By positions, twice for a wide character, with the end of the text behind the last one. Empty where each code
    /// unit has a position of its own.
    std::vector<qsizetype> units_;
};

Value::Value(const QString& text) : text_(text) {
    if (platform::isEven(text)) return;
    for (const auto& [start, length, positions] : platform::graphemesOf(text)) {
        const bool isControl = positions == length && text.at(start) < u' ';
        for (int i = 0; i < positions; ++i)
            units_.push_back(isControl ? start + i : start);
    }
    if (units_.empty()) return;
    units_.push_back(text.size());
    // What takes no position goes with the character before it, and at the front with the first one.
    units_.front() = 0;
}

struct Break {
    qsizetype end = 0;
    bool isLineEnd = false;  ///< the piece ends in the CR of the value's own line end
};

Break breakFor(const Value& value, qsizetype start, qsizetype end) {
    const qsizetype hard = value.lineEndFrom(start);
    if (hard > 0 && hard < end) return {hard, true};
    for (qsizetype at = end; at >= end - blankReach; --at) {
        // Behind so long a label nothing fits: the value begins on the next line.
        if (at < 1 && end < blankReach) return {0, false};
        if (value.hasBlankAt(at)) return {at, false};
    }
    return {value.wholeCharacter(end), false};
}

QString shortEntry(const Value& value, const QString& prefix, const QString& indent, Medium medium) {
    const qsizetype first = value.lineEndFrom(1);
    QString entry = prefix;
    if (first == 0) return entry.append(value.through(1, value.length())).append(lineEnd).append(u"     "_s);
    entry += value.through(1, first);
    if (medium == Medium::File) entry += lineEnd;
    qsizetype start = first + 2;
    for (qsizetype next = value.lineEndFrom(start); next > 0; next = value.lineEndFrom(start)) {
        entry.append(indent).append(value.through(start, next));
        start = next + 2;
    }
    if (start < value.length()) {
        entry.append(indent).append(value.through(start, value.wholeCharacter(value.length() - 1)));
        if (medium == Medium::Page) entry += lineEnd;
    }
    return entry;
}

QString longEntry(const Value& value, const QString& prefix, const QString& indent) {
    QString entry = prefix;
    qsizetype start = 1;
    qsizetype end = firstLineWidth - prefix.size();
    for (bool isFirst = true; start < value.length(); isFirst = false) {
        const Break piece = breakFor(value, start, end);
        if (!isFirst) entry += indent;
        entry += value.through(start, piece.end);
        if (piece.isLineEnd) {
            start = piece.end + 2;
        } else {
            entry += lineEnd;
            start = piece.end + 1;
            while (value.hasBlankAt(start))
                ++start;
        }
        // Counted from where this line ended, so the blanks that were skipped make the next one shorter.
        end = piece.end + pageWidth;
    }
    return entry;
}

}  // namespace

QString fieldEntry(const PrintableField& field, Medium medium) {
    const int number = field.index + 1;
    QString prefix = u"      "_s;
    prefix.append(QString::number(number)).append(u".  ").append(field.label).append(u" - ");
    const QString indent(number < 10 ? 10 : 11, u' ');
    const Value value(field.value);
    const bool fits = value.length() < pageWidth - prefix.size();
    QString entry = fits ? shortEntry(value, prefix, indent, medium) : longEntry(value, prefix, indent);
    return entry.append(lineEnd);
}

}  // namespace output
