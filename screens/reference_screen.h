#pragma once

#include "screens/record_screen.h"

namespace screens {

/// Doctors and contacts: rows of the family as a whole, with a selector above the record that jumps to a name.
class ReferenceScreen : public RecordScreen {
    Q_OBJECT

public:
    ReferenceScreen(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace,
                    const ScreenDefinition& definition);

    void Form_Load() override;
    void Form_KeyPress(int keyAscii) override;

protected:
    void finishSave() override;
    void rowDeleted() override;

private:
    void fillSelector();
    void cbSelect_Click();
    /// Goes to the first row of that name, or behind the last row.
    void goToName(const QString& name);

    platform::ComboBox* cbSelect_;
};

}  // namespace screens
