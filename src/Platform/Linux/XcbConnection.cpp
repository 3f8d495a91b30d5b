// EWMH and ICCCM property reads over xcb. Every reply is checked: a window can vanish between two
// requests and the server can go away at any moment; either gives an empty answer, never a crash.
#include "Platform/Linux/XcbConnection.h"

#include <cstdlib>
#include <cstring>
#include <mutex>

#include "Platform/Linux/TextEncoding.h"

namespace larkspan {

namespace {

constexpr std::uint32_t kMaxPropertyWords = 64 * 1024;  // 256 KB: longer titles are cut there
constexpr int kMaxTransientHops = 4;

struct FreeDeleter {
    void operator()(void* p) const { std::free(p); }
};
using PropertyReply = std::unique_ptr<xcb_get_property_reply_t, FreeDeleter>;

xcb_get_property_cookie_t requestProperty(xcb_connection_t* c, xcb_window_t window, xcb_atom_t property,
                                          xcb_atom_t type = XCB_GET_PROPERTY_TYPE_ANY,
                                          std::uint32_t words = kMaxPropertyWords) {
    return xcb_get_property(c, 0, window, property, type, 0, words);
}

PropertyReply takeReply(xcb_connection_t* c, xcb_get_property_cookie_t cookie) {
    PropertyReply reply(xcb_get_property_reply(c, cookie, nullptr));
    if (reply && reply->type == XCB_ATOM_NONE)
        reply.reset();
    return reply;
}

std::string_view bytesOf(const PropertyReply& reply) {
    if (!reply || reply->format != 8)
        return {};
    const auto length = static_cast<std::size_t>(xcb_get_property_value_length(reply.get()));
    return {static_cast<const char*>(xcb_get_property_value(reply.get())), length};
}

std::optional<std::uint32_t> firstWord(const PropertyReply& reply) {
    if (!reply || reply->format != 32 || xcb_get_property_value_length(reply.get()) < 4)
        return std::nullopt;
    std::uint32_t value = 0;
    std::memcpy(&value, xcb_get_property_value(reply.get()), sizeof value);
    return value;
}

std::string utf8Text(std::string_view bytes) {
    return sanitizedUtf8(bytes);
}

}  // namespace

std::unique_ptr<XcbConnection> XcbConnection::open(const std::string& display) {
    if (display.empty())
        return nullptr;
    int screenNumber = 0;
    xcb_connection_t* c = nullptr;
    {
        // xcb_connect reads the X authority file through libXau, whose file-name buffer is shared
        // and unguarded; the watcher and a query thread may connect at the same moment.
        static std::mutex connectMutex;
        std::lock_guard lock(connectMutex);
        c = xcb_connect(display.c_str(), &screenNumber);
    }
    if (xcb_connection_has_error(c)) {
        xcb_disconnect(c);
        return nullptr;
    }
    auto it = xcb_setup_roots_iterator(xcb_get_setup(c));
    for (int i = 0; i < screenNumber && it.rem > 0; ++i)
        xcb_screen_next(&it);
    if (it.rem == 0) {
        xcb_disconnect(c);
        return nullptr;
    }
    std::unique_ptr<XcbConnection> connection(new XcbConnection(c, it.data->root));
    if (!connection->internAtoms())
        return nullptr;
    return connection;
}

XcbConnection::XcbConnection(xcb_connection_t* connection, xcb_window_t root)
    : connection_(connection), root_(root) {}

XcbConnection::~XcbConnection() {
    xcb_disconnect(connection_);
}

bool XcbConnection::broken() const {
    return xcb_connection_has_error(connection_) != 0;
}

int XcbConnection::fileDescriptor() const {
    return xcb_get_file_descriptor(connection_);
}

bool XcbConnection::internAtoms() {
    static constexpr const char* names[kAtomCount] = {"_NET_ACTIVE_WINDOW",
                                                      "_NET_CLIENT_LIST",
                                                      "_NET_CLIENT_LIST_STACKING",
                                                      "_NET_WM_PID",
                                                      "_NET_WM_NAME",
                                                      "UTF8_STRING",
                                                      "COMPOUND_TEXT",
                                                      "_GTK_APPLICATION_ID",
                                                      "_KDE_NET_WM_DESKTOP_FILE",
                                                      "_NET_WM_WINDOW_TYPE",
                                                      "_NET_WM_WINDOW_TYPE_UTILITY"};
    std::array<xcb_intern_atom_cookie_t, kAtomCount> cookies{};
    for (int i = 0; i < kAtomCount; ++i) {
        cookies[i] =
            xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(std::strlen(names[i])), names[i]);
    }
    bool ok = true;
    for (int i = 0; i < kAtomCount; ++i) {
        std::unique_ptr<xcb_intern_atom_reply_t, FreeDeleter> reply(
            xcb_intern_atom_reply(connection_, cookies[i], nullptr));
        if (!reply)
            ok = false;
        atoms_[i] = reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    }
    return ok;
}

