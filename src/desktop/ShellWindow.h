#pragma once

#include "desktop/FormView.h"

#include <QMainWindow>

class QAction;
class QMdiArea;
class QMenu;

namespace orvane {

/// A menu or an entry of one.
class MenuBinding : public Binding {
    Q_OBJECT

public:
    MenuBinding(FormView& view, MenuItem& item, QAction* action, QMenu* menu);
    QAction* action() const { return m_action; }
    QMenu* menu() const { return m_menu; } ///< null for an entry

protected:
    void refresh() override;
    void released() override { m_item = nullptr; }

private:
    MenuItem* m_item;
    QAction* m_action;
    QMenu* m_menu;
    QString m_caption; ///< as last shown
};

/// The main window: the form that has a menu bar. Its own controls are the strip below the menus and the status bar;
/// all other forms show inside it.
class ShellWindow : public QMainWindow {
    Q_OBJECT

public:
    ShellWindow(Form& form, bool scripted, int timerSpeed = 1); ///< see ViewSetting

    FormView* view() const { return m_strip; }
    QMdiArea* area() const { return m_area; }
    /// What Alt means here whatever window is in front: the menus and the strip below them.
    QString reservedLetters() const { return m_strip->mnemonics().letters(); }
    void release();
    static bool isShell(const Form& form);
    std::function<bool()> mayClose; ///< asked before the form is, when the user closes the window

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildMenus();
    void fillMenu(QMenu& menu, const MenuItem& item);
    void buildStatusBar();
    void addArrangement(const QString& entry, void (ShellWindow::*arrange)());
    void listChildren(QMenu& menu);
    void tileVertical();
    void tileHorizontal();
    void cascade();

    Form* m_form;
    FormView* m_strip;
    QMdiArea* m_area;
    QVector<QAction*> m_children; ///< of the window menu, the list of open windows
};

} // namespace orvane
