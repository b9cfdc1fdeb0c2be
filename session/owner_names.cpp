#include "session/owner_names.h"

#include "data/recordset.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/desktop.h"

using namespace Qt::StringLiterals;

namespace session {

namespace {

/// Calls `take` with each name until it returns false.
template <class Take>
void eachName(const QString& statement, data::Connection& connection, Take take) {
    data::Recordset names;
    names.open(statement, connection);
    while (!names.eof() && take(names.value(u"LegalName"_s).toString()))
        names.moveNext();
}

void showNoMatch(platform::Desktop& desktop, const QString& name) {
    desktop.notice(
        u"The name entered, "_s + name +
            u", does not match any of the family member names that you have already entered.  Either (1) the spelling "
            "is different or (2) this family member has not yet been entered.\r\n\r\n"
            "(1) If the spelling is different, the easiest way to get the correct spelling is to click on the "
            "down-arrow button for the name and select the correct name from the list that drops down.  You will then "
            "be able to enter the rest of the information.\r\n\r\n"
            "(2) If the family member has not yet been entered into the computer, you must select one of the "
            "previously entered family members, then click on the Cancel button at the bottom of the screen.  Now "
            "enter the new family member by clicking on the Add Another Family Member button in the upper left hand "
            "corner of the screen.  You will then have no trouble entering the rest of the information for this new "
            "family member.\r\n\r\n"
            "Go for it...."_s,
        u"No Matching Family Member"_s);
}

}  // namespace

std::vector<Member> familyMembers(data::Connection& connection) {
    std::vector<Member> members;
    data::Recordset rows;
    rows.open(u"Select ID, LegalName from Person order by Seq, ID"_s, connection);
    for (; !rows.eof(); rows.moveNext())
        members.push_back({rows.value(u"ID"_s).toInt(), rows.value(u"LegalName"_s).toString()});
    return members;
}

QString ownerText(const QString& legalName) {
    return legalName.isNull() ? u"Owner has been deleted."_s : legalName;
}

void fillWithNames(platform::Desktop& desktop, data::Connection& connection, platform::ComboBox& combo) {
    desktop.attempt(u"InitComboBox Error"_s, [&] {
        combo.clearList();
        if (combo.isEnabled()) {
            eachName(u"Select LegalName from Person order by Seq, ID"_s, connection, [&](const QString& name) {
                combo.addItem(name);
                return true;
            });
        }
        combo.setListIndex(0);
    });
}

bool validOwnerName(platform::Desktop& desktop, data::Connection& connection, const QString& name) {
    bool found = false;
    eachName(u"Select LegalName from Person"_s, connection, [&](const QString& member) {
        // A member without a name is nobody's match, not even of an empty text.
        found = !member.isNull() && member == name;
        return !found;
    });
    if (!found) showNoMatch(desktop, name);
    return found;
}

}  // namespace session
