#pragma once

#include "screens/record_screen.h"

namespace screens {

/// The words on the cover of what the family prints. It knows no unsaved changes: nothing marks it as changed and it
/// closes unasked; and it can be changed in a read-only session too.
class CoverPageScreen : public RecordScreen {
    Q_OBJECT

public:
    using RecordScreen::RecordScreen;

    [[nodiscard]] bool keyPreview() const override { return false; }
    /// Reads the rows, unless the window shows some already, and comes up.
    void ShowMe() override;

protected:
    [[nodiscard]] bool mayChange() override { return true; }
    void setButtons(bool browsing) override;
    void cmdClose_Click() override;
    void mAttachments_Click() override {}
    void setAttachKey() override {}
    void printRecord() override;
};

}  // namespace screens
