#pragma once

#include <QTextBrowser>
#include <QWidget>

class QAction;
class QLineEdit;
class QSplitter;
class QTreeWidget;

namespace app {

/// The window in which the help file is read, beside the program: its contents at the left, a search, and the way back.
class HelpViewer : public QWidget {
    Q_OBJECT

public:
    /// `file`: path of the help file, a page of HTML whose headings are its contents.
    explicit HelpViewer(QString file);

    /// Name of the form that owns the help. It is never shown, but counts among the loaded forms once help was used.
    [[nodiscard]] static QString ownerName() { return QStringLiteral("Form1"); }

    /// Brings the window up at the beginning of the file. Tells so in the window when the file isn't there.
    void open();

private:
    void layOut();
    void showContents();
    /// Goes on to the next place of the searched text; behind the last one to the first.
    void search(QTextDocument::FindFlags direction = {});
    void tellMissing();

    QString file_;
    QTreeWidget* contents_;
    QTextBrowser* page_;
    QLineEdit* search_;
    QSplitter* split_;
    QAction* notFound_ = nullptr;
};

}  // namespace app
