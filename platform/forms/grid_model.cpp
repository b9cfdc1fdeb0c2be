#include "platform/forms/grid_model.h"

#include "platform/base/display_format.h"
#include "platform/base/record_source.h"
#include "platform/forms/desktop.h"
#include "platform/forms/grid_delegate.h"
#include "platform/forms/long_text.h"

namespace platform {

void GridModel::setSource(RowSource* source) {
    beginResetModel();
    source_ = source;
    columns_ = source ? source->columnNames() : QStringList();
    rows_ = source ? source->rowCount() : 0;
    seen_.clear();
    endResetModel();
}

QStringList GridModel::texts(int row) const {
    if (const QStringList* known = seen_.object(row)) return *known;
    QStringList texts(columns_.size());
    const auto values = source_ ? source_->rowAt(row) : std::vector<QVariant>();
    for (qsizetype column = 0; column < static_cast<qsizetype>(values.size()); ++column) {
        const QVariant& value = values[static_cast<std::size_t>(column)];
        texts[column] = displayText(value, source_->columnKind(columns_[column]), {});
    }
    seen_.insert(row, new QStringList(texts));
    return texts;
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignLeft | Qt::AlignTop);
    if (role == GridDelegate::dateRole)
        return source_ && source_->columnKind(columns_[index.column()]) == ColumnKind::Date;
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
    // Drawing can't fail: a row that can't be read just now stays empty, and is read again when it is drawn anew.
    QString text;
    Desktop::passOver([&] { text = texts(index.row())[index.column()]; });
    if (role != Qt::ToolTipRole) return text;
    return text.isEmpty() ? QVariant() : text.first(shownLength(text, mostInCell));
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section >= columns_.size()) return {};
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    return role == Qt::DisplayRole || role == Qt::ToolTipRole ? columns_[section] : QVariant();
}

}  // namespace platform
