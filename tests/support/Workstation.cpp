#include "support/Workstation.h"

#include "play/ControlActs.h"
#include "play/ControlReading.h"
#include "play/HeadlessDriver.h"
#include "screens/Screens.h"
#include "session/Main.h"

#include <QFile>
#include <stdexcept>

namespace orvane {

namespace {

HeadlessDriver& driver() {
    static HeadlessDriver theDriver;
    return theDriver;
}

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

void Workstation::close(const QString& name) {
    driver().close(form(name));
}

void Workstation::menu(const QString& entry) {
    driver().click(dynamic_cast<MenuItem&>(usable("MdiTolmek." + entry)));
}

void Workstation::set(const QString& name, const QString& value) {
    setValue(driver(), usable(name), value);
}

void Workstation::pick(const QString& name, int index) {
    pickEntry(driver(), usable(name), QString::number(index), true);
}

void Workstation::pick(const QString& name, const QString& text) {
    pickEntry(driver(), usable(name), text, false);
}

void Workstation::tick(const QString& list, const QStringList& entries, bool ticked) {
    tickEntries(driver(), usable(list), entries, ticked);
}

void Workstation::row(const QString& grid, int row) {
    makeRowCurrent(driver(), usable(grid), QString::number(row), true);
}

void Workstation::row(const QString& grid, const QString& cell) {
    makeRowCurrent(driver(), usable(grid), cell, false);
}

void Workstation::click(const QString& name) {
    clickControl(driver(), usable(name));
}

void Workstation::dblClick(const QString& name) {
    driver().dblClick(usable(name));
}

void Workstation::leave(const QString& name) {
    driver().leave(usable(name));
}

void Workstation::key(const QString& name, const QString& keys) {
    typeKeys(driver(), usable(name), keys);
}

void Workstation::timer(const QString& name) {
    driver().tick(control<Timer>(name));
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

QString Workstation::state(const QString& name) {
    return stateOf(control(name));
}

QStringList Workstation::items(const QString& name) {
    return itemsOf(control(name)).value();
}

QStringList Workstation::rows(const QString& name) {
    return rowsOf(control(name)).value();
}

QString Workstation::scalar(const QString& tsql) {
    return firstValue(billing().run(tsql));
}

QString Workstation::accountingScalar(const QString& tsql) {
    return firstValue(accounting().run(tsql));
}

int Workstation::tableCount(const QString& tableAndFilter) {
    return scalar("select count(*) as n from " + tableAndFilter).toInt();
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
