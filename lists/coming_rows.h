#pragma once

#include <functional>

#include "data/coming_dates.h"
#include "platform/base/record_source.h"

namespace lists {

/// Coming dates as the rows of a grid. They are only read.
class ComingRows : public platform::RowSource {
    Q_OBJECT

public:
    /// `categoryOf`: what the category of a table is called.
    explicit ComingRows(std::function<QString(const QString& table)> categoryOf) : categoryOf_(std::move(categoryOf)) {}

    /// Takes other dates in place of those it has. What was current is so again, or what then stands in its place.
    void take(std::vector<data::ComingDate> dates);
    /// Makes a row current, from 0; it has to be one.
    void moveTo(int row);
    [[nodiscard]] const std::vector<data::ComingDate>& dates() const { return dates_; }
    /// It has to have one.
    [[nodiscard]] const data::ComingDate& current() const { return dates_.at(static_cast<std::size_t>(row_)); }

    [[nodiscard]] bool hasCurrentRow() const override { return row_ >= 0; }
    [[nodiscard]] QVariant value(const QString& column) const override;
    /// Throws error 3251: nothing can be written.
    void setValue(const QString& column, const QVariant& value) override;
    [[nodiscard]] platform::ColumnKind columnKind(const QString& column) const override;
    [[nodiscard]] QStringList columnNames() const override;
    [[nodiscard]] int rowCount() const override { return static_cast<int>(dates_.size()); }
    [[nodiscard]] std::vector<QVariant> rowAt(int row) const override;
    [[nodiscard]] int currentRow() const override { return row_; }

private:
    std::function<QString(const QString& table)> categoryOf_;
    std::vector<data::ComingDate> dates_;
    int row_ = -1;
};

}  // namespace lists
