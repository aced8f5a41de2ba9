#include "desktop/DesktopUi.h"

#include "desktop/Boxes.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>

namespace orvane {

namespace {

/// While a box is up its user works: no busy pointer over it.
class PointerPause {
public:
    PointerPause() : m_busy(QApplication::overrideCursor() != nullptr) {
        if (m_busy)
            QApplication::restoreOverrideCursor();
    }
    ~PointerPause() {
        if (m_busy)
            QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    PointerPause(const PointerPause&) = delete;
    PointerPause& operator=(const PointerPause&) = delete;

private:
    bool m_busy;
};

} // namespace

DesktopUi::DesktopUi() : m_windows(*this) {}

DesktopUi::~DesktopUi() {
    qDeleteAll(m_sounds);
}

void DesktopUi::box(const QString& text, Icon icon, const QString& title) {
    const PointerPause pause;
    boxes::message(m_windows.boxParent(), text, icon, title);
}

bool DesktopUi::question(const QString& text, const QString& title, Consent consent, const QString& detail) {
    const PointerPause pause;
    return boxes::question(m_windows.boxParent(), text, title, consent, detail);
}

std::optional<QString> DesktopUi::inputBox(const QString& prompt, const QString& title, const QString& initial) {
    const PointerPause pause;
    return boxes::input(m_windows.boxParent(), prompt, title, initial);
}

void DesktopUi::show(Form& form) {
    m_windows.show(form);
}

void DesktopUi::showModal(Form& form) {
    const PointerPause pause;
    m_windows.showModal(form);
    m_windows.waitUntilClosed(form);
}

void DesktopUi::closed(Form& form) {
    m_windows.closed(form);
    // A form that closes may open the next one in the same event.
    QMetaObject::invokeMethod(
        &m_windows,
        [this] {
            if (m_windows.isEmpty())
                QCoreApplication::quit();
        },
        Qt::QueuedConnection);
}

void DesktopUi::setBusy(bool busy) {
    m_windows.setBusy(busy);
}

void DesktopUi::processEvents() {
    // What the user does meanwhile waits its turn.
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void DesktopUi::printForm(Form& form) {
    const PointerPause pause;
    m_windows.print(form);
}

void DesktopUi::viewReport(const QString& file, const QString& title, const std::shared_ptr<PageSource>& report) {
    m_windows.viewReport(file, title, report);
}

void DesktopUi::exported(const QString& file) {
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(file)))
        box(QStringLiteral("Saved as %1.").arg(file), Icon::Information);
}

void DesktopUi::playSound(const QString& file) {
    if (!QFileInfo::exists(file))
        return;
    QSoundEffect*& sound = m_sounds[file];
    if (!sound) {
        sound = new QSoundEffect;
        sound->setSource(QUrl::fromLocalFile(file));
    }
    sound->play();
}

QDateTime DesktopUi::now() const {
    return QDateTime::currentDateTime();
}

void DesktopUi::quit() {
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

void DesktopShower::show(Form& form) {
    m_windows.show(form);
}

void DesktopShower::showModal(Form& form) {
    m_windows.showModal(form);
}

void DesktopShower::closed(Form& form) {
    m_windows.closed(form);
}

void DesktopShower::setBusy(bool busy) {
    m_windows.setBusy(busy);
}

void DesktopShower::processEvents() {
    QApplication::processEvents();
}

void DesktopShower::printForm(Form& form) {
    m_windows.print(form);
}

void DesktopShower::viewReport(const QString& file, const QString& title, const std::shared_ptr<PageSource>& report) {
    m_windows.viewReport(file, title, report);
}

} // namespace orvane
