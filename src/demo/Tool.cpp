#include "demo/Tool.h"

#include "data/dialect/Catalog.h"
#include "data/engine/Rights.h"
#include "data/rows/Schema.h"
#include "demo/Check.h"
#include "demo/CsvLoad.h"
#include "demo/Demo.h"
#include "demo/Home.h"
#include "demo/Password.h"
#include "demo/QuietUi.h"
#include "demo/Users.h"
#include "session/Main.h"
#include "session/Secrets.h"

#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace orvane {

namespace {

enum ExitCode { Done = 0, Refused = 1, NotUnderstood = 2 };

/// The command line does not say what is wanted.
struct UsageError {
    QString message;
};

/// One command in hand.
struct Call {
    QCommandLineParser parser;
    QStringList operands;
    QTextStream& out;

    QString required(const QString& option) const {
        if (parser.value(option).isEmpty())
            throw UsageError{QStringLiteral("--%1 is needed.").arg(option)};
        return parser.value(option);
    }
    int number(const QString& option, int lowest, int highest) const {
        bool ok = false;
        const int value = parser.value(option).toInt(&ok);
        if (!ok || value < lowest || value > highest)
            throw UsageError{QStringLiteral("--%1 is a number from %2 to %3.").arg(option).arg(lowest).arg(highest)};
        return value;
    }
};

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
    {"patients", "N", "500", "how many patients"},
    {"days", "D", "30", "how many days of visits"},
    {"bills", "N", "0",
     "for benchmarks: N bills of five lines in the days (730, when they are not given), and 5 patients for 2 bills"},
    {"seed", "S", "1", "another seed makes another hospital"},
    {"until", "YYYY-MM-DD", "", "the last day of visits; today, when it is not given"},
};

void checkChoice(const Call& call, const QString& option, const QStringList& choices) {
    if (!choices.contains(call.parser.value(option)))
        throw UsageError{QStringLiteral("--%1 is one of %2.").arg(option, choices.join(", "))};
}

QString engineOption(const Call& call) {
    checkChoice(call, "engine", {"sqlite", "postgresql", "sqlserver"});
    return call.parser.value("engine");
}

/// The program of a home folder, without a user.
class Workplace {
public:
    explicit Workplace(const QString& folder) : m_program(checkedFolder(folder), m_ui) {
        if (!prepareServer(m_program))
            throw DataError(m_ui.takeBoxes().join(QLatin1Char('\n')));
    }
    Program& program() { return m_program; }

private:
    static QString checkedFolder(const QString& folder) {
        if (!QFileInfo(folder).isDir())
            throw DataError(QStringLiteral("There is no folder %1.").arg(folder));
        return QFileInfo(folder).absoluteFilePath();
    }

    QuietUi m_ui;
    Program m_program;
};

HomeOptions homeOptions(const Call& call) {
    HomeOptions options{engineOption(call), call.parser.value("host"), call.number("port", 0, 65535),
                        call.parser.value("prefix")};
    static const QRegularExpression word("^[a-z][a-z0-9_]{0,29}$");
    if (!options.prefix.isEmpty() && !word.match(options.prefix).hasMatch())
        throw UsageError{"--prefix is a word of small letters, digits and underscores."};
    return options;
}

int create(Call& call) {
    const HomeOptions options = homeOptions(call);
    const QString home = call.required("home");
    writeHomeFiles(home, options);
    Workplace workplace(home);
    createDatabases(workplace.program());
    call.out << "The databases of " << home << " are made.\n";
    return Done;
}

int schema(Call& call) {
    checkChoice(call, "database", {"billing", "accounting", "audit"});
    const QString engine = engineOption(call);
    const Engine of = engine == QLatin1String("sqlite")       ? Engine::Sqlite
                      : engine == QLatin1String("postgresql") ? Engine::Postgresql
                                                              : Engine::SqlServer;
    const QString database = call.parser.value("database");
    call.out << schemaScript(of, database) << rightsScript(of, database, call.required(QStringLiteral("login")));
    return Done;
}

