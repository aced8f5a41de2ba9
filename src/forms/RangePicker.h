#pragma once

#include "forms/Controls.h"
#include "forms/Layout.h"

namespace orvane {

/// The block by which most screens find whom they work on: two dates, a button that lists what lies between them, and
/// the list.
class RangePicker {
public:
    struct Words {
        QString range; ///< label of the first date, such as "Attendance between"
        QString buttonName;
        QString buttonCaption;
        QString list = "Patient"; ///< label of the list; "Patient": one that the finder fills too
    };

    template <typename FormClass, typename Class, typename ListResult, typename PickResult>
    RangePicker(FormClass& form, const Words& words, ListResult (Class::*list)(), ComboBox::Style style,
                PickResult (Class::*pick)())
        : DTPicker1(form, "DTPicker1"), DTPicker2(form, "DTPicker2"),
          get(form, words.buttonName, words.buttonCaption, list), cboVehNo(form, "cboVehNo", style, pick),
          m_range(words.range), m_list(words.list) {
        DTPicker1.setRangeEnd(&DTPicker2);
        if (m_list == "Patient")
            cboVehNo.setToolTip("F3 finds any patient");
    }

    DatePicker DTPicker1, DTPicker2;
    Button get;
    ComboBox cboVehNo;

    void setDates(QDate day); ///< both of them
    bool isComplete() const { return !DTPicker1.isEmpty() && !DTPicker2.isEmpty(); }
    /// The list below the dates; `beside` stands behind the button.
    Layout layout(std::initializer_list<Layout> beside = {}) const;

private:
    QString m_range, m_list;
};

} // namespace orvane
