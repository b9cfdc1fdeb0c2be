#pragma once

#include "screens/record_screen.h"

namespace screens {

/// The members of the family, one record a member: the base window of the workspace.
///
/// It has no owner. It runs the first entry of a family, keeps the session's member while it moves, drives the selector
/// on add and delete, and its Close clears the whole workspace.
class PersonScreen : public RecordScreen {
    Q_OBJECT

public:
    PersonScreen(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace);

    /// Text of the name box.
    [[nodiscard]] QString legalName() const;

    void Form_Load() override;
    void Form_KeyUp(Qt::Key key) override;

protected:
    /// The first member can be entered whatever the session may do.
    [[nodiscard]] bool mayAdd() override { return true; }
    [[nodiscard]] bool readyToSave() override;
    [[nodiscard]] bool finishAdd() override;
    void finishSave() override;
    [[nodiscard]] bool confirmsDelete() override;
    [[nodiscard]] QString deleteQuestion() override;
    void deleteRecord() override;
    void goFirst() override;
    void goPrevious() override;
    void goNext() override;
    void goLast() override;
    void goTo(double bookmark) override;
    [[nodiscard]] QString moveCompleteTitle() const override;
    void cmdClose_Click() override;
    [[nodiscard]] bool validates(int box) override;
    [[nodiscard]] output::SaveAllRequest saveAllRequest() override;
    void walkAll(const std::function<bool()>& visit) override;

private:
    /// Whose records go with the session's member: his legal name, or that he is no longer there.
    [[nodiscard]] QString doomedName();
    [[nodiscard]] bool sexIsValid();
    [[nodiscard]] bool socialSecurityIsValid();
    /// The member that the session goes on with after a move, whichever row is on screen.
    void setPerson(qint16 id);
};

}  // namespace screens
