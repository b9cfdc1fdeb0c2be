#pragma once

#include <QString>
#include <optional>
#include <span>
#include <vector>

#include "data/table_definition.h"
#include "session/place.h"

namespace session {

/// What one window shows of the family's file: the rows of one table or of one type in it, with the fields that have a
/// box or a place in the grid, in the window's own words.
struct ShownRows {
    QString window;
    QString category;  ///< what the tree calls it; for rows that hang on a site, the site's category ahead
    const data::Table* table = nullptr;
    std::vector<data::Column> columns;
    /// The column and number by which rows of several windows in one table are told apart; empty where one shows all.
    QLatin1StringView typeColumn{};
    int type = 0;
    QString attachmentPrefix{};
    bool inGrid = false;  ///< the window is a list, whose attachment keys begin with the record's number
    /// The window and table of the sites that the rows hang on; empty for rows that hang on none.
    QString siteWindow{};
    const data::Table* siteTable = nullptr;

    /// The rows are the members themselves.
    [[nodiscard]] bool areMembers() const { return table->name == QLatin1StringView("Person"); }
    /// Each row has the owner's number in PersonID.
    [[nodiscard]] bool haveOwners() const {
        return table->keys == data::Keys::Owner || table->keys == data::Keys::OwnerAndDoctor;
    }
};

/// The record to which a file with that attachment key is attached; nullopt for a key that no window makes.
[[nodiscard]] std::optional<Place> placeOfAttachment(std::span<const ShownRows> all, const QString& key);

}  // namespace session
