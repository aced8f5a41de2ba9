#pragma once

#include <QString>
#include <QVariant>
#include <functional>

namespace orvane {

/// What the desktop remembers for each user of this workstation, under keys such as "frmFlash/place": places of
/// windows, columns, folders. It lies in a file of its own; without one (a script's run) nothing is remembered.
class Memory {
public:
    void setFile(const QString& file) { m_file = file; }
    /// Who works now; nobody has logged in: the empty name.
    void setUser(std::function<QString()> user) { m_user = std::move(user); }
    /// The invalid value when nothing is remembered under the key.
    QVariant value(const QString& key) const;
    void keep(const QString& key, const QVariant& value); ///< the invalid value forgets it

private:
    QString keyOf(const QString& key) const;

    QString m_file;
    std::function<QString()> m_user;
};

} // namespace orvane
