#pragma once

#include "forms/Form.h"
#include "play/HeadlessDriver.h"

namespace orvane {

/// A user's hand on one form: acts on its controls by name. What a user could not do (no such control, hidden,
/// disabled, locked, no such entry) raises DataError naming the control.
class Hand {
public:
    explicit Hand(Form& form) : m_form(form) {}

    void type(const QString& name, const QString& text);
    void choose(const QString& name, const QString& entry);          ///< the entry of exactly this text
    void chooseContaining(const QString& name, const QString& part); ///< the first entry that contains it
    void tick(const QString& name, bool checked = true);
    void date(const QString& name, QDate date);
    void tickEntry(const QString& name, int entry); ///< of a list with ticks, from 0
    void click(const QString& name);
    void ring(const QString& name);     ///< a timer's tick
    QString value(const QString& name); ///< as it is shown

private:
    template <typename Kind>
    Kind& usable(const QString& name, ControlKind kind);
    [[noreturn]] void fail(const QString& name, const QString& what) const;

    Form& m_form;
    HeadlessDriver m_driver;
};

} // namespace orvane
