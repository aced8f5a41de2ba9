#include "session/RoleLog.h"

namespace orvane {

namespace {

const QString separator = "  |  ";

void appendLine(Program& program, const QString& fileName, QString line) {
    // One message is one line, whatever it holds.
    line.replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(QLatin1Char('\r'), QLatin1Char(' '));
    QFile file(program.homeFolder() + QLatin1Char('/') + fileName);
    const bool isNew = !file.exists();
    if (!file.open(QIODevice::Append | QIODevice::Text))
        throw DataError(QStringLiteral("%1 cannot be written: %2").arg(fileName, file.errorString()));
    if (isNew)
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    if (file.write(line.toUtf8() + '\n') < 0 || !file.flush())
        throw DataError(QStringLiteral("%1 cannot be written: %2").arg(fileName, file.errorString()));
}

QString stamp(const QDateTime& at) {
    return at.toString("dd/MM/yyyy HH:mm:ss");
}

} // namespace

void logUserActivity(Program& program, const QString& message, const QString& who) {
    appendLine(program, "ServerUserActivities.txt",
               stamp(program.getServerDateTime()) + separator + message + separator + who);
}

void logServerError(Program& program, const QString& operation, const DataError& fault) {
    appendLine(program, "ServerErrorLog.txt",
               stamp(program.ui().now()) + separator + operation + separator + fault.code() + separator +
                   fault.description() + separator + "billing database");
}

} // namespace orvane
