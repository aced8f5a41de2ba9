#pragma once

#include "forms/Ui.h"

class QWidget;

/// Message boxes in one manner: plain texts, the program's name where no title is given.
namespace orvane::boxes {

void message(QWidget* parent, const QString& text, Icon icon, const QString& title);
/// Yes or No; Esc and the close button are No, and so is Enter where Yes destroys something. `detail` stands below the
/// text.
bool question(QWidget* parent, const QString& text, const QString& title, Consent consent = Consent::Keeps,
              const QString& detail = {});
/// Whether what was entered on the screen of this caption may be lost; "No" unless its user says so.
bool confirmLoss(QWidget* parent, const QString& caption);
std::optional<QString> input(QWidget* parent, const QString& prompt, const QString& title, const QString& initial);

} // namespace orvane::boxes
