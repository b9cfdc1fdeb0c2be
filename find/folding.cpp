#include "find/folding.h"

#include <QList>
#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

namespace find {

namespace {

QString foldedCharacter(char32_t character) {
    QString left;
    // By way of the capitals, for a letter that is two of them.
    const QString capitals = QString::fromUcs4(&character, 1).toUpper();
    const QString whole = capitals.toCaseFolded().normalized(QString::NormalizationForm_KD);
    for (const char32_t part : whole.toUcs4()) {
        if (QChar::category(part) == QChar::Mark_NonSpacing) continue;
        const int digit = QChar::digitValue(part);
        left += digit >= 0 ? QString(QChar(u'0' + digit)) : QString::fromUcs4(&part, 1);
    }
    return left.toCaseFolded();
}

/// What the characters fold to, each found out once.
class Folds {
public:
    /// The longest that a character folds to.
    static constexpr std::size_t longest = 63;

    /// Writes what the character folds to, where there is room for the longest; gives its length.
    std::size_t write(char32_t character, char* to) {
        // The letters of a text come from one page, nearly all of them.
        if (const char32_t number = character >> pageBits; !lastPage_ || number != lastNumber_) turnTo(number);
        Fold& fold = (*lastPage_)[character & (pageSize - 1)];
        if (fold.length == unknown) find(character, fold);
        if (fold.length == isLong) return foldedCharacter(character).toStdString().copy(to, longest);
        // All of it is copied faster than what counts.
        std::memcpy(to, fold.bytes.data(), fold.bytes.size());
        return fold.length;
    }

private:
    static constexpr unsigned char unknown = 0xFF;
    static constexpr unsigned char isLong = 0xFE;
    struct Fold {
        unsigned char length = unknown;
        std::array<char, 15> bytes{};
    };
    static constexpr int pageBits = 8;
    static constexpr std::size_t pageSize = 1 << pageBits;
    static constexpr std::size_t pageCount = 0x110000 / pageSize;
    using Page = std::array<Fold, pageSize>;

    void turnTo(char32_t number) {
        auto& page = pages_[number];
        if (!page) page = std::make_unique<Page>();
        lastPage_ = page.get();
        lastNumber_ = number;
    }
    static void find(char32_t character, Fold& fold) {
        const std::string bytes = foldedCharacter(character).toStdString();
        const bool fits = bytes.size() <= fold.bytes.size();
        fold.length = fits ? static_cast<unsigned char>(bytes.size()) : isLong;
        if (fits) bytes.copy(fold.bytes.data(), bytes.size());
    }

    std::vector<std::unique_ptr<Page>> pages_{pageCount};
    Page* lastPage_ = nullptr;
    char32_t lastNumber_ = pageCount;
};

constexpr unsigned char firstBeyondAscii = 0x80;

char lower(char character) {
    return static_cast<char>(character + (character >= 'A' && character <= 'Z' ? 'a' - 'A' : 0));
}

/// So many bytes are one step of the processor's, where the compiler sees that there are as many and that they lie
/// apart from everything else.
using Block = std::array<char, 16>;

/// Small letters for plain ones; false, and nothing of use in the block, when it holds a byte beyond ASCII.
bool makeLower(Block& block) {
    unsigned char seen = 0;
    for (char& character : block) {
        seen = static_cast<unsigned char>(seen | static_cast<unsigned char>(character));
        character = lower(character);
    }
    return seen < firstBeyondAscii;
}

/// The character that begins with the byte there, and how many bytes it has; a byte that begins none stands for itself.
struct Decoded {
    char32_t character;
    std::size_t length;
};

Decoded decode(std::string_view text) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    const unsigned char lead = byte(0);
    if (lead >= 0xC2 && lead < 0xE0 && text.size() > 1 && (byte(1) & 0xC0) == 0x80)
        return {static_cast<char32_t>(lead & 0x1F) << 6 | (byte(1) & 0x3F), 2};
    const std::size_t length = lead < 0xC2 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 1;
    if (length == 1 || length > text.size()) return {lead, 1};
    char32_t character = lead & (0xFF >> (length + 1));
    for (std::size_t at = 1; at < length; ++at) {
        if ((byte(at) & 0xC0) != 0x80) return {lead, 1};
        character = (character << 6) | (byte(at) & 0x3F);
    }
    return {character, length};
}

}  // namespace

void FoldedTexts::makeRoom(std::size_t bytes) {
    if (room_.size() < end_ + bytes) room_.resize(2 * (end_ + bytes));
}

void FoldedTexts::append(char sign) {
    makeRoom(1);
    room_[end_++] = sign;
}

void FoldedTexts::append(std::string_view utf8) {
    makeRoom(utf8.size() + sizeof(Block));
    while (!utf8.empty()) {
        Block block{};
        const std::size_t taken = utf8.copy(block.data(), block.size());
        if (!makeLower(block)) return appendBeyondAscii(utf8);
        std::ranges::copy(block, room_.data() + end_);
        end_ += taken;
        utf8.remove_prefix(taken);
    }
}

void FoldedTexts::appendBeyondAscii(std::string_view utf8) {
    static Folds folds;
    while (!utf8.empty()) {
        // So many characters have room whatever they fold to.
        constexpr std::size_t atOnce = 16;
        makeRoom(atOnce * Folds::longest);
        char* to = room_.data() + end_;
        for (std::size_t done = 0; done < atOnce && !utf8.empty(); ++done) {
            const auto [character, length] = decode(utf8);
            utf8.remove_prefix(length);
            if (character < firstBeyondAscii) {
                *to++ = lower(static_cast<char>(character));
            } else {
                to += folds.write(character, to);
            }
        }
        end_ = static_cast<std::size_t>(to - room_.data());
    }
}

QString folded(QStringView text) {
    FoldedTexts left;
    left.append(text.toUtf8().toStdString());
    return QString::fromUtf8(left.view().data(), static_cast<qsizetype>(left.view().size()));
}

FoldedText foldedWithOrigins(QStringView text) {
    FoldedText result;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype length = text[at].isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
        const QString part = folded(text.sliced(at, length));
        result.text += part;
        result.origins.insert(result.origins.end(), static_cast<std::size_t>(part.size()), at);
        at += length;
    }
    return result;
}

}  // namespace find
