#pragma once

#include "forms/Controls.h"
#include "forms/Layout.h"

namespace orvane {

/// The buttons of a screen that keeps a list: those of the list alone, and those of an entry under way.
class MasterButtons {
public:
    template <typename FormClass>
    MasterButtons(FormClass& form, void (FormClass::*add)(), void (FormClass::*edit)(), void (FormClass::*del)(),
                  void (FormClass::*refresh)(), void (FormClass::*cancel)(), void (FormClass::*save)())
        : cmdAdd(form, "cmdAdd", "&Add", add), cmdEdit(form, "cmdEdit", "&Edit", edit),
          cmdDel(form, "cmdDel", "&Delete", del), cmdRefresh(form, "cmdRefresh", "&Refresh", refresh),
          cmdCancel(form, "cmdCancel", "Ca&ncel", cancel),
          CancelButton(form, "CancelButton", "&Close", &FormClass::unload), OKButton(form, "OKButton", "&Save", save) {}

    Button cmdAdd, cmdEdit, cmdDel, cmdRefresh, cmdCancel, CancelButton, OKButton;

    bool isEntering() const { return OKButton.isVisible(); }
    /// Shows the buttons of an entry, or those of the list.
    void setEntering(bool entering);
    Layout row() const;
};

} // namespace orvane
