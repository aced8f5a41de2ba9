// What the program shows can be read, on light and dark desktops and with large letters.
#include "desktop/Look.h"
#include "desktop/ViewTest.h"

#include <QGroupBox>
#include <QHeaderView>
#include <cmath>

namespace orvane {
namespace {

double luminance(QRgb color) {
    const auto linear = [](int channel) {
        const double share = channel / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

/// Of the ink that stands out most from the colour behind it, as it is painted.
double contrastIn(const QImage& image) {
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    QRgb behind = 0;
    for (auto color = counts.cbegin(); color != counts.cend(); ++color)
        behind = *color > counts.value(behind) ? color.key() : behind;
    double best = 1;
    for (auto color = counts.cbegin(); color != counts.cend(); ++color) {
        const double one = luminance(color.key()), other = luminance(behind);
        best = std::max(best, (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05));
    }
    return best;
}

/// All marks of the program on one form: a figure, a card, a group, a text that cannot be read, an alert.
class MarkedForm : public SampleForm {
public:
    explicit MarkedForm(Ui& ui) : SampleForm(ui) {
        lblTitle.setColor(0xFFB300);
        for (Label* label : {&lblPayable, &lblFact, &lblCard})
            label->setText("1,234.50");
        chkOff.setEnabled(false);
        cmdOff.setEnabled(false);
        txtName.setText("ADE");
        dtDate.setDate(QDate(2026, 3, 14));
    }
    Layout layout() const override {
        using namespace orvane::layout;
        return column({cell(lblTitle), field("Name", txtName), field("Amount", txtAmt0), field("Date", dtDate),
                       field("Locked", txtLocked), facts({{"Bill No", &lblFact}}),
                       card({field("Paid:", lblCard), large("Payable:", lblPayable)}),
                       group("Group", {row({cell(radOne), cell(radTwo), cell(chkCard), cell(chkOff)})}), cell(grdEntry),
                       buttons({&cmdClose, &cmdOff}, {&cmdSave})});
    }

    Label lblPayable{*this, "lblPayable"}, lblFact{*this, "lblFact"}, lblCard{*this, "lblCard"};
    CheckBox chkOff{*this, "chkOff", "Off"};
    Button cmdOff{*this, "cmdOff", "Unusable"};
};

class LookTest : public ::testing::TestWithParam<bool> {
protected:
    void TearDown() override {
        QApplication::setFont(usual);
        look::apply(*qApp, false);
    }
    void show() {
        window.resize(900, 700);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        QLineEdit* amount = qobject_cast<QLineEdit*>(window.view()->bindingOf(form.txtAmt0)->editor());
        QTest::keyClicks(amount, "abc");
        window.view()->bindingOf(form.cmdClose)->editor()->setFocus();
        settleEvents();
        ASSERT_TRUE(amount->property("invalid").toBool());
    }

    /// Gives how many words were looked at.
    int expectReadable() {
        const QImage whole = window.grab().toImage();
        int seen = 0;
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            const QString words = widget->property("text").toString();
            const bool group = qobject_cast<QGroupBox*>(widget);
            if (!widget->isVisible() || (words.isEmpty() && !group && !qobject_cast<QHeaderView*>(widget)))
                continue;
            const QRect part = group ? QRect(10, 0, 60, widget->fontMetrics().height()) : widget->rect();
            ++seen;
            // Inside the frame, whose colour is no ink.
            const QImage shown =
                whole.copy(QRect(widget->mapTo(&window, part.topLeft()), part.size()).adjusted(3, 3, -3, -3));
            EXPECT_GE(contrastIn(shown), widget->isEnabled() ? 4.5 : 2.5)
                << widget->metaObject()->className() << ' ' << qPrintable(words);
        }
        return seen;
    }

    const QFont usual = QApplication::font();
    TestUi ui;
    MarkedForm form{ui};
    FormWindow window{form, ViewSetting{}};
};
INSTANTIATE_TEST_SUITE_P(On, LookTest, ::testing::Values(false, true), [](const auto& desktop) {
    return desktop.param ? std::string("Dark") : std::string("Light");
});

TEST_P(LookTest, EveryMarkCanBeReadOnItsGround) {
    look::apply(*qApp, GetParam());
    show();
    int seen = 0;
    for (const bool usable : {true, false}) {
        form.cmdSave.setEnabled(usable);
        settleEvents();
        seen += expectReadable();
    }
    EXPECT_GE(seen, 36);
}

TEST_P(LookTest, LettersAreThoseOfTheDesktopAndHaveRoom) {
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 2);
    QApplication::setFont(large);
    look::apply(*qApp, GetParam());
    MarkedForm other(ui);
    FormWindow wide(other, ViewSetting{});
    wide.resize(wide.sizeHint().expandedTo({900, 700}));
    wide.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&wide));
    for (const QWidget* widget : wide.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->property("text").toString().isEmpty())
            continue;
        EXPECT_GE(widget->font().pointSizeF(), large.pointSizeF() - 0.01) << widget->metaObject()->className();
        EXPECT_GE(widget->height(), widget->fontMetrics().height()) << widget->metaObject()->className();
    }
}

} // namespace
} // namespace orvane
