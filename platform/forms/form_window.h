#pragma once

#include <QEventLoop>
#include <QPointer>
#include <QWidget>

#include "platform/forms/form.h"

class QMdiSubWindow;

namespace platform {

class CommandButton;

/// A form that is a child of the host, a window of its own, or a modal dialog.
class FormWindow : public QWidget, public Form {
    Q_OBJECT

public:
    enum class Kind { Child, Window, Dialog };

    FormWindow(Desktop& desktop, const QString& name, Kind kind);
    ~FormWindow() override;

    [[nodiscard]] QWidget& window() override { return *this; }
    [[nodiscard]] bool isDialog() const { return kind_ == Kind::Dialog; }
    void show() override;
    /// Shows the form and returns when it is hidden or unloaded.
    void showModal();
    void leave() override;
    void takeFocus() override;

    /// Enter clicks it wherever nothing else takes the key.
    void setDefaultButton(CommandButton* button) { default_ = button; }
    /// Escape clicks it.
    void setCancelButton(CommandButton* button) { cancel_ = button; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void destroyLater() override;

private:
    /// A window that comes up for the first time has the focus in its first control.
    void focusFirstControl();

    Kind kind_;
    QPointer<QMdiSubWindow> frame_;
    QEventLoop* modalLoop_ = nullptr;
    CommandButton* default_ = nullptr;
    CommandButton* cancel_ = nullptr;
};

}  // namespace platform
