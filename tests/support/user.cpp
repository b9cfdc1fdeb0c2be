#include "tests/support/user.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QInputMethodEvent>
#include <QJsonArray>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScopeGuard>
#include <chrono>
#include <thread>

#include "platform/forms/combo_box.h"
#include "platform/forms/desktop.h"
#include "platform/forms/mdi_frame.h"
#include "platform/forms/text_control.h"
#include "platform/forms/tree_view.h"
#include "tests/support/description.h"
#include "tests/support/keyboard.h"
#include "tests/support/mouse.h"
#include "tests/support/refused.h"
#include "tests/support/targets.h"
#include "tests/support/user_dialogs.h"
#include "tests/support/watched_printer.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

/// The list of a combo takes no choice within a double click's time of the press that opened it, but closes when the
/// button is let go later than that: on a slow machine it takes more than this to try.
constexpr std::chrono::milliseconds doubleClick{25};
constexpr int mostTries = 4;

template <class Dialog>
Dialog& openDialog(const QString& what) {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (!dialog) throw Refused(u"no %1 is open"_s.arg(what));
    return *dialog;
}

QAbstractButton& buttonOf(const QDialog& dialog, const QString& caption) {
    const auto buttons = dialog.findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        if (plainCaption(button->text()).compare(caption, Qt::CaseInsensitive) == 0) return *button;
    }
    throw Refused(u"the box has no button "_s + caption);
}

QDialogButtonBox& buttonsOf(const QDialog& dialog) {
    return *dialog.findChild<QDialogButtonBox*>();
}

bool holdsFocus(const QWidget& widget) {
    const QWidget* focus = QApplication::focusWidget();
    return focus && (focus == &widget || widget.isAncestorOf(focus));
}

/// Selects all of a box. Done by the mouse it raises no key event, so it is not done by keys here either.
bool selectAll(QWidget& widget) {
    if (auto* box = dynamic_cast<platform::TextControl*>(&widget)) {
        box->selectAll();
        return !box->text().isEmpty();
    }
    if (auto* combo = dynamic_cast<platform::ComboBox*>(&widget)) {
        combo->selectAll();
        return !combo->text().isEmpty();
    }
    if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
        line->selectAll();
        return !line->text().isEmpty();
    }
    throw Refused(widget.objectName() + u" takes no text"_s);
}

}  // namespace

User::User(MakeProgram make, QSize hostSize)
    : printer_(std::make_unique<WatchedPrinter>()),
      make_(std::move(make)),
      hostSize_(hostSize),
      gui_([this] { return settled(); }) {
    gui_.look([] {
        // A desktop tells where its icons lie; the windows drawn in memory know of none.
        QIcon::setThemeSearchPaths({u"/usr/share/icons"_s});
        for (const auto effect : {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo, Qt::UI_AnimateTooltip}) {
            QApplication::setEffectEnabled(effect, false);
        }
    });
}

User::~User() {
    try {
        leaveProgram();
    } catch (const Refused& refused) {
        qWarning("%s", refused.what());
    }
}

void User::start() {
    gui_.act([this] {
        if (isRunning()) throw Refused(u"the program is running already"_s);
        program_.reset();
        program_ = make_();
        platform::Desktop& desktop = program_->desktop();
        auto dialogs = std::make_unique<UserDialogs>();
        dialogs_ = dialogs.get();
        desktop.setDialogs(std::move(dialogs));
        QObject::connect(&desktop, &platform::Desktop::beeped, &desktop, [this] { ++beeps_; });
        // The files are counted; their programs would open windows of their own.
        desktop.setFileOpener([](const QString&, const QString&) {});
        QObject::connect(&desktop, &platform::Desktop::fileOpened, &desktop,
                         [this](const QString& path) { opened_.append(path); });
        hostSized_ = false;
        starting_ = true;
        const auto started = qScopeGuard([this] { starting_ = false; });
        program_->main();
    });
}

