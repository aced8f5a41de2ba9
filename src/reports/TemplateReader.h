#pragma once

#include "reports/Template.h"

namespace orvane {

/// Reads a template's lines; docs/reports.md describes them. `file`: its name. Raises DataError with one line
/// "file:line: what is wrong". Any text is safe to hand in.
ReportTemplate readTemplate(const QString& file, const QStringList& lines);

/// Reads the template from its file. Raises DataError too where the file is missing or no text.
ReportTemplate readTemplateFile(const QString& path);

} // namespace orvane
