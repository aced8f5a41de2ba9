#pragma once

#include "forms/Controls.h"

namespace orvane {

/// The list whose ticked entries a batch screen works on, with the buttons that tick all or none.
class TickList {
public:
    template <typename FormClass, typename Class>
    TickList(FormClass& form, void (Class::*all)(), void (Class::*none)())
        : LstDate(form, "LstDate"), cmdAll(form, "cmdAll", "Select &All", all),
          cmdDeSelect(form, "cmdDeSelect", "&Deselect All", none) {}

    ListBox LstDate;
    Button cmdAll, cmdDeSelect;

    void setAll(bool ticked);
    QVector<int> ticked() const; ///< in the list's order
};

} // namespace orvane
