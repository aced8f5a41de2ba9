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
    program.registerForm(QStringLiteral("MdiTolmek"), make<MdiTolmek>);
    program.registerForm(QStringLiteral("frmLogin"), make<frmLogin>);
    program.registerForm(QStringLiteral("frmWelcome"), make<frmWelcome>);
    program.registerForm(QStringLiteral("frmStart"), make<frmStart>);
    program.registerForm(QStringLiteral("frmUsers"), make<frmUsers>);
    program.registerForm(QStringLiteral("frmUserRole"), make<frmUserRole>);
    program.registerForm(QStringLiteral("frmRole"), make<frmRole>);
    program.registerForm(QStringLiteral("frmDialog"), make<frmDialog>);
}

} // namespace orvane