void User::click(const std::function<Spot()>& find, Qt::MouseButton button) {
    Spot spot;
    gui_.act([&] {
        spot = find();
        press(spot, button);
    });
    // A box may have come up since: then the release finds its window blocked, as it would under a hand.
    gui_.act([spot, button] { letGo(spot, button); });
}

void User::stroke(const KeyStroke& stroke) {
    gui_.act([stroke] { press(stroke); }, GuiThread::Keys::Held);
    gui_.act([stroke] { letGo(stroke); });
}

void User::typeAll(const QString& text) {
    const QWindow* window = read([] { return QGuiApplication::focusWindow(); });
    for (const KeyStroke& next : strokesOf(text)) {
        if (read([] { return QGuiApplication::focusWindow(); }) != window) {
            throw Refused(u"another window came up while typing"_s);
        }
        stroke(next);
    }
}

void User::click(const QString& control) {
    click([&] { return spotOn(finder().control(control)); });
}

void User::fill(const QString& control, const QString& text) {
    click(control);
    const bool hadText = read([&] {
        QWidget& box = finder().control(control);
        if (!holdsFocus(box)) throw Refused(control + u" did not get the focus"_s);
        return selectAll(box);
    });
    if (text.isEmpty()) {
        if (hadText) key(u"Backspace"_s);
    } else {
        typeAll(text);
    }
}

void User::type(const QString& text) {
    typeAll(text);
}

void User::key(const QString& name) {
    stroke(keyNamed(name));
}

void User::compose(const QString& text) {
    gui_.act([text] {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    });
}

bool User::openList(const QString& combo, const QString& entry, std::chrono::milliseconds click) {
    gui_.act([&] {
        QApplication::setDoubleClickInterval(static_cast<int>(click.count()));
        const Spot arrow = spotOnArrow(comboFor(finder().control(combo), entry));
        press(arrow);
        letGo(arrow);
    });
    std::this_thread::sleep_for(click);
    return read([&] { return comboFor(finder().control(combo), entry).view()->isVisible(); });
}

void User::pick(const QString& combo, const QString& entry) {
    const auto isLocked = [&] {
        const auto* box = dynamic_cast<platform::ComboBox*>(&finder().control(combo));
        return box && box->isLocked();
    };
    const int tries = read(isLocked) ? 1 : mostTries;
    bool open = false;
    for (int i = 0; i < tries && !open; ++i)
        open = openList(combo, entry, doubleClick * (1 << 2 * i));
    if (!open) throw Refused(u"the list of %1 did not open"_s.arg(combo));
    click([&] {
        QComboBox& box = comboFor(finder().control(combo), entry);
        const int row = box.findText(entry, Qt::MatchExactly | Qt::MatchCaseSensitive);
        return spotOnRow(*box.view(), box.model()->index(row, box.modelColumn()));
    });
}

void User::node(const QString& key) {
    click([&] {
        platform::TreeView& tree = finder().tree();
        return spotOnText(tree, shownNode(tree, key));
    });
}

void User::setExpanded(const QString& key, bool expanded) {
    const auto isThere = [&] { return shownNode(finder().tree(), key).isExpanded() == expanded; };
    if (read(isThere)) return;
    click([&] {
        platform::TreeView& tree = finder().tree();
        QTreeWidgetItem& item = shownNode(tree, key);
        if (item.childCount() == 0) throw Refused(key + u" is no branch"_s);
        return spotOnSign(tree, item);
    });
}

void User::menu(const QString& name) {
    const auto path = [&] {
        platform::MdiFrame* host = program_ ? program_->desktop().host() : nullptr;
        if (!host) throw Refused(u"there is no menu"_s);
        checkNotBlocked(*host);
        return pathTo(host->menuBar()->actions(), name);
    };
    const std::vector<QAction*> steps = read(path);
    click([&] {
        QMenuBar& bar = *program_->desktop().host()->menuBar();
        return spotAt(bar, bar.actionGeometry(steps.front()).center());
    });
    for (std::size_t i = 1; i < steps.size(); ++i) {
        click([&] { return spotOnEntry(*steps[i]); });
    }
}

