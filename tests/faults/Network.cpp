#include "Network.h"

#include <arpa/inet.h>
#include <cerrno>
#include <dlfcn.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace orvane {

namespace {

Network* network = nullptr;

int systemConnect(int socket, const sockaddr* address, socklen_t size) {
    static const auto call = reinterpret_cast<decltype(&::connect)>(dlsym(RTLD_NEXT, "connect"));
    return call(socket, address, size);
}

ssize_t systemSend(int socket, const void* data, size_t size, int flags) {
    static const auto call = reinterpret_cast<decltype(&::send)>(dlsym(RTLD_NEXT, "send"));
    return call(socket, data, size, flags);
}

/// Sends a commit and waits for its answer, which is thrown away.
void commitUnheard(int socket, const std::string& commit) {
    systemSend(socket, commit.data(), commit.size(), MSG_NOSIGNAL);
    pollfd answer = {socket, POLLIN, 0};
    poll(&answer, 1, 60000);
    char buffer[4096];
    recv(socket, buffer, sizeof buffer, 0);
}

} // namespace

Network::Network(int serverPort) : m_serverPort(serverPort) {
    network = this;
}

Network::~Network() {
    network = nullptr;
    endDelayedCommit(false);
}

void Network::cutAtStatement(int number) {
    m_statementsLeft = number;
    m_hasCut = false;
}

void Network::loseCommit(Loss loss, bool thenAway, int commitsBefore) {
    m_commitsBefore = commitsBefore;
    m_loss = loss;
    m_thenAway = thenAway;
    m_hasCut = false;
    m_hasLost = false;
}

void Network::endDelayedCommit(bool arrives) {
    const int socket = std::exchange(m_delayed, -1);
    if (socket < 0)
        return;
    if (arrives)
        commitUnheard(socket, m_delayedCommit);
    close(socket);
}

int Network::connect(int socket, const sockaddr* address, unsigned size) {
    m_talks.erase(socket); // of a connection that was closed
    auto server = *reinterpret_cast<const sockaddr_in*>(address);
    if (address->sa_family != AF_INET || server.sin_port != htons(port))
        return systemConnect(socket, address, size);
    if (m_away) {
        errno = ECONNREFUSED;
        return -1;
    }
    m_talks[socket] = {};
    server.sin_port = htons(static_cast<uint16_t>(m_serverPort));
    return systemConnect(socket, reinterpret_cast<const sockaddr*>(&server), sizeof server);
}

/// What is cut off seems to be sent: the program sees it by the answer that does not come.
ssize_t Network::send(int socket, const std::string& message, int flags) {
    const auto talk = m_talks.find(socket);
    if (talk != m_talks.end() && message.starts_with('Q')) {
        auto& [inTransaction, said] = talk->second;
        const std::string text = message.substr(5);
        inTransaction = inTransaction || text.starts_with("begin isolation");
        said += text;
        if (inTransaction && m_statementsLeft > 0 && --m_statementsLeft == 0) {
            m_hasCut = true;
            shutdown(socket, SHUT_RDWR);
            return static_cast<ssize_t>(message.size());
        }
        const bool commits = text.starts_with("commit");
        // It saves an entry: those before it take a number.
        if (commits && said.find("insert into") != std::string::npos) {
            m_statementsLeft = 0;
            if (m_loss != Loss::None && m_commitsBefore-- == 0) {
                lose(socket, message);
                return static_cast<ssize_t>(message.size());
            }
        }
        if (commits || text.starts_with("rollback"))
            talk->second = {};
    }
    return systemSend(socket, message.data(), message.size(), flags);
}

void Network::lose(int socket, const std::string& commit) {
    const Loss loss = std::exchange(m_loss, Loss::None);
    m_hasCut = true;
    m_hasLost = true;
    if (loss == Loss::Answer)
        commitUnheard(socket, commit);
    if (loss == Loss::Delay) {
        m_delayedCommit = commit;
        m_delayed = dup(socket);
        m_talks.erase(m_delayed); // of a connection that was closed
        int dead[2] = {};
        socketpair(AF_UNIX, SOCK_STREAM, 0, dead);
        dup2(dead[0], socket);
        close(dead[0]);
        close(dead[1]);
    }
    shutdown(socket, SHUT_RDWR);
    m_away = m_thenAway;
    if (m_away)
        for (const auto& [other, talk] : m_talks)
            shutdown(other, SHUT_RDWR);
}

} // namespace orvane

/// The driver's library finds these in front of the system's: this program exports its symbols.
extern "C" int connect(int socket, const sockaddr* address, socklen_t size) {
    using namespace orvane;
    return network ? network->connect(socket, address, size) : systemConnect(socket, address, size);
}

extern "C" ssize_t send(int socket, const void* data, size_t size, int flags) {
    using namespace orvane;
    return network ? network->send(socket, {static_cast<const char*>(data), size}, flags)
                   : systemSend(socket, data, size, flags);
}
