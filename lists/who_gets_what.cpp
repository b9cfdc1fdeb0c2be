#include "lists/who_gets_what.h"

using namespace Qt::StringLiterals;

namespace lists {

namespace {

const ListDefinition giftList{
    .window = u"frmWhoGetsWhat"_s,
    .caption = u"Who Gets What Information"_s,
    .table = u"WhoGetsWhat"_s,
    .rowLines = 3,
    .shares = {0.001, 0.6, 0.36},
    .form = {u"frmWhoGetsWhatEdit"_s,
             u"Who Gets What Edit Screen"_s,
             {{.name = u"txtItem"_s,
               .label = u"Item:"_s,
               .gridColumn = 1,
               .stored = u"Item"_s,
               .ampersands = Ampersands::DoubledInTable},
              {.name = u"txtPerson"_s,
               .label = u"Person:"_s,
               .gridColumn = 2,
               .stored = u"Person"_s,
               .ampersands = Ampersands::DoubledInTable}}},
    .select = u"Select ID, Item, Person from WhoGetsWhat"_s,
    .attachmentPrefix = u"WRec"_s,
};

}  // namespace

WhoGetsWhat::WhoGetsWhat(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace)
    : ListScreen(desktop, session, workspace, giftList) {}

const ListDefinition& WhoGetsWhat::list() {
    return giftList;
}

std::unique_ptr<EditDialog> WhoGetsWhat::makeDialog() {
    return std::make_unique<EditDialog>(desktop(), giftList.form);
}

}  // namespace lists
