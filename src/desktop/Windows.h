#pragma once

#include "desktop/FormView.h"
#include "desktop/Memory.h"
#include "forms/Ui.h"

#include <QMap>
#include <QObject>
#include <QSize>
#include <memory>

class QMdiSubWindow;

namespace orvane {

class FormWindow;
class ReportForm;
class ShellWindow;

/// The windows of the open forms.
class Windows : public QObject {
    Q_OBJECT

public:
    /// `ui`: of the forms that the desktop makes itself.
    explicit Windows(Ui& ui);
    ~Windows() override;

    /// The main window's size instead of the whole screen, for pictures that are alike on every machine.
    void setMainSize(QSize size) { m_mainSize = size; }
    void setScripted(bool scripted) { m_scripted = scripted; } ///< see ViewSetting
    void setTimerSpeed(int speed) { m_timerSpeed = speed; }    ///< see ViewSetting
    /// Documents and windows go into PDF files there instead of to a printer; empty: to a printer.
    void setPrintFolder(const QString& folder) { m_printFolder = folder; }
    Memory& memory() { return m_memory; }

    void show(Form& form);      ///< or brings it forward
    void showModal(Form& form); ///< as a dialog; returns at once
    void waitUntilClosed(Form& form);
    void abandoned(Form& form); ///< as Ui::abandoned
    void closed(Form& form);
    void setBusy(bool busy);
    void print(Form& form);
    void viewReport(const QString& file, const QString& title, const std::shared_ptr<PageSource>& report);

    FormView* viewOf(const Form& form) const; ///< null: not shown
    QWidget* windowOf(const Form& form) const;
    ShellWindow* shell() const { return m_shell; }
    bool isEmpty() const { return m_entries.isEmpty(); }
    QWidget* boxParent() const; ///< the window that a box belongs to
    void refreshNow();          ///< shows all that has changed
    /// Saves the main window with what lies over it. False: there is none, or the file cannot be written.
    bool savePicture(const QString& file);
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Entry {
        Form* form;
        QWidget* window;              ///< a FormWindow or the shell
        QMdiSubWindow* child;         ///< its frame inside the main window; null for a window of its own
        const Form* opener = nullptr; ///< was in front when this one opened; it may have closed since
        QRect place{};                ///< where it opened
    };
    QWidget* frameOf(const Entry& entry) const;
    const Form* frontForm() const;
    void placeChild(Entry& entry);
    void restorePlace(QWidget& frame, const Form& form, QRect room);
    void keepPlace(const Entry& entry);
    void followRoom(QSize before, QSize room);
    void goBack(const Form* opener);
    bool mayCloseAll();
    void activated(QMdiSubWindow* child);
    const Entry* find(const Form& form) const;
    void showShell(Form& form);
    void showChild(Form& form);
    void showAlone(Form& form, bool modal);
    FormWindow* makeWindow(Form& form, QWidget* parent, Qt::WindowFlags flags);
    void bringForward(const Entry& entry);
    QString nextPrintFile(const Form& form) const;

    Ui& m_ui;
    QVector<Entry> m_entries; ///< in the order of showing
    ShellWindow* m_shell = nullptr;
    QSize m_mainSize;
    bool m_scripted = false;
    int m_timerSpeed = 1;
    QString m_printFolder;
    Memory m_memory;
    std::vector<std::unique_ptr<ReportForm>> m_reports;
};

} // namespace orvane
