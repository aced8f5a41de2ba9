#pragma once

#include <QProcess>
#include <QTemporaryFile>
#include <memory>

namespace orvane {

/// This program once more, as a process that says "ready" and then waits for a line to begin.
class WorkerProcess {
public:
    explicit WorkerProcess(const QStringList& arguments);

    bool isReady(); ///< waits until it says so; false: it has ended before
    void begin();
    bool hasEndedWell();      ///< waits for its end
    QStringList told() const; ///< the lines behind "ready"

private:
    std::unique_ptr<QTemporaryFile> m_output;
    std::unique_ptr<QProcess> m_process;
};

} // namespace orvane
