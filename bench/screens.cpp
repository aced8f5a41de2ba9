// How fast the real windows are on a large hospital, offscreen: start, memory, every screen's opening, the patient
// searches letter by letter, and lists of 100,000 rows. It changes nothing but the login's line of the audit trail.

#include "screens/Screens.h"
#include "bench/BareEngine.h"
#include "desktop/ComboBinding.h"
#include "desktop/DesktopUi.h"
#include "desktop/GridBinding.h"
#include "desktop/Look.h"
#include "desktop/TableView.h"
#include "patients/PatientDirectory.h"
#include "session/Main.h"

#include <QApplication>
#include <QComboBox>
#include <QCommandLineParser>
#include <QCompleter>
#include <QElapsedTimer>
#include <QFile>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTextStream>
#include <QTreeView>
#include <algorithm>
#include <ctime>

namespace orvane {
namespace {

constexpr int longList = 100'000;

QTextStream& out() {
    static QTextStream stream(stdout);
    return stream;
}

/// What something took: milliseconds on the wall, and of the processor in this process, which a busy machine does not
/// lengthen (but which leaves out a server's part).
struct Time {
    double wall = 0, processor = 0;
};

class Stopwatch {
public:
    Stopwatch() : m_processor(processorNow()) { m_wall.start(); }
    Time time() const { return {double(m_wall.nsecsElapsed()) / 1e6, processorNow() - m_processor}; }

private:
    static double processorNow() {
        timespec now{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
        return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
    }
    QElapsedTimer m_wall;
    double m_processor;
};

/// Until the act and all that follows from it at once is on the screen.
Time painted(const std::function<void()>& act) {
    const Stopwatch watch;
    act();
    QApplication::processEvents();
    return watch.time();
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct Times {
    std::vector<double> wall, processor;
    void add(const Time& time) {
        wall.push_back(time.wall);
        processor.push_back(time.processor);
    }
};

void line(const QString& what, const Times& times, const QString& remark = {}) {
    const auto worst = [](const std::vector<double>& values) {
        return *std::max_element(values.begin(), values.end());
    };
    QString text = what.leftJustified(52);
    for (const double value : {median(times.processor), worst(times.processor), median(times.wall), worst(times.wall)})
        text += QStringLiteral(" %1").arg(value, 9, 'f', 1);
    out() << text << "  " << remark << Qt::endl;
}

void line(const QString& what, const Time& time, const QString& remark = {}) {
    Times times;
    times.add(time);
    line(what, times, remark);
}

void heading(const QString& text) {
    out() << '\n'
          << text.leftJustified(52) << " processor ms         wall ms\n"
          << QString().leftJustified(52) << "    median     worst    median     worst" << Qt::endl;
}

/// The desktop with nobody in front of it: boxes are told and questions declined.
class UnattendedDesktop : public DesktopUi {
public:
    void box(const QString& text, Icon, const QString&) override { boxes << text; }
    bool question(const QString&, const QString&, Consent, const QString&) override { return false; }
    std::optional<QString> inputBox(const QString&, const QString&, const QString&) override { return {}; }
    void showModal(Form& form) override { windows().show(form); }
    void playSound(const QString&) override {}
    QStringList boxes;
};

class Screens {
public:
    explicit Screens(const QString& home) : m_home(home), m_program(home, m_ui) { registerScreens(m_program); }

    bool start();
    void showMemory(const QString& when) const;
    void openEach();
    void openTen();
    void searchPatients();
    void readLongList();
    void showLongLists();

private:
    void close(const QString& name);
    void searchAsTyped();
    void readPatients();
    void findPatients();
    void searchByButton(const QString& form, const QString& what, const QString& where);
    void showGrid(const Recordset& rows);
    void showEntryGrid(const Recordset& rows);
    void showCombo(const Recordset& rows);
    void showListAndTree(const Recordset& rows);
    void pageDown(const QString& what, QAbstractItemView& view);
    Binding& bindingOf(const Control& control) { return *m_ui.windows().viewOf(control.form())->bindingOf(control); }
    template <typename Kind>
    Kind& control(const QString& form, const QString& name) {
        return static_cast<Kind&>(*m_program.form(form).find(name));
    }

    QString m_home;
    UnattendedDesktop m_ui;
    Program m_program;
};

bool Screens::start() {
    heading("start");
    m_ui.windows().setMainSize({1366, 768});
    bool started = false;
    line("main window painted (from the program's first step)", painted([&] { started = Main(m_program); }));
    for (const QString& box : std::as_const(m_ui.boxes))
        out() << "box: " << box << Qt::endl;
    return started;
}

void Screens::showMemory(const QString& when) const {
    QFile file("/proc/self/smaps_rollup");
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QString text = QString::fromLatin1(file.readAll());
    const auto megabytes = [&](const QString& name) {
        const auto match =
            QRegularExpression("^" + name + ":\\s+(\\d+) kB", QRegularExpression::MultilineOption).match(text);
        return match.captured(1).toInt() / 1024;
    };
    out() << "memory, " << when << ": RSS " << megabytes("Rss") << " MB, PSS " << megabytes("Pss") << " MB" << Qt::endl;
}

void Screens::close(const QString& name) {
    if (Form* form = m_program.loadedForm(name))
        form->abandon();
    QApplication::processEvents();
    m_program.deleteClosedForms();
    m_ui.boxes.clear();
}

/// The screens before the main window are not opened from it.
bool opensFromShell(const QString& name) {
    static const QStringList others = {"mditolmek", "frmstart", "frmwelcome", "frmlogin"};
    return !others.contains(name);
}

void Screens::openEach() {
    heading("opening a screen, painted");
    for (const QString& name : m_program.formNames()) {
        if (!opensFromShell(name))
            continue;
        Times times;
        QString said;
        for (int i = 0; i < 3; ++i) {
            times.add(painted([&] { m_program.open(name); }));
            if (!m_ui.boxes.isEmpty())
                said = "box: " + m_ui.boxes.first().simplified().left(60);
            close(name);
        }
        line(name, times, said);
    }
}

void Screens::openTen() {
    const QStringList ten = {"frmBillingVerify",  "frmBillPat",  "frmRecordsOffline", "frmReceiptTemp", "frmFlash",
                             "frmReceiptDeposit", "frmDebtInfo", "frmFind",           "frmPatientInfo", "frmDrugPrice"};
    for (const QString& name : ten)
        m_program.open(name);
    QElapsedTimer clock;
    clock.start();
    while (control<Tree>("frmPatientInfo", "TreeView1").hasMore() && clock.elapsed() < 60'000)
        QApplication::processEvents();
    out() << '\n';
    showMemory("ten screens open: " + ten.join(", "));
    for (const QString& name : ten)
        close(name);
    showMemory("and closed");
}

void press(QWidget& widget, int key, const QString& text = {}) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text), up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &down);
    QApplication::sendEvent(&widget, &up);
}

const QStringList surnames = {"ADEBISI", "OKAFOR", "EZE", "BELLO", "YUSUF"};

/// frmFind: a key at a time, each painted before the next.
void Screens::searchAsTyped() {
    m_program.open("frmFind");
    QApplication::processEvents();
    auto& name = control<TextBox>("frmFind", "txtName");
    auto& grid = control<Grid>("frmFind", "grdData");
    QWidget& editor = *bindingOf(name).editor();
    QMap<int, Times> byLength;
    int rowsAtOnce = 0;
    for (const QString& surname : surnames) {
        name.clear();
        QApplication::processEvents();
        for (int i = 0; i < surname.size(); ++i) {
            byLength[i + 1].add(painted([&] { press(editor, 0, surname.mid(i, 1)); }));
            if (i == 0)
                rowsAtOnce = std::max(rowsAtOnce, grid.rowsRead());
        }
    }
    for (auto times = byLength.cbegin(); times != byLength.cend(); ++times)
        line(QStringLiteral("frmFind, letter %1 of a surname").arg(times.key()), *times,
             times.key() == 1 ? QStringLiteral("up to %1 rows are there").arg(rowsAtOnce) : QString());
    name.setText("A");
    Times slices;
    const Stopwatch watch;
    while (grid.hasMore())
        slices.add(painted([] {}));
    const Time all = watch.time();
    line("frmFind, a slice of what is read behind the first page", slices);
    line("frmFind, all of \"A\" is there", all, QStringLiteral("%1 rows").arg(grid.rowCount()));
    close("frmFind");
}

void Screens::searchByButton(const QString& form, const QString& what, const QString& where) {
    m_program.open(form);
    QApplication::processEvents();
    auto& name = control<TextBox>(form, what);
    auto& button = control<Button>(form, where);
    for (const int letters : {1, 2, 3, 10}) {
        Times times;
        for (const QString& surname : surnames) {
            name.setText(surname.left(letters));
            times.add(painted([&] { m_program.form(form).userEvent([&] { button.click(); }); }));
        }
        line(letters < 10 ? QStringLiteral("%1, %2 letters").arg(form).arg(letters) : form + ", whole surname", times);
    }
    close(form);
}

/// What the main window reads in its pauses, at once; it may be ready by now.
void Screens::readPatients() {
    PatientDirectory patients;
    Connection connection = m_program.openBilling();
    Times pages;
    const Stopwatch watch;
    for (bool more = true; more;) {
        const Stopwatch page;
        more = patients.readOn(connection);
        pages.add(page.time());
    }
    line("patient finder, a page of the patients read", pages);
    line("patient finder, all of them", watch.time(),
         QStringLiteral("%1 MB").arg(double(patients.bytes()) / 1e6, 0, 'f', 1));
    while (m_program.patients().readOn(connection)) {
    }
}

/// The patient finder: a key at a time, each painted before the next.
void Screens::findPatients() {
    readPatients();
    m_program.open("frmPatientFinder");
    QApplication::processEvents();
    auto& text = control<TextBox>("frmPatientFinder", "txtFind");
    QWidget& editor = *bindingOf(text).editor();
    const std::pair<const char*, QStringList> kinds[] = {
        {"surname", surnames},
        {"any part of the name", {"BISI", "KAFO", "UNDE", "LADE", "INIYI"}},
        {"two words in any order", {"BOLA ADEBISI", "EKENE OKOYE", "ADE OLA", "MILA SHEHU"}},
        {"number or telephone", {"123456", "001/001", "0800000", "H4898", "7777", "002002/001"}},
        {"nobody has it", {"XQZ", "QX", "ZZZ", "O X", "8 9 X"}}};
    for (const auto& [kind, texts] : kinds) {
        Times times;
        for (const QString& typed : texts) {
            text.clear();
            QApplication::processEvents();
            for (const QChar letter : typed)
                times.add(painted([&] { press(editor, 0, letter); }));
        }
        line(QStringLiteral("frmPatientFinder, a letter: %1").arg(QLatin1String(kind)), times);
    }
    close("frmPatientFinder");
}

void Screens::searchPatients() {
    heading("patient search, first page painted");
    searchAsTyped();
    searchByButton("frmRecordsOffline", "txtName", "cmdOK");
    searchByButton("frmDebtInfo", "txtName", "OKButton");
    findPatients();
}

Sql longStatement() {
    return Sql("select top 100000 PNo,fullname,clientcatID,coyName,DebtBF,sex,pPhoneNo,expirydate from hPatients");
}

void Screens::readLongList() {
    heading("reading 100,000 rows of 8 columns");
    const std::unique_ptr<BareEngine> bare = BareEngine::open(m_home, QDateTime::currentDateTime());
    const QList<BareStatement> statement = bare->translated({longStatement().text()});
    Times ours, engines;
    std::vector<double> ratios;
    for (int i = 0; i < 9; ++i) {
        const Stopwatch bareWatch;
        bare->run(statement.first());
        engines.add(bareWatch.time());
        const Stopwatch watch;
        Connection connection = m_program.openBilling();
        const Recordset rows(connection, longStatement());
        ours.add(watch.time());
        ratios.push_back(ours.wall.back() / engines.wall.back());
    }
    line("bare engine", engines);
    line("recordset", ours, QStringLiteral("ratio %1").arg(median(ratios), 0, 'f', 2));
}

/// A form with one control that fills it.
template <typename Kind>
class OneControl : public Form {
public:
    explicit OneControl(Ui& user) : Form(user, "frmOne", "One control") {}
    Layout layout() const override { return layout::column({layout::cell(shown)}); }
    Kind shown{*this, "shown"};
};

void Screens::pageDown(const QString& what, QAbstractItemView& view) {
    Times times;
    view.setFocus();
    for (int i = 0; i < 100; ++i)
        times.add(painted([&] { press(view, Qt::Key_PageDown); }));
    line(what + ", page down", times);
    line(what + ", to the end", painted([&] { press(view, Qt::Key_End); }));
}

void Screens::showGrid(const Recordset& rows) {
    OneControl<Grid> form(m_ui);
    form.load();
    line("grid", painted([&] {
             form.shown.load(rows);
             m_ui.show(form);
         }));
    auto& table = *static_cast<GridBinding&>(bindingOf(form.shown)).table();
    pageDown("grid", table);
    for (const int column : {0, 1, 4})
        line(QStringLiteral("grid, sorted by %1").arg(form.shown.columnHead(column)),
             painted([&] { table.sortByColumn(column, Qt::DescendingOrder); }));
    table.setCurrentIndex(table.model()->index(0, 1));
    line("grid, type-ahead without a match", painted([&] { table.keyboardSearch("ZZZZ"); }));
    form.unload();
}

void Screens::showEntryGrid(const Recordset& rows) {
    OneControl<EntryGrid> form(m_ui);
    form.load();
    form.shown.setHead("No|Name|Category|Client|Debt");
    for (int row = 1; row <= rows.count(); ++row) {
        Recordset at = rows;
        at.moveTo(row - 1);
        for (int column = 0; column < form.shown.columns(); ++column)
            form.shown.setCell(row, column, at.text(column));
        form.shown.addRow();
    }
    line("entry grid", painted([&] { m_ui.show(form); }));
    pageDown("entry grid", *static_cast<GridBinding&>(bindingOf(form.shown)).table());
    line("entry grid, a cell changed", painted([&] { form.shown.setCell(50'000, 1, "CHANGED"); }));
    form.unload();
}

void Screens::showCombo(const Recordset& rows) {
    OneControl<ComboBox> form(m_ui);
    form.load();
    for (Recordset row = rows.detached(); !row.eof(); row.moveNext())
        form.shown.addItem(row.text(1) + " [" + row.text(0) + "]");
    line("combo", painted([&] { m_ui.show(form); }));
    auto& combo = *static_cast<QComboBox*>(bindingOf(form.shown).widget());
    line("combo, list dropped down", painted([&] { combo.showPopup(); }));
    pageDown("combo", *combo.view());
    combo.hidePopup();
    combo.lineEdit()->setFocus();
    combo.lineEdit()->selectAll();
    Times typed;
    for (const QChar letter : "ADEBISI B")
        typed.add(painted([&] { press(*combo.lineEdit(), 0, letter); }));
    line("combo, a letter typed", typed, QStringLiteral("%1 entries match").arg(combo.completer()->completionCount()));
    form.unload();
}

void Screens::showListAndTree(const Recordset& rows) {
    OneControl<ListBox> list(m_ui);
    list.load();
    for (Recordset row = rows.detached(); !row.eof(); row.moveNext())
        list.shown.addItem(row.text(1));
    line("list", painted([&] { m_ui.show(list); }));
    pageDown("list", *static_cast<QAbstractItemView*>(bindingOf(list.shown).widget()));
    list.unload();
    OneControl<Tree> tree(m_ui);
    tree.load();
    tree.shown.addNode({"root", "ROOT", {}, true});
    for (Recordset row = rows.detached(); !row.eof(); row.moveNext())
        tree.shown.addNode({"k" + row.text(0), row.text(1), "root", false});
    line("tree", painted([&] { m_ui.show(tree); }));
    pageDown("tree", *static_cast<QAbstractItemView*>(bindingOf(tree.shown).widget()));
    tree.unload();
}

void Screens::showLongLists() {
    Connection connection = m_program.openBilling();
    const Recordset rows(connection, longStatement());
    heading(QStringLiteral("lists of %1 rows, first page painted").arg(rows.count()));
    showGrid(rows);
    showEntryGrid(rows);
    showCombo(rows);
    showListAndTree(rows);
}

} // namespace
} // namespace orvane

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    QApplication application(argc, argv);
    orvane::look::apply(application, false);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser parser;
    parser.setApplicationDescription("Measures the windows on a large hospital.");
    parser.addHelpOption();
    parser.addOption({"home", "The home folder of the hospital.", "folder"});
    parser.process(application);
    if (!parser.isSet("home"))
        parser.showHelp(1);
    orvane::Screens screens(parser.value("home"));
    if (!screens.start())
        return 1;
    screens.showMemory("after the login");
    screens.openEach();
    screens.searchPatients();
    screens.readLongList();
    screens.showLongLists();
    screens.openTen();
    return 0;
}
