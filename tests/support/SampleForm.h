#pragma once

#include "forms/Form.h"

namespace orvane {

/// A form with a control of each kind, which notes its events in `events` as "CONTROL Event".
class SampleForm : public Form {
public:
    explicit SampleForm(Ui& ui, const QString& name = "frmSample");
    ~SampleForm() override;

    Label lblTitle{*this, "lblTitle", "Sample"};
    TextBox txtName{*this, "txtName"};
    TextBox txtCode{*this, "txtCode"};     ///< capitals, at most 5
    TextBox txtDigits{*this, "txtDigits"}; ///< drops what is no digit
    TextBox txtLocked{*this, "txtLocked"};
    TextBox txtNote{*this, "txtNote"};   ///< multi-line
    TextBox txtAmt0{*this, "txtAmt(0)"}; ///< a number
    TextBox txtAmt1{*this, "txtAmt(1)"};
    ComboBox cboTown{*this, "cboTown"};                       ///< "ABA", "IBADAN", "IBADAN NORTH"
    ComboBox cboColor{*this, "cboColor", ComboBox::ListOnly}; ///< "RED", "GREEN"
    CheckBox chkCard{*this, "chkCard", "Card"};
    OptionButton radOne{*this, "radOne", "One"};
    OptionButton radTwo{*this, "radTwo", "Two"};
    Frame fraInner{*this, "fraInner"}; ///< holds the two below
    OptionButton radCash{*this, "radCash", "Cash"};
    OptionButton radBank{*this, "radBank", "Bank"};
    Frame fraOuter{*this, "fraOuter"};   ///< holds fraInner
    ListBox lstItems{*this, "lstItems"}; ///< "ONE", "TWO", "THREE"
    DatePicker dtDate{*this, "dtDate"};
    TabStrip strip{*this, "tabs"}; ///< "Rows", "Entries"
    Tree tree{*this, "tree"};      ///< "Root" with "Leaf"
    Grid grdRows{*this, "grdRows"};
    EntryGrid grdEntry{*this, "grdEntry"}; ///< heads "Item", "Price"
    ProgressBar bar{*this, "bar"};
    StatusBar status{*this, "status", 2};
    Timer tmrTick{*this, "tmrTick", 1000, true};
    Timer tmrOff{*this, "tmrOff", 1, false};
    MenuItem mnuMain{*this, "mnuMain", "&Main"};
    MenuItem mnuEntry{*this, "mnuEntry", "&Entry", &mnuMain};
    MenuItem mnuHidden{*this, "mnuHidden", "Hidden"};
    MenuItem mnuInHidden{*this, "mnuInHidden", "Inside", &mnuHidden};
    Button cmdExtra{*this, "cmdExtra", "Save Copy"};
    Button cmdSave{*this, "cmdSave", "&Save"};
    Button cmdClose{*this, "cmdClose", "&Close"};

    Layout layout() const override;
    void Form_Load() override { note("Form Load"); }
    bool Form_Unload() override;
    Button* defaultButton() override { return &cmdSave; }
    Button* cancelButton() override { return &cmdClose; }
    void afterFault() override { note("Form afterFault"); }
    void afterEvent() override { note("Form afterEvent"); }

    void note(const char* event) { events << QString::fromLatin1(event); }
    /// The events since the last look, those of the form itself left out.
    QStringList takeEvents();

    QStringList events;
    bool refusesUnload = false;
    bool* destroyed = nullptr; ///< set true by the destructor

private:
    void noteEvents(Control& control);
};

} // namespace orvane
