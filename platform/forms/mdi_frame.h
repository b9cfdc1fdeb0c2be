#pragma once

#include <QMainWindow>
#include <functional>
#include <vector>

#include "platform/forms/form.h"

class QMdiArea;
class QMdiSubWindow;
class QSplitter;

namespace platform {

/// A host window: a panel at the left of a divider, child windows in the rest, and the active child's menus in its menu
/// bar.
class MdiFrame : public QMainWindow, public Form {
    Q_OBJECT

public:
    MdiFrame(Desktop& desktop, const QString& name);
    ~MdiFrame() override;

    [[nodiscard]] QWidget& window() override { return *this; }
    void show() override;

    /// The active child; nullptr if no child is loaded and shown.
    [[nodiscard]] Form* activeForm() const;
    /// Gives a form's window a frame, maximized; bringToFront() is to follow.
    [[nodiscard]] QMdiSubWindow* addChild(QWidget& child);
    /// Shows the child maximized, in front, with the focus.
    void bringToFront(QMdiSubWindow& frame);
    /// Unloads a child and takes its frame away; the child that was in front before it comes to the front.
    void removeChild(QMdiSubWindow& frame, const std::function<void()>& unload);
    /// Brings the program's help up, before an open modal dialog too.
    virtual void showHelp() {}

protected:
    void setPanel(QWidget& panel);
    /// F6 goes round these controls of the panel, in this order, and the child in front; Shift+F6 the other way.
    void setStops(std::vector<QWidget*> stops) { stops_ = std::move(stops); }
    /// Tab goes by the children behind the one in front: it would bring them up.
    bool focusNextPrevChild(bool next) override;
    void closeEvent(QCloseEvent* event) override;
    /// Runs the whole way down; the frame's close box and its menu entries lead here.
    virtual void closeHost() = 0;
    /// Another child has come to the front, or the last one has gone.
    virtual void frontChanged() {}
    /// A picture that stands quietly where no child does.
    void setEmptyPicture(const QIcon& picture);

private:
    void addKeys();
    void goRound(int step);
    void openMenuBar();
    void showMenus();
    /// Does what makes other children active for moments, of which nobody is told.
    void quietly(const std::function<void()>& step);
    /// The same, and tells which child is in front behind it.
    void arrange(const std::function<void()>& step);
    void childActivated();

    class Area;

    QSplitter* centre_;
    Area* area_;
    QWidget* panel_ = nullptr;
    std::vector<QWidget*> stops_;
    Form* menuOwner_ = nullptr;
    QMdiSubWindow* front_ = nullptr;
    /// The children that have been active, the latest last.
    std::vector<QMdiSubWindow*> order_;
    bool arranging_ = false;
};

}  // namespace platform
