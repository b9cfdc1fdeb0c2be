#pragma once

namespace platform {

/// Gives screen readers the program's own account of tables, combos, status lines and dialogs, where the toolkit's
/// would leave something out. Called once, before the first window.
void installAccessibility();

}  // namespace platform
