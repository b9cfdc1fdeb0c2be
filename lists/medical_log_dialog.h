#pragma once

#include <QString>

#include "lists/edit_dialog.h"

namespace data {
class Connection;
}

namespace lists {

inline const QString cbPatientName = QStringLiteral("cbPatientName");
inline const QString cbDoctorName = QStringLiteral("cbDoctorName");

/// The edit dialog of the medical log: the patient is a member of the family, the doctor one who was entered before.
class MedicalLogDialog : public EditDialog {
    Q_OBJECT

public:
    MedicalLogDialog(platform::Desktop& desktop, const EditForm& form, data::Connection& connection);

    void Form_Load() override;

protected:
    [[nodiscard]] bool accepts() override;

private:
    void fillCombo(const QString& field, const QString& statement);
    [[nodiscard]] bool validPatient();
    /// The input is empty or holds a date; `label` is its name in the message.
    [[nodiscard]] bool validDate(const QString& field, const QString& label);
    [[nodiscard]] bool validDoctorName();

    data::Connection& connection_;
};

}  // namespace lists
