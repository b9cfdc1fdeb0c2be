#pragma once

#include <functional>

class QHBoxLayout;

namespace platform {

class FormWindow;

/// A dialog's last row: cmdOK, which Enter clicks as well, and cmdCancel, which Escape does.
[[nodiscard]] QHBoxLayout* dialogButtons(FormWindow& dialog, const std::function<void()>& ok,
                                         const std::function<void()>& cancel);

}  // namespace platform
