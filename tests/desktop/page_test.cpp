// Documents: the same on the screen, in a PDF and on paper.
#include "desktop/PagePainter.h"
#include "desktop/PageStack.h"
#include "desktop/ViewTest.h"
#include "desktop/Windows.h"

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

TEST(PageTest, ADocumentShowsItsPageAndPrintsItAsItStands) {
    TestUi ui;
    DocumentForm form(ui, "frmDocument");
    QTemporaryDir folder;
    FormWindow window(form, ViewSetting{});
    window.resize(700, 900);
    window.show();
    auto* preview = window.findChild<PageStack*>();
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