void User::tool(const QString& key) {
    click([&] { return spotOnKey(finder().action(key), key); });
}

void User::popup(const QString& name) {
    const auto rightClick = [&] {
        auto* focused = qobject_cast<QAbstractItemView*>(QApplication::focusWidget());
        const bool isOurs = focused && platform::Form::of(focused) == &finder().form();
        QAbstractItemView& view = isOurs ? *focused : finder().view();
        if (!view.isVisible() || !view.isEnabled()) throw Refused(view.objectName() + u" takes no click"_s);
        if (view.currentIndex().isValid()) return spotOnRow(view, view.currentIndex());
        return spotAt(*view.viewport(), view.viewport()->rect().center());
    };
    click(rightClick, Qt::RightButton);
    const auto entry = [&] {
        const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu) throw Refused(u"no context menu came up"_s);
        return pathTo(menu->actions(), name).front();
    };
    try {
        click([&] { return spotOnEntry(*entry()); });
    } catch (const Refused&) {
        key(u"Escape"_s);
        throw;
    }
}

Spot User::spotOnRowOf(const QString& view, int row) {
    QAbstractItemView& list = finder().view(view);
    static_cast<void>(spotOn(list));
    const QAbstractItemModel* model = list.model();
    if (!model || row < 0 || row >= model->rowCount()) throw Refused(u"%1 has no row %2"_s.arg(view).arg(row));
    for (int column = 0; column < model->columnCount(); ++column) {
        const QModelIndex index = model->index(row, column);
        list.scrollTo(index);
        if (list.visualRect(index).width() > 1) return spotOnRow(list, index);
    }
    throw Refused(view + u" shows no column"_s);
}

void User::select(const QString& view, int row) {
    click([&] { return spotOnRowOf(view, row); });
}

void User::selectTwice(const QString& view, int row) {
    gui_.act([&] { pressTwice(spotOnRowOf(view, row)); });
}

void User::answer(const QString& button) {
    click([&] { return spotOn(buttonOf(openDialog<QMessageBox>(u"message box"_s), button)); });
}

void User::choose(const QString& path) {
    gui_.act([&] { dialogs_->choose(openDialog<QFileDialog>(u"file dialog"_s), path); });
}

void User::enter(const QString& text) {
    click([] { return spotOn(*openDialog<QInputDialog>(u"input box"_s).findChild<QLineEdit*>()); });
    const bool hadText =
        read([] { return selectAll(*openDialog<QInputDialog>(u"input box"_s).findChild<QLineEdit*>()); });
    if (text.isEmpty() && hadText) key(u"Backspace"_s);
    typeAll(text);
    click([] { return spotOn(*buttonsOf(openDialog<QInputDialog>(u"input box"_s)).button(QDialogButtonBox::Ok)); });
}

void User::cancel() {
    click([] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        const bool fits = qobject_cast<QFileDialog*>(dialog) || qobject_cast<QInputDialog*>(dialog);
        if (!fits) throw Refused(u"neither a file dialog nor an input box is open"_s);
        return spotOn(*buttonsOf(*dialog).button(QDialogButtonBox::Cancel));
    });
}

void User::dismiss() {
    gui_.act([] {
        const QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog) throw Refused(u"neither a dialog nor a message box is open"_s);
        if (!dialog->windowFlags().testFlag(Qt::WindowCloseButtonHint)) {
            throw Refused(u"%1 \"%2\" has no close box"_s.arg(dialog->objectName(), dialog->windowTitle()));
        }
        dialog->windowHandle()->close();
    });
}

void User::close() {
    gui_.act([this] {
        platform::MdiFrame* host = program_ ? program_->desktop().host() : nullptr;
        if (!host || !host->isVisible()) throw Refused(u"the host window is not open"_s);
        checkNotBlocked(*host);
        host->windowHandle()->close();
    });
}

