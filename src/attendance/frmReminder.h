#pragma once

#include "session/Screen.h"

namespace orvane {

/// "Prompts": today's attendance and the appointments that fall due today.
class frmReminder : public Screen {
public:
    explicit frmReminder(Program& program);

    Label lblShow{*this, "lblShow"};
    Grid dGexp{*this, "dGexp"};
    Button cmdExpected{*this, "cmdExpected", "&Hospital Attendance"};
    Button cmdReorder{*this, "cmdReorder", "&Patients Appt For Today"};
    Button cmdClose{*this, "cmdClose", "&Close"};

    Layout layout() const override;
    Button* cancelButton() override { return &cmdClose; }

private:
    void showList(const Sql& sql, const QString& caption);
};

} // namespace orvane
