#pragma once

#include "play/EventLog.h"
#include "play/Shower.h"

#include <QSet>
#include <deque>
#include <functional>

namespace orvane {

/// An answer that a script has queued for the next question or input box.
struct Answer {
    enum Kind { Yes, No, Text, Cancel };
    Kind kind = No;
    QString text;
    int line = 0; ///< where the script gives it
};

/// The user interface of a script run: writes what happens, answers questions and input boxes from the script's queue,
/// and lets a desktop, if there is one, show the windows. A question that the script does not answer fails the run and
/// is answered No (an input box: cancelled), so that what the program asked about is not done.
class ScriptUi : public Ui {
public:
    ScriptUi(EventLog& log, Shower& shower);

    /// Runs the script on inside a modal form until it has closed.
    std::function<void(Form&)> runInside;
    void queueAnswer(const Answer& answer) { m_answers.push_back(answer); }
    const std::deque<Answer>& unusedAnswers() const { return m_answers; }
    void setExportFolder(const QString& folder) { m_exportFolder = folder; }
    void setClock(const QDateTime& at) { m_clock = at; }
    /// The form that alone takes its user's actions now; null when none is modal.
    Form* modalForm() const { return m_modal.isEmpty() ? nullptr : m_modal.last(); }

    void box(const QString& text, Icon icon = Icon::None, const QString& title = {}) override;
    bool question(const QString& text, const QString& title = {}, Consent consent = Consent::Keeps,
                  const QString& detail = {}) override;
    std::optional<QString> inputBox(const QString& prompt, const QString& title = {},
                                    const QString& initial = {}) override;
    void show(Form& form) override;
    void showModal(Form& form) override;
    void closed(Form& form) override;
    void abandoned(Form& form) override { m_shower.abandoned(form); }
    void setBusy(bool busy) override;
    void processEvents() override;
    void printForm(Form& form) override;
    void viewReport(const QString& file, const QString& title, const std::shared_ptr<PageSource>& report) override;
    void reportShown(const QString& file, const Recordset& rows) override;
    QString exportFolder() const override { return m_exportFolder; }
    void exported(const QString& file) override;
    void playSound(const QString& file) override;
    QDateTime now() const override;
    void quit() override;

private:
    void opened(Form& form);
    /// The next answer, if it is one of the two kinds; else the run has failed.
    std::optional<Answer> takeAnswer(Answer::Kind one, Answer::Kind other, const QString& asked);

    EventLog& m_log;
    Shower& m_shower;
    std::deque<Answer> m_answers;
    QDateTime m_clock; ///< invalid: the real one
    QString m_exportFolder;
    QSet<const Form*> m_open;
    QVector<Form*> m_modal;
};

} // namespace orvane
