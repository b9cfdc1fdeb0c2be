#pragma once

#include <QString>
#include <vector>

#include "book/chapter.h"
#include "session/owner_names.h"
#include "session/selection.h"

namespace data {
class Connection;
}

namespace book {

class BookVisitor;

/// The names of the files that are attached to records, category by category.
class AttachedFiles {
public:
    AttachedFiles(data::Connection& connection, session::Selection selection, const std::vector<Chapter>& chapters);

    /// The list of them. For one member it has those of his records and of records that belong to nobody in particular.
    /// False when the visitor wanted no more.
    bool read(BookVisitor& visitor);

private:
    /// A kind of record, and how one finds the record that a file is attached to, and its owner.
    struct Kind {
        QString category;
        QString prefix;  ///< of its attachment keys
        QString table{};
        enum class Owner { Nobody, Itself, InRow, OfSite } owner = Owner::Nobody;
        /// The record's number is the first one in the key, and not the last.
        bool numberedFirst = false;
        /// By which the rows of windows with one table and one prefix are told apart; 0 for a table of one's own.
        int type = 0;
    };
    struct Whose {
        bool isShared = false;
        int member = 0;  ///< 0 for a record that has gone
    };

    static void addKinds(std::vector<Kind>& kinds, const Chapter& chapter);
    bool readKind(const Kind& kind, BookVisitor& visitor);
    [[nodiscard]] static qint64 recordOf(const Kind& kind, const QString& key);
    [[nodiscard]] Whose ownerOf(const Kind& kind, qint64 record);
    [[nodiscard]] int ownerOfSite(int type, int site);
    [[nodiscard]] int number(const QString& column, const QString& table, qint64 id);
    [[nodiscard]] QString nameOf(const Whose& whose) const;

    data::Connection& connection_;
    session::Selection selection_;
    std::vector<Kind> kinds_;
    std::vector<session::Member> members_;
};

}  // namespace book
