#include "lists/coming_dates.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "platform/base/clock.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/data_grid.h"
#include "platform/forms/desktop.h"
#include "session/navigation_keys.h"
#include "session/place.h"
#include "session/session.h"
#include "session/workspace.h"

using namespace Qt::StringLiterals;

namespace lists {

namespace {

constexpr std::array daysAhead{30, 90, 365};
constexpr int rowLines = 2;
/// Of the grid's width, by columns.
const std::vector<double> shares{0.135, 0.15, 0.185, 0.16, 0.185, 0.18};

QString numberOf(int dates) {
    if (dates == 0) return u"No dates"_s;
    return dates == 1 ? u"1 date"_s : QString::number(dates) + u" dates"_s;
}

}  // namespace

ComingDates::ComingDates(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace)
    : GridWindow(desktop, session, workspace, formName(), rowLines),
      rows_([&workspace](const QString& table) { return workspace.categoryOf(table); }) {
    session::WindowCommands commands = gridCommands();
    commands.hasAttachments = false;
    layOut(commands, actions());
    // Made last: Tab goes round in reading order, and begins in the grid.
    addHead(*makeHead());
    setDefaultButton(buttons().open());
    grid().onRowOpened(handler([this] { cmdOpen_Click(); }));
}

QString ComingDates::formName() {
    return u"frmComing"_s;
}

QLayout* ComingDates::makeHead() {
    cbDays_ = new platform::ComboBox(this);
    cbDays_->setName(u"cbDays"_s);
    cbDays_->setListOnly();
    cbDays_->setMinimumContentsLength(8);
    for (const int days : daysAhead)
        cbDays_->addItem(u"%1 days"_s.arg(days));
    cbDays_->setListIndex(0);
    cbDays_->onClick(handler([this] { refresh(); }));
    auto* label = new QLabel(u"&Days ahead:"_s, this);
    label->setBuddy(cbDays_);
    cbDays_->setAccessibleName(u"Days ahead"_s);
    lblComing_ = new QLabel(this);
    lblComing_->setObjectName(u"lblComing"_s);
    lblComing_->setWordWrap(true);
    auto* choice = new QHBoxLayout;
    choice->addWidget(label);
    choice->addWidget(cbDays_);
    choice->addStretch(1);
    auto* head = new QVBoxLayout;
    head->addLayout(choice);
    head->addWidget(lblComing_);
    return head;
}

session::RecordActions ComingDates::actions() {
    return {
        .first = handler([this] { goTo(0); }),
        .previous = handler([this] { goTo(rows_.currentRow() - 1); }),
        .next = handler([this] { goTo(rows_.currentRow() + 1); }),
        .last = handler([this] { goTo(rows_.rowCount() - 1); }),
        .add = {},
        .edit = {},
        .update = {},
        .cancel = {},
        .remove = {},
        .close = handler([this] { unload(); }),
        .open = handler([this] { cmdOpen_Click(); }),
    };
}

// The rows ---------------------------------------------------------------------------------------------------------

void ComingDates::Form_Load() {
    setCaption(u"Coming Dates"_s);
}

int ComingDates::days() const {
    return daysAhead.at(static_cast<std::size_t>(cbDays_->listIndex()));
}

void ComingDates::refresh() {
    desktop().attempt(u"Coming Dates Error"_s, [this] {
        rows_.take(data::comingDates(session().gConnection, platform::systemClock().today(), days()));
        grid().setSource(&rows_);
        grid().setShares(shares);
        lblComing_->setText(summary());
        showPosition();
    });
}

QString ComingDates::summary() const {
    const auto past = static_cast<int>(
        std::ranges::count_if(rows_.dates(), [](const data::ComingDate& each) { return each.days < 0; }));
    const QString span = cbDays_->text();
    if (rows_.dates().empty())
        return u"Nothing comes up in the next %1, and nothing ran out in the past %2 days."_s.arg(span).arg(
            data::daysRunOut);
    const QString ranOut = past == 0 ? u"none"_s : QString::number(past);
    return u"%1 in the next %2, and %3 that ran out in the past %4 days."_s
        .arg(numberOf(rows_.rowCount() - past), span, ranOut)
        .arg(data::daysRunOut);
}

void ComingDates::Form_Unload() {
    grid().setSource(nullptr);
}

// Moves ------------------------------------------------------------------------------------------------------------

void ComingDates::rowChosen(int row) {
    rows_.moveTo(row);
    showPosition();
}

void ComingDates::goTo(int row) {
    if (rows_.rowCount() == 0) return;
    const int there = std::clamp(row, 0, rows_.rowCount() - 1);
    if (there != row) desktop().beep();
    rowChosen(there);
}

void ComingDates::showPosition() {
    buttons().status().setText(u"Record: "_s + QString::number(rows_.currentRow() + 1));
}

bool ComingDates::Form_KeyDown(Qt::Key key, Qt::KeyboardModifiers held) {
    // In the box the arrows choose the days.
    if (activeControl() == cbDays_ && key != Qt::Key_Escape) return false;
    return session::navigate(key, held, buttons());
}

void ComingDates::cmdOpen_Click() {
    if (!hasEntries(u"open"_s)) return;
    const data::ComingDate& date = rows_.current();
    workspace().goTo({.table = date.table, .record = date.id, .column = date.column});
}

}  // namespace lists
