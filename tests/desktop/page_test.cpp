// Documents: the same on the screen, in a PDF and on paper.
#include "desktop/PagePainter.h"
#include "desktop/PagePreview.h"
#include "desktop/ReportPages.h"
#include "desktop/ViewTest.h"
#include "desktop/Windows.h"
#include "support/TestHome.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace orvane {
namespace {

class DocumentForm : public SampleForm {
public:
    using SampleForm::SampleForm;
    std::optional<Page> page() const override {
        Page page;
        page.widthMm = 148;
        page.heightMm = 210;
        page.texts << PageText{10, 10, 60, 0, txtName.text(), 10, PageAlign::Left, false, false};
        return page;
    }
};

/// Where a painted page is dark, in its own pixels.
QRect inked(const QImage& image) {
    QRect found;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 128)
                found |= QRect(x, y, 1, 1);
    return found;
}

QImage paintedAt(const Page& page, double dotsPerMm) {
    QImage image(int(page.widthMm * dotsPerMm), int(page.heightMm * dotsPerMm), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintPage(painter, page, QRectF(image.rect()));
    return image;
}

TEST(PageTest, TheSameTextTakesTheSameRoomOnEveryDevice) {
    Page page;
    const QString words = "SEVEN THOUSAND, FIVE HUNDRED NAIRA AND FIFTY KOBO ONLY, received with thanks";
    page.texts << PageText{20, 20, 60, 0, words, 11, PageAlign::Left, false, true};
    QVector<QRectF> taken;
    for (const double dots : {4.0, 12.0}) {
        const QRect ink = inked(paintedAt(page, dots));
        taken << QRectF(ink.x() / dots, ink.y() / dots, ink.width() / dots, ink.height() / dots);
    }
    for (const QRectF& ink : taken) {
        EXPECT_NEAR(ink.height(), taken.first().height(), 0.6) << "as many lines";
        EXPECT_NEAR(ink.width(), taken.first().width(), 0.6);
        EXPECT_GE(ink.left(), 19.5);
        EXPECT_LE(ink.right(), 80.5);
        EXPECT_GT(ink.height(), 8) << "it goes on in further lines";
    }

    // Too wide for its room it is smaller and never cut off.
    Page narrow, wide;
    narrow.texts << PageText{50, 50, 20, 0, "123,456,789,012.50", 12, PageAlign::Right, true, false};
    wide.texts << PageText{50, 50, 120, 0, "123,456,789,012.50", 12, PageAlign::Left, true, false};
    const QRect ink = inked(paintedAt(narrow, 8));
    EXPECT_GE(ink.left(), 49.5 * 8);
    EXPECT_LE(ink.right(), 70.5 * 8);
    EXPECT_GT(inked(paintedAt(wide, 8)).width(), ink.width());
}

TEST(PageTest, ThePdfHasThePageSizeAndItsWords) {
    TestUi ui;
    DocumentForm form(ui);
    form.txtName.setText("ADE");
    QTemporaryDir folder;
    const QString file = folder.filePath("page.pdf");
    ASSERT_TRUE(renderPdf(Document::of(*form.page()), file));
    QFile pdf(file);
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    const QString content = QString::fromLatin1(pdf.readAll());
    const QRegularExpressionMatch box = QRegularExpression("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]").match(content);
    ASSERT_TRUE(box.hasMatch());
    EXPECT_NEAR(box.captured(1).toDouble(), 148 / 25.4 * 72, 1.5);
    EXPECT_NEAR(box.captured(2).toDouble(), 210 / 25.4 * 72, 1.5);
    EXPECT_EQ(content.count("/Type /Page\n"), 1) << "one sheet";
    EXPECT_FALSE(renderPdf(Document::of(*form.page()), folder.filePath("nowhere/page.pdf")));
}

TEST(PageTest, AListPrintsEachRowOnceUnderItsHeads) {
    TestUi ui;
    SampleForm form(ui);
    TestHome home;
    DataSource data(home.folder());
    Connection billing = data.open(TestHome::billing());
    QString text = "select 1 as SNo, 1234.5 as Amount, 'x' as Secret";
    for (int i = 2; i <= 130; ++i)
        text += QStringLiteral(" union all select %1, 1234.5, 'x'").arg(i);
    Grid& grid = form.grdRows;
    grid.hide({"Secret"});
    grid.setFormat("Amount", "#,###.00");
    grid.load(billing.run(text));
    const ReportPages pages(grid, "Income for Today", "CASH 5.00");
    ASSERT_EQ(pages.count(), 3);
    QStringList numbers;
    for (int number = 0; number < pages.count(); ++number) {
        QStringList words;
        for (const PageText& item : pages.page(number).texts) {
            words << item.text;
            EXPECT_LE(item.x + item.width, pages.page(number).widthMm - 11.9);
            EXPECT_LE(item.y, pages.page(number).heightMm - 12);
            if (item.text.toInt() > 0)
                numbers << item.text;
        }
        for (const QString& expected : QStringList{"Income for Today", "SNo", "Amount",
                                                   QStringLiteral("Page %1 of 3").arg(number + 1), "1,234.50"})
            EXPECT_TRUE(words.contains(expected)) << qPrintable(expected);
        EXPECT_FALSE(words.contains("x")) << "a hidden column";
        EXPECT_EQ(words.contains("CASH 5.00"), number == 2) << "below the last row";
    }
    ASSERT_EQ(numbers.size(), 130);
    EXPECT_EQ(numbers.first(), "1");
    EXPECT_EQ(numbers.last(), "130");
    grid.clear();
    EXPECT_EQ(ReportPages(grid, "Empty").count(), 1);
}

TEST(PageTest, ADocumentShowsItsPageAndPrintsItAsItStands) {
    TestUi ui;
    DocumentForm form(ui, "frmDocument");
    QTemporaryDir folder;
    FormWindow window(form, ViewSetting{});
    window.resize(700, 900);
    window.show();
    auto* preview = window.findChild<PagePreview*>();
    ASSERT_TRUE(preview);
    EXPECT_TRUE(window.view()->widgetOf(form.cmdSave)) << "its buttons are there";
    EXPECT_FALSE(window.view()->widgetOf(form.txtName)) << "its page stands in for its fields";
    const QImage before = preview->grab().toImage();
    form.txtName.setText("ADEBAYO");
    QApplication::processEvents();
    EXPECT_NE(preview->grab().toImage(), before) << "the preview follows the form";

    Windows windows(ui);
    windows.setPrintFolder(folder.path());
    windows.print(form);
    windows.print(form);
    EXPECT_EQ(QDir(folder.path()).entryList({"*.pdf"}, QDir::Files, QDir::Name),
              (QStringList{"frmDocument-1.pdf", "frmDocument-2.pdf"}));
    windows.setPrintFolder(folder.filePath("nowhere"));
    windows.print(form);
    EXPECT_EQ(ui.takeBoxes().size(), 1) << "a print that fails says so";
}

} // namespace
} // namespace orvane
