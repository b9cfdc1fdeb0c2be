#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr Refusal noDoctorName{"No Doctor Name"_L1, "No doctor name has been entered.  No "_L1};
constexpr Refusal noContactName{"No Contact Name"_L1, "No contact name has been entered.  No "_L1};
constexpr Refusal noMainHeading{"No Main Heading"_L1, "No main heading has been entered.  No "_L1};

constexpr Frame doctorsFrames[] = {
    {"Doctor Information"_L1, "Name"_L1},
    {"Comment"_L1, "Comment"_L1},
};
constexpr ScreenDefinition doctors{
    .name = "frmDoctors"_L1,
    .table = "Doctors"_L1,
    .title = "Doctors"_L1,
    .attachmentPrefix = "Doc_"_L1,
    .addCaption = "&Add New Doctor"_L1,
    .refusal = noDoctorName,
    .saveEnding = "doctor record can be created."_L1,
    .deleteNoun = "doctor?"_L1,
    .query = "SELECT * from Doctors Order by Name"_L1,
    .selectorQuery = "Select Name from Doctors order by Name"_L1,
    .frames = doctorsFrames,
};

constexpr Frame contactsFrames[] = {
    {"Contact Information"_L1, "Name"_L1},
    {"Comment"_L1, "Comment"_L1},
};
constexpr ScreenDefinition contacts{
    .name = "frmContacts"_L1,
    .table = "Contacts"_L1,
    .title = "Contacts"_L1,
    .attachmentPrefix = "Con_"_L1,
    .addCaption = "&Add New Contact"_L1,
    .refusal = noContactName,
    .saveEnding = "contact record can be created."_L1,
    .deleteNoun = "contact?"_L1,
    .query = "SELECT * from Contacts Order by Name"_L1,
    .selectorQuery = "Select Name from Contacts order by Name"_L1,
    .frames = contactsFrames,
};

constexpr Frame coverPageFrames[] = {{"Cover Page Information"_L1, "Heading1"_L1}};
constexpr ScreenDefinition coverPage{
    .name = "frmCoverPage"_L1,
    .table = "CoverPage"_L1,
    .title = "Cover Page"_L1,
    .addCaption = "&Add New Cover Page"_L1,
    .refusal = noMainHeading,
    .saveEnding = "cover page information can be created."_L1,
    .deleteNoun = "cover page information?"_L1,
    .query = "Select * from CoverPage"_L1,
    .frames = coverPageFrames,
    .inOneColumn = true,
};

constexpr ScreenDefinition referenceGroup[] = {
    doctors,
    contacts,
    coverPage,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> referenceEntries() {
    return referenceGroup;
}

}  // namespace screens
