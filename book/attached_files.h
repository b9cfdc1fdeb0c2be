#pragma once

#include <QString>
#include <optional>
#include <span>
#include <vector>

#include "session/owner_names.h"
#include "session/record_locator.h"
#include "session/selection.h"
#include "session/shown_rows.h"

namespace data {
class Connection;
class Recordset;
}  // namespace data

namespace book {

class BookVisitor;

/// The names of the files that are attached to records.
class AttachedFiles {
public:
    AttachedFiles(data::Connection& connection, session::Selection selection, std::span<const session::ShownRows> all);

    /// The list of them, category by category. For one member it has those of his records and of records that belong to
    /// nobody in particular. Behind it comes, for the whole family, what belongs to no record that is there, under a
    /// heading of its own and with its key: no window shows these any more. False when the visitor wanted no more.
    bool read(BookVisitor& visitor);

private:
    [[nodiscard]] bool readThoseOf(const session::ShownRows& rows, BookVisitor& visitor);
    [[nodiscard]] bool readThoseOfNone(BookVisitor& visitor);
    /// The record to which the current file is attached; nullopt for one that isn't there.
    [[nodiscard]] std::optional<session::Location> locationOf(const data::Recordset& files);
    [[nodiscard]] bool isSelected(const session::Location& location) const;
    [[nodiscard]] QString nameOf(int member) const;

    data::Connection& connection_;
    session::Selection selection_;
    std::span<const session::ShownRows> all_;
    session::RecordLocator locator_;
    std::vector<session::Member> members_;
};

}  // namespace book
