#include "session/Main.h"
#include "desktop/DesktopUi.h"
#include "desktop/Look.h"
#include "desktop/WindowDriver.h"
#include "play/Play.h"
#include "screens/Screens.h"
#include "session/Secrets.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <cstdio>

namespace {

using namespace orvane;

struct Options {
    QString home;
    std::optional<QString> user;
    bool login = false;
    QString play;
    bool window = false;
    QSize size; ///< of the main window in a script run; empty: its words cannot be read
    QString out;
};

/// "1366x768"
QSize readSize(const QString& text) {
    const QStringList sides = text.split(QLatin1Char('x'));
    return {sides.value(0).toInt(), sides.value(1).toInt()};
}

/// The demonstration hospital beside the program, or where the program was started.
QString usualHome() {
    const QDir demo(QCoreApplication::applicationDirPath() + "/../var/demo");
    return demo.exists("made.sys") ? demo.canonicalPath() : QDir::currentPath();
}

Options readOptions(const QCoreApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription("Billing and accounts of a hospital.");
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption home("home", "The program's folder.", "DIR");
    const QCommandLineOption user("user", "The user, instead of the one in sysdoc.sys.", "NAME");
    const QCommandLineOption login("login", "Ask for the user's name and password.");
    const QCommandLineOption play("play", "Play a script ('-': standard input).", "FILE");
    const QCommandLineOption window("window", "Play the script on the real windows.");
    const QCommandLineOption size("size", "The main window's size while a script plays on it.", "WxH", "1366x768");
    const QCommandLineOption out("out", "Where a script's pictures, prints and exports go.", "DIR");
    parser.addOptions({home, user, login, play, window, size, out});
    parser.process(application);
    Options options;
    options.home = parser.isSet(home) ? QDir(parser.value(home)).absolutePath() : usualHome();
    if (parser.isSet(user))
        options.user = parser.value(user);
    options.login = parser.isSet(login);
    options.play = parser.value(play);
    options.window = parser.isSet(window);
    options.size = readSize(parser.value(size));
    options.out = parser.isSet(out) ? QDir(parser.value(out)).absolutePath() : QDir::currentPath();
    return options;
}

int complain(const QString& message) {
    std::fprintf(stderr, "%s\n", qPrintable(message));
    return 2;
}

int play(const Options& options, Driver* driver, Shower* shower) {
    QFile script(options.play), output;
    const bool opened = options.play == QLatin1String("-") ? script.open(fileno(stdin), QIODevice::ReadOnly)
                                                           : script.open(QIODevice::ReadOnly);
    if (!opened)
        return complain(options.play + ": " + script.errorString());
    if (!output.open(stdout, QIODevice::WriteOnly))
        return complain("The standard output cannot be written.");
    return runPlay(options.home, script, output, {options.user, options.out, driver, shower});
}

int playOnWindows(const Options& options) {
    if (options.size.isEmpty())
        return complain("--size takes a width and a height, such as 1366x768.");
    if (!QDir().mkpath(options.out))
        return complain(options.out + ": the folder cannot be made");
    DesktopUi desktop;
    desktop.windows().setMainSize(options.size);
    desktop.windows().setScripted(true);
    desktop.windows().setPrintFolder(options.out);
    DesktopShower shower(desktop);
    WindowDriver driver(desktop.windows(), options.out);
    return play(options, &driver, &shower);
}

int runDesktop(const Options& options) {
    DesktopUi desktop;
    Program program(options.home, desktop);
    registerScreens(program);
    Memory& memory = desktop.windows().memory();
    memory.setFile(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + "/desk.ini");
    memory.setUser([&program] { return program.session.gUsername; });
    const bool started = options.login ? MainWithLogin(program) : Main(program, options.user);
    return started ? QApplication::exec() : 1;
}

/// Whether a window will be shown is known before there is an application object: without one no display is needed.
bool needsWindow(int argc, char** argv) {
    bool plain = false, window = false;
    for (int i = 1; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        plain = plain || argument.startsWith("--play") || argument == "--help" || argument == "-h" ||
                argument == "--version" || argument == "-v";
        window = window || argument == "--window";
    }
    return window || !plain;
}

void nameProgram() {
    QCoreApplication::setApplicationName("Billing");
    QCoreApplication::setApplicationVersion("1.0");
}

} // namespace

int main(int argc, char** argv) {
    keepToOwner();
    if (!needsWindow(argc, argv)) {
        const QCoreApplication application(argc, argv);
        nameProgram();
        return play(readOptions(application), nullptr, nullptr);
    }
    QApplication application(argc, argv);
    nameProgram();
    // The program ends when its last form has closed, not in the moment between two of them.
    QApplication::setQuitOnLastWindowClosed(false);
    const Options options = readOptions(application);
    // The pictures of a script are alike on every desktop.
    look::apply(application, options.play.isEmpty() && look::isDesktopDark());
    return options.play.isEmpty() ? runDesktop(options) : playOnWindows(options);
}
