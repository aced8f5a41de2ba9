#pragma once

#include "support/Workstation.h"

#include <ostream>

namespace orvane {

/// What a user does that moves money, or what decides over it: up to the last press, and that press, which can be
/// repeated.
struct MoneyAction {
    const char* name;
    void (*lay)(Workstation&);   ///< rows and earlier work, once
    void (*enter)(Workstation&); ///< in a fresh program, up to the last press
    const char* button;          ///< "FORM.BUTTON" of the last press
    const char* asks;            ///< "yes": a question that is answered so; a text for an input box; empty: nothing
    /// By which the user knows that it is saved: "box TEXT", "opened FORM" or "closed FORM". Empty: that nothing is
    /// said.
    const char* report;
    bool brief = false; ///< killed at every fifth moment only, and on a server seen with one fault only
    /// It is saved in steps, each of which stands; this does what is missing, as its user does the next time.
    void (*complete)(Workstation&) = nullptr;
    bool posts = false;       ///< it is a posting, over both databases, whose commits are settled in their own way
    const char* leaves = "";  ///< how a finding begins that a cut may leave until it is completed; empty: none may
    bool postsBehind = false; ///< what it reports is saved; a posting follows

    void press(Workstation& ws) const;
    /// What these signs say to the user: it is saved.
    bool isReportedBy(const QStringList& shown) const;
    /// Of a check's findings those that a cut may not leave.
    QStringList faultsAmong(QStringList findings) const;
};

/// Without those that a workstation leaves which dies behind its save, before its rows of the trail are written.
QStringList besideTheTrail(QStringList findings);

void PrintTo(const MoneyAction& action, std::ostream* out);

const QList<MoneyAction>& moneyActions();

/// What was shown since the last look, as MoneyAction::report names it.
QStringList takeShown(TestUi& ui);

/// What the actions may change, in numbers, a line each.
QString moneyFigures(Workstation& ws);

/// Databases on which the action can be done: the test hospital, with what the action is laid on.
void layAction(const QString& homeFolder, const MoneyAction& action);

} // namespace orvane
