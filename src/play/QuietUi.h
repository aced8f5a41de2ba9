#pragma once

#include "forms/Ui.h"

#include <functional>

namespace orvane {

/// A user interface without a user: keeps the boxes, answers every question Yes, shows nothing.
class QuietUi : public Ui {
public:
    /// Acts on a form that was shown modally; the form is closed afterwards when it is still open.
    std::function<void(Form&)> onModal;
    /// The boxes since the last call, in order.
    QStringList takeBoxes() { return std::exchange(m_boxes, {}); }
    void setClock(const QDateTime& at) { m_clock = at; }

    void box(const QString& text, Icon icon = Icon::None, const QString& title = {}) override;
    bool question(const QString&, const QString& = {}, Consent = Consent::Keeps, const QString& = {}) override {
        return true;
    }
    std::optional<QString> inputBox(const QString&, const QString& = {}, const QString& = {}) override { return {}; }
    void show(Form&) override {}
    void showModal(Form& form) override;
    void closed(Form&) override {}
    void setBusy(bool) override {}
    void processEvents() override {}
    void printForm(Form&) override {}
    void viewReport(const QString&, const QString&, const std::shared_ptr<PageSource>&) override {}
    void exported(const QString&) override {}
    void playSound(const QString&) override {}
    QDateTime now() const override;
    void quit() override {}

private:
    QStringList m_boxes;
    QDateTime m_clock; ///< invalid: the real one
};

} // namespace orvane
