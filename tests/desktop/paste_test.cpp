// Whatever is pasted into a real field: the form holds what the field shows, and a field of one line holds one line.
#include "ViewTest.h"
#include "support/HostileTexts.h"

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace orvane {
namespace {

class Paste : public ViewTest {
protected:
    void paste(const Control& control, const QString& text) {
        QApplication::clipboard()->setText(text);
        editor(control)->setFocus();
        QTest::keyClick(editor(control), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(editor(control), Qt::Key_V, Qt::ControlModifier);
        settleEvents();
    }
};

TEST_F(Paste, TheFormHoldsWhatTheFieldShows) {
    form.txtNote.multiline();
    show();
    for (const QString& text : hostileTexts()) {
        SCOPED_TRACE(text.left(20).toStdString());
        QString oneLine = text;
        oneLine.replace('\r', ' ').replace('\n', ' ');
        for (const Control* control : {static_cast<Control*>(&form.txtName), static_cast<Control*>(&form.cboTown)}) {
            paste(*control, text);
            EXPECT_EQ(control->valueText(), oneLine) << control->name().toStdString();
            EXPECT_EQ(qobject_cast<QLineEdit*>(editor(*control))->text(), control->valueText());
        }
        paste(form.txtNote, text);
        EXPECT_EQ(form.txtNote.text(), qobject_cast<QPlainTextEdit*>(editor(form.txtNote))->toPlainText());
        EXPECT_EQ(form.txtNote.text(), QString(text).replace('\r', '\n'));
    }
}

} // namespace
} // namespace orvane
