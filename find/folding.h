#pragma once

#include <QString>
#include <QStringView>
#include <string_view>
#include <vector>

namespace find {

/// What is left of a text when case, accents and the way in which a digit is written don't count: "Zoë" and "ZOE" are
/// "zoe", "ß" is "ss". A letter that is one of its own stays, "ø" is no "o".
[[nodiscard]] QString folded(QStringView text);

/// A folded text that knows which character of the whole one each of its own comes from.
struct FoldedText {
    QString text;
    std::vector<qsizetype> origins;
};
[[nodiscard]] FoldedText foldedWithOrigins(QStringView text);

/// Texts of the file, folded, one behind the other in UTF-8. Its room is kept from one use to the next.
class FoldedTexts {
public:
    void clear() { end_ = 0; }
    /// A text of plain letters takes about as long as its copy.
    void append(std::string_view utf8);
    /// A sign that stands as it is.
    void append(char sign);
    [[nodiscard]] std::string_view view() const { return {room_.data(), end_}; }

private:
    void makeRoom(std::size_t bytes);
    void appendBeyondAscii(std::string_view utf8);

    std::vector<char> room_;
    std::size_t end_ = 0;
};

}  // namespace find
