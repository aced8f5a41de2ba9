#pragma once

#include "support/TestHome.h"

namespace orvane {

/// From now on this process opens the databases of a home as a login that has the least rights, which it is given here.
/// On the embedded engine there is no login. The home outlives it.
class LeastRights {
public:
    explicit LeastRights(const TestHome& home);
    ~LeastRights();
    LeastRights(const LeastRights&) = delete;
    LeastRights& operator=(const LeastRights&) = delete;

private:
    const TestHome& m_home;
    QString m_login; ///< empty on the embedded engine
};

} // namespace orvane