const Table& tableOf(const QString& database, const QString& name) {
    for (const Table* table : Catalog::instance().tables(database))
        if (table->name.compare(name, Qt::CaseInsensitive) == 0)
            return *table;
    throw DataError(QStringLiteral("The %1 database has no table %2.").arg(database, name));
}

int load(Call& call) {
    checkChoice(call, "database", {"billing", "accounting"});
    const QString database = call.parser.value("database");
    const Table& table = tableOf(database, call.operands.at(0));
    QFile file(call.operands.at(1));
    if (!file.open(QIODevice::ReadOnly))
        throw DataError(QStringLiteral("The file %1 cannot be read: %2").arg(file.fileName(), file.errorString()));
    Workplace workplace(call.required("home"));
    Program& program = workplace.program();
    Connection connection = database == QLatin1String("billing") ? program.openBilling() : program.openAccounting();
    const int rows = loadCsv(connection, table, file.fileName(), file.readAll());
    call.out << rows << " row(s) added to " << table.name << ".\n";
    return Done;
}

int userAdd(Call& call) {
    NewUser user;
    user.name = call.operands.at(0);
    user.fullName = call.required("fullname");
    user.employeeID = call.parser.value("empid");
    if (call.parser.isSet("password-file"))
        user.password = readPassword(call.parser.value("password-file"));
    user.roles = call.parser.values("role");
    user.roles.removeAll(QString());
    user.accounts = call.parser.isSet("accounts");
    if (user.roles.isEmpty())
        throw UsageError{"--role is needed."};
    Workplace workplace(call.required("home"));
    Connection billing = workplace.program().openBilling();
    addUser(billing, user);
    call.out << "The user " << user.name << " is added.\n";
    return Done;
}

int check(Call& call) {
    Workplace workplace(call.required("home"));
    const CheckReport report = checkDatabases(workplace.program());
    for (const QString& line : report.findings + report.remarks)
        call.out << line << '\n';
    if (report.findings.isEmpty())
        call.out << "No findings.\n";
    return report.findings.isEmpty() ? Done : Refused;
}

int demo(Call& call) {
    DemoOptions options;
    options.home = QFileInfo(call.required("home")).absoluteFilePath();
    options.patients = call.number("patients", 1, 99999);
    options.days = call.number("days", 1, 3650);
    options.bills = call.number("bills", 0, 1000000);
    if (options.bills > 0) {
        options.patients = qMax(100, options.bills * 5 / 2); // as many as can come on one day at least
        options.days = call.parser.isSet("days") ? options.days : 730;
    }
    options.seed = quint64(call.number("seed", 0, 2147483647));
    options.until = QDate::currentDate();
    if (call.parser.isSet("until"))
        options.until = QDate::fromString(call.parser.value("until"), "yyyy-MM-dd");
    if (!options.until.isValid())
        throw UsageError{"--until is a date of the form yyyy-mm-dd."};
    const HomeOptions home = homeOptions(call);
    writeHomeFiles(options.home, home);
    {
        Workplace workplace(options.home);
        if (!hasDatabase(workplace.program()))
            createDatabases(workplace.program());
    }
    makeDemo(options, [&call](const QString& sentence) { call.out << sentence << Qt::endl; });
    return Done;
}

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
         create},
        {"schema",
         {},
         {"engine", "database", "login"},
         "writes the script that makes a database, with its login's rights",
         schema},
        {"load",
         {"TABLE", "FILE.csv"},
         {"home", "database"},
         "adds the rows of a CSV file to a table, all or none",
         load},
        {"user add",
         {"NAME"},
         {"home", "fullname", "role", "accounts", "empid", "password-file"},
         "adds a user of the program",
         userAdd},
        {"check", {}, {"home"}, "looks for amounts, numbers and rows that do not agree", check},
        {"demo",
         {},
         {"home", "engine", "host", "port", "prefix", "patients", "days", "bills", "seed", "until"},
         "makes a demonstration hospital",
         demo},
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
