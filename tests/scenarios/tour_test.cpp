// The tour that ./run.sh shows, without its windows: it must go through, and leave books that agree.
#include "tool/Tool.h"

#include "play/Play.h"
#include "support/SourceTree.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <gtest/gtest.h>

namespace orvane {
namespace {

QString runTool(const QStringList& arguments, int expectedCode) {
    QString text;
    QTextStream out(&text);
    EXPECT_EQ(runDatabaseTool(arguments, out, out), expectedCode) << text.toStdString();
    out.flush();
    return text;
}

TEST(Tour, GoesThroughAndTheBooksAgree) {
    QTemporaryDir folder;
    const QString home = folder.filePath("home");
    // The hospital of run.sh.
    runTool({"demo", "--home", home, "--patients", "60", "--days", "5", "--seed", "1", "--until", "2026-03-13"}, 0);
    QFile script(sourceFile("demo/tour.play"));
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    QBuffer output;
    output.open(QIODevice::WriteOnly);
    EXPECT_EQ(runPlay(home, script, output), 0) << output.data().toStdString();
    runTool({"check", "--home", home}, 0);
}

} // namespace
} // namespace orvane
