#pragma once

#include <QString>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "data/table_definition.h"
#include "platform/base/region.h"

namespace find {

/// A word as it is compared, with what tells quickly that it stands in no number and no date.
struct SoughtWord {
    std::string text;      ///< folded
    std::string digits{};  ///< those in it, in their order
    bool inNumbers = false;
    bool inDates = false;
    std::size_t anchor = 0;  ///< of its bytes the one that is looked for first

    /// Where the word begins in a folded text; npos where it isn't.
    [[nodiscard]] std::size_t placeIn(std::string_view folded) const;
    [[nodiscard]] bool isIn(std::string_view folded) const { return placeIn(folded) != std::string_view::npos; }
};

/// What the user looks for: words that all have to be in one record.
class SoughtWords {
public:
    explicit SoughtWords(const QString& typed, const platform::Region& region = platform::systemRegion());

    [[nodiscard]] const std::vector<SoughtWord>& words() const { return words_; }
    /// The word is in a number as its column shows it, or in it plainly written. `decimals`: those of the column.
    [[nodiscard]] bool numberHas(const SoughtWord& word, double value, const data::Column& column, int decimals) const;
    /// The same of a date; `stored` as the file holds it.
    [[nodiscard]] bool dateHas(const SoughtWord& word, std::string_view stored, const data::Column& column);

private:
    [[nodiscard]] const std::string& shownDate(std::string_view stored, const data::Column& column);

    const platform::Region& region_;
    std::vector<SoughtWord> words_;
    /// By format, what the dates that were looked at show.
    std::map<QLatin1StringView, std::unordered_map<std::string, std::string>> dates_;
};

/// How many decimals a column shows; -1 where it shows not the number itself but hundredths of it.
[[nodiscard]] int decimalsOf(const data::Column& column);
/// What a window shows of a value of the file.
[[nodiscard]] QString shownNumber(double value, const data::Column& column,
                                  const platform::Region& region = platform::systemRegion());
[[nodiscard]] QString shownDate(std::string_view stored, const data::Column& column,
                                const platform::Region& region = platform::systemRegion());

}  // namespace find
