#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>

#include "platform/base/record_source.h"

namespace platform {

class Bindable;

/// Ties one control to one column of a recordset.
///
/// The control shows the current row after every move and forgets what was typed. What was altered in it since then
/// is handed over only when the row is about to be written, and stays as typed until that has succeeded.
class Binding : public QObject {
    Q_OBJECT

public:
    /// `readsOnly`: the control is filled from the row and never written by the binding (state and status combos).
    Binding(Bindable& control, QString column, QString format, bool readsOnly = false, QObject* parent = nullptr);

    /// Binds and shows the row's value at once; nullptr cuts the control off and leaves its text standing.
    void setSource(RecordSource* source);
    [[nodiscard]] bool isBound() const { return !source_.isNull(); }
    [[nodiscard]] const QString& column() const { return column_; }

private:
    void show();
    void handOver();
    void showWritten();
    /// What a text that was typed is in its column: a row holds values, and no text of a region.
    [[nodiscard]] QVariant valueOf(const QVariant& content) const;

    Bindable& control_;
    QString column_;
    QString format_;
    bool readsOnly_;
    QPointer<RecordSource> source_;
    QVariant held_;   ///< what the row held when it was last shown
    QVariant shown_;  ///< what the control made of that
    bool handing_ = false;
    bool handedOver_ = false;
};

}  // namespace platform
