#include "session/frmWelcome.h"

namespace orvane {

frmWelcome::frmWelcome(Program& owner) : Screen(owner, "frmWelcome", "Welcome") {}

Layout frmWelcome::layout() const {
    using namespace orvane::layout;
    return column({stretch(), row({stretch(), cell(Label1), stretch()}), row({stretch(), cell(Label2), stretch()}),
                   row({stretch(), cell(Label3), stretch()}),
                   row({stretch(), cell(Label4), cell(Label6), cell(Label5), stretch()}),
                   row({stretch(), cell(cmdExit), cell(cmdEnter), stretch()}), stretch()});
}

void frmWelcome::Form_Load() {
    const QDate today = program.ui().now().date();
    Label6.setText(QLocale(QLocale::English).toString(today, "dddd, d MMMM yyyy"));
    Timer1_Timer();
}

void frmWelcome::Timer1_Timer() {
    Label5.setText(QLocale(QLocale::English).toString(program.ui().now().time(), "hh:mm AP"));
}

} // namespace orvane
