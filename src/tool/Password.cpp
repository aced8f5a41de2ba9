#include "tool/Password.h"

#include "data/DataError.h"

#include <QFile>
#include <cstdio>
#include <termios.h>
#include <unistd.h>

namespace orvane {

namespace {

/// While one lives, the terminal of the standard input does not show what is typed.
class HiddenTyping {
public:
    HiddenTyping() {
        if (tcgetattr(STDIN_FILENO, &m_before) != 0)
            return; // no terminal
        std::fputs("Password: ", stderr);
        termios hidden = m_before;
        hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        m_changed = tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden) == 0;
    }
    ~HiddenTyping() {
        if (!m_changed)
            return;
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &m_before);
        std::fputs("\n", stderr);
    }
    HiddenTyping(const HiddenTyping&) = delete;
    HiddenTyping& operator=(const HiddenTyping&) = delete;

private:
    termios m_before{};
    bool m_changed = false;
};

} // namespace

QString readPassword(const QString& file) {
    const bool fromInput = file == QLatin1String("-");
    QFile source(file);
    if (!(fromInput ? source.open(stdin, QIODevice::ReadOnly) : source.open(QIODevice::ReadOnly)))
        throw DataError(QStringLiteral("The file %1 cannot be read: %2").arg(file, source.errorString()));
    std::optional<HiddenTyping> hidden;
    if (fromInput)
        hidden.emplace();
    QByteArray line = source.readLine();
    while (line.endsWith('\n') || line.endsWith('\r'))
        line.chop(1);
    return QString::fromUtf8(line);
}

} // namespace orvane
