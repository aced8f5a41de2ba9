#include "play/EventLog.h"

#include "data/words/ShownText.h"

#include <QFileDevice>

namespace orvane {

namespace {

QString iconName(Icon icon) {
    switch (icon) {
    case Icon::None:
        return "none";
    case Icon::Information:
        return "information";
    case Icon::Exclamation:
        return "exclamation";
    case Icon::Critical:
        return "critical";
    case Icon::Question:
        return "question";
    }
    return {};
}

} // namespace

void EventLog::write(const QString& line) {
    if (m_failed)
        return;
    m_output.write(line.toUtf8() + '\n');
    // Whoever feeds the script step by step waits for what a step has written.
    if (auto* file = qobject_cast<QFileDevice*>(&m_output))
        file->flush();
}

void EventLog::box(Icon icon, const QString& title, const QString& text) {
    write("box " + iconName(icon) + QLatin1Char(' ') + quoted(title) + QLatin1Char(' ') + quoted(text));
    m_boxes.push_back(text);
}

std::optional<QString> EventLog::takeBox() {
    if (m_boxes.empty())
        return std::nullopt;
    const QString text = m_boxes.front();
    m_boxes.pop_front();
    return text;
}

void EventLog::fail(const QString& reason) {
    write(QStringLiteral("FAIL line %1: ").arg(m_line) + oneLine(reason));
    m_failed = true;
}

QString EventLog::quoted(const QString& text) {
    QString inside = text;
    inside.replace(QLatin1Char('\\'), "\\\\");
    inside.replace(QLatin1Char('"'), "\\\"");
    return QLatin1Char('"') + onOneLine(inside) + QLatin1Char('"');
}

QString EventLog::oneLine(const QString& text) {
    return onOneLine(text).replace(QLatin1Char('\t'), "\\t");
}

} // namespace orvane
