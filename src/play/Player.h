#pragma once

#include "play/Driver.h"
#include "play/ScriptParser.h"
#include "play/ScriptUi.h"
#include "session/Program.h"

#include <QIODevice>

namespace orvane {

/// Carries out a script line by line on a program. A line that cannot be carried out fails the run: "FAIL line N: why"
/// is written and nothing more is done.
class Player {
public:
    using Words = QVector<ScriptWord>;
    /// What `start` does, and how `sql` reaches a database before it.
    struct Entry {
        std::function<void()> start;
        std::function<void()> readServers; ///< sets the session's connection strings
    };

    Player(Program& program, ScriptUi& ui, EventLog& log, Driver& driver, QIODevice& script, Entry entry);

    /// Plays the script to its end. True when nothing failed.
    bool run();

private:
    struct Command;
    static const Command* findCommand(const QString& name);

    void runInside(Form& modal);
    /// Carries out the next line; false at the end of the script and after a failure.
    bool step();
    void execute(const Words& words);

    void start(const Words& words);
    void clock(const Words& words);
    void menu(const Words& words);
    void open(const Words& words);
    void set(const Words& words);
    void pick(const Words& words);
    void tick(const Words& words);
    void untick(const Words& words);
    void row(const Words& words);
    void click(const Words& words);
    void dblClick(const Words& words);
    void leave(const Words& words);
    void key(const Words& words);
    void timer(const Words& words);
    void close(const Words& words);
    void answer(const Words& words);
    void print(const Words& words);
    void items(const Words& words);
    void rows(const Words& words);
    void state(const Words& words);
    void picture(const Words& words);
    void sql(const Words& words);
    void expect(const Words& words);

    void expectBox(const QString& text);
    void expectSql(const Words& words);
    Recordset query(const QString& database, const QString& statement);
    Form& openForm(const QString& name);
    Control& control(const ScriptWord& word);       ///< "FORM.CONTROL"
    Control& usableControl(const ScriptWord& word); ///< one that its user can act on now
    void writeLines(const std::optional<QStringList>& lines, const ScriptWord& word);

    Program& m_program;
    ScriptUi& m_ui;
    EventLog& m_log;
    Driver& m_driver;
    QIODevice& m_script;
    Entry m_entry;
    int m_line = 0;
    bool m_started = false;
};

} // namespace orvane
