#pragma once

#include <Qt>

namespace session {

class RecordButtons;

/// What the keys do in a window that neither adds nor edits: Escape closes it; Home and End go to the first and the
/// last record, the arrows and the page keys to the neighbour, with Ctrl to the first and the last. `key` and
/// `held` as a form's key events have them. True if the key is one of these.
bool navigate(Qt::Key key, Qt::KeyboardModifiers held, const RecordButtons& buttons);

}  // namespace session
