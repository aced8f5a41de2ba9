#pragma once

#include "desktop/Windows.h"
#include "play/Driver.h"

class QWidget;

namespace orvane {

/// Carries out a script's acts on the real widgets. A control that its form does not place in its layout is acted on in
/// the model.
class WindowDriver : public Driver {
public:
    /// `outputFolder`: where pictures with a relative name go.
    WindowDriver(Windows& windows, const QString& outputFolder) : m_windows(windows), m_outputFolder(outputFolder) {}

    void type(TextBox& box, const QString& text) override;
    void type(ComboBox& box, const QString& text) override;
    void choose(ComboBox& box, int index) override;
    void choose(TabStrip& tabs, int tab) override;
    void choose(Tree& tree, const QString& key) override;
    void setChecked(CheckBox& box, bool checked) override;
    void check(OptionButton& option) override;
    void setSelected(ListBox& list, int index, bool selected) override;
    void setDate(DatePicker& picker, QDate date) override;
    void selectRow(Grid& grid, int row) override;
    void selectRow(EntryGrid& grid, int row) override;
    void click(Control& control) override;
    void click(MenuItem& entry) override;
    void dblClick(Control& control) override;
    void leave(Control& control) override;
    void key(Control& control, QChar character) override;
    void tick(Timer& timer) override;
    void close(Form& form) override;
    void picture(const QString& file) override;

private:
    Binding* bindingOf(const Control& control) const; ///< shown as the control stands now; null: not in the layout
    void pickRow(Control& grid, int row);

    Windows& m_windows;
    QString m_outputFolder;
};

} // namespace orvane
