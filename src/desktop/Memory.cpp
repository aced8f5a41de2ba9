#include "desktop/Memory.h"

#include <QSettings>
#include <QUrl>

namespace orvane {

QString Memory::keyOf(const QString& key) const {
    // A slash in a name would begin a group.
    const QString user = m_user ? m_user().toLower() : QString();
    return QStringLiteral("user-%1/%2").arg(QString::fromLatin1(QUrl::toPercentEncoding(user)), key);
}

QVariant Memory::value(const QString& key) const {
    return m_file.isEmpty() ? QVariant() : QSettings(m_file, QSettings::IniFormat).value(keyOf(key));
}

void Memory::keep(const QString& key, const QVariant& value) {
    if (m_file.isEmpty())
        return;
    QSettings settings(m_file, QSettings::IniFormat);
    if (value.isValid())
        settings.setValue(keyOf(key), value);
    else
        settings.remove(keyOf(key));
}

} // namespace orvane
