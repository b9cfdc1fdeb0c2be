#pragma once

#include <QTimer>
#include <optional>

#include "find/book_search.h"
#include "find/found_model.h"
#include "platform/forms/form_window.h"

class QLabel;
class QVBoxLayout;

namespace platform {
class CommandButton;
class TextBox;
}  // namespace platform

namespace find {

class FoundList;

/// The modal dialog that looks for a text in the whole book while it is typed, and lists the places.
class FindDialog : public platform::FormWindow {
    Q_OBJECT

public:
    /// `member`: whose records come first, 0 for nobody's. `sought`: what stands in the box at the beginning.
    FindDialog(platform::Desktop& desktop, data::Connection& connection, std::span<const session::ShownRows> all,
               qint16 member, const QString& sought);

    void Form_Load() override;
    void Form_Unload() override;

    /// The place that the user opened; nullopt when he closed the dialog.
    [[nodiscard]] const std::optional<session::Place>& chosen() const { return chosen_; }
    [[nodiscard]] const QString& sought() const { return sought_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    void addButtons(QVBoxLayout& column);
    void txtFind_Change();
    /// Looks further for a moment, and shows what there is by then.
    void searchOn();
    void showCount();
    void cmdOpen_Click();

    BookSearch search_;
    FoundModel model_;
    QTimer next_;
    qint16 member_;
    QString sought_;
    std::optional<session::Place> chosen_;

    platform::TextBox* txtFind_;
    FoundList* lvFound_;
    QLabel* lblFound_;
    platform::CommandButton* cmdOpen_ = nullptr;
};

}  // namespace find
