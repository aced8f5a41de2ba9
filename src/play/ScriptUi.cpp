#include "play/ScriptUi.h"

#include "data/rows/Recordset.h"
#include "forms/Form.h"
#include "forms/PageSource.h"

#include <QFileInfo>

namespace orvane {

ScriptUi::ScriptUi(EventLog& log, Shower& shower) : m_log(log), m_shower(shower) {}

void ScriptUi::box(const QString& text, Icon icon, const QString& title) {
    m_log.box(icon, title, text);
}

bool ScriptUi::question(const QString& text, const QString& title, Consent, const QString&) {
    const std::optional<Answer> answer = takeAnswer(Answer::Yes, Answer::No, "question " + EventLog::quoted(text));
    if (!answer)
        return false;
    const bool yes = answer->kind == Answer::Yes;
    m_log.write(
        QStringLiteral("question %1 -> ").arg(EventLog::quoted(title) + QLatin1Char(' ') + EventLog::quoted(text)) +
        (yes ? "yes" : "no"));
    return yes;
}

std::optional<QString> ScriptUi::inputBox(const QString& prompt, const QString&, const QString&) {
    const std::optional<Answer> answer = takeAnswer(Answer::Text, Answer::Cancel, "input " + EventLog::quoted(prompt));
    if (!answer)
        return std::nullopt;
    const bool cancelled = answer->kind == Answer::Cancel;
    m_log.write("input " + EventLog::quoted(prompt) + " -> " + (cancelled ? "cancel" : EventLog::quoted(answer->text)));
    return cancelled ? std::nullopt : std::optional(answer->text);
}

std::optional<Answer> ScriptUi::takeAnswer(Answer::Kind one, Answer::Kind other, const QString& asked) {
    if (m_answers.empty()) {
        m_log.fail("no answer is queued for " + asked);
        return std::nullopt;
    }
    const Answer answer = m_answers.front();
    m_answers.pop_front();
    if (answer.kind != one && answer.kind != other) {
        m_log.fail(QStringLiteral("the answer of line %1 does not fit ").arg(answer.line) + asked);
        return std::nullopt;
    }
    return answer;
}

void ScriptUi::opened(Form& form) {
    if (m_open.contains(&form))
        return;
    m_open.insert(&form);
    m_log.write("opened " + form.name());
}

void ScriptUi::show(Form& form) {
    opened(form);
    m_shower.show(form);
}

void ScriptUi::showModal(Form& form) {
    opened(form);
    m_modal.append(&form);
    m_shower.showModal(form);
    runInside(form);
    // The script ended or failed inside: nobody is left to close the form.
    if (m_modal.contains(&form)) {
        form.unload();
        m_modal.removeOne(&form);
    }
}

void ScriptUi::closed(Form& form) {
    m_modal.removeOne(&form);
    if (m_open.remove(&form))
        m_log.write("closed " + form.name());
    m_shower.closed(form);
}

void ScriptUi::setBusy(bool busy) {
    m_shower.setBusy(busy);
}

void ScriptUi::processEvents() {
    m_shower.processEvents();
}

void ScriptUi::printForm(Form& form) {
    m_log.write("print " + form.name());
    m_shower.printForm(form);
}

void ScriptUi::viewReport(const QString& file, const QString& title, const std::shared_ptr<PageSource>& report) {
    reportShown(file, report->rows());
    m_shower.viewReport(file, title, report);
}

void ScriptUi::reportShown(const QString& file, const Recordset& rows) {
    m_log.write(QStringLiteral("report %1 %2").arg(file).arg(rows.count()));
}

void ScriptUi::exported(const QString& file) {
    m_log.write("export " + QFileInfo(file).fileName());
}

void ScriptUi::playSound(const QString& file) {
    m_log.write("sound " + QFileInfo(file).fileName());
}

QDateTime ScriptUi::now() const {
    return m_clock.isValid() ? m_clock : QDateTime::currentDateTime();
}

void ScriptUi::quit() {}

} // namespace orvane
