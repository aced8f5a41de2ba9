#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Patient Information": the cards that have not expired, one patient's card, and two histories. It changes nothing.
class frmPatientInfo : public Screen {
public:
    explicit frmPatientInfo(Program& program);
    ~frmPatientInfo() override;

    Label lblHeading{*this, "lblHeading", "Patient Information"};
    Label LabelCount{*this, "Label"};
    Tree TreeView1{*this, "TreeView1"};
    TextBox txtAge{*this, "txtAge"};
    Label lblDisplay{*this, "lblDisplay"};
    Grid grdData{*this, "grdData"};
    Button cmdREpairs{*this, "cmdREpairs", "&Balance List"};
    Button cmdTyres{*this, "cmdTyres", "&Visit List"};
    Button CancelButton{*this, "CancelButton", "&Close"};

    Layout layout() const override;
    void Form_Load() override;
    Button* cancelButton() override { return &CancelButton; }

private:
    void TreeView1_NodeClick();
    void showCard(const Recordset& patient);
    void cmdREpairs_Click();
    void cmdTyres_Click();

    std::vector<std::unique_ptr<TextBox>>
        m_fields; ///< one a column of the card, in the order of the table in the source
    QString m_pno;
    QString m_name;
};

} // namespace orvane
