#pragma once

#include "bench/HomeCopy.h"
#include "bench/Recorder.h"
#include "play/QuietUi.h"

namespace orvane {

/// When a workstation is looked at.
enum class Moment {
    LastEvening, ///< of the hospital's last working day: the lists of that day are full
    NextMorning  ///< a new day: its lists hold what the benchmark enters, in a small hospital as in a large one
};

/// A workstation of a benchmark hospital, on a copy of its home folder. Its user is logged in, both clocks stand at the
/// moment, and everything that it sends is recorded from the login on. Commits do not wait for the disk.
class Site {
public:
    Site(const QString& home, const QString& name, Moment moment);

    HomeCopy copy;
    QDateTime now;
    QuietUi ui;
    Program program;
    Recorder recorder;

    /// Closes the forms that are open, the shell aside, and forgets the boxes.
    void tidy();
};

} // namespace orvane
