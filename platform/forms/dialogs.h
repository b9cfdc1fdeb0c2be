#pragma once

#include <QString>
#include <optional>

class QWidget;
class QFileDialog;

namespace platform {

enum class Icon { None, Information, Question, Critical };
/// NoYes: Yes and No as well, with No for the Enter key.
enum class Buttons { Ok, YesNo, NoYes };
enum class Answer { Ok, Yes, No };

/// What the file dialog is asked; every call starts clean, with nothing left of an earlier one.
struct FileRequest {
    enum class Mode { Open, Save };
    Mode mode = Mode::Open;
    QString folder{};         ///< where it starts; one that doesn't exist is passed over
    QString filterText{};     ///< "Database Files (*.mdb)"
    QString filterPattern{};  ///< "*.mdb"
    QString title{};
    QString fileName{};  ///< preset name, with or without a folder
    QString suffix{};    ///< added to a typed name without one
};

/// The one door to message boxes, file dialogs and input boxes. Each call is modal and returns when it is answered.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// Title of boxes that have none of their own.
    [[nodiscard]] static QString programTitle();

    /// Shows a box. Without a title of its own it bears the program's. Text beyond 1,024 characters is cut, so that the
    /// buttons stay on the screen.
    virtual Answer messageBox(const QString& text, Icon icon, const QString& title, Buttons buttons);
    /// Full name of the chosen file, which need not exist; empty when nothing was chosen. To save over one that exists
    /// has been agreed to in the dialog.
    QString fileDialog(const FileRequest& request) { return chooseFile(request).value_or(QString()); }
    /// The same, with a cancelled dialog told apart from one that was confirmed without a name.
    virtual std::optional<QString> chooseFile(const FileRequest& request);
    /// The typed text; empty when cancelled.
    virtual QString inputBox(const QString& prompt, const QString& title, const QString& preset);

protected:
    /// Lets the user choose in a dialog that is ready to show; the seam for a test that answers in his place.
    virtual QString runFileDialog(QFileDialog& dialog);
};

}  // namespace platform
