#include "tool/Command.h"

#include "session/Main.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace orvane {

namespace {

QString checkedFolder(const QString& folder) {
    if (!QFileInfo(folder).isDir())
        throw DataError(QStringLiteral("There is no folder %1.").arg(folder));
    return QFileInfo(folder).absoluteFilePath();
}

} // namespace

const QStringList engineChoices = {"sqlite", "postgresql", "sqlserver"};

QString Call::required(const QString& option) const {
    if (parser.value(option).isEmpty())
        throw UsageError{QStringLiteral("--%1 is needed.").arg(option)};
    return parser.value(option);
}

int Call::number(const QString& option, int lowest, int highest) const {
    bool ok = false;
    const int value = parser.value(option).toInt(&ok);
    if (!ok || value < lowest || value > highest)
        throw UsageError{QStringLiteral("--%1 is a number from %2 to %3.").arg(option).arg(lowest).arg(highest)};
    return value;
}

QString Call::choice(const QString& option, const QStringList& choices) const {
    if (!choices.contains(parser.value(option)))
        throw UsageError{QStringLiteral("--%1 is one of %2.").arg(option, choices.join(", "))};
    return parser.value(option);
}

HomeOptions Call::homeOptions() const {
    HomeOptions options{choice("engine", engineChoices), parser.value("host"), number("port", 0, 65535),
                        parser.value("prefix")};
    static const QRegularExpression word("^[a-z][a-z0-9_]{0,29}$");
    if (!options.prefix.isEmpty() && !word.match(options.prefix).hasMatch())
        throw UsageError{"--prefix is a word of small letters, digits and underscores."};
    return options;
}

Workplace::Workplace(const QString& folder) : m_program(checkedFolder(folder), m_ui) {
    if (!prepareServer(m_program))
        throw DataError(m_ui.takeBoxes().join(QLatin1Char('\n')));
}

} // namespace orvane
