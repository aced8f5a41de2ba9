#pragma once

namespace orvane {

/// A step counts while it runs.
class OpenStep {
public:
    explicit OpenStep(int* count) : m_count(count) { add(1); }
    ~OpenStep() { add(-1); }
    OpenStep(const OpenStep&) = delete;
    OpenStep& operator=(const OpenStep&) = delete;

private:
    void add(int n) {
        if (m_count)
            *m_count += n;
    }
    int* m_count;
};

} // namespace orvane
