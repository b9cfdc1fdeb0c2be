#pragma once

#include <QPlainTextEdit>
#include <optional>

#include "platform/forms/text_control.h"

class QLabel;

namespace platform {

/// A text box of many lines with a vertical scroll bar. Line ends in its text are CR LF; Tab leaves the box.
class MemoBox : public QPlainTextEdit, public TextControl {
    Q_OBJECT

public:
    explicit MemoBox(QWidget* parent = nullptr);

    [[nodiscard]] QWidget& widget() override { return *this; }
    [[nodiscard]] QString text() const override;
    void setText(const QString& text) override;
    [[nodiscard]] bool isLocked() const override { return isReadOnly(); }
    void setLocked(bool locked) override;
    [[nodiscard]] int maxLength() const override { return limit_; }
    void setMaxLength(int characters) override { limit_ = characters; }
    [[nodiscard]] int selStart() const override;
    [[nodiscard]] int selLength() const override;
    void select(int start, int length) override;
    [[nodiscard]] QString selText() const override;
    void setSelText(const QString& text) override;
    void holdDisplay() override { held_ = text(); }
    void showHeld() override;
    using TextControl::selectAll;

    /// Height in pixels that shows so many lines, none of them in part.
    [[nodiscard]] int heightOfLines(int lines) const;
    /// The greatest height up to `most` pixels that shows whole lines only.
    [[nodiscard]] int wholeLines(int most) const;

protected:
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showBeginning(const QString& text);
    /// The rest goes with a beginning that is replaced whole.
    void beginningChanged(int position, int removed);
    void tellRest();
    [[nodiscard]] bool allSelected() const;
    [[nodiscard]] qreal lineHeight() const;
    /// Position in the text with its two-character line ends, of a position in the document, and back.
    [[nodiscard]] int toText(int documentPosition) const;
    [[nodiscard]] int toDocument(int textPosition) const;

    int limit_ = 0;
    std::optional<QString> held_;
    QString rest_;
    QString beginning_;  ///< as the document has it, while there is a rest
    QLabel* restNote_;
};

}  // namespace platform
