#include "App/StartAtLogin.h"

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <system_error>

namespace larkspan {

namespace {

// A desktop entry's string value: a backslash is written doubled.
std::string escapeString(std::string_view text) {
    std::string out;
    for (char c : text) {
        if (c == '\\')
            out += '\\';
        out += c;
    }
    return out;
}

// One Exec argument, always double-quoted: inside the quotes '"', '`', '$' and '\' take a backslash,
// '%' is doubled so it is no field code, and the whole then follows the string-value escaping.
std::string quoteExecArgument(std::string_view argument) {
    std::string quoted = "\"";
    for (char c : argument) {
        if (c == '"' || c == '`' || c == '$' || c == '\\')
            quoted += '\\';
        if (c == '%')
            quoted += '%';
        quoted += c;
    }
    quoted += '"';
    return escapeString(quoted);
}

std::string failure(const char* what, const std::filesystem::path& path, const std::error_code& error) {
    return std::string(what) + " " + path.string() + ": " + error.message() + ".";
}

}  // namespace

std::filesystem::path autostartEntryPath(const std::function<const char*(const char*)>& lookup) {
    std::filesystem::path base;
    if (const char* config = lookup("XDG_CONFIG_HOME"); config && *config == '/')
        base = config;
    else if (const char* home = lookup("HOME"); home && *home)
        base = std::filesystem::path(home) / ".config";
    else
        return {};
    return base / "autostart" / (std::string(kApplicationID) + ".desktop");
}

std::optional<std::string> autostartEntryText(const std::filesystem::path& executable) {
    const std::string path = executable.string();
    for (unsigned char c : path)
        if (c < 0x20 || c == 0x7f)
            return std::nullopt;
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Larkspan\n"
           "Comment=Keeps track of where your day goes\n"
           "Icon=" +
           std::string(kApplicationID) +
           "\n"
           "Exec=" +
           quoteExecArgument(path) +
           "\n"
           "TryExec=" +
           escapeString(path) +
           "\n"
           "Terminal=false\n"
           "X-GNOME-Autostart-enabled=true\n";
}

bool isInstalledExecutable(const std::filesystem::path& executable) {
    const auto bin = executable.parent_path();
    if (bin.filename() != "bin")
        return false;
    std::error_code error;
    const auto entry =
        bin.parent_path() / "share" / "applications" / (std::string(kApplicationID) + ".desktop");
    return std::filesystem::is_regular_file(entry, error);
}

std::filesystem::path runningExecutable() {
    std::error_code error;
    auto path = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::path() : path;
}

StartAtLogin::StartAtLogin(std::filesystem::path entryPath, std::filesystem::path executable,
                           KeyValueStore& settings)
    : entryPath_(std::move(entryPath)), executable_(std::move(executable)), settings_(settings) {}

bool StartAtLogin::isOn() const {
    std::error_code error;
    return !entryPath_.empty() && std::filesystem::exists(entryPath_, error);
}

std::optional<std::string> StartAtLogin::set(bool on) {
    if (on)
        return write();
    settings_.setInteger(std::string(kAutostartOfferedKey), 1);
    return remove();
}

std::optional<std::string> StartAtLogin::write() {
    if (entryPath_.empty())
        return "Larkspan cannot tell where login entries go: neither XDG_CONFIG_HOME nor HOME is set.";
    const auto text = autostartEntryText(executable_);
    if (!text || !executable_.is_absolute())
        return "Larkspan cannot start at login from " + executable_.string() +
               ": a login entry cannot name that path.";
    std::error_code error;
    const auto folder = entryPath_.parent_path();
    std::filesystem::create_directories(folder, error);
    if (error)
        return failure("Larkspan cannot start at login: cannot create", folder, error);

    // Written beside the entry and renamed over it, so the session never reads half an entry.
    auto partial = entryPath_;
    partial += ".new";
    {
        std::ofstream out(partial, std::ios::binary | std::ios::trunc);
        if (out)
            out << *text;
        if (out)
            out.close();
        if (!out) {
            const std::error_code why(errno != 0 ? errno : EIO, std::generic_category());
            std::filesystem::remove(partial, error);
            return failure("Larkspan cannot start at login: cannot write in", folder, why);
        }
    }
    std::filesystem::rename(partial, entryPath_, error);
    if (error) {
        std::error_code ignored;
        std::filesystem::remove(partial, ignored);
        return failure("Larkspan cannot start at login: cannot write", entryPath_, error);
    }
    return std::nullopt;
}

std::optional<std::string> StartAtLogin::remove() {
    std::error_code error;
    std::filesystem::remove(entryPath_, error);
    if (error && error != std::errc::no_such_file_or_directory)
        return failure("Larkspan still starts at login: cannot remove", entryPath_, error);
    return std::nullopt;
}

void StartAtLogin::offerAtFirstLaunch(bool installed, Notifier& notifier) {
    const std::string key(kAutostartOfferedKey);
    if (!installed || settings_.integer(key).value_or(0) != 0)
        return;
    settings_.setInteger(key, 1);
    if (isOn())
        return;
    const std::string id(notificationID);
    if (const auto why = write()) {
        std::fprintf(stderr, "%s\n", why->c_str());
        notifier.notify(id, "Start Larkspan at login", *why);
        return;
    }
    notifier.notify(
        id, "Larkspan starts at login",
        "Turn this off with \u201cStart Larkspan at login\u201d in the tray menu or in Settings.");
}

}  // namespace larkspan
