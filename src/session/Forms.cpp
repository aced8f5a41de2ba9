#include "session/Forms.h"

#include "session/MdiTolmek.h"
#include "session/frmDialog.h"
#include "session/frmLogin.h"
#include "session/frmRole.h"
#include "session/frmStart.h"
#include "session/frmUserRole.h"
#include "session/frmUsers.h"
#include "session/frmWelcome.h"

namespace orvane {

namespace {

template <typename FormClass>
std::unique_ptr<Form> make(Program& program) {
    return std::make_unique<FormClass>(program);
}

} // namespace

void registerSessionForms(Program& program) {
    program.registerForm("MdiTolmek", make<MdiTolmek>);
    program.registerForm("frmLogin", make<frmLogin>);
    program.registerForm("frmWelcome", make<frmWelcome>);
    program.registerForm("frmStart", make<frmStart>);
    program.registerForm("frmUsers", make<frmUsers>);
    program.registerForm("frmUserRole", make<frmUserRole>);
    program.registerForm("frmRole", make<frmRole>);
    program.registerForm("frmDialog", make<frmDialog>);
}

} // namespace orvane