void User::shot(const QString& file) {
    const bool saved = read([&] {
        QWidget* window = topmostWindow();
        if (!window) throw Refused(u"no window is open"_s);
        return window->grab().save(file, "PNG");
    });
    if (!saved) throw Refused(u"can't write "_s + file);
}

QJsonObject User::state() {
    return read([this] {
        QJsonObject seen = program_ ? describeDesktop(program_->desktop()) : QJsonObject();
        if (!program_)
            seen = {{u"dialog"_s, {}},
                    {u"active"_s, {}},
                    {u"forms"_s, QJsonArray()},
                    {u"focus"_s, {}},
                    {u"pointer"_s, u"normal"_s}};
        seen[u"running"_s] = isRunning();
        seen[u"beeps"_s] = beeps_;
        seen[u"opened"_s] = QJsonArray::fromStringList(opened_);
        return seen;
    });
}

QJsonObject User::session() {
    return read([this] {
        const session::Session* values = program_ ? program_->session() : nullptr;
        if (!values) throw Refused(u"there are no session values"_s);
        return describeSession(*values);
    });
}

QJsonObject User::form(const QString& name) {
    return read([&] { return describeForm(finder().form(name)); });
}

QJsonObject User::control(const QString& name) {
    return read([&] {
        if (const QAction* action = finder().action(name)) return describeAction(*action);
        return describeControl(finder().control(name));
    });
}

QJsonObject User::tree() {
    return read([&] { return describeTree(finder().tree()); });
}

QJsonObject User::grid(const QString& view) {
    return read([&] { return describeView(finder().view(view)); });
}

QString User::text(const QString& name) {
    return control(name)[u"text"_s].toString();
}

void User::setPrinter(const QString& file) {
    gui_.look([&] { printer_->use(file); });
}

QJsonArray User::jobs() {
    return read([this] { return printer_->takeJobs(); });
}

void User::forgetNoises() {
    gui_.look([this] {
        beeps_ = 0;
        opened_.clear();
    });
}

Finder User::finder() const {
    if (!program_) throw Refused(u"the program is not running"_s);
    return Finder(program_->desktop());
}

bool User::isRunning() const {
    return program_ && (starting_ || program_->desktop().count() > 0);
}

bool User::settled() {
    if (program_ && program_->desktop().isWaiting()) return false;
    if (sizeHost()) return false;
    return !activateTopmost();
}

bool User::activateTopmost() {
    const QWindow* focused = QGuiApplication::focusWindow();
    QWidget* top = focused && focused->isVisible() ? nullptr : topmostWindow();
    if (!top) {
        activations_ = 0;
        return false;
    }
    if (activations_ == mostTries) return false;
    ++activations_;
    top->windowHandle()->requestActivate();
    return true;
}

bool User::sizeHost() {
    platform::MdiFrame* host = program_ ? program_->desktop().host() : nullptr;
    if (hostSized_ || !host || !host->isVisible()) return false;
    host->showNormal();
    host->resize(hostSize_);
    hostSized_ = true;
    return true;
}

void User::leaveProgram() {
    const auto closeTopmost = [this] {
        QWidget* modal = QApplication::activeModalWidget();
        if (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
        } else if (auto* dialog = qobject_cast<QDialog*>(modal)) {
            dialog->done(QDialog::Rejected);
        } else if (auto* form = dynamic_cast<platform::Form*>(modal)) {
            form->leave();
        } else if (program_) {
            program_->desktop().endRun();
        }
    };
    const auto left = [this] { return !isRunning() && !QApplication::activeModalWidget(); };
    constexpr int mostBoxes = 20;
    for (int i = 0; i < mostBoxes && !read(left); ++i)
        gui_.act(closeTopmost);
    gui_.act([this] { program_.reset(); });
}

}  // namespace support
