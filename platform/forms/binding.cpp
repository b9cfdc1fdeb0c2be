#include "platform/forms/binding.h"

#include <QScopedValueRollback>

#include "platform/base/display_format.h"
#include "platform/forms/bindable.h"

namespace platform {

Binding::Binding(Bindable& control, QString column, QString format, bool readsOnly, QObject* parent)
    : QObject(parent),
      control_(control),
      column_(std::move(column)),
      format_(std::move(format)),
      readsOnly_(readsOnly) {}

void Binding::setSource(RecordSource* source) {
    if (source_) source_->disconnect(this);
    source_ = source;
    if (!source_) return;
    connect(source, &RecordSource::rowShown, this, &Binding::show);
    connect(source, &RecordSource::collecting, this, &Binding::handOver);
    connect(source, &RecordSource::valueSet, this, [this](const QString& column) {
        if (!handing_ && column.compare(column_, Qt::CaseInsensitive) == 0) show();
    });
    connect(source, &RecordSource::written, this, &Binding::showWritten);
    show();
}

void Binding::show() {
    handedOver_ = false;
    const ColumnKind kind = source_->columnKind(column_);
    // Without a row a check box is clear; grey is for a row that doesn't say.
    const QVariant nothing = kind == ColumnKind::YesNo ? QVariant(false) : QVariant();
    held_ = source_->hasCurrentRow() ? source_->value(column_) : nothing;
    control_.showValue(held_, kind, format_);
    shown_ = control_.content();
}

void Binding::handOver() {
    const QVariant content = control_.content();
    const bool isAltered = content != shown_;
    // What a write was refused with is still pending in the row: a box put back as it was takes that back.
    if (readsOnly_ || (!isAltered && !handedOver_)) return;
    const QScopedValueRollback handing(handing_, true);
    source_->setValue(column_, isAltered ? valueOf(content) : held_);
    handedOver_ = true;
}

QVariant Binding::valueOf(const QVariant& content) const {
    const bool isText = content.typeId() == QMetaType::QString;
    return isText ? storedValue(content.toString(), source_->columnKind(column_)) : content;
}

void Binding::showWritten() {
    if (handedOver_) show();
}

}  // namespace platform
