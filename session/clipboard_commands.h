#pragma once

namespace platform {
class Form;
}

namespace session {

enum class Copy { Keep, Cut };

// The commands work on the form's active control. Each throws RuntimeError 91 when there is none and 438 when it holds
// no text that can be selected. None of them counts as a change of the record.

/// Puts the selected text on the clipboard, and takes it out of its box when it is cut.
void copySelection(platform::Form& form, Copy copy);
/// Replaces the selected text by the clipboard's.
void pasteSelection(platform::Form& form);

}  // namespace session
