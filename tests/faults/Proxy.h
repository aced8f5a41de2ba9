#pragma once

#include <atomic>
#include <list>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace orvane {

/// A network between the program and its PostgreSQL server that breaks at a chosen statement. It reads the program's
/// messages, so that it cuts at statements and not at moments. Runs in a thread of its own.
class Proxy {
public:
    /// How a commit is lost.
    enum class Loss {
        None,
        Request, ///< the server never gets it, and sees the connection close
        Answer,  ///< the server commits, and its answer is thrown away
        Delay    ///< the program's side closes; the server waits, until endDelayedCommit
    };

    explicit Proxy(int serverPort);
    ~Proxy();
    Proxy(const Proxy&) = delete;
    Proxy& operator=(const Proxy&) = delete;

    int port() const { return m_port; }
    /// Cuts the connection of a transaction instead of passing on its n-th statement, counted from 1 over all
    /// transactions from now on; "begin" is one, the commit another. Once, and not behind the first commit of rows.
    void cutAtStatement(int number);
    /// Loses the next commit of rows. With `thenAway` the server cannot be reached from that moment on, until comeBack.
    void loseCommit(Loss loss, bool thenAway);
    void comeBack();
    void endDelayedCommit(bool arrives);
    bool hasCut() const { return m_hasCut; }   ///< since the last order
    bool hasLost() const { return m_hasLost; } ///< a commit, since the last order

private:
    struct Pair;

    void run();
    void accept();
    bool passOn(Pair& pair); ///< what the program has sent; false: cut
    bool passMessage(Pair& pair, const std::string& message);
    bool passBack(Pair& pair); ///< what the server has sent; false: cut
    void lose(Pair& pair, const std::string& commit);

    int m_listener = -1;
    int m_port = 0;
    int m_serverPort;
    std::mutex m_mutex; ///< guards all below that is not atomic; the pairs are the thread's own
    std::list<std::unique_ptr<Pair>> m_pairs;
    std::unique_ptr<Pair> m_delayed;
    std::string m_delayedCommit;
    int m_statementsLeft = 0; ///< 0: none is cut
    Loss m_loss = Loss::None;
    bool m_thenAway = false;
    bool m_away = false;
    std::atomic<bool> m_stop = false;
    std::atomic<bool> m_hasCut = false;
    std::atomic<bool> m_hasLost = false;
    std::thread m_thread;
};

} // namespace orvane
