#pragma once

#include <QString>

class QFormLayout;

namespace platform {
class TextBox;
}

namespace security {

/// Adds a box to the rows of a dialog, in which each typed character shows as "*". `label` carries its accelerator.
[[nodiscard]] platform::TextBox& addPasswordBox(QFormLayout& rows, const QString& name, const QString& label);

/// Puts the focus into a box and selects all of its text, so that what is typed next replaces it.
void pointAt(platform::TextBox& box);

}  // namespace security
