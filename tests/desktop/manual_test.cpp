// The manual that F1 opens: no screen without its section, no picture or page that is not there.
#include "desktop/FormWindow.h"
#include "desktop/Manual.h"
#include "support/Workstation.h"

#include <QTest>
#include <QTextBlock>

namespace orvane {
namespace {

class ManualTest : public WorkstationTest {};
INSTANTIATE_TEST_SUITE_P(OnSqlite, ManualTest, ::testing::Values(Engine::Sqlite));

TEST_P(ManualTest, EveryScreenHasItsSection) {
    ManualBrowser browser(nullptr);
    for (const QString& name : ws.program.formNames()) {
        const ManualPlace place = manualPlace(name);
        EXPECT_FALSE(place.heading.isEmpty()) << name.toStdString() << " is not in docs/manual/screens.txt";
        EXPECT_TRUE(browser.show(place)) << place.page.toStdString() << ": " << place.heading.toStdString();
    }
}

TEST_P(ManualTest, WhatThePagesShowAndLeadToIsThere) {
    ManualBrowser browser(nullptr);
    QSet<QString> pages = {"README.md"};
    QStringList wanted = pages.values();
    int pictures = 0;
    while (!wanted.isEmpty()) {
        const QString page = wanted.takeFirst();
        ASSERT_TRUE(browser.show({page, {}}));
        ASSERT_FALSE(browser.document()->isEmpty()) << page.toStdString();
        for (QTextBlock block = browser.document()->begin(); block.isValid(); block = block.next()) {
            for (auto at = block.begin(); !at.atEnd(); ++at) {
                const QTextCharFormat format = at.fragment().charFormat();
                const QString picture = format.toImageFormat().name(), link = format.anchorHref().section(u'#', 0, 0);
                if (!picture.isEmpty()) {
                    ++pictures;
                    EXPECT_FALSE(browser.loadResource(QTextDocument::ImageResource, picture).value<QImage>().isNull())
                        << page.toStdString() << ": " << picture.toStdString();
                }
                if (link.endsWith(".md") && !pages.contains(link)) {
                    pages.insert(link);
                    wanted << link;
                }
            }
        }
    }
    EXPECT_GE(pages.size(), 10);
    EXPECT_GE(pictures, 15);
}

TEST_P(ManualTest, F1OpensItAtTheScreenInHand) {
    Form& form = ws.program.form("frmUsers");
    form.load();
    FormWindow window(form, ViewSetting{{}, true});
    window.show();
    QTest::keyClick(window.view(), Qt::Key_F1);
    const auto* manual = window.findChild<ManualWindow*>();
    ASSERT_TRUE(manual && manual->isVisible());
    EXPECT_EQ(manual->browser()->textCursor().block().text(), manualPlace("frmUsers").heading);
    window.release();
    form.abandon();
}

} // namespace
} // namespace orvane
