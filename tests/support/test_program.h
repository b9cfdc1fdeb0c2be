#pragma once

#include "tests/support/program.h"
#include "tests/support/user.h"

namespace support {

/// A host with one child window, which has a control of each kind and writes down its events.
///
/// "MDIHost" has cbPerson and cmdAddNew on its panel. "frmTest" has txtFields(0) to (3) (0 refuses to be left with
/// "bad" in it and says so in a box, 1 with "mute" in it without one, 2 has many lines, 3 is locked), cbFields(0)
/// (locked: cbFields(1)), chkFields(0), buttons, toolbar keys tbPrint and tbAttach (disabled), and the menu mFile.
/// lblLog shows its events. cmdAsk asks in a box; cmdModal opens "frmDialog" with txtAccount. mThrow ends in an
/// exception that is no RuntimeError, mDie in one past Desktop::run.
[[nodiscard]] MakeProgram testProgram();

/// The events that frmTest wrote down since the last call, each followed by a semicolon.
class EventLog {
public:
    explicit EventLog(User& user) : user_(user) {}
    [[nodiscard]] QString news();

private:
    User& user_;
    qsizetype seen_ = 0;
};

}  // namespace support
