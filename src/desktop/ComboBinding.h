#pragma once

#include "desktop/Binding.h"

class QComboBox;

namespace orvane {

class ComboModel;

/// A drop-down that is searched as one types: entries that contain what is typed. With free text what is typed is the
/// value; of a list only an entry is: whoever leaves it takes the entry marked among the suggestions, or the first that
/// fits; what fits none falls back to the entry that was chosen before.
class ComboBinding : public Binding {
    Q_OBJECT

public:
    ComboBinding(FormView& view, ComboBox& box, QWidget* parent, int characters);
    QWidget* editor() const override;
    bool settle() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void refresh() override;
    void released() override { m_box = nullptr; }

private:
    void typed();
    void picked(int index);
    void finishSearch();
    int found() const;
    int foundBelow(const QString& text) const;
    void reloadEntries();
    void widenLists();
    bool pickFromPopup(const QKeyEvent& key);
    void keepInSight(QWidget& popup) const;

    ComboBox* m_box;
    QComboBox* m_combo;
    QPointer<QWidget> m_popup; ///< the suggestions; a plain widget, since events still come while it is taken down
    ComboModel* m_model;
    unsigned m_seen;
    bool m_searching = false;  ///< a list only is being searched: the text typed is no value yet
    bool m_lookedAway = false; ///< the focus left for another window: nothing typed is finished by that
    int m_measured = 0;        ///< entries whose lengths the lists know
    qsizetype m_longest = 0;   ///< characters
    int m_widest = 0;          ///< pixels
};

} // namespace orvane
