#include "play/Player.h"

#include "data/DataError.h"
#include "play/ControlActs.h"
#include "play/ControlReading.h"

#include <QPointer>

namespace orvane {

struct Player::Command {
    const char* name;
    int least; ///< words behind the name
    int most;
    const char* usage;
    void (Player::*run)(const Words&);
};

namespace {

constexpr int anyNumber = 1000;

QString shell() {
    return "MdiTolmek";
}

/// A value as a script can write it, which knows one line end only.
QString comparable(QString value) {
    return value.replace("\r\n", "\n");
}

} // namespace

const Player::Command* Player::findCommand(const QString& name) {
    static const Command commands[] = {
        {"start", 0, 0, "", &Player::start},
        {"clock", 2, 2, "server|workstation \"yyyy-mm-dd hh:mm:ss\"", &Player::clock},
        {"menu", 1, 1, "NAME", &Player::menu},
        {"open", 1, 1, "FORM", &Player::open},
        {"set", 2, 2, "FORM.CONTROL \"value\"", &Player::set},
        {"pick", 2, 2, "FORM.CONTROL N|\"text\"", &Player::pick},
        {"tick", 2, anyNumber, "FORM.LIST \"text\"...", &Player::tick},
        {"untick", 2, anyNumber, "FORM.LIST \"text\"...", &Player::untick},
        {"row", 2, 2, "FORM.GRID N|\"text\"", &Player::row},
        {"click", 1, 1, "FORM.CONTROL", &Player::click},
        {"dblclick", 1, 1, "FORM.CONTROL", &Player::dblClick},
        {"leave", 1, 1, "FORM.CONTROL", &Player::leave},
        {"key", 2, 2, "FORM.CONTROL \"x\"", &Player::key},
        {"timer", 1, 1, "FORM.TIMER", &Player::timer},
        {"close", 1, 1, "FORM", &Player::close},
        {"answer", 1, 1, "yes|no|\"text\"|cancel", &Player::answer},
        {"print", 1, 1, "FORM.CONTROL", &Player::print},
        {"items", 1, 1, "FORM.CONTROL", &Player::items},
        {"rows", 1, 1, "FORM.GRID", &Player::rows},
        {"state", 1, 1, "FORM.CONTROL", &Player::state},
        {"picture", 1, 1, "FILE.png", &Player::picture},
        {"sql", 2, 2, "billing|accounting \"statement\"", &Player::sql},
        {"expect", 2, 4, "box \"text\" | FORM.CONTROL \"value\" | sql billing|accounting \"statement\" \"value\"",
         &Player::expect},
    };
    for (const Command& command : commands)
        if (name == QLatin1String(command.name))
            return &command;
    return nullptr;
}

Player::Player(Program& program, ScriptUi& ui, EventLog& log, Driver& driver, QIODevice& script, Entry entry)
    : m_program(program), m_ui(ui), m_log(log), m_driver(driver), m_script(script), m_entry(std::move(entry)) {
    m_ui.runInside = [this](Form& modal) { runInside(modal); };
}

bool Player::run() {
    while (step()) {
    }
    if (!m_ui.unusedAnswers().empty()) {
        m_log.setLine(m_ui.unusedAnswers().front().line);
        m_log.fail("nothing asked for this answer");
    }
    return !m_log.hasFailed();
}

void Player::runInside(Form& modal) {
    const QPointer<Form> form = &modal;
    while (form && !form->isClosed())
        if (!step()) {
            m_log.fail(QStringLiteral("the script ends while %1 is open as a modal form").arg(modal.name()));
            return;
        }
}

bool Player::step() {
    if (m_log.hasFailed())
        return false;
    // A line that is too long is cut here, and refused by the parser.
    const QByteArray line = m_script.readLine(maxScriptLine + 3);
    if (line.isEmpty())
        return false;
    m_log.setLine(++m_line);
    const ScriptLine read = parseScriptLine(line);
    if (!read.error.isEmpty())
        m_log.fail(read.error);
    else if (!read.words.isEmpty())
        execute(read.words);
    return !m_log.hasFailed();
}

void Player::execute(const Words& words) {
    const int line = m_line;
    QString reason;
    try {
        const QString name = words.first().text;
        const Command* command = words.first().quoted ? nullptr : findCommand(name);
        if (!command)
            throw PlayError(QStringLiteral("there is no command \"%1\"").arg(name));
        const Words arguments = words.mid(1);
        if (arguments.size() < command->least || arguments.size() > command->most)
            throw PlayError(QStringLiteral("usage: %1 %2").arg(name, QLatin1String(command->usage)).trimmed());
        (this->*command->run)(arguments);
        return;
    } catch (const PlayError& error) {
        reason = error.reason();
    } catch (const DataError& error) {
        reason = error.description();
    }
    m_log.setLine(line);
    m_log.fail(reason);
}

void Player::start(const Words&) {
    if (m_started)
        throw PlayError("the program has been started");
    m_started = true;
    m_entry.start();
}

void Player::clock(const Words& words) {
    const QDateTime at = QDateTime::fromString(words.at(1).text, "yyyy-MM-dd HH:mm:ss");
    if (!at.isValid())
        throw PlayError("a clock takes \"yyyy-mm-dd hh:mm:ss\"");
    if (words.first().text == QLatin1String("server"))
        m_program.data().setServerClock(at);
    else if (words.first().text == QLatin1String("workstation"))
        m_ui.setClock(at);
    else
        throw PlayError("there is a server's and a workstation's clock");
}

void Player::menu(const Words& words) {
    Control& entry = usableControl({shell() + QLatin1Char('.') + words.first().text});
    if (entry.kind() != ControlKind::Menu)
        throw PlayError(words.first().text + " is not a menu entry");
    m_driver.click(static_cast<MenuItem&>(entry));
}

void Player::open(const Words& words) {
    const QString name = words.first().text;
    if (!m_program.isRegistered(name))
        throw PlayError("there is no form " + name);
    if (const Form* modal = m_ui.modalForm())
        throw PlayError(QStringLiteral("%1 waits until %2 has closed").arg(name, modal->name()));
    m_program.open(name);
}

void Player::set(const Words& words) {
    setValue(m_driver, usableControl(words.first()), words.at(1).text);
}

void Player::pick(const Words& words) {
    pickEntry(m_driver, usableControl(words.first()), words.at(1).text, !words.at(1).quoted);
}

namespace {

QStringList textsBehind(const Player::Words& words) {
    QStringList texts;
    for (const ScriptWord& word : words.mid(1))
        texts << word.text;
    return texts;
}

} // namespace

void Player::tick(const Words& words) {
    tickEntries(m_driver, usableControl(words.first()), textsBehind(words), true);
}

void Player::untick(const Words& words) {
    tickEntries(m_driver, usableControl(words.first()), textsBehind(words), false);
}

void Player::row(const Words& words) {
    makeRowCurrent(m_driver, usableControl(words.first()), words.at(1).text, !words.at(1).quoted);
}

void Player::click(const Words& words) {
    clickControl(m_driver, usableControl(words.first()));
}

void Player::dblClick(const Words& words) {
    m_driver.dblClick(usableControl(words.first()));
}

void Player::leave(const Words& words) {
    m_driver.leave(usableControl(words.first()));
}

void Player::key(const Words& words) {
    typeKeys(m_driver, usableControl(words.first()), words.at(1).text);
}

void Player::timer(const Words& words) {
    Control& timer = control(words.first());
    if (timer.kind() != ControlKind::Timer)
        throw PlayError(words.first().text + " is not a timer");
    if (!timer.isEnabled())
        throw PlayError(words.first().text + " is disabled");
    if (timer.form().isRunning())
        throw PlayError(words.first().text + " waits until a handler of its form has ended");
    m_driver.tick(static_cast<Timer&>(timer));
}

void Player::close(const Words& words) {
    Form& form = openForm(words.first().text);
    const Form* modal = m_ui.modalForm();
    if (modal && modal != &form)
        throw PlayError(QStringLiteral("%1 waits until %2 has closed").arg(form.name(), modal->name()));
    if (form.isRunning())
        throw PlayError(form.name() + " waits until its handler has ended");
    m_driver.close(form);
}

void Player::answer(const Words& words) {
    const ScriptWord& word = words.first();
    if (word.quoted)
        m_ui.queueAnswer({Answer::Text, word.text, m_line});
    else if (word.text == QLatin1String("yes"))
        m_ui.queueAnswer({Answer::Yes, {}, m_line});
    else if (word.text == QLatin1String("no"))
        m_ui.queueAnswer({Answer::No, {}, m_line});
    else if (word.text == QLatin1String("cancel"))
        m_ui.queueAnswer({Answer::Cancel, {}, m_line});
    else
        throw PlayError("an answer is yes, no, cancel or a text in quotes");
}

void Player::print(const Words& words) {
    m_log.write(EventLog::oneLine(control(words.first()).valueText()));
}

void Player::writeLines(const std::optional<QStringList>& lines, const ScriptWord& word) {
    if (!lines)
        throw PlayError(word.text + " has none");
    for (const QString& line : *lines)
        m_log.write(line);
}

void Player::items(const Words& words) {
    std::optional<QStringList> items = itemsOf(control(words.first()));
    if (items)
        for (QString& item : *items)
            item = EventLog::oneLine(item);
    writeLines(items, words.first());
}

void Player::rows(const Words& words) {
    writeLines(rowsOf(control(words.first())), words.first());
}

void Player::state(const Words& words) {
    m_log.write(stateOf(control(words.first())));
}

void Player::picture(const Words& words) {
    m_driver.picture(words.first().text);
}

void Player::sql(const Words& words) {
    for (const QString& line : rowsOf(query(words.first().text, words.at(1).text)))
        m_log.write(line);
}

void Player::expect(const Words& words) {
    const QString what = words.first().text;
    if (what == QLatin1String("sql"))
        return expectSql(words);
    if (words.size() != 2)
        throw PlayError("one value is expected");
    const QString wanted = words.at(1).text;
    if (what == QLatin1String("box"))
        return expectBox(wanted);
    const QString value = comparable(control(words.first()).valueText());
    if (value != wanted)
        throw PlayError(
            QStringLiteral("expected %1, but %2 is %3").arg(EventLog::quoted(wanted), what, EventLog::quoted(value)));
}

void Player::expectBox(const QString& text) {
    const std::optional<QString> box = m_log.takeBox();
    if (!box)
        throw PlayError(QStringLiteral("expected a box %1, but none has come up").arg(EventLog::quoted(text)));
    if (comparable(*box) != text)
        throw PlayError(
            QStringLiteral("expected a box %1, but it said %2").arg(EventLog::quoted(text), EventLog::quoted(*box)));
}

void Player::expectSql(const Words& words) {
    if (words.size() != 4)
        throw PlayError("usage: expect sql billing|accounting \"statement\" \"value\"");
    const QString wanted = words.at(3).text;
    const Recordset rows = query(words.at(1).text, words.at(2).text);
    if (rows.columns().isEmpty() || rows.eof())
        throw PlayError(QStringLiteral("expected %1, but there is no row").arg(EventLog::quoted(wanted)));
    const QString value = comparable(rows.text(0));
    if (value != wanted)
        throw PlayError(
            QStringLiteral("expected %1, but it is %2").arg(EventLog::quoted(wanted), EventLog::quoted(value)));
}

Recordset Player::query(const QString& database, const QString& statement) {
    if (m_program.session.gConnStr.isEmpty())
        m_entry.readServers();
    if (database == QLatin1String("billing"))
        return m_program.openBilling().run(statement);
    if (database == QLatin1String("accounting"))
        return m_program.openAccounting().run(statement);
    throw PlayError("the databases are billing and accounting");
}

Form& Player::openForm(const QString& name) {
    Form* form = m_program.loadedForm(name);
    if (!form || !form->isLoaded())
        throw PlayError(name + " is not open");
    return *form;
}

Control& Player::control(const ScriptWord& word) {
    const qsizetype dot = word.text.indexOf(QLatin1Char('.'));
    if (dot < 0)
        throw PlayError(word.text + " is not FORM.CONTROL");
    Control* found = openForm(word.text.left(dot)).find(word.text.mid(dot + 1));
    if (!found)
        throw PlayError("there is no control " + word.text);
    return *found;
}

Control& Player::usableControl(const ScriptWord& word) {
    Control& found = control(word);
    requireUsable(found, m_ui.modalForm());
    return found;
}

} // namespace orvane
