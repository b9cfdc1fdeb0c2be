#pragma once

namespace session {

class RecordButtons;

/// What the keys do in a window that neither adds nor edits: Escape closes it; Home and End go to the first and the
/// last record, the arrows and the page keys to the neighbour, with Ctrl to the first and the last. `keyCode` and
/// `shift` as a form's key events have them.
void navigate(int keyCode, int shift, const RecordButtons& buttons);

}  // namespace session
