#include "tool/Tool.h"

#include "data/engine/Rights.h"
#include "session/Secrets.h"
#include "tool/Command.h"

namespace orvane {

namespace {

struct Option {
    const char* name;
    const char* valueName; ///< null: the option is a switch
    const char* initial;
    const char* description;
};

constexpr Option allOptions[] = {
    {"home", "DIR", "", "the home folder, with made.sys and orvane.ini"},
    {"engine", "ENGINE", "sqlite", "sqlite, postgresql or sqlserver"},
    {"host", "HOST", "127.0.0.1", "the server's host, where the engine is a server"},
    {"port", "PORT", "0", "the server's port; 0: the engine's usual one"},
    {"prefix", "WORD", "", "stands before the database names on a server, which can so hold several hospitals"},
    {"database", "NAME", "billing", "billing, accounting or audit"},
    {"login", "NAME", kProgramLogin, "the server's login that the program uses"},
    {"fullname", "TEXT", "", "the user's full name"},
    {"role", "ROLE", "", "a role of the user; may be given several times"},
    {"accounts", nullptr, "", "the user may open the Accounts menu"},
    {"empid", "ID", "", "the user's number among the employees"},
    {"password-file", "FILE", "",
     "its first line is the password for the login screen; -: asked for, or standard input"},
    {"backed-up", nullptr, "", "a backup of the databases was made: no copy is"},
    {"left-over", nullptr, "", "postings that were cut off, and invoices that are flagged without their entry"},
    {"patients", "N", "500", "how many patients"},
    {"days", "D", "", "how many days of visits; this month's and those of the two before it, when it is not given"},
    {"bills", "N", "0",
     "for benchmarks: N bills of five lines in the days (730, when they are not given), and 5 patients for 2 bills"},
    {"seed", "S", "1", "another seed makes another hospital"},
    {"until", "YYYY-MM-DD", "", "the last day of visits; today, when it is not given"},
};

struct Command {
    const char* name;
    QStringList operands;
    QStringList options;
    const char* description;
    int (*run)(Call&);
};

const QVector<Command>& commands() {
    static const QVector<Command> all = {
        {"create",
         {},
         {"home", "engine", "host", "port", "prefix"},
         "makes the databases of a home folder, empty",
         createCommand},
        {"schema",
         {},
         {"engine", "database", "login"},
         "writes the script that makes a database, with its login's rights",
         schemaCommand},
        {"load",
         {"TABLE", "FILE.csv"},
         {"home", "database"},
         "adds the rows of a CSV file to a table, all or none",
         loadCommand},
        {"user add",
         {"NAME"},
         {"home", "fullname", "role", "accounts", "empid", "password-file"},
         "adds a user of the program",
         userAddCommand},
        {"check", {}, {"home"}, "looks for amounts, numbers and rows that do not agree", checkCommand},
        {"upgrade",
         {},
         {"home", "backed-up"},
         "brings databases of an earlier program to this one, after copying them",
         upgradeCommand},
        {"period list", {}, {"home"}, "shows the months of the ledger: closed, current, open", periodListCommand},
        {"period open", {"PERIOD"}, {"home"}, "opens the months up to one, such as 2027/03", periodOpenCommand},
        {"period close",
         {"PERIOD"},
         {"home"},
         "closes the current month, when all that is dated in it is posted",
         periodCloseCommand},
        {"post", {}, {"home", "left-over"}, "posts what no screen offers any more", postCommand},
        {"demo",
         {},
         {"home", "engine", "host", "port", "prefix", "patients", "days", "bills", "seed", "until"},
         "makes a demonstration hospital",
         demoCommand},
    };
    return all;
}

void writeUsage(QTextStream& stream) {
    stream << "usage: orvane-db COMMAND [options]\n";
    for (const Command& command : commands())
        stream << "  "
               << QStringList{QLatin1String(command.name), command.operands.join(QLatin1Char(' '))}
                      .join(QLatin1Char(' '))
                      .leftJustified(24)
               << command.description << '\n';
    stream << "options of the commands:\n";
    for (const Option& option : allOptions) {
        QStringList users;
        for (const Command& command : commands())
            if (command.options.contains(QLatin1String(option.name)))
                users.append(QLatin1String(command.name));
        const QString value = option.valueName ? QStringLiteral(" %1").arg(QLatin1String(option.valueName)) : QString();
        stream << "  " << QStringLiteral("--%1%2").arg(QLatin1String(option.name), value).leftJustified(24)
               << option.description << " (" << users.join(QStringLiteral(", ")) << ")\n";
    }
}

const Command* commandOf(QStringList& arguments) {
    for (const Command& command : commands()) {
        const QStringList words = QString::fromLatin1(command.name).split(QLatin1Char(' '));
        if (arguments.mid(0, words.size()) == words) {
            arguments = arguments.mid(words.size());
            return &command;
        }
    }
    return nullptr;
}

int runCommand(const Command& command, const QStringList& arguments, QTextStream& out) {
    Call call{{}, {}, out};
    for (const Option& option : allOptions) {
        if (!command.options.contains(QLatin1String(option.name)))
            continue;
        QCommandLineOption known(QString::fromLatin1(option.name), QString::fromLatin1(option.description));
        if (option.valueName) {
            known.setValueName(QString::fromLatin1(option.valueName));
            known.setDefaultValue(QString::fromLatin1(option.initial));
        }
        call.parser.addOption(known);
    }
    if (!call.parser.parse(QStringList{"orvane-db"} + arguments))
        throw UsageError{call.parser.errorText()};
    call.operands = call.parser.positionalArguments();
    if (call.operands.size() != command.operands.size())
        throw UsageError{command.operands.isEmpty()
                             ? QStringLiteral("%1 takes options only.").arg(QLatin1String(command.name))
                             : QStringLiteral("%1 takes %2.")
                                   .arg(QLatin1String(command.name), command.operands.join(QLatin1Char(' ')))};
    return command.run(call);
}

} // namespace

int runDatabaseTool(const QStringList& arguments, QTextStream& out, QTextStream& errors) {
    keepToOwner();
    if (arguments.contains("--help") || arguments.contains("-h")) {
        writeUsage(out);
        return Done;
    }
    QStringList rest = arguments;
    const Command* command = commandOf(rest);
    if (!command) {
        writeUsage(errors);
        return NotUnderstood;
    }
    try {
        return runCommand(*command, rest, out);
    } catch (const UsageError& error) {
        errors << "orvane-db " << command->name << ": " << error.message << '\n';
        return NotUnderstood;
    } catch (const DataError& error) {
        errors << "orvane-db " << command->name << ": " << error.description() << '\n';
        return Refused;
    }
}

} // namespace orvane
