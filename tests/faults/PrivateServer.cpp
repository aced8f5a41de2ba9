#include "PrivateServer.h"

#include "support/SourceTree.h"

#include <QProcess>
#include <stdexcept>

namespace orvane {

namespace {

QString folder;

QString cluster(const QString& action) {
    QProcess script;
    script.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    script.start(sourceFile("scripts/pg-cluster.sh"), {action, folder});
    if (!script.waitForFinished(120000) || script.exitCode() != 0)
        throw std::runtime_error("the test server: " + action.toStdString() + " failed");
    return QString::fromUtf8(script.readAllStandardOutput()).trimmed();
}

void run(const QString& program, const QStringList& arguments) {
    if (QProcess::execute(program, arguments) != 0)
        throw std::runtime_error(program.toStdString() + " failed");
}

} // namespace

PrivateServer::PrivateServer() {
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755));
    folder = m_folder.path() + "/cluster";
    qputenv("ORVANE_TEST_PG", cluster("start").section(u'=', 1).toUtf8());
}

PrivateServer::~PrivateServer() {
    QProcess::execute(sourceFile("scripts/pg-cluster.sh"), {"stop", folder});
}

void PrivateServer::halt() {
    cluster("halt");
}

void PrivateServer::start() {
    cluster("start");
}

void PrivateServer::keepCopy() {
    halt();
    run("cp", {"-a", folder, folder + "-copy"});
    start();
}

void PrivateServer::becomeCopy() {
    halt();
    run("rm", {"-r", folder});
    run("mv", {folder + "-copy", folder});
    start();
}

} // namespace orvane
