#include "screens/reference_screen.h"

#include <QHBoxLayout>
#include <QLabel>

#include "platform/forms/combo_box.h"
#include "platform/forms/desktop.h"
#include "platform/forms/text_control.h"
#include "session/refusals.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace screens {

ReferenceScreen::ReferenceScreen(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace,
                                 const ScreenDefinition& definition)
    : RecordScreen(desktop, session, workspace, definition), cbSelect_(new platform::ComboBox(this)) {
    makeKeyBox();
    cbSelect_->setName(u"cbSelect"_s);
    cbSelect_->onClick(handler([this] { cbSelect_Click(); }));
    auto* row = new QWidget(this);
    auto* label = new QLabel(u"Select:"_s, row);
    label->setBuddy(cbSelect_);
    cbSelect_->setSpokenName(label->text());
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(20, 4, 20, 0);
    line->addWidget(label);
    line->addWidget(cbSelect_, 1);
    placeOnTop(*row);
    // It stands above the boxes, and comes before them.
    setTabOrder(boxes().text(0).widget().previousInFocusChain(), cbSelect_);
}

void ReferenceScreen::Form_Load() {
    openRows(definition().query);
    bindBoxes();
    fillStateCombos();
    showStateCombos();
    txtID().bind(&rows());
    fillSelector();
    setCaption(definition().title);
    bChange = false;
    if (rows().eof()) {
        beginEmpty();
    } else {
        setAttachKey();
        focusOn(boxes().text(0).widget());
    }
}

void ReferenceScreen::fillSelector() {
    cbSelect_->clearList();
    if (!cbSelect_->isEnabled()) return;
    lookUp(definition().selectorQuery);
    for (; !rsLookup().eof(); rsLookup().moveNext())
        cbSelect_->addItem(rsLookup().value(u"Name"_s).toString());
}

void ReferenceScreen::finishSave() {
    fillSelector();
}

void ReferenceScreen::rowDeleted() {
    desktop().attempt(u"Delete Error"_s, [this] { fillSelector(); });
}

void ReferenceScreen::cbSelect_Click() {
    if (bChange || !isBrowsing()) {
        session::showScreenChanges(desktop());
        cbSelect_->setText(rows().hasCurrentRow() ? rows().value(u"Name"_s).toString() : QString());
        return;
    }
    goToName(cbSelect_->text());
    setAttachKey();
}

void ReferenceScreen::goToName(const QString& name) {
    rows().moveFirst();
    while (!rows().eof() && rows().value(u"Name"_s).toString() != name)
        rows().moveNext();
}

void ReferenceScreen::Form_KeyPress(int keyAscii) {
    // Typing in the selector is no change of the record.
    if (activeControl() != cbSelect_) RecordScreen::Form_KeyPress(keyAscii);
}

}  // namespace screens
