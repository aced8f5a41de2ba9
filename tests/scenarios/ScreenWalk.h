#pragma once

#include "play/HeadlessDriver.h"
#include "play/QuietUi.h"
#include "session/Program.h"
#include "support/TestHome.h"

#include <QTemporaryDir>

namespace orvane {

/// A user who keeps the texts of all boxes, works in modal forms by `inModal`, and answers by `yes` and `answer`.
class WalkUi : public QuietUi {
public:
    std::function<void(Form&)> inModal;
    std::function<bool()> yes = [] { return true; };
    std::function<std::optional<QString>()> answer = [] { return std::optional<QString>(); };
    QStringList boxes;

    WalkUi() { setClock(QDateTime(QDate(2026, 3, 14), QTime(9, 30))); }
    void box(const QString& text, Icon, const QString&) override { boxes << text; }
    bool question(const QString&, const QString&, Consent, const QString&) override { return yes(); }
    std::optional<QString> inputBox(const QString&, const QString&, const QString&) override { return answer(); }
    void showModal(Form& form) override;
    QString exportFolder() const override { return m_documents.path(); }

private:
    QTemporaryDir m_documents;
};

/// A test that walks over every screen of the started program, on the test hospital with a private and an HMO visit
/// that have been seen and bear a waiting item each.
class ScreenWalk : public ::testing::TestWithParam<Engine> {
protected:
    ScreenWalk();
    void SetUp() override;
    virtual void prepare(Connection&) {} ///< rows that a test adds before the program starts
    virtual void limitRights() {}        ///< a test may have the program work with the rights of its login

    /// No box that came up may speak the engine's words, and no transaction may be left open.
    void checkBoxes(const QString& where);
    /// Shows a screen; null when it refuses to open without more in hand.
    Form* opened(const QString& name);

    TestHome home{GetParam()};
    WalkUi ui;
    Program program;
    HeadlessDriver driver;
    QString lastStatement;

private:
    QStringList m_seen; ///< faults that were told already
};

} // namespace orvane
