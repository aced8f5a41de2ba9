#pragma once

#include "play/Driver.h"

namespace orvane {

/// Acts on the form model itself, without windows. Each act is one event of the form's user.
class HeadlessDriver : public Driver {
public:
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
    void picture(const QString& file) override; ///< there is no window to take a picture of: does nothing
};

} // namespace orvane
