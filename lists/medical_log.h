#pragma once

#include "lists/list_screen.h"

namespace lists {

/// Treatments: who, when, which doctor, what. It shows the selected member's, or the whole family's.
class MedicalLog : public ListScreen {
    Q_OBJECT

public:
    MedicalLog(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace);

    [[nodiscard]] static const ListDefinition& list();

protected:
    [[nodiscard]] std::unique_ptr<EditDialog> makeDialog() override;
    /// The names turn into keys; without a patient of that name nothing is written.
    [[nodiscard]] bool saveRow() override;
    void writeRow(data::Recordset& row) override;

private:
    /// ID of the first row that the statement finds; nullopt for none.
    [[nodiscard]] std::optional<qint16> findID(const QString& statement);
    /// The dialog's patient is no member of the family, or not any more.
    void tellNoPatient();

    qint16 personID_ = 0;
    qint16 doctorID_ = 0;
};

}  // namespace lists
