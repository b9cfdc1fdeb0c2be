#include <gtest/gtest.h>

#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

class AttachedList : public support::Household {
protected:
    void open(const QString& node, const QString& selection = u"Whole Family"_s) {
        openFor({u"Ann Larkin"_s, u"Bob O'Brien"_s}, selection, node);
    }
    void addDoctors() { exec(u"INSERT INTO Doctors (Name) VALUES ('Hale'), ('O''Neil')"_s); }
    QStringList row(int index) { return user.grid()["rows"_L1].toArray()[index].toVariant().toStringList(); }
};

TEST_F(AttachedList, ItemsKeepTheirFilesWhoeverIsSelected) {
    write(u"deed.txt"_s, "deed");
    open(u"WhoGetsWhat"_s, u"Ann Larkin"_s);
    EXPECT_EQ(attachKey(), u"WRec_0_0"_s);
    user.click(u"cmdAdd"_s);
    user.click(u"cmdOK"_s);
    EXPECT_EQ(row(0), (QStringList{u"1"_s, u""_s, u""_s}));
    user.click(u"cmdAdd"_s);
    user.fill(u"txtItem"_s, u"Piano & stool"_s);
    user.click(u"cmdOK"_s);
    EXPECT_EQ(row(1)[1], u"Piano && stool"_s);
    EXPECT_EQ(attachKey(), u"WRec_2_0"_s);
    user.tool(u"tbAttach"_s);
    user.click(u"cmdAdd"_s);
    user.choose(path(u"deed.txt"_s));
    user.enter(u"the deed"_s);
    user.click(u"frmAttach.cmdClose"_s);
    EXPECT_EQ(user.text(u"lblAttachments"_s), u"Attachments:  1"_s);
    user.click(u"cmdPrevious"_s);
    EXPECT_EQ(user.text(u"lblAttachments"_s), u"Attachments:  0"_s);
    EXPECT_TRUE(treeEnabled());
    deleteRecord();
    EXPECT_EQ(attachKey(), u"WRec_2_0"_s);
    deleteRecord();
    EXPECT_EQ(status(), u"Record: 0"_s);
    EXPECT_EQ(cell(u"SELECT count(*) FROM Attachments"_s), u"1"_s);
}

TEST_F(AttachedList, ATreatmentNeedsAPatientADoctorAndGoodDates) {
    open(u"MedicalLog"_s);
    user.click(u"cmdAdd"_s);
    user.fill(u"cbPatientName"_s, u"Nobody"_s);
    user.key(u"Tab"_s);
    EXPECT_EQ(dismissBox(), u"No Matching Family Member"_s);
    EXPECT_EQ(focus(), u"cbPatientName"_s);
    user.pick(u"cbPatientName"_s, u"Ann Larkin"_s);
    user.fill(u"txtStartDate"_s, u"soon"_s);
    user.click(u"cmdOK"_s);
    EXPECT_EQ(boxText(), u"The Start Date field does not contain a valid date."_s);
    EXPECT_EQ(boxIcon(), u"information"_s);
    user.answer(u"OK"_s);
    user.fill(u"txtStartDate"_s, u"5/13/2001"_s);
    user.click(u"cmdOK"_s);
    EXPECT_TRUE(boxText().startsWith(u"No doctors have been entered"_s));
    EXPECT_EQ(boxIcon(), u"none"_s);
    user.answer(u"OK"_s);
    addDoctors();
    user.fill(u"cbDoctorName"_s, u"hale"_s);
    user.click(u"cmdOK"_s);
    EXPECT_EQ(dismissBox(), u"No Matching Doctor"_s);
    user.fill(u"cbDoctorName"_s, u"Hale"_s);
    user.fill(u"txtDescription"_s, u"Rest & tea"_s);
    user.click(u"cmdOK"_s);
    EXPECT_EQ(row(0), (QStringList{u"1"_s, u"Ann Larkin"_s, u"5/13/2001"_s, u""_s, u"Hale"_s, u"Rest && tea"_s}));
    EXPECT_EQ(cell(u"SELECT PersonID || '-' || MedicalID || ifnull(TreatmentEndDate, '-') FROM MedicalLog"_s),
              u"1-1-"_s);

    // The doctor goes; the treatment stays, and can't be saved until it has one again.
    exec(u"DELETE FROM Doctors WHERE Name = 'Hale'"_s);
    user.click(u"cmdClose"_s);
    user.node(u"MedicalLog"_s);
    EXPECT_EQ(row(0)[4], u""_s);
    user.click(u"cmdEdit"_s);
    user.click(u"cmdOK"_s);
    EXPECT_EQ(dismissBox(), u"No Matching Doctor"_s);
    user.pick(u"cbDoctorName"_s, u"O'Neil"_s);
    user.click(u"cmdOK"_s);
    EXPECT_EQ(dismissBox(), u"Update Error"_s);
    EXPECT_EQ(cell(u"SELECT MedicalID FROM MedicalLog"_s), u"1"_s);
    // What was entered is still there, as it was typed.
    EXPECT_EQ(user.form()["name"_L1].toString(), u"frmMedLogEdit"_s);
    EXPECT_EQ(user.text(u"cbDoctorName"_s), u"O'Neil"_s);
    EXPECT_EQ(user.text(u"txtDescription"_s), u"Rest & tea"_s);
}

