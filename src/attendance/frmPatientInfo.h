#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Patient Information": the cards that have not expired, one patient's card, and two histories. It changes nothing.
class frmPatientInfo : public Screen {
public:
    explicit frmPatientInfo(Program& owner);
    ~frmPatientInfo() override;

    Layout layout() const override;
    void Form_Load() override;
    void Form_Activate() override;
    Button* cancelButton() override { return &CancelButton; }

protected:
    PatientTaker patientTaker() override;

private:
    void showFound(const QString& pno);
    void showPatient(const QString& pno);
    void TreeView1_NodeClick();
    void clearCard();
    void showCard(Connection& connection, const Recordset& patient);
    void cmdREpairs_Click();
    void cmdTyres_Click();

    using Me = frmPatientInfo;
    Label lblHeading{*this, "lblHeading", "Patient Information"};
    Label LabelCount{*this, "Label"};
    Tree TreeView1{*this, "TreeView1", &Me::TreeView1_NodeClick};
    TextBox txtAge{*this, "txtAge"};
    Label lblDisplay{*this, "lblDisplay"};
    Grid grdData{*this, "grdData"};
    Button cmdREpairs{*this, "cmdREpairs", "&Balance List", &Me::cmdREpairs_Click};
    Button cmdTyres{*this, "cmdTyres", "&Visit List", &Me::cmdTyres_Click};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};
    /// One a column of the card, in the order of the table in the source.
    std::vector<std::unique_ptr<TextBox>> m_fields;

    QString m_pno, m_name; ///< of the patient in hand
};

} // namespace orvane
