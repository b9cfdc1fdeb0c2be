#include "tests/golden/told_window.h"

#include <QDate>
#include <QJsonArray>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace golden {

namespace {

/// One letter fits into every box. A child's differ from its site's, whose description it shows.
QString letterIn(const data::Table& table, int column) {
    return QChar(u'a' + column - (table.keys == data::Keys::Parent ? u'a' - u'A' : 0));
}

/// Within the years that two digits stand for.
const QDate firstDay(2021, 1, 1);

int numberIn(int column) {
    return 1000 + column;
}

QDate dateIn(int column) {
    return firstDay.addDays(column);
}

QString valueFor(const data::Table& table, int index) {
    const data::Column& column = table.columns[std::size_t(index)];
    switch (column.kind) {
        case data::FieldKind::Number:
        case data::FieldKind::Whole:
            return QString::number(numberIn(index));
        case data::FieldKind::Date:
            return u"'%1'"_s.arg(dateIn(index).toString(Qt::ISODate));
        default:
            return u"'%1'"_s.arg(letterIn(table, index));
    }
}

/// How a number can be shown, by the format that does so.
QMap<QString, QString> looksOfNumber(int number) {
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    QMap<QString, QString> looks;
    looks[u"#,##0.00"_s] = english.toString(number * 1.0, 'f', 2);
    looks[u"#,##0.000"_s] = english.toString(number * 1.0, 'f', 3);
    for (const QString& format : {u"0.00"_s, u"0.000"_s, u"0.0000"_s})
        looks[format] = QString::number(number * 1.0, 'f', int(format.size()) - 2);
    return looks;
}

/// How a box can show a column's value, by the format that does so.
QMap<QString, QString> looksOf(const data::Table& table, int index) {
    const data::Column& column = table.columns[std::size_t(index)];
    const bool isDateFormat = column.format.contains(u'M');
    switch (column.kind) {
        case data::FieldKind::Number:
        case data::FieldKind::Whole: {
            auto looks = looksOfNumber(numberIn(index));
            looks[QString()] = QString::number(numberIn(index));
            return looks;
        }
        case data::FieldKind::Date: {
            // A number's format changes nothing in how a date looks.
            const QString plain = isDateFormat ? QString() : QString(column.format);
            return {{plain, dateIn(index).toString(u"M/d/yyyy"_s)}, {u"M/d/yy"_s, dateIn(index).toString(u"M/d/yy"_s)}};
        }
        default:
            return {{QString(column.format), letterIn(table, index)}};
    }
}

QString kindOf(const data::Column& column) {
    switch (column.kind) {
        case data::FieldKind::Text:
        case data::FieldKind::City:
        case data::FieldKind::Zip:
        case data::FieldKind::Phone:
            return u"text"_s;
        case data::FieldKind::LongText:
            return u"long text"_s;
        case data::FieldKind::Date:
            return u"date"_s;
        case data::FieldKind::YesNo:
            return u"yes/no"_s;
        default:
            return u"number"_s;
    }
}

bool takesValue(const data::Column& column) {
    return column.isStored() && column.shownIn != data::ShownIn::Nowhere;
}

}  // namespace

TellingRow::TellingRow(const data::Table& table, int yes) {
    int check = 0;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const data::Column& column = table.columns[i];
        const bool isCheck = column.kind == data::FieldKind::YesNo;
        const bool isYes = isCheck && check++ == yes;
        if (!takesValue(column)) continue;
        columns_ << u'"' + column.name + u'"';
        values_ << (isCheck ? QString::number(isYes ? -1 : 0) : valueFor(table, static_cast<int>(i)));
    }
}

QString TellingRow::assignments() const {
    QStringList pairs;
    for (qsizetype i = 0; i < columns_.size(); ++i)
        pairs << columns_[i] + u" = "_s + values_[i];
    return pairs.join(u", "_s);
}

QString toldColumn(const data::Table& table, const QString& shown, int maxLength) {
    QString told = u"no column: text"_s;
    QString format;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const data::Column& column = table.columns[i];
        if (!takesValue(column) || column.kind == data::FieldKind::YesNo) continue;
        const auto looks = looksOf(table, static_cast<int>(i));
        const auto found = std::find(looks.begin(), looks.end(), shown);
        if (found == looks.end()) continue;
        told = column.name + u": "_s + kindOf(column);
        format = found.key();
    }
    if (maxLength > 0) told += u", at most %1"_s.arg(maxLength);
    if (!format.isEmpty()) told += u", format \"%1\""_s.arg(format);
    return told;
}

QString yesNoColumn(const data::Table& table, int number) {
    int seen = 0;
    for (const data::Column& column : table.columns) {
        if (column.kind == data::FieldKind::YesNo && seen++ == number) return column.name;
    }
    return u"no column"_s;
}

int yesNoColumns(const data::Table& table) {
    return static_cast<int>(std::ranges::count(table.columns, data::FieldKind::YesNo, &data::Column::kind));
}

QMap<QString, QJsonObject> controlsOf(const QJsonObject& form) {
    QMap<QString, QJsonObject> controls;
    const QJsonArray all = form["controls"_L1].toArray();
    for (const QJsonValue& control : all)
        controls[control["name"_L1].toString()] = control.toObject();
    return controls;
}

QStringList commonControls(const QJsonObject& form) {
    QStringList lines;
    const QJsonArray all = form["controls"_L1].toArray();
    for (const QJsonValue& control : all) {
        const QString type = control["type"_L1].toString();
        const QString name = control["name"_L1].toString();
        const QString text = control["text"_L1].toString();
        const QString hint = control["tooltip"_L1].toString();
        if (type == u"CommandButton"_s && name != u"cmdAdd"_s) {
            lines << (hint.isEmpty() ? u"button %1 \"%2\""_s.arg(name, text)
                                     : u"button %1, hint \"%2\""_s.arg(name, hint));
        } else if (type == u"ToolButton"_s) {
            lines << u"key %1 \"%2\""_s.arg(name, hint);
        } else if (type == u"Menu"_s && !text.isEmpty()) {
            lines << u"menu %1 \"%2\""_s.arg(name, text);
        }
    }
    return lines;
}

QStringList framesOf(const QMap<QString, QJsonObject>& controls) {
    QStringList lines;
    for (int i = 0;; ++i) {
        const auto frame = controls.constFind(u"frFrame(%1)"_s.arg(i));
        if (frame == controls.constEnd()) return lines;
        lines << u"frame %1 \"%2\""_s.arg(i).arg(frame->value(u"text"_s).toString());
    }
}

}  // namespace golden
