#pragma once

#include "desktop/Binding.h"
#include "desktop/PictureBox.h"
#include "desktop/RangeMemory.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>

namespace orvane {

class DateEdit;
class TickModel;
class TreeModel;

class LabelBinding : public Binding {
    Q_OBJECT

public:
    LabelBinding(FormView& view, Label& label, QWidget* parent, Place place, int characters);
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void refresh() override;
    void released() override { m_label = nullptr; }

private:
    Label* m_label;
    QLabel* m_text;
    int m_longestLine; ///< characters
};

class CheckBinding : public Binding {
    Q_OBJECT

public:
    CheckBinding(FormView& view, CheckBox& box, QWidget* parent);

protected:
    void refresh() override;
    void released() override { m_box = nullptr; }

private:
    CheckBox* m_box;
    QCheckBox* m_tick;
    int m_mnemonic;
};

class OptionBinding : public Binding {
    Q_OBJECT

public:
    OptionBinding(FormView& view, OptionButton& option, QWidget* parent);

protected:
    void refresh() override;
    void released() override { m_option = nullptr; }

private:
    OptionButton* m_option;
    QRadioButton* m_radio;
    int m_mnemonic;
};

class ButtonBinding : public Binding {
    Q_OBJECT

public:
    ButtonBinding(FormView& view, Button& button, QWidget* parent);

protected:
    void refresh() override;
    void released() override { m_button = nullptr; }

private:
    Button* m_button;
    QPushButton* m_push;
    int m_mnemonic;
};

/// A frame is the box that a group of the layout draws; what its flags do to its controls they look up themselves.
class FrameBinding : public Binding {
    Q_OBJECT

public:
    FrameBinding(FormView& view, Frame& frame, QGroupBox* box);
    QWidget* editor() const override { return nullptr; }
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void refresh() override;
    void released() override { m_frame = nullptr; }

private:
    Frame* m_frame;
    QGroupBox* m_box;
};

class TabBinding : public Binding {
    Q_OBJECT

public:
    TabBinding(FormView& view, TabStrip& strip, QTabWidget* tabs);

protected:
    void refresh() override;
    void released() override { m_strip = nullptr; }

private:
    TabStrip* m_strip;
    QTabWidget* m_tabs;
};

/// The list with a tick before each entry.
class ListBinding : public Binding {
    Q_OBJECT

public:
    ListBinding(FormView& view, ListBox& list, QWidget* parent);

protected:
    void refresh() override;
    void released() override { m_list = nullptr; }

private:
    ListBox* m_list;
    QListView* m_rows;
    TickModel* m_model;
    unsigned m_seen;
};

class DateBinding : public Binding {
    Q_OBJECT

public:
    DateBinding(FormView& view, DatePicker& picker, QWidget* parent);
    QWidget* editor() const override;
    bool settle() override;

protected:
    void refresh() override;
    void released() override;

private:
    DatePicker* m_picker;
    DateEdit* m_edit;
    std::optional<RangeMemory> m_range; ///< of a date that begins one
};

class TreeBinding : public Binding {
    Q_OBJECT

public:
    TreeBinding(FormView& view, Tree& tree, QWidget* parent);
    QTreeView* items() const { return m_items; }
    TreeModel* model() const { return m_model; }
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void refresh() override;
    void released() override { m_tree = nullptr; }

private:
    void expand();
    void picked();

    Tree* m_tree;
    QTreeView* m_items;
    TreeModel* m_model;
    unsigned m_seen;
    QString m_shownKey; ///< of the node that the view was last told to show
};

class PictureBinding : public Binding {
    Q_OBJECT

public:
    PictureBinding(FormView& view, Picture& picture, QWidget* parent);
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void refresh() override;
    void released() override { m_picture = nullptr; }

private:
    Picture* m_picture;
    PictureBox* m_box;
};

class ProgressBinding : public Binding {
    Q_OBJECT

public:
    ProgressBinding(FormView& view, ProgressBar& bar, QWidget* parent);

protected:
    void refresh() override;
    void released() override { m_bar = nullptr; }

private:
    ProgressBar* m_bar;
    QProgressBar* m_progress;
};

class StatusBinding : public Binding {
    Q_OBJECT

public:
    /// `row`: the widget in whose layout the panels stand.
    StatusBinding(FormView& view, StatusBar& bar, QWidget* row);
    QLabel* message() const { return m_message; } ///< stands where its owner puts it

protected:
    void refresh() override;
    void released() override { m_bar = nullptr; }

private:
    StatusBar* m_bar;
    QVector<QLabel*> m_panels;
    QLabel* m_message;
};

/// A timer rests while its user scrolls or sorts a list of the form: what it would do may read the list anew.
class TimerBinding : public Binding {
    Q_OBJECT

public:
    TimerBinding(FormView& view, Timer& timer);

protected:
    void refresh() override;
    void released() override;

private:
    Timer* m_timer;
    QTimer m_clock;
    int m_rest = 0; ///< ticks that are still left out
};

} // namespace orvane