TEST_F(AttachedList, ALogShowsTheSelectedMembersTreatmentsOnly) {
    exec(u"INSERT INTO MedicalLog (PersonID, Description) VALUES (2, 'his'), (1, 'hers'), (9, 'nobody''s')"_s);
    open(u"MedicalLog"_s);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(row(i)[5], (QStringList{u"his"_s, u"hers"_s, u"nobody's"_s})[i]);
    EXPECT_EQ(user.form()["caption"_L1].toString(), u"Medical Log -- Whole Family"_s);
    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    user.node(u"MedicalLog"_s);
    EXPECT_EQ(user.grid()["rows"_L1].toArray().size(), 1);
    EXPECT_EQ(user.form()["caption"_L1].toString(), u"Medical Log -- Ann Larkin"_s);
    EXPECT_EQ(attachKey(), u"MRec_2_0"_s);
}

TEST_F(AttachedList, ATreatmentOfSomebodyWhoIsGoneSaysSo) {
    addDoctors();
    exec(u"INSERT INTO MedicalLog (PersonID, MedicalID, Description) VALUES (9, 1, 'gone')"_s);
    open(u"MedicalLog"_s);
    user.click(u"cmdEdit"_s);
    user.key(u"Return"_s);
    EXPECT_TRUE(
        told().startsWith(u"No Matching Family Member: The patient of this entry has been deleted from the family."_s));
    EXPECT_EQ(focus(), u"cbPatientName"_s);
    user.pick(u"cbPatientName"_s, u"Ann Larkin"_s);
    user.click(u"cmdOK"_s);
    EXPECT_EQ(cell(u"SELECT PersonID FROM MedicalLog"_s), u"1"_s);
    exec(u"DELETE FROM MedicalLog"_s);
    deleteRecord();
    user.click(u"cmdAdd"_s);
    user.pick(u"cbPatientName"_s, u"Ann Larkin"_s);
    user.pick(u"cbDoctorName"_s, u"Hale"_s);
    exec(u"DELETE FROM Person WHERE ID = 1"_s);
    user.click(u"cmdOK"_s);
    EXPECT_TRUE(boxText().startsWith(u"Ann Larkin is not a member of the family any more."_s));
    user.answer(u"OK"_s);
    EXPECT_EQ(cell(u"SELECT count(*) FROM MedicalLog"_s), u"0"_s);
    EXPECT_EQ(user.text(u"cbDoctorName"_s), u"Hale"_s);
    user.key(u"Escape"_s);
    EXPECT_EQ(status(), u"Record: 0"_s);
    EXPECT_TRUE(isVisible(u"cmdAdd"_s));
    EXPECT_EQ(forms().last(), u"frmMedicalLog"_s);
}

}  // namespace
