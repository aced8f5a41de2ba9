#pragma once

#include "patients/PatientDirectory.h"
#include "session/Screen.h"

namespace orvane {

/// "Find a Patient": over any screen that takes one, by number, old number, telephone or any part of the name, as one
/// types, or by a card's bar code. The number of the patient who is taken goes into session.sFoundPNo.
class frmPatientFinder : public Screen {
public:
    explicit frmPatientFinder(Program& owner);

    Layout layout() const override;
    void Form_Load() override;
    Button* defaultButton() override { return &cmdTake; }
    Button* cancelButton() override { return &CancelButton; }

private:
    void search();
    void showFound(Connection& connection);
    void tellFound();
    void txtFind_Enter();
    void enterList();
    void take();
    void readOn();
    bool isCertain() const;

    using Me = frmPatientFinder;
    TextBox txtFind{*this, "txtFind", &Me::search};
    Label lblFound{*this, "lblFound"};
    Grid grdData{*this, "grdData", &Me::take};
    Timer tmrRead{*this, "tmrRead", 40, true, &Me::readOn};
    Button cmdTake{*this, "cmdTake", "&Take Patient", &Me::take};
    Button CancelButton{*this, "CancelButton", "&Close", &Me::unload};

    std::vector<PatientDirectory::Found> m_found; ///< the rows of the grid, the best first
    bool m_toldReading = false;                   ///< the label says that not all patients are known yet
};

} // namespace orvane
