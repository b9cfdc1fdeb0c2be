#pragma once

#include "screens/record_screen.h"

namespace screens {

/// A screen whose rows each belong to one member of the family.
///
/// The user sees and chooses the owner as a legal name, in a combo that only an add unlocks; the row keeps the member's
/// ID. On screen the name follows the ID, on save the ID follows the name.
class OwnedScreen : public RecordScreen {
    Q_OBJECT

public:
    OwnedScreen(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace,
                const ScreenDefinition& definition);

    void Form_Load() override;

protected:
    /// Reads the rows of the selected member, or of the whole family, and shows the first. Without rows it begins an
    /// add.
    void loadRows();
    virtual void bindKeys();

    void beginAdd() override;
    [[nodiscard]] QString requiredName() const override;
    void prepareSave() override;
    void showAfterAdd() override;
    void finishSave() override;
    void finishCancel() override;
    void deleteRecord() override;
    void goFirst() override;
    // A move beyond an end stays on the row and, unlike those of a screen without an owner, makes no sound.
    void goPrevious() override;
    void goNext() override;
    void goLast() override;
    void goTo(double bookmark) override;
    [[nodiscard]] bool validatesCombos() override;
    void showChild(ChildKind kind) override;

    [[nodiscard]] platform::ComboBox& owner() const { return *boxes().owner(); }

private:
    void loadOwner();
    /// Sets the owner's name from the row's PersonID; to nothing, after showing why, when it can't be looked up: a save
    /// makes the row that member's whose name stands here.
    void updateName();
    /// The name of the member whose row it is, or that he has been deleted.
    [[nodiscard]] QString lookUpName();
    void showOwner(const QString& name);

    HiddenBox txtOwnerID_;
    /// PersonID of the owner shown last in a walk through all records.
    QString walkedOwner_;
};

}  // namespace screens