bool XcbConnection::watchRoot() {
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    auto cookie = xcb_change_window_attributes_checked(connection_, root_, XCB_CW_EVENT_MASK, &mask);
    std::unique_ptr<xcb_generic_error_t, FreeDeleter> error(xcb_request_check(connection_, cookie));
    return !error && !broken();
}

bool XcbConnection::isActiveWindowChange(const xcb_generic_event_t& event) const {
    if ((event.response_type & 0x7F) != XCB_PROPERTY_NOTIFY)
        return false;
    const auto& notify = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    return notify.window == root_ && notify.atom == atoms_[kActiveWindow];
}

xcb_window_t XcbConnection::activeWindow() {
    auto reply = takeReply(connection_,
                           requestProperty(connection_, root_, atoms_[kActiveWindow], XCB_ATOM_WINDOW, 1));
    return firstWord(reply).value_or(XCB_WINDOW_NONE);
}

bool XcbConnection::isUtilityWindowOf(xcb_window_t window, std::int64_t pid) {
    auto wmPid = requestProperty(connection_, window, atoms_[kWmPid], XCB_ATOM_CARDINAL, 1);
    auto type = requestProperty(connection_, window, atoms_[kWmWindowType], XCB_ATOM_ATOM, 1);
    const auto pidReply = takeReply(connection_, wmPid);
    const auto typeReply = takeReply(connection_, type);
    return firstWord(pidReply) == pid && firstWord(typeReply) == atoms_[kWmWindowTypeUtility];
}

std::vector<xcb_window_t> XcbConnection::windowList(xcb_atom_t property) {
    auto reply = takeReply(connection_, requestProperty(connection_, root_, property, XCB_ATOM_WINDOW));
    std::vector<xcb_window_t> windows;
    if (!reply || reply->format != 32)
        return windows;
    const auto count =
        static_cast<std::size_t>(xcb_get_property_value_length(reply.get())) / sizeof(xcb_window_t);
    if (count == 0)
        return windows;
    windows.resize(count);
    std::memcpy(windows.data(), xcb_get_property_value(reply.get()), count * sizeof(xcb_window_t));
    return windows;
}

std::vector<xcb_window_t> XcbConnection::clientsTopFirst() {
    auto windows = windowList(atoms_[kClientListStacking]);  // bottom to top
    if (windows.empty())
        windows = windowList(atoms_[kClientList]);
    return {windows.rbegin(), windows.rend()};
}

std::optional<std::string> XcbConnection::title(xcb_window_t window, std::int64_t* pid) {
    auto netName = requestProperty(connection_, window, atoms_[kWmName]);
    auto wmName = requestProperty(connection_, window, XCB_ATOM_WM_NAME);
    auto wmPid = requestProperty(connection_, window, atoms_[kWmPid], XCB_ATOM_CARDINAL, 1);
    xcb_generic_error_t* rawError = nullptr;
    PropertyReply netReply(xcb_get_property_reply(connection_, netName, &rawError));
    std::unique_ptr<xcb_generic_error_t, FreeDeleter> error(rawError);
    auto wmReply = takeReply(connection_, wmName);
    auto pidReply = takeReply(connection_, wmPid);
    // A failed request (BadWindow: the window is gone) or a lost connection leaves no reply at all.
    if (!netReply || error)
        return std::nullopt;
    if (pid)
        *pid = firstWord(pidReply).value_or(0);
    if (netReply->type != XCB_ATOM_NONE)
        return utf8Text(bytesOf(netReply));
    if (!wmReply)
        return std::string();
    const auto bytes = bytesOf(wmReply);
    if (wmReply->type == XCB_ATOM_STRING)
        return latin1ToUtf8(bytes);
    if (wmReply->type == atoms_[kCompoundText])
        return compoundTextToUtf8(bytes);
    return utf8Text(bytes);
}

