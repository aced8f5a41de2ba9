#pragma once

#include "session/Screen.h"

#include <memory>
#include <vector>

namespace orvane {

/// The main window: the menus that open every screen, the server's clock, and the alert while visits wait for billing.
class MdiTolmek : public Screen {
public:
    explicit MdiTolmek(Program& owner);
    ~MdiTolmek() override;

    Layout layout() const override;
    void Form_Load() override;
    bool Form_Unload() override;

    void showDispensing(); ///< the one way to its screen

    // Prompts of the day; each puts its line in front of sPrompt when there is something to say.
    void VerifyApptDate();
    void VerifyVisitsToday();
    void VerifyDueDischDate() {}
    void VerifyDueDelivery() {}
    QString sPrompt;

private:
    /// Empty: shown without any action, unless it is turned on.
    enum class Look { Shown, Hidden, HiddenAndDisabled, Empty };
    /// A menu (`inMenu` false), or an entry of the menu above it. An entry runs its handler, then opens its screen; one
    /// without either does nothing.
    struct MenuEntry {
        bool inMenu;
        const char* name;
        const char* caption;
        Look look = Look::Shown;
        const char* opens = nullptr;
        void (MdiTolmek::*run)() = nullptr;
    };
    static const QVector<MenuEntry>& menuTable();
    void buildMenus();
    void act(const MenuEntry& entry);

    void cmdView_Click() { program.open("frmFlash"); }
    void refreshServerClock();
    void checkWaitingVisits();
    void readPatients();
    void tmrMDI_Timer();
    void tmrSound_Timer();
    void Picture1_DblClick();
    void endSession(bool autoLogoff);

    void mnuPrint_Click();
    void mnuEPE_Click();
    void mnuRPtES_Click();
    void mnuPCB_Click();
    void mnuTB_Click();
    void mnuTBBP_Click();
    void mnuGL_Click();
    void prepareLedgerReport(const QString& kind);
    void mnuBFT_Click();
    void mnuINC_Click();
    void mnuCR_Click();
    void mnuAcctEnable_Click();
    void mnuAcctDisable_Click();
    void preparePanel(const QString& mode, const QString& label);
    void viewToday(const Sql& sql, const QString& emptyMessage, const QString& report, const QString& title,
                   const QString& sums = {});

    using Me = MdiTolmek;
    Picture Picture1{*this, "Picture1"};
    Picture Picture2{*this, "Picture2"};
    Label lblHospital{*this, "lblHospital"};
    Frame Frame1{*this, "Frame1"};
    Label lblServer{*this, "lblServer", "Server Date && Time: "};
    Label lblDate{*this, "lblDate"};
    Label lblTime{*this, "lblTime"};
    Button cmdView{*this, "cmdView", "Patients from Doctor", &Me::cmdView_Click};
    StatusBar SbrTolmek{*this, "SbrTolmek", 3};
    Timer Timer2{*this, "Timer2", 60000, true, &Me::refreshServerClock};
    Timer Timer1{*this, "Timer1", 60000, true, &Me::checkWaitingVisits};
    Timer tmrPatients{*this, "tmrPatients", 40, true, &Me::readPatients};
    Timer tmrMDI{*this, "tmrMDI", 500, false, &Me::tmrMDI_Timer};
    Timer tmrSound{*this, "tmrSound", 60000, false, &Me::tmrSound_Timer};
    Timer tmrIdle{*this, "tmrIdle", 10000, false}; ///< the hook of an idle rule; it does nothing
    std::vector<std::unique_ptr<MenuItem>> m_menus;

    bool flashToggle = false;
    qint16 soundTicks = 0;
};

} // namespace orvane
