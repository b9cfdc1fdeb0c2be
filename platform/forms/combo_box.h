#pragma once

#include <QComboBox>
#include <QStringList>
#include <functional>
#include <optional>

#include "platform/forms/bindable.h"
#include "platform/forms/control.h"

namespace platform {

class LineEdit;

/// A drop-down list with free typing.
class ComboBox : public QComboBox, public Control, public Bindable {
    Q_OBJECT

public:
    explicit ComboBox(QWidget* parent = nullptr);

    [[nodiscard]] QWidget& widget() override { return *this; }
    [[nodiscard]] int widthFor(int textPixels) override;
    [[nodiscard]] QString hint() override;
    void setSpokenName(const QString& name) override;
    [[nodiscard]] QString text() const;
    /// Sets the text without a click; the list index becomes -1, whatever entries there are.
    void setText(const QString& text);
    [[nodiscard]] int listIndex() const { return listIndex_; }
    /// Chooses an entry, which is a click unless it is chosen already; -1 empties the box. 0 on an empty list does
    /// nothing; throws RuntimeError 380 for any other index outside the list.
    void setListIndex(int index);
    [[nodiscard]] int listCount() const { return count(); }
    /// Text of an entry; empty outside the list.
    [[nodiscard]] QString list(int index) const { return entries_.value(index); }
    void addItem(const QString& text) { addItems({text}); }
    /// The same as addItem() for each of them, in less time.
    void addItems(const QStringList& texts);
    /// Takes an entry out; one that is chosen empties the box. Throws RuntimeError 5 outside the list.
    void removeEntry(int index);
    void clearList();
    [[nodiscard]] bool isLocked() const { return locked_; }
    /// A locked combo takes neither typing nor a choice; code can still set it.
    void setLocked(bool locked);
    /// What is typed at the end is completed to the first entry that begins like it, the rest selected, so that the
    /// next letter replaces it.
    void setCompletes(bool completes) { completes_ = completes; }
    /// Only its entries can be chosen from here on, and nothing typed: a click anywhere in it opens the list.
    void setListOnly();
    void selectAll();
    [[nodiscard]] int selStart() const;
    [[nodiscard]] int selLength() const;

    void onClick(std::function<void()> handler) { handler_ = std::move(handler); }
    /// Enter was pressed in the box, before anything comes of the key.
    void onEnter(std::function<void()> handler) { enter_ = std::move(handler); }

    /// As for text boxes: the text is kept without being drawn until showHeld().
    void holdDisplay() { held_ = text(); }
    void showHeld();

    void showValue(const QVariant& value, ColumnKind kind, const QString& format) override;
    [[nodiscard]] QVariant content() const override { return text(); }

    [[nodiscard]] QSize sizeHint() const override;
    void showPopup() override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void initStyleOption(QStyleOptionComboBox* option) const override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeEditable();
    void click();
    void complete();
    /// Brings a text into the box, or its beginning where it is too long to be drawn.
    void showText(const QString& text);

    LineEdit* line_;
    std::function<void()> handler_;
    std::function<void()> enter_;
    QStringList entries_;  ///< whole, where the list has their beginnings
    int listIndex_ = -1;
    std::optional<QString> held_;
    QString long_;  ///< the whole of a text whose beginning is shown; what is typed takes its place
    bool locked_ = false;
    bool completes_ = false;
};

}  // namespace platform
