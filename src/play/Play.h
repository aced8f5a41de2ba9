#pragma once

#include "play/Driver.h"
#include "play/Shower.h"

#include <QIODevice>
#include <QString>
#include <optional>

namespace orvane {

struct PlayOptions {
    std::optional<QString> userName; ///< instead of the one in sysdoc.sys
    QString outFolder;               ///< where exports go; empty: the home folder
    Driver* driver = nullptr;        ///< over real windows; null: on the form model
    Shower* shower = nullptr;        ///< shows the real windows; null: none
};

/// Plays a script on a run of the program in `homeFolder` and writes what happens to `output`, a line each. `script` is
/// read a line at a time, so that another program can write it step by step. Gives the exit code: 0, or 1 after a line
/// "FAIL line N: ...".
int runPlay(const QString& homeFolder, QIODevice& script, QIODevice& output, const PlayOptions& options = {});

} // namespace orvane
