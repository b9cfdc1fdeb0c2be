#pragma once

#include "screens/record_screen.h"

namespace session {
struct ChildRequest;
}

namespace screens {

/// What stands in or on a site: rows that hang on one row of one kind of site.
class ChildScreen : public RecordScreen {
    Q_OBJECT

public:
    ChildScreen(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace,
                const ScreenDefinition& definition);

    /// Says which rows ShowMe reads. The name and the place stand in boxes that nothing stores.
    void setParentRow(const session::ChildRequest& request);
    void ShowMe() override;

protected:
    void beginAdd() override;
    [[nodiscard]] int firstTyped() const override;

private:
    void showOwner();
    /// The site's description, whatever is typed over it.
    void keepLocation();

    // Which rows hang where stands in the boxes while a row is on screen, and here while none is.
    int typeID_ = 0;
    int parentID_ = 0;
    QString location_;
    HiddenBox txtTypeID_;
    HiddenBox txtParentID_;
    HiddenBox txtOwnerID_;
};

}  // namespace screens
