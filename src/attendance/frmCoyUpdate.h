#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Company Profile": moves the patient and the bill in hand (session sBillPno, gConsultID) to another client.
class frmCoyUpdate : public Screen {
public:
    explicit frmCoyUpdate(Program& program);

    TextBox txtNo{*this, "txtNo"};
    TextBox txtBill{*this, "txtBill"};
    ComboBox cboPat{*this, "cboPat"};
    ComboBox cboClient{*this, "cboClient", ComboBox::ListOnly};
    Button OkButton{*this, "OkButton", "&Update"};
    Button CancelButton{*this, "CancelButton", "&Close"};

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OkButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void cboPat_Click();
    void OkButton_Click();
    bool isProcessed();
    bool isProcessed(Connection& connection) const;
    void tellProcessed();
    bool checkFields();
    bool moveToClient(); ///< false: the bill is in a batch by now, and nothing has changed

    QString m_retainID;
    QString m_retainCode;
    QString m_clientName;
};

} // namespace orvane
