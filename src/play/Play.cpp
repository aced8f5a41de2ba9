#include "play/Play.h"

#include "play/HeadlessDriver.h"
#include "play/Player.h"
#include "screens/Screens.h"
#include "session/Main.h"

namespace orvane {

int runPlay(const QString& homeFolder, QIODevice& script, QIODevice& output, const PlayOptions& options) {
    HeadlessDriver modelDriver;
    Shower noWindows;
    EventLog log(output);
    ScriptUi ui(log, options.shower ? *options.shower : noWindows);
    ui.setExportFolder(options.outFolder.isEmpty() ? homeFolder : options.outFolder);
    Program program(homeFolder, ui);
    registerScreens(program);
    const Player::Entry entry{[&] { Main(program, options.userName); },
                              [&] {
                                  if (!prepareServer(program))
                                      throw PlayError("the home folder names no server");
                              }};
    Player player(program, ui, log, options.driver ? *options.driver : modelDriver, script, entry);
    return player.run() ? 0 : 1;
}

} // namespace orvane
