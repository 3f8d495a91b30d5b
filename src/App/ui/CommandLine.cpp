#include "App/ui/CommandLine.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <cstdio>
#include <cstdlib>

#include "App/StartAtLogin.h"
#include "App/ui/BrowserBridgeInstall.h"
#include "Platform/Qt/GnomeExtensionInstaller.h"
#include "Platform/Qt/SettingsStore.h"
#include "Version.h"

namespace larkspan {

namespace {

void print(std::FILE* stream, const QString& text) {
    std::fputs(qPrintable(text), stream);
    std::fflush(stream);
}

int turnStartAtLogin(bool on) {
    SettingsStore settings;
    StartAtLogin startAtLogin(autostartEntryPath(std::getenv), runningExecutable(), settings);
    if (const auto why = startAtLogin.set(on)) {
        print(stderr, QString::fromStdString(*why) + '\n');
        return 1;
    }
    const QString entry = QString::fromStdString(startAtLogin.entryPath().string());
    print(stdout, on ? QStringLiteral("Larkspan starts at login (%1).\n").arg(entry)
                     : QStringLiteral("Larkspan no longer starts at login.\n"));
    return 0;
}

}  // namespace

QStringList argumentList(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

std::optional<int> answerCommandLine(const QStringList& arguments, bool deferUnknown) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Keeps track of where your day goes, from the system tray."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help and quit."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Show Larkspan's version and quit."));
    const QCommandLineOption autostart(
        QStringLiteral("autostart"),
        QStringLiteral("Start Larkspan at login (on) or no longer (off), then quit."),
        QStringLiteral("on|off"));
    const QCommandLineOption installBridge(
        QStringLiteral("install-browser-bridge"),
        QStringLiteral("Let the browsers' Larkspan extension reach Larkspan, then quit."));
    const QCommandLineOption uninstallBridge(QStringLiteral("uninstall-browser-bridge"),
                                             QStringLiteral("Undo --install-browser-bridge, then quit."));
    const QCommandLineOption installGnomeExtension(
        QStringLiteral("install-gnome-extension"),
        QStringLiteral("Install the GNOME Shell extension that shows Larkspan the window in front, then quit."));
    parser.addOptions({help, version, autostart, installBridge, uninstallBridge, installGnomeExtension});

    const QString program =
        arguments.isEmpty() ? QStringLiteral("larkspan") : QFileInfo(arguments[0]).fileName();
    const auto refuse = [&program](const QString& why) {
        print(stderr, QStringLiteral("%1: %2\nTry '%1 --help'.\n").arg(program, why));
        return 2;
    };
    if (!parser.parse(arguments)) {
        if (deferUnknown)
            return std::nullopt;
        return refuse(parser.errorText());
    }
    if (!parser.positionalArguments().isEmpty()) {
        if (deferUnknown)
            return std::nullopt;
        return refuse(QStringLiteral("unexpected argument '%1'.").arg(parser.positionalArguments().first()));
    }

    if (parser.isSet(help)) {
        // The parser names the program only once an application object exists; name it always.
        QString text = parser.helpText();
        text = QStringLiteral("Usage: %1 [options]").arg(program) + text.mid(text.indexOf('\n'));
        print(stdout, text);
        return 0;
    }
    if (parser.isSet(version)) {
        print(stdout, QStringLiteral("Larkspan " LARKSPAN_VERSION "\n"));
        return 0;
    }
    if (parser.isSet(autostart)) {
        const QString value = parser.value(autostart);
        if (value != QLatin1String("on") && value != QLatin1String("off"))
            return refuse(QStringLiteral("--autostart takes on or off, not '%1'.").arg(value));
        return turnStartAtLogin(value == QLatin1String("on"));
    }
    if (parser.isSet(installBridge) || parser.isSet(uninstallBridge))
        return changeBrowserBridge(parser.isSet(installBridge));
    if (parser.isSet(installGnomeExtension))
        return runInstallGnomeExtension();
    return std::nullopt;
}

}  // namespace larkspan
