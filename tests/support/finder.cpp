#include "tests/support/finder.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QToolBar>

#include "platform/forms/desktop.h"
#include "platform/forms/form.h"
#include "platform/forms/form_window.h"
#include "platform/forms/mdi_frame.h"
#include "platform/forms/tree_view.h"
#include "tests/support/refused.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

platform::Form* topmostModal(const platform::Desktop& desktop) {
    if (auto* form = dynamic_cast<platform::Form*>(QApplication::activeModalWidget())) return form;
    for (int i = desktop.count() - 1; i >= 0; --i) {
        QWidget& window = desktop.at(i).window();
        if (window.isWindow() && window.isModal() && window.isVisible()) return &desktop.at(i);
    }
    return nullptr;
}

platform::Form* presentForm(const platform::Desktop& desktop) {
    if (platform::Form* modal = topmostModal(desktop)) return modal;
    if (desktop.host() && desktop.host()->activeForm()) return desktop.host()->activeForm();
    if (auto* form = dynamic_cast<platform::Form*>(QApplication::activeWindow())) return form;
    return desktop.host();
}

/// Parts that the toolkit puts into its own widgets bear names too.
bool isInner(const QWidget& widget) {
    if (widget.objectName().isEmpty() || widget.objectName().startsWith(u"qt_"_s)) return true;
    return qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr;
}

/// The controls that labels of this text lead to, and the check boxes that bear it themselves.
std::vector<QWidget*> labelled(const std::vector<QWidget*>& controls, const QString& text) {
    std::vector<QWidget*> found;
    for (QWidget* control : controls) {
        const auto* label = qobject_cast<const QLabel*>(control);
        if (label && label->buddy() && label->text() == text) found.push_back(label->buddy());
        if (auto* box = qobject_cast<QCheckBox*>(control); box && box->text() == text) found.push_back(box);
    }
    return found;
}

void addEntries(const QMenu& menu, std::vector<QAction*>& found) {
    const auto entries = menu.actions();
    for (QAction* entry : entries) {
        if (!entry->objectName().isEmpty()) found.push_back(entry);
        if (entry->menu()) addEntries(*entry->menu(), found);
    }
}

}  // namespace

platform::Form& Finder::form(const QString& name) const {
    platform::Form* found = name.isEmpty() ? presentForm(desktop_) : desktop_.find(name);
    if (!found) throw Refused(name.isEmpty() ? u"no form is loaded"_s : u"no form is loaded: "_s + name);
    return *found;
}

Finder::Place Finder::place(const QString& name) const {
    const qsizetype dot = name.indexOf(u'.');
    const bool isDotInLabel = name.endsWith(u':') && !desktop_.find(name.left(dot));
    if (dot < 0 || isDotInLabel) return {form(), name};
    return {form(name.left(dot)), name.mid(dot + 1)};
}

QWidget& Finder::control(const QString& name) const {
    const Place at = place(name);
    const std::vector<QWidget*> all = controls(at.form);
    for (QWidget* widget : all) {
        if (widget->objectName() == at.control) return *widget;
    }
    const std::vector<QWidget*> meant = labelled(all, at.control);
    if (meant.size() == 1) return *meant.front();
    throw Refused(u"%1 has no control %2"_s.arg(at.form.name(), at.control));
}

QAction* Finder::action(const QString& name) const {
    const Place at = place(name);
    for (QAction* action : actions(at.form)) {
        if (action->objectName() == at.control) return action;
    }
    return nullptr;
}

QAbstractItemView& Finder::view(const QString& name) const {
    if (!name.isEmpty()) {
        if (auto* named = qobject_cast<QAbstractItemView*>(&control(name))) return *named;
        throw Refused(name + u" is neither a grid nor a list"_s);
    }
    platform::Form& shown = form();
    for (QWidget* widget : controls(shown)) {
        auto* view = qobject_cast<QAbstractItemView*>(widget);
        if (view && !dynamic_cast<platform::TreeView*>(view)) return *view;
    }
    throw Refused(shown.name() + u" has neither a grid nor a list"_s);
}

platform::TreeView& Finder::tree() const {
    if (desktop_.host()) {
        const auto widgets = desktop_.host()->findChildren<platform::TreeView*>();
        if (!widgets.isEmpty()) return *widgets.first();
    }
    throw Refused(u"there is no category tree"_s);
}

std::vector<QWidget*> Finder::controls(platform::Form& form) {
    std::vector<QWidget*> found;
    const auto widgets = form.window().findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (!isInner(*widget) && !qobject_cast<QMenu*>(widget) && platform::Form::of(widget) == &form) {
            found.push_back(widget);
        }
    }
    return found;
}

std::vector<QAction*> Finder::actions(platform::Form& form) {
    std::vector<QAction*> found;
    const auto bars = form.window().findChildren<QToolBar*>();
    for (const QToolBar* bar : bars) {
        if (platform::Form::of(bar->parentWidget()) != &form) continue;
        const auto keys = bar->actions();
        for (QAction* key : keys) {
            if (!key->objectName().isEmpty()) found.push_back(key);
        }
    }
    for (const QMenu* menu : form.menus()) {
        found.push_back(menu->menuAction());
        addEntries(*menu, found);
    }
    return found;
}

}  // namespace support
