#include "Proxy.h"

#include <algorithm>
#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

namespace orvane {

namespace {

/// An open socket, closed with the object.
class Socket {
public:
    explicit Socket(int number) : m_number(number) {}
    ~Socket() { close(m_number); }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    int number() const { return m_number; }
    bool send(const std::string& text) const {
        size_t sent = 0;
        while (sent < text.size()) {
            const ssize_t size = ::send(m_number, text.data() + sent, text.size() - sent, MSG_NOSIGNAL);
            if (size <= 0)
                return false;
            sent += static_cast<size_t>(size);
        }
        return true;
    }
    /// What has come; empty: the other side has closed.
    std::string receive() const {
        char buffer[65536];
        const ssize_t size = ::recv(m_number, buffer, sizeof buffer, 0);
        return size > 0 ? std::string(buffer, static_cast<size_t>(size)) : std::string();
    }

private:
    int m_number;
};

sockaddr_in local(int port) {
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<uint16_t>(port));
    return address;
}

int connectTo(int port) {
    const int number = socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = local(port);
    if (connect(number, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
        const int on = 1;
        setsockopt(number, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        return number;
    }
    close(number);
    return -1;
}

uint32_t lengthAt(const std::string& text, size_t at) {
    uint32_t length = 0;
    for (size_t i = 0; i < 4; ++i)
        length = length << 8 | static_cast<unsigned char>(text[at + i]);
    return length;
}

} // namespace

struct Proxy::Pair {
    Pair(int programNumber, int serverNumber) : program(programNumber), server(serverNumber) {}

    Socket program, server;
    std::string coming;         ///< of a message of the program that is not whole yet
    bool started = false;       ///< the messages from now on begin with their kind
    bool inTransaction = false; ///< and what it has said so far:
    std::string said;
    /// It saves an entry: those before it take a number.
    bool adds() const { return said.find("insert into") != std::string::npos; }
};

Proxy::Proxy(int serverPort) : m_serverPort(serverPort) {
    m_listener = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = local(0);
    socklen_t size = sizeof address;
    if (bind(m_listener, reinterpret_cast<sockaddr*>(&address), size) != 0 || listen(m_listener, 32) != 0 ||
        getsockname(m_listener, reinterpret_cast<sockaddr*>(&address), &size) != 0)
        throw std::runtime_error("the proxy cannot listen");
    m_port = ntohs(address.sin_port);
    m_thread = std::thread([this] { run(); });
}

Proxy::~Proxy() {
    m_stop = true;
    m_thread.join();
    close(m_listener);
}

void Proxy::cutAtStatement(int number) {
    const std::lock_guard lock(m_mutex);
    m_statementsLeft = number;
    m_hasCut = false;
}

void Proxy::loseCommit(Loss loss, bool thenAway) {
    const std::lock_guard lock(m_mutex);
    m_loss = loss;
    m_thenAway = thenAway;
    m_hasCut = false;
    m_hasLost = false;
}

void Proxy::comeBack() {
    const std::lock_guard lock(m_mutex);
    m_away = false;
}

void Proxy::endDelayedCommit(bool arrives) {
    const std::lock_guard lock(m_mutex);
    if (arrives && m_delayed && m_delayed->server.send(m_delayedCommit))
        m_delayed->server.receive();
    m_delayed.reset();
}

void Proxy::run() {
    while (!m_stop) {
        std::vector<pollfd> waiting = {{m_listener, POLLIN, 0}};
        for (const auto& pair : m_pairs)
            for (const Socket* socket : {&pair->program, &pair->server})
                waiting.push_back({socket->number(), POLLIN, 0});
        if (poll(waiting.data(), waiting.size(), 5) <= 0)
            continue;
        const auto ready = [&](const Socket& socket) {
            return std::any_of(waiting.begin(), waiting.end(),
                               [&](const pollfd& one) { return one.fd == socket.number() && one.revents != 0; });
        };
        const std::lock_guard lock(m_mutex);
        std::erase_if(m_pairs, [&](const std::unique_ptr<Pair>& pair) {
            return (ready(pair->server) && !passBack(*pair)) || (ready(pair->program) && !passOn(*pair));
        });
        if (m_away)
            m_pairs.clear();
        if (waiting[0].revents != 0)
            accept();
    }
}

void Proxy::accept() {
    const int program = ::accept(m_listener, nullptr, nullptr);
    const int server = m_away ? -1 : connectTo(m_serverPort);
    if (server < 0)
        close(program);
    else
        m_pairs.push_back(std::make_unique<Pair>(program, server));
}

bool Proxy::passBack(Pair& pair) {
    const std::string answer = pair.server.receive();
    return !answer.empty() && pair.program.send(answer);
}

bool Proxy::passOn(Pair& pair) {
    const std::string sent = pair.program.receive();
    if (sent.empty())
        return false;
    pair.coming += sent;
    for (;;) {
        const size_t head = pair.started ? 1 : 0;
        if (pair.coming.size() < head + 4)
            return true;
        const size_t size = head + lengthAt(pair.coming, head);
        if (pair.coming.size() < size)
            return true;
        const std::string message = pair.coming.substr(0, size);
        pair.coming.erase(0, size);
        if (!passMessage(pair, message))
            return false;
    }
}

/// One whole message. A question for encryption comes before the start and has 8 bytes only.
bool Proxy::passMessage(Pair& pair, const std::string& message) {
    if (!pair.started)
        pair.started = message.size() > 8;
    else if (message[0] == 'Q') {
        const std::string text = message.substr(5);
        pair.inTransaction = pair.inTransaction || text.starts_with("begin isolation");
        pair.said += text;
        if (pair.inTransaction && m_statementsLeft > 0 && --m_statementsLeft == 0) {
            m_hasCut = true;
            return false;
        }
        const bool commits = text.starts_with("commit");
        if (commits && pair.adds()) {
            if (m_loss != Loss::None)
                return lose(pair, message), false;
            m_statementsLeft = 0;
        }
        if (commits || text.starts_with("rollback")) {
            pair.inTransaction = false;
            pair.said.clear();
        }
    }
    return pair.server.send(message);
}

void Proxy::lose(Pair& pair, const std::string& commit) {
    const Loss loss = std::exchange(m_loss, Loss::None);
    m_away = m_away || (m_thenAway && loss != Loss::Answer);
    m_hasCut = true;
    m_hasLost = true;
    m_statementsLeft = 0;
    if (loss == Loss::Answer) {
        // Read here, so that the server has surely committed before the program sees its connection close.
        if (pair.server.send(commit))
            pair.server.receive();
        m_away = m_away || m_thenAway;
    } else if (loss == Loss::Delay) {
        m_delayedCommit = commit;
        m_delayed = std::make_unique<Pair>(-1, dup(pair.server.number()));
    }
}

} // namespace orvane
