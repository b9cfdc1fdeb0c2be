#pragma once

#include <functional>

class QHBoxLayout;

namespace platform {

class FormWindow;

/// A dialog's last row: cmdOK, which Enter clicks as well, and cmdCancel, which Escape does.
[[nodiscard]] QHBoxLayout* dialogButtons(FormWindow& dialog, const std::function<void()>& ok,
                                         const std::function<void()>& cancel);

/// The last row of a dialog that only tells something: cmdOK, which Enter and Escape click as well.
[[nodiscard]] QHBoxLayout* closingButton(FormWindow& dialog, const std::function<void()>& close);

}  // namespace platform
