#include "WorkerProcess.h"

#include <QCoreApplication>

namespace orvane {

WorkerProcess::WorkerProcess(const QStringList& arguments)
    : m_output(std::make_unique<QTemporaryFile>()), m_process(std::make_unique<QProcess>()) {
    m_output->open();
    m_process->setStandardOutputFile(m_output->fileName());
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process->start(QCoreApplication::applicationFilePath(), arguments);
}

bool WorkerProcess::isReady() {
    while (m_output->size() == 0)
        if (m_process->waitForFinished(10) || m_process->state() == QProcess::NotRunning)
            return false;
    return true;
}

void WorkerProcess::begin() {
    m_process->write("begin\n");
    m_process->waitForBytesWritten();
}

bool WorkerProcess::hasEndedWell() {
    return m_process->waitForFinished(-1) && m_process->exitStatus() == QProcess::NormalExit &&
           m_process->exitCode() == 0;
}

QStringList WorkerProcess::told() const {
    QFile lines(m_output->fileName());
    return lines.open(QIODevice::ReadOnly) ? QString::fromUtf8(lines.readAll()).split('\n', Qt::SkipEmptyParts).mid(1)
                                           : QStringList();
}

} // namespace orvane
