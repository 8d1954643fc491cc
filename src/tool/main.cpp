#include "tool/commands.hpp"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    int exitCode = kov::tool::ExitDone;
    CLI::App app("kovtool: the card files of KOV, without a screen");
    app.set_version_flag("--version", "kovtool " KOV_VERSION);
    app.require_subcommand(1);
    kov::tool::addRewriteCommand(app, exitCode);
    kov::tool::addDriveCommand(app, exitCode);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        // Help and version end the parse too, but they are no errors.
        return app.exit(error) == 0 ? kov::tool::ExitDone : kov::tool::ExitUsage;
    } catch (const std::exception& error) {
        std::cerr << "kovtool: " << error.what() << '\n';
        return kov::tool::ExitUnhandledFailure;
    }
    return exitCode;
}
