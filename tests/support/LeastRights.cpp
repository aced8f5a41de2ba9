#include "support/LeastRights.h"

#include "data/engine/Rights.h"

#include <QCoreApplication>

namespace orvane {

namespace {

constexpr const char* loginVariable = "ORVANE_DB_USER";

} // namespace

LeastRights::LeastRights(const TestHome& home) : m_home(home) {
    if (home.engine() == Engine::Sqlite)
        return;
    m_login = QStringLiteral("least rights %1").arg(QCoreApplication::applicationPid());
    home.onServer("dunmarch", {QStringLiteral("create role \"%1\" login").arg(m_login)});
    home.onServer("dunmarch", rightsStatements(home.engine(), "billing", m_login));
    home.onServer("accounting", rightsStatements(home.engine(), "accounting", m_login));
    qputenv(loginVariable, m_login.toUtf8());
}

LeastRights::~LeastRights() {
    if (m_login.isEmpty())
        return;
    qunsetenv(loginVariable);
    const QString drop = QStringLiteral("drop owned by \"%1\"").arg(m_login);
    m_home.onServer("accounting", {drop});
    m_home.onServer("dunmarch", {drop, QStringLiteral("drop role \"%1\"").arg(m_login)});
}

} // namespace orvane
