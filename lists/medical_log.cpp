#include "lists/medical_log.h"

#include "lists/medical_log_dialog.h"
#include "platform/base/conversions.h"
#include "platform/base/date_text.h"
#include "platform/forms/desktop.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace lists {

namespace {

const ListDefinition logList{
    .window = u"frmMedicalLog"_s,
    .caption = u"Medical Log -- "_s,
    .table = u"MedicalLog"_s,
    .rowLines = 3,
    .shares = {0.001, 0.2, 0.15, 0.15, 0.2, 0.26},
    .form = {u"frmMedLogEdit"_s,
             u"Medical Log Edit"_s,
             {{.name = cbPatientName, .label = u"Patient Name:"_s, .gridColumn = 1, .kind = EditField::Kind::Combo},
              {.name = u"txtStartDate"_s, .label = u"Start Date:"_s, .gridColumn = 2},
              {.name = u"txtEndDate"_s, .label = u"End Date:"_s, .gridColumn = 3},
              {.name = cbDoctorName, .label = u"Doctor Name:"_s, .gridColumn = 4, .kind = EditField::Kind::Combo},
              {.name = u"txtDescription"_s,
               .label = u"Description:"_s,
               .gridColumn = 5,
               .stored = u"Description"_s,
               .ampersands = Ampersands::DoubledInTable,
               .kind = EditField::Kind::Memo}}},
    .select =
        u"SELECT MedicalLog.ID, Person.LegalName, MedicalLog.TreatmentStartDate as StartDate, "
        "MedicalLog.TreatmentEndDate as EndDate, Doctors.Name as Doctor, MedicalLog.Description FROM (MedicalLog "
        "LEFT JOIN Person ON Person.ID = MedicalLog.PersonID) LEFT JOIN Doctors ON Doctors.ID = "
        "MedicalLog.MedicalID"_s,
    .ofMember = u" WHERE (((MedicalLog.PersonID)=%1));"_s,
    .attachmentPrefix = u"MRec"_s,
};

QVariant dateOf(const QString& text) {
    return platform::isDate(text) ? QVariant(platform::toDate(text)) : QVariant();
}

}  // namespace

MedicalLog::MedicalLog(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace)
    : ListScreen(desktop, session, workspace, logList) {}

const ListDefinition& MedicalLog::list() {
    return logList;
}

std::unique_ptr<EditDialog> MedicalLog::makeDialog() {
    return std::make_unique<MedicalLogDialog>(desktop(), logList.form, session().gConnection);
}

std::optional<qint16> MedicalLog::findID(const QString& statement) {
    data::Recordset& found = rowWrite();
    found.open(statement, session().gConnection);
    if (found.eof()) return {};
    return platform::toInteger(found.value(u"ID"_s).toDouble());
}

bool MedicalLog::saveRow() {
    const auto person = findID(u"Select ID from Person where LegalName = '%1'"_s.arg(dialog().text(cbPatientName)));
    if (!person) {
        tellNoPatient();
        return false;
    }
    const auto doctor = findID(u"Select ID from Doctors where Name = '%1'"_s.arg(dialog().text(cbDoctorName)));
    if (!doctor) return false;
    personID_ = *person;
    doctorID_ = *doctor;
    return ListScreen::saveRow();
}

void MedicalLog::tellNoPatient() {
    const QString patient = dialog().text(cbPatientName);
    QString what = u"The patient of this entry has been deleted from the family."_s;
    if (!patient.isEmpty()) what = patient + u" is not a member of the family any more."_s;
    if (patient.isEmpty() && isAdding()) what = u"No patient has been entered."_s;
    desktop().notice(what + u"  Select a patient from the list that drops down, or press Esc to give the entry up."_s,
                     u"No Matching Family Member"_s);
    dialog().pointAt(cbPatientName);
}

void MedicalLog::writeRow(data::Recordset& row) {
    row.setValue(u"PersonID"_s, personID_);
    row.setValue(u"MedicalID"_s, doctorID_);
    row.setValue(u"TreatmentStartDate"_s, dateOf(dialog().text(u"txtStartDate"_s)));
    row.setValue(u"TreatmentEndDate"_s, dateOf(dialog().text(u"txtEndDate"_s)));
}

}  // namespace lists
