#pragma once

#include "screens/owned_screen.h"

namespace screens {

/// A screen that keeps its rows in a table with others, told apart by the number in Type.
///
/// Every save writes the screen's own number, so a row that another of the screens made changes its kind here.
class SharedTableScreen : public OwnedScreen {
    Q_OBJECT

public:
    SharedTableScreen(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace,
                      const ScreenDefinition& definition);

protected:
    void bindKeys() override;
    void prepareSave() override;

private:
    HiddenBox txtType_;
};

}  // namespace screens
