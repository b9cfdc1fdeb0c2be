#pragma once

#include "lists/coming_rows.h"
#include "lists/grid_window.h"

class QLabel;

namespace platform {
class ComboBox;
}

namespace lists {

/// What expires, falls due, begins or returns in the days to come, of the whole family, and what has run out lately.
/// The rows are read whenever the window comes to the front. A row leads to its record.
class ComingDates : public GridWindow {
    Q_OBJECT

public:
    ComingDates(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace);

    [[nodiscard]] static QString formName();

    void Form_Load() override;
    void Form_Activate() override { refresh(); }
    bool Form_KeyDown(Qt::Key key, Qt::KeyboardModifiers held) override;
    void Form_Unload() override;

private:
    [[nodiscard]] QLayout* makeHead();
    [[nodiscard]] session::RecordActions actions();
    /// The days ahead that are shown.
    [[nodiscard]] int days() const;
    void refresh();
    /// What the rows amount to, in words.
    [[nodiscard]] QString summary() const;
    void rowChosen(int row) override;
    /// Moves to a row; beyond the ends it beeps and stays at the end.
    void goTo(int row);
    void showPosition();
    void cmdOpen_Click();

    ComingRows rows_;
    platform::ComboBox* cbDays_ = nullptr;
    QLabel* lblComing_ = nullptr;
};

}  // namespace lists
