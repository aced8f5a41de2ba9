#pragma once

#include "data/Assert.h"

#include <QtGlobal>

namespace orvane {

/// Random numbers that are the same on every machine and with every library for the same seed.
class DemoRandom {
public:
    explicit DemoRandom(quint64 seed) : m_state(seed) {}

    /// A whole number from 0 to limit - 1.
    int below(int limit) {
        ORVANE_ASSERT(limit > 0);
        return int(next() % quint64(limit));
    }
    int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }
    bool chance(int percent) { return below(100) < percent; }
    template <typename List>
    const auto& pick(const List& list) {
        return list.at(below(int(list.size())));
    }

private:
    quint64 next() { // splitmix64
        m_state += 0x9E3779B97F4A7C15u;
        quint64 z = m_state;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }

    quint64 m_state;
};

} // namespace orvane
