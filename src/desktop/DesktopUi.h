#pragma once

#include "desktop/Windows.h"
#include "play/Shower.h"

#include <QHash>

class QSoundEffect;

namespace orvane {

/// The user interface of the desktop: windows, boxes, printer, sound.
class DesktopUi : public Ui {
public:
    DesktopUi();
    ~DesktopUi() override;
    Windows& windows() { return m_windows; }

    void box(const QString& text, Icon icon = Icon::None, const QString& title = {}) override;
    bool question(const QString& text, const QString& title = {}, Consent consent = Consent::Keeps,
                  const QString& detail = {}) override;
    std::optional<QString> inputBox(const QString& prompt, const QString& title = {},
                                    const QString& initial = {}) override;
    void show(Form& form) override;
    void showModal(Form& form) override;
    void closed(Form& form) override;
    void abandoned(Form& form) override { m_windows.abandoned(form); }
    void setBusy(bool busy) override;
    void processEvents() override;
    void printForm(Form& form) override;
    void viewReport(const QString& file, const QString& title, const std::shared_ptr<PageSource>& report) override;
    void exported(const QString& file) override;
    void playSound(const QString& file) override;
    QDateTime now() const override;
    void quit() override;

private:
    Windows m_windows;
    QHash<QString, QSoundEffect*> m_sounds; ///< by file, made when first played
};

/// Shows the real windows of a script run; what asks its user is answered by the script.
class DesktopShower : public Shower {
public:
    explicit DesktopShower(DesktopUi& desktop) : m_windows(desktop.windows()) {}

    void show(Form& form) override;
    void showModal(Form& form) override;
    void closed(Form& form) override;
    void abandoned(Form& form) override { m_windows.abandoned(form); }
    void setBusy(bool busy) override;
    void processEvents() override;
    void printForm(Form& form) override;
    void viewReport(const QString& file, const QString& title, const std::shared_ptr<PageSource>& report) override;

private:
    Windows& m_windows;
};

} // namespace orvane
