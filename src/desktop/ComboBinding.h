#pragma once

#include "desktop/Binding.h"

class QComboBox;

namespace orvane {

class ComboModel;

/// A drop-down that is searched as one types: entries that contain what is typed. With free text what is typed is the
/// value; of a list only an entry is, and anything else falls back to the entry that was chosen before.
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
    void reloadEntries();

    ComboBox* m_box;
    QComboBox* m_combo;
    ComboModel* m_model;
    unsigned m_seen;
    bool m_searching = false; ///< a list only is being searched: the text typed is no value yet
};

} // namespace orvane
