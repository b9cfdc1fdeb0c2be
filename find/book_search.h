#pragma once

#include <QString>
#include <chrono>
#include <memory>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include "data/row_scan.h"
#include "find/sought_words.h"
#include "session/record_locator.h"
#include "session/shown_rows.h"

namespace find {

/// A field, or a file attached, in a record that has all the words: one of the two has a word.
struct Hit {
    enum class In : quint8 { Field, FileName, FileDescription };

    qint64 row = 0;     ///< the record's ID; an attachment's own number
    quint16 shown = 0;  ///< in what the windows show, the record's window
    quint16 column = 0;
    In in = In::Field;
    qint16 member = 0;  ///< whose the record is; 0: nobody's in particular
};

/// A hit as it is told.
struct Finding {
    QString category;
    QString member;
    QString field{};
    QString text{};  ///< around the match
};

/// Looks through all that the windows show of the family's file, table by table, a slice at a time.
///
/// The first hits are kept, of all others only the number: neither a text nor a key of the file stays in memory.
class BookSearch {
public:
    /// So many hits are kept of the member's, and so many of the others'.
    static constexpr std::size_t mostKept = 2000;

    /// `all` is kept; it has to live longer.
    BookSearch(data::Connection& connection, std::span<const session::ShownRows> all);
    ~BookSearch();

    /// Begins anew. `member`: whose records and those of nobody in particular come first; 0: none come first. An empty
    /// text is in no record. Throws the provider's errors.
    void begin(const QString& typed, qint16 member);
    /// Goes on for about so long; false when all was looked through. Throws the provider's errors, and is over then.
    bool step(std::chrono::microseconds slice);
    [[nodiscard]] bool isOver() const { return !run_; }

    /// Fields with a word so far, whether they are kept or not.
    [[nodiscard]] qint64 places() const { return places_; }
    [[nodiscard]] const std::vector<Hit>& first() const { return first_; }
    [[nodiscard]] const std::vector<Hit>& others() const { return others_; }

    [[nodiscard]] Finding finding(const Hit& hit);
    /// Nullopt for a file whose record has gone.
    [[nodiscard]] std::optional<session::Place> place(const Hit& hit);

private:
    struct FieldRead;
    struct Layout;
    struct Source;
    struct Run;

    [[nodiscard]] std::vector<Source> makeSources() const;
    [[nodiscard]] static Source& sourceOf(std::vector<Source>& sources, const session::ShownRows& shown);
    void addFields(Source& source, quint16 shown) const;
    void readMembers();
    /// False behind the last one.
    [[nodiscard]] bool openSource();
    void matchRow(const Source& source);
    [[nodiscard]] bool allWordsFound(const Layout& layout);
    /// Notes the fields of the row that have a word.
    void markFields(const Layout& layout);
    [[nodiscard]] bool valueHas(const SoughtWord& word, const FieldRead& read);
    /// Whose the row is; nullopt for one that no window shows.
    [[nodiscard]] std::optional<qint16> memberOf(const Layout& layout);
    void addRecord(const Layout& layout);
    void addAttachment();
    void keep(const Hit& hit);
    [[nodiscard]] QString textOf(const Hit& hit);
    [[nodiscard]] QString attachmentText(qint64 row, const QString& column);

    data::Connection& connection_;
    std::span<const session::ShownRows> all_;
    std::vector<Source> sources_;
    std::unique_ptr<Run> run_;
    std::optional<SoughtWords> words_;
    qint16 member_ = 0;
    std::unordered_map<qint64, QString> members_;
    session::RecordLocator locator_;
    qint64 places_ = 0;
    std::vector<Hit> first_;
    std::vector<Hit> others_;
};

}  // namespace find
