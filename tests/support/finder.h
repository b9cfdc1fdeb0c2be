#pragma once

#include <QString>
#include <vector>

class QAbstractItemView;
class QAction;
class QWidget;

namespace platform {
class Desktop;
class Form;
class TreeView;
}  // namespace platform

namespace support {

/// Finds what a user means by a name. Every function throws Refused where there is nothing of that name.
class Finder {
public:
    explicit Finder(platform::Desktop& desktop) : desktop_(desktop) {}

    /// The form with the name; for an empty one the topmost modal form, else the active child, else the host.
    [[nodiscard]] platform::Form& form(const QString& name = {}) const;
    /// A control as "CONTROL" or "FORM.CONTROL", where CONTROL is its name or, as a user would say, the text of the
    /// label before it. Two boxes of a form with one label go by their names alone.
    [[nodiscard]] QWidget& control(const QString& name) const;
    /// A toolbar key or menu entry, as a control; nullptr if there is none.
    [[nodiscard]] QAction* action(const QString& name) const;
    /// The grid or list with the name; for an empty one the form's only one, or its first.
    [[nodiscard]] QAbstractItemView& view(const QString& name = {}) const;
    [[nodiscard]] platform::TreeView& tree() const;

    /// All controls of a form that bear a name, and its toolbar keys and menu entries.
    [[nodiscard]] static std::vector<QWidget*> controls(platform::Form& form);
    [[nodiscard]] static std::vector<QAction*> actions(platform::Form& form);

private:
    struct Place {
        platform::Form& form;
        QString control;
    };
    [[nodiscard]] Place place(const QString& name) const;

    platform::Desktop& desktop_;
};

}  // namespace support
