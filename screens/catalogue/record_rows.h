#pragma once

#include <QString>

namespace session {
struct Selection;
}

namespace screens {

struct ChildOffer;
struct ScreenDefinition;

// Which records a screen has, and what it says of them in its title: the same for its window and for whoever reads them
// without one.

/// The statement that reads the records of a screen that is no child, in its order.
[[nodiscard]] QString recordStatement(const ScreenDefinition& definition, const session::Selection& selection);
/// The statement that counts them, as NumRec.
[[nodiscard]] QString countStatement(const ScreenDefinition& definition, const session::Selection& selection);
/// The title of the screen's window.
[[nodiscard]] QString recordCaption(const ScreenDefinition& definition, const session::Selection& selection);

/// The statement that reads what hangs on one row of one kind of site.
[[nodiscard]] QString childStatement(const ScreenDefinition& child, int typeID, int parentID);
/// The title over what hangs on a site with that description.
[[nodiscard]] QString childCaption(const ChildOffer& offer, const QString& description);

}  // namespace screens
