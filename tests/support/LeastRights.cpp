#include "support/LeastRights.h"

#include "data/Rights.h"

#include <QCoreApplication>

namespace orvane {

namespace {

constexpr const char* loginVariable = "ORVANE_DB_USER";

} // namespace

LeastRights::LeastRights(const TestHome& home) : m_home(home) {
    if (home.engine() == Engine::Sqlite)
        return;
    m_login = QStringLiteral("least rights %1").arg(QCoreApplication::applicationPid());
    home.onServer(QStringLiteral("dunmarch"), {QStringLiteral("create role \"%1\" login").arg(m_login)});
    home.onServer(QStringLiteral("dunmarch"), rightsStatements(home.engine(), QStringLiteral("billing"), m_login));
    home.onServer(QStringLiteral("accounting"), rightsStatements(home.engine(), QStringLiteral("accounting"), m_login));
    qputenv(loginVariable, m_login.toUtf8());
}

LeastRights::~LeastRights() {
    if (m_login.isEmpty())
        return;
    qunsetenv(loginVariable);
    const QString drop = QStringLiteral("drop owned by \"%1\"").arg(m_login);
    m_home.onServer(QStringLiteral("accounting"), {drop});
    m_home.onServer(QStringLiteral("dunmarch"), {drop, QStringLiteral("drop role \"%1\"").arg(m_login)});
}

} // namespace orvane
