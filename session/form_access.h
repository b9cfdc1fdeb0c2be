#pragma once

namespace platform {
class Desktop;
class Form;
}  // namespace platform

namespace session {

/// Applies read-only mode to one form: its numbered text boxes are locked and its numbered check boxes disabled while
/// the session can't edit, the opposite otherwise. Combos are left alone: the refusal of Add and Edit covers them.
void setFormAccess(platform::Form& form, bool canEdit);

/// Applies it to every loaded form but the host and the windows in which passwords are typed.
void setAllFormsAccess(platform::Desktop& desktop, bool canEdit);

}  // namespace session
