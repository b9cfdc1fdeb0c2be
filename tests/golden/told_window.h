#pragma once

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

#include "data/table_definition.h"

namespace golden {

/// What fills one row of a table so that each value tells the column that it comes from, however a box shows it.
class TellingRow {
public:
    /// `yes`: which of the table's yes/no columns holds yes, counted from 0; -1 for none.
    TellingRow(const data::Table& table, int yes);

    /// The columns and their values, as an INSERT takes them.
    [[nodiscard]] QString columns() const { return columns_.join(u','); }
    [[nodiscard]] QString values() const { return values_.join(u','); }
    /// As an UPDATE takes them.
    [[nodiscard]] QString assignments() const;

private:
    QStringList columns_;
    QStringList values_;
};

/// The column that a box shows and the format in which it does so, as the listing has them: `City: text, at most 50`.
/// Numbers and dates show their format; that of a text is the definition's, for it changes nothing on the screen.
[[nodiscard]] QString toldColumn(const data::Table& table, const QString& shown, int maxLength);

/// Name of the table's yes/no column of that number, counted from 0; "no column" for one that nothing stores.
[[nodiscard]] QString yesNoColumn(const data::Table& table, int number);
[[nodiscard]] int yesNoColumns(const data::Table& table);

/// The controls of a form as `User::form` tells them, by name.
[[nodiscard]] QMap<QString, QJsonObject> controlsOf(const QJsonObject& form);

/// What a form has in common with most windows: its buttons but cmdAdd, toolbar keys and menus, one a line.
[[nodiscard]] QStringList commonControls(const QJsonObject& form);

/// The captions of the form's frames in the order of their numbers, one a line.
[[nodiscard]] QStringList framesOf(const QMap<QString, QJsonObject>& controls);

}  // namespace golden
