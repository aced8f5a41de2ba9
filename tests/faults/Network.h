#pragma once

#include <map>
#include <string>

struct sockaddr;

namespace orvane {

/// The network between the program and its PostgreSQL server, which breaks at a chosen statement: the driver's calls of
/// connect() and send() come here first. It reads the program's messages, so that it cuts at statements and not at
/// moments. One at a time, on the thread of the program.
class Network {
public:
    /// How a commit is lost.
    enum class Loss {
        None,
        Request, ///< the server never gets it, and sees the connection close
        Answer,  ///< the server commits, and its answer is thrown away
        Delay    ///< the program's side closes; the server waits, until endDelayedCommit
    };

    explicit Network(int serverPort);
    ~Network();
    Network(const Network&) = delete;
    Network& operator=(const Network&) = delete;

    /// A port that nobody listens on: who connects to it reaches the server through this network.
    static constexpr int port = 1;
    /// Cuts the connection of a transaction instead of passing on its n-th statement, counted from 1 over all
    /// transactions from now on; "begin" is one, the commit another. Once, and not behind the first commit of rows.
    void cutAtStatement(int number);
    /// Loses a commit of rows, the next one or one behind it. With `thenAway` the server cannot be reached from that
    /// moment on, until comeBack.
    void loseCommit(Loss loss, bool thenAway, int commitsBefore = 0);
    void comeBack() { m_away = false; }
    void endDelayedCommit(bool arrives);
    bool hasCut() const { return m_hasCut; }   ///< since the last order
    bool hasLost() const { return m_hasLost; } ///< a commit, since the last order

    /// As the system's calls of these names, for any socket.
    int connect(int socket, const sockaddr* address, unsigned size);
    ssize_t send(int socket, const std::string& message, int flags);

private:
    /// What a connection has said in its transaction.
    struct Talk {
        bool inTransaction = false;
        std::string said;
    };
    void lose(int socket, const std::string& commit);

    int m_serverPort;
    std::map<int, Talk> m_talks; ///< by socket
    int m_delayed = -1;          ///< the server's end of a connection that the program has lost
    std::string m_delayedCommit;
    int m_statementsLeft = 0; ///< 0: none is cut
    Loss m_loss = Loss::None;
    int m_commitsBefore = 0;
    bool m_thenAway = false;
    bool m_away = false;
    bool m_hasCut = false;
    bool m_hasLost = false;
};

} // namespace orvane
