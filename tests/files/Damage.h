#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

namespace orvane {

/// How many copies with flipped bits a file is tried with: 10,000, or what ORVANE_FILES_COUNT says.
int flippedCopies();

/// Calls `use` with the content cut off behind each byte up to 4 KB, and then with `flipped` copies in which one to
/// four bits at random places are turned over; the same ones each time.
void eachDamage(const QByteArray& content, int flipped, const std::function<void(const QByteArray&)>& use);

/// The same for a sample: some 20 places to cut off, and `flipped` copies.
void someDamage(const QByteArray& content, int flipped, const std::function<void(const QByteArray&)>& use);

/// Why a text is not one line that a user can read: a control character, an engine's own words, or its length. Empty
/// when it is.
QString unclear(const QString& text);

} // namespace orvane
