// The extension's files are compiled into the binary (Qt resources), so an installed Larkspan
// needs nothing else on disk to set GNOME up.
#include "Platform/Qt/GnomeExtensionInstaller.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include "Platform/Qt/GnomeShellSource.h"

namespace larkspan {

namespace fs = std::filesystem;

namespace {

constexpr int kFirstModuleShell = 45;  // the first GNOME Shell that loads extensions as ES modules

std::string resource(const char* name) {
    QFile file(QStringLiteral(":/gnome-shell-extension/") + QLatin1String(name));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(std::string("missing built-in file ") + name);
    return file.readAll().toStdString();
}

void write(const fs::path& path, const std::string& text) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
    if (!out.flush())
        throw std::runtime_error("cannot write " + path.string());
}

}  // namespace

int gnomeShellMajorVersion() {
    QProcess shell;
    shell.start(QStringLiteral("gnome-shell"), {QStringLiteral("--version")});
    if (!shell.waitForFinished(3000))
        return 0;
    const auto match =
        QRegularExpression(QStringLiteral("(\\d+)\\.")).match(QString::fromUtf8(shell.readAll()));
    return match.hasMatch() ? match.captured(1).toInt() : 0;
}

fs::path installGnomeExtension(const fs::path& extensionsDir, int shellMajor) {
    const fs::path folder = extensionsDir / GnomeShellSource::kExtensionUUID;
    std::error_code error;
    fs::create_directories(folder, error);
    if (error)
        throw std::runtime_error("cannot create " + folder.string() + ": " + error.message());
    const bool modules = shellMajor == 0 || shellMajor >= kFirstModuleShell;
    write(folder / "metadata.json", resource("metadata.json"));
    std::string service = resource("focusedWindow.js");
    if (modules)
        service += "\nexport {FocusedWindowService, BUS_NAME, OBJECT_PATH};\n";
    write(folder / "focusedWindow.js", service);
    write(folder / "extension.js", resource(modules ? "extension-45.js" : "extension-43.js"));
    return folder;
}

int runInstallGnomeExtension() {
    const char* dataHome = std::getenv("XDG_DATA_HOME");
    const char* home = std::getenv("HOME");
    fs::path base = dataHome && *dataHome == '/' ? fs::path(dataHome)
                    : home && *home              ? fs::path(home) / ".local/share"
                                                 : fs::path();
    if (base.empty()) {
        std::fputs("Larkspan: neither XDG_DATA_HOME nor HOME is set.\n", stderr);
        return 1;
    }
    try {
        const auto folder = installGnomeExtension(base / "gnome-shell/extensions", gnomeShellMajorVersion());
        std::printf(
            "Installed Larkspan's GNOME Shell extension in %s.\n"
            "Log out and back in, then run: gnome-extensions enable %s\n",
            folder.c_str(), GnomeShellSource::kExtensionUUID);
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "Larkspan: could not install the GNOME Shell extension: %s\n", failure.what());
        return 1;
    }
}

}  // namespace larkspan
