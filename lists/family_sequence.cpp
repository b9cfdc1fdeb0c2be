#include "lists/family_sequence.h"

#include "session/session.h"

using namespace Qt::StringLiterals;

namespace lists {

namespace {

const ListDefinition familyList{
    .window = u"frmFamilySequence"_s,
    .caption = u"Family Sequence Information"_s,
    .table = u"Person"_s,
    .rowLines = 1,
    .shares = {0.001, 0.07, 0.615, 0.28},
    .form = {u"frmFamilySeqEdit"_s,
             u"Family Sequence Edit Screen"_s,
             {{.name = txtSequence, .label = u"Sequence:"_s, .gridColumn = 1},
              {.name = u"txtLegalName"_s,
               .label = u"Legal Name:"_s,
               .gridColumn = 2,
               .stored = u"LegalName"_s,
               .ampersands = Ampersands::SingleInDialog,
               .enabled = false},
              {.name = u"txtSocSecNum"_s,
               .label = u"SocSecNum:"_s,
               .gridColumn = 3,
               .stored = u"SocSecNum"_s,
               .ampersands = Ampersands::SingleInDialog,
               .enabled = false}},
             txtSequence},
    .select = u"Select ID, Seq, LegalName, SocSecNum from Person Order By Seq"_s,
    .editsOnly = true,
    .closesTree = true,
};

}  // namespace

FamilySequence::FamilySequence(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace)
    : SequencedList(desktop, session, workspace, familyList) {}

const ListDefinition& FamilySequence::list() {
    return familyList;
}

std::unique_ptr<EditDialog> FamilySequence::makeDialog() {
    return std::make_unique<SequencedDialog>(desktop(), familyList.form, session().gConnection, sequence());
}

}  // namespace lists
