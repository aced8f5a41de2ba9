#pragma once

namespace orvane {

/// What this process makes from now on (databases, logs, locks, prints, exports) only its owner may read, and it leaves
/// no core file: its memory holds the password of the database.
void keepToOwner();

} // namespace orvane
