#pragma once

#include "forms/Form.h"

namespace orvane {

/// A form with a control of each kind, which notes its events in `events` as "CONTROL Event".
class SampleForm : public Form {
public:
    explicit SampleForm(Ui& ui, const QString& name = QStringLiteral("frmSample"));
    ~SampleForm() override;

    Label lblTitle{*this, QStringLiteral("lblTitle"), QStringLiteral("Sample")};
    TextBox txtName{*this, QStringLiteral("txtName")};
    TextBox txtCode{*this, QStringLiteral("txtCode")};     ///< capitals, at most 5
    TextBox txtDigits{*this, QStringLiteral("txtDigits")}; ///< drops what is no digit
    TextBox txtLocked{*this, QStringLiteral("txtLocked")};
    TextBox txtNote{*this, QStringLiteral("txtNote")}; ///< multi-line
    TextBox txtAmt0{*this, QStringLiteral("txtAmt(0)")};
    TextBox txtAmt1{*this, QStringLiteral("txtAmt(1)")};
    ComboBox cboTown{*this, QStringLiteral("cboTown")};                       ///< "ABA", "IBADAN", "IBADAN NORTH"
    ComboBox cboColor{*this, QStringLiteral("cboColor"), ComboBox::ListOnly}; ///< "RED", "GREEN"
    CheckBox chkCard{*this, QStringLiteral("chkCard"), QStringLiteral("Card")};
    OptionButton radOne{*this, QStringLiteral("radOne"), QStringLiteral("One")};
    OptionButton radTwo{*this, QStringLiteral("radTwo"), QStringLiteral("Two")};
    Frame fraInner{*this, QStringLiteral("fraInner")}; ///< holds the two below
    OptionButton radCash{*this, QStringLiteral("radCash"), QStringLiteral("Cash")};
    OptionButton radBank{*this, QStringLiteral("radBank"), QStringLiteral("Bank")};
    Frame fraOuter{*this, QStringLiteral("fraOuter")};   ///< holds fraInner
    ListBox lstItems{*this, QStringLiteral("lstItems")}; ///< "ONE", "TWO", "THREE"
    DatePicker dtDate{*this, QStringLiteral("dtDate")};
    TabStrip strip{*this, QStringLiteral("tabs")}; ///< "Rows", "Entries"
    Tree tree{*this, QStringLiteral("tree")};      ///< "Root" with "Leaf"
    Grid grdRows{*this, QStringLiteral("grdRows")};
    EntryGrid grdEntry{*this, QStringLiteral("grdEntry")}; ///< heads "Item", "Price"
    ProgressBar bar{*this, QStringLiteral("bar")};
    StatusBar status{*this, QStringLiteral("status"), 2};
    Timer tmrTick{*this, QStringLiteral("tmrTick"), 1000, true};
    Timer tmrOff{*this, QStringLiteral("tmrOff"), 1000, false};
    MenuItem mnuMain{*this, QStringLiteral("mnuMain"), QStringLiteral("&Main")};
    MenuItem mnuEntry{*this, QStringLiteral("mnuEntry"), QStringLiteral("&Entry"), &mnuMain};
    MenuItem mnuHidden{*this, QStringLiteral("mnuHidden"), QStringLiteral("Hidden")};
    MenuItem mnuInHidden{*this, QStringLiteral("mnuInHidden"), QStringLiteral("Inside"), &mnuHidden};
    Button cmdSave{*this, QStringLiteral("cmdSave"), QStringLiteral("&Save")};
    Button cmdClose{*this, QStringLiteral("cmdClose"), QStringLiteral("&Close")};

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
