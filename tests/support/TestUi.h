#pragma once

#include "forms/Form.h"
#include "support/Print.h"

#include <QStringList>
#include <QTemporaryDir>
#include <deque>
#include <functional>

namespace orvane {

/// The user of a test: answers from a queue, and remembers what was shown. An unexpected question or modal form, an
/// answer that nothing asked for, and a box that the test never looked at (a fault, mostly) fail the test.
class TestUi : public Ui {
public:
    struct Box {
        QString text;
        QString title;
        Icon icon = Icon::None;
        bool operator==(const Box&) const = default;
    };
    struct Report {
        QString file;
        QString title;
        int rows = 0;
        QString end; ///< what stands on its last page
    };

    ~TestUi() override;

    // What the test's user will do. Questions and input boxes share one queue.
    void answer(bool yes) { m_answers.push_back({yes ? Answer::Yes : Answer::No, {}}); }
    void answer(const QString& text) { m_answers.push_back({Answer::Text, text}); } ///< to an input box
    void answerCancel() { m_answers.push_back({Answer::Cancel, {}}); }              ///< to an input box
    void forgetAnswers() { m_answers.clear(); }
    /// The next modal form must be this one; `acts` works in it and must close it.
    void inModal(const QString& formName, std::function<void(Form&)> acts) { m_modals.push_back({formName, acts}); }

    // What the program has shown since the test last asked.
    QStringList takeBoxes();
    QList<Box> takeBoxesWithTitles() { return std::exchange(m_boxes, {}); }
    QStringList takeQuestions() { return std::exchange(m_questions, {}); }
    void forgetBoxes() { takeBoxes(); }

    // What has happened since the start.
    QStringList opened; ///< names of forms shown, modal ones too
    QStringList closedForms;
    QStringList printed; ///< names of forms printed
    QList<Report> reports;
    QStringList sounds;
    QStringList details; ///< of the questions
    QStringList exports;
    bool hasQuit = false;
    QDateTime clock = QDateTime(QDate(2026, 3, 14), QTime(9, 30)); ///< the workstation's

    void box(const QString& text, Icon icon = Icon::None, const QString& title = {}) override {
        m_boxes.append({text, title, icon});
    }
    bool question(const QString& text, const QString& title = {}, Consent consent = Consent::Keeps,
                  const QString& detail = {}) override;
    std::optional<QString> inputBox(const QString& prompt, const QString& title = {},
                                    const QString& initial = {}) override;
    void show(Form& form) override { opened << form.name(); }
    void showModal(Form& form) override;
    void closed(Form& form) override { closedForms << form.name(); }
    void setBusy(bool) override {}
    void processEvents() override {}
    void printForm(Form& form) override { printed << form.name(); }
    void viewReport(const QString& file, const QString& title, const std::shared_ptr<PageSource>& report) override;
    void reportShown(const QString& file, const Recordset& rows) override;
    QString exportFolder() const override { return m_documents.path(); }
    void exported(const QString& file) override { exports << file; }
    void playSound(const QString& file) override { sounds << file; }
    QDateTime now() const override { return clock; }
    void quit() override { hasQuit = true; }

private:
    struct Answer {
        enum Kind { Yes, No, Text, Cancel } kind;
        QString text;
    };
    struct Modal {
        QString formName;
        std::function<void(Form&)> acts;
    };
    std::optional<Answer> takeAnswer(const QString& asked);

    QTemporaryDir m_documents;
    std::deque<Answer> m_answers;
    std::deque<Modal> m_modals;
    QList<Box> m_boxes;
    QStringList m_questions;
};

} // namespace orvane

/// The boxes that have come up since the last look are exactly these, in order: EXPECT_BOXES(ui, {"a", "b"}) or
/// EXPECT_BOXES(ui, {}).
#define EXPECT_BOXES(ui, ...) EXPECT_EQ((ui).takeBoxes(), (QStringList __VA_ARGS__))
/// The questions that were asked since the last look are exactly these, in order.
#define EXPECT_QUESTIONS(ui, ...) EXPECT_EQ((ui).takeQuestions(), (QStringList __VA_ARGS__))
