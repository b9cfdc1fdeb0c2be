#include "session/record_buttons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPalette>
#include <utility>

#include "platform/forms/command_button.h"
#include "platform/forms/icons.h"

using namespace Qt::StringLiterals;

namespace session {

namespace {

platform::CommandButton* button(QWidget& row, const QString& name, const QString& caption,
                                const std::function<void()>& action) {
    auto* made = new platform::CommandButton(&row);
    made->setName(name);
    made->setText(caption);
    made->onClick(action);
    // In a narrow window a button is as wide as its words.
    const int words = made->fontMetrics().size(Qt::TextShowMnemonic, caption).width();
    if (!caption.isEmpty()) made->setMinimumWidth(words + 3 * made->fontMetrics().averageCharWidth());
    row.layout()->addWidget(made);
    return made;
}

platform::CommandButton* moveButton(QWidget& row, const QString& name, const QString& icon, const QString& hint,
                                    const std::function<void()>& action) {
    auto* made = button(row, name, QString(), action);
    made->setIcon(platform::themeIcon(icon));
    made->setToolTip(hint);
    made->setAccessibleName(hint);
    made->setFixedWidth(made->sizeHint().height() * 4 / 3);
    return made;
}

/// The status field while a record is added or edited: dark on amber, in every palette.
QPalette changingColours() {
    QPalette colours;
    colours.setColor(QPalette::Window, QColor(0xff, 0xc8, 0x4a));
    colours.setColor(QPalette::WindowText, QColor(0x1c, 0x1c, 0x1c));
    return colours;
}

QWidget* row(QWidget& form, QVBoxLayout& column, const QString& name) {
    auto* made = new QWidget(&form);
    made->setObjectName(name);
    auto* layout = new QHBoxLayout(made);
    layout->setContentsMargins(0, 0, 0, 0);
    column.addWidget(made);
    return made;
}

}  // namespace

RecordButtons::RecordButtons(QWidget& form, QVBoxLayout& column, const QString& addCaption, RecordActions actions)
    : actions_(std::move(actions)) {
    makeMoveRow(form, column);
    makeActionRow(form, column, addCaption);
    showBrowsing(true);
}

void RecordButtons::makeMoveRow(QWidget& form, QVBoxLayout& column) {
    QWidget* moves = row(form, column, u"picStatBox"_s);
    first_ = moveButton(*moves, u"cmdFirst"_s, u"go-first"_s, u"First Record"_s, actions_.first);
    previous_ = moveButton(*moves, u"cmdPrevious"_s, u"go-previous"_s, u"Previous Record"_s, actions_.previous);
    status_ = new platform::StatusLine(moves);
    status_->setObjectName(u"lblStatus"_s);
    status_->setFrameShape(QFrame::StyledPanel);
    status_->setIndent(6);
    static_cast<QHBoxLayout*>(moves->layout())->addWidget(status_, 1);
    next_ = moveButton(*moves, u"cmdNext"_s, u"go-next"_s, u"Next Record"_s, actions_.next);
    last_ = moveButton(*moves, u"cmdLast"_s, u"go-last"_s, u"Last Record"_s, actions_.last);
}

void RecordButtons::makeActionRow(QWidget& form, QVBoxLayout& column, const QString& addCaption) {
    QWidget* buttons = row(form, column, u"picButtons"_s);
    add_ = button(*buttons, u"cmdAdd"_s, addCaption, actions_.add);
    edit_ = button(*buttons, u"cmdEdit"_s, u"&Edit"_s, actions_.edit);
    update_ = button(*buttons, u"cmdUpdate"_s, u"&Save"_s, actions_.update);
    cancel_ = button(*buttons, u"cmdCancel"_s, u"&Cancel"_s, actions_.cancel);
    delete_ = button(*buttons, u"cmdDelete"_s, u"&Delete"_s, actions_.remove);
    if (actions_.open) open_ = button(*buttons, u"cmdOpen"_s, u"O&pen"_s, actions_.open);
    add_->addKey(QKeySequence::New);
    update_->addKey(QKeySequence::Save);
    actionRow_ = static_cast<QHBoxLayout*>(buttons->layout());
    actionRow_->addStretch(1);
    close_ = button(*buttons, u"cmdClose"_s, u"C&lose"_s, actions_.close);
}

void RecordButtons::showBrowsing(bool browsing) {
    platform::CommandButton* heir = nullptr;
    if (edit_->hasFocus()) heir = update_;
    if (update_->hasFocus() || cancel_->hasFocus()) heir = edit_;
    const auto show = [](std::initializer_list<platform::CommandButton*> buttons, bool visible) {
        for (platform::CommandButton* button : buttons)
            button->setVisible(visible);
    };
    show({edit_, close_, update_, cancel_}, true);
    // A button that goes with the focus would leave it to the owner, who may be one that can't be left.
    if (heir) heir->setFocus();
    show({close_}, browsing);
    show({edit_}, browsing && actions_.edit);
    show({add_, delete_}, browsing && actions_.add);
    show({update_, cancel_}, !browsing);
    status_->setAutoFillBackground(!browsing);
    status_->setPalette(browsing ? QPalette() : changingColours());
}

void RecordButtons::addNote(QLabel& note) {
    actionRow_->insertWidget(actionRow_->count() - 1, &note);
    actionRow_->insertSpacing(actionRow_->count() - 1, 12);
}

void RecordButtons::enableMoves(bool enabled) {
    for (platform::CommandButton* move : {next_, first_, last_, previous_})
        move->setEnabled(enabled);
}

}  // namespace session
