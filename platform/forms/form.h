#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

class QMenu;

namespace platform {

class Control;
class Desktop;
class Form;

/// What forms need of the desktop that holds them.
class FormHolder {
public:
    [[nodiscard]] virtual Desktop& desktop() = 0;
    /// Runs what an event set off; a failure in it that no routine handled is shown, and the session goes on.
    virtual void run(const std::function<void()>& handler) = 0;
    /// A form is unloaded: it leaves the collection at once and is destroyed when no event of it runs any more.
    virtual void retire(Form& form) = 0;

protected:
    ~FormHolder() = default;
};

/// A window of the program: its name, its place in the collection of loaded forms, and its events.
///
/// A form lives from its load to its unload; the next load makes a fresh one, so no flag or kept value outlives a
/// window.
class Form {
public:
    Form(FormHolder& holder, QString name);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    [[nodiscard]] Desktop& desktop() const { return holder_.desktop(); }
    [[nodiscard]] const QString& name() const { return name_; }
    [[nodiscard]] virtual QWidget& window() = 0;
    [[nodiscard]] QString caption() const { return caption_; }
    virtual void setCaption(const QString& caption);
    [[nodiscard]] bool isLoaded() const { return loaded_; }

    /// Brings the window up, not modal; a child comes to the front of the host.
    virtual void show() = 0;
    /// Gives the focus to the control that had it last, else to the first one.
    virtual void takeFocus();
    /// Asks the form and lets it go; false when it vetoed and stays.
    bool unload();
    /// The form's part of an unload that is decided already: no veto.
    virtual void leave();
    /// True if the form agrees to go; asks the user where there is something to lose.
    [[nodiscard]] bool agreesToClose();

    /// The form that a widget stands on; nullptr for none.
    [[nodiscard]] static Form* of(QWidget* widget);
    /// A control by name; nullptr if the form has none of that name.
    [[nodiscard]] Control* control(const QString& name);
    /// The control that has the form's focus; nullptr if none has.
    [[nodiscard]] Control* activeControl();
    /// A control has the focus. Its check is due from now on, also behind a focus that another window took without one.
    void setCheckDue(Control& control);
    /// Runs the check of one of the form's controls; false to hold the focus.
    [[nodiscard]] bool passesCheck(Control& control);
    /// Runs every check that is due; false, with the focus in its control, at the first that fails.
    [[nodiscard]] bool passesChecks();
    /// What stands in the controls is none of the user's entries any more; the active one is checked when it is left.
    void forgetChecks();
    /// The menus that stand in the host's bar while this form is the active one.
    [[nodiscard]] const std::vector<QMenu*>& menus() const { return menus_; }

    /// The form sees keys before its controls do.
    [[nodiscard]] virtual bool keyPreview() const { return false; }

    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    /// `held`: which of Shift, Ctrl and Alt. True if the key is used up: nothing else comes of it, neither a character
    /// nor anything in the box.
    virtual bool Form_KeyDown(Qt::Key /*key*/, Qt::KeyboardModifiers /*held*/) { return false; }
    virtual void Form_KeyPress(int /*keyAscii*/) {}
    virtual void Form_KeyUp(Qt::Key /*key*/) {}
    virtual void Form_QueryUnload(bool& /*cancel*/) {}
    virtual void Form_Unload() {}

protected:
    /// A handler for an event of one of the form's controls; a failure in it that no routine handled is shown, not
    /// thrown.
    [[nodiscard]] std::function<void()> handler(std::function<void()> routine);
    void addMenu(QMenu* menu) { menus_.push_back(menu); }
    /// Destroys the form, which is unloaded, when nothing of it runs any more.
    virtual void destroyLater();

private:
    friend class Desktop;
    FormHolder& holder_;
    QString name_;
    QString caption_;
    std::vector<QMenu*> menus_;
    std::vector<QPointer<QWidget>> due_;  ///< those with a check to pass, as the focus came to them
    bool loaded_ = false;
};

}  // namespace platform
