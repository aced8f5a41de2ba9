#include "support/Workstation.h"

#include "data/rows/ActionParts.h"
#include "screens/Screens.h"
#include "session/Main.h"

#include <QFile>
#include <QRegularExpression>
#include <stdexcept>

namespace orvane {

namespace {

QString firstValue(const Recordset& rows) {
    return rows.eof() ? QString() : rows.text(0);
}

[[noreturn]] void fail(const QString& reason) {
    throw std::runtime_error(reason.toStdString());
}

} // namespace

Workstation::Workstation(const QString& homeFolder) : program(homeFolder, ui) {
    registerScreens(program);
    program.data().setServerClock(ui.clock);
    if (!prepareServer(program))
        fail("no made.sys in " + homeFolder);
}

void Workstation::layHospital() {
    Connection billingRows = billing();
    Connection accountingRows = accounting();
    orvane::layHospital(billingRows, accountingRows);
}

bool Workstation::start(const QString& userName) {
    return Main(program, userName);
}

Form& Workstation::form(const QString& name) {
    Form* open = program.loadedForm(name);
    if (!open || !open->isLoaded())
        fail(name + " is not open");
    return *open;
}

Control& Workstation::control(const QString& name) {
    const qsizetype dot = name.indexOf(QLatin1Char('.'));
    Control* found = form(name.left(dot)).find(name.mid(dot + 1));
    if (!found)
        fail("there is no control " + name);
    return *found;
}

Control& Workstation::usable(const QString& name) {
    Control& found = control(name);
    requireUsable(found, nullptr);
    return found;
}

void Workstation::run(const QString& tsql) {
    Connection connection = billing();
    connection.run(tsql);
    static const QRegularExpression money("Payments|Billing|billDiscounts", QRegularExpression::CaseInsensitiveOption);
    if (tsql.contains(money))
        noteOpening(connection);
}

QString Workstation::scalar(const QString& tsql) {
    return firstValue(billing().run(tsql));
}

QString Workstation::accountingScalar(const QString& tsql) {
    return firstValue(accounting().run(tsql));
}

SecondHome::SecondHome(const QString& firstFolder) {
    for (const char* name : {"made.sys", "sysdoc.sys", "orvane.ini"}) {
        QFile source(firstFolder + QLatin1Char('/') + QLatin1String(name));
        QFile copy(folder() + QLatin1Char('/') + QLatin1String(name));
        if (!source.open(QIODevice::ReadOnly) || !copy.open(QIODevice::WriteOnly))
            fail("cannot copy " + source.fileName());
        copy.write(source.readAll().replace("folder = data", "folder = " + firstFolder.toUtf8() + "/data"));
    }
}

void WorkstationTest::SetUp() {
    ws.layHospital();
    prepare();
    ASSERT_TRUE(ws.start());
}

} // namespace orvane
