#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <ostream>

// How a failed comparison shows the toolkit's values.

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QJsonObject& object, std::ostream* out) {
    *out << QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}
