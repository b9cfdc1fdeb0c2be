#include "find/find_dialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>

#include "find/found_list.h"
#include "platform/forms/command_button.h"
#include "platform/forms/desktop.h"
#include "platform/forms/text_box.h"

using namespace Qt::StringLiterals;

namespace find {

namespace {
/// Short enough that no key waits for it to be seen.
constexpr std::chrono::milliseconds slice{8};
}  // namespace

FindDialog::FindDialog(platform::Desktop& desktop, data::Connection& connection,
                       std::span<const session::ShownRows> all, qint16 member, const QString& sought)
    : FormWindow(desktop, u"frmFind"_s, Kind::Dialog),
      search_(connection, all),
      model_(search_),
      member_(member),
      sought_(sought),
      txtFind_(new platform::TextBox(this)),
      lvFound_(new FoundList(this)),
      lblFound_(new QLabel(this)) {
    setCaption(u"Find"_s);
    layOut();
    next_.setInterval(0);
    connect(&next_, &QTimer::timeout, this, handler([this] { searchOn(); }));
    connect(txtFind_, &QLineEdit::textChanged, this, handler([this] { txtFind_Change(); }));
    const QSize usual(fontMetrics().averageCharWidth() * 130, fontMetrics().lineSpacing() * 28);
    resize(usual.boundedTo(screen()->availableSize() * 9 / 10));
}

void FindDialog::layOut() {
    auto* column = new QVBoxLayout(this);
    auto* line = new QHBoxLayout;
    auto* label = new QLabel(u"&Find:"_s, this);
    txtFind_->setName(u"txtFind"_s);
    txtFind_->setAccessibleName(u"Find"_s);
    label->setBuddy(txtFind_);
    line->addWidget(label);
    line->addWidget(txtFind_, 1);
    column->addLayout(line);

    lvFound_->setName(u"lvFound"_s);
    lvFound_->setAccessibleName(u"Places found"_s);
    lvFound_->setModel(&model_);
    lvFound_->onDoubleClick(handler([this] { cmdOpen_Click(); }));
    lvFound_->onLeaveUpwards([this] { txtFind_->setFocus(); });
    column->addWidget(lvFound_, 1);
    addButtons(*column);
}

void FindDialog::addButtons(QVBoxLayout& column) {
    auto* row = new QHBoxLayout;
    lblFound_->setObjectName(u"lblFound"_s);
    lblFound_->setTextFormat(Qt::PlainText);
    row->addWidget(lblFound_, 1);
    const auto add = [&](const QString& name, const QString& caption, const std::function<void()>& routine) {
        auto* button = new platform::CommandButton(this);
        button->setName(name);
        button->setText(caption);
        button->onClick(handler(routine));
        row->addWidget(button);
        return button;
    };
    cmdOpen_ = add(u"cmdOpen"_s, u"&Open"_s, [this] { cmdOpen_Click(); });
    setDefaultButton(cmdOpen_);
    setCancelButton(add(u"cmdClose"_s, u"&Close"_s, [this] { unload(); }));
    column.addLayout(row);
}

// The search -------------------------------------------------------------------------------------------------------

void FindDialog::Form_Load() {
    txtFind_->setText(sought_);
    txtFind_->selectAll();
    txtFind_->setFocus();
    showCount();
}

void FindDialog::Form_Unload() {
    next_.stop();
    search_.begin({}, 0);
}

void FindDialog::txtFind_Change() {
    sought_ = txtFind_->text();
    model_.clear();
    const bool begun = desktop().attempt(u"Find Error"_s, [this] { search_.begin(sought_, member_); });
    if (begun) searchOn();
}

void FindDialog::searchOn() {
    const bool went = desktop().attempt(u"Find Error"_s, [this] {
        if (search_.step(slice)) {
            next_.start();
        } else {
            next_.stop();
        }
    });
    if (!went) next_.stop();
    model_.extend();
    showCount();
}

void FindDialog::showCount() {
    const qint64 places = search_.places();
    QString told = places == 1 ? u"1 place"_s : u"%1 places"_s.arg(places);
    if (places == 0) told = u"Nothing found"_s;
    if (places > model_.rowCount()) told += u", the first %1 of them listed"_s.arg(model_.rowCount());
    if (!search_.isOver()) told = places == 0 ? u"Looking..."_s : told + u" so far"_s;
    lblFound_->setText(sought_.trimmed().isEmpty() ? QString() : told);
    cmdOpen_->setEnabled(model_.rowCount() > 0);
}

// The list ---------------------------------------------------------------------------------------------------------

void FindDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down && txtFind_->hasFocus()) {
        lvFound_->setFocus();
    } else {
        FormWindow::keyPressEvent(event);
    }
}

void FindDialog::cmdOpen_Click() {
    desktop().attempt(u"Find Error"_s, [this] {
        if (lvFound_->selectedRow() < 0) return;
        chosen_ = search_.place(model_.hit(lvFound_->selectedRow()));
        unload();
    });
}

}  // namespace find
