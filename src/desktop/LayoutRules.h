#pragma once

#include "forms/Layout.h"

namespace orvane {

// What a layout in words means for the room that its pieces take and for the labels that stand in line.

bool isMultiline(const Control& control);
bool isList(const Control& control);
bool isOnlyRead(const Control& control); ///< a locked text, which needs no key that others lack
bool growsDown(const Layout& item);      ///< takes height that is left over
bool growsAcross(const Layout& item);    ///< takes width that is left over
int shareAcross(const Layout& item);     ///< of a row's width: lists take most of it
bool isLabelled(const Layout& item);
/// A field, or a row that begins with one: its label stands in line with those above and below.
bool isFieldLine(const Layout& item);
bool isAllFields(const Layout& item);

} // namespace orvane
