#pragma once

#include <QMainWindow>

#include "platform/forms/form.h"

class QMdiArea;
class QMdiSubWindow;

namespace platform {

class FormWindow;

/// A host window: a panel at the left, child windows in the rest, and the active child's menus in its menu bar.
class MdiFrame : public QMainWindow, public Form {
    Q_OBJECT

public:
    MdiFrame(Desktop& desktop, const QString& name);
    ~MdiFrame() override;

    [[nodiscard]] QWidget& window() override { return *this; }
    void show() override;

    /// The active child; nullptr if no child is loaded and shown.
    [[nodiscard]] FormWindow* activeForm() const;
    [[nodiscard]] QMdiSubWindow* addChild(FormWindow& child);
    /// Shows the child maximized, in front, with the focus.
    void bringToFront(QMdiSubWindow& frame);
    void removeChild(QMdiSubWindow& frame);
    void focusNextChild();

protected:
    void setPanel(QWidget& panel);
    void closeEvent(QCloseEvent* event) override;
    /// Runs the whole way down; the frame's close box and its menu entries lead here.
    virtual void closeHost() = 0;

private:
    void showMenus();

    QWidget* centre_;
    QMdiArea* area_;
    FormWindow* menuOwner_ = nullptr;
};

}  // namespace platform
