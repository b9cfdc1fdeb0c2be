#pragma once

#include <QStringView>

#include "lists/list_definition.h"

namespace book {

/// The list of that window, if it is one that anybody may read: the passwords' isn't. nullptr for any other window.
[[nodiscard]] const lists::ListDefinition* listed(QStringView window);

}  // namespace book
