// A report in its viewer, worked with the keys alone: pages, sizes, search, files, and a fault half-way.
#include "data/DataError.h"
#include "desktop/ReportView.h"
#include "desktop/ViewTest.h"
#include "desktop/Windows.h"
#include "forms/ReportViewer.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QTimer>

namespace orvane {
namespace {

/// Pages of numbered rows, three a page; one of them may be where the engine fails.
class NumberedReport : public PageSource {
public:
    explicit NumberedReport(int pages, int broken = -1) : m_pages(pages), m_broken(broken) {}
    bool has(int number) override {
        for (; m_made <= number && m_made < m_pages; ++m_made)
            if (m_made == m_broken)
                throw DataError("The server is gone.");
        return number < m_made;
    }
    Page page(int number) override {
        ++asked;
        Page page;
        for (int row = 0; row < 3; ++row)
            page.texts << PageText{20, 20.0 + row * 100, 60, 0, QStringLiteral("row %1").arg(number * 3 + row)};
        return page;
    }
    int pagesMade() const override { return m_made; }
    bool isWhole() const override { return m_made == m_pages; }
    void layOut(int rows) override { has(m_made + rows / 30); }
    const Recordset& rows() const override { return m_rows; }
    QString title() const override { return "Numbers"; }
    QString format(const QString&) const override { return {}; }
    int asked = 0;

private:
    int m_pages, m_broken, m_made = 0;
    Recordset m_rows;
};

class ViewedForm : public Form {
public:
    explicit ViewedForm(Ui& ui) : Form(ui, "frmViewed", "Viewed") {}
    Layout layout() const override {
        using namespace orvane::layout;
        return column({cell(txtName), cell(crViewer1)});
    }
    TextBox txtName{*this, "txtName"};
    ReportViewer crViewer1{*this};
};

class ViewerTest : public ::testing::Test {
protected:
    void SetUp() override {
        window.resize(1000, 700);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
        pages().setFocus();
    }
    PageStack& pages() { return *window.findChild<PageStack*>(); }
    /// As its user presses it, wherever the focus is.
    void key(Qt::Key pressed, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), pressed, modifiers);
        QTest::qWait(1);
        settleEvents();
    }
    void control(Qt::Key pressed) { key(pressed, Qt::ControlModifier); }
    void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    QString said() {
        QStringList words;
        for (const QLabel* label : window.findChildren<QLabel*>())
            words << label->text();
        return words.join(' ').simplified();
    }
    void find(const QString& text) {
        control(Qt::Key_F);
        type(text);
        key(Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !said().contains("Searching"); }));
    }

    TestUi ui;
    ViewedForm form{ui};
    FormWindow window{form, ViewSetting{}};
};

TEST_F(ViewerTest, KeysGoThroughAReportWhosePagesAreMadeOnDemand) {
    key(Qt::Key_PageDown);
    control(Qt::Key_P);
    EXPECT_EQ(pages().count(), 0) << "nothing is shown, and no key does anything";
    const auto report = std::make_shared<NumberedReport>(400);
    form.crViewer1.show(report, "numbers");
    EXPECT_TRUE(QTest::qWaitFor([&] { return said() == "of 400"; })) << said().toStdString();
    EXPECT_LT(report->asked, 10);
    const struct {
        Qt::Key key;
        int page;
    } moves[] = {{Qt::Key_PageDown, 1}, {Qt::Key_PageDown, 2}, {Qt::Key_PageUp, 1},
                 {Qt::Key_End, 399},    {Qt::Key_PageUp, 398}, {Qt::Key_Home, 0}};
    for (const auto& move : moves) {
        control(move.key);
        EXPECT_EQ(pages().current(), move.page);
        EXPECT_TRUE(pages().wanted().isEmpty()) << "what is in sight is there";
    }
    for (const Qt::Key zoom : {Qt::Key_0, Qt::Key_1, Qt::Key_2, Qt::Key_Plus, Qt::Key_Minus}) {
        const double before = pages().percent();
        control(zoom);
        EXPECT_NE(pages().percent(), before) << zoom;
    }
    control(Qt::Key_0);
    key(Qt::Key_PageDown);
    EXPECT_EQ(pages().current(), 1) << "a whole page is turned";
    control(Qt::Key_G);
    type("42");
    key(Qt::Key_Return);
    EXPECT_EQ(pages().current(), 41);
    EXPECT_TRUE(pages().hasFocus());
    EXPECT_LT(report->asked, 60) << "pages out of sight are not made";
    form.txtName.setFocus();
    settleEvents();
    control(Qt::Key_PageDown);
    EXPECT_EQ(pages().current(), 42) << "from any field";
}

TEST_F(ViewerTest, WordsAreFoundBothWaysAndRoundTheEnd) {
    form.crViewer1.show(std::make_shared<NumberedReport>(50), "numbers");
    settleEvents();
    const QImage plain = pages().grab().toImage();
    find("ROW 14");
    EXPECT_EQ(pages().current(), 4);
    key(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return pages().current() == 46; })) << "row 140";
    key(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return pages().current() == 4; }));
    key(Qt::Key_Up);
    EXPECT_TRUE(QTest::qWaitFor([&] { return said().contains("From the end again"); }));
    EXPECT_EQ(pages().current(), 49) << "row 149";
    find("nobody");
    EXPECT_TRUE(said().contains("Not found"));
    find("row 1");
    key(Qt::Key_Escape);
    EXPECT_TRUE(pages().hasFocus());
    EXPECT_FALSE(form.isClosed());
    control(Qt::Key_Home);
    find("row 0");
    EXPECT_NE(pages().grab().toImage(), plain) << "the hit is marked";
}

TEST_F(ViewerTest, AFaultOnALaterPageIsSaidOnceAndEmptiesTheViewer) {
    form.crViewer1.show(std::make_shared<NumberedReport>(50, 20), "numbers");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !form.crViewer1.report(); }));
    QTest::qWait(20);
    EXPECT_BOXES(ui, {"The server is gone."});
    EXPECT_EQ(pages().count(), 0);
    EXPECT_FALSE(form.isClosed());
    form.crViewer1.show(std::make_shared<NumberedReport>(2), "numbers");
    EXPECT_TRUE(QTest::qWaitFor([&] { return said() == "of 2"; })) << "the next report is shown";
}

TEST_F(ViewerTest, TheReportGoesIntoAPdfAndItsRowsIntoAWorkbook) {
    form.crViewer1.show(std::make_shared<NumberedReport>(3), "numbers");
    settleEvents();
    control(Qt::Key_E);
    ASSERT_EQ(ui.exports.size(), 1);
    EXPECT_TRUE(QFileInfo(ui.exports.first()).fileName().startsWith("Numbers"));
    QTemporaryDir folder;
    QTimer::singleShot(0, &window, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        dialog->selectFile(folder.filePath("out.pdf"));
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QFile pdf(folder.filePath("out.pdf"));
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_EQ(pdf.readAll().count("/Type /Page\n"), 3);
    // The form prints its report too, not its looks.
    Windows windows(ui);
    windows.setPrintFolder(folder.path());
    windows.print(form);
    QFile printed(folder.filePath("frmViewed-1.pdf"));
    ASSERT_TRUE(printed.open(QIODevice::ReadOnly));
    EXPECT_EQ(printed.readAll().count("/Type /Page\n"), 3);
}

} // namespace
} // namespace orvane
