#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Company Profile": moves the patient and the bill in hand (session sBillPno, gConsultID) to another client.
class frmCoyUpdate : public Screen {
public:
    explicit frmCoyUpdate(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &OkButton; }
    Button* saveButton() override { return &OkButton; }
    Button* cancelButton() override { return &CancelButton; }

private:
    /// What an entry of the list of clients stands for.
    struct ListedClient {
        QString retainID, name;
    };

    void cboPat_Click();
    void OkButton_Click();
    bool mayMove();

    using Me = frmCoyUpdate;
    TextBox txtNo{*this, "txtNo"};
    TextBox txtBill{*this, "txtBill"};
    ComboBox cboPat{*this, "cboPat", ComboBox::FreeText, &Me::cboPat_Click};
    ComboBox cboClient{*this, "cboClient", ComboBox::ListOnly};
    Button OkButton{*this, "OkButton", "&Update", &Me::OkButton_Click};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};

    QString m_retainCode; ///< of the picked client
};

} // namespace orvane
