#pragma once

#include "play/QuietUi.h"
#include "session/Program.h"
#include "tool/Home.h"

#include <QCommandLineParser>
#include <QTextStream>

namespace orvane {

enum ExitCode { Done = 0, Refused = 1, NotUnderstood = 2 };

/// The command line does not say what is wanted.
struct UsageError {
    QString message;
};

/// One command in hand. What it gives wrong raises UsageError.
struct Call {
    QCommandLineParser parser;
    QStringList operands;
    QTextStream& out;

    QString required(const QString& option) const;
    int number(const QString& option, int lowest, int highest) const;
    QString choice(const QString& option, const QStringList& choices) const;
    HomeOptions homeOptions() const; ///< of --engine, --host, --port and --prefix
};

/// The program of a home folder, without a user. Raises DataError when there is no such folder or its made.sys is
/// refused.
class Workplace {
public:
    explicit Workplace(const QString& folder);
    Program& program() { return m_program; }

private:
    QuietUi m_ui;
    Program m_program;
};

extern const QStringList engineChoices; ///< the choices of --engine

// The commands. Each gives the exit code and raises DataError for what the databases refuse.
int createCommand(Call& call);
int schemaCommand(Call& call);
int loadCommand(Call& call);
int userAddCommand(Call& call);
int checkCommand(Call& call);
int upgradeCommand(Call& call);
int demoCommand(Call& call);
int periodListCommand(Call& call);
int periodOpenCommand(Call& call);
int periodCloseCommand(Call& call);
int postCommand(Call& call);

} // namespace orvane
