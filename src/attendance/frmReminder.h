#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Prompts": today's attendance and the appointments that fall due today.
class frmReminder : public Screen {
public:
    explicit frmReminder(Program& owner);

    Layout layout() const override;
    Button* cancelButton() override { return &cmdClose; }

private:
    void cmdExpected_Click();
    void cmdReorder_Click();
    void showList(const Sql& sql, const QString& caption);

    using Me = frmReminder;
    Label lblShow{*this, "lblShow"};
    Grid dGexp{*this, "dGexp"};
    Button cmdExpected{*this, "cmdExpected", "&Hospital Attendance", &Me::cmdExpected_Click};
    Button cmdReorder{*this, "cmdReorder", "&Patients Appt For Today", &Me::cmdReorder_Click};
    Button cmdClose{*this, "cmdClose", "&Close", &Me::unload};
};

} // namespace orvane