std::vector<WindowClues> XcbConnection::ownClues(const std::vector<xcb_window_t>& windows,
                                                 std::vector<xcb_window_t>& transientFor) {
    struct Cookies {
        xcb_get_property_cookie_t transient, pid, wmClass, gtk, kde;
    };
    std::vector<Cookies> cookies;
    cookies.reserve(windows.size());
    for (auto window : windows) {
        cookies.push_back(
            {requestProperty(connection_, window, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, 1),
             requestProperty(connection_, window, atoms_[kWmPid], XCB_ATOM_CARDINAL, 1),
             requestProperty(connection_, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 256),
             requestProperty(connection_, window, atoms_[kGtkApplicationID], XCB_GET_PROPERTY_TYPE_ANY, 256),
             requestProperty(connection_, window, atoms_[kKdeDesktopFile], XCB_GET_PROPERTY_TYPE_ANY, 1024)});
    }
    std::vector<WindowClues> clues(windows.size());
    transientFor.assign(windows.size(), XCB_WINDOW_NONE);
    for (std::size_t i = 0; i < windows.size(); ++i) {
        auto transient = takeReply(connection_, cookies[i].transient);
        auto pid = takeReply(connection_, cookies[i].pid);
        auto wmClass = takeReply(connection_, cookies[i].wmClass);
        auto gtk = takeReply(connection_, cookies[i].gtk);
        auto kde = takeReply(connection_, cookies[i].kde);
        transientFor[i] = firstWord(transient).value_or(XCB_WINDOW_NONE);
        clues[i].pid = firstWord(pid).value_or(0);
        // WM_CLASS: instance and class, each NUL-terminated, in Latin-1.
        const auto classBytes = bytesOf(wmClass);
        const auto split = classBytes.find('\0');
        clues[i].wmInstance = latin1ToUtf8(classBytes.substr(0, split));
        if (split != std::string_view::npos) {
            auto rest = classBytes.substr(split + 1);
            clues[i].wmClass = latin1ToUtf8(rest.substr(0, rest.find('\0')));
        }
        clues[i].gtkApplicationID = utf8Text(bytesOf(gtk));
        clues[i].kdeDesktopFile = utf8Text(bytesOf(kde));
    }
    return clues;
}

std::vector<WindowClues> XcbConnection::identityClues(const std::vector<xcb_window_t>& windows) {
    std::vector<xcb_window_t> transientFor;
    auto clues = ownClues(windows, transientFor);
    // Dialogs speak for their main window; follow WM_TRANSIENT_FOR a few steps (chains are short,
    // and a loop must not hang us).
    std::vector<xcb_window_t> current = windows;
    for (int hop = 0; hop < kMaxTransientHops; ++hop) {
        std::vector<std::size_t> pending;
        std::vector<xcb_window_t> parents;
        for (std::size_t i = 0; i < windows.size(); ++i) {
            const auto parent = transientFor[i];
            if (parent != XCB_WINDOW_NONE && parent != root_ && parent != current[i]) {
                pending.push_back(i);
                parents.push_back(parent);
            }
        }
        if (pending.empty())
            break;
        std::vector<xcb_window_t> parentTransientFor;
        auto parentClues = ownClues(parents, parentTransientFor);
        std::fill(transientFor.begin(), transientFor.end(), XCB_WINDOW_NONE);
        for (std::size_t k = 0; k < pending.size(); ++k) {
            const auto i = pending[k];
            // A parent that cannot be read (already gone) leaves the dialog's own clues.
            if (parentClues[k] == WindowClues{})
                continue;
            clues[i] = parentClues[k];
            current[i] = parents[k];
            transientFor[i] = parentTransientFor[k];
        }
    }
    return clues;
}

}  // namespace larkspan
