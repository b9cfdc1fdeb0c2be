#pragma once

namespace platform {
class Form;
}

namespace session {

/// Applies read-only mode to one form: its numbered text boxes are locked and its numbered check boxes disabled while
/// the session can't edit, the opposite otherwise. Combos are left alone: the refusal of Add and Edit covers them.
void setFormAccess(platform::Form& form, bool canEdit);

}  // namespace session
