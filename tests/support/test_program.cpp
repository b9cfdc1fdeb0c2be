#include "tests/support/test_program.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolBar>
#include <QVBoxLayout>
#include <stdexcept>

#include "platform/base/runtime_error.h"
#include "platform/forms/check_box.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/desktop.h"
#include "platform/forms/form_window.h"
#include "platform/forms/mdi_frame.h"
#include "platform/forms/memo_box.h"
#include "platform/forms/menus.h"
#include "platform/forms/text_box.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

template <class C>
C* named(C* control, const QString& name) {
    control->setName(name);
    return control;
}

/// A modal form with a box and two ways out.
class TestDialog : public platform::FormWindow {
public:
    explicit TestDialog(platform::Desktop& desktop) : FormWindow(desktop, u"frmDialog"_s, Kind::Dialog) {
        setCaption(u"A Dialog"_s);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(named(new platform::TextBox, u"txtAccount"_s));
        static_cast<platform::TextBox*>(layout->itemAt(0)->widget())->setEchoMode(QLineEdit::Password);
        auto* close = named(new platform::CommandButton, u"cmdClose"_s);
        close->setText(u"&Close"_s);
        close->onClick(handler([this] { unload(); }));
        layout->addWidget(close);
        auto* hide = named(new platform::CommandButton, u"cmdHide"_s);
        hide->onClick(handler([this] { QWidget::hide(); }));
        layout->addWidget(hide);
        auto* tell = named(new platform::CommandButton, u"cmdTell"_s);
        tell->onClick(handler([this] { this->desktop().notice(u"Told."_s); }));
        layout->addWidget(tell);
    }

    [[nodiscard]] bool keyPreview() const override { return true; }
    void Form_KeyPress(int keyAscii) override { setCaption(u"Key %1"_s.arg(keyAscii)); }
};

class TestForm : public platform::FormWindow {
public:
    explicit TestForm(platform::Desktop& desktop) : FormWindow(desktop, u"frmTest"_s, Kind::Child) {
        setCaption(u"Test"_s);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(makeToolbar());
        layout->addWidget(log_);
        layout->addWidget(makeFields());
        layout->addWidget(makeButtons());
        makeMenu();
        log_->setObjectName(u"lblLog"_s);
        log_->hide();
    }

    [[nodiscard]] bool keyPreview() const override { return true; }
    bool Form_KeyDown(Qt::Key key, Qt::KeyboardModifiers held) override {
        write(u"Down "_s + QKeySequence(key | held).toString());
        return false;
    }
    void Form_KeyPress(int keyAscii) override { write(u"Press %1"_s.arg(keyAscii)); }
    void Form_QueryUnload(bool& cancel) override { cancel = !desktop().ask(u"Leave?"_s, u"Leaving"_s); }

private:
    void write(const QString& event) { log_->setText(log_->text() + event + u';'); }

    QToolBar* makeToolbar() {
        auto* bar = new QToolBar;
        bar->setObjectName(u"Toolbar1"_s);
        bar->setFocusPolicy(Qt::NoFocus);
        QAction* print = bar->addAction(u"Print"_s, this, [this] { write(u"tbPrint"_s); });
        print->setObjectName(u"tbPrint"_s);
        QAction* attach = bar->addAction(u"Attach"_s);
        attach->setObjectName(u"tbAttach"_s);
        attach->setEnabled(false);
        return bar;
    }

    void addBox(QFormLayout& layout, int index, platform::TextControl& box) {
        named(&box, platform::indexedName(u"txtFields"_s, index));
        auto* label = new QLabel(u"Label &%1:"_s.arg(index));
        label->setObjectName(platform::indexedName(u"lblLabels"_s, index));
        label->setBuddy(&box.widget());
        layout.addRow(label, &box.widget());
    }

    QWidget* makeFields() {
        auto* frame = new QGroupBox(u"Owner Information"_s);
        auto* layout = new QFormLayout(frame);
        auto* first = new platform::TextBox;
        first->setValidate([this, first] { return allows(*first); });
        addBox(*layout, 0, *first);
        auto* second = new platform::TextBox;
        second->setMaxLength(5);
        second->setValidate([second] { return second->text() != u"mute"_s; });
        addBox(*layout, 1, *second);
        auto* memo = new platform::MemoBox;
        memo->setFixedHeight(60);
        addBox(*layout, 2, *memo);
        auto* locked = new platform::TextBox;
        locked->setText(u"fixed"_s);
        locked->setLocked(true);
        addBox(*layout, 3, *locked);
        addCombos(*layout);
        auto* check = named(new platform::CheckBox, u"chkFields(0)"_s);
        check->setText(u"&Married"_s);
        check->onClick(handler([this, check] { write(u"Check %1"_s.arg(check->value())); }));
        layout->addRow(check);
        return frame;
    }

    bool allows(const platform::TextBox& box) {
        if (box.text().isEmpty()) return true;
        write(u"Validate"_s);
        if (box.text() != u"bad"_s) return true;
        desktop().notice(u"That is bad."_s, u"Check"_s);
        return false;
    }

