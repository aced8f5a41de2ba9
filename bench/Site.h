#pragma once

#include "bench/HomeCopy.h"
#include "bench/Recorder.h"
#include "demo/QuietUi.h"

namespace orvane {

/// The end of the last working day of a benchmark hospital: later than anything that was entered there.
QDateTime lastEvening(const QString& homeFolder);

/// A workstation of a benchmark hospital, on a copy of its home folder. Its user is logged in, both clocks stand at
/// the last evening, and everything that it sends is recorded from the login on. Commits do not wait for the disk.
class Site {
public:
    Site(const QString& home, const QString& name);

    HomeCopy copy;
    QDateTime now;
    QuietUi ui;
    Program program;
    Recorder recorder;

    /// Closes the forms that are open, the shell aside, and forgets the boxes.
    void tidy();
};

} // namespace orvane
