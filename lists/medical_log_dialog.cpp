#include "lists/medical_log_dialog.h"

#include "data/recordset.h"
#include "platform/base/date_text.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/desktop.h"
#include "session/owner_names.h"

using namespace Qt::StringLiterals;

namespace lists {

namespace {

void tellNoDoctors(platform::Desktop& desktop) {
    desktop.notice(
        u"No doctors have been entered through the Doctors screen.  So no doctor can be entered here.\r\n\r\n"
        "You must cancel this screen and the Medical Log window and go to the Doctors window.  Enter the information "
        "for the doctor that you need to enter here in the Medical Log.  Then come back to the Medical Log and enter "
        "your information."_s);
}

void tellNoMatch(platform::Desktop& desktop, const QString& name) {
    desktop.notice(
        u"The doctor's name entered, "_s + name +
            u", does not match any of the doctor names that you have already entered.  Either (1) the spelling is "
            "different or (2) this doctor has not yet been entered.\r\n\r\n"
            "(1) If the spelling is different, the easiest way to get the correct spelling is to click on the "
            "down-arrow button for the name and select the correct name from the list that drops down.  You will then "
            "be able to enter the rest of the information.\r\n\r\n"
            "(2) If the doctor has not yet been entered into the computer, you must select one of the previously "
            "entered doctors, then click on the Cancel button at the bottom of the screen.  Now enter the new doctor "
            "by going to the Doctor screen and clicking the Add New Doctor button. You can then return to the  Medical "
            "Log and enter the new medical information.\r\n\r\n"
            "Go for it...."_s,
        u"No Matching Doctor"_s);
}

}  // namespace

MedicalLogDialog::MedicalLogDialog(platform::Desktop& desktop, const EditForm& form, data::Connection& connection)
    : EditDialog(desktop, form), connection_(connection) {}

void MedicalLogDialog::Form_Load() {
    fillCombo(cbPatientName, u"Select LegalName from Person order by LegalName"_s);
    fillCombo(cbDoctorName, u"Select Name from Doctors order by Name"_s);
    combo(cbPatientName).setValidate([this] { return validPatient(); });
}

void MedicalLogDialog::fillCombo(const QString& field, const QString& statement) {
    data::Recordset names;
    names.open(statement, connection_);
    const QString column = names.fieldNames().first();
    for (; !names.eof(); names.moveNext())
        combo(field).addItem(names.value(column).toString());
}

bool MedicalLogDialog::validPatient() {
    if (session::validOwnerName(desktop(), connection_, text(cbPatientName))) return true;
    combo(cbPatientName).selectAll();
    return false;
}

bool MedicalLogDialog::accepts() {
    if (!validDate(u"txtStartDate"_s, u"Start Date"_s) || !validDate(u"txtEndDate"_s, u"End Date"_s)) return false;
    if (validDoctorName()) return true;
    pointAt(cbDoctorName);
    return false;
}

bool MedicalLogDialog::validDate(const QString& field, const QString& label) {
    if (text(field).isEmpty() || platform::isDate(text(field))) return true;
    desktop().notice(u"The %1 field does not contain a valid date."_s.arg(label), u"Invalid Date Format"_s);
    pointAt(field);
    return false;
}

bool MedicalLogDialog::validDoctorName() {
    data::Recordset doctors;
    doctors.open(u"Select Name from Doctors"_s, connection_);
    if (doctors.eof()) {
        tellNoDoctors(desktop());
        return false;
    }
    const QString entered = text(cbDoctorName);
    for (; !doctors.eof(); doctors.moveNext()) {
        const QVariant name = doctors.value(u"Name"_s);
        if (!name.isNull() && name.toString() == entered) return true;
    }
    doctors.close();
    tellNoMatch(desktop(), entered);
    return false;
}

}  // namespace lists
