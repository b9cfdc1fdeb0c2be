#pragma once

#include <QStringView>
#include <span>

#include "screens/catalogue/screen_definition.h"

namespace screens {

/// The 55 screens whose rows belong to a member of the family.
[[nodiscard]] std::span<const ScreenDefinition> ownedScreens();
/// Doctors, contacts and the cover page, which belong to the family as a whole.
[[nodiscard]] std::span<const ScreenDefinition> referenceScreens();
/// Inventory, improvements and outbuildings, in the order of ChildKind.
[[nodiscard]] std::span<const ScreenDefinition> childScreens();

/// The entry of that name, the Person screen's included; nullptr for a window that is no record screen.
[[nodiscard]] const ScreenDefinition* screenDefinition(QStringView name);

}  // namespace screens
