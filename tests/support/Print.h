// How a failing test shows the toolkit's values.
#pragma once

#include <QDate>
#include <QString>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QDate& date, std::ostream* out) {
    *out << date.toString(Qt::ISODate).toStdString();
}
