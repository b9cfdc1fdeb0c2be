#pragma once

#include <QStringView>

#include "lists/list_screen.h"

namespace lists {

/// The list of that name among those that show a category's rows; nullptr for any other window. The family's order
/// shows no more of the members than their own window does, and the passwords are shown to nobody but their owner.
[[nodiscard]] const ListDefinition* listDefinition(QStringView window);

}  // namespace lists
