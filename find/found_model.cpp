#include "find/found_model.h"

using namespace Qt::StringLiterals;

namespace find {

void FoundModel::clear() {
    beginResetModel();
    first_ = 0;
    others_ = 0;
    seen_.clear();
    endResetModel();
}

void FoundModel::extend() {
    const auto insert = [this](int& known, int now, int ahead) {
        if (now == known) return;
        // The rows behind have other numbers from here on.
        seen_.clear();
        beginInsertRows({}, ahead + known, ahead + now - 1);
        known = now;
        endInsertRows();
    };
    insert(first_, static_cast<int>(search_.first().size()), 0);
    insert(others_, static_cast<int>(search_.others().size()), first_);
}

const Hit& FoundModel::hit(int row) const {
    if (row < first_) return search_.first().at(static_cast<std::size_t>(row));
    return search_.others().at(static_cast<std::size_t>(row - first_));
}

QStringList FoundModel::texts(int row) const {
    if (const QStringList* seen = seen_.object(row)) return *seen;
    const Finding finding = search_.finding(hit(row));
    QStringList texts{finding.category, finding.member, finding.field, finding.text};
    seen_.insert(row, new QStringList(texts));
    return texts;
}

int FoundModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : first_ + others_;
}

int FoundModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns;
}

QVariant FoundModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
    return texts(index.row()).at(index.column());
}

QVariant FoundModel::headerData(int section, Qt::Orientation orientation, int role) const {
    static const QStringList captions{u"Category"_s, u"Member"_s, u"Field"_s, u"Text"_s};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return captions.at(section);
}

}  // namespace find