    void addCombos(QFormLayout& layout) {
        for (int index = 0; index < 2; ++index) {
            auto* combo = named(new platform::ComboBox, platform::indexedName(u"cbFields"_s, index));
            for (const auto& entry : {u"Ann"_s, u"Bob"_s, u"Cy"_s})
                combo->addItem(entry);
            combo->setLocked(index == 1);
            combo->onClick(handler([this, combo] { write(u"Combo %1"_s.arg(combo->listIndex())); }));
            layout.addRow(combo);
        }
    }

    void addButton(QLayout& layout, const QString& name, const QString& caption, std::function<void()> routine) {
        auto* button = named(new platform::CommandButton, name);
        button->setText(caption);
        button->onClick(handler(std::move(routine)));
        layout.addWidget(button);
    }

    QWidget* makeButtons() {
        auto* row = new QWidget;
        auto* layout = new QHBoxLayout(row);
        addButton(*layout, u"cmdSave"_s, u"&Save"_s, [this] { write(u"Save"_s); });
        addButton(*layout, u"cmdAsk"_s, u"Ask"_s, [this] {
            const bool yes = desktop().ask(u"Sure?"_s, u"Asking"_s);
            write(yes ? u"Yes"_s : u"No"_s);
            if (yes) desktop().notice(u"Done."_s, u"Told"_s, platform::Icon::Critical);
        });
        addButton(*layout, u"cmdModal"_s, u"Modal"_s, [this] {
            auto& dialog = desktop().load(std::make_unique<TestDialog>(desktop()));
            dialog.showModal();
            if (!dialog.isLoaded()) return write(u"Unloaded"_s);
            write(u"Hidden "_s + static_cast<QLineEdit*>(&dialog.control(u"txtAccount"_s)->widget())->text());
            dialog.unload();
        });
        addButton(*layout, u"cmdFail"_s, u"Fail"_s,
                  [] { throw platform::RuntimeError(platform::Error::ObjectNotSet); });
        addButton(*layout, u"cmdHidden"_s, u"Hidden"_s, [this] { write(u"Hidden"_s); });
        layout->itemAt(layout->count() - 1)->widget()->hide();
        addButton(*layout, u"cmdDisabled"_s, u"Disabled"_s, [this] { write(u"Disabled"_s); });
        layout->itemAt(layout->count() - 1)->widget()->setEnabled(false);
        return row;
    }

    void makeMenu() {
        QMenu* file = platform::makeMenu(*this, u"mFile"_s, u"&File"_s);
        platform::addEntry(*file, u"mNote"_s, u"&Note"_s, handler([this] { write(u"mNote"_s); }));
        platform::addEntry(*file, u"mOff"_s, u"Off"_s, {})->setEnabled(false);
        platform::addEntry(*file, u"mThrow"_s, u"Throw"_s,
                           handler([] { throw std::runtime_error("nobody foresaw it"); }));
        platform::addEntry(*file, u"mDie"_s, u"Die"_s, [] { throw std::runtime_error("past every net"); });
        platform::addEntry(*file, u"mClose"_s, u"C&lose"_s, handler([this] { unload(); }));
        addMenu(file);
    }

    QLabel* log_ = new QLabel;
};

class TestHost : public platform::MdiFrame {
public:
    explicit TestHost(platform::Desktop& desktop) : MdiFrame(desktop, u"MDIHost"_s) {
        desktop.setHost(this);
        setCaption(u"Host"_s);
        auto* panel = new QWidget;
        auto* layout = new QVBoxLayout(panel);
        auto* person = named(new platform::ComboBox, u"cbPerson"_s);
        layout->addWidget(person);
        layout->addWidget(named(new platform::CommandButton, u"cmdAddNew"_s));
        setPanel(*panel);
        QMenu* file = platform::makeMenu(*this, u"mFile"_s, u"&File"_s);
        platform::addEntry(*file, u"mExit"_s, u"E&xit"_s, handler([this] { closeHost(); }));
        addMenu(file);
    }

protected:
    void closeHost() override {
        desktop().unloadAll([this](const Form& form) { return &form != this; });
        if (desktop().count() == 1) unload();
    }
};

class TestProgram : public Program {
public:
    void main() override {
        auto& host = desktop_.load(std::make_unique<TestHost>(desktop_));
        host.resize(1024, 700);
        host.show();
        desktop_.load(std::make_unique<TestForm>(desktop_)).show();
    }
    [[nodiscard]] platform::Desktop& desktop() override { return desktop_; }
    [[nodiscard]] const session::Session* session() override { return nullptr; }

private:
    platform::Desktop desktop_;
};

}  // namespace

MakeProgram testProgram() {
    return [] { return std::make_unique<TestProgram>(); };
}

QString EventLog::news() {
    const QString all = user_.text(u"frmTest.lblLog"_s);
    const QString added = all.mid(seen_);
    seen_ = all.size();
    return added;
}

}  // namespace support
