#include "platform/forms/dialogs.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int longestText = 1024;

/// An input box wide enough for a sentence, which comes up with the beginning of its text in sight.
class InputBox : public QInputDialog {
public:
    using QInputDialog::QInputDialog;

    void setVisible(bool visible) override {
        QInputDialog::setVisible(visible);
        auto* line = findChild<QLineEdit*>();
        if (!visible || !line) return;
        const auto length = static_cast<int>(line->text().size());
        line->setSelection(length, -length);
    }

protected:
    void showEvent(QShowEvent* event) override {
        constexpr int characters = 72;
        resize(std::max(width(), characters * fontMetrics().averageCharWidth()), height());
        QInputDialog::showEvent(event);
    }
};

QMessageBox::Icon boxIcon(Icon icon) {
    switch (icon) {
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Question:
            return QMessageBox::Question;
        case Icon::Critical:
            return QMessageBox::Critical;
        default:
            return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButton presetButton(Buttons buttons) {
    if (buttons == Buttons::Ok) return QMessageBox::Ok;
    return buttons == Buttons::YesNo ? QMessageBox::Yes : QMessageBox::No;
}

}  // namespace

QString Dialogs::programTitle() {
    return u"Kinbook"_s;
}

Answer Dialogs::messageBox(const QString& text, Icon icon, const QString& title, Buttons buttons) {
    const bool asks = buttons != Buttons::Ok;
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName(u"MessageBox"_s);
    box.setTextFormat(Qt::PlainText);
    box.setText(text.left(longestText));
    box.setWindowTitle(title.isEmpty() ? programTitle() : title);
    box.setIcon(boxIcon(icon));
    box.setStandardButtons(asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::StandardButtons(QMessageBox::Ok));
    box.setDefaultButton(presetButton(buttons));
    if (asks) {
        // A question is answered by a button; Esc is its No.
        box.setWindowFlag(Qt::WindowCloseButtonHint, false);
        box.setEscapeButton(QMessageBox::No);
    }
    switch (box.exec()) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        default:
            return Answer::Ok;
    }
}

std::optional<QString> Dialogs::chooseFile(const FileRequest& request) {
    QFileDialog dialog(QApplication::activeWindow(), request.title);
    dialog.setObjectName(u"FileDialog"_s);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setAcceptMode(request.mode == FileRequest::Mode::Open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    const QFileInfo preset(request.fileName);
    if (request.fileName.contains(u'/') && preset.dir().exists()) {
        dialog.setDirectory(preset.dir());
    } else if (QFileInfo(request.folder).isDir()) {
        dialog.setDirectory(request.folder);
    }
    if (!request.filterText.isEmpty()) {
        dialog.setNameFilter(u"%1 (%2)"_s.arg(request.filterText.section(u" ("_s, 0, 0), request.filterPattern));
    }
    dialog.setDefaultSuffix(request.suffix);
    if (!request.fileName.isEmpty()) dialog.selectFile(preset.fileName());
    // A screen reader asks also for the name of a list that isn't open.
    for (const QComboBox* combo : dialog.findChildren<QComboBox*>())
        combo->view()->setAccessibleName(dialog.windowTitle());
    const QString chosen = runFileDialog(dialog);
    if (dialog.result() != QDialog::Accepted) return std::nullopt;
    return chosen;
}

QString Dialogs::runFileDialog(QFileDialog& dialog) {
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString Dialogs::inputBox(const QString& prompt, const QString& title, const QString& preset) {
    InputBox dialog(QApplication::activeWindow());
    dialog.setObjectName(u"InputBox"_s);
    dialog.setWindowTitle(title);
    dialog.setLabelText(prompt);
    dialog.setTextValue(preset);
    return dialog.exec() == QDialog::Accepted ? dialog.textValue() : QString();
}

}  // namespace platform
