#pragma once

#include <QString>
#include <vector>

namespace data {
class Connection;
}

namespace platform {
class ComboBox;
class Desktop;
}  // namespace platform

namespace session {

struct Member {
    int id = 0;
    QString name{};  ///< the legal one; null for a member without
};

/// The members in the family's order.
[[nodiscard]] std::vector<Member> familyMembers(data::Connection& connection);

/// What stands for the owner of a record: his legal name, or that there is no such member any more for a null.
[[nodiscard]] QString ownerText(const QString& legalName);

/// Fills a combo with every member's name in the family's order, and stands on the first. A disabled one is only
/// emptied. A failure is shown.
void fillWithNames(platform::Desktop& desktop, data::Connection& connection, platform::ComboBox& combo);

/// True if the text is a member's name, in the very spelling; tells the user how to go on when it isn't.
[[nodiscard]] bool validOwnerName(platform::Desktop& desktop, data::Connection& connection, const QString& name);

}  // namespace session
