#pragma once

#include "session/Program.h"

#include <QVector>
#include <variant>

namespace orvane {

/// Where a column of a setting's row goes in the session: a text, a whole number or a yes/no value.
struct SettingTarget {
    const char* column;
    std::variant<QString Session::*, qlonglong Session::*, bool Session::*> variable;
};

/// A session variable that names a file of the home folder while the setting's row exists, and nothing without it.
struct SettingPicture {
    QString Session::*variable;
    const char* file;
};

/// One setting of the start: what is asked and what becomes of the answer.
struct SettingRule {
    enum WhenNoRow { UseDefault, NoRowEnds };

    SqlLiteral statement;
    QVector<SettingTarget> targets;
    WhenNoRow whenNoRow;
    const char* defaultValue; ///< of every target when there is no row and the start goes on
    const char* noRowText;    ///< shown when there is no row; null: no box
    const char* emptyText;    ///< shown before the start ends when the first target is an empty text or 0; null: kept
    bool forPosting = false;  ///< asked only while posting to the accounts is on
    QVector<SettingPicture> pictures = {};
    void (*then)(Session&) = nullptr; ///< what follows from the value
};

/// All settings in the order in which they are read.
const QVector<SettingRule>& settingRules();

/// Reads every setting into the session. False when a required one is missing, which its box has said then: the program
/// ends. Raises DataError.
bool readSettings(Program& program);

} // namespace orvane
