#include "support/TestUi.h"

#include "forms/PageSource.h"

#include <gtest/gtest.h>

namespace orvane {

TestUi::~TestUi() {
    for (const Box& box : m_boxes)
        ADD_FAILURE() << "nobody looked at the box: " << box.text.toStdString();
    for (const Answer& answer : m_answers)
        ADD_FAILURE() << "nothing asked for the answer: " << answer.kind << ' ' << answer.text.toStdString();
    for (const Modal& modal : m_modals)
        ADD_FAILURE() << "the modal form never came up: " << modal.formName.toStdString();
}

QStringList TestUi::takeBoxes() {
    QStringList texts;
    for (const Box& box : takeBoxesWithTitles())
        texts << box.text;
    return texts;
}

std::optional<TestUi::Answer> TestUi::takeAnswer(const QString& asked) {
    m_questions << asked;
    if (m_answers.empty()) {
        ADD_FAILURE() << "unexpected question: " << asked.toStdString();
        return std::nullopt;
    }
    const Answer answer = m_answers.front();
    m_answers.pop_front();
    return answer;
}

bool TestUi::question(const QString& text, const QString&, Consent, const QString& detail) {
    details << detail;
    const std::optional<Answer> answer = takeAnswer(text);
    if (answer && answer->kind != Answer::Yes && answer->kind != Answer::No)
        ADD_FAILURE() << "a question is answered yes or no: " << text.toStdString();
    return answer && answer->kind == Answer::Yes;
}

std::optional<QString> TestUi::inputBox(const QString& prompt, const QString&, const QString&) {
    const std::optional<Answer> answer = takeAnswer(prompt);
    if (answer && answer->kind != Answer::Text && answer->kind != Answer::Cancel)
        ADD_FAILURE() << "an input box is answered by a text or cancelled: " << prompt.toStdString();
    return answer && answer->kind == Answer::Text ? std::optional(answer->text) : std::nullopt;
}

void TestUi::showModal(Form& form) {
    opened << form.name();
    if (m_modals.empty()) {
        ADD_FAILURE() << "unexpected modal form: " << form.name().toStdString();
        form.unload();
        return;
    }
    const Modal modal = std::move(m_modals.front());
    m_modals.pop_front();
    EXPECT_EQ(form.name(), modal.formName);
    modal.acts(form);
    if (!form.isClosed()) {
        ADD_FAILURE() << "the test left the modal form open: " << form.name().toStdString();
        form.abandon();
    }
}

void TestUi::viewReport(const QString& file, const QString& title, const std::shared_ptr<PageSource>& report) {
    report->finish();
    QStringList end;
    for (const PageText& text : report->page(report->pagesMade() - 1).texts)
        end << text.text;
    reports.append({file, title, report->rows().count(), end.join(" | ")});
}

void TestUi::reportShown(const QString& file, const Recordset& rows) {
    reports.append({file, {}, rows.count(), {}});
}

} // namespace orvane
